// TQORComplexEdit: the layout of its children, values set through its setters and
// properties, numbers typed into the element edits (in both display forms), the null state,
// refused values, the settings passed to both edits and the focus path through the pair.
#include "EditWindowTest.h"
#include "QORKITComplex.h"
#include "QORKITComplexEdit.h"
#include "QORKITConstants.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace qorkit {
namespace {

class ComplexEditTest : public test::EditWindowTest<TQORComplexEdit> {
protected:
    void SetUp() override
    {
        EditWindowTest::SetUp();
        edit_->SetOnChange([this](QObject* sender) {
            EXPECT_EQ(sender, edit_);
            seen_.push_back(edit_->GetComplex());
        });
        edit_->SetOnValidationError([this](QObject*, const QString& m) { errors_ << m; });
    }
    TQORFloatEdit* Element(int index) const { return edit_->GetElementEdit(index); }
    void Type(int index, const QString& keys) { TypeInto(Element(index), keys); }

    std::vector<TQORComplex> seen_; // the value at each change notice
    QStringList errors_;
};

struct ChildRow {
    const char* Name;
    bool Brackets;
    const char* Child;
    QRect Geometry; // empty: hidden
};

void PrintTo(const ChildRow& row, std::ostream* os) { *os << row.Name; }

class ComplexEditLayout : public ComplexEditTest,
                          public ::testing::WithParamInterface<ChildRow> { };

TEST_P(ComplexEditLayout, ChildGeometry)
{
    const ChildRow& row = GetParam();
    edit_->SetShowBrackets(row.Brackets);
    EXPECT_EQ(edit_->size(), QSize(121, 21));
    auto* child = edit_->findChild<QWidget*>(QString::fromLatin1(row.Child));
    ASSERT_NE(child, nullptr);
    if (row.Geometry.isEmpty()) {
        EXPECT_FALSE(child->isVisible());
    } else {
        EXPECT_TRUE(child->isVisible());
        EXPECT_EQ(child->geometry(), row.Geometry);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Children, ComplexEditLayout,
    ::testing::Values(ChildRow {"OpenBracket", true, "OpenBracket", QRect(0, -4, 7, 25)},
                      ChildRow {"FirstEdit", true, "FirstEdit", QRect(7, 0, 51, 21)},
                      ChildRow {"Separator", true, "Separator", QRect(58, 0, 5, 21)},
                      ChildRow {"SecondEdit", true, "SecondEdit", QRect(63, 0, 51, 21)},
                      ChildRow {"CloseBracket", true, "CloseBracket", QRect(114, -4, 7, 25)},
                      // Without brackets the edits take the room the brackets had.
                      ChildRow {"NoBracketsOpen", false, "OpenBracket", QRect()},
                      ChildRow {"NoBracketsFirst", false, "FirstEdit", QRect(0, 0, 58, 21)},
                      ChildRow {"NoBracketsSecond", false, "SecondEdit", QRect(63, 0, 58, 21)},
                      ChildRow {"NoBracketsClose", false, "CloseBracket", QRect()}),
    test::RowName<ChildRow>);

TEST_F(ComplexEditTest, EqualValueFiresNothingNewValueFiresOnce)
{
    QSignalSpy change(edit_, &TQORComplexEdit::change);
    QSignalSpy real(edit_, &TQORComplexEdit::realPortionChanged);
    QSignalSpy imaginary(edit_, &TQORComplexEdit::imaginaryPortionChanged);
    edit_->SetComplex(ComplexZero);
    edit_->SetRealPortion(0);
    EXPECT_EQ(change.count(), 0);
    edit_->SetComplex(MakeComplex(3, -4));
    edit_->SetComplex(MakeComplex(3, -4));
    edit_->SetImaginaryPortion(-4);
    EXPECT_EQ(change.count(), 1);
    EXPECT_EQ(real.count(), 1);
    EXPECT_EQ(imaginary.count(), 1);
    ASSERT_EQ(seen_.size(), 1u);
    EXPECT_EQ(seen_[0], MakeComplex(3, -4));
    EXPECT_EQ(Element(0)->text(), QStringLiteral("3.00"));
    EXPECT_EQ(Element(1)->text(), QStringLiteral("-4.00"));
}

TEST_F(ComplexEditTest, PolarFormShowsModulusAndAmplitude)
{
    edit_->SetComplex(MakeComplex(0, -2));
    QSignalSpy change(edit_, &TQORComplexEdit::change);
    edit_->SetComplexDisplay(ctPolar);
    EXPECT_EQ(Element(0)->text(), QStringLiteral("2.00"));
    EXPECT_EQ(Element(1)->text(), QStringLiteral("4.71")); // 3 pi / 2
    EXPECT_EQ(change.count(), 0); // the value did not change, only its form
}

TEST_F(ComplexEditTest, PolarFirstEditStillWritesTheRealPart)
{
    edit_->SetComplex(MakeComplex(3, 4));
    edit_->SetComplexDisplay(ctPolar);
    seen_.clear();
    Type(0, QStringLiteral("2"));
    EXPECT_EQ(edit_->GetComplex(), MakeComplex(2, 4));
    // The pair is not shown again: the second edit still shows the old amplitude.
    EXPECT_EQ(Element(1)->text(), QStringLiteral("0.93"));
    ASSERT_EQ(seen_.size(), 1u);
    EXPECT_EQ(seen_[0], MakeComplex(2, 4));
}

TEST_F(ComplexEditTest, TypedNumbersGoIntoTheirParts)
{
    Type(0, QStringLiteral("1.5"));
    Element(1)->setFocus(Qt::TabFocusReason);
    Element(1)->selectAll();
    QTest::keyClicks(Element(1), QStringLiteral("-2.25"));
    QTest::keyClick(Element(1), Qt::Key_Return); // taken over without leaving
    EXPECT_EQ(edit_->GetComplex(), MakeComplex(1.5L, -2.25L));
    ASSERT_EQ(seen_.size(), 2u);
    EXPECT_EQ(seen_[1], MakeComplex(1.5L, -2.25L)); // the notice already sees the new value
    other_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(seen_.size(), 2u);
}

TEST_F(ComplexEditTest, AbsoluteValueAndAmplitudeThroughTheProperties)
{
    EXPECT_TRUE(edit_->setProperty("AbsoluteValue", 2.0));
    EXPECT_TRUE(edit_->setProperty("Amplitude", static_cast<double>(QORPi / 2)));
    EXPECT_NEAR(static_cast<double>(edit_->GetRealPortion()), 0, 1e-15);
    EXPECT_NEAR(static_cast<double>(edit_->GetImaginaryPortion()), 2, 1e-15);
    // A negative modulus is taken as its absolute value.
    edit_->SetAbsValue(-3);
    EXPECT_NEAR(static_cast<double>(edit_->GetAbsValue()), 3, 1e-15);
    EXPECT_NEAR(static_cast<double>(edit_->GetImaginaryPortion()), 3, 1e-15);
}

TEST_F(ComplexEditTest, RefusedValuesKeepTheOldOne)
{
    edit_->SetComplex(MakeComplex(1, 2));
    QSignalSpy refused(edit_, &TQORComplexEdit::validationError);
    const Extended nan = std::numeric_limits<Extended>::quiet_NaN();
    const Extended inf = std::numeric_limits<Extended>::infinity();
    edit_->SetRealPortion(nan);
    edit_->SetComplex(MakeComplex(inf, 0));
    edit_->SetAmplitude(inf);
    edit_->SetAbsValue(nan);
    EXPECT_EQ(refused.count(), 4);
    EXPECT_EQ(errors_.size(), 4);
    for (const auto& message : errors_)
        EXPECT_FALSE(message.isEmpty());
    EXPECT_EQ(edit_->GetComplex(), MakeComplex(1, 2));
    EXPECT_TRUE(seen_.size() == 1u);
    // Keys that make no number are not taken.
    Type(1, QStringLiteral("x!"));
    EXPECT_EQ(edit_->GetComplex(), MakeComplex(1, 2));
    EXPECT_EQ(Element(0)->text(), QStringLiteral("1.00"));
    EXPECT_EQ(Element(1)->text(), QStringLiteral("2.00"));
}

TEST_F(ComplexEditTest, NullStateOfThePair)
{
    edit_->SetNullStr(QStringLiteral("n/a"));
    edit_->SetAllowKbdNull(true);
    edit_->SetComplex(MakeComplex(1, 2));
    QSignalSpy nulls(edit_, &TQORComplexEdit::null);
    // The null string typed into one edit makes the whole control null.
    Type(1, QStringLiteral("N/A"));
    EXPECT_TRUE(edit_->GetNull());
    EXPECT_EQ(nulls.count(), 1);
    EXPECT_EQ(edit_->GetComplex(), ComplexZero);
    EXPECT_EQ(Element(0)->text(), QStringLiteral("n/a"));
    // A number typed into one edit leaves it; the other part reads 0.
    Type(0, QStringLiteral("5"));
    EXPECT_FALSE(edit_->GetNull());
    EXPECT_EQ(edit_->GetComplex(), MakeComplex(5, 0));
    EXPECT_EQ(Element(1)->text(), QStringLiteral("0.00"));
}

TEST_F(ComplexEditTest, SettingsReachBothEdits)
{
    QSignalSpy decimals(edit_, &TQORComplexEdit::decimalPlacesChanged);
    edit_->SetDecimalPlaces(4);
    edit_->SetDecimalPlaces(4);
    edit_->SetReadOnly(true);
    edit_->SetNullStr(QStringLiteral("-"));
    edit_->SetTrimTrailingZeroes(true);
    edit_->SetAlignment(Qt::AlignLeft);
    edit_->SetComplex(MakeComplex(1.25L, 2));
    EXPECT_EQ(decimals.count(), 1);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Element(i)->GetDecimalPlaces(), 4);
        EXPECT_TRUE(Element(i)->GetReadOnly());
        EXPECT_EQ(Element(i)->GetNullStr(), QStringLiteral("-"));
        EXPECT_TRUE(Element(i)->GetAlignment() & Qt::AlignLeft);
    }
    EXPECT_EQ(Element(0)->text(), QStringLiteral("1.25"));
    EXPECT_EQ(Element(1)->text(), QStringLiteral("2"));
}

TEST_F(ComplexEditTest, TabMovesThroughThePairThenLeaves)
{
    QSignalSpy entered(edit_, &TQORComplexEdit::enter);
    QSignalSpy exited(edit_, &TQORComplexEdit::exit);
    edit_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(QApplication::focusWidget(), Element(0));
    QTest::keyClick(Element(0), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Element(1));
    EXPECT_EQ(entered.count(), 1);
    EXPECT_EQ(exited.count(), 0);
    QTest::keyClick(Element(1), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), other_);
    EXPECT_EQ(exited.count(), 1);
}

TEST_F(ComplexEditTest, PropertiesSignalAndEnumIsRegistered)
{
    const QMetaObject* meta = edit_->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty p = meta->property(i);
        EXPECT_TRUE(!p.isWritable() || p.hasNotifySignal()) << p.name();
    }
    EXPECT_TRUE(meta->property(meta->indexOfProperty("ComplexDisplay")).isEnumType());
    EXPECT_TRUE(edit_->setProperty("ComplexDisplay", QStringLiteral("ctPolar")));
    EXPECT_EQ(edit_->GetComplexDisplay(), ctPolar);
}

} // namespace
} // namespace qorkit

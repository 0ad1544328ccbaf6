// TQORDMSEdit: the angle read back in each unit, its text in each form, the edit's own marks
// and separator (with the process-wide ones left as they were), typed angles, refused text,
// the add operations and the change signals.
#include "EditWindowTest.h"
#include "QORKITDMSEdit.h"
#include "QORKITSettings.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <ostream>

namespace qorkit {
namespace {

class DMSEditTest : public test::EditWindowTest<TQORDMSEdit> {
protected:
    void SetUp() override
    {
        EditWindowTest::SetUp();
        changes_.emplace(edit_, &TQORDMSEdit::change);
        edit_->SetOnValidationError([this](QObject*, const QString& m) { errors_ << m; });
    }
    void Type(const QString& keys) { TypeInto(edit_, keys); }
    void ExpectGlobalMarksUntouched() const
    {
        const TFormatSettings defaults;
        EXPECT_EQ(FormatSettings.DegreeSign, defaults.DegreeSign);
        EXPECT_EQ(FormatSettings.MinuteSign, defaults.MinuteSign);
        EXPECT_EQ(FormatSettings.SecondSign, defaults.SecondSign);
        EXPECT_EQ(FormatSettings.DecimalSeparator, defaults.DecimalSeparator);
    }

    std::optional<QSignalSpy> changes_;
    QStringList errors_;
};

TEST_F(DMSEditTest, OneAngleInEveryUnit)
{
    edit_->SetDegrees(12.5L);
    EXPECT_EQ(edit_->GetMins(), 750);
    EXPECT_EQ(edit_->GetSecs(), 45000);
    EXPECT_EQ(edit_->property("AsMins").toDouble(), 750);
    edit_->SetMins(90);
    EXPECT_EQ(edit_->GetDegrees(), 1.5L);
    edit_->SetSecs(5400);
    EXPECT_EQ(edit_->GetDegrees(), 1.5L);
    EXPECT_EQ(changes_->count(), 2); // 90 minutes and 5400 seconds are the same angle
}

struct TextRow {
    const char* Name;
    Extended Degrees;
    std::function<void(TQORDMSEdit&)> Setup;
    const char* Text; // UTF-8
};

void PrintTo(const TextRow& row, std::ostream* os) { *os << row.Name; }

class DMSEditText : public DMSEditTest, public ::testing::WithParamInterface<TextRow> { };

TEST_P(DMSEditText, ShownTextAndGlobalsRestored)
{
    GetParam().Setup(*edit_);
    edit_->SetDegrees(GetParam().Degrees);
    EXPECT_EQ(edit_->text().toStdString(), GetParam().Text);
    EXPECT_EQ(edit_->GetDMS().toStdString(), GetParam().Text);
    ExpectGlobalMarksUntouched();
    // The text reads back as the angle it shows.
    const Extended shown = edit_->GetDegrees();
    edit_->SetDMS(edit_->GetDMS());
    EXPECT_TRUE(errors_.isEmpty()) << errors_.join(QLatin1Char('\n')).toStdString();
    EXPECT_NEAR(static_cast<double>(edit_->GetDegrees()), static_cast<double>(shown), 1e-4);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, DMSEditText,
    ::testing::Values(TextRow {"DefaultDegreesMinutes", 12.5125L, [](TQORDMSEdit&) {},
                               "12\xC2\xB0 30.75'"},
                      TextRow {"Seconds", 12.5125L,
                               [](TQORDMSEdit& e) { e.SetDMSType(dmsDegreesMinutesSeconds); },
                               "12\xC2\xB0 30' 45.00\""},
                      TextRow {"DegreesUseDecimalPlacesFloat", 12.25L,
                               [](TQORDMSEdit& e) {
                                   e.SetDMSType(dmsDegrees);
                                   e.SetDecimalPlaces(0);
                                   e.SetDecimalPlacesFloat(3);
                               },
                               "12.250\xC2\xB0"},
                      TextRow {"LeadingZeroesNoSpaceTrimmed", 5.0841666666666667L,
                               [](TQORDMSEdit& e) {
                                   e.SetDMSType(dmsDegreesMinutesSeconds);
                                   e.SetLeadingZeroes(true);
                                   e.SetSpaceUnits(false);
                                   e.SetTrimTrailingZeroes(true);
                               },
                               "5\xC2\xB0"
                               "05'03\""},
                      TextRow {"OwnMarks", -12.5125L,
                               [](TQORDMSEdit& e) {
                                   e.SetDMSType(dmsDegreesMinutesSeconds);
                                   e.SetDecimalPlaces(0);
                                   e.SetSuffixDegrees(QStringLiteral("d"));
                                   e.SetSuffixMins(QStringLiteral("m"));
                                   e.SetSuffixSecs(QStringLiteral("s"));
                               },
                               "-12d 30m 45s"},
                      TextRow {"CustomDecimal", 12.5125L,
                               [](TQORDMSEdit& e) {
                                   e.SetCustomDecimal(',');
                                   e.SetCustomSeparators(true);
                               },
                               "12\xC2\xB0 30,75'"}),
    test::RowName<TextRow>);

TEST_F(DMSEditTest, ChangingTheTypeKeepsTheAngle)
{
    edit_->SetDegrees(33.3L);
    QSignalSpy degrees(edit_, &TQORDMSEdit::asDegreesChanged);
    QSignalSpy type(edit_, &TQORDMSEdit::dmsTypeChanged);
    for (const auto t : {dmsDegrees, dmsDegreesMinutesSeconds, dmsDegreesMinutes}) {
        edit_->SetDMSType(t);
        EXPECT_EQ(edit_->GetDegrees(), 33.3L);
    }
    EXPECT_EQ(type.count(), 3);
    EXPECT_EQ(degrees.count(), 0);
    EXPECT_EQ(changes_->count(), 1);
}

struct TypedRow {
    const char* Name;
    const char* Keys;
    Extended Degrees;
};

void PrintTo(const TypedRow& row, std::ostream* os) { *os << row.Name; }

class DMSEditTyping : public DMSEditTest, public ::testing::WithParamInterface<TypedRow> { };

TEST_P(DMSEditTyping, TypedAngles)
{
    edit_->SetFullAccuracy(true);
    edit_->SetSuffixDegrees(QStringLiteral("d"));
    Type(QString::fromUtf8(GetParam().Keys));
    EXPECT_TRUE(errors_.isEmpty()) << errors_.join(QLatin1Char('\n')).toStdString();
    EXPECT_NEAR(static_cast<double>(edit_->GetDegrees()), static_cast<double>(GetParam().Degrees),
                1e-15);
    ExpectGlobalMarksUntouched();
}

INSTANTIATE_TEST_SUITE_P(Keys, DMSEditTyping,
                         ::testing::Values(TypedRow {"PlainDegrees", "12.5", 12.5L},
                                           TypedRow {"BlankSeparated", "12 30 45", 12.5125L},
                                           TypedRow {"OwnMark", "-1d 30'", -1.5L},
                                           TypedRow {"Hemisphere", "10 30 s", -10.5L}),
                         test::RowName<TypedRow>);

TEST_F(DMSEditTest, TextThatIsNoAngleKeepsTheOldOne)
{
    // Own marks and separator, which must be taken back out of the process-wide settings
    // also when the text does not parse.
    edit_->SetSuffixDegrees(QStringLiteral("deg"));
    edit_->SetCustomDecimal(',');
    edit_->SetCustomSeparators(true);
    edit_->SetDegrees(10);
    changes_->clear();
    for (const char* keys : {"12x", "1 2 3 4", "--5", "1e999999"}) {
        Type(QString::fromLatin1(keys));
        EXPECT_EQ(edit_->GetDegrees(), 10) << keys;
        EXPECT_EQ(edit_->text().toStdString(), "10deg 0,00'") << keys;
        ExpectGlobalMarksUntouched();
    }
    ASSERT_EQ(errors_.size(), 4);
    EXPECT_EQ(errors_[0], QStringLiteral("'12x' is not a valid angle"));
    EXPECT_EQ(changes_->count(), 0);
    edit_->SetDegrees(std::numeric_limits<Extended>::infinity());
    EXPECT_EQ(errors_.size(), 5);
    EXPECT_EQ(edit_->GetDegrees(), 10);
}

struct AddRow {
    const char* Name;
    void (TQORDMSEdit::*Add)(Extended);
    Extended Amount;
    Extended Result;
};

void PrintTo(const AddRow& row, std::ostream* os) { *os << row.Name; }

class DMSEditAdd : public DMSEditTest, public ::testing::WithParamInterface<AddRow> { };

// The minute and second amounts are multiplied by 60 and 3600, on purpose.
TEST_P(DMSEditAdd, AddsWithoutAChangeNotice)
{
    edit_->SetDegrees(10);
    changes_->clear();
    QSignalSpy degrees(edit_, &TQORDMSEdit::asDegreesChanged);
    (edit_->*GetParam().Add)(GetParam().Amount);
    EXPECT_NEAR(static_cast<double>(edit_->GetDegrees()), static_cast<double>(GetParam().Result),
                1e-12);
    EXPECT_EQ(changes_->count(), 0);
    EXPECT_EQ(degrees.count(), 1);
    EXPECT_EQ(edit_->text(), edit_->GetDMS());
}

INSTANTIATE_TEST_SUITE_P(
    Units, DMSEditAdd,
    ::testing::Values(AddRow {"Degrees", &TQORDMSEdit::AddDegrees, 2.5L, 12.5L},
                      AddRow {"HalfMinute", &TQORDMSEdit::AddMinutes, 0.5L, 40},
                      AddRow {"Seconds", &TQORDMSEdit::AddSeconds, 0.01L, 46}),
    test::RowName<AddRow>);

TEST_F(DMSEditTest, AddingKeepsTheNullState)
{
    edit_->SetNullStr(QStringLiteral("--"));
    edit_->SetNull(true);
    edit_->AddDegrees(5);
    EXPECT_TRUE(edit_->GetNull());
    EXPECT_EQ(edit_->text(), QStringLiteral("--"));
    edit_->AddDegrees(std::numeric_limits<Extended>::max());
    edit_->AddDegrees(std::numeric_limits<Extended>::max());
    EXPECT_EQ(errors_.size(), 1);
}

TEST_F(DMSEditTest, EqualValueFiresNothingUnlessNull)
{
    edit_->SetDegrees(7);
    changes_->clear();
    QSignalSpy degrees(edit_, &TQORDMSEdit::asDegreesChanged);
    edit_->SetDegrees(7);
    edit_->SetDecimalPlaces(2); // the default
    edit_->SetDMSType(dmsDegreesMinutes); // the default
    EXPECT_EQ(changes_->count(), 0);
    EXPECT_EQ(degrees.count(), 0);
    edit_->SetNull(true);
    edit_->SetDegrees(7);
    EXPECT_FALSE(edit_->GetNull());
    EXPECT_EQ(changes_->count(), 1);
    EXPECT_EQ(degrees.count(), 1);
}

TEST_F(DMSEditTest, DMSTypeIsARegisteredEnumAndEveryPropertySignals)
{
    const QMetaObject* meta = edit_->metaObject();
    EXPECT_TRUE(meta->property(meta->indexOfProperty("DMSType")).isEnumType());
    EXPECT_TRUE(edit_->setProperty("DMSType", QStringLiteral("dmsDegrees")));
    EXPECT_EQ(edit_->GetDMSType(), dmsDegrees);
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        EXPECT_TRUE(meta->property(i).hasNotifySignal()) << meta->property(i).name();
}

} // namespace
} // namespace qorkit

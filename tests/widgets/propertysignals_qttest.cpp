// Change signals of the library's properties: one emission for a real change, none when the
// same value is set again; the OnX events reach both their handler and their signal; the base
// edit and the QLineEdit it is agree on read-only and text.
#include "QORKITBaseControls.h"
#include "QORKITCalculator.h"
#include "QORKITEditColors.h"
#include "QORKITEngineObjects.h"
#include "QORKITFloatEdit.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"
#include "QORKITStoreCtrl.h"
#include "QorkitTestSupport.h"

#include <QMetaProperty>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace qorkit {
namespace {

struct SignalRow {
    const char* Name;
    std::function<std::unique_ptr<QObject>()> Make;
    const char* Property;
    QVariant Value; // differs from the new object's value
};

template<class T> std::function<std::unique_ptr<QObject>()> Make()
{
    return [] { return std::make_unique<T>(); };
}

const SignalRow SignalRows[] = {
    {"FloatEditDecimalPlaces", Make<TQORFloatEdit>(), "DecimalPlaces", 5},
    {"FloatEditThousandSeparators", Make<TQORFloatEdit>(), "ThousandSeparators",
     QVariant::fromValue(tsApostrophe)},
    {"FloatEditAsFloat", Make<TQORFloatEdit>(), "AsFloat", 12.5},
    {"FloatEditBoundUpper", Make<TQORFloatEdit>(), "BoundUpper", 100.0},
    {"FloatEditCustomDecimal", Make<TQORFloatEdit>(), "CustomDecimal", QChar(u'#')},
    {"BaseEditReadOnly", Make<TQORFloatEdit>(), "ReadOnly", true},
    {"BaseEditNull", Make<TQORFloatEdit>(), "Null", true},
    {"BaseEditNullStr", Make<TQORFloatEdit>(), "NullStr", QStringLiteral("n/a")},
    {"BaseEditUIUsage", Make<TQORFloatEdit>(), "UIUsage", QVariant::fromValue(uiAll)},
    {"BaseEditMaxLength", Make<TQORFloatEdit>(), "MaxLength", 12},
    {"BaseEditAlignment", Make<TQORFloatEdit>(), "Alignment",
     QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter))},
    {"BaseEditTabStop", Make<TQORFloatEdit>(), "TabStop", false},
    {"BaseEditAsString", Make<TQORFloatEdit>(), "AsString", QStringLiteral("3.25")},
    {"SpinEditMax", Make<TQORFloatSpinEdit>(), "Max", 50.0},
    {"SpinEditMin", Make<TQORFloatSpinEdit>(), "Min", -5.0},
    {"SpinEditValue", Make<TQORFloatSpinEdit>(), "Value", 7.0},
    {"SpinEditArrows", Make<TQORFloatSpinEdit>(), "Arrows", QVariant::fromValue(saLeftRight)},
    {"SpinEditInterval", Make<TQORFloatSpinEdit>(), "Interval", 250},
    {"SpinEditReadOnly", Make<TQORFloatSpinEdit>(), "ReadOnly", true},
    {"ComboBoxStyle", Make<TQORBaseComboBox>(), "Style", QVariant::fromValue(csDropDown)},
    {"ComboBoxUIUsage", Make<TQORBaseComboBox>(), "UIUsage", QVariant::fromValue(uiOwn)},
    {"PanelCaption", Make<TQORBasePanel>(), "Caption", QStringLiteral("Total")},
    {"PanelBevelOuter", Make<TQORBasePanel>(), "BevelOuter", QVariant::fromValue(bvRaised)},
    {"PanelColor", Make<TQORBasePanel>(), "Color", QColor(Qt::yellow)},
    {"PanelAutoSize", Make<TQORBasePanel>(), "AutoSize", true},
    {"StoreRegIniType", Make<TQORStoreCtrl>(), "RegIniType", QVariant::fromValue(ritIniFile)},
    {"StoreSection", Make<TQORStoreCtrl>(), "Section", QStringLiteral("Mine")},
    {"ColorSetNullText", Make<TQOREditColorSet>(), "NullText", QColor(Qt::blue)},
    {"UICtrlFlat", Make<TQORUICtrl>(), "Flat", true},
    {"CalculatorPosition", Make<TQORCalculator>(), "Position",
     QVariant::fromValue(poMainFormCenter)},
    {"CalculatorDecimalPlaces", Make<TQORCalculator>(), "DecimalPlaces", 7},
    {"CalculatorTitle", Make<TQORCalculator>(), "Title", QStringLiteral("Sums")},
    {"CalculatorValue", Make<TQORCalculator>(), "Value", 3.5},
    {"CalculatorSmallCalc", Make<TQORCalculator>(), "SmallCalc", true},
    {"CalculatorStayOnTop", Make<TQORCalculator>(), "StayOnTop", true},
    {"SciCalculatorSciMax", Make<TQORSciCalculator>(), "SciMax", 10.0},
    {"SciCalculatorSciRange", Make<TQORSciCalculator>(), "SciRange", true},
    {"ProgCalculatorValue", Make<TQORProgCalculator>(), "Value", qint64 {42}},
    {"ProgCalculatorMemory", Make<TQORProgCalculator>(), "Memory", qint64 {7}},
    {"CalcEngineDecimalPlaces", Make<TQORCalcEngineObject>(), "DecimalPlaces", 6},
    {"CalcEngineAngleMode", Make<TQORCalcEngineObject>(), "AngleMode",
     QVariant::fromValue(amDegrees)},
    {"CalcEngineMemory", Make<TQORCalcEngineObject>(), "Memory", 2.5},
    {"ProgEngineBaseDisplay", Make<TQORProgCalcEngineObject>(), "BaseDisplay",
     QVariant::fromValue(bdOctal)},
    {"ProgEngineBitSize", Make<TQORProgCalcEngineObject>(), "BitSize",
     QVariant::fromValue(bs16Bits)},
    {"ProgEngineMemory", Make<TQORProgCalcEngineObject>(), "Memory", qint64 {9}},
};

class PropertySignals : public test::GlobalStateTestOf<test::Area::Random | test::Area::Calculator>,
                        public ::testing::WithParamInterface<SignalRow> { };

TEST_P(PropertySignals, OneSignalForAChangeNoneForTheSameValue)
{
    const SignalRow& row = GetParam();
    const std::unique_ptr<QObject> object = row.Make();
    const QMetaObject* meta = object->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(row.Property));
    ASSERT_TRUE(property.isValid());
    ASSERT_TRUE(property.hasNotifySignal());
    QSignalSpy spy(object.get(), property.notifySignal());
    ASSERT_NE(object->property(row.Property), row.Value) << "the row must change the value";
    ASSERT_TRUE(object->setProperty(row.Property, row.Value));
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(object->property(row.Property), row.Value);
    ASSERT_TRUE(object->setProperty(row.Property, row.Value));
    EXPECT_EQ(spy.count(), 1) << "an equal value signals nothing";
}

INSTANTIATE_TEST_SUITE_P(Library, PropertySignals, ::testing::ValuesIn(SignalRows),
                         test::RowName<SignalRow>);

class QtEventsTest : public test::GlobalStateTest { };

TEST_F(QtEventsTest, AnEventReachesItsHandlerAndEveryListener)
{
    TQORFloatEdit edit;
    int handled = 0;
    int heard = 0;
    edit.SetOnChange([&](QObject* sender) {
        EXPECT_EQ(sender, &edit);
        ++handled;
    });
    QObject listener;
    QObject::connect(&edit, &TQORBaseEdit::change, &listener, [&] { ++heard; });
    QSignalSpy signs(&edit, &TQORBaseEdit::signChange);
    edit.SetValue(-4);
    EXPECT_EQ(handled, 1);
    EXPECT_EQ(heard, 1);
    ASSERT_EQ(signs.count(), 1);
    EXPECT_EQ(signs.at(0).at(0).toInt(), -1);
}

TEST_F(QtEventsTest, ArrowClicksSignalBeforeAndAfterTheStep)
{
    TQORFloatSpinEdit spin;
    std::vector<std::string> heard;
    const auto record
        = [&](const char* what) { return [&heard, what] { heard.emplace_back(what); }; };
    QObject::connect(&spin, &TQORBaseSpinEdit::upClick, &spin, record("up"));
    QObject::connect(&spin, &TQORBaseSpinEdit::valueChanged, &spin, record("value"));
    QObject::connect(&spin, &TQORBaseSpinEdit::afterUpClick, &spin, record("after"));
    spin.UpClick(&spin);
    EXPECT_EQ(heard, (std::vector<std::string> {"up", "value", "after"}));
    EXPECT_EQ(static_cast<double>(spin.GetValue()), 1.0);
}

TEST_F(QtEventsTest, SpecialColorListenersMayChangeTheColours)
{
    TQORFloatEdit edit;
    QObject::connect(&edit, &TQORBaseEdit::specialColor, &edit,
                     [](QColor* background, QColor*) { *background = QColor(Qt::green); });
    edit.SetValue(1); // restyles
    EXPECT_EQ(edit.palette().color(QPalette::Base), QColor(Qt::green));
}

TEST_F(QtEventsTest, AValidationErrorListenerHearsTheMessage)
{
    TQORFloatEdit edit;
    edit.SetBoundLower(0);
    edit.SetBoundUpper(10);
    QSignalSpy errors(&edit, &TQORBaseEdit::validationError);
    edit.SetValue(20);
    ASSERT_EQ(errors.count(), 1);
    EXPECT_FALSE(errors.at(0).at(0).toString().isEmpty());
}

class LineEditAgreementTest : public test::GlobalStateTest { };

TEST_F(LineEditAgreementTest, ReadOnlyIsOneStateUnderBothNames)
{
    TQORFloatEdit edit;
    QSignalSpy spy(&edit, &TQORBaseEdit::readOnlyChanged);
    edit.setReadOnly(true); // QLineEdit's own setter
    EXPECT_TRUE(edit.GetReadOnly());
    EXPECT_TRUE(edit.property("ReadOnly").toBool());
    EXPECT_EQ(edit.GetEditState(), esReadOnly);
    EXPECT_EQ(spy.count(), 1);
    edit.SetReadOnly(false);
    EXPECT_FALSE(edit.isReadOnly());
    EXPECT_FALSE(edit.property("readOnly").toBool());
    EXPECT_EQ(spy.count(), 2);
    edit.setProperty("readOnly", true);
    EXPECT_TRUE(edit.GetReadOnly());
    // The editor switch keeps the line edit read-only without making the edit ReadOnly.
    edit.SetReadOnly(false);
    edit.SetEditorEnabled(false);
    EXPECT_TRUE(edit.isReadOnly());
    EXPECT_FALSE(edit.GetReadOnly());
}

struct TextRow {
    const char* Name;
    const char* Typed; // set with QLineEdit::setText
    double Value; // the value afterwards (the old value 2 when the text is refused)
    const char* Shown;
};

const TextRow TextRows[] = {
    {"Number", "12.5", 12.5, "12.50"},
    {"Negative", "-3", -3, "-3.00"},
    {"NotANumber", "abc", 2, "2.00"},
    {"Empty", "", 0, "0.00"}, // an empty edit reads as zero
};

class SetTextTest : public test::GlobalStateTest, public ::testing::WithParamInterface<TextRow> { };

TEST_P(SetTextTest, TextAndValueNeverDisagree)
{
    const TextRow& row = GetParam();
    TQORFloatEdit edit;
    edit.SetOnValidationError([](QObject*, const QString&) {}); // no beep
    edit.SetValue(2);
    edit.setText(QString::fromLatin1(row.Typed));
    EXPECT_EQ(static_cast<double>(edit.GetValue()), row.Value);
    EXPECT_EQ(edit.text(), QString::fromLatin1(row.Shown));
    edit.SetValue(7);
    EXPECT_EQ(edit.text(), QStringLiteral("7.00"));
}

INSTANTIATE_TEST_SUITE_P(LineEdit, SetTextTest, ::testing::ValuesIn(TextRows),
                         test::RowName<TextRow>);

} // namespace
} // namespace qorkit

// The currency calculator edits and spin edits show the settings of the currency edit inside
// as their own: a property written on the control lands on the inner edit, the control raises
// its change signal once (none for an equal value), and the inner edit's colour hook reaches
// the control's OnSpecialColor and specialColor with the control as the sender.
#include "QORKITCurrCalcEdit.h"
#include "QORKITCurrSpinEdit.h"
#include "QorkitTestSupport.h"

#include <QMetaProperty>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace qorkit {
namespace {

struct Made {
    QWidget* Control;
    TQORCurrForwarders* Forwarders;
    // Connects `listener` to the control's specialColor signal.
    std::function<void(std::function<void(QColor*, QColor*)>)> OnSpecialColorSignal;
};

struct ControlKind {
    const char* Name;
    bool Spin;
    std::function<Made()> Make;
};

template<class T> ControlKind Kind(const char* name, bool spin)
{
    return {name, spin, [] {
                auto* control = new T;
                return Made {control, control, [control](auto listener) {
                                 QObject::connect(control, &T::specialColor, control, listener);
                             }};
            }};
}

const ControlKind Kinds[] = {
    Kind<TQORCurrCalcEdit>("CentsCalc", false),
    Kind<TQORCurrencyCalcEdit>("CurrencyCalc", false),
    Kind<TQORCurrSpinEdit>("CentsSpin", true),
    Kind<TQORLongCurrSpinEdit>("LongCentsSpin", true),
    Kind<TQORCurrencySpinEdit>("CurrencySpin", true),
};

struct ForwardedRow {
    const char* Name; // the property, on the control and on the inner edit
    QVariant Value; // differs from the new control's value
    bool SpinOnly; // the calculator edits take these from their own base
};

const ForwardedRow Rows[] = {
    {"FormatType", QVariant::fromValue(cftLocale), false},
    {"CurrencyStr", QStringLiteral("EUR"), false},
    {"CurrencyFormat", QVariant::fromValue(cfSymbolSpaceNumber), false},
    {"NegativeFormat", QVariant::fromValue(nfSymbolMinusNumber), false},
    {"BlankWhenZero", true, false},
    {"ThousandSeparators", QVariant::fromValue(tsApostrophe), false},
    {"ShowThousandSeparators", false, false},
    {"CustomDecimal", QChar(u'#'), false},
    {"CustomThousands", QChar(u'_'), false},
    {"CustomSeparators", true, false},
    {"DecimalPlaces", 3, true},
    {"AsFloat", 7.0, true},
    {"StoreValue", false, true},
    {"Alignment", QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter)), true},
    {"AutoSelect", false, true},
    {"AllowKbdNull", true, true},
    {"BlankIsNull", true, true},
    {"MaxLength", 12, true},
    {"Null", true, true},
    {"NullStr", QStringLiteral("n/a"), true},
    {"TabStop", false, true},
};

struct ForwardedCase {
    std::string Name;
    ControlKind Kind;
    ForwardedRow Row;
};

std::vector<ForwardedCase> ForwardedCases()
{
    std::vector<ForwardedCase> cases;
    for (const ControlKind& kind : Kinds)
        for (const ForwardedRow& row : Rows)
            if (kind.Spin || !row.SpinOnly)
                cases.push_back({std::string(kind.Name) + "_" + row.Name, kind, row});
    return cases;
}

void PrintTo(const ForwardedCase& c, std::ostream* os) { *os << c.Name; }
void PrintTo(const ControlKind& kind, std::ostream* os) { *os << kind.Name; }

class CurrForwardersTest : public test::GlobalStateTest,
                           public ::testing::WithParamInterface<ForwardedCase> {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        made_ = GetParam().Kind.Make();
        control_.reset(made_.Control);
        // CurrencyStr is taken only with the edit's own formats.
        made_.Forwarders->SetFormatType(cftCustom);
    }
    Made made_ {};
    std::unique_ptr<QWidget> control_;
};

TEST_P(CurrForwardersTest, WritesTheInnerEditAndSignalsOnce)
{
    const ForwardedRow& row = GetParam().Row;
    const QMetaObject* meta = control_->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(row.Name));
    ASSERT_TRUE(property.isValid());
    QSignalSpy spy(control_.get(), property.notifySignal());
    TQORBaseCurrEdit* inner = made_.Forwarders->GetCurrEdit();
    ASSERT_NE(inner->property(row.Name), row.Value) << "the row must change the value";

    ASSERT_TRUE(control_->setProperty(row.Name, row.Value));
    EXPECT_EQ(inner->property(row.Name), row.Value);
    EXPECT_EQ(control_->property(row.Name), row.Value);
    EXPECT_EQ(spy.count(), 1);
    ASSERT_TRUE(control_->setProperty(row.Name, row.Value));
    EXPECT_EQ(spy.count(), 1) << "an equal value signals nothing";
}

INSTANTIATE_TEST_SUITE_P(Controls, CurrForwardersTest, ::testing::ValuesIn(ForwardedCases()),
                         test::RowName<ForwardedCase>);

class CurrSpecialColorTest : public test::GlobalStateTest,
                             public ::testing::WithParamInterface<ControlKind> { };

TEST_P(CurrSpecialColorTest, TheControlIsTheSenderAndListenersPaintTheEdit)
{
    const Made made = GetParam().Make();
    const std::unique_ptr<QWidget> control(made.Control);
    QObject* sender = nullptr;
    made.Forwarders->SetOnSpecialColor([&](QObject* from, QColor&, QColor& text) {
        sender = from;
        text = QColor(Qt::red);
    });
    int heard = 0;
    made.OnSpecialColorSignal([&](QColor* background, QColor*) {
        ++heard;
        *background = QColor(Qt::green);
    });
    made.Forwarders->GetCurrEdit()->SetAsFloat(1); // restyles
    EXPECT_EQ(sender, control.get());
    EXPECT_GE(heard, 1);
    const QPalette colours = made.Forwarders->GetCurrEdit()->palette();
    EXPECT_EQ(colours.color(QPalette::Base), QColor(Qt::green));
    EXPECT_EQ(colours.color(QPalette::Text), QColor(Qt::red));
}

INSTANTIATE_TEST_SUITE_P(Controls, CurrSpecialColorTest, ::testing::ValuesIn(Kinds),
                         test::RowName<ControlKind>);

} // namespace
} // namespace qorkit

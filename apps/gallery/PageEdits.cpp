// The calculator edits and the currency edits. The standard calculator edit works through a
// TQORCalculator component on the page (which hands its decimals back), the scientific one
// through the scientific dialog; the currency edits show the formats side by side. Each edit
// reports what it holds in the label beside it. The currency calculator edits and spin edits
// follow (one spin edit wraps), then the union-currency list in its three formats with the
// chosen currency's rate. The screenshot run also writes a calculator open below its edit.
#include "GalleryPages.h"
#include "QORKITCalcEdit.h"
#include "QORKITCurrCalcEdit.h"
#include "QORKITCurrComboBox.h"
#include "QORKITCurrEdit.h"
#include "QORKITCurrSpinEdit.h"
#include "QORKITSciCalcEdit.h"
#include "QORKITStrings.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QVBoxLayout>

#include <functional>

namespace {

using namespace qorkit;

QString ValueText(bool null, Extended value)
{
    return null ? QStringLiteral("= null")
                : QStringLiteral("= %1").arg(QString::fromStdString(Float2EStr2(value, 10)));
}

// A row of the form: the control and a label that follows its value through `changed`.
template<class Control, class Signal>
void AddRow(QFormLayout* form, const QString& caption, Control* control, Signal changed,
            std::function<QString()> value)
{
    auto* row = new QWidget(form->parentWidget());
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(value(), row);
    label->setMinimumWidth(150);
    control->setParent(row);
    layout->addWidget(control, 1);
    layout->addWidget(label);
    QObject::connect(control, changed, label, [label, value] { label->setText(value()); });
    form->addRow(caption, row);
}

QWidget* MakeCalcEditGroup(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("Calculator edits"), parent);
    auto* form = new QFormLayout(group);

    auto* calculator = new TQORCalculator(group);
    calculator->SetTitle(QStringLiteral("Unit price"));
    calculator->SetReturnDecimalPlaces(true);
    auto* calcEdit = new TQORCalcEdit(group);
    calcEdit->SetDecimalPlaces(2);
    calcEdit->SetValue(1234.5L);
    calcEdit->SetCalculatorControl(calculator);
    AddRow(form, QStringLiteral("TQORCalcEdit (with a TQORCalculator)"), calcEdit,
           &TQORCalcEditBase::change,
           [calcEdit] { return ValueText(calcEdit->GetNull(), calcEdit->GetValue()); });

    auto* sciEdit = new TQORSciCalcEdit(group);
    sciEdit->SetDecimalPlaces(6);
    sciEdit->SetTrimTrailingZeroes(true);
    sciEdit->SetCalcGlyphType(cgtSmallCalculator);
    sciEdit->SetValue(2.718281828L);
    AddRow(form, QStringLiteral("TQORSciCalcEdit"), sciEdit, &TQORCalcEditBase::change,
           [sciEdit] { return ValueText(sciEdit->GetNull(), sciEdit->GetValue()); });
    return group;
}

template<class Edit>
void AddCurrencyRow(QFormLayout* form, const QString& caption, Edit* edit,
                    std::function<QString(Edit*)> amount)
{
    AddRow(form, caption, edit, &TQORBaseCurrEdit::asFloatChanged,
           [edit, amount] { return amount(edit); });
}

QWidget* MakeCurrencyGroup(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("Currency edits"), parent);
    auto* form = new QFormLayout(group);

    // The process-wide formats: "$1,234.56", "-$1,234.56".
    auto* cents = new TQORCurrEdit(group);
    cents->SetAsQORCurrency(123456);
    AddCurrencyRow<TQORCurrEdit>(
        form, QStringLiteral("TQORCurrEdit (cents)"), cents,
        [](TQORCurrEdit* e) { return QStringLiteral("= %1 cents").arg(e->GetAsQORCurrency()); });

    // Its own symbol after the amount, no grouping.
    auto* longCents = new TQORLongCurrEdit(group);
    longCents->SetFormatType(cftCustom);
    longCents->SetCurrencyStr(QStringLiteral("kr"));
    longCents->SetCurrencyFormat(cfNumberSpaceSymbol);
    longCents->SetShowThousandSeparators(false);
    longCents->SetAsQORLongCurrency(4200000);
    AddCurrencyRow<TQORLongCurrEdit>(
        form, QStringLiteral("TQORLongCurrEdit (unsigned)"), longCents, [](TQORLongCurrEdit* e) {
            return QStringLiteral("= %1 cents").arg(e->GetAsQORLongCurrency());
        });

    // Four decimals, a negative amount in brackets.
    auto* currency = new TQORCurrencyEdit(group);
    currency->SetFormatType(cftCustom);
    currency->SetCurrencyStr(QStringLiteral("\u00A3"));
    currency->SetNegativeFormat(nfParenSymbolNumber);
    currency->SetDecimals(4);
    currency->SetAsCurrency(Currency::FromScaled(-12345678));
    AddCurrencyRow<TQORCurrencyEdit>(
        form, QStringLiteral("TQORCurrencyEdit (4 decimals)"), currency, [](TQORCurrencyEdit* e) {
            return ValueText(e->GetNull(), e->GetAsCurrency().ToExtended());
        });

    // Separators of its own: "1.234.567,89 €", whatever the process-wide ones are.
    auto* euro = new TQORCurrencyEdit(group);
    euro->SetFormatType(cftCustom);
    euro->SetCurrencyStr(QStringLiteral("\u20AC"));
    euro->SetCurrencyFormat(cfNumberSpaceSymbol);
    euro->SetNegativeFormat(nfMinusNumberSpaceSymbol);
    euro->SetCustomThousands('.');
    euro->SetCustomDecimal(',');
    euro->SetCustomSeparators(true);
    euro->SetAsFloat(1234567.89L);
    AddCurrencyRow<TQORCurrencyEdit>(
        form, QStringLiteral("Custom separators"), euro,
        [](TQORCurrencyEdit* e) { return ValueText(e->GetNull(), e->GetAsFloat()); });
    return group;
}

QWidget* MakeCurrencyToolsGroup(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("Currency calculator and spin edits"), parent);
    auto* form = new QFormLayout(group);

    auto* currCalc = new TQORCurrCalcEdit(group);
    currCalc->SetAsQORCurrency(1999);
    AddRow(form, QStringLiteral("TQORCurrCalcEdit"), currCalc,
           &TQORCurrCalcEdit::asQORCurrencyChanged,
           [currCalc] { return QStringLiteral("= %1 cents").arg(currCalc->GetAsQORCurrency()); });
    auto* longCalc = new TQORLongCurrCalcEdit(group);
    longCalc->SetCalcGlyphType(cgtEllipsis);
    longCalc->SetAsQORLongCurrency(250000);
    AddRow(form, QStringLiteral("TQORLongCurrCalcEdit"), longCalc,
           &TQORLongCurrCalcEdit::asQORLongCurrencyChanged, [longCalc] {
               return QStringLiteral("= %1 cents").arg(longCalc->GetAsQORLongCurrency());
           });
    auto* currencyCalc = new TQORCurrencyCalcEdit(group);
    currencyCalc->SetFormatType(cftCustom);
    currencyCalc->SetCurrencyStr(QStringLiteral("\u20AC"));
    currencyCalc->SetCurrencyFormat(cfNumberSpaceSymbol);
    currencyCalc->SetAsCurrency(Currency::FromScaled(4995000));
    AddRow(form, QStringLiteral("TQORCurrencyCalcEdit"), currencyCalc,
           &TQORCurrencyCalcEdit::asCurrencyChanged, [currencyCalc] {
               return ValueText(currencyCalc->GetNull(),
                                currencyCalc->GetAsCurrency().ToExtended());
           });

    auto* currSpin = new TQORCurrSpinEdit(group);
    currSpin->SetStep(25);
    currSpin->SetValue(500);
    AddRow(form, QStringLiteral("TQORCurrSpinEdit (step 0.25)"), currSpin,
           &TQORBaseSpinEdit::valueChanged,
           [currSpin] { return QStringLiteral("= %1 cents").arg(currSpin->GetAsQORCurrency()); });
    auto* longSpin = new TQORLongCurrSpinEdit(group);
    longSpin->SetMax(1000);
    longSpin->SetWrap(true);
    longSpin->SetArrows(saLeftRight);
    longSpin->SetValue(900);
    AddRow(form, QStringLiteral("TQORLongCurrSpinEdit (wraps at 10.00)"), longSpin,
           &TQORBaseSpinEdit::valueChanged, [longSpin] {
               return QStringLiteral("= %1 cents").arg(longSpin->GetAsQORLongCurrency());
           });
    auto* currencySpin = new TQORCurrencySpinEdit(group);
    currencySpin->SetMin(-50);
    currencySpin->SetStep(0.5L);
    currencySpin->SetValue(-2.5L);
    AddRow(form, QStringLiteral("TQORCurrencySpinEdit (step 0.50)"), currencySpin,
           &TQORBaseSpinEdit::valueChanged, [currencySpin] {
               return ValueText(currencySpin->GetNull(),
                                currencySpin->GetAsCurrency().ToExtended());
           });

    // The union currencies as numbers, codes and country texts; the rate follows the choice.
    const std::pair<TQOREMUFormatType, int> formats[]
        = {{efNumber, 3}, {efCode, 5}, {efCountry, 11}};
    for (const auto& [format, emu] : formats) {
        auto* combo = new TQOREMUComboBox(group);
        combo->SetEMUFormat(format);
        combo->SetEMU(static_cast<std::uint8_t>(emu));
        AddRow(form,
               QStringLiteral("TQOREMUComboBox (%1)")
                   .arg(QString::fromLatin1(
                       QMetaEnum::fromType<TQOREMUFormatType>().valueToKey(format))),
               combo, &TQOREMUComboBox::emuRateChanged, [combo] {
                   return QStringLiteral("%1 per euro")
                       .arg(QString::fromStdString(Float2EStr2(combo->GetEMURate(), 6)));
               });
    }
    return group;
}

QWidget* MakeEditsPage(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(MakeCalcEditGroup(page));
    layout->addWidget(MakeCurrencyGroup(page));
    layout->addWidget(MakeCurrencyToolsGroup(page));
    layout->addStretch(1);
    page->setMinimumWidth(560);
    return page;
}

// A calculator edit with its calculator open below it, where the button puts it: the form
// is embedded in the picture at the edit's left edge, under its bottom.
QWidget* OpenCalculatorShot()
{
    auto* frame = new QWidget;
    frame->setAutoFillBackground(true);
    auto* edit = new TQORCalcEdit(frame);
    edit->SetDecimalPlaces(2);
    edit->SetValue(1234.5L);
    edit->setGeometry(8, 8, 200, edit->sizeHint().height());
    auto* form = new TQORCalcForm(frame);
    form->setWindowFlags(Qt::Widget);
    TQORCalcEngine& engine = form->GetCalcEngine();
    engine.SetDecimalPlaces(edit->GetDecimalPlaces());
    engine.InputValue(edit->GetValue());
    form->RefreshDisplays();
    form->move(edit->x(), edit->geometry().bottom() + 1);
    form->show();
    frame->resize(std::max(edit->geometry().right(), form->geometry().right()) + 9,
                  form->geometry().bottom() + 9);
    return frame;
}

std::vector<std::pair<QString, QWidget*>> EditShots()
{
    return {{QStringLiteral("edits-calculator-open.png"), OpenCalculatorShot()}};
}

const bool registered
    = gallery::RegisterPage({QStringLiteral("Edits"), 70, MakeEditsPage, EditShots});

} // namespace

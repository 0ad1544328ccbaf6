// The calculator dialogs: buttons that open each one through its component, with the result
// shown beside them. The screenshot run writes the standard, small, scientific (also with Inv
// and Hyp on) and programmer's calculators (also -1 in 64-bit binary), and the scientific and
// programmer's ones with their tape open.
#include "GalleryPages.h"
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using namespace qorkit;

QWidget* MakeDialogsPage(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* layout = new QFormLayout(page);
    auto* calculator = new TQORCalculator(page);
    auto* small = new TQORCalculator(page);
    small->SetSmallCalc(true);
    auto* sci = new TQORSciCalculator(page);
    auto* prog = new TQORProgCalculator(page);
    prog->SetValue(0x2A);

    const auto addRow = [page, layout](const QString& caption, auto run) {
        auto* button = new QPushButton(caption, page);
        auto* result = new QLabel(page);
        QObject::connect(button, &QPushButton::clicked, page,
                         [result, run] { result->setText(run()); });
        layout->addRow(button, result);
    };
    const auto floatResult = [](TQORFloatCalcComponent* component, bool accepted) {
        return accepted ? QString::number(static_cast<double>(component->GetValue()), 'g', 15)
                        : QStringLiteral("cancelled");
    };
    addRow(QStringLiteral("Calculator..."),
           [=] { return floatResult(calculator, calculator->Execute()); });
    addRow(QStringLiteral("Small calculator..."),
           [=] { return floatResult(small, small->Execute()); });
    addRow(QStringLiteral("Scientific calculator..."),
           [=] { return floatResult(sci, sci->Execute()); });
    addRow(QStringLiteral("Programmer's calculator..."), [=] {
        return prog->Execute() ? QString::number(prog->GetValue()) : QStringLiteral("cancelled");
    });
    addRow(QStringLiteral("DisplayCalc..."), [] {
        Extended value = 100;
        return DisplayCalc("DisplayCalc", value, 2, false)
            ? QString::number(static_cast<double>(value), 'g', 15)
            : QStringLiteral("cancelled");
    });
    return page;
}

// A calculator with a calculation under way, so the pictures show real content.
template<class Form> Form* FloatShot(bool small)
{
    auto* form = new Form;
    if constexpr (std::is_same_v<Form, TQORCalcForm>)
        form->SetHideFnBtns(small);
    TQORCalcEngine& engine = form->GetCalcEngine();
    engine.SetMemory(42);
    engine.InputValue(1234.5678L);
    engine.DoMultiply();
    engine.InputDigit(2);
    form->RefreshDisplays();
    return form;
}

// The scientific calculator with Inv and Hyp on: the longest captions ("asinh", "10^x").
QWidget* SciInvHypShot()
{
    auto* form = FloatShot<TQORSciCalcForm>(false);
    form->InvBtn->click();
    form->HypBtn->click();
    return form;
}

// The programmer's calculator in binary with -1 at 64 bits, in the value and in memory.
QWidget* ProgMinusOneShot()
{
    auto* form = new TQORProgCalcForm;
    IQORProgCalcEngine& engine = form->GetCalcEngine();
    engine.SetBaseDisplay(bdBinary);
    engine.SetBitSize(bs64Bits);
    engine.SetSpacing(psByte);
    engine.InputValue(-1);
    engine.SetMemory(-1);
    form->RefreshDisplays();
    return form;
}

// The scientific calculator with its tape open after a few calculations.
TQORSciCalcForm* TapeShot()
{
    auto* form = new TQORSciCalcForm;
    TQORCalcEngine& engine = form->GetCalcEngine();
    engine.InputValue(1234.5L);
    engine.DoAdd();
    engine.InputValue(3);
    engine.DoMultiply();
    engine.InputValue(4);
    engine.DoEquals();
    engine.MemoryAdd();
    engine.InputValue(30);
    engine.DoSin();
    engine.DoEquals();
    form->RefreshDisplays();
    form->SetShowTape(true);
    return form;
}

std::vector<std::pair<QString, QWidget*>> DialogShots()
{
    auto* prog = new TQORProgCalcForm;
    IQORProgCalcEngine& engine = prog->GetCalcEngine();
    engine.SetBitSize(bs16Bits);
    engine.SetBaseDisplay(bdBinary);
    engine.SetSpacing(psByte);
    engine.InputValue(0x5AC3);
    engine.SetMemory(0xFF);
    prog->RefreshDisplays();
    auto* progTape = new TQORProgCalcForm;
    IQORProgCalcEngine& tapeEngine = progTape->GetCalcEngine();
    tapeEngine.SetBaseDisplay(bdHexadecimal);
    tapeEngine.InputValue(0x5AC3);
    tapeEngine.DoXor();
    tapeEngine.InputValue(0xFF);
    tapeEngine.DoEquals();
    progTape->RefreshDisplays();
    progTape->SetShowTape(true);
    return {
        {QStringLiteral("dialog-calculator.png"), FloatShot<TQORCalcForm>(false)},
        {QStringLiteral("dialog-small-calculator.png"), FloatShot<TQORCalcForm>(true)},
        {QStringLiteral("dialog-sci-calculator.png"), FloatShot<TQORSciCalcForm>(false)},
        {QStringLiteral("dialog-sci-calculator-inv-hyp.png"), SciInvHypShot()},
        {QStringLiteral("dialog-prog-calculator-binary.png"), prog},
        {QStringLiteral("dialog-prog-calculator-binary-minus-one.png"), ProgMinusOneShot()},
        {QStringLiteral("dialog-sci-calculator-tape.png"), TapeShot()},
        {QStringLiteral("dialog-prog-calculator-tape.png"), progTape},
    };
}

const bool registered = gallery::RegisterPage(
    {QStringLiteral("Calculator dialogs"), 60, MakeDialogsPage, DialogShots});

} // namespace

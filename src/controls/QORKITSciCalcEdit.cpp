#include "QORKITSciCalcEdit.h"

namespace qorkit {

namespace {

bool ExecuteSciCalc(TQORFloatCalcComponent& calculator, bool centred, int left, int top,
                    QWidget* parent)
{
    return ExecuteCalcComponent(static_cast<TQORSciCalculator&>(calculator), centred, left, top,
                                parent);
}

bool DisplaySciCalcChild(const std::string& title, Extended& value, int left, int top,
                         std::uint8_t decimals, bool flat, QWidget* parent)
{
    if (left == -1 && top == -1)
        return DisplaySciCalc(title, value, decimals, flat, parent);
    return DisplaySciCalcPos(title, value, left, top, decimals, flat, parent);
}

} // namespace

const TQORCalcKind QORSciCalcKind {246, 293, ExecuteSciCalc, DisplaySciCalcChild};

TQORSciCalcEdit::TQORSciCalcEdit(QWidget* parent) : TQORFloatCalcEdit(parent, QORSciCalcKind) { }

TQORSciCalculator* TQORSciCalcEdit::GetCalculatorControl() const
{
    return static_cast<TQORSciCalculator*>(GetCalculatorComponent());
}

} // namespace qorkit

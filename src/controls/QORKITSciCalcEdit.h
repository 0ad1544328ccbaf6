// TQORSciCalcEdit: the calculator edit that opens the scientific calculator
// (TQORSciCalculator, DisplaySciCalc, DisplaySciCalcPos). Apart from the calculator and the
// room its placement keeps (246 x 293 pixels), it is TQORCalcEdit.
#pragma once

#include "QORKITCalcEdit.h"
#include "QORKITSciCalculator.h"
#include "qorkit_widgets_export.h"

namespace qorkit {

// The scientific calculator.
QORKIT_WIDGETS_EXPORT extern const TQORCalcKind QORSciCalcKind;

class QORKIT_WIDGETS_EXPORT TQORSciCalcEdit : public TQORFloatCalcEdit {
    Q_OBJECT
    Q_PROPERTY(TQORSciCalculator* CalculatorControl READ GetCalculatorControl WRITE
                   SetCalculatorControl NOTIFY calculatorControlChanged)

public:
    explicit TQORSciCalcEdit(QWidget* parent = nullptr);

    TQORSciCalculator* GetCalculatorControl() const;
    // Its settings are used instead of the default dialog's; forgotten when it is destroyed.
    void SetCalculatorControl(TQORSciCalculator* calculator) { SetCalculatorComponent(calculator); }
};

} // namespace qorkit

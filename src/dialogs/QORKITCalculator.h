// The standard calculator: the dialog TQORCalcForm over one floating-point engine, the
// non-visual component TQORCalculator that shows it, and the DisplayCalc free functions that
// run it with the process-wide calculator settings.
//
// The form can run as a small calculator (SetHideFnBtns) that hides its thirteen function keys
// and moves the percent key into the freed space.
#pragma once

#include "QORKITFloatCalcComponent.h"
#include "QORKITFloatCalcForm.h"
#include "qorkit_widgets_export.h"

#include <cstdint>
#include <string>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORCalcForm : public TQORFloatCalcForm {
    Q_OBJECT

public:
    explicit TQORCalcForm(QWidget* parent = nullptr);

    bool GetHideFnBtns() const { return hideFnBtns_; }
    // Switches between the full and the small calculator and lays the form out again.
    void SetHideFnBtns(bool value);
    // Lays the keys and panels out for the present mode and sets the help context.
    void RedrawCalc();

protected:
    // Characters are also passed on to the focused control.
    bool SwallowChars() const override { return false; }

private:
    bool hideFnBtns_ = false;
};

class QORKIT_WIDGETS_EXPORT TQORCalculator
    : public TQORCalcComponentT<TQORCalculator, TQORCalcForm, TQORFloatCalcComponent> {
    Q_OBJECT
    Q_PROPERTY(bool ShowThousandsSeparators READ GetShowThousandsSeparators WRITE
                   SetShowThousandsSeparators NOTIFY showThousandsSeparatorsChanged)
    Q_PROPERTY(bool LakhFormatting READ GetLakhFormatting WRITE SetLakhFormatting NOTIFY
                   lakhFormattingChanged)
    Q_PROPERTY(bool SmallCalc READ GetSmallCalc WRITE SetSmallCalc NOTIFY smallCalcChanged)

public:
    explicit TQORCalculator(QObject* owner = nullptr);

    bool GetShowThousandsSeparators() const { return showThousandsSeparators_; }
    void SetShowThousandsSeparators(bool value)
    {
        Store(showThousandsSeparators_, value, &TQORCalculator::showThousandsSeparatorsChanged);
    }
    bool GetLakhFormatting() const { return lakhFormatting_; }
    void SetLakhFormatting(bool value)
    {
        Store(lakhFormatting_, value, &TQORCalculator::lakhFormattingChanged);
    }
    bool GetSmallCalc() const { return smallCalc_; }
    void SetSmallCalc(bool value) { Store(smallCalc_, value, &TQORCalculator::smallCalcChanged); }

Q_SIGNALS:
    void showThousandsSeparatorsChanged();
    void lakhFormattingChanged();
    void smallCalcChanged();

protected:
    std::unique_ptr<TQORCalcFormBase> CreateForm() override;
    void SetUpForm(TQORCalcFormBase& form) override;
    void SetUpEngine(TQORCalcEngine& engine) override;
    void ReadBackMore(TQORCalcEngine& engine) override;
    std::span<const TQORStoreKey> StoreKeys() const override;

private:
    bool showThousandsSeparators_ = true;
    bool lakhFormatting_ = false;
    bool smallCalc_ = false;
};

// The component's events: called with the form just before it is shown; called instead of
// showing the dialog by Execute / ExecutePos.
using TQORCalcFormEvent = TQORCalculator::TFormEvent;
using TQORCalcExecuteEvent = TQORCalculator::TExecuteEvent;
using TQORCalcExecutePosEvent = TQORCalculator::TExecutePosEvent;

// Shows the standard calculator with the saved angle mode and memory; true when the user
// accepted, and then `Value` holds the result. An empty font keeps the saved display font. The
// dialog is a child of `parent`'s window (default: the application's active window), centred
// on that window's screen.
QORKIT_WIDGETS_EXPORT bool DisplayCalc(const std::string& Title, Extended& Value,
                                       const std::string& DispFont, std::uint8_t Decimals,
                                       bool Flat, QWidget* parent = nullptr);
QORKIT_WIDGETS_EXPORT bool DisplayCalc(const std::string& Title, Extended& Value,
                                       std::uint8_t Decimals, bool Flat, QWidget* parent = nullptr);
// The same with the form's left and top (-1 keeps the centred coordinate).
QORKIT_WIDGETS_EXPORT bool DisplayCalcPos(const std::string& Title, Extended& Value, std::int32_t X,
                                          std::int32_t Y, const std::string& DispFont,
                                          std::uint8_t Decimals, bool Flat,
                                          QWidget* parent = nullptr);
QORKIT_WIDGETS_EXPORT bool DisplayCalcPos(const std::string& Title, Extended& Value, std::int32_t X,
                                          std::int32_t Y, std::uint8_t Decimals, bool Flat,
                                          QWidget* parent = nullptr);

} // namespace qorkit

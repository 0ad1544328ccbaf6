#include "QORKITComplexEdit.h"

#include "QORKITComplex.h"
#include "QORKITExceptions.h"

#include <QApplication>
#include <QResizeEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace qorkit {

namespace {

// Sizes in logical pixels at 96 DPI.
constexpr int BracketWidth = 7;
constexpr int SeparatorWidth = 5;
constexpr int EditWidth = 51;
constexpr int EditHeight = 21;
constexpr int BracketRise = 4; // the brackets reach 4 pixels above the edits
constexpr int LabelFontPixels = 21;

// What the getters of the value read, to tell which of them changed.
struct Parts {
    Extended Real;
    Extended Imaginary;
    Extended Abs;
    Extended Amp;
};

using PartSignal = void (TQORComplexEdit::*)();
struct PartNotice {
    Extended Parts::*Part;
    PartSignal Signal;
};
constexpr std::array<PartNotice, 4> kPartNotices {{
    {&Parts::Real, &TQORComplexEdit::realPortionChanged},
    {&Parts::Imaginary, &TQORComplexEdit::imaginaryPortionChanged},
    {&Parts::Abs, &TQORComplexEdit::absoluteValueChanged},
    {&Parts::Amp, &TQORComplexEdit::amplitudeChanged},
}};

bool IsFinite(const TQORComplex& z) { return std::isfinite(z.Real) && std::isfinite(z.Imaginary); }

} // namespace

TQORComplexEdit::TQORComplexEdit(QWidget* parent) : QWidget(parent)
{
    AutoInitialize();
    SetAutoSize(true);
    resize(sizeHint());
    UpdateEditFields();
}

QLabel* TQORComplexEdit::MakeLabel(const char* name, const QString& text, bool bracket)
{
    auto* label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(bracket ? Qt::AlignCenter : Qt::AlignHCenter | Qt::AlignVCenter);
    QFont big = label->font();
    big.setPixelSize(LabelFontPixels);
    label->setFont(big);
    return label;
}

void TQORComplexEdit::AutoInitialize()
{
    colorSet_ = new TQOREditColorSet(this);
    openLabel_ = MakeLabel("OpenBracket", QStringLiteral("("), true);
    first_ = new TQORFloatEdit(this);
    first_->setObjectName(QStringLiteral("FirstEdit"));
    separatorLabel_ = MakeLabel("Separator", QStringLiteral(","), false);
    second_ = new TQORFloatEdit(this);
    second_->setObjectName(QStringLiteral("SecondEdit"));
    closeLabel_ = MakeLabel("CloseBracket", QStringLiteral(")"), true);
    for (auto* edit : {first_, second_}) {
        edit->SetAlignment(Qt::AlignRight | Qt::AlignVCenter);
        WireElement(edit);
    }
    setTabOrder(first_, second_);
    setFocusProxy(first_);
    connect(colorSet_, &TQOREditColorSet::Changed, this, [this] {
        for (auto* edit : {first_, second_})
            edit->GetColorSet()->Assign(*colorSet_);
    });
}

void TQORComplexEdit::WireElement(TQORFloatEdit* edit)
{
    // A number taken over (Enter, or leaving the edit) goes into the held value at once, so
    // the change notice already sees it; the control's own writes are not the user's.
    edit->SetOnChange([this](QObject* sender) {
        if (!updating_)
            ElementExit(sender);
    });
    edit->SetOnNull([this](QObject*) {
        if (!updating_)
            SetNull(true);
    });
    edit->SetOnEnter([this](QObject*) {
        if (focusInside_)
            return;
        focusInside_ = true;
        if (onEnter_)
            onEnter_(this);
        Q_EMIT enter();
    });
    edit->SetOnExit([this](QObject* sender) {
        ElementExit(sender);
        const QWidget* next = QApplication::focusWidget();
        if (next == first_ || next == second_)
            return;
        focusInside_ = false;
        if (onExit_)
            onExit_(this);
        Q_EMIT exit();
    });
    // Both edits follow the same look; the first one speaks for the pair.
    edit->SetOnColorSetChange([this](QObject* sender) {
        if (sender == first_)
            DoColorSetChange();
    });
    edit->SetOnSpecialColor([this](QObject*, QColor& background, QColor& text) {
        if (onSpecialColor_)
            onSpecialColor_(this, background, text);
        Q_EMIT specialColor(&background, &text);
    });
    edit->SetOnValidationError([this](QObject*, const QString& message) { ReportError(message); });
    edit->SetOnClick([this](QObject*) {
        if (onClick_)
            onClick_(this);
        Q_EMIT click();
    });
    edit->SetOnKeyDown([this](QObject*, QKeyEvent* event) {
        if (onKeyDown_)
            onKeyDown_(this, event);
        Q_EMIT keyDown(event);
    });
    edit->SetOnKeyPress([this](QObject*, QKeyEvent* event) {
        if (onKeyPress_)
            onKeyPress_(this, event);
        Q_EMIT keyPress(event);
    });
    edit->SetOnKeyUp([this](QObject*, QKeyEvent* event) {
        if (onKeyUp_)
            onKeyUp_(this, event);
        Q_EMIT keyUp(event);
    });
}

// ---- Value ---------------------------------------------------------------------------------

Extended TQORComplexEdit::GetAbsValue() const { return ComplexAbs(GetComplex()); }
Extended TQORComplexEdit::GetAmplitude() const { return ComplexAmp(GetComplex()); }

void TQORComplexEdit::SetComplex(const TQORComplex& Z)
{
    if (ComplexEqual(Z, value_) && !null_)
        return;
    StoreComplex(Z, true);
}

void TQORComplexEdit::SetRealPortion(Extended X)
{
    SetComplex(MakeComplex(X, GetComplex().Imaginary));
}

void TQORComplexEdit::SetImaginaryPortion(Extended X)
{
    SetComplex(MakeComplex(GetComplex().Real, X));
}

void TQORComplexEdit::SetAmplitude(Extended A)
{
    if (A == GetAmplitude() && !null_)
        return;
    try {
        StoreComplex(Polar2Complex(GetAbsValue(), A), true);
    } catch (const Exception& e) {
        ReportError(QString::fromStdString(e.what()));
    }
}

void TQORComplexEdit::SetAbsValue(Extended M)
{
    if (M == GetAbsValue() && !null_)
        return;
    try {
        StoreComplex(Polar2Complex(M, GetAmplitude()), true);
    } catch (const Exception& e) {
        ReportError(QString::fromStdString(e.what()));
    }
}

void TQORComplexEdit::StoreComplex(const TQORComplex& z, bool show)
{
    if (!IsFinite(z)) {
        ReportError(QString::fromStdString(rsValueNotFinite()));
        return;
    }
    const TQORComplex old = GetComplex();
    const Parts before {old.Real, old.Imaginary, ComplexAbs(old), ComplexAmp(old)};
    const bool wasNull = null_;
    const bool changed = wasNull || !ComplexEqual(z, value_);
    value_ = z;
    null_ = false;
    if (show)
        UpdateEditFields();
    if (wasNull) {
        Q_EMIT nullChanged();
        if (onNullChange_)
            onNullChange_(this);
        Q_EMIT nullChange();
    }
    const Parts after {z.Real, z.Imaginary, ComplexAbs(z), ComplexAmp(z)};
    for (const auto& notice : kPartNotices) {
        if (before.*notice.Part != after.*notice.Part)
            Q_EMIT(this->*notice.Signal)();
    }
    if (changed)
        DoChange();
}

void TQORComplexEdit::ShowElement(TQORFloatEdit* edit)
{
    const TQORComplex z = GetComplex();
    const bool isFirst = edit == first_;
    Extended shown = 0;
    if (complexDisplay_ == ctRealImaginary)
        shown = isFirst ? z.Real : z.Imaginary;
    else
        shown = isFirst ? ComplexAbs(z) : ComplexAmp(z);
    const bool wasUpdating = updating_;
    updating_ = true;
    edit->SetValue(shown);
    updating_ = wasUpdating;
}

void TQORComplexEdit::UpdateEditFields()
{
    ShowElement(first_);
    ShowElement(second_);
}

void TQORComplexEdit::ElementExit(QObject* Sender)
{
    TQORFloatEdit* edit = Sender == first_ ? first_ : (Sender == second_ ? second_ : nullptr);
    if (edit == nullptr || edit->GetNull())
        return;
    TQORComplex z = GetComplex();
    // The first edit always writes the real part and the second the imaginary part, also
    // while the polar form is shown, and the pair is not shown again: intended.
    (edit == first_ ? z.Real : z.Imaginary) = edit->GetValue();
    if (ComplexEqual(z, value_) && !null_)
        return;
    const bool wasNull = null_;
    StoreComplex(z, false);
    if (wasNull) // the other edit was null too: it shows its number of the new value
        ShowElement(edit == first_ ? second_ : first_);
}

void TQORComplexEdit::SetNull(bool value)
{
    if (null_ == value)
        return;
    if (!value) {
        StoreComplex(value_, true);
        return;
    }
    const TQORComplex old = value_;
    null_ = true;
    updating_ = true;
    first_->SetNull(true);
    second_->SetNull(true);
    updating_ = false;
    Q_EMIT nullChanged();
    if (onNullChange_)
        onNullChange_(this);
    Q_EMIT nullChange();
    if (onNull_)
        onNull_(this);
    Q_EMIT null();
    // The value reads as zero while null.
    const Parts before {old.Real, old.Imaginary, ComplexAbs(old), ComplexAmp(old)};
    for (const auto& notice : kPartNotices) {
        if (before.*notice.Part != 0)
            Q_EMIT(this->*notice.Signal)();
    }
}

void TQORComplexEdit::DoChange()
{
    if (onChange_)
        onChange_(this);
    Q_EMIT change();
}

void TQORComplexEdit::DoColorSetChange()
{
    if (onColorSetChange_)
        onColorSetChange_(this);
    Q_EMIT colorSetChange();
}

void TQORComplexEdit::ReportError(const QString& message)
{
    if (onValidationError_)
        onValidationError_(this, message);
    else
        QApplication::beep();
    Q_EMIT validationError(message);
}

void TQORComplexEdit::SetOnSpecialColor(TQORSpecialColorEvent e)
{
    onSpecialColor_ = std::move(e);
    first_->Redisplay();
    second_->Redisplay();
}

// ---- Display and layout --------------------------------------------------------------------

void TQORComplexEdit::SetComplexDisplay(TQORComplexType value)
{
    // Every form other than the real and imaginary parts is the polar form.
    const TQORComplexType form = value == ctRealImaginary ? ctRealImaginary : ctPolar;
    if (form == complexDisplay_)
        return;
    complexDisplay_ = form;
    if (!null_)
        UpdateEditFields();
    Q_EMIT complexDisplayChanged();
}

void TQORComplexEdit::SetShowBrackets(bool value)
{
    if (showBrackets_ == value)
        return;
    showBrackets_ = value;
    updateGeometry();
    Resize();
    Q_EMIT showBracketsChanged();
}

void TQORComplexEdit::SetAutoSize(bool value)
{
    if (autoSize_ == value && (!value || height() == EditHeight))
        return;
    const bool changed = autoSize_ != value;
    autoSize_ = value;
    if (autoSize_) {
        setFixedHeight(EditHeight);
    } else {
        setMinimumHeight(0);
        setMaximumHeight(QWIDGETSIZE_MAX);
    }
    Resize();
    if (changed)
        Q_EMIT autoSizeChanged();
}

void TQORComplexEdit::SetHeight(int value)
{
    if (!autoSize_)
        resize(width(), value);
}

void TQORComplexEdit::SetStoreValue(bool value)
{
    if (storeValue_ == value)
        return;
    storeValue_ = value;
    Q_EMIT storeValueChanged();
}

QSize TQORComplexEdit::sizeHint() const
{
    const int brackets = showBrackets_ ? 2 * BracketWidth : 0;
    return {brackets + 2 * EditWidth + SeparatorWidth, EditHeight};
}

void TQORComplexEdit::Resize()
{
    if (first_ == nullptr)
        return;
    const int h = autoSize_ ? EditHeight : height();
    const int brackets = showBrackets_ ? 2 * BracketWidth : 0;
    const int editWidth = std::max(0, (width() - brackets - SeparatorWidth) / 2);
    struct Slot {
        QWidget* Child;
        int Width;
        bool Bracket;
    };
    const Slot slots[] = {{openLabel_, BracketWidth, true},
                          {first_, editWidth, false},
                          {separatorLabel_, SeparatorWidth, false},
                          {second_, editWidth, false},
                          {closeLabel_, BracketWidth, true}};
    int x = 0;
    for (const Slot& slot : slots) {
        const bool shown = !slot.Bracket || showBrackets_;
        slot.Child->setVisible(shown);
        if (!shown)
            continue;
        const int rise = slot.Bracket ? BracketRise : 0;
        slot.Child->setGeometry(x, -rise, slot.Width, h + rise);
        x += slot.Width;
    }
}

void TQORComplexEdit::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Resize();
}

// ---- Settings of both element edits --------------------------------------------------------

template<typename Getter, typename Setter, typename T>
bool TQORComplexEdit::PassToEdits(Getter get, Setter set, const T& value)
{
    if ((first_->*get)() == value)
        return false;
    (first_->*set)(value);
    (second_->*set)(value);
    return true;
}

void TQORComplexEdit::SetDecimalPlaces(std::uint8_t value)
{
    value = std::min(value, TQORFloatEdit::MaxDecimals);
    if (PassToEdits(&TQORFloatEdit::GetDecimalPlaces, &TQORFloatEdit::SetDecimalPlaces, value))
        Q_EMIT decimalPlacesChanged();
}

void TQORComplexEdit::SetDecimalPlacesValue(int value)
{
    SetDecimalPlaces(
        static_cast<std::uint8_t>(std::clamp(value, 0, int {TQORFloatEdit::MaxDecimals})));
}

void TQORComplexEdit::SetFullAccuracy(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetFullAccuracy, &TQORFloatEdit::SetFullAccuracy, value))
        Q_EMIT fullAccuracyChanged();
}

void TQORComplexEdit::SetFullAccuracyEdit(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetFullAccuracyEdit, &TQORFloatEdit::SetFullAccuracyEdit,
                    value))
        Q_EMIT fullAccuracyEditChanged();
}

void TQORComplexEdit::SetTrimTrailingZeroes(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetTrimTrailingZeroes, &TQORFloatEdit::SetTrimTrailingZeroes,
                    value))
        Q_EMIT trimTrailingZeroesChanged();
}

void TQORComplexEdit::SetAlignment(Qt::Alignment value)
{
    if (PassToEdits(&TQORFloatEdit::GetAlignment, &TQORFloatEdit::SetAlignment, value))
        Q_EMIT alignmentChanged();
}

void TQORComplexEdit::SetAutoSelectClick(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetAutoSelectClick, &TQORFloatEdit::SetAutoSelectClick, value))
        Q_EMIT autoSelectClickChanged();
}

void TQORComplexEdit::SetAutoSelect(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetAutoSelect, &TQORFloatEdit::SetAutoSelect, value))
        Q_EMIT autoSelectChanged();
}

void TQORComplexEdit::SetAllowKbdNull(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetAllowKbdNull, &TQORFloatEdit::SetAllowKbdNull, value))
        Q_EMIT allowKbdNullChanged();
}

void TQORComplexEdit::SetBlankWhenZero(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetBlankWhenZero, &TQORFloatEdit::SetBlankWhenZero, value))
        Q_EMIT blankWhenZeroChanged();
}

void TQORComplexEdit::SetBlankWhenNull(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetBlankWhenNull, &TQORFloatEdit::SetBlankWhenNull, value))
        Q_EMIT blankWhenNullChanged();
}

void TQORComplexEdit::SetBlankIsNull(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetBlankIsNull, &TQORFloatEdit::SetBlankIsNull, value))
        Q_EMIT blankIsNullChanged();
}

void TQORComplexEdit::SetNullStr(const QString& value)
{
    if (PassToEdits(&TQORFloatEdit::GetNullStr, &TQORFloatEdit::SetNullStr, value))
        Q_EMIT nullStrChanged();
}

void TQORComplexEdit::SetReadOnly(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetReadOnly, &TQORFloatEdit::SetReadOnly, value))
        Q_EMIT readOnlyChanged();
}

void TQORComplexEdit::SetTabStop(bool value)
{
    if (PassToEdits(&TQORFloatEdit::GetTabStop, &TQORFloatEdit::SetTabStop, value))
        Q_EMIT tabStopChanged();
}

void TQORComplexEdit::SetUICtrl(TQORUICtrl* value)
{
    if (PassToEdits(&TQORFloatEdit::GetUICtrl, &TQORFloatEdit::SetUICtrl, value))
        Q_EMIT uiCtrlChanged();
}

void TQORComplexEdit::SetUIUsage(TQORUIUsage value)
{
    if (value <= uiAll
        && PassToEdits(&TQORFloatEdit::GetUIUsage, &TQORFloatEdit::SetUIUsage, value))
        Q_EMIT uiUsageChanged();
}

} // namespace qorkit

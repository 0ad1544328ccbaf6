#include "QORKITCalcEdit.h"

#include "QORKITGlyphs.h"
#include "QORKIT_RS_Calc.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace qorkit {

namespace {

// Width of the calculator button beside the edit, in logical pixels.
constexpr int ButtonWidth = 22;

QString DefaultCalcTitle() { return QString::fromStdString(rsCalculator()); }

} // namespace

// ---- Calculator kinds ------------------------------------------------------------------------

namespace {

bool ExecuteStandardCalc(TQORFloatCalcComponent& calculator, bool centred, int left, int top,
                         QWidget* parent)
{
    return ExecuteCalcComponent(static_cast<TQORCalculator&>(calculator), centred, left, top,
                                parent);
}

bool DisplayStandardCalc(const std::string& title, Extended& value, int left, int top,
                         std::uint8_t decimals, bool flat, QWidget* parent)
{
    if (left == -1 && top == -1)
        return DisplayCalc(title, value, decimals, flat, parent);
    return DisplayCalcPos(title, value, left, top, decimals, flat, parent);
}

} // namespace

const TQORCalcKind QORStandardCalcKind {216, 289, ExecuteStandardCalc, DisplayStandardCalc};

// ---- TQORCalcEditBase ------------------------------------------------------------------------

TQORCalcEditBase::TQORCalcEditBase(QWidget* parent, const TQORCalcKind& kind)
    : QWidget(parent), kind_(kind)
{
    button_ = new QToolButton(this);
    button_->setObjectName(QStringLiteral("CalcButton"));
    button_->setFocusPolicy(Qt::NoFocus);
    button_->setIcon(LoadCalcGlyph(calcGlyphType_));
    button_->setToolTip(DefaultCalcTitle());
    connect(button_, &QToolButton::clicked, this, [this] { CalcClick(); });
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

TQORCalcEditBase::~TQORCalcEditBase() { AutoDestroy(); }

void TQORCalcEditBase::AutoInitialize(TQORBaseEdit* edit)
{
    edit_ = edit;
    edit_->setObjectName(QStringLiteral("Edit"));
    setFocusProxy(edit_);
    setFocusPolicy(edit_->focusPolicy());
    edit_->installEventFilter(this);

    edit_->SetOnChange([this](QObject*) { DoChange(); });
    edit_->SetOnNull([this](QObject*) {
        if (onNull_)
            onNull_(this);
        Q_EMIT null();
    });
    edit_->SetOnNullChange([this](QObject*) { Q_EMIT nullChanged(); });
    edit_->SetOnSignChange([this](QObject*, int sign) {
        if (onSignChange_)
            onSignChange_(this, sign);
        Q_EMIT signChange(sign);
    });
    edit_->SetOnValidationError([this](QObject*, const QString& message) {
        if (onValidationError_)
            onValidationError_(this, message);
        Q_EMIT validationError(message);
    });
    edit_->SetOnClick([this](QObject*) {
        if (onClick_)
            onClick_(this);
        Q_EMIT click();
    });
    edit_->SetOnDblClick([this](QObject*) {
        if (onDblClick_)
            onDblClick_(this);
        Q_EMIT dblClick();
    });
    edit_->SetOnMouseDown([this](QObject*, QMouseEvent* e) {
        if (onMouseDown_)
            onMouseDown_(this, e);
        Q_EMIT mouseDown(e);
    });
    edit_->SetOnMouseUp([this](QObject*, QMouseEvent* e) {
        if (onMouseUp_)
            onMouseUp_(this, e);
        Q_EMIT mouseUp(e);
    });
    edit_->SetOnMouseMove([this](QObject*, QMouseEvent* e) {
        if (onMouseMove_)
            onMouseMove_(this, e);
        Q_EMIT mouseMove(e);
    });
    edit_->SetOnKeyDown([this](QObject*, QKeyEvent* e) { EditKeyDown(e); });
    edit_->SetOnKeyPress([this](QObject*, QKeyEvent* e) { EditKeyPress(e); });
    edit_->SetOnKeyUp([this](QObject*, QKeyEvent* e) { EditKeyUp(e); });
    connect(edit_, &QLineEdit::textChanged, this, [this] {
        Q_EMIT textChanged();
        Q_EMIT asStringChanged();
    });
    lastValue_ = GetValue();
    UpdateButton();
    LayoutChildren();
}

void TQORCalcEditBase::AutoDestroy()
{
    if (destroying_)
        return;
    destroying_ = true;
    if (calculatorConnection_)
        disconnect(calculatorConnection_);
    if (edit_ != nullptr) {
        // The edit's events must not reach this half-destroyed control.
        edit_->removeEventFilter(this);
        edit_->disconnect(this);
        edit_->SetOnChange({});
        edit_->SetOnNull({});
        edit_->SetOnNullChange({});
        edit_->SetOnSignChange({});
        edit_->SetOnValidationError({});
        delete edit_;
        edit_ = nullptr;
    }
}

QSize TQORCalcEditBase::sizeHint() const
{
    const QSize edit = edit_ != nullptr ? edit_->sizeHint() : QSize(120, 22);
    return {edit.width() + (hideButton_ ? 0 : ButtonWidth), edit.height()};
}

QSize TQORCalcEditBase::minimumSizeHint() const
{
    const QSize edit = edit_ != nullptr ? edit_->minimumSizeHint() : QSize(40, 22);
    return {edit.width() + (hideButton_ ? 0 : ButtonWidth), edit.height()};
}

void TQORCalcEditBase::DoChange()
{
    if (onChange_)
        onChange_(this);
    Q_EMIT change();
    DoValueChangeSignals();
}

void TQORCalcEditBase::DoValueChangeSignals()
{
    const Extended value = GetNull() ? 0 : GetValue();
    if (value != lastValue_) {
        lastValue_ = value;
        Q_EMIT asFloatChanged();
    }
}

// ---- The hand-off ----------------------------------------------------------------------------

QPoint TQORCalcEditBase::CalcPosition() const
{
    // Under the control: its left edge and its bottom, on the screen.
    QPoint p = mapToGlobal(QPoint(0, height()));
    QScreen* scr = screen();
    if (scr == nullptr)
        scr = QGuiApplication::primaryScreen();
    if (scr == nullptr)
        return p;
    const QRect area = scr->availableGeometry();
    const int screenBottom = area.y() + area.height();
    const int screenRight = area.x() + area.width();
    // Too little room below: open above the control.
    if (screenBottom < p.y() + kind_.Height)
        p.ry() -= height() + kind_.Height;
    // Too little room to the right: flush with the screen's right edge.
    if (screenRight < p.x() + kind_.Width)
        p.setX(screenRight - kind_.Width);
    return p;
}

void TQORCalcEditBase::CalcClick()
{
    if (readOnly_ || edit_ == nullptr)
        return;
    // The host may close the window from an event or while the calculator is open.
    const QPointer<TQORCalcEditBase> self(this);
    if (onCalcClick_)
        onCalcClick_(this);
    Q_EMIT calcClick();
    if (!self)
        return;
    accepted_ = false;
    Extended value = GetValue();

    bool show = true;
    if (onPopupCalc_)
        onPopupCalc_(this, value, show);
    Q_EMIT popupCalc(&value, &show);
    if (!self)
        return;

    if (!show) {
        SetValue(value);
        accepted_ = true;
    } else if (TQORFloatCalcComponent* calculator = calculator_.data()) {
        calculator->SetDecimalPlaces(CalcDecimals());
        calculator->SetTrimTrailingZeroes(CalcTrimTrailingZeroes());
        calculator->SetValue(value);
        const QPoint at = CalcPosition();
        const bool ok = kind_.Execute(*calculator, calcCenter_, at.x(), at.y(), this);
        if (!self)
            return;
        if (ok && calculator_ == calculator) {
            if (calculator->GetReturnDecimalPlaces())
                SetCalcDecimals(calculator->GetDecimalPlaces());
            value = calculator->GetValue();
            SetValue(value);
            accepted_ = true;
        }
    } else {
        const QPoint at = calcCenter_ ? QPoint(-1, -1) : CalcPosition();
        Extended edited = value;
        const bool ok = kind_.Display(GetCalcTitle().toStdString(), edited, at.x(), at.y(),
                                      CalcDecimals(), flatCalc_, this);
        if (!self)
            return;
        if (ok) {
            value = edited;
            SetValue(value);
            accepted_ = true;
        }
    }

    // The end event sees the value as it now stands (a refused result leaves the old one).
    value = GetNull() ? value : GetValue();
    const Extended before = value;
    if (onCalcClickEnd_)
        onCalcClickEnd_(this, value, accepted_);
    Q_EMIT calcClickEnd(&value, accepted_);
    if (self && value != before)
        SetValue(value);
}

void TQORCalcEditBase::SetCalculatorComponent(TQORFloatCalcComponent* calculator)
{
    if (calculator_ == calculator)
        return;
    if (calculatorConnection_)
        disconnect(calculatorConnection_);
    calculator_ = calculator;
    calculatorAddress_ = calculator;
    if (calculator != nullptr) {
        // The removal notice: a destroyed component is forgotten, so a later click falls
        // back to the dialog.
        calculatorConnection_ = connect(calculator, &QObject::destroyed, this,
                                        [this](QObject* gone) { Notification(gone, opRemove); });
    }
    Q_EMIT calculatorControlChanged();
}

void TQORCalcEditBase::Notification(QObject* component, TQOROperation operation)
{
    if (operation != opRemove || component == nullptr || component != calculatorAddress_)
        return;
    calculator_ = nullptr;
    calculatorAddress_ = nullptr;
    calculatorConnection_ = {};
    if (!destroying_)
        Q_EMIT calculatorControlChanged();
}

// ---- Keys and focus --------------------------------------------------------------------------

void TQORCalcEditBase::EditKeyDown(QKeyEvent* event)
{
    if (readOnly_)
        return;
    if (onKeyDown_)
        onKeyDown_(this, event);
    Q_EMIT keyDown(event);
    if (event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier)) {
        // The edit itself has nothing to do with the key.
        event->ignore();
        CalcClick();
    }
}

void TQORCalcEditBase::EditKeyPress(QKeyEvent* event)
{
    if (onKeyPress_)
        onKeyPress_(this, event);
    Q_EMIT keyPress(event);
}

void TQORCalcEditBase::EditCNKeyDown(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier) && !readOnly_)
        event->accept(); // no shortcut of the window takes Alt+Down from the edit
}

void TQORCalcEditBase::EditKeyUp(QKeyEvent* event)
{
    if (onKeyUp_)
        onKeyUp_(this, event);
    Q_EMIT keyUp(event);
}

bool TQORCalcEditBase::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == edit_ && event->type() == QEvent::ShortcutOverride)
        EditCNKeyDown(static_cast<QKeyEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

void TQORCalcEditBase::DoEnter()
{
    if (edit_ != nullptr && !edit_->hasFocus())
        edit_->setFocus(Qt::OtherFocusReason);
}

void TQORCalcEditBase::focusInEvent(QFocusEvent* event)
{
    DoEnter();
    QWidget::focusInEvent(event);
}

void TQORCalcEditBase::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        UpdateButton();
}

// ---- Layout ----------------------------------------------------------------------------------

void TQORCalcEditBase::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (destroying_ || edit_ == nullptr)
        return;
    if (autoSize_) {
        const int wanted = edit_->sizeHint().height();
        if (height() != wanted) {
            resize(width(), wanted);
            return; // laid out by the resize that follows
        }
    }
    LayoutChildren();
    if (height() != lastHeight_) {
        lastHeight_ = height();
        Q_EMIT heightChanged();
    }
}

void TQORCalcEditBase::showEvent(QShowEvent* event)
{
    // A hidden control hears of no resize: lay out what it was given meanwhile.
    LayoutChildren();
    QWidget::showEvent(event);
}

void TQORCalcEditBase::LayoutChildren()
{
    if (edit_ == nullptr)
        return;
    // Both take the control's height; the button sits at the right.
    const int h = height();
    const int buttonWidth = hideButton_ ? 0 : std::min(ButtonWidth, width());
    edit_->setGeometry(0, 0, width() - buttonWidth, h);
    button_->setGeometry(width() - buttonWidth, 0, buttonWidth, h);
    button_->setIconSize(QSize(std::max(buttonWidth - 6, 8), std::max(h - 8, 8)));
}

void TQORCalcEditBase::SetAutoSize(bool value)
{
    if (autoSize_ == value)
        return;
    autoSize_ = value;
    setSizePolicy(QSizePolicy::Expanding, value ? QSizePolicy::Fixed : QSizePolicy::Preferred);
    if (value && edit_ != nullptr)
        resize(width(), edit_->sizeHint().height());
    updateGeometry();
    Q_EMIT autoSizeChanged();
}

void TQORCalcEditBase::SetHeight(int value)
{
    if (value >= 0 && value != height())
        resize(width(), value);
}

void TQORCalcEditBase::UpdateButton()
{
    const bool editEnabled = edit_ != nullptr && edit_->isEnabled();
    button_->setEnabled(editEnabled && !readOnly_);
}

// ---- Own settings ----------------------------------------------------------------------------

void TQORCalcEditBase::SetDecimalPlaces(std::uint8_t value)
{
    const std::uint8_t before = CalcDecimals();
    SetCalcDecimals(value);
    if (CalcDecimals() != before)
        Q_EMIT decimalPlacesChanged();
}

void TQORCalcEditBase::SetDecimalPlacesValue(int value)
{
    SetDecimalPlaces(static_cast<std::uint8_t>(std::clamp(value, 0, 255)));
}

void TQORCalcEditBase::SetFlatCalc(bool value)
{
    if (flatCalc_ == value)
        return;
    flatCalc_ = value;
    button_->setAutoRaise(value);
    Q_EMIT flatCalcChanged();
}

void TQORCalcEditBase::SetCalcCenter(bool value)
{
    if (calcCenter_ == value)
        return;
    calcCenter_ = value;
    Q_EMIT calcCenterChanged();
}

void TQORCalcEditBase::SetCalcGlyphType(TQORCalcGlyphType value)
{
    if (calcGlyphType_ == value)
        return;
    calcGlyphType_ = value;
    const QIcon glyph = LoadCalcGlyph(value);
    if (!glyph.isNull())
        button_->setIcon(glyph);
    Q_EMIT calcGlyphTypeChanged();
}

QString TQORCalcEditBase::GetCalcTitle() const
{
    return calcTitle_.isEmpty() ? DefaultCalcTitle() : calcTitle_;
}

void TQORCalcEditBase::SetCalcTitle(const QString& value)
{
    // The default is kept as "no title of its own", so it follows the translation.
    const QString stored = value == DefaultCalcTitle() ? QString() : value;
    if (stored == calcTitle_)
        return;
    calcTitle_ = stored;
    Q_EMIT calcTitleChanged();
}

bool TQORCalcEditBase::StoreCalcTitle() const { return !calcTitle_.isEmpty(); }

void TQORCalcEditBase::SetReadOnly(bool value)
{
    if (readOnly_ == value)
        return;
    readOnly_ = value;
    edit_->SetReadOnly(value);
    UpdateButton();
    Q_EMIT readOnlyChanged();
}

void TQORCalcEditBase::SetHideButton(bool value)
{
    if (hideButton_ == value)
        return;
    hideButton_ = value;
    button_->setVisible(!value);
    LayoutChildren();
    updateGeometry();
    Q_EMIT hideButtonChanged();
}

void TQORCalcEditBase::SetEnabled(bool value)
{
    edit_->setEnabled(value);
    UpdateButton();
}

void TQORCalcEditBase::SetStoreValue(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetStoreValue, &TQORBaseEdit::SetStoreValue, value,
            &TQORCalcEditBase::storeValueChanged);
}

void TQORCalcEditBase::SetAlignment(Qt::Alignment value)
{
    Forward(this, edit_, &TQORBaseEdit::GetAlignment, &TQORBaseEdit::SetAlignment, value,
            &TQORCalcEditBase::alignmentChanged);
}

void TQORCalcEditBase::SetAutoSelectClick(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetAutoSelectClick, &TQORBaseEdit::SetAutoSelectClick,
            value, &TQORCalcEditBase::autoSelectClickChanged);
}

void TQORCalcEditBase::SetAutoSelect(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetAutoSelect, &TQORBaseEdit::SetAutoSelect, value,
            &TQORCalcEditBase::autoSelectChanged);
}

void TQORCalcEditBase::SetAllowKbdNull(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetAllowKbdNull, &TQORBaseEdit::SetAllowKbdNull, value,
            &TQORCalcEditBase::allowKbdNullChanged);
}

void TQORCalcEditBase::SetBlankWhenNull(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetBlankWhenNull, &TQORBaseEdit::SetBlankWhenNull, value,
            &TQORCalcEditBase::blankWhenNullChanged);
}

void TQORCalcEditBase::SetBlankIsNull(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetBlankIsNull, &TQORBaseEdit::SetBlankIsNull, value,
            &TQORCalcEditBase::blankIsNullChanged);
}

void TQORCalcEditBase::SetEditorEnabled(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetEditorEnabled, &TQORBaseEdit::SetEditorEnabled, value,
            &TQORCalcEditBase::editorEnabledChanged);
}

void TQORCalcEditBase::SetAutoAdvance(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetAutoAdvance, &TQORBaseEdit::SetAutoAdvance, value,
            &TQORCalcEditBase::autoAdvanceChanged);
}

void TQORCalcEditBase::SetMaxLength(int value)
{
    Forward(this, edit_, &TQORBaseEdit::GetMaxLength, &TQORBaseEdit::SetMaxLength, value,
            &TQORCalcEditBase::maxLengthChanged);
}

void TQORCalcEditBase::SetNullStr(const QString& value)
{
    Forward(this, edit_, &TQORBaseEdit::GetNullStr, &TQORBaseEdit::SetNullStr, value,
            &TQORCalcEditBase::nullStrChanged);
}

void TQORCalcEditBase::SetTabStop(bool value)
{
    Forward(this, edit_, &TQORBaseEdit::GetTabStop, &TQORBaseEdit::SetTabStop, value,
            &TQORCalcEditBase::tabStopChanged);
    setFocusPolicy(edit_->focusPolicy());
}

void TQORCalcEditBase::SetUICtrl(TQORUICtrl* value)
{
    Forward(this, edit_, &TQORBaseEdit::GetUICtrl, &TQORBaseEdit::SetUICtrl, value,
            &TQORCalcEditBase::uiCtrlChanged);
}

void TQORCalcEditBase::SetUIUsage(TQORUIUsage value)
{
    Forward(this, edit_, &TQORBaseEdit::GetUIUsage, &TQORBaseEdit::SetUIUsage, value,
            &TQORCalcEditBase::uiUsageChanged);
}

// ---- TQORFloatCalcEdit -----------------------------------------------------------------------

TQORFloatCalcEdit::TQORFloatCalcEdit(QWidget* parent, const TQORCalcKind& kind)
    : TQORCalcEditBase(parent, kind), floatEdit_(new TQORFloatEdit(this))
{
    AutoInitialize(floatEdit_);
}

void TQORFloatCalcEdit::SetCalcDecimals(std::uint8_t value) { floatEdit_->SetDecimalPlaces(value); }

void TQORFloatCalcEdit::SetFullAccuracy(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetFullAccuracy, &TQORFloatEdit::SetFullAccuracy,
            value, &TQORFloatCalcEdit::fullAccuracyChanged);
}

void TQORFloatCalcEdit::SetFullAccuracyEdit(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetFullAccuracyEdit,
            &TQORFloatEdit::SetFullAccuracyEdit, value,
            &TQORFloatCalcEdit::fullAccuracyEditChanged);
}

void TQORFloatCalcEdit::SetTrimTrailingZeroes(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetTrimTrailingZeroes,
            &TQORFloatEdit::SetTrimTrailingZeroes, value,
            &TQORFloatCalcEdit::trimTrailingZeroesChanged);
}

void TQORFloatCalcEdit::SetAllowExpressions(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetAllowExpressions,
            &TQORFloatEdit::SetAllowExpressions, value,
            &TQORFloatCalcEdit::allowExpressionsChanged);
}

void TQORFloatCalcEdit::SetBlankWhenZero(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetBlankWhenZero, &TQORFloatEdit::SetBlankWhenZero,
            value, &TQORFloatCalcEdit::blankWhenZeroChanged);
}

void TQORFloatCalcEdit::SetThousandSeparators(TQORThousandSeparators value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetThousandSeparators,
            &TQORFloatEdit::SetThousandSeparators, value,
            &TQORFloatCalcEdit::thousandSeparatorsChanged);
}

void TQORFloatCalcEdit::SetShowThousandSeparators(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetShowThousandSeparators,
            &TQORFloatEdit::SetShowThousandSeparators, value,
            &TQORFloatCalcEdit::showThousandSeparatorsChanged);
}

void TQORFloatCalcEdit::SetZeroPad(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetZeroPad, &TQORFloatEdit::SetZeroPad, value,
            &TQORFloatCalcEdit::zeroPadChanged);
}

void TQORFloatCalcEdit::SetAllowNegInput(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetAllowNegInput, &TQORFloatEdit::SetAllowNegInput,
            value, &TQORFloatCalcEdit::allowNegInputChanged);
}

void TQORFloatCalcEdit::SetNegAsBrackets(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetNegAsBrackets, &TQORFloatEdit::SetNegAsBrackets,
            value, &TQORFloatCalcEdit::negAsBracketsChanged);
}

void TQORFloatCalcEdit::SetLakhFormatting(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetLakhFormatting, &TQORFloatEdit::SetLakhFormatting,
            value, &TQORFloatCalcEdit::lakhFormattingChanged);
}

void TQORFloatCalcEdit::SetCustomDecimal(char value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetCustomDecimal, &TQORFloatEdit::SetCustomDecimal,
            value, &TQORFloatCalcEdit::customDecimalChanged);
}

void TQORFloatCalcEdit::SetCustomThousands(char value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetCustomThousands,
            &TQORFloatEdit::SetCustomThousands, value, &TQORFloatCalcEdit::customThousandsChanged);
}

void TQORFloatCalcEdit::SetCustomSeparators(bool value)
{
    Forward(this, floatEdit_, &TQORFloatEdit::GetCustomSeparators,
            &TQORFloatEdit::SetCustomSeparators, value,
            &TQORFloatCalcEdit::customSeparatorsChanged);
}

// ---- TQORCalcEdit ----------------------------------------------------------------------------

TQORCalcEdit::TQORCalcEdit(QWidget* parent) : TQORFloatCalcEdit(parent, QORStandardCalcKind) { }

TQORCalculator* TQORCalcEdit::GetCalculatorControl() const
{
    return static_cast<TQORCalculator*>(GetCalculatorComponent());
}

} // namespace qorkit

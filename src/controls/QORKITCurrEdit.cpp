#include "QORKITCurrEdit.h"

#include "QORKITExceptions.h"
#include "QORKITFloatEdit.h"
#include "QORKITMath.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QORKITTranslation.h"
#include "QORKIT_RS_Calc.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QValidator>

#include <algorithm>
#include <cmath>
#include <limits>

namespace qorkit {

namespace {

// The currency formats, "$" standing for the symbol and "1" for the amount.
constexpr const char* PositivePatterns[] = {"$1", "1$", "$ 1", "1 $"};
constexpr const char* NegativePatterns[] = {
    "($1)", "-$1",  "$-1",  "$1-",  "(1$)", "-1$",  "1-$",   "1$-",
    "-1 $", "-$ 1", "1 $-", "$ 1-", "$ -1", "1- $", "($ 1)", "(1 $)",
};

// The process-wide currency symbol replaced by `symbol` for the life of the object.
class CurrencySymbolScope {
public:
    explicit CurrencySymbolScope(const QString& symbol) : saved_(FormatSettings.CurrencyString)
    {
        FormatSettings.CurrencyString = symbol.toStdString();
    }
    ~CurrencySymbolScope() { FormatSettings.CurrencyString = saved_; }
    CurrencySymbolScope(const CurrencySymbolScope&) = delete;
    CurrencySymbolScope& operator=(const CurrencySymbolScope&) = delete;

private:
    std::string saved_;
};

// Keys of a currency edit: digits, the separators in force, signs where the class has
// them, blanks and the characters of the symbol; the null string while it is being typed.
class CurrencyValidator : public QValidator {
public:
    CurrencyValidator(TQORBaseCurrEdit* edit, std::function<bool()> negatives)
        : QValidator(edit), edit_(edit), negatives_(std::move(negatives))
    { }
    State validate(QString& input, int&) const override
    {
        const QString trimmed = input.trimmed();
        if (edit_->GetAllowKbdNull() && !edit_->GetNullStr().isEmpty() && !trimmed.isEmpty()
            && edit_->GetNullStr().startsWith(trimmed, Qt::CaseInsensitive))
            return Acceptable;
        const QString symbol = edit_->CurrencySymbol();
        const QChar dec = QLatin1Char(edit_->DecimalChar());
        const char thousands = edit_->ThousandChar();
        const bool negatives = negatives_();
        for (const QChar c : input) {
            const bool ok = (c.isDigit() && c.unicode() < 128) || c == dec
                || (thousands != '\0' && c == QLatin1Char(thousands)) || c == QLatin1Char(' ')
                || symbol.contains(c)
                || (negatives
                    && (c == QLatin1Char('-') || c == QLatin1Char('(') || c == QLatin1Char(')')));
            if (!ok)
                return Invalid;
        }
        return Acceptable;
    }

private:
    TQORBaseCurrEdit* edit_;
    std::function<bool()> negatives_;
};

int SignOf(Extended v) { return static_cast<int>(QORSign(v)); }

} // namespace

// ---- TQORBaseCurrEdit ------------------------------------------------------------------------

TQORBaseCurrEdit::TQORBaseCurrEdit(QWidget* parent)
    : TQORStartEdit(parent), currencyStr_(ToQString(FormatSettings.CurrencyString).trimmed()),
      currencyFormat_(static_cast<TCurrencyFormatType>(
          std::min<int>(FormatSettings.CurrencyFormat, cfNumberSpaceSymbol))),
      negativeFormat_(static_cast<TNegativeFormatType>(
          std::min<int>(FormatSettings.NegCurrFormat, nfParenNumberSpaceSymbol))),
      decimals_(std::min<std::uint8_t>(FormatSettings.CurrencyDecimals, 18)),
      customThousands_(FormatSettings.ThousandSeparator),
      customDecimal_(FormatSettings.DecimalSeparator)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setValidator(new CurrencyValidator(this, [this] { return AllowsNegative(); }));
    // Grouping follows every change the user makes (typing, deleting, pasting).
    connect(this, &QLineEdit::textEdited, this, [this] { DoThousands(); });
    Redisplay();
}

template<typename T>
bool TQORBaseCurrEdit::Restyle(T& field, T value, void (TQORBaseCurrEdit::*changed)())
{
    if (field == value)
        return false;
    field = value;
    Redisplay();
    (this->*changed)();
    return true;
}

// -- Separators, symbol and formats

char TQORBaseCurrEdit::DecimalChar() const
{
    return EditDecimalChar(customSeparators_, customDecimal_);
}

char TQORBaseCurrEdit::ThousandChar() const
{
    return EditThousandChar(customSeparators_, customDecimal_, customThousands_,
                            thousandSeparators_);
}

QString TQORBaseCurrEdit::CurrencySymbol() const
{
    if (formatType_ == cftCustom)
        return currencyStr_;
    if (formatType_ == cftLocale) {
        const QString symbol = locale().currencySymbol();
        if (!symbol.isEmpty())
            return symbol;
    }
    return ToQString(FormatSettings.CurrencyString).trimmed();
}

TCurrencyFormatType TQORBaseCurrEdit::PositiveFormatInForce() const
{
    if (formatType_ == cftCustom)
        return currencyFormat_;
    const auto f = FormatSettings.CurrencyFormat;
    return f <= cfNumberSpaceSymbol ? static_cast<TCurrencyFormatType>(f) : cfSymbolNumber;
}

TNegativeFormatType TQORBaseCurrEdit::NegativeFormatInForce() const
{
    if (formatType_ == cftCustom)
        return negativeFormat_;
    const auto f = FormatSettings.NegCurrFormat;
    return f <= nfParenNumberSpaceSymbol ? static_cast<TNegativeFormatType>(f)
                                         : nfMinusSymbolNumber;
}

QString TQORBaseCurrEdit::FormatAmount(Extended amount) const
{
    if (!std::isfinite(amount))
        return {};
    const char thousands = ThousandChar();
    const bool grouped = showThousandSeparators_ && thousands != '\0';
    // The text routines read the separators at each call: give them this edit's.
    const TQORSeparatorScope scope(true, DecimalChar(), grouped ? thousands : '\0');
    return ToQString(grouped ? Float2CEStr(amount, decimals_) : Float2EStr(amount, decimals_));
}

QString TQORBaseCurrEdit::FormatCurrency(Extended amount) const
{
    QString digits = FormatAmount(std::fabs(amount));
    // An amount that rounds to zero is shown as a positive one.
    const bool negative = amount < 0 && std::any_of(digits.cbegin(), digits.cend(), [](QChar c) {
                              return c.isDigit() && c != QLatin1Char('0');
                          });
    const char* pattern = negative ? NegativePatterns[NegativeFormatInForce()]
                                   : PositivePatterns[PositiveFormatInForce()];
    const QString symbol = CurrencySymbol();
    QString out;
    for (const char* p = pattern; *p != '\0'; ++p) {
        if (*p == '$')
            out += symbol;
        else if (*p == '1')
            out += digits;
        else
            out += QLatin1Char(*p);
    }
    // A blank symbol leaves no blank of its own.
    return symbol.isEmpty() ? out.trimmed() : out;
}

QString TQORBaseCurrEdit::DisplayText() const
{
    if (blankWhenZero_ && value_ == 0)
        return {};
    return FormatCurrency(value_ / scale_);
}

void TQORBaseCurrEdit::SetFormatType(TQORCurrencyFormatType value)
{
    if (value <= cftCustom)
        Restyle(formatType_, value, &TQORBaseCurrEdit::formatTypeChanged);
}

void TQORBaseCurrEdit::SetCurrencyStr(const QString& value)
{
    const QString trimmed = value.trimmed();
    if (trimmed == currencyStr_)
        return;
    if (formatType_ != cftCustom) {
        if (designMode_)
            ShowError(ToQString(rsCurrencyFormat1()));
        return;
    }
    Restyle(currencyStr_, trimmed, &TQORBaseCurrEdit::currencyStrChanged);
}

void TQORBaseCurrEdit::SetCurrencyFormat(TCurrencyFormatType value)
{
    if (value == currencyFormat_ || value > cfNumberSpaceSymbol)
        return;
    if (formatType_ != cftCustom) {
        if (designMode_)
            ShowError(ToQString(rsCurrencyFormat2()));
        return;
    }
    Restyle(currencyFormat_, value, &TQORBaseCurrEdit::currencyFormatChanged);
}

void TQORBaseCurrEdit::SetNegativeFormat(TNegativeFormatType value)
{
    if (value == negativeFormat_ || value > nfParenNumberSpaceSymbol)
        return;
    if (formatType_ != cftCustom) {
        if (designMode_)
            ShowError(ToQString(rsCurrencyFormat3()));
        return;
    }
    Restyle(negativeFormat_, value, &TQORBaseCurrEdit::negativeFormatChanged);
}

void TQORBaseCurrEdit::SetDecimals(std::uint8_t value)
{
    if (value == decimals_)
        return;
    if (value > maxDecimals_) {
        ShowError(ToQString(rsCannot()) + QString::number(maxDecimals_)
                  + ToQString(rsDecimalPlaces()));
        return;
    }
    Restyle(decimals_, value, &TQORBaseCurrEdit::decimalPlacesChanged);
}

void TQORBaseCurrEdit::SetDecimalPlacesValue(int value)
{
    SetDecimals(static_cast<std::uint8_t>(std::clamp(value, 0, 255)));
}

void TQORBaseCurrEdit::SetMaxDecimals(std::uint8_t value)
{
    maxDecimals_ = value;
    if (decimals_ > maxDecimals_)
        Restyle(decimals_, maxDecimals_, &TQORBaseCurrEdit::decimalPlacesChanged);
}

void TQORBaseCurrEdit::ShowError(const QString& message)
{
    if (GetOnValidationError())
        GetOnValidationError()(this, message);
    else
        QMessageBox::warning(this, QApplication::applicationDisplayName(), message);
}

void TQORBaseCurrEdit::SetFullAccuracy(bool value)
{
    if (fullAccuracy_ == value)
        return;
    fullAccuracy_ = value;
    Q_EMIT fullAccuracyChanged();
}

void TQORBaseCurrEdit::SetBlankWhenZero(bool value)
{
    Restyle(blankWhenZero_, value, &TQORBaseCurrEdit::blankWhenZeroChanged);
}

void TQORBaseCurrEdit::SetBoundLower(Extended value)
{
    if (std::isfinite(value) && value != boundLower_) {
        boundLower_ = value;
        Q_EMIT boundLowerChanged();
    }
}

void TQORBaseCurrEdit::SetBoundUpper(Extended value)
{
    if (std::isfinite(value) && value != boundUpper_) {
        boundUpper_ = value;
        Q_EMIT boundUpperChanged();
    }
}

void TQORBaseCurrEdit::SetThousandSeparators(TQORThousandSeparators value)
{
    if (value <= tsApostrophe)
        Restyle(thousandSeparators_, value, &TQORBaseCurrEdit::thousandSeparatorsChanged);
}

void TQORBaseCurrEdit::SetShowThousandSeparators(bool value)
{
    Restyle(showThousandSeparators_, value, &TQORBaseCurrEdit::showThousandSeparatorsChanged);
}

void TQORBaseCurrEdit::SetCustomSeparators(bool value)
{
    Restyle(customSeparators_, value, &TQORBaseCurrEdit::customSeparatorsChanged);
}

void TQORBaseCurrEdit::SetCustomThousands(char value)
{
    Restyle(customThousands_, value, &TQORBaseCurrEdit::customThousandsChanged);
}

void TQORBaseCurrEdit::SetCustomDecimal(char value)
{
    Restyle(customDecimal_, value, &TQORBaseCurrEdit::customDecimalChanged);
}

void TQORBaseCurrEdit::SetScale(Extended value)
{
    if (!std::isfinite(value) || value <= 0 || value == scale_)
        return;
    scale_ = value;
    Redisplay();
    Q_EMIT scaleChanged();
}

// -- Value

Extended TQORBaseCurrEdit::GetAsFloat()
{
    if (IsEditing() && isModified())
        ValidateEdit();
    return GetNull() ? 0 : value_;
}

Extended TQORBaseCurrEdit::GetScaledFloat() { return GetAsFloat() / scale_; }

void TQORBaseCurrEdit::SetAsFloat(Extended value)
{
    Store(value, std::isfinite(value) ? FormatCurrency(value / scale_) : QString(), true);
}

void TQORBaseCurrEdit::SetScaledFloat(Extended amount)
{
    Store(amount * scale_, std::isfinite(amount) ? FormatCurrency(amount) : QString(), true);
}

bool TQORBaseCurrEdit::SetScaledFloat2(Extended amount)
{
    return Store(amount * scale_, text().trimmed(), false);
}

bool TQORBaseCurrEdit::Store(Extended value, const QString& shown, bool redisplay)
{
    if (!std::isfinite(value)) {
        ReportValidationError(ToQString(rsValueNotFinite()));
        return false;
    }
    if (value == value_ && !GetNull()) {
        if (redisplay)
            Redisplay();
        return true;
    }
    pending_ = value;
    if (!DoBoundsValidation()) {
        ReportValidationError(ToQString(FormatMessage(rsValueOutOfBounds(), shown.toStdString())));
        return false;
    }
    const bool wasNull = GetNull();
    StoreValue(value);
    if (redisplay || wasNull)
        Redisplay();
    return true;
}

void TQORBaseCurrEdit::StoreValue(Extended value)
{
    const Extended old = GetNull() ? 0 : value_;
    const bool changed = value != value_ || GetNull();
    const int oldSign = GetSign();
    value_ = value;
    ClearNullQuietly();
    if (changed) {
        Change();
        AmountChanged(old, value);
    }
    if (SignOf(value) != oldSign)
        DoSignChange(SignOf(value));
}

void TQORBaseCurrEdit::AmountChanged(Extended oldValue, Extended newValue)
{
    if (oldValue != newValue)
        Q_EMIT asFloatChanged();
}

bool TQORBaseCurrEdit::AmountInBounds() const
{
    const Extended amount = pending_ / scale_;
    return !(boundLower_ < boundUpper_) || (amount >= boundLower_ && amount <= boundUpper_);
}

bool TQORBaseCurrEdit::DoBoundsValidation() { return AmountInBounds(); }

bool TQORBaseCurrEdit::ConvertWhenUnchanged() const
{
    // The value is what the edit shows: leaving rounds it, unless FullAccuracy keeps it.
    return IsEditing() && !GetNull();
}

void TQORBaseCurrEdit::Convert2Value()
{
    if (GetNull()) {
        value_ = 0;
        return;
    }
    Extended v = 0;
    {
        // The edit's separators and symbol for the parse; the process-wide ones come back
        // when the scopes end, also when the parse throws.
        const TQORSeparatorScope separators(true, DecimalChar(), ThousandChar());
        const CurrencySymbolScope symbol(CurrencySymbol());
        const QString stripped = ToQString(StripCurrencyString(text().toStdString()));
        bool handled = false;
        try {
            if (onConvert_) {
                v = onConvert_(this, stripped);
                handled = true;
            }
            Q_EMIT convert(stripped, &v, &handled);
            if (!handled)
                v = stripped.trimmed().isEmpty() ? 0 : Str2Float(stripped.toStdString());
        } catch (const Exception&) {
            throw;
        } catch (const std::exception& e) {
            // A host's conversion may throw anything: the text is refused all the same.
            throw EConvertError(e.what());
        }
    }
    if (!std::isfinite(v))
        throw EConvertError(rsValueNotFinite());
    const int oldSign = GetSign();
    // With FullAccuracy a value with more digits than shown survives unchanged text.
    if (!fullAccuracy_ || FormatAmount(v) != FormatAmount(value_ / scale_)) {
        if (!SetScaledFloat2(v))
            return;
    }
    // Each conversion reports the sign, changed or not.
    if (SignOf(value_) == oldSign)
        DoSignChange(SignOf(value_));
}

// -- Typing

void TQORBaseCurrEdit::DoThousands()
{
    if (grouping_)
        return;
    grouping_ = true;
    const TQORSeparatorScope separators(true, DecimalChar(), ThousandChar());
    const QString before = text();
    const int caret = cursorPosition();
    QString s = ToQString(StripThousandSeparators(before.toStdString()));
    const char thousands = FormatSettings.ThousandSeparator;
    if (showThousandSeparators_ && thousands != '\0') {
        qsizetype p = s.indexOf(QLatin1Char(FormatSettings.DecimalSeparator));
        if (p < 0)
            p = s.size();
        // Walk left from the decimal separator: every fourth digit in a row gets the
        // separator after it; anything else (a sign, the symbol) starts the count again.
        int count = 0;
        for (qsizetype i = p - 1; i >= 0; --i) {
            const QChar c = s[i];
            count = (c.isDigit() && c.unicode() < 128) ? count + 1 : 0;
            if (count == 4) {
                s.insert(i + 1, QLatin1Char(thousands));
                count = 1;
            }
        }
    }
    if (s != before) {
        // The caret moves by the change in length.
        const qsizetype newCaret
            = std::clamp<qsizetype>(caret + s.size() - before.size(), 0, s.size());
        {
            // Still the user's typing, not a text set from outside: the change is announced
            // below, once the edit is marked modified again. (Replacing the text as an edit
            // would leave an undo step that regroups itself again, so undo could never pass
            // it.)
            const QSignalBlocker quiet(this);
            setText(s);
            setModified(true);
            setCursorPosition(static_cast<int>(newCaret));
        }
        Q_EMIT textChanged(s);
    }
    deselect();
    grouping_ = false;
}

void TQORBaseCurrEdit::KeyDown(QKeyEvent* event)
{
    if (!isReadOnly() && !hasSelectedText()) {
        // A grouping character is not typed by the user: Backspace and Delete pass over it
        // and remove the digit beyond.
        const char thousands = ThousandChar();
        const QString t = text();
        const int caret = cursorPosition();
        if (thousands != '\0' && event->key() == Qt::Key_Backspace && caret > 1
            && t[caret - 1] == QLatin1Char(thousands))
            setCursorPosition(caret - 1);
        else if (thousands != '\0' && event->key() == Qt::Key_Delete && caret + 1 < t.size()
                 && t[caret] == QLatin1Char(thousands))
            setCursorPosition(caret + 1);
    }
    // The keypad's decimal key types the separator in force, whatever the keyboard layout.
    if ((event->modifiers() & Qt::KeypadModifier)
        && (event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma)) {
        if (!isReadOnly()) {
            insert(QString(QLatin1Char(DecimalChar())));
            DoThousands();
        }
        event->accept();
        return;
    }
    TQORStartEdit::KeyDown(event);
}

void TQORBaseCurrEdit::KeyUp(QKeyEvent* event) { TQORStartEdit::KeyUp(event); }

// ---- TQORCurrEdit ----------------------------------------------------------------------------

namespace {

// Whether a stored value rounds into the range of an integer type.
template<class Int> bool FitsIn(Extended value)
{
    const Extended r = std::round(value);
    return r >= static_cast<Extended>(std::numeric_limits<Int>::min())
        && r <= static_cast<Extended>(std::numeric_limits<Int>::max());
}

template<class Int> Int RoundTo(Extended value)
{
    return FitsIn<Int>(value) ? static_cast<Int>(std::round(value)) : Int {};
}

bool FitsInCurrency(Extended value)
{
    try {
        Currency::FromExtended(value);
        return true;
    } catch (const Exception&) {
        return false;
    }
}

Currency ToCurrency(Extended value)
{
    return FitsInCurrency(value) ? Currency::FromExtended(value) : Currency {};
}

} // namespace

TQORCurrEdit::TQORCurrEdit(QWidget* parent) : TQORBaseCurrEdit(parent)
{
    SetMaxDecimals(4);
    SetScale(100);
}

TQORCurrency TQORCurrEdit::GetAsQORCurrency() { return RoundTo<TQORCurrency>(GetAsFloat()); }

Currency TQORCurrEdit::GetAsScaledCurrency() { return ToCurrency(GetScaledFloat()); }

double TQORCurrEdit::GetAsScaledCurrencyDouble()
{
    return static_cast<double>(GetAsScaledCurrency().ToExtended());
}

bool TQORCurrEdit::DoBoundsValidation()
{
    return AmountInBounds() && FitsIn<TQORCurrency>(PendingValue());
}

void TQORCurrEdit::AmountChanged(Extended oldValue, Extended newValue)
{
    TQORBaseCurrEdit::AmountChanged(oldValue, newValue);
    if (RoundTo<TQORCurrency>(oldValue) != RoundTo<TQORCurrency>(newValue))
        Q_EMIT asQORCurrencyChanged();
    if (ToCurrency(oldValue / GetScale()) != ToCurrency(newValue / GetScale()))
        Q_EMIT asScaledCurrencyChanged();
}

// ---- TQORLongCurrEdit ------------------------------------------------------------------------

TQORLongCurrEdit::TQORLongCurrEdit(QWidget* parent) : TQORBaseCurrEdit(parent)
{
    SetMaxDecimals(4);
    SetScale(100);
}

TQORLongCurrency TQORLongCurrEdit::GetAsQORLongCurrency()
{
    return RoundTo<TQORLongCurrency>(GetAsFloat());
}

bool TQORLongCurrEdit::DoBoundsValidation()
{
    return AmountInBounds() && FitsIn<TQORLongCurrency>(PendingValue());
}

void TQORLongCurrEdit::AmountChanged(Extended oldValue, Extended newValue)
{
    TQORBaseCurrEdit::AmountChanged(oldValue, newValue);
    if (RoundTo<TQORLongCurrency>(oldValue) != RoundTo<TQORLongCurrency>(newValue))
        Q_EMIT asQORLongCurrencyChanged();
}

// ---- TQORCurrencyEdit ------------------------------------------------------------------------

TQORCurrencyEdit::TQORCurrencyEdit(QWidget* parent) : TQORBaseCurrEdit(parent)
{
    SetBoundLower(0);
    SetBoundUpper(0);
    SetAsFloat(0);
    SetMaxDecimals(4);
    Redisplay();
}

Currency TQORCurrencyEdit::GetAsCurrency() { return ToCurrency(GetAsFloat()); }

bool TQORCurrencyEdit::DoBoundsValidation()
{
    return AmountInBounds() && FitsInCurrency(PendingValue());
}

void TQORCurrencyEdit::AmountChanged(Extended oldValue, Extended newValue)
{
    TQORBaseCurrEdit::AmountChanged(oldValue, newValue);
    if (ToCurrency(oldValue) != ToCurrency(newValue))
        Q_EMIT asCurrencyChanged();
}

} // namespace qorkit

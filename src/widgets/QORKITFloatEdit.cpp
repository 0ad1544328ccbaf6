#include "QORKITFloatEdit.h"

#include "QORKITExceptions.h"
#include "QORKITExpressions.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace qorkit {

namespace {

constexpr std::string_view kTextContext = "QORKITFloatEdit";

// Significant digits shown when the full value is edited: what an extended value holds
// without noise.
constexpr int FullAccuracyDigits = 18;
constexpr int MaxFullAccuracyDecimals = 60;

TQORExpressionEvaluator& ExpressionEvaluator()
{
    // By default the library's evaluator, in radians; it raises on text it cannot evaluate.
    static TQORExpressionEvaluator evaluator
        = [](const std::string& expression) { return EvaluateStr(expression, false, amRadians); };
    return evaluator;
}

class TQORFloatValidator : public QValidator {
public:
    explicit TQORFloatValidator(TQORFloatEdit* edit) : QValidator(edit), edit_(edit) { }
    State validate(QString& input, int&) const override { return edit_->ValidateText(input); }

private:
    TQORFloatEdit* edit_;
};

int SignOf(Extended v) { return v < 0 ? -1 : (v > 0 ? 1 : 0); }

} // namespace

QORKIT_FLOATEDIT_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> FloatEditTexts()
{
    static constexpr TResourceText texts[] = {QORKIT_FLOATEDIT_TEXTS(QORKIT_LIST_TEXT)};
    return texts;
}

TQORFloatEdit::TQORFloatEdit(QWidget* parent)
    : TQORStartEdit(parent), customDecimal_(FormatSettings.DecimalSeparator),
      customThousands_(FormatSettings.ThousandSeparator)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setValidator(new TQORFloatValidator(this));
    Redisplay();
}

void TQORFloatEdit::SetExpressionEvaluator(TQORExpressionEvaluator evaluator)
{
    ExpressionEvaluator() = std::move(evaluator);
}

template<typename T> void TQORFloatEdit::Restyle(T& field, T value, void (TQORFloatEdit::*signal)())
{
    if (!AssignChanged(field, value))
        return;
    Redisplay();
    (this->*signal)();
}

template<typename T> void TQORFloatEdit::Store(T& field, T value, void (TQORFloatEdit::*signal)())
{
    if (AssignChanged(field, value))
        (this->*signal)();
}

void TQORFloatEdit::SetDecimalPlaces(std::uint8_t value)
{
    Restyle(decimals_, std::min(value, MaxDecimals), &TQORFloatEdit::decimalPlacesChanged);
}

void TQORFloatEdit::SetFullAccuracy(bool value)
{
    Store(fullAccuracy_, value, &TQORFloatEdit::fullAccuracyChanged);
}
void TQORFloatEdit::SetAllowExpressions(bool value)
{
    Store(allowExpressions_, value, &TQORFloatEdit::allowExpressionsChanged);
}
void TQORFloatEdit::SetAllowNegInput(bool value)
{
    Store(allowNegInput_, value, &TQORFloatEdit::allowNegInputChanged);
}
void TQORFloatEdit::SetBoundLower(Extended value)
{
    Store(boundLower_, value, &TQORFloatEdit::boundLowerChanged);
}
void TQORFloatEdit::SetBoundUpper(Extended value)
{
    Store(boundUpper_, value, &TQORFloatEdit::boundUpperChanged);
}

void TQORFloatEdit::SetDecimalPlacesValue(int value)
{
    SetDecimalPlaces(static_cast<std::uint8_t>(std::clamp(value, 0, int {MaxDecimals})));
}

void TQORFloatEdit::SetFullAccuracyEdit(bool value)
{
    Restyle(fullAccuracyEdit_, value, &TQORFloatEdit::fullAccuracyEditChanged);
}
void TQORFloatEdit::SetTrimTrailingZeroes(bool value)
{
    Restyle(trimTrailingZeroes_, value, &TQORFloatEdit::trimTrailingZeroesChanged);
}
void TQORFloatEdit::SetBlankWhenZero(bool value)
{
    Restyle(blankWhenZero_, value, &TQORFloatEdit::blankWhenZeroChanged);
}
void TQORFloatEdit::SetThousandSeparators(TQORThousandSeparators value)
{
    if (value <= tsApostrophe)
        Restyle(thousandSeparators_, value, &TQORFloatEdit::thousandSeparatorsChanged);
}
void TQORFloatEdit::SetShowThousandSeparators(bool value)
{
    Restyle(showThousandSeparators_, value, &TQORFloatEdit::showThousandSeparatorsChanged);
}
void TQORFloatEdit::SetLakhFormatting(bool value)
{
    Restyle(lakhFormatting_, value, &TQORFloatEdit::lakhFormattingChanged);
}
void TQORFloatEdit::SetZeroPad(bool value)
{
    Restyle(zeroPad_, value, &TQORFloatEdit::zeroPadChanged);
}
void TQORFloatEdit::SetNegAsBrackets(bool value)
{
    Restyle(negAsBrackets_, value, &TQORFloatEdit::negAsBracketsChanged);
}
void TQORFloatEdit::SetCustomDecimal(char value)
{
    Restyle(customDecimal_, value, &TQORFloatEdit::customDecimalChanged);
}
void TQORFloatEdit::SetCustomThousands(char value)
{
    Restyle(customThousands_, value, &TQORFloatEdit::customThousandsChanged);
}
void TQORFloatEdit::SetCustomSeparators(bool value)
{
    Restyle(customSeparators_, value, &TQORFloatEdit::customSeparatorsChanged);
}

char EditDecimalChar(bool customSeparators, char customDecimal)
{
    return customSeparators ? customDecimal : FormatSettings.DecimalSeparator;
}

char EditThousandChar(bool customSeparators, char customDecimal, char customThousands,
                      TQORThousandSeparators style)
{
    char c = FormatSettings.ThousandSeparator;
    if (customSeparators)
        c = customThousands;
    else if (style == tsSpace)
        c = ' ';
    else if (style == tsApostrophe)
        c = '\'';
    return c == EditDecimalChar(customSeparators, customDecimal) ? '\0' : c;
}

char TQORFloatEdit::DecimalChar() const
{
    return EditDecimalChar(customSeparators_, customDecimal_);
}

char TQORFloatEdit::ThousandChar() const
{
    return EditThousandChar(customSeparators_, customDecimal_, customThousands_,
                            thousandSeparators_);
}

bool TQORFloatEdit::IsInBounds(Extended value) const
{
    return !(boundLower_ < boundUpper_) || (value >= boundLower_ && value <= boundUpper_);
}

QString TQORFloatEdit::FormatPlain(Extended value, bool forEditing) const
{
    if (blankWhenZero_ && value == 0)
        return {};
    const bool brackets = negAsBrackets_ && value < 0 && !forEditing;
    const Extended shown = brackets ? -value : value;
    const char thousands = ThousandChar();
    const bool grouped = !forEditing && showThousandSeparators_ && thousands != '\0';
    std::string text;
    {
        // The text routines read the separators at each call: give them this edit's.
        TQORSeparatorScope scope(true, DecimalChar(), grouped ? thousands : '\0');
        if (forEditing && fullAccuracyEdit_) {
            int decimals = FullAccuracyDigits;
            if (shown != 0) {
                const int intDigits
                    = static_cast<int>(std::floor(std::log10(std::fabs(shown)))) + 1;
                decimals = std::clamp(FullAccuracyDigits - intDigits, 0, MaxFullAccuracyDecimals);
            }
            text = Float2EStr2(shown, static_cast<std::uint8_t>(decimals));
        } else if (grouped) {
            text = trimTrailingZeroes_ ? Float2CEStr2(shown, decimals_, lakhFormatting_)
                                       : Float2CEStr(shown, decimals_, lakhFormatting_);
        } else {
            text = trimTrailingZeroes_ ? Float2EStr2(shown, decimals_)
                                       : Float2EStr(shown, decimals_);
        }
    }
    if (zeroPad_ && !forEditing && GetMaxLength() > 0) {
        // Zeroes go between the sign and the digits; brackets count towards the length.
        const std::size_t at = (!text.empty() && text[0] == '-') ? 1 : 0;
        const std::size_t wanted = static_cast<std::size_t>(GetMaxLength()) - (brackets ? 2 : 0);
        if (text.size() < wanted)
            text.insert(at, wanted - text.size(), '0');
    }
    if (brackets)
        text = "(" + text + ")";
    return QString::fromStdString(text);
}

QString TQORFloatEdit::FormatValue(Extended value) const { return FormatPlain(value, false); }
QString TQORFloatEdit::DisplayText() const { return FormatPlain(value_, false); }
QString TQORFloatEdit::EditText() const { return FormatPlain(value_, true); }

QValidator::State TQORFloatEdit::ValidateText(const QString& text) const
{
    const QString trimmed = text.trimmed();
    if (GetAllowKbdNull() && !GetNullStr().isEmpty() && !trimmed.isEmpty()
        && GetNullStr().startsWith(trimmed, Qt::CaseInsensitive))
        return trimmed.size() == GetNullStr().size() ? QValidator::Acceptable
                                                     : QValidator::Intermediate;
    if (allowExpressions_ && ExpressionEvaluator())
        return QValidator::Acceptable;

    const QChar dec = QLatin1Char(DecimalChar());
    const char thousandsChar = ThousandChar();
    bool brackets = false;
    bool closed = false;
    bool digits = false; // a digit in the mantissa
    bool separator = false; // the decimal separator was seen
    bool exponent = false; // an exponent mark was seen
    bool exponentDigits = false;
    QChar last;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (closed)
            return QValidator::Invalid; // nothing may follow the closing bracket
        if (c.isDigit() && c.unicode() < 128) {
            (exponent ? exponentDigits : digits) = true;
        } else if (c == QLatin1Char('(') && i == 0) {
            if (!negAsBrackets_ || !allowNegInput_)
                return QValidator::Invalid;
            brackets = true;
        } else if (c == QLatin1Char(')')) {
            if (!brackets || !(exponent ? exponentDigits : digits))
                return QValidator::Invalid;
            closed = true;
        } else if (c == QLatin1Char('-') || c == QLatin1Char('+')) {
            const bool atStart = i == 0 && !brackets;
            const bool afterExponent
                = exponent && (last == QLatin1Char('e') || last == QLatin1Char('E'));
            if (!(atStart || afterExponent)
                || (c == QLatin1Char('-') && atStart && !allowNegInput_))
                return QValidator::Invalid;
        } else if (c == dec) {
            if (separator || exponent)
                return QValidator::Invalid;
            separator = true;
        } else if (thousandsChar != '\0' && c == QLatin1Char(thousandsChar)) {
            if (separator || exponent || !digits)
                return QValidator::Invalid;
        } else if (c == QLatin1Char('e') || c == QLatin1Char('E')) {
            if (exponent || !digits)
                return QValidator::Invalid;
            exponent = true;
        } else {
            return QValidator::Invalid;
        }
        last = c;
    }
    const bool complete = (exponent ? exponentDigits : digits) && (!brackets || closed);
    return complete || text.isEmpty() ? QValidator::Acceptable : QValidator::Intermediate;
}

Extended TQORFloatEdit::Evaluate(const QString& text) const
{
    const Extended v = ExpressionEvaluator()(text.toStdString());
    if (!std::isfinite(v))
        throw EConvertError(rsValueNotFinite());
    return v;
}

Extended TQORFloatEdit::ParseText(const QString& text) const
{
    QString s = text.trimmed();
    if (s.isEmpty())
        return 0;
    bool negate = false;
    if (s.size() >= 2 && s.startsWith(QLatin1Char('(')) && s.endsWith(QLatin1Char(')'))) {
        negate = true;
        s = s.mid(1, s.size() - 2).trimmed();
    }
    const char thousands = ThousandChar();
    if (thousands != '\0') {
        // Grouping characters are only allowed in the integer digits; anywhere else they
        // make the text malformed for the parser below.
        const qsizetype point = s.indexOf(QLatin1Char(DecimalChar()));
        const QString integer = point < 0 ? s : s.left(point);
        s = QString(integer).remove(QLatin1Char(thousands))
            + (point < 0 ? QString() : s.mid(point));
    }
    Extended v = 0;
    bool parsed = false;
    {
        // A grouping character the parser does not know stands in for "none".
        TQORSeparatorScope scope(true, DecimalChar(), DecimalChar() == ',' ? '.' : ',');
        parsed = TryStr2Float(s.toStdString(), v) && std::isfinite(v);
    }
    if (!parsed) {
        if (allowExpressions_ && ExpressionEvaluator())
            return Evaluate(text);
        throw EConvertError(FormatMessage(rsInvalidFloat(), text.toStdString()));
    }
    return negate ? -v : v;
}

Extended TQORFloatEdit::GetValue()
{
    if (IsEditing() && isModified())
        ValidateEdit();
    return GetNull() ? 0 : value_;
}

void TQORFloatEdit::StoreValue(Extended value)
{
    const bool changed = value != value_ || GetNull();
    const int oldSign = GetSign();
    value_ = value;
    ClearNullQuietly();
    Redisplay();
    if (changed) {
        Q_EMIT asFloatChanged();
        Change();
    }
    if (SignOf(value) != oldSign)
        DoSignChange(SignOf(value));
}

void TQORFloatEdit::SetValue(Extended value)
{
    if (!std::isfinite(value)) {
        ReportValidationError(QString::fromStdString(rsValueNotFinite()));
        return;
    }
    if (value == value_ && !GetNull())
        return;
    pending_ = value;
    if (!DoBoundsValidation()) {
        ReportValidationError(QString::fromStdString(
            FormatMessage(rsValueOutOfBounds(), FormatValue(value).toStdString())));
        return;
    }
    StoreValue(value);
}

bool TQORFloatEdit::DoBoundsValidation() { return IsInBounds(pending_); }

bool TQORFloatEdit::ConvertWhenUnchanged() const
{
    // Without FullAccuracy the value is what the edit shows: leaving rounds it.
    return !fullAccuracy_ && IsEditing() && !GetNull();
}

void TQORFloatEdit::Convert2Value()
{
    const QString typed = text();
    Extended v = ParseText(typed);
    if (fullAccuracy_ && !GetNull() && FormatPlain(v, true) == FormatPlain(value_, true))
        v = value_; // the shown digits were not changed: keep every digit of the value
    pending_ = v;
    if (!DoBoundsValidation()) {
        ReportValidationError(QString::fromStdString(
            FormatMessage(rsValueOutOfBounds(), typed.trimmed().toStdString())));
        return;
    }
    const int oldSign = GetSign();
    StoreValue(v);
    // Typed text always reports its sign, changed or not.
    if (SignOf(v) == oldSign)
        DoSignChange(SignOf(v));
}

void TQORFloatEdit::KeyDown(QKeyEvent* event)
{
    // The keypad's decimal key types the separator in force, whatever the keyboard layout.
    if ((event->modifiers() & Qt::KeypadModifier)
        && (event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma)) {
        if (!isReadOnly())
            insert(QString(QLatin1Char(DecimalChar())));
        event->accept();
        return;
    }
    TQORStartEdit::KeyDown(event);
}

} // namespace qorkit

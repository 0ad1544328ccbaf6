#include "QORKITDMSEdit.h"

#include "QORKITExceptions.h"
#include "QORKITFloatEdit.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"

#include <algorithm>
#include <cmath>

namespace qorkit {

namespace {

enum Unit { uDegrees = 0, uMinutes = 1, uSeconds = 2 };
// Units of each kind in one degree.
constexpr Extended kPerDegree[] = {1, 60, 3600};

// The process-wide marks of degrees, minutes and seconds, in unit order.
std::string TFormatSettings::*const kMarkFields[]
    = {&TFormatSettings::DegreeSign, &TFormatSettings::MinuteSign, &TFormatSettings::SecondSign};

// Puts an edit's unit marks into the process-wide settings for the life of the object and
// the old ones back afterwards, also when the text routines throw.
class TAngleMarkScope {
public:
    explicit TAngleMarkScope(const QString (&marks)[3])
    {
        for (int u = uDegrees; u <= uSeconds; ++u) {
            saved_[u] = FormatSettings.*kMarkFields[u];
            FormatSettings.*kMarkFields[u] = marks[u].toStdString();
        }
    }
    ~TAngleMarkScope()
    {
        for (int u = uDegrees; u <= uSeconds; ++u)
            FormatSettings.*kMarkFields[u] = std::move(saved_[u]);
    }
    TAngleMarkScope(const TAngleMarkScope&) = delete;
    TAngleMarkScope& operator=(const TAngleMarkScope&) = delete;

private:
    std::string saved_[3];
};

int SignOf(Extended v) { return v < 0 ? -1 : (v > 0 ? 1 : 0); }

} // namespace

TQORDMSEdit::TQORDMSEdit(QWidget* parent)
    : TQORStartEdit(parent), customDecimal_(FormatSettings.DecimalSeparator)
{
    for (int u = uDegrees; u <= uSeconds; ++u)
        suffixes_[u] = QString::fromStdString(FormatSettings.*kMarkFields[u]);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Redisplay();
}

template<typename Work> auto TQORDMSEdit::WithEditFormat(Work work) const
{
    TAngleMarkScope marks(suffixes_);
    const char decimal = customSeparators_ ? customDecimal_ : FormatSettings.DecimalSeparator;
    TQORSeparatorScope separators(customSeparators_, decimal, decimal == ',' ? '.' : ',');
    return work();
}

// ---- The angle -----------------------------------------------------------------------------

void TQORDMSEdit::NotifyValue()
{
    Q_EMIT asDegreesChanged();
    Q_EMIT asMinsChanged();
    Q_EMIT asSecsChanged();
    Q_EMIT asDMSChanged();
}

Extended TQORDMSEdit::GetDegrees()
{
    if (IsEditing() && isModified())
        ValidateEdit();
    return GetNull() ? 0 : value_;
}

void TQORDMSEdit::SetDegrees(Extended D)
{
    if (D == value_ && !GetNull())
        return;
    if (!std::isfinite(D)) {
        ReportValidationError(QString::fromStdString(rsValueNotFinite()));
        return;
    }
    const int oldSign = GetSign();
    value_ = D;
    ClearNullQuietly();
    Redisplay();
    NotifyValue();
    Change();
    if (SignOf(D) != oldSign)
        DoSignChange(SignOf(D));
}

double TQORDMSEdit::GetMins() { return static_cast<double>(GetDegrees() * kPerDegree[uMinutes]); }
double TQORDMSEdit::GetSecs() { return static_cast<double>(GetDegrees() * kPerDegree[uSeconds]); }
void TQORDMSEdit::SetMins(double M) { SetDegrees(M / kPerDegree[uMinutes]); }
void TQORDMSEdit::SetSecs(double S) { SetDegrees(S / kPerDegree[uSeconds]); }

QString TQORDMSEdit::GetDMS()
{
    const Extended degrees = GetDegrees();
    return GetNull() ? QString() : DisplayDMS(degrees);
}

void TQORDMSEdit::SetDMS(const QString& S) { SetAsString(S); }

void TQORDMSEdit::AddUnits(Extended X, Extended factor)
{
    const Extended sum = value_ + X * factor;
    if (!std::isfinite(sum)) {
        ReportValidationError(QString::fromStdString(rsValueNotFinite()));
        return;
    }
    if (sum == value_)
        return;
    value_ = sum;
    Redisplay();
    NotifyValue();
}

// The minutes and seconds are multiplied in, not divided: AddMinutes(1) adds 60 degrees.
// Intended.
void TQORDMSEdit::AddDegrees(Extended X) { AddUnits(X, kPerDegree[uDegrees]); }
void TQORDMSEdit::AddMinutes(Extended X) { AddUnits(X, kPerDegree[uMinutes]); }
void TQORDMSEdit::AddSeconds(Extended X) { AddUnits(X, kPerDegree[uSeconds]); }

void TQORDMSEdit::SetDMSType(TQORDMSType T)
{
    if (T == dmsType_ || T > dmsDegreesMinutesSeconds)
        return;
    // Text being typed is taken over in the old units; then only the text changes.
    const Extended degrees = GetDegrees();
    dmsType_ = T;
    if (!GetNull())
        SetDegrees(degrees);
    Redisplay();
    Q_EMIT dmsTypeChanged();
    Q_EMIT asDMSChanged();
}

void TQORDMSEdit::SetLastDMSType(TQORDMSType T)
{
    if (T == dmsType_ || T > dmsDegreesMinutesSeconds)
        return;
    dmsType_ = T;
    Redisplay();
    Q_EMIT dmsTypeChanged();
    Q_EMIT asDMSChanged();
}

// ---- Text ----------------------------------------------------------------------------------

QString TQORDMSEdit::DisplayDMS(Extended Value) const
{
    const std::uint8_t decimals = dmsType_ == dmsDegrees ? decimalsFloat_ : decimals_;
    return QString::fromStdString(WithEditFormat([&] {
        return Float2DMSStr(Value, dmsType_, decimals, leadingZeroes_, spaceUnits_,
                            trimTrailingZeroes_);
    }));
}

QString TQORDMSEdit::DisplayText() const
{
    if (blankWhenZero_ && value_ == 0)
        return {};
    return DisplayDMS(value_);
}

void TQORDMSEdit::Convert2Value()
{
    // EConvertError for text that is no angle goes to the base edit, which keeps the old
    // angle and reports it.
    const std::string typed = text().toStdString();
    const Extended degrees = WithEditFormat([&] { return DMSStr2Float(typed); });
    const int oldSign = GetSign();
    SetDegrees(degrees);
    // Typed text always reports its sign, changed or not.
    if (SignOf(degrees) == oldSign)
        DoSignChange(SignOf(degrees));
}

bool TQORDMSEdit::ConvertWhenUnchanged() const
{
    // Without FullAccuracy the angle is what the edit shows: leaving rounds it.
    return !fullAccuracy_ && IsEditing() && !GetNull();
}

// ---- Settings ------------------------------------------------------------------------------

template<typename T> void TQORDMSEdit::Restyle(T& field, T value, Signal changed)
{
    if (field == value)
        return;
    field = value;
    Redisplay();
    Q_EMIT(this->*changed)();
    Q_EMIT asDMSChanged();
}

void TQORDMSEdit::SetFullAccuracy(bool value)
{
    if (fullAccuracy_ == value)
        return;
    fullAccuracy_ = value;
    Q_EMIT fullAccuracyChanged();
}

void TQORDMSEdit::SetBlankWhenZero(bool value)
{
    Restyle(blankWhenZero_, value, &TQORDMSEdit::blankWhenZeroChanged);
}

void TQORDMSEdit::SetSpaceUnits(bool value)
{
    Restyle(spaceUnits_, value, &TQORDMSEdit::spaceUnitsChanged);
}

void TQORDMSEdit::SetLeadingZeroes(bool value)
{
    Restyle(leadingZeroes_, value, &TQORDMSEdit::leadingZeroesChanged);
}

void TQORDMSEdit::SetDecimalPlaces(std::uint8_t value)
{
    Restyle(decimals_, std::min(value, TQORFloatEdit::MaxDecimals),
            &TQORDMSEdit::decimalPlacesChanged);
}

void TQORDMSEdit::SetDecimalPlacesValue(int value)
{
    SetDecimalPlaces(
        static_cast<std::uint8_t>(std::clamp(value, 0, int {TQORFloatEdit::MaxDecimals})));
}

void TQORDMSEdit::SetDecimalPlacesFloat(std::uint8_t value)
{
    Restyle(decimalsFloat_, std::min(value, TQORFloatEdit::MaxDecimals),
            &TQORDMSEdit::decimalPlacesFloatChanged);
}

void TQORDMSEdit::SetDecimalPlacesFloatValue(int value)
{
    SetDecimalPlacesFloat(
        static_cast<std::uint8_t>(std::clamp(value, 0, int {TQORFloatEdit::MaxDecimals})));
}

void TQORDMSEdit::SetTrimTrailingZeroes(bool value)
{
    Restyle(trimTrailingZeroes_, value, &TQORDMSEdit::trimTrailingZeroesChanged);
}

void TQORDMSEdit::SetCustomDecimal(char value)
{
    // A digit, a blank or a sign cannot separate decimals.
    if (value == '\0' || value == ' ' || value == '-' || value == '+'
        || (value >= '0' && value <= '9'))
        return;
    Restyle(customDecimal_, value, &TQORDMSEdit::customDecimalChanged);
}

void TQORDMSEdit::SetCustomSeparators(bool value)
{
    Restyle(customSeparators_, value, &TQORDMSEdit::customSeparatorsChanged);
}

void TQORDMSEdit::SetSuffix(int unit, const QString& value)
{
    static constexpr Signal kChanged[]
        = {&TQORDMSEdit::suffixDegreesChanged, &TQORDMSEdit::suffixMinsChanged,
           &TQORDMSEdit::suffixSecsChanged};
    Restyle(suffixes_[unit], value, kChanged[unit]);
}

void TQORDMSEdit::SetSuffixDegrees(const QString& value) { SetSuffix(uDegrees, value); }
void TQORDMSEdit::SetSuffixMins(const QString& value) { SetSuffix(uMinutes, value); }
void TQORDMSEdit::SetSuffixSecs(const QString& value) { SetSuffix(uSeconds, value); }

} // namespace qorkit

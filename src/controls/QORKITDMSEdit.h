// TQORDMSEdit: an edit for an angle shown as degrees, minutes and seconds ("12° 30' 45.00\"").
//
// The angle is kept as one number of degrees and read back in any unit: AsDegrees, AsMins
// (degrees x 60), AsSecs (degrees x 3600), or AsDMS, the text. DMSType chooses the units the
// text shows (dmsDegrees "12.51°", dmsDegreesMinutes "12° 30.75'", dmsDegreesMinutesSeconds
// "12° 30' 45\""); the last unit has DecimalPlaces decimals (DecimalPlacesFloat when the text
// is degrees alone). LeadingZeroes pads minutes and seconds to two digits, SpaceUnits puts a
// blank between the units, TrimTrailingZeroes drops zero decimals. The unit marks are the
// edit's own SuffixDegrees, SuffixMins and SuffixSecs, and with CustomSeparators the decimal
// separator is CustomDecimal.
//
// The user may type any of those texts, or numbers separated by blanks ("12 30 45"). Text
// that is no angle is refused: the old angle stays and OnValidationError gets the reason.
// With FullAccuracy off, leaving the edit makes the value what the text shows.
//
// Hosts that save the edit's properties save SuffixDegrees, SuffixMins and SuffixSecs only
// when they differ from the library's marks, and CustomDecimal only with CustomSeparators.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <cstdint>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORDMSEdit : public TQORStartEdit {
    Q_OBJECT
    Q_PROPERTY(
        bool FullAccuracy READ GetFullAccuracy WRITE SetFullAccuracy NOTIFY fullAccuracyChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(bool SpaceUnits READ GetSpaceUnits WRITE SetSpaceUnits NOTIFY spaceUnitsChanged)
    Q_PROPERTY(
        bool LeadingZeroes READ GetLeadingZeroes WRITE SetLeadingZeroes NOTIFY leadingZeroesChanged)
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(int DecimalPlacesFloat READ GetDecimalPlacesFloatValue WRITE
                   SetDecimalPlacesFloatValue NOTIFY decimalPlacesFloatChanged)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes NOTIFY
                   trimTrailingZeroesChanged)
    Q_PROPERTY(QChar CustomDecimal READ GetCustomDecimalChar WRITE SetCustomDecimalChar NOTIFY
                   customDecimalChanged)
    Q_PROPERTY(bool CustomSeparators READ GetCustomSeparators WRITE SetCustomSeparators NOTIFY
                   customSeparatorsChanged)
    Q_PROPERTY(
        double AsDegrees READ GetDegreesDouble WRITE SetDegreesDouble NOTIFY asDegreesChanged)
    Q_PROPERTY(QString AsDMS READ GetDMS WRITE SetDMS NOTIFY asDMSChanged STORED false)
    Q_PROPERTY(double AsMins READ GetMins WRITE SetMins NOTIFY asMinsChanged STORED false)
    Q_PROPERTY(double AsSecs READ GetSecs WRITE SetSecs NOTIFY asSecsChanged STORED false)
    Q_PROPERTY(qorkit::TQORDMSType DMSType READ GetDMSType WRITE SetDMSType NOTIFY dmsTypeChanged)
    Q_PROPERTY(QString SuffixDegrees READ GetSuffixDegrees WRITE SetSuffixDegrees NOTIFY
                   suffixDegreesChanged)
    Q_PROPERTY(QString SuffixMins READ GetSuffixMins WRITE SetSuffixMins NOTIFY suffixMinsChanged)
    Q_PROPERTY(QString SuffixSecs READ GetSuffixSecs WRITE SetSuffixSecs NOTIFY suffixSecsChanged)

public:
    explicit TQORDMSEdit(QWidget* parent = nullptr);

    // The angle in degrees, brought up to date from text being typed; 0 while null.
    Extended GetDegrees();
    // Stores D and leaves the null state; an equal value on a non-null edit does nothing.
    // NaN and infinities are refused and reported.
    void SetDegrees(Extended D);
    // The angle in minutes (degrees x 60) and seconds (degrees x 3600).
    double GetMins();
    void SetMins(double M);
    double GetSecs();
    void SetSecs(double S);
    // The angle as the edit shows it (empty while null).
    QString GetDMS();
    // Takes S over as if typed: an angle text, or the null string.
    void SetDMS(const QString& S);

    TQORDMSType GetDMSType() const { return dmsType_; }
    // Shows the same angle in other units.
    void SetDMSType(TQORDMSType T);
    // Stores the units without taking text being typed over first (for restoring state).
    void SetLastDMSType(TQORDMSType T);

    // Add to the angle without leaving the null state and without a change notice.
    // AddMinutes multiplies by 60 and AddSeconds by 3600: AddMinutes(1) adds 60 degrees.
    void AddDegrees(Extended X);
    void AddMinutes(Extended X);
    void AddSeconds(Extended X);

    bool GetFullAccuracy() const { return fullAccuracy_; }
    void SetFullAccuracy(bool value);
    bool GetBlankWhenZero() const { return blankWhenZero_; }
    void SetBlankWhenZero(bool value);
    bool GetSpaceUnits() const { return spaceUnits_; }
    void SetSpaceUnits(bool value);
    bool GetLeadingZeroes() const { return leadingZeroes_; }
    void SetLeadingZeroes(bool value);
    // At most 18.
    std::uint8_t GetDecimalPlaces() const { return decimals_; }
    void SetDecimalPlaces(std::uint8_t value);
    std::uint8_t GetDecimalPlacesFloat() const { return decimalsFloat_; }
    void SetDecimalPlacesFloat(std::uint8_t value);
    bool GetTrimTrailingZeroes() const { return trimTrailingZeroes_; }
    void SetTrimTrailingZeroes(bool value);
    // Default: the locale's decimal separator when the edit was made.
    char GetCustomDecimal() const { return customDecimal_; }
    void SetCustomDecimal(char value);
    bool GetCustomSeparators() const { return customSeparators_; }
    void SetCustomSeparators(bool value);
    // Default: the library's degree, minute and second marks when the edit was made.
    QString GetSuffixDegrees() const { return suffixes_[0]; }
    void SetSuffixDegrees(const QString& value);
    QString GetSuffixMins() const { return suffixes_[1]; }
    void SetSuffixMins(const QString& value);
    QString GetSuffixSecs() const { return suffixes_[2]; }
    void SetSuffixSecs(const QString& value);

Q_SIGNALS:
    void fullAccuracyChanged();
    void blankWhenZeroChanged();
    void spaceUnitsChanged();
    void leadingZeroesChanged();
    void decimalPlacesChanged();
    void decimalPlacesFloatChanged();
    void trimTrailingZeroesChanged();
    void customDecimalChanged();
    void customSeparatorsChanged();
    void asDegreesChanged();
    void asDMSChanged();
    void asMinsChanged();
    void asSecsChanged();
    void dmsTypeChanged();
    void suffixDegreesChanged();
    void suffixMinsChanged();
    void suffixSecsChanged();

protected:
    QString DisplayText() const override;
    // The text of `Value` in the edit's units, marks and separators.
    QString DisplayDMS(Extended Value) const;
    void Convert2Value() override;
    bool ConvertWhenUnchanged() const override;

private:
    using Signal = void (TQORDMSEdit::*)();
    int GetDecimalPlacesValue() const { return decimals_; }
    void SetDecimalPlacesValue(int value);
    int GetDecimalPlacesFloatValue() const { return decimalsFloat_; }
    void SetDecimalPlacesFloatValue(int value);
    QChar GetCustomDecimalChar() const { return QLatin1Char(customDecimal_); }
    void SetCustomDecimalChar(QChar value) { SetCustomDecimal(value.toLatin1()); }
    double GetDegreesDouble() { return static_cast<double>(GetDegrees()); }
    void SetDegreesDouble(double value) { SetDegrees(value); }
    // Sets a display setting, shows the angle in the new form and signals both.
    template<typename T> void Restyle(T& field, T value, Signal changed);
    void SetSuffix(int unit, const QString& value);
    void AddUnits(Extended X, Extended factor);
    // Runs `work` with the edit's marks and decimal separator in the process-wide settings.
    template<typename Work> auto WithEditFormat(Work work) const;
    void NotifyValue();

    Extended value_ = 0;
    TQORDMSType dmsType_ = dmsDegreesMinutes;
    bool fullAccuracy_ = false;
    bool blankWhenZero_ = false;
    bool spaceUnits_ = true;
    bool leadingZeroes_ = false;
    std::uint8_t decimals_ = 2;
    std::uint8_t decimalsFloat_ = 2;
    bool trimTrailingZeroes_ = false;
    char customDecimal_;
    bool customSeparators_ = false;
    QString suffixes_[3]; // degrees, minutes, seconds
};

} // namespace qorkit

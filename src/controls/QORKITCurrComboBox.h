// A drop-down list of the twelve union currencies, numbered 1 to 12 in table order. EMU is
// the selected number (0: none); EMUFormat chooses whether the list shows the numbers, the
// codes or the country texts. Choosing an item in the list selects its currency.
#pragma once

#include "QORKITBaseControls.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <QString>

#include <algorithm>
#include <cstdint>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQOREMUComboBox : public TQORBaseComboBox {
    Q_OBJECT
    Q_PROPERTY(int EMU READ GetEMU WRITE SetEMUValue NOTIFY emuChanged)
    Q_PROPERTY(qorkit::TQOREMUFormatType EMUFormat READ GetEMUFormat WRITE SetEMUFormat NOTIFY
                   emuFormatChanged)
    Q_PROPERTY(
        QString EMUShort READ GetEMUShort WRITE SetEMUShort NOTIFY emuShortChanged STORED false)
    Q_PROPERTY(QString EMULong READ GetEMULong WRITE SetEMULong NOTIFY emuLongChanged STORED false)
    Q_PROPERTY(double EMURate READ GetEMURateDouble NOTIFY emuRateChanged STORED false)

public:
    explicit TQOREMUComboBox(QWidget* parent = nullptr);

    // 0 none, 1 to 12 the currency number.
    std::uint8_t GetEMU() const { return emu_; }
    // A number above 12 selects none.
    void SetEMU(std::uint8_t value);
    TQOREMUFormatType GetEMUFormat() const { return format_; }
    // Reloads the list in the new format; a value outside the type is ignored.
    void SetEMUFormat(TQOREMUFormatType value);
    // The code of the selected currency; empty when none.
    QString GetEMUShort() const;
    // Selects the currency of a code (any letter case); an unknown code selects none.
    void SetEMUShort(const QString& value);
    // The country text of the selected currency; empty when none.
    QString GetEMULong() const;
    // Selects the first currency whose country text occurs in `value`; otherwise none.
    void SetEMULong(const QString& value);
    // Units per euro of the selected currency; 0 when none.
    Extended GetEMURate() const;

    // The items of each format, in table order.
    static QStringList EMU2List();
    static QStringList ShortEMU2List();
    static QStringList LongEMU2List();
    // The text shown for the selection in the present format: the code, the country text, or
    // the number (empty for none).
    QString GetDisplayText() const;

Q_SIGNALS:
    void emuChanged();
    void emuFormatChanged();
    void emuShortChanged();
    void emuLongChanged();
    void emuRateChanged();

protected:
    QStringList ListItems() const override;
    void DisplayText() override;
    // The chosen item's row is the currency number less one.
    void Change() override;

private:
    void SetEMUValue(int value) { SetEMU(static_cast<std::uint8_t>(std::clamp(value, 0, 255))); }
    double GetEMURateDouble() const { return static_cast<double>(GetEMURate()); }

    std::uint8_t emu_ = 0;
    TQOREMUFormatType format_ = efNumber;
};

} // namespace qorkit

#include "QORKITCurrComboBox.h"

#include "QORKITCurrency.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace qorkit {

namespace {

QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The list of one field of every currency, in table order.
template<class Field> QStringList CurrencyList(Field field)
{
    QStringList items;
    int number = 0;
    for (const TQOREMUCurrency& currency : EMUCurrencies())
        items << field(currency, ++number);
    return items;
}

const TQOREMUCurrency* Selected(std::uint8_t emu)
{
    const auto table = EMUCurrencies();
    return emu >= 1 && emu <= table.size() ? &table[emu - 1u] : nullptr;
}

} // namespace

TQOREMUComboBox::TQOREMUComboBox(QWidget* parent) : TQORBaseComboBox(parent) { LoadItems(); }

void TQOREMUComboBox::SetEMU(std::uint8_t value)
{
    if (value > EMUCurrencies().size())
        value = 0;
    if (value == emu_) {
        DisplayText();
        return;
    }
    emu_ = value;
    DisplayText();
    for (auto signal : {&TQOREMUComboBox::emuChanged, &TQOREMUComboBox::emuShortChanged,
                        &TQOREMUComboBox::emuLongChanged, &TQOREMUComboBox::emuRateChanged})
        (this->*signal)();
}

void TQOREMUComboBox::SetEMUFormat(TQOREMUFormatType value)
{
    if (value > efCountry || value == format_)
        return;
    format_ = value;
    LoadItems();
    Q_EMIT emuFormatChanged();
}

QString TQOREMUComboBox::GetEMUShort() const
{
    const TQOREMUCurrency* currency = Selected(emu_);
    return currency != nullptr ? Text(currency->Code) : QString();
}

void TQOREMUComboBox::SetEMUShort(const QString& value)
{
    SetEMU(static_cast<std::uint8_t>(EMUCode2EMUNo(value.toStdString())));
}

QString TQOREMUComboBox::GetEMULong() const
{
    const TQOREMUCurrency* currency = Selected(emu_);
    return currency != nullptr ? Text(currency->Country) : QString();
}

void TQOREMUComboBox::SetEMULong(const QString& value)
{
    SetEMU(static_cast<std::uint8_t>(EMUCountry2EMUNo(value.toStdString())));
}

Extended TQOREMUComboBox::GetEMURate() const
{
    const TQOREMUCurrency* currency = Selected(emu_);
    return currency != nullptr ? currency->Rate : 0;
}

QStringList TQOREMUComboBox::EMU2List()
{
    return CurrencyList([](const TQOREMUCurrency&, int number) { return QString::number(number); });
}

QStringList TQOREMUComboBox::ShortEMU2List()
{
    return CurrencyList([](const TQOREMUCurrency& currency, int) { return Text(currency.Code); });
}

QStringList TQOREMUComboBox::LongEMU2List()
{
    return CurrencyList(
        [](const TQOREMUCurrency& currency, int) { return Text(currency.Country); });
}

QStringList TQOREMUComboBox::ListItems() const
{
    switch (format_) {
    case efCode:
        return ShortEMU2List();
    case efCountry:
        return LongEMU2List();
    default:
        return EMU2List();
    }
}

QString TQOREMUComboBox::GetDisplayText() const
{
    switch (format_) {
    case efCode:
        return GetEMUShort();
    case efCountry:
        return GetEMULong();
    default:
        return emu_ == 0 ? QString() : QString::number(emu_);
    }
}

void TQOREMUComboBox::DisplayText()
{
    setCurrentIndex(static_cast<int>(emu_) - 1);
    if (isEditable())
        setEditText(GetDisplayText());
}

void TQOREMUComboBox::Change()
{
    SetEMU(static_cast<std::uint8_t>(std::max(currentIndex() + 1, 0)));
    TQORBaseComboBox::Change();
}

} // namespace qorkit

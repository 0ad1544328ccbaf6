#include "QORKITConvertors.h"

#include "QORKITExceptions.h"
#include "QORKITResource.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace qorkit {

// ---- TQORUnitList ------------------------------------------------------------------------------

QString TQORUnitList::Name(int index) const
{
    return index >= 0 && index < Count() ? items_[static_cast<std::size_t>(index)].Name : QString();
}

int TQORUnitList::Ordinal(int index) const
{
    return index >= 0 && index < Count() ? items_[static_cast<std::size_t>(index)].Ordinal : -1;
}

int TQORUnitList::IndexOfOrdinal(int ordinal) const
{
    const auto it = std::find_if(items_.begin(), items_.end(), [ordinal](const TQORUnitItem& item) {
        return item.Ordinal == ordinal;
    });
    return it == items_.end() ? -1 : static_cast<int>(it - items_.begin());
}

QStringList TQORUnitList::Names() const
{
    QStringList names;
    names.reserve(Count());
    for (const auto& item : items_)
        names.append(item.Name);
    return names;
}

void TQORUnitList::FillComboBox(QComboBox* box, int currentOrdinal) const
{
    if (box == nullptr)
        return;
    const QSignalBlocker blocker(box);
    box->clear();
    for (const auto& item : items_)
        box->addItem(item.Name, item.Ordinal);
    const int index = IndexOfOrdinal(currentOrdinal);
    box->setCurrentIndex(index >= 0 ? index : (IsEmpty() ? -1 : 0));
}

// ---- TQORBaseConvertor -------------------------------------------------------------------------

TQORBaseConvertor::TQORBaseConvertor(QObject* owner) : QObject(owner) { }

TQORBaseConvertor::TQORBaseConvertor(QObject* owner, TQORConvType quantity, const char* keyPrefix)
    : QObject(owner), quantity_(quantity), prefix_(QString::fromLatin1(keyPrefix)),
      hidden_(UnitCount(quantity), false)
{ }

TQORBaseConvertor::~TQORBaseConvertor()
{
    if (storeCtrl_)
        storeCtrl_->RemoveFromNotifyList(this);
}

int TQORBaseConvertor::GetNoUnits() const { return static_cast<int>(hidden_.size()); }

int TQORBaseConvertor::GetNoHiddenUnits() const
{
    return static_cast<int>(std::count(hidden_.begin(), hidden_.end(), true));
}

void TQORBaseConvertor::SetValueIn(Extended value)
{
    // The comparison is exact on purpose: only a value that differs in any bit converts.
    if (value == valueIn_)
        return;
    if (!std::isfinite(value))
        throw EInvalidOp(rsInvalidOperation());
    valueIn_ = value;
    Q_EMIT valueInChanged(static_cast<double>(valueIn_));
    DoConversion();
}

void TQORBaseConvertor::SetUnitsIn(int unit)
{
    ChangeUnit(unitsIn_, unit, &TQORBaseConvertor::UnitsInChanged);
}

void TQORBaseConvertor::SetUnitsOut(int unit)
{
    ChangeUnit(unitsOut_, unit, &TQORBaseConvertor::UnitsOutChanged);
}

void TQORBaseConvertor::ChangeUnit(int& current, int unit, void (TQORBaseConvertor::*changed)())
{
    if (!IsUnit(unit) || unit == current)
        return;
    current = unit;
    (this->*changed)(); // the unit holds its new value even when the conversion raises
    DoConversion();
}

void TQORBaseConvertor::DoConversion()
{
    if (hidden_.empty())
        return;
    // ConvertUnits goes through the base unit of the quantity and raises on a value that is
    // below absolute zero, a zero fuel figure or a result that is not finite; the exception
    // leaves here before ValueOut is touched.
    const Extended result = ConvertUnits(quantity_, static_cast<std::size_t>(unitsIn_),
                                         static_cast<std::size_t>(unitsOut_), valueIn_);
    if (result == valueOut_)
        return;
    valueOut_ = result;
    Q_EMIT valueOutChanged(static_cast<double>(valueOut_));
}

TQORUnitList TQORBaseConvertor::UnitList(bool includeHidden) const
{
    TQORUnitList list;
    for (int unit = 0; unit < GetNoUnits(); ++unit) {
        if (includeHidden || !IsHidden(unit))
            list.Append(QString::fromStdString(UnitName(quantity_, static_cast<std::size_t>(unit))),
                        unit);
    }
    return list;
}

bool TQORBaseConvertor::IsHidden(int unit) const
{
    return IsUnit(unit) && hidden_[static_cast<std::size_t>(unit)];
}

void TQORBaseConvertor::SetHidden(int unit, bool hidden)
{
    if (!IsUnit(unit) || IsHidden(unit) == hidden)
        return;
    const int oldCount = GetNoHiddenUnits();
    hidden_[static_cast<std::size_t>(unit)] = hidden;
    HiddenFlagsChanged(oldCount);
}

void TQORBaseConvertor::Hide(int unit) { SetHidden(unit, true); }

void TQORBaseConvertor::UnHide(int unit) { SetHidden(unit, false); }

void TQORBaseConvertor::UnHideAll()
{
    const int oldCount = GetNoHiddenUnits();
    if (oldCount == 0)
        return;
    std::fill(hidden_.begin(), hidden_.end(), false);
    HiddenFlagsChanged(oldCount);
}

void TQORBaseConvertor::HiddenFlagsChanged(int oldCount)
{
    if (GetNoHiddenUnits() != oldCount)
        Q_EMIT noHiddenUnitsChanged(GetNoHiddenUnits());
    Q_EMIT hiddenUnitsChanged();
}

bool TQORBaseConvertor::StoreUsable() const
{
    return storeCtrl_ && storeCtrl_->GetRegIniType() != ritNone && !hidden_.empty();
}

void TQORBaseConvertor::LoadFromStore()
{
    if (!StoreUsable() || !storeCtrl_->OpenStorage())
        return;
    const std::vector<bool> old = hidden_;
    const int oldCount = GetNoHiddenUnits();
    for (std::size_t unit = 0; unit < hidden_.size(); ++unit)
        hidden_[unit] = storeCtrl_->ReadBoolean(prefix_ + QString::number(unit), false);
    storeCtrl_->CloseStorage();
    if (hidden_ != old)
        HiddenFlagsChanged(oldCount);
}

void TQORBaseConvertor::SaveToStore()
{
    if (!StoreUsable() || !storeCtrl_->OpenStorage())
        return;
    for (std::size_t unit = 0; unit < hidden_.size(); ++unit)
        storeCtrl_->WriteBoolean(prefix_ + QString::number(unit), hidden_[unit]);
    storeCtrl_->CloseStorage();
}

void TQORBaseConvertor::SetStoreCtrl(TQORStoreCtrl* value)
{
    if (value == storeCtrl_.data())
        return;
    if (storeCtrl_)
        storeCtrl_->RemoveFromNotifyList(this);
    storeCtrl_ = value;
    if (storeCtrl_)
        storeCtrl_->AddToNotifyList(this);
    Q_EMIT storeCtrlChanged(value);
}

void TQORBaseConvertor::Notification(QObject* component, TQOROperation operation)
{
    if (operation == opRemove && component != nullptr && component == storeCtrl_.data())
        SetStoreCtrl(nullptr);
}

// ---- The concrete convertors -------------------------------------------------------------------

#define QORKIT_CONVERTOR_CONSTRUCTOR(Class, Enum, prefix)                                          \
    Class::Class(QObject* owner) : TQORBaseConvertor(owner, QuantityOf(Enum {}), prefix) { }
QORKIT_CONVERTOR_LIST(QORKIT_CONVERTOR_CONSTRUCTOR)
#undef QORKIT_CONVERTOR_CONSTRUCTOR

TQORBaseConvertor* CreateConvertor(TQORConvType quantity, QObject* owner)
{
#define QORKIT_CONVERTOR_CASE(Class, Enum, prefix)                                                 \
    if (quantity == QuantityOf(Enum {}))                                                           \
        return new Class(owner);
    QORKIT_CONVERTOR_LIST(QORKIT_CONVERTOR_CASE)
#undef QORKIT_CONVERTOR_CASE
    return nullptr;
}

} // namespace qorkit

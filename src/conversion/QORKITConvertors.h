// The convertor components: one non-visual component per quantity that converts ValueIn from
// one unit into another (ValueOut), and keeps a "hidden" flag per unit so that an application
// can offer a shortened unit list and save the flags through a TQORStoreCtrl.
//
//     auto* temp = new TQORTempConvertor(this);
//     temp->SetTempTypeIn(ettFahrenheit);
//     temp->SetValueIn(212);                    // ValueOut: 100 (Celsius)
//     temp->UnitList(false).FillComboBox(box);  // names, with the ordinals as item data
//
// Every class converts through the unit tables of QORKITConversion (ConvertUnits), so the
// components, the routines and the command-line tool agree to the last digit. The table
// QORKIT_CONVERTOR_LIST below names the classes; each one's declaration is written out because
// moc needs to see its Q_OBJECT, properties and signals.
#pragma once

#include "QORKITComponent.h"
#include "QORKITConversion.h"
#include "QORKITQtEnums.h"
#include "QORKITStoreCtrl.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <vector>

class QComboBox;

namespace qorkit {

// The text every convertor reports as its Version.
inline constexpr char QORConvertorVersion[] = "qorkit convertors 0.1.0";

// One entry of a unit list: the unit's display name and its ordinal in the enumeration.
struct QORKIT_WIDGETS_EXPORT TQORUnitItem {
    QString Name;
    int Ordinal = 0;
};

// The units a convertor offers, in ordinal order. A plain value: the caller owns it.
class QORKIT_WIDGETS_EXPORT TQORUnitList {
public:
    void Append(const QString& name, int ordinal) { items_.push_back({name, ordinal}); }
    int Count() const { return static_cast<int>(items_.size()); }
    bool IsEmpty() const { return items_.empty(); }
    // The name and ordinal of an entry; "" and -1 outside the list.
    QString Name(int index) const;
    int Ordinal(int index) const;
    // The entry holding a unit, or -1.
    int IndexOfOrdinal(int ordinal) const;
    QStringList Names() const;
    std::vector<TQORUnitItem>::const_iterator begin() const { return items_.begin(); }
    std::vector<TQORUnitItem>::const_iterator end() const { return items_.end(); }
    // Replaces the items of `box` with the names, each carrying its ordinal as item data
    // (Qt::UserRole), and makes the entry of `currentOrdinal` current when it is listed (the
    // first entry otherwise). The box's signals are blocked while it is filled.
    void FillComboBox(QComboBox* box, int currentOrdinal = -1) const;

private:
    std::vector<TQORUnitItem> items_;
};

// The base of the convertors. Created on its own it has no units: NoUnits is 0 and nothing
// converts. The concrete classes below bind it to a quantity and add typed unit properties.
class QORKIT_WIDGETS_EXPORT TQORBaseConvertor : public QObject, public IQORNotifyClient {
    Q_OBJECT
    Q_PROPERTY(int NoUnits READ GetNoUnits WRITE SetNoUnits NOTIFY noUnitsChanged STORED false)
    Q_PROPERTY(int NoHiddenUnits READ GetNoHiddenUnits WRITE SetNoHiddenUnits NOTIFY
                   noHiddenUnitsChanged STORED false)
    Q_PROPERTY(double ValueIn READ GetValueInDouble WRITE SetValueInDouble NOTIFY valueInChanged)
    Q_PROPERTY(double ValueOut READ GetValueOutDouble WRITE SetValueOutDouble NOTIFY valueOutChanged
                   STORED false)
    Q_PROPERTY(QString Version READ GetVersion WRITE SetVersion NOTIFY versionChanged STORED false)
    Q_PROPERTY(qorkit::TQORStoreCtrl* StoreCtrl READ GetStoreCtrl WRITE SetStoreCtrl NOTIFY
                   storeCtrlChanged)

public:
    explicit TQORBaseConvertor(QObject* owner = nullptr);
    ~TQORBaseConvertor() override;

    // The number of units of the quantity, and of those hidden.
    virtual int GetNoUnits() const;
    virtual int GetNoHiddenUnits() const;
    // Published for display only: writes are ignored.
    void SetNoUnits(int) { }
    void SetNoHiddenUnits(int) { }

    Extended GetValueIn() const { return valueIn_; }
    // A value different from the current one (exactly) is stored and converted; an equal one
    // does nothing. A value that is not finite raises EInvalidOp and changes nothing. The
    // conversion's exceptions leave the new value in place and ValueOut unchanged.
    void SetValueIn(Extended value);
    Extended GetValueOut() const { return valueOut_; }
    void SetValueOut(Extended) { } // published for display: writes are ignored
    QString GetVersion() const { return QString::fromLatin1(QORConvertorVersion); }
    void SetVersion(const QString&) { } // the version is fixed: writes are ignored

    TQORStoreCtrl* GetStoreCtrl() const { return storeCtrl_.data(); }
    // Registers with the new store's notify list (and leaves the old one's), so that a store
    // destroyed first is forgotten.
    void SetStoreCtrl(TQORStoreCtrl* value);

    // The quantity and the units as ordinals, for hosts that treat every convertor alike.
    // The bare base reports ectThermalConductivity, the quantity without units.
    TQORConvType GetQuantity() const { return quantity_; }
    int GetUnitsIn() const { return unitsIn_; }
    int GetUnitsOut() const { return unitsOut_; }
    // A unit other than the current one is stored and the value converted; an ordinal outside
    // the enumeration is ignored. Exceptions of the conversion pass as for SetValueIn.
    void SetUnitsIn(int unit);
    void SetUnitsOut(int unit);

    // Converts ValueIn from the units in to the units out into ValueOut.
    virtual void DoConversion();

    // The display names and ordinals of the units; hidden ones only when asked for.
    TQORUnitList UnitList(bool includeHidden) const;
    // Set or clear a unit's hidden flag (ordinals outside the enumeration are ignored). None
    // of them converts.
    void Hide(int unit);
    void UnHide(int unit);
    void UnHideAll();
    bool IsHidden(int unit) const;

    // Read or write every hidden flag through StoreCtrl, under the keys "<prefix><ordinal>"
    // ("Hide Temp 0" ... "Hide Temp 7") in the store's section. Skipped without a store or
    // with a store of kind ritNone.
    virtual void LoadFromStore();
    virtual void SaveToStore();
    // The start of the keys, such as "Hide Temp ".
    QString GetStorageKeyPrefix() const { return prefix_; }

    // The store is going away: forget it.
    void Notification(QObject* component, TQOROperation operation) override;

Q_SIGNALS:
    void noUnitsChanged(int count); // never emitted: the count is fixed
    void noHiddenUnitsChanged(int count);
    void valueInChanged(double value);
    void valueOutChanged(double value);
    void versionChanged(const QString& version); // never emitted: the version is fixed
    void storeCtrlChanged(qorkit::TQORStoreCtrl* store);
    // Some unit was hidden or shown again (also when the count stays the same).
    void hiddenUnitsChanged();

protected:
    TQORBaseConvertor(QObject* owner, TQORConvType quantity, const char* keyPrefix);
    // Raised after the units in / out changed (before the value is converted); the concrete
    // classes emit their typed signals from here.
    virtual void UnitsInChanged() { }
    virtual void UnitsOutChanged() { }

private:
    double GetValueInDouble() const { return static_cast<double>(valueIn_); }
    void SetValueInDouble(double value) { SetValueIn(value); }
    double GetValueOutDouble() const { return static_cast<double>(valueOut_); }
    void SetValueOutDouble(double) { }
    bool IsUnit(int unit) const { return unit >= 0 && unit < GetNoUnits(); }
    void ChangeUnit(int& current, int unit, void (TQORBaseConvertor::*changed)());
    void SetHidden(int unit, bool hidden);
    void HiddenFlagsChanged(int oldCount);
    bool StoreUsable() const;

    TQORConvType quantity_ = ectThermalConductivity;
    QString prefix_;
    QPointer<TQORStoreCtrl> storeCtrl_;
    Extended valueIn_ = 0;
    Extended valueOut_ = 0; // first set by a conversion, not at construction
    int unitsIn_ = 0;
    int unitsOut_ = 0;
    std::vector<bool> hidden_;
};

// The convertors: class, unit enumeration, storage key prefix.
// clang-format off
#define QORKIT_CONVERTOR_LIST(X) \
    X(TQORTempConvertor, TQORTempType, "Hide Temp ") \
    X(TQORDistConvertor, TQORDistType, "Hide Dist ") \
    X(TQORMassConvertor, TQORMassType, "Hide Mass ") \
    X(TQORVolConvertor, TQORVolType, "Hide Vol ") \
    X(TQORAreaConvertor, TQORAreaType, "Hide Area ") \
    X(TQORPressureConvertor, TQORPressureType, "Hide Pressure ") \
    X(TQORVelocityConvertor, TQORVelocityType, "Hide Velocity ") \
    X(TQORAccelConvertor, TQORAccelerationType, "Hide Accel ") \
    X(TQORForceConvertor, TQORForceType, "Hide Force ") \
    X(TQOREnergyConvertor, TQOREnergyType, "Hide Energy ") \
    X(TQORPowerConvertor, TQORPowerType, "Hide Power ") \
    X(TQORFuelConvertor, TQORFuelType, "Hide Fuel ") \
    X(TQORFlowConvertor, TQORFlowType, "Hide Flow ") \
    X(TQORTorqueConvertor, TQORTorqueType, "Hide Torque ") \
    X(TQORRActiveConvertor, TQORRActiveType, "Hide RActive ") \
    X(TQORFlowMassConvertor, TQORFlowMassType, "Hide FlowMass ") \
    X(TQORAngleConvertor, TQORAngleType, "Hide Angle ") \
    X(TQORTimeConvertor, TQORTimeType, "Hide Time ") \
    X(TQORIlluminationConvertor, TQORIlluminationType, "Hide Illumination ") \
    X(TQORLuminousConvertor, TQORLuminousType, "Hide Luminous ") \
    X(TQORLuminanceConvertor, TQORLuminanceType, "Hide Luminance ") \
    X(TQORLumFluxConvertor, TQORLumFluxType, "Hide LumFlux ") \
    X(TQORAngVelConvertor, TQORAngVelType, "Hide AngVel ") \
    X(TQORDensityConvertor, TQORDensityType, "Hide Density ") \
    X(TQORComputerConvertor, TQORComputerType, "Hide Computer ") \
    X(TQORDataRateConvertor, TQORDataRateType, "Hide DataRate ") \
    X(TQORAngAccelConvertor, TQORAngAccelType, "Hide AngAccel ") \
    X(TQORVisDynConvertor, TQORVisDynType, "Hide VisDyn ") \
    X(TQORVisKinConvertor, TQORVisKinType, "Hide VisKin ") \
    X(TQORElChargeConvertor, TQORElChargeType, "Hide ElCharge ") \
    X(TQORCurrentConvertor, TQORCurrentType, "Hide Current ") \
    X(TQORQuantityConvertor, TQORQuantityType, "Hide Quantity ") \
    X(TQORMagneticFieldStrengthConvertor, TQORMagneticFieldStrengthType, "Hide MagneticFieldStrength ") \
    X(TQORMagneticFluxConvertor, TQORMagneticFluxType, "Hide MagneticFlux ") \
    X(TQORMagneticFluxDensityConvertor, TQORMagneticFluxDensityType, "Hide MagneticFluxDensity ") \
    X(TQORRadDoseConvertor, TQORRadDoseType, "Hide RadDose ") \
    X(TQORRadAbsorptionConvertor, TQORRadAbsorptionType, "Hide RadAbsorption ")
// clang-format on

// The shared part of a concrete convertor's declaration: the constructor and the typed
// accessors of its unit properties (Get<Stem>TypeIn, Set<Stem>TypeIn ...), and the hooks that
// emit its typed change signals.
#define QORKIT_CONVERTOR(Class, Enum, Stem, inSignal, outSignal)                                   \
public:                                                                                            \
    explicit Class(QObject* owner = nullptr);                                                      \
    Enum Get##Stem##TypeIn() const { return static_cast<Enum>(GetUnitsIn()); }                     \
    Enum Get##Stem##TypeOut() const { return static_cast<Enum>(GetUnitsOut()); }                   \
    void Set##Stem##TypeIn(Enum value) { SetUnitsIn(static_cast<int>(value)); }                    \
    void Set##Stem##TypeOut(Enum value) { SetUnitsOut(static_cast<int>(value)); }                  \
                                                                                                   \
protected:                                                                                         \
    void UnitsInChanged() override { Q_EMIT inSignal(Get##Stem##TypeIn()); }                       \
    void UnitsOutChanged() override { Q_EMIT outSignal(Get##Stem##TypeOut()); }                    \
                                                                                                   \
private:

// clang-format off
class QORKIT_WIDGETS_EXPORT TQORTempConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORTempType TempUnitsIn READ GetTempTypeIn WRITE SetTempTypeIn NOTIFY tempUnitsInChanged)
    Q_PROPERTY(qorkit::TQORTempType TempUnitsOut READ GetTempTypeOut WRITE SetTempTypeOut NOTIFY tempUnitsOutChanged)
    QORKIT_CONVERTOR(TQORTempConvertor, TQORTempType, Temp, tempUnitsInChanged, tempUnitsOutChanged)
Q_SIGNALS:
    void tempUnitsInChanged(qorkit::TQORTempType unit);
    void tempUnitsOutChanged(qorkit::TQORTempType unit);
};

class QORKIT_WIDGETS_EXPORT TQORDistConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORDistType DistUnitsIn READ GetDistTypeIn WRITE SetDistTypeIn NOTIFY distUnitsInChanged)
    Q_PROPERTY(qorkit::TQORDistType DistUnitsOut READ GetDistTypeOut WRITE SetDistTypeOut NOTIFY distUnitsOutChanged)
    QORKIT_CONVERTOR(TQORDistConvertor, TQORDistType, Dist, distUnitsInChanged, distUnitsOutChanged)
Q_SIGNALS:
    void distUnitsInChanged(qorkit::TQORDistType unit);
    void distUnitsOutChanged(qorkit::TQORDistType unit);
};

class QORKIT_WIDGETS_EXPORT TQORMassConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORMassType MassUnitsIn READ GetMassTypeIn WRITE SetMassTypeIn NOTIFY massUnitsInChanged)
    Q_PROPERTY(qorkit::TQORMassType MassUnitsOut READ GetMassTypeOut WRITE SetMassTypeOut NOTIFY massUnitsOutChanged)
    QORKIT_CONVERTOR(TQORMassConvertor, TQORMassType, Mass, massUnitsInChanged, massUnitsOutChanged)
Q_SIGNALS:
    void massUnitsInChanged(qorkit::TQORMassType unit);
    void massUnitsOutChanged(qorkit::TQORMassType unit);
};

class QORKIT_WIDGETS_EXPORT TQORVolConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORVolType VolUnitsIn READ GetVolTypeIn WRITE SetVolTypeIn NOTIFY volUnitsInChanged)
    Q_PROPERTY(qorkit::TQORVolType VolUnitsOut READ GetVolTypeOut WRITE SetVolTypeOut NOTIFY volUnitsOutChanged)
    QORKIT_CONVERTOR(TQORVolConvertor, TQORVolType, Vol, volUnitsInChanged, volUnitsOutChanged)
Q_SIGNALS:
    void volUnitsInChanged(qorkit::TQORVolType unit);
    void volUnitsOutChanged(qorkit::TQORVolType unit);
};

class QORKIT_WIDGETS_EXPORT TQORAreaConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORAreaType AreaUnitsIn READ GetAreaTypeIn WRITE SetAreaTypeIn NOTIFY areaUnitsInChanged)
    Q_PROPERTY(qorkit::TQORAreaType AreaUnitsOut READ GetAreaTypeOut WRITE SetAreaTypeOut NOTIFY areaUnitsOutChanged)
    QORKIT_CONVERTOR(TQORAreaConvertor, TQORAreaType, Area, areaUnitsInChanged, areaUnitsOutChanged)
Q_SIGNALS:
    void areaUnitsInChanged(qorkit::TQORAreaType unit);
    void areaUnitsOutChanged(qorkit::TQORAreaType unit);
};

class QORKIT_WIDGETS_EXPORT TQORPressureConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORPressureType PressureUnitsIn READ GetPressureTypeIn WRITE SetPressureTypeIn NOTIFY pressureUnitsInChanged)
    Q_PROPERTY(qorkit::TQORPressureType PressureUnitsOut READ GetPressureTypeOut WRITE SetPressureTypeOut NOTIFY pressureUnitsOutChanged)
    QORKIT_CONVERTOR(TQORPressureConvertor, TQORPressureType, Pressure, pressureUnitsInChanged, pressureUnitsOutChanged)
Q_SIGNALS:
    void pressureUnitsInChanged(qorkit::TQORPressureType unit);
    void pressureUnitsOutChanged(qorkit::TQORPressureType unit);
};

class QORKIT_WIDGETS_EXPORT TQORVelocityConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORVelocityType VelocityUnitsIn READ GetVelocityTypeIn WRITE SetVelocityTypeIn NOTIFY velocityUnitsInChanged)
    Q_PROPERTY(qorkit::TQORVelocityType VelocityUnitsOut READ GetVelocityTypeOut WRITE SetVelocityTypeOut NOTIFY velocityUnitsOutChanged)
    QORKIT_CONVERTOR(TQORVelocityConvertor, TQORVelocityType, Velocity, velocityUnitsInChanged, velocityUnitsOutChanged)
Q_SIGNALS:
    void velocityUnitsInChanged(qorkit::TQORVelocityType unit);
    void velocityUnitsOutChanged(qorkit::TQORVelocityType unit);
};

class QORKIT_WIDGETS_EXPORT TQORAccelConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORAccelerationType AccelUnitsIn READ GetAccelTypeIn WRITE SetAccelTypeIn NOTIFY accelUnitsInChanged)
    Q_PROPERTY(qorkit::TQORAccelerationType AccelUnitsOut READ GetAccelTypeOut WRITE SetAccelTypeOut NOTIFY accelUnitsOutChanged)
    QORKIT_CONVERTOR(TQORAccelConvertor, TQORAccelerationType, Accel, accelUnitsInChanged, accelUnitsOutChanged)
Q_SIGNALS:
    void accelUnitsInChanged(qorkit::TQORAccelerationType unit);
    void accelUnitsOutChanged(qorkit::TQORAccelerationType unit);
};

class QORKIT_WIDGETS_EXPORT TQORForceConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORForceType ForceUnitsIn READ GetForceTypeIn WRITE SetForceTypeIn NOTIFY forceUnitsInChanged)
    Q_PROPERTY(qorkit::TQORForceType ForceUnitsOut READ GetForceTypeOut WRITE SetForceTypeOut NOTIFY forceUnitsOutChanged)
    QORKIT_CONVERTOR(TQORForceConvertor, TQORForceType, Force, forceUnitsInChanged, forceUnitsOutChanged)
Q_SIGNALS:
    void forceUnitsInChanged(qorkit::TQORForceType unit);
    void forceUnitsOutChanged(qorkit::TQORForceType unit);
};

class QORKIT_WIDGETS_EXPORT TQOREnergyConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQOREnergyType EnergyUnitsIn READ GetEnergyTypeIn WRITE SetEnergyTypeIn NOTIFY energyUnitsInChanged)
    Q_PROPERTY(qorkit::TQOREnergyType EnergyUnitsOut READ GetEnergyTypeOut WRITE SetEnergyTypeOut NOTIFY energyUnitsOutChanged)
    QORKIT_CONVERTOR(TQOREnergyConvertor, TQOREnergyType, Energy, energyUnitsInChanged, energyUnitsOutChanged)
Q_SIGNALS:
    void energyUnitsInChanged(qorkit::TQOREnergyType unit);
    void energyUnitsOutChanged(qorkit::TQOREnergyType unit);
};

class QORKIT_WIDGETS_EXPORT TQORPowerConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORPowerType PowerUnitsIn READ GetPowerTypeIn WRITE SetPowerTypeIn NOTIFY powerUnitsInChanged)
    Q_PROPERTY(qorkit::TQORPowerType PowerUnitsOut READ GetPowerTypeOut WRITE SetPowerTypeOut NOTIFY powerUnitsOutChanged)
    QORKIT_CONVERTOR(TQORPowerConvertor, TQORPowerType, Power, powerUnitsInChanged, powerUnitsOutChanged)
Q_SIGNALS:
    void powerUnitsInChanged(qorkit::TQORPowerType unit);
    void powerUnitsOutChanged(qorkit::TQORPowerType unit);
};

class QORKIT_WIDGETS_EXPORT TQORFuelConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORFuelType FuelUnitsIn READ GetFuelTypeIn WRITE SetFuelTypeIn NOTIFY fuelUnitsInChanged)
    Q_PROPERTY(qorkit::TQORFuelType FuelUnitsOut READ GetFuelTypeOut WRITE SetFuelTypeOut NOTIFY fuelUnitsOutChanged)
    QORKIT_CONVERTOR(TQORFuelConvertor, TQORFuelType, Fuel, fuelUnitsInChanged, fuelUnitsOutChanged)
Q_SIGNALS:
    void fuelUnitsInChanged(qorkit::TQORFuelType unit);
    void fuelUnitsOutChanged(qorkit::TQORFuelType unit);
};

class QORKIT_WIDGETS_EXPORT TQORFlowConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORFlowType FlowUnitsIn READ GetFlowTypeIn WRITE SetFlowTypeIn NOTIFY flowUnitsInChanged)
    Q_PROPERTY(qorkit::TQORFlowType FlowUnitsOut READ GetFlowTypeOut WRITE SetFlowTypeOut NOTIFY flowUnitsOutChanged)
    QORKIT_CONVERTOR(TQORFlowConvertor, TQORFlowType, Flow, flowUnitsInChanged, flowUnitsOutChanged)
Q_SIGNALS:
    void flowUnitsInChanged(qorkit::TQORFlowType unit);
    void flowUnitsOutChanged(qorkit::TQORFlowType unit);
};

class QORKIT_WIDGETS_EXPORT TQORTorqueConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORTorqueType TorqueUnitsIn READ GetTorqueTypeIn WRITE SetTorqueTypeIn NOTIFY torqueUnitsInChanged)
    Q_PROPERTY(qorkit::TQORTorqueType TorqueUnitsOut READ GetTorqueTypeOut WRITE SetTorqueTypeOut NOTIFY torqueUnitsOutChanged)
    QORKIT_CONVERTOR(TQORTorqueConvertor, TQORTorqueType, Torque, torqueUnitsInChanged, torqueUnitsOutChanged)
Q_SIGNALS:
    void torqueUnitsInChanged(qorkit::TQORTorqueType unit);
    void torqueUnitsOutChanged(qorkit::TQORTorqueType unit);
};

class QORKIT_WIDGETS_EXPORT TQORRActiveConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORRActiveType RActiveUnitsIn READ GetRActiveTypeIn WRITE SetRActiveTypeIn NOTIFY rActiveUnitsInChanged)
    Q_PROPERTY(qorkit::TQORRActiveType RActiveUnitsOut READ GetRActiveTypeOut WRITE SetRActiveTypeOut NOTIFY rActiveUnitsOutChanged)
    QORKIT_CONVERTOR(TQORRActiveConvertor, TQORRActiveType, RActive, rActiveUnitsInChanged, rActiveUnitsOutChanged)
Q_SIGNALS:
    void rActiveUnitsInChanged(qorkit::TQORRActiveType unit);
    void rActiveUnitsOutChanged(qorkit::TQORRActiveType unit);
};

// Intended: the mass-flow convertor names its unit properties FlowUnitsIn and FlowUnitsOut, as
// the liquid-flow one does, while its keys are "Hide FlowMass <n>".
class QORKIT_WIDGETS_EXPORT TQORFlowMassConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORFlowMassType FlowUnitsIn READ GetFlowTypeIn WRITE SetFlowTypeIn NOTIFY flowUnitsInChanged)
    Q_PROPERTY(qorkit::TQORFlowMassType FlowUnitsOut READ GetFlowTypeOut WRITE SetFlowTypeOut NOTIFY flowUnitsOutChanged)
    QORKIT_CONVERTOR(TQORFlowMassConvertor, TQORFlowMassType, Flow, flowUnitsInChanged, flowUnitsOutChanged)
Q_SIGNALS:
    void flowUnitsInChanged(qorkit::TQORFlowMassType unit);
    void flowUnitsOutChanged(qorkit::TQORFlowMassType unit);
};

class QORKIT_WIDGETS_EXPORT TQORAngleConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORAngleType AngleUnitsIn READ GetAngleTypeIn WRITE SetAngleTypeIn NOTIFY angleUnitsInChanged)
    Q_PROPERTY(qorkit::TQORAngleType AngleUnitsOut READ GetAngleTypeOut WRITE SetAngleTypeOut NOTIFY angleUnitsOutChanged)
    QORKIT_CONVERTOR(TQORAngleConvertor, TQORAngleType, Angle, angleUnitsInChanged, angleUnitsOutChanged)
Q_SIGNALS:
    void angleUnitsInChanged(qorkit::TQORAngleType unit);
    void angleUnitsOutChanged(qorkit::TQORAngleType unit);
};

class QORKIT_WIDGETS_EXPORT TQORTimeConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORTimeType TimeUnitsIn READ GetTimeTypeIn WRITE SetTimeTypeIn NOTIFY timeUnitsInChanged)
    Q_PROPERTY(qorkit::TQORTimeType TimeUnitsOut READ GetTimeTypeOut WRITE SetTimeTypeOut NOTIFY timeUnitsOutChanged)
    QORKIT_CONVERTOR(TQORTimeConvertor, TQORTimeType, Time, timeUnitsInChanged, timeUnitsOutChanged)
Q_SIGNALS:
    void timeUnitsInChanged(qorkit::TQORTimeType unit);
    void timeUnitsOutChanged(qorkit::TQORTimeType unit);
};

class QORKIT_WIDGETS_EXPORT TQORIlluminationConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORIlluminationType IlluminationUnitsIn READ GetIlluminationTypeIn WRITE SetIlluminationTypeIn NOTIFY illuminationUnitsInChanged)
    Q_PROPERTY(qorkit::TQORIlluminationType IlluminationUnitsOut READ GetIlluminationTypeOut WRITE SetIlluminationTypeOut NOTIFY illuminationUnitsOutChanged)
    QORKIT_CONVERTOR(TQORIlluminationConvertor, TQORIlluminationType, Illumination, illuminationUnitsInChanged, illuminationUnitsOutChanged)
Q_SIGNALS:
    void illuminationUnitsInChanged(qorkit::TQORIlluminationType unit);
    void illuminationUnitsOutChanged(qorkit::TQORIlluminationType unit);
};

class QORKIT_WIDGETS_EXPORT TQORLuminousConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORLuminousType LuminousUnitsIn READ GetLuminousTypeIn WRITE SetLuminousTypeIn NOTIFY luminousUnitsInChanged)
    Q_PROPERTY(qorkit::TQORLuminousType LuminousUnitsOut READ GetLuminousTypeOut WRITE SetLuminousTypeOut NOTIFY luminousUnitsOutChanged)
    QORKIT_CONVERTOR(TQORLuminousConvertor, TQORLuminousType, Luminous, luminousUnitsInChanged, luminousUnitsOutChanged)
Q_SIGNALS:
    void luminousUnitsInChanged(qorkit::TQORLuminousType unit);
    void luminousUnitsOutChanged(qorkit::TQORLuminousType unit);
};

class QORKIT_WIDGETS_EXPORT TQORLuminanceConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORLuminanceType LuminanceUnitsIn READ GetLuminanceTypeIn WRITE SetLuminanceTypeIn NOTIFY luminanceUnitsInChanged)
    Q_PROPERTY(qorkit::TQORLuminanceType LuminanceUnitsOut READ GetLuminanceTypeOut WRITE SetLuminanceTypeOut NOTIFY luminanceUnitsOutChanged)
    QORKIT_CONVERTOR(TQORLuminanceConvertor, TQORLuminanceType, Luminance, luminanceUnitsInChanged, luminanceUnitsOutChanged)
Q_SIGNALS:
    void luminanceUnitsInChanged(qorkit::TQORLuminanceType unit);
    void luminanceUnitsOutChanged(qorkit::TQORLuminanceType unit);
};

class QORKIT_WIDGETS_EXPORT TQORLumFluxConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORLumFluxType LumFluxUnitsIn READ GetLumFluxTypeIn WRITE SetLumFluxTypeIn NOTIFY lumFluxUnitsInChanged)
    Q_PROPERTY(qorkit::TQORLumFluxType LumFluxUnitsOut READ GetLumFluxTypeOut WRITE SetLumFluxTypeOut NOTIFY lumFluxUnitsOutChanged)
    QORKIT_CONVERTOR(TQORLumFluxConvertor, TQORLumFluxType, LumFlux, lumFluxUnitsInChanged, lumFluxUnitsOutChanged)
Q_SIGNALS:
    void lumFluxUnitsInChanged(qorkit::TQORLumFluxType unit);
    void lumFluxUnitsOutChanged(qorkit::TQORLumFluxType unit);
};

class QORKIT_WIDGETS_EXPORT TQORAngVelConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORAngVelType AngVelUnitsIn READ GetAngVelTypeIn WRITE SetAngVelTypeIn NOTIFY angVelUnitsInChanged)
    Q_PROPERTY(qorkit::TQORAngVelType AngVelUnitsOut READ GetAngVelTypeOut WRITE SetAngVelTypeOut NOTIFY angVelUnitsOutChanged)
    QORKIT_CONVERTOR(TQORAngVelConvertor, TQORAngVelType, AngVel, angVelUnitsInChanged, angVelUnitsOutChanged)
Q_SIGNALS:
    void angVelUnitsInChanged(qorkit::TQORAngVelType unit);
    void angVelUnitsOutChanged(qorkit::TQORAngVelType unit);
};

class QORKIT_WIDGETS_EXPORT TQORDensityConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORDensityType DensityUnitsIn READ GetDensityTypeIn WRITE SetDensityTypeIn NOTIFY densityUnitsInChanged)
    Q_PROPERTY(qorkit::TQORDensityType DensityUnitsOut READ GetDensityTypeOut WRITE SetDensityTypeOut NOTIFY densityUnitsOutChanged)
    QORKIT_CONVERTOR(TQORDensityConvertor, TQORDensityType, Density, densityUnitsInChanged, densityUnitsOutChanged)
Q_SIGNALS:
    void densityUnitsInChanged(qorkit::TQORDensityType unit);
    void densityUnitsOutChanged(qorkit::TQORDensityType unit);
};

class QORKIT_WIDGETS_EXPORT TQORComputerConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORComputerType ComputerUnitsIn READ GetComputerTypeIn WRITE SetComputerTypeIn NOTIFY computerUnitsInChanged)
    Q_PROPERTY(qorkit::TQORComputerType ComputerUnitsOut READ GetComputerTypeOut WRITE SetComputerTypeOut NOTIFY computerUnitsOutChanged)
    QORKIT_CONVERTOR(TQORComputerConvertor, TQORComputerType, Computer, computerUnitsInChanged, computerUnitsOutChanged)
Q_SIGNALS:
    void computerUnitsInChanged(qorkit::TQORComputerType unit);
    void computerUnitsOutChanged(qorkit::TQORComputerType unit);
};

class QORKIT_WIDGETS_EXPORT TQORDataRateConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORDataRateType DataRateUnitsIn READ GetDataRateTypeIn WRITE SetDataRateTypeIn NOTIFY dataRateUnitsInChanged)
    Q_PROPERTY(qorkit::TQORDataRateType DataRateUnitsOut READ GetDataRateTypeOut WRITE SetDataRateTypeOut NOTIFY dataRateUnitsOutChanged)
    QORKIT_CONVERTOR(TQORDataRateConvertor, TQORDataRateType, DataRate, dataRateUnitsInChanged, dataRateUnitsOutChanged)
Q_SIGNALS:
    void dataRateUnitsInChanged(qorkit::TQORDataRateType unit);
    void dataRateUnitsOutChanged(qorkit::TQORDataRateType unit);
};

class QORKIT_WIDGETS_EXPORT TQORAngAccelConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORAngAccelType AngAccelUnitsIn READ GetAngAccelTypeIn WRITE SetAngAccelTypeIn NOTIFY angAccelUnitsInChanged)
    Q_PROPERTY(qorkit::TQORAngAccelType AngAccelUnitsOut READ GetAngAccelTypeOut WRITE SetAngAccelTypeOut NOTIFY angAccelUnitsOutChanged)
    QORKIT_CONVERTOR(TQORAngAccelConvertor, TQORAngAccelType, AngAccel, angAccelUnitsInChanged, angAccelUnitsOutChanged)
Q_SIGNALS:
    void angAccelUnitsInChanged(qorkit::TQORAngAccelType unit);
    void angAccelUnitsOutChanged(qorkit::TQORAngAccelType unit);
};

class QORKIT_WIDGETS_EXPORT TQORVisDynConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORVisDynType VisDynUnitsIn READ GetVisDynTypeIn WRITE SetVisDynTypeIn NOTIFY visDynUnitsInChanged)
    Q_PROPERTY(qorkit::TQORVisDynType VisDynUnitsOut READ GetVisDynTypeOut WRITE SetVisDynTypeOut NOTIFY visDynUnitsOutChanged)
    QORKIT_CONVERTOR(TQORVisDynConvertor, TQORVisDynType, VisDyn, visDynUnitsInChanged, visDynUnitsOutChanged)
Q_SIGNALS:
    void visDynUnitsInChanged(qorkit::TQORVisDynType unit);
    void visDynUnitsOutChanged(qorkit::TQORVisDynType unit);
};

class QORKIT_WIDGETS_EXPORT TQORVisKinConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORVisKinType VisKinUnitsIn READ GetVisKinTypeIn WRITE SetVisKinTypeIn NOTIFY visKinUnitsInChanged)
    Q_PROPERTY(qorkit::TQORVisKinType VisKinUnitsOut READ GetVisKinTypeOut WRITE SetVisKinTypeOut NOTIFY visKinUnitsOutChanged)
    QORKIT_CONVERTOR(TQORVisKinConvertor, TQORVisKinType, VisKin, visKinUnitsInChanged, visKinUnitsOutChanged)
Q_SIGNALS:
    void visKinUnitsInChanged(qorkit::TQORVisKinType unit);
    void visKinUnitsOutChanged(qorkit::TQORVisKinType unit);
};

class QORKIT_WIDGETS_EXPORT TQORElChargeConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORElChargeType ElChargeUnitsIn READ GetElChargeTypeIn WRITE SetElChargeTypeIn NOTIFY elChargeUnitsInChanged)
    Q_PROPERTY(qorkit::TQORElChargeType ElChargeUnitsOut READ GetElChargeTypeOut WRITE SetElChargeTypeOut NOTIFY elChargeUnitsOutChanged)
    QORKIT_CONVERTOR(TQORElChargeConvertor, TQORElChargeType, ElCharge, elChargeUnitsInChanged, elChargeUnitsOutChanged)
Q_SIGNALS:
    void elChargeUnitsInChanged(qorkit::TQORElChargeType unit);
    void elChargeUnitsOutChanged(qorkit::TQORElChargeType unit);
};

class QORKIT_WIDGETS_EXPORT TQORCurrentConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORCurrentType CurrentUnitsIn READ GetCurrentTypeIn WRITE SetCurrentTypeIn NOTIFY currentUnitsInChanged)
    Q_PROPERTY(qorkit::TQORCurrentType CurrentUnitsOut READ GetCurrentTypeOut WRITE SetCurrentTypeOut NOTIFY currentUnitsOutChanged)
    QORKIT_CONVERTOR(TQORCurrentConvertor, TQORCurrentType, Current, currentUnitsInChanged, currentUnitsOutChanged)
Q_SIGNALS:
    void currentUnitsInChanged(qorkit::TQORCurrentType unit);
    void currentUnitsOutChanged(qorkit::TQORCurrentType unit);
};

class QORKIT_WIDGETS_EXPORT TQORQuantityConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORQuantityType QuantityUnitsIn READ GetQuantityTypeIn WRITE SetQuantityTypeIn NOTIFY quantityUnitsInChanged)
    Q_PROPERTY(qorkit::TQORQuantityType QuantityUnitsOut READ GetQuantityTypeOut WRITE SetQuantityTypeOut NOTIFY quantityUnitsOutChanged)
    QORKIT_CONVERTOR(TQORQuantityConvertor, TQORQuantityType, Quantity, quantityUnitsInChanged, quantityUnitsOutChanged)
Q_SIGNALS:
    void quantityUnitsInChanged(qorkit::TQORQuantityType unit);
    void quantityUnitsOutChanged(qorkit::TQORQuantityType unit);
};

class QORKIT_WIDGETS_EXPORT TQORMagneticFieldStrengthConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORMagneticFieldStrengthType MagneticFieldStrengthUnitsIn READ GetMagneticFieldStrengthTypeIn WRITE SetMagneticFieldStrengthTypeIn NOTIFY magneticFieldStrengthUnitsInChanged)
    Q_PROPERTY(qorkit::TQORMagneticFieldStrengthType MagneticFieldStrengthUnitsOut READ GetMagneticFieldStrengthTypeOut WRITE SetMagneticFieldStrengthTypeOut NOTIFY magneticFieldStrengthUnitsOutChanged)
    QORKIT_CONVERTOR(TQORMagneticFieldStrengthConvertor, TQORMagneticFieldStrengthType, MagneticFieldStrength, magneticFieldStrengthUnitsInChanged, magneticFieldStrengthUnitsOutChanged)
Q_SIGNALS:
    void magneticFieldStrengthUnitsInChanged(qorkit::TQORMagneticFieldStrengthType unit);
    void magneticFieldStrengthUnitsOutChanged(qorkit::TQORMagneticFieldStrengthType unit);
};

class QORKIT_WIDGETS_EXPORT TQORMagneticFluxConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORMagneticFluxType MagneticFluxUnitsIn READ GetMagneticFluxTypeIn WRITE SetMagneticFluxTypeIn NOTIFY magneticFluxUnitsInChanged)
    Q_PROPERTY(qorkit::TQORMagneticFluxType MagneticFluxUnitsOut READ GetMagneticFluxTypeOut WRITE SetMagneticFluxTypeOut NOTIFY magneticFluxUnitsOutChanged)
    QORKIT_CONVERTOR(TQORMagneticFluxConvertor, TQORMagneticFluxType, MagneticFlux, magneticFluxUnitsInChanged, magneticFluxUnitsOutChanged)
Q_SIGNALS:
    void magneticFluxUnitsInChanged(qorkit::TQORMagneticFluxType unit);
    void magneticFluxUnitsOutChanged(qorkit::TQORMagneticFluxType unit);
};

class QORKIT_WIDGETS_EXPORT TQORMagneticFluxDensityConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORMagneticFluxDensityType MagneticFluxDensityUnitsIn READ GetMagneticFluxDensityTypeIn WRITE SetMagneticFluxDensityTypeIn NOTIFY magneticFluxDensityUnitsInChanged)
    Q_PROPERTY(qorkit::TQORMagneticFluxDensityType MagneticFluxDensityUnitsOut READ GetMagneticFluxDensityTypeOut WRITE SetMagneticFluxDensityTypeOut NOTIFY magneticFluxDensityUnitsOutChanged)
    QORKIT_CONVERTOR(TQORMagneticFluxDensityConvertor, TQORMagneticFluxDensityType, MagneticFluxDensity, magneticFluxDensityUnitsInChanged, magneticFluxDensityUnitsOutChanged)
Q_SIGNALS:
    void magneticFluxDensityUnitsInChanged(qorkit::TQORMagneticFluxDensityType unit);
    void magneticFluxDensityUnitsOutChanged(qorkit::TQORMagneticFluxDensityType unit);
};

class QORKIT_WIDGETS_EXPORT TQORRadDoseConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORRadDoseType RadDoseUnitsIn READ GetRadDoseTypeIn WRITE SetRadDoseTypeIn NOTIFY radDoseUnitsInChanged)
    Q_PROPERTY(qorkit::TQORRadDoseType RadDoseUnitsOut READ GetRadDoseTypeOut WRITE SetRadDoseTypeOut NOTIFY radDoseUnitsOutChanged)
    QORKIT_CONVERTOR(TQORRadDoseConvertor, TQORRadDoseType, RadDose, radDoseUnitsInChanged, radDoseUnitsOutChanged)
Q_SIGNALS:
    void radDoseUnitsInChanged(qorkit::TQORRadDoseType unit);
    void radDoseUnitsOutChanged(qorkit::TQORRadDoseType unit);
};

class QORKIT_WIDGETS_EXPORT TQORRadAbsorptionConvertor : public TQORBaseConvertor {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORRadAbsorptionType RadAbsorptionUnitsIn READ GetRadAbsorptionTypeIn WRITE SetRadAbsorptionTypeIn NOTIFY radAbsorptionUnitsInChanged)
    Q_PROPERTY(qorkit::TQORRadAbsorptionType RadAbsorptionUnitsOut READ GetRadAbsorptionTypeOut WRITE SetRadAbsorptionTypeOut NOTIFY radAbsorptionUnitsOutChanged)
    QORKIT_CONVERTOR(TQORRadAbsorptionConvertor, TQORRadAbsorptionType, RadAbsorption, radAbsorptionUnitsInChanged, radAbsorptionUnitsOutChanged)
Q_SIGNALS:
    void radAbsorptionUnitsInChanged(qorkit::TQORRadAbsorptionType unit);
    void radAbsorptionUnitsOutChanged(qorkit::TQORRadAbsorptionType unit);
};
// clang-format on

// A new convertor for a quantity, owned by `owner`; nullptr for a quantity without units
// (ectThermalConductivity) or outside the enumeration.
QORKIT_WIDGETS_EXPORT TQORBaseConvertor* CreateConvertor(TQORConvType quantity, QObject* owner);

} // namespace qorkit

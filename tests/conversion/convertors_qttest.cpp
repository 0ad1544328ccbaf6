// The convertor components: conversion on change only, exceptions that leave ValueOut alone,
// unit lists, the hidden flags in real INI files, stores destroyed first, and every one of the
// classes checked against the conversion routines and its meta-object.
#include "QORKITConvertors.h"
#include "QORKITExceptions.h"
#include "QorkitTestSupport.h"

#include <QComboBox>
#include <QFile>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <utility>

namespace qorkit {
namespace {

class ConvertorTest : public test::GlobalStateTest {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        ASSERT_TRUE(dir_.isValid());
    }
    QString IniPath() const { return dir_.filePath(QStringLiteral("units.ini")); }
    void UseIniFile(TQORStoreCtrl& store) const
    {
        store.SetRegIniType(ritIniFile);
        store.SetIniFileName(IniPath());
    }
    void WriteIni(const QByteArray& text) const
    {
        QFile file(IniPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir dir_;
};

// ---- Conversion on change only -------------------------------------------------------------

TEST_F(ConvertorTest, KelvinToCelsiusConvertsOnceTheUnitChanges)
{
    TQORTempConvertor temp;
    QSignalSpy valueIn(&temp, &TQORTempConvertor::valueInChanged);
    QSignalSpy valueOut(&temp, &TQORTempConvertor::valueOutChanged);
    QSignalSpy unitsOut(&temp, &TQORTempConvertor::tempUnitsOutChanged);

    EXPECT_EQ(temp.GetValueOut(), 0.0L);
    temp.SetTempTypeOut(ettCelsius);
    EXPECT_EQ(temp.GetValueOut(), -273.15L);
    EXPECT_EQ(unitsOut.count(), 1);
    EXPECT_EQ(unitsOut.at(0).at(0).value<TQORTempType>(), ettCelsius);
    EXPECT_EQ(valueOut.count(), 1);

    // Equal values and units convert nothing and say nothing.
    temp.SetValueIn(0);
    temp.SetTempTypeOut(ettCelsius);
    EXPECT_EQ(valueIn.count(), 0);
    EXPECT_EQ(valueOut.count(), 1);
    EXPECT_EQ(unitsOut.count(), 1);

    temp.SetValueIn(100);
    EXPECT_EQ(temp.GetValueOut(), 100 - 273.15L);
    EXPECT_EQ(valueIn.count(), 1);
}

TEST_F(ConvertorTest, ValueInComparesExactly)
{
    TQORDistConvertor dist;
    dist.SetDistTypeIn(edtKilometres);
    dist.SetValueIn(1);
    QSignalSpy valueOut(&dist, &TQORDistConvertor::valueOutChanged);
    dist.SetValueIn(std::nextafter(1.0L, 2.0L));
    EXPECT_EQ(valueOut.count(), 1);
    EXPECT_EQ(dist.GetValueOut(), std::nextafter(1.0L, 2.0L) * 1000);
}

TEST_F(ConvertorTest, ThroughThePropertySystem)
{
    TQORTempConvertor temp;
    ASSERT_TRUE(temp.setProperty("TempUnitsIn", QVariant::fromValue(ettFahrenheit)));
    ASSERT_TRUE(temp.setProperty("TempUnitsOut", QStringLiteral("ettCelsius")));
    ASSERT_TRUE(temp.setProperty("ValueIn", 212.0));
    EXPECT_EQ(temp.GetTempTypeIn(), ettFahrenheit);
    EXPECT_NEAR(temp.property("ValueOut").toDouble(), 100.0, 1e-12);
}

TEST_F(ConvertorTest, MassFromKilotonnesIsNotScaledButIntoThemIs)
{
    TQORMassConvertor mass;
    mass.SetMassTypeIn(emtKilotonnes);
    mass.SetMassTypeOut(emtKilograms);
    mass.SetValueIn(1);
    EXPECT_EQ(mass.GetValueOut(), 1.0L); // intended: source kilotonnes are taken as kilograms
    mass.SetMassTypeIn(emtKilograms);
    mass.SetMassTypeOut(emtKilotonnes);
    EXPECT_NEAR(static_cast<double>(mass.GetValueOut()), 1e-6, 1e-21);
}

TEST_F(ConvertorTest, VersionIgnoresWrites)
{
    TQORAngleConvertor angle;
    const QString version = angle.GetVersion();
    EXPECT_FALSE(version.isEmpty());
    angle.SetVersion(QStringLiteral("9.9"));
    angle.setProperty("Version", QStringLiteral("9.9"));
    angle.SetNoUnits(3);
    angle.SetValueOut(42);
    EXPECT_EQ(angle.GetVersion(), version);
    EXPECT_EQ(angle.property("Version").toString(), version);
    EXPECT_EQ(angle.GetNoUnits(), 20);
    EXPECT_EQ(angle.GetValueOut(), 0.0L);
}

TEST_F(ConvertorTest, BareBaseHasNoUnitsAndConvertsNothing)
{
    TQORBaseConvertor base;
    base.SetValueIn(5);
    base.SetUnitsOut(1);
    base.Hide(0);
    EXPECT_EQ(base.GetNoUnits(), 0);
    EXPECT_EQ(base.GetNoHiddenUnits(), 0);
    EXPECT_EQ(base.GetValueOut(), 0.0L);
    EXPECT_TRUE(base.UnitList(true).IsEmpty());
}

// ---- Exceptions pass through the setter that converted ---------------------------------------

TEST_F(ConvertorTest, BelowAbsoluteZeroKeepsValueOutAndTheNewValueIn)
{
    TQORTempConvertor temp;
    temp.SetTempTypeIn(ettCelsius);
    temp.SetTempTypeOut(ettFahrenheit);
    temp.SetValueIn(100);
    QSignalSpy valueOut(&temp, &TQORTempConvertor::valueOutChanged);
    EXPECT_THROW(temp.SetValueIn(-300), EMathError);
    EXPECT_EQ(temp.GetValueIn(), -300.0L);
    EXPECT_EQ(temp.GetValueOut(), 212.0L);
    EXPECT_EQ(valueOut.count(), 0);
}

TEST_F(ConvertorTest, ZeroFuelFigureRaisesThroughTheUnitSetter)
{
    TQORFuelConvertor fuel; // ValueIn 0, kilometres per litre
    EXPECT_THROW(fuel.SetFuelTypeIn(eftLitresPer100Kilometres), EMathError);
    EXPECT_EQ(fuel.GetFuelTypeIn(), eftLitresPer100Kilometres);
    EXPECT_EQ(fuel.GetValueOut(), 0.0L);
    fuel.SetValueIn(8);
    EXPECT_EQ(fuel.GetValueOut(), 12.5L);
}

TEST_F(ConvertorTest, NoNaNOrInfinityReachesValueOut)
{
    TQORDistConvertor dist;
    dist.SetDistTypeIn(edtGigaparsecs);
    dist.SetDistTypeOut(edtFemtometres);
    dist.SetValueIn(2);
    const Extended before = dist.GetValueOut();
    EXPECT_THROW(dist.SetValueIn(std::numeric_limits<Extended>::max() / 4), EMathError);
    EXPECT_EQ(dist.GetValueOut(), before);
    EXPECT_THROW(dist.SetValueIn(std::numeric_limits<Extended>::quiet_NaN()), EInvalidOp);
    EXPECT_THROW(dist.SetValueIn(std::numeric_limits<Extended>::infinity()), EInvalidOp);
    EXPECT_TRUE(std::isfinite(dist.GetValueIn()));
    EXPECT_EQ(dist.GetValueOut(), before);
}

// ---- Unit lists ---------------------------------------------------------------------------------

TEST_F(ConvertorTest, HiddenUnitsAreLeftOutUnlessAskedFor)
{
    TQORTempConvertor temp;
    QSignalSpy hiddenCount(&temp, &TQORTempConvertor::noHiddenUnitsChanged);
    temp.Hide(ettRankine);
    temp.Hide(ettRankine);
    temp.Hide(99); // outside the enumeration: ignored
    EXPECT_EQ(hiddenCount.count(), 1);
    const TQORUnitList shown = temp.UnitList(false);
    ASSERT_EQ(shown.Count(), 7);
    EXPECT_EQ(shown.IndexOfOrdinal(ettRankine), -1);
    EXPECT_EQ(shown.Name(3), QStringLiteral("Réaumur"));
    EXPECT_EQ(shown.Ordinal(4), static_cast<int>(ettRomer));

    for (int unit = 0; unit < temp.GetNoUnits(); ++unit)
        temp.Hide(unit);
    EXPECT_TRUE(temp.UnitList(false).IsEmpty());
    EXPECT_EQ(temp.UnitList(true).Count(), 8);
    temp.UnHideAll();
    EXPECT_EQ(temp.GetNoHiddenUnits(), 0);
    EXPECT_EQ(hiddenCount.count(), 1 + 7 + 1); // once per change of the count
}

TEST_F(ConvertorTest, TimeListHoldsSixtyFiveEntriesTheLastOneUnnamed)
{
    TQORTimeConvertor time;
    const TQORUnitList list = time.UnitList(true);
    ASSERT_EQ(list.Count(), 65);
    EXPECT_EQ(list.Ordinal(64), static_cast<int>(ettSunDaysSidereal));
    EXPECT_TRUE(list.Name(64).isEmpty());
    EXPECT_EQ(list.Name(0), QStringLiteral("Seconds"));
}

TEST_F(ConvertorTest, FillComboBoxCarriesTheOrdinals)
{
    TQORVolConvertor vol;
    vol.Hide(0);
    vol.Hide(2);
    QComboBox box;
    box.addItem(QStringLiteral("stale"));
    vol.UnitList(false).FillComboBox(&box, 5);
    ASSERT_EQ(box.count(), vol.GetNoUnits() - 2);
    EXPECT_EQ(box.itemData(0).toInt(), 1);
    EXPECT_EQ(box.itemData(1).toInt(), 3);
    EXPECT_EQ(box.currentData().toInt(), 5);
    EXPECT_EQ(box.currentText(), QString::fromStdString(QORVolStr[static_cast<TQORVolType>(5)]));
}

// ---- Independent values of the units converted inside the components ------------------------

struct FactorRow {
    const char* Name;
    TQORConvType Quantity;
    int From;
    int To;
    Extended Value;
    Extended Expected;
};

class InComponentFactorTest : public ConvertorTest,
                              public ::testing::WithParamInterface<FactorRow> { };

TEST_P(InComponentFactorTest, ConvertsByTheUnitsDefinition)
{
    const FactorRow& row = GetParam();
    std::unique_ptr<TQORBaseConvertor> convertor(CreateConvertor(row.Quantity, nullptr));
    ASSERT_NE(convertor, nullptr);
    convertor->SetUnitsIn(row.From);
    convertor->SetUnitsOut(row.To);
    convertor->SetValueIn(row.Value);
    EXPECT_NEAR(static_cast<double>(convertor->GetValueOut()), static_cast<double>(row.Expected),
                std::fabs(static_cast<double>(row.Expected)) * 1e-14);
}

constexpr Extended Pi = 3.14159265358979323846264338327950288L;

const FactorRow factorRows[] = {
    {"DayInSeconds", ectTime, ettDays, ettSeconds, 1, 86400},
    {"WeekInHours", ectTime, ettWeeks, ettHours, 1, 168},
    {"NinetyMinutesInHours", ectTime, ettMinutes, ettHours, 90, 1.5L},
    {"JulianYearInDays", ectTime, ettYearsJulian, ettDays, 1, 365.25L},
    {"GregorianCenturyInDays", ectTime, ettCenturiesGregorian, ettDays, 1, 36524.25L},
    {"FortnightInMegaseconds", ectTime, ettFortnights, ettMegaseconds, 1, 1.2096L},
    {"GibibyteInBytes", ectComputer, ectGibiBytes, ectBytes, 1, 1073741824},
    {"KilobyteDecimalInBits", ectComputer, ectKiloBytes10, ectBits, 1, 8000},
    {"ByteInNibbles", ectComputer, ectBytes, ectNibbles, 1, 2},
    {"MebibitInBytes", ectComputer, ectMebibits, ectBytes, 1, 131072},
    {"AudioMinuteInBytes", ectComputer, ectAudioMinutes, ectBytes, 1, 10584000},
    {"MegabytePerSecondInBits", ectDataRate, edrMegabytesPS, edrBitsPS, 1, 8e6L},
    {"SixtyBitsPerMinute", ectDataRate, edrBitsPM, edrBitsPS, 60, 1},
    {"GigabitPerHourInKilobitsPerSecond", ectDataRate, edrGigabitsPH, edrKilobitsPS, 36, 10000},
    {"HalfCircleInRadians", ectAngles, eatDegrees, eatRadians, 180, Pi},
    {"CircleInDegrees", ectAngles, eatCircles, eatDegrees, 1, 360},
    {"FourHundredGradsInCircles", ectAngles, eatGrads, eatCircles, 400, 1},
    {"QuadrantInDegrees", ectAngles, eatQuadrants, eatDegrees, 1, 90},
    {"MilsInCircle", ectAngles, eatCircles, eatAngularMils, 1, 6400},
    {"DegreeInArcSeconds", ectAngles, eatDegrees, eatSeconds, 1, 3600},
    {"BinaryRadiansInCircle", ectAngles, eatCircles, eatBinaryRadians, 1, 256},
    {"CompassPointsInCircle", ectAngles, eatCircles, eatPointsAngle, 1, 32},
    {"FortyFiveDegreesAsGrade", ectAngles, eatDegrees, eatGrade, 45, 100},
    {"GrossInUnits", ectQuantity, eqtGross, eqtUnits, 1, 144},
    {"GreatGrossInUnits", ectQuantity, eqtGreatGross, eqtUnits, 1, 1728},
    {"BakersDozenInUnits", ectQuantity, eqtDozensBakers, eqtUnits, 1, 13},
    {"CroreInLakh", ectQuantity, eqtCrore, eqtLakh, 1, 100},
    {"ThreeThirdsInUnits", ectQuantity, eqtThirds, eqtUnits, 3, 1},
    {"OerstedInAmperesPerMetre", ectMagneticFieldStrength, emtOersteds, emtAmperesPerMetre, 1,
     1000 / (4 * Pi)},
    {"AmperePerCentimetreInAmperesPerMetre", ectMagneticFieldStrength, emtAmperesPerCentimetre,
     emtAmperesPerMetre, 1, 100},
    {"GilbertPerCentimetreInOersteds", ectMagneticFieldStrength, emtGilbertsPerCentimetre,
     emtOersteds, 1, 1},
};
INSTANTIATE_TEST_SUITE_P(Units, InComponentFactorTest, ::testing::ValuesIn(factorRows),
                         test::RowName<FactorRow>);

// ---- Every class -------------------------------------------------------------------------------

struct ClassRow {
    std::string Name; // the class's stem, "FlowMass"
    std::function<TQORBaseConvertor*(QObject*)> Make;
};

std::vector<ClassRow> AllClasses()
{
    std::vector<ClassRow> rows;
#define QORKIT_TEST_CLASS(Class, Enum, prefix)                                                     \
    rows.push_back({std::string(#Class).substr(4, std::string(#Class).size() - 13),                \
                    [](QObject* owner) -> TQORBaseConvertor* { return new Class(owner); }});
    QORKIT_CONVERTOR_LIST(QORKIT_TEST_CLASS)
#undef QORKIT_TEST_CLASS
    return rows;
}

class EveryConvertorTest : public ConvertorTest, public ::testing::WithParamInterface<ClassRow> {
protected:
    void SetUp() override
    {
        ConvertorTest::SetUp();
        convertor_.reset(GetParam().Make(nullptr));
    }
    // The unit properties carry the class's stem, except the mass-flow convertor's, which are
    // named like the liquid-flow ones on purpose.
    static std::string PropertyStem()
    {
        return GetParam().Name == "FlowMass" ? std::string("Flow") : GetParam().Name;
    }
    QMetaProperty UnitProperty(const char* direction) const
    {
        const QByteArray name = QByteArray::fromStdString(PropertyStem() + "Units" + direction);
        const QMetaObject* meta = convertor_->metaObject();
        return meta->property(meta->indexOfProperty(name.constData()));
    }

    std::unique_ptr<TQORBaseConvertor> convertor_;
};

TEST_P(EveryConvertorTest, UnitPropertiesAreNotifyingMetaEnumsOfTheWholeEnumeration)
{
    for (const char* direction : {"In", "Out"}) {
        const QMetaProperty property = UnitProperty(direction);
        ASSERT_TRUE(property.isValid()) << direction;
        EXPECT_TRUE(property.isEnumType());
        EXPECT_TRUE(property.isWritable());
        const std::string stem = PropertyStem();
        const std::string signal = std::string(1, static_cast<char>(std::tolower(stem[0])))
            + stem.substr(1) + "Units" + direction + "Changed";
        EXPECT_EQ(property.notifySignal().name().toStdString(), signal);
        EXPECT_EQ(property.enumerator().keyCount(), convertor_->GetNoUnits());
    }
    EXPECT_EQ(static_cast<std::size_t>(convertor_->GetNoUnits()),
              UnitCount(convertor_->GetQuantity()));
    EXPECT_EQ(convertor_->UnitList(false).Count(), convertor_->GetNoUnits());
}

TEST_P(EveryConvertorTest, RandomPairsConvertLikeTheRoutines)
{
    std::mt19937 random(static_cast<unsigned>(std::hash<std::string> {}(GetParam().Name)));
    const int count = convertor_->GetNoUnits();
    std::uniform_int_distribution<int> unit(0, count - 1);
    std::uniform_real_distribution<double> value(-1e6, 1e6);
    const QMetaProperty in = UnitProperty("In");
    const QMetaProperty out = UnitProperty("Out");
    for (int i = 0; i < 40; ++i) {
        const int from = unit(random);
        const int to = unit(random);
        const Extended x = value(random);
        // Setting the units converts the old value, which may be out of range for them.
        for (const auto& [property, ordinal] : {std::pair(in, from), std::pair(out, to)}) {
            try {
                property.write(convertor_.get(), ordinal);
            } catch (const Exception&) { }
            ASSERT_EQ(property.read(convertor_.get()).toInt(), ordinal);
        }
        ASSERT_NE(convertor_->GetValueIn(), x);
        const Extended before = convertor_->GetValueOut();
        bool raises = false;
        Extended expected = 0;
        try {
            expected = ConvertUnits(convertor_->GetQuantity(), static_cast<std::size_t>(from),
                                    static_cast<std::size_t>(to), x);
        } catch (const Exception&) {
            raises = true; // temperatures below absolute zero, zero fuel figures
        }
        const auto where = [&] {
            return std::to_string(from) + " -> " + std::to_string(to) + " of "
                + std::to_string(static_cast<double>(x));
        };
        if (raises) {
            EXPECT_THROW(convertor_->SetValueIn(x), Exception) << where();
            EXPECT_EQ(convertor_->GetValueOut(), before) << where();
        } else {
            EXPECT_NO_THROW(convertor_->SetValueIn(x)) << where();
            EXPECT_EQ(convertor_->GetValueOut(), expected) << where();
        }
        EXPECT_EQ(convertor_->GetValueIn(), x);
    }
}

TEST_P(EveryConvertorTest, HiddenFlagsRoundTripUnderTheirKeys)
{
    const QString prefix = QStringLiteral("Hide %1 ").arg(QString::fromStdString(GetParam().Name));
    const int count = convertor_->GetNoUnits();
    const int hiddenA = count - 1;
    const int hiddenB = count / 2;
    {
        TQORStoreCtrl store;
        UseIniFile(store);
        convertor_->SetStoreCtrl(&store);
        convertor_->Hide(hiddenA);
        convertor_->Hide(hiddenB);
        convertor_->SaveToStore();
        convertor_->UnHideAll();
    }
    EXPECT_EQ(convertor_->GetStoreCtrl(), nullptr);

    QSettings ini(IniPath(), QSettings::IniFormat);
    ini.beginGroup(QString::fromLatin1(QORDefaultStoreSection));
    EXPECT_EQ(ini.childKeys().size(), count);
    for (int unit = 0; unit < count; ++unit) {
        const QString key = prefix + QString::number(unit);
        ASSERT_TRUE(ini.contains(key)) << key.toStdString();
        EXPECT_EQ(ini.value(key).toBool(), unit == hiddenA || unit == hiddenB);
    }

    TQORStoreCtrl store;
    UseIniFile(store);
    std::unique_ptr<TQORBaseConvertor> fresh(GetParam().Make(nullptr));
    fresh->SetStoreCtrl(&store);
    fresh->LoadFromStore();
    EXPECT_EQ(fresh->GetNoHiddenUnits(), hiddenA == hiddenB ? 1 : 2);
    EXPECT_TRUE(fresh->IsHidden(hiddenA));
    EXPECT_TRUE(fresh->IsHidden(hiddenB));
    fresh->SetStoreCtrl(nullptr);
    EXPECT_FALSE(store.IsInNotifyList(fresh.get()));
}

INSTANTIATE_TEST_SUITE_P(Classes, EveryConvertorTest, ::testing::ValuesIn(AllClasses()),
                         test::RowName<ClassRow>);

// ---- Stores ------------------------------------------------------------------------------------

TEST_F(ConvertorTest, GarbageValuesLoadAsNotHidden)
{
    WriteIni("[Settings]\nHide Temp 0=banana\nHide Temp 1=true\nHide Temp 2=\nHide Temp 3=2\n"
             "Hide Temp 4=1\nHide Temp 5=@Invalid()\n");
    TQORStoreCtrl store;
    UseIniFile(store);
    TQORTempConvertor temp;
    temp.Hide(ettKelvin);
    temp.SetStoreCtrl(&store);
    QSignalSpy hiddenCount(&temp, &TQORTempConvertor::noHiddenUnitsChanged);
    temp.LoadFromStore();
    EXPECT_EQ(temp.GetNoHiddenUnits(), 2);
    ASSERT_EQ(hiddenCount.count(), 1);
    EXPECT_EQ(hiddenCount.at(0).at(0).toInt(), 2);
    EXPECT_TRUE(temp.IsHidden(ettFahrenheit));
    EXPECT_TRUE(temp.IsHidden(ettRankine));
}

TEST_F(ConvertorTest, NoStoreOrNoStorageKindIsSkipped)
{
    TQORTempConvertor temp;
    temp.Hide(ettNewton);
    temp.SaveToStore();
    temp.LoadFromStore();
    TQORStoreCtrl store; // kind ritNone
    store.SetIniFileName(IniPath());
    temp.SetStoreCtrl(&store);
    temp.SaveToStore();
    temp.LoadFromStore();
    EXPECT_FALSE(QFile::exists(IniPath()));
    EXPECT_TRUE(temp.IsHidden(ettNewton));
}

TEST_F(ConvertorTest, StoreDestroyedFirstIsForgotten)
{
    TQORAreaConvertor area;
    auto* store = new TQORStoreCtrl;
    UseIniFile(*store);
    area.SetStoreCtrl(store);
    EXPECT_TRUE(store->IsInNotifyList(&area));
    QSignalSpy storeChanged(&area, &TQORAreaConvertor::storeCtrlChanged);
    delete store;
    EXPECT_EQ(area.GetStoreCtrl(), nullptr);
    EXPECT_EQ(storeChanged.count(), 1);
    area.Hide(eatAcres);
    area.SaveToStore();
    area.LoadFromStore();
    area.SetAreaTypeIn(eatHectares);
    area.SetValueIn(1);
    EXPECT_EQ(area.GetValueOut(), 10000.0L);
    EXPECT_TRUE(area.IsHidden(eatAcres));
}

TEST_F(ConvertorTest, ConvertorDestroyedFirstLeavesTheNotifyList)
{
    TQORStoreCtrl store;
    auto* owner = new QObject;
    auto* energy = new TQOREnergyConvertor(owner);
    energy->SetStoreCtrl(&store);
    ASSERT_TRUE(store.IsInNotifyList(energy));
    delete owner; // the owner destroys the convertor
    EXPECT_FALSE(store.IsInNotifyList(energy));
}

TEST_F(ConvertorTest, CreateConvertorCoversEveryQuantityWithUnits)
{
    QObject owner;
    for (int q = 0; q < static_cast<int>(QORConvTypeStr.size()); ++q) {
        const auto quantity = static_cast<TQORConvType>(q);
        TQORBaseConvertor* convertor = CreateConvertor(quantity, &owner);
        if (quantity == ectThermalConductivity) {
            EXPECT_EQ(convertor, nullptr);
            continue;
        }
        ASSERT_NE(convertor, nullptr) << q;
        EXPECT_EQ(convertor->GetQuantity(), quantity);
        EXPECT_EQ(convertor->parent(), &owner);
    }
}

} // namespace
} // namespace qorkit

#include "QORKITRegIni.h"

#include "QORKITSettings.h"
#include "QORKITStoreCtrl.h"

#include <cmath>
#include <limits>

namespace qorkit {

namespace {

const QString RadiansKey = QStringLiteral("Radians");
const QString MemoryKey = QStringLiteral("Memory");
const QString DispFontKey = QStringLiteral("DispFont");

// Passes the store's errors on to the hosts listening to the calculator settings.
void ReportErrors(TQORStoreCtrl& store)
{
    QObject::connect(&store, &TQORStoreCtrl::errorOccurred, QORCalcSettingsEvents(),
                     &TQORCalcSettingsEvents::errorOccurred);
}

// Sets up `store` on the section the process-wide variables name, or returns false when
// the chosen store is off or not fully named.
bool OpenCalculatorStore(TQORStoreCtrl& store)
{
    if (QORRegIniType == ritRegistry && !QORRegPath.empty() && !QORRegSection.empty()) {
        store.SetRegPath(QString::fromStdString(QORRegPath));
        store.SetRegIniType(ritRegistry);
        return store.OpenStorage(QString::fromStdString(QORRegSection));
    }
    if (QORRegIniType == ritIniFile && !QORIniFile.empty() && !QORIniSection.empty()) {
        store.SetIniFileName(QString::fromStdString(QORIniFile));
        store.SetRegIniType(ritIniFile);
        return store.OpenStorage(QString::fromStdString(QORIniSection));
    }
    return false;
}

} // namespace

TQORCalcSettingsEvents* QORCalcSettingsEvents()
{
    static TQORCalcSettingsEvents events;
    return &events;
}

void LoadCalculatorSettings()
{
    TQORStoreCtrl store;
    ReportErrors(store);
    if (!OpenCalculatorStore(store))
        return;
    QORCalcRadians = store.ReadBoolean(RadiansKey, QORCalcRadians);
    // Read and written as a double on purpose: the stored memory keeps double precision.
    // A missing or unreadable key leaves the memory exactly as it was, not rounded.
    const double memory = store.ReadFloat(MemoryKey, std::numeric_limits<double>::quiet_NaN());
    if (!std::isnan(memory))
        QORCalcMemory = memory;
    QORCalcDispFont
        = store.ReadString(DispFontKey, QString::fromStdString(QORCalcDispFont)).toStdString();
    store.CloseStorage();
}

void SaveCalculatorSettings() { TrySaveCalculatorSettings(); }

bool TrySaveCalculatorSettings(QString* error)
{
    TQORStoreCtrl store;
    ReportErrors(store);
    if (OpenCalculatorStore(store)) {
        store.WriteBoolean(RadiansKey, QORCalcRadians);
        store.WriteFloat(MemoryKey, static_cast<double>(QORCalcMemory));
        store.WriteString(DispFontKey, QString::fromStdString(QORCalcDispFont));
        store.CloseStorage();
    }
    if (error != nullptr)
        *error = store.GetErrorString();
    return store.GetStatus() == QSettings::NoError;
}

} // namespace qorkit

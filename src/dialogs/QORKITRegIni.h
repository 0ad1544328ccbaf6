// The calculator settings kept between runs: the angle mode (QORCalcRadians), the memory
// register (QORCalcMemory) and the display font (QORCalcDispFont), stored in the native
// settings store or an INI file as QORRegIniType chooses (QORKITSettings.h).
//
// A missing path, file name or section turns persistence off without a word, and a missing
// or unreadable key keeps the variable's present value. The memory passes through a double,
// so only double precision survives a save and load.
#pragma once

#include "qorkit_widgets_export.h"

#include <QObject>
#include <QString>

namespace qorkit {

QORKIT_WIDGETS_EXPORT void LoadCalculatorSettings();
QORKIT_WIDGETS_EXPORT void SaveCalculatorSettings();

// SaveCalculatorSettings for hosts that want to know how it went: false when a store is
// chosen and the settings could not be written (or the store could not be used); `error`
// then says why. Persistence turned off is not a failure.
QORKIT_WIDGETS_EXPORT bool TrySaveCalculatorSettings(QString* error = nullptr);

// Tells hosts when the calculator settings could not be loaded or saved, also when the
// calculator dialogs' free functions did it.
class QORKIT_WIDGETS_EXPORT TQORCalcSettingsEvents : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    void errorOccurred(const QString& message);
};

// The process-wide sender of those signals.
QORKIT_WIDGETS_EXPORT TQORCalcSettingsEvents* QORCalcSettingsEvents();

} // namespace qorkit

// Built against the installed Qt library as an ordinary Qt application: a host class with
// signals, slots and emit follows the library's signals.
#include "host.h"

#include <QApplication>
#include <QVariant>

#include <cstdio>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Host host;

    qorkit::TQORFloatEdit edit;
    QObject::connect(&edit, &qorkit::TQORBaseEdit::change, &host, &Host::onChange);
    edit.SetValue(12.5L);

    qorkit::TQORCalcEngineObject engine;
    QObject::connect(&engine, SIGNAL(displayChange()), &host, SLOT(onDisplay()));
    for (const char* key : {"2", "+", "3", "="})
        engine.PressKey(QString::fromLatin1(key));

    // Enum-valued properties speak names.
    edit.setProperty("ThousandSeparators", QStringLiteral("tsSpace"));
    const QString separators = edit.property("ThousandSeparators").toString();

    const bool ok = host.changes == 1 && host.displays > 0
        && host.lastDisplay == engine.GetDisplayText() && separators == QStringLiteral("tsSpace");
    std::printf("changes %d, displays %d, last '%s', separators %s\n", host.changes, host.displays,
                qPrintable(host.lastDisplay), qPrintable(separators));
    return ok ? 0 : 1;
}

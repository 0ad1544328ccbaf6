// Builds the form of every control that uic generated from a .ui file and checks that each
// control is there with its own class.
#include "ui_qorkit_controls.h"

#include <QApplication>
#include <QString>
#include <QStringList>

#include <cstdio>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QWidget form;
    Ui::QorkitControls ui;
    ui.setupUi(&form);
    int failures = 0;
    const QStringList controls
        = QString::fromLatin1(QORKIT_DESIGNER_CONTROLS).split(QLatin1Char(','));
    for (const QString& name : controls) {
        const auto* widget = form.findChild<QWidget*>(name);
        const QString expected = QStringLiteral("qorkit::") + name;
        if (widget == nullptr
            || QString::fromLatin1(widget->metaObject()->className()) != expected) {
            std::fprintf(stderr, "missing from the form: %s\n", qPrintable(expected));
            ++failures;
        }
    }
    std::printf("%lld controls on the uic form, %d missing\n",
                static_cast<long long>(controls.size()), failures);
    return failures == 0 ? 0 : 1;
}

// The form of the embedding guide as a program of its own.
#include "AmountForm.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("amounts"));
    const QString config = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(config);
    AmountForm form(config + QStringLiteral("/amounts.ini"));
    form.show();
    return QApplication::exec();
}

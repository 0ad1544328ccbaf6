// main() of the Qt test programs: offscreen unless told otherwise, Fusion style, GoogleTest
// running inside a QApplication so widgets, timers and the clipboard work.
#include <QApplication>
#include <QStandardPaths>
#include <QStyleFactory>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

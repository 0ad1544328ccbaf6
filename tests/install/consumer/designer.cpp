// Loads the INSTALLED Qt Designer plugin the way Designer and a QUiLoader program do: from the
// prefix's plugins/designer folder, with nothing of the library linked into this program (a
// shared build's plugin finds the libraries through its run path). Checks that the plugin
// offers exactly the expected controls, each described and creatable, and builds a form of
// every control through QUiLoader.
//   designer_check <plugin folder> <comma-separated class names without the namespace>
#include "DesignerForms.h"

#include <QApplication>
#include <QDir>
#include <QPluginLoader>

#include <cstdio>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: designer_check <plugin folder> <controls>\n");
        return 2;
    }
    const QString pluginDir = QString::fromLocal8Bit(argv[1]);
    QStringList expected;
    for (const QString& name : QString::fromLocal8Bit(argv[2]).split(QLatin1Char(',')))
        expected << QStringLiteral("qorkit::") + name;

    const QStringList files = QDir(pluginDir).entryList({QStringLiteral("*.so")}, QDir::Files);
    if (files.size() != 1) {
        std::fprintf(stderr, "expected one plugin in %s, found: %s\n", qPrintable(pluginDir),
                     qPrintable(files.join(QLatin1Char(' '))));
        return 1;
    }
    QPluginLoader loader;
    QString error;
    QDesignerCustomWidgetCollectionInterface* collection
        = designerforms::LoadCollection(loader, QDir(pluginDir).filePath(files.first()), &error);
    if (collection == nullptr) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    QStringList faults;
    const QStringList offered = designerforms::OfferedNames(*collection);
    if (offered != expected)
        faults << QStringLiteral("offered: ") + offered.join(QLatin1Char(' '));
    for (QDesignerCustomWidgetInterface* w : collection->customWidgets())
        faults << designerforms::DescriptionFaults(*w);
    faults << designerforms::UiLoaderFormFaults(pluginDir, expected);

    for (const QString& fault : faults)
        std::fprintf(stderr, "%s\n", qPrintable(fault));
    std::printf("%lld controls from %s, %lld faults\n", static_cast<long long>(offered.size()),
                qPrintable(files.first()), static_cast<long long>(faults.size()));
    return faults.isEmpty() ? 0 : 1;
}

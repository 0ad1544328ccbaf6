// The Qt Designer plugin from the build tree: loaded as Designer loads it, every control it
// offers described and created, a form of every control built by QUiLoader, and the plugin's
// table compared with the controls the headers declare.
#include "DesignerForms.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

const char* const kHeaderDirs[] = {"widgets", "dialogs", "controls", "expressions"};

QStringList ExpectedControls()
{
    QStringList names;
    for (const QString& name :
         QString::fromLatin1(QORKIT_DESIGNER_CONTROLS).split(QLatin1Char(',')))
        names << QStringLiteral("qorkit::") + name;
    return names;
}

QString SourceDir(const char* dir)
{
    return QString::fromLatin1(QORKIT_SOURCE_DIR) + QLatin1Char('/') + QString::fromLatin1(dir);
}

// The controls a form can hold, read from the headers: classes derived (through the library's
// own classes) from a Qt widget, with a public constructor taking only the parent widget.
// Dialogs are windows, not controls; bases with protected constructors cannot be made.
QStringList ControlsOfTheHeaders()
{
    static const QRegularExpression classDecl(
        QStringLiteral(R"(class QORKIT_WIDGETS_EXPORT (\w+)(?: final)?\s*:\s*public (\w+))"));
    QMap<QString, QString> baseOf;
    QString text;
    for (const char* dir : kHeaderDirs) {
        const QDir folder(SourceDir(dir));
        for (const QString& header : folder.entryList({QStringLiteral("*.h")}, QDir::Files)) {
            QFile file(folder.filePath(header));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QString content = QString::fromUtf8(file.readAll());
            text += content;
            for (const QRegularExpressionMatch& m : classDecl.globalMatch(content))
                baseOf.insert(m.captured(1), m.captured(2));
        }
    }
    static const QSet<QString> qtWidgets {QStringLiteral("QWidget"), QStringLiteral("QLineEdit"),
                                          QStringLiteral("QComboBox"), QStringLiteral("QLabel"),
                                          QStringLiteral("QFrame")};
    QStringList controls;
    for (auto it = baseOf.cbegin(); it != baseOf.cend(); ++it) {
        QString base = it.value();
        while (baseOf.contains(base))
            base = baseOf.value(base);
        const QRegularExpression publicCtor(
            QStringLiteral(R"(explicit %1\(QWidget\* parent = nullptr\);)").arg(it.key()));
        if (qtWidgets.contains(base) && text.contains(publicCtor))
            controls << QStringLiteral("qorkit::") + it.key();
    }
    return controls;
}

class DesignerPluginTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QString error;
        collection_ = designerforms::LoadCollection(
            loader_, QString::fromLatin1(QORKIT_DESIGNER_PLUGIN), &error);
        ASSERT_NE(collection_, nullptr) << qPrintable(error);
    }

    QPluginLoader loader_;
    QDesignerCustomWidgetCollectionInterface* collection_ = nullptr;
};

TEST_F(DesignerPluginTest, OffersEveryControlOfTheTableDescribedAndCreatable)
{
    EXPECT_EQ(designerforms::OfferedNames(*collection_), ExpectedControls());
    for (QDesignerCustomWidgetInterface* w : collection_->customWidgets()) {
        const QStringList faults = designerforms::DescriptionFaults(*w);
        EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(QLatin1Char('\n')));
        // The include file a form needs is a header of the library.
        bool found = false;
        for (const char* dir : kHeaderDirs)
            found
                = found || QFileInfo::exists(SourceDir(dir) + QLatin1Char('/') + w->includeFile());
        EXPECT_TRUE(found) << qPrintable(w->name() + QLatin1Char(' ') + w->includeFile());
    }
}

TEST_F(DesignerPluginTest, TableHoldsEveryControlTheHeadersDeclare)
{
    QStringList declared = ControlsOfTheHeaders();
    QStringList offered = designerforms::OfferedNames(*collection_);
    declared.sort();
    offered.sort();
    // The survey must see the well-known controls, or it proves nothing.
    EXPECT_TRUE(declared.contains(QStringLiteral("qorkit::TQORCalcEdit")));
    EXPECT_TRUE(declared.contains(QStringLiteral("qorkit::TQORBasePanel")));
    EXPECT_FALSE(declared.contains(QStringLiteral("qorkit::TQORCalcForm"))); // a dialog
    EXPECT_EQ(offered, declared);
}

TEST_F(DesignerPluginTest, UiLoaderBuildsAFormOfEveryControlWithAnEnumSetByName)
{
    const QStringList faults = designerforms::UiLoaderFormFaults(
        QFileInfo(QString::fromLatin1(QORKIT_DESIGNER_PLUGIN)).absolutePath(), ExpectedControls());
    EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(QLatin1Char('\n')));
}

} // namespace

// The Qt Designer plugin from the build tree: loaded as Designer loads it, every control it
// offers created, and a form of every control built by QUiLoader with an enum property set by
// its name.
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QStringList>
#include <QUiLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <gtest/gtest.h>

#include <memory>

namespace {

QStringList ExpectedControls()
{
    QStringList names;
    for (const QString& name :
         QString::fromLatin1(QORKIT_DESIGNER_CONTROLS).split(QLatin1Char(',')))
        names << QStringLiteral("qorkit::") + name;
    return names;
}

// A writable enumeration property of the library's own (its names start in upper case), and a
// key of it other than the current value: what a form sets by name.
struct EnumChoice {
    QString property;
    QString key;
    int value = 0;
};

EnumChoice ChooseEnumProperty(const QWidget& widget)
{
    const QMetaObject* meta = widget.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty prop = meta->property(i);
        const QString name = QString::fromLatin1(prop.name());
        if (!prop.isEnumType() || prop.isFlagType() || !prop.isWritable() || !name.at(0).isUpper())
            continue;
        const QMetaEnum e = prop.enumerator();
        const int current = prop.read(&widget).toInt();
        for (int k = e.keyCount() - 1; k >= 0; --k)
            if (e.value(k) != current)
                return {name, QString::fromLatin1(e.key(k)), e.value(k)};
    }
    return {};
}

class DesignerPluginTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        loader_.setFileName(QString::fromLatin1(QORKIT_DESIGNER_PLUGIN));
        ASSERT_TRUE(loader_.load()) << qPrintable(loader_.errorString());
        collection_ = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader_.instance());
        ASSERT_NE(collection_, nullptr);
    }

    QPluginLoader loader_;
    QDesignerCustomWidgetCollectionInterface* collection_ = nullptr;
};

TEST_F(DesignerPluginTest, OffersEveryControlOfTheTableInTheQorkitGroup)
{
    QStringList offered;
    for (const QDesignerCustomWidgetInterface* w : collection_->customWidgets()) {
        offered << w->name();
        SCOPED_TRACE(qPrintable(w->name()));
        EXPECT_EQ(w->group(), QStringLiteral("qorkit"));
        EXPECT_FALSE(w->icon().isNull());
        EXPECT_FALSE(w->icon().pixmap(22, 22).isNull());
        EXPECT_FALSE(w->toolTip().isEmpty());
        EXPECT_FALSE(w->isContainer());
        // The include file a form needs is a header of the library.
        const QString include = w->includeFile();
        bool found = false;
        for (const char* dir : {"widgets", "dialogs", "controls", "expressions"})
            found = found
                || QFileInfo::exists(QString::fromLatin1(QORKIT_SOURCE_DIR) + QLatin1Char('/')
                                     + QString::fromLatin1(dir) + QLatin1Char('/') + include);
        EXPECT_TRUE(found) << qPrintable(include);
        // A default size for a control dropped on a form.
        EXPECT_TRUE(w->domXml().contains(QStringLiteral("<width>"))) << qPrintable(w->domXml());
    }
    EXPECT_EQ(offered, ExpectedControls());
}

TEST_F(DesignerPluginTest, CreatesEveryControlItOffers)
{
    QWidget parent;
    for (QDesignerCustomWidgetInterface* w : collection_->customWidgets()) {
        SCOPED_TRACE(qPrintable(w->name()));
        QWidget* widget = w->createWidget(&parent);
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(QString::fromLatin1(widget->metaObject()->className()), w->name());
        EXPECT_EQ(widget->parentWidget(), &parent);
        // Designer's property editor offers the library's enumerations by their names.
        EXPECT_FALSE(ChooseEnumProperty(*widget).property.isEmpty());
    }
}

TEST_F(DesignerPluginTest, UiLoaderBuildsAFormOfEveryControlWithAnEnumSetByName)
{
    // The enumeration each control gets, chosen on a control made by the plugin.
    QString widgets;
    QList<EnumChoice> choices;
    QWidget scratch;
    for (QDesignerCustomWidgetInterface* w : collection_->customWidgets()) {
        const EnumChoice choice = ChooseEnumProperty(*w->createWidget(&scratch));
        choices << choice;
        widgets += QStringLiteral(
                       "<widget class=\"%1\" name=\"w%2\"><property name=\"%3\"><enum>%4</enum>"
                       "</property></widget>\n")
                       .arg(w->name())
                       .arg(choices.size())
                       .arg(choice.property, choice.key);
    }
    QByteArray ui
        = QStringLiteral("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" "
                         "name=\"Form\">\n%1</widget></ui>\n")
              .arg(widgets)
              .toUtf8();
    QBuffer buffer(&ui);
    QUiLoader uiLoader;
    uiLoader.clearPluginPaths();
    uiLoader.addPluginPath(QFileInfo(QString::fromLatin1(QORKIT_DESIGNER_PLUGIN)).absolutePath());
    for (const QString& name : ExpectedControls())
        EXPECT_TRUE(uiLoader.availableWidgets().contains(name)) << qPrintable(name);

    QWidget parent;
    std::unique_ptr<QWidget> form(uiLoader.load(&buffer, &parent));
    ASSERT_NE(form, nullptr) << qPrintable(uiLoader.errorString());
    const QStringList expected = ExpectedControls();
    for (int i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(qPrintable(expected.at(i)));
        const auto* widget = form->findChild<QWidget*>(QStringLiteral("w%1").arg(i + 1));
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(QString::fromLatin1(widget->metaObject()->className()), expected.at(i));
        EXPECT_EQ(widget->property(choices.at(i).property.toLatin1().constData()).toInt(),
                  choices.at(i).value)
            << qPrintable(choices.at(i).property + QLatin1Char('=') + choices.at(i).key);
    }
}

} // namespace

// Checks of the library's Qt Designer plugin as Designer and QUiLoader use it: the description
// of every control it offers, and a form holding one of each control built by QUiLoader with an
// enumeration property set by its key name. Each check returns its faults as readable lines
// (empty when all is well). Used by the build-tree test and by the program that loads the
// installed plugin; it needs Qt only, not the library.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QList>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QString>
#include <QStringList>
#include <QUiLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

namespace designerforms {

// The group the plugin puts its controls in.
inline const QString kGroup = QStringLiteral("qorkit");

// A writable enumeration property of the library's own (its names start in upper case), and a
// key of it other than the current value: what a form sets by name.
struct EnumChoice {
    QString property;
    QString key;
    int value = 0;
};

inline EnumChoice ChooseEnumProperty(const QWidget& widget)
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

// The plugin's collection, or nullptr with the reason in `error`.
inline QDesignerCustomWidgetCollectionInterface* LoadCollection(QPluginLoader& loader,
                                                                const QString& file, QString* error)
{
    loader.setFileName(file);
    if (!loader.load()) {
        *error = loader.errorString();
        return nullptr;
    }
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    if (collection == nullptr)
        *error = file + QStringLiteral(": not a collection of Designer widgets");
    return collection;
}

// What Designer's widget box and a form need of one control: the group, an icon that paints,
// a tool tip, the include file, a default size; and the control itself, made by the plugin,
// of the class it names and with an enumeration its property editor shows by name.
inline QStringList DescriptionFaults(QDesignerCustomWidgetInterface& w)
{
    QStringList faults;
    const QString name = w.name();
    auto fault = [&](const QString& what) { faults << name + QStringLiteral(": ") + what; };
    if (w.group() != kGroup)
        fault(QStringLiteral("group '%1'").arg(w.group()));
    if (w.icon().isNull() || w.icon().pixmap(22, 22).isNull())
        fault(QStringLiteral("no icon"));
    if (w.toolTip().isEmpty())
        fault(QStringLiteral("no tool tip"));
    if (!w.includeFile().endsWith(QStringLiteral(".h")))
        fault(QStringLiteral("include file '%1'").arg(w.includeFile()));
    if (!w.domXml().contains(QStringLiteral("<width>")))
        fault(QStringLiteral("no default size in ") + w.domXml());
    if (w.isContainer())
        fault(QStringLiteral("offered as a container"));
    QWidget parent;
    QWidget* widget = w.createWidget(&parent);
    if (widget == nullptr) {
        fault(QStringLiteral("not created"));
        return faults;
    }
    if (QString::fromLatin1(widget->metaObject()->className()) != name)
        fault(QStringLiteral("created as ")
              + QString::fromLatin1(widget->metaObject()->className()));
    if (widget->parentWidget() != &parent)
        fault(QStringLiteral("created without its parent"));
    if (ChooseEnumProperty(*widget).property.isEmpty())
        fault(QStringLiteral("no enumeration property"));
    return faults;
}

// The names the plugin offers, in its order.
inline QStringList OfferedNames(QDesignerCustomWidgetCollectionInterface& collection)
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface* w : collection.customWidgets())
        names << w->name();
    return names;
}

// Builds, with QUiLoader finding plugins in `pluginDir` only, a .ui form holding one control of
// each class of `classes` (qualified names, e.g. "qorkit::TQORCalcEdit"); each control has an
// enumeration property set by its key name. Checks that every control is on the form with its
// own class and the property's value.
inline QStringList UiLoaderFormFaults(const QString& pluginDir, const QStringList& classes)
{
    QStringList faults;
    QUiLoader uiLoader;
    uiLoader.clearPluginPaths();
    uiLoader.addPluginPath(pluginDir);
    const QStringList available = uiLoader.availableWidgets();
    QList<EnumChoice> choices;
    QString widgets;
    QWidget scratch;
    for (const QString& name : classes) {
        if (!available.contains(name))
            faults << name + QStringLiteral(": not available to QUiLoader");
        QWidget* probe = uiLoader.createWidget(name, &scratch);
        const EnumChoice choice = probe != nullptr ? ChooseEnumProperty(*probe) : EnumChoice {};
        choices << choice;
        const QString property = choice.property.isEmpty()
            ? QString()
            : QStringLiteral("<property name=\"%1\"><enum>%2</enum></property>")
                  .arg(choice.property, choice.key);
        widgets += QStringLiteral("<widget class=\"%1\" name=\"w%2\">%3</widget>\n")
                       .arg(name)
                       .arg(choices.size())
                       .arg(property);
    }
    QByteArray ui
        = QStringLiteral("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" "
                         "name=\"Form\">\n%1</widget></ui>\n")
              .arg(widgets)
              .toUtf8();
    QBuffer buffer(&ui);
    QWidget parent;
    std::unique_ptr<QWidget> form(uiLoader.load(&buffer, &parent));
    if (form == nullptr)
        return faults << QStringLiteral("no form: ") + uiLoader.errorString();
    for (int i = 0; i < classes.size(); ++i) {
        const QString& name = classes.at(i);
        const auto* widget = form->findChild<QWidget*>(QStringLiteral("w%1").arg(i + 1));
        if (widget == nullptr) {
            faults << name + QStringLiteral(": missing from the form");
            continue;
        }
        if (QString::fromLatin1(widget->metaObject()->className()) != name)
            faults << name + QStringLiteral(": on the form as ")
                    + QString::fromLatin1(widget->metaObject()->className());
        const EnumChoice& choice = choices.at(i);
        if (choice.property.isEmpty())
            faults << name + QStringLiteral(": no enumeration property to set");
        else if (widget->property(choice.property.toLatin1().constData()).toInt() != choice.value)
            faults << name + QStringLiteral(": %1 not set to %2").arg(choice.property, choice.key);
    }
    return faults;
}

} // namespace designerforms

// A survey of every QObject class of the library through its meta-object: writable properties
// have a change signal, enum-valued properties are registered enums. The table of classes is
// checked against the headers, so a new class cannot be left out of the survey.
#include "QORKITBaseControls.h"
#include "QORKITBaseEdit.h"
#include "QORKITCalcEdit.h"
#include "QORKITCalcFormBase.h"
#include "QORKITCalculator.h"
#include "QORKITComplexEdit.h"
#include "QORKITConvertors.h"
#include "QORKITCurrCalcEdit.h"
#include "QORKITCurrComboBox.h"
#include "QORKITCurrEdit.h"
#include "QORKITCurrSpinEdit.h"
#include "QORKITDMSEdit.h"
#include "QORKITEditColors.h"
#include "QORKITEngineObjects.h"
#include "QORKITExprEdit.h"
#include "QORKITExprEvaluator.h"
#include "QORKITFloatCalcComponent.h"
#include "QORKITFloatCalcForm.h"
#include "QORKITFloatEdit.h"
#include "QORKITProgCalculator.h"
#include "QORKITRegIni.h"
#include "QORKITSciCalcEdit.h"
#include "QORKITSciCalculator.h"
#include "QORKITStoreCtrl.h"
#include "QORKITTapeModel.h"

#include <QDirIterator>
#include <QFile>
#include <QMetaObject>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <span>

namespace qorkit {
namespace {

// Every QObject class of the library.
const QMetaObject* const LibraryClasses[] = {&TQOREditColorSet::staticMetaObject,
                                             &TQORUICtrl::staticMetaObject,
                                             &TQORLook::staticMetaObject,
                                             &TQORBaseEdit::staticMetaObject,
                                             &TQORStartEdit::staticMetaObject,
                                             &TQORFloatEdit::staticMetaObject,
                                             &TQORBaseSpinEdit::staticMetaObject,
                                             &TQORFloatSpinEdit::staticMetaObject,
                                             &TQORBaseComboBox::staticMetaObject,
                                             &TQORBasePanel::staticMetaObject,
                                             &TQORStoreCtrl::staticMetaObject,
                                             &TQORCalcFormBase::staticMetaObject,
                                             &TQORFloatCalcForm::staticMetaObject,
                                             &TQORCalcForm::staticMetaObject,
                                             &TQORSciCalcForm::staticMetaObject,
                                             &TQORProgCalcForm::staticMetaObject,
                                             &TQORCalcComponent::staticMetaObject,
                                             &TQORFloatCalcComponent::staticMetaObject,
                                             &TQORCalculator::staticMetaObject,
                                             &TQORSciCalculator::staticMetaObject,
                                             &TQORProgCalculator::staticMetaObject,
                                             &TQORCalcEngineObject::staticMetaObject,
                                             &TQORProgCalcEngineObject::staticMetaObject,
                                             &TQORCalcSettingsEvents::staticMetaObject,
                                             &TQORTapeModel::staticMetaObject,
                                             &TQORBaseConvertor::staticMetaObject,
                                             &TQORCalcEditBase::staticMetaObject,
                                             &TQORFloatCalcEdit::staticMetaObject,
                                             &TQORCalcEdit::staticMetaObject,
                                             &TQORSciCalcEdit::staticMetaObject,
                                             &TQORBaseCurrEdit::staticMetaObject,
                                             &TQORCurrEdit::staticMetaObject,
                                             &TQORLongCurrEdit::staticMetaObject,
                                             &TQORCurrencyEdit::staticMetaObject,
                                             &TQORExprEvaluator::staticMetaObject,
                                             &TQORExpressEdit::staticMetaObject,
                                             &TQORComplexEdit::staticMetaObject,
                                             &TQORDMSEdit::staticMetaObject,
                                             &TQORCurrCalcEditBase::staticMetaObject,
                                             &TQORCurrCalcEdit::staticMetaObject,
                                             &TQORLongCurrCalcEdit::staticMetaObject,
                                             &TQORCurrencyCalcEdit::staticMetaObject,
                                             &TQORBaseCurrSpinEdit::staticMetaObject,
                                             &TQORCurrSpinEdit::staticMetaObject,
                                             &TQORLongCurrSpinEdit::staticMetaObject,
                                             &TQORCurrencySpinEdit::staticMetaObject,
                                             &TQOREMUComboBox::staticMetaObject,
#define QORKIT_SURVEY_CONVERTOR(convertor, type, key) &convertor::staticMetaObject,
                                             QORKIT_CONVERTOR_LIST(QORKIT_SURVEY_CONVERTOR)
#undef QORKIT_SURVEY_CONVERTOR
};

// Transient properties that Qt's own line edit also leaves without a change signal.
const QSet<QString> Transient = {
    QStringLiteral("SelStart"),
    QStringLiteral("SelLength"),
    QStringLiteral("SelText"),
    QStringLiteral("Modified"),
};

// Properties that hold one of the library's enumerations wherever they appear.
const QSet<QString> EnumNames = {
    QStringLiteral("Style"),      QStringLiteral("UIUsage"),
    QStringLiteral("BevelOuter"), QStringLiteral("Arrows"),
    QStringLiteral("Position"),   QStringLiteral("ThousandSeparators"),
    QStringLiteral("RegIni"),     QStringLiteral("RegIniType"),
    QStringLiteral("AngleMode"),  QStringLiteral("BaseDisplay"),
    QStringLiteral("BitSize"),
};

QString ShortName(const QMetaObject* meta)
{
    return QString::fromLatin1(meta->className()).section(QStringLiteral("::"), -1);
}

std::string Name(const ::testing::TestParamInfo<const QMetaObject*>& info)
{
    return ShortName(info.param).toStdString();
}

class MetaObjectSurvey : public ::testing::TestWithParam<const QMetaObject*> { };

TEST_P(MetaObjectSurvey, WritablePropertiesSignalTheirChanges)
{
    const QMetaObject* meta = GetParam();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (!property.isWritable() || Transient.contains(QLatin1String(property.name())))
            continue;
        EXPECT_TRUE(property.hasNotifySignal()) << property.name();
    }
}

TEST_P(MetaObjectSurvey, EnumValuedPropertiesAreRegisteredEnums)
{
    const QMetaObject* meta = GetParam();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const bool enumType = (property.metaType().flags() & QMetaType::IsEnumeration) != 0;
        if (enumType || EnumNames.contains(QLatin1String(property.name()))) {
            EXPECT_TRUE(property.isEnumType()) << property.name() << " " << property.typeName();
            EXPECT_TRUE(property.enumerator().isValid()) << property.name();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Library, MetaObjectSurvey, ::testing::ValuesIn(LibraryClasses), Name);

// Every class with Q_OBJECT in the library's headers is in the survey's table.
TEST(MetaObjectSurveyTable, ListsEveryClassOfTheHeaders)
{
    QSet<QString> listed;
    for (const QMetaObject* meta : LibraryClasses)
        listed << ShortName(meta);
    const QRegularExpression declaration(QStringLiteral(
        R"(class\s+(?:\w+_EXPORT\s+)?(\w+)(?:\s+final)?\s*(?::[^{;]*)?\{\s*Q_OBJECT\b)"));
    int found = 0;
    QDirIterator files(QStringLiteral(QORKIT_SOURCE_DIR), {QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        const QString text = QString::fromUtf8(file.readAll());
        auto matches = declaration.globalMatch(text);
        while (matches.hasNext()) {
            const QString name = matches.next().captured(1);
            ++found;
            EXPECT_TRUE(listed.contains(name))
                << name.toStdString() << " (" << file.fileName().toStdString() << ")";
        }
    }
    EXPECT_GE(found, static_cast<int>(std::size(LibraryClasses)));
}

} // namespace
} // namespace qorkit

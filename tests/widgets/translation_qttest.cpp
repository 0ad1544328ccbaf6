#include "QORKITFloatEdit.h"
#include "QORKITImperial.h"
#include "QORKITSettings.h"
#include "QORKITTranslation.h"
#include "QORKIT_RS_Calc.h"
#include "QorkitTestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace qorkit {
namespace {

class TranslationHookTest : public test::GlobalStateTest { };

// Reads a .ts text into context -> (source -> names comment).
std::map<QString, std::map<QString, QString>> ParseTs(const QByteArray& ts, QString* error)
{
    std::map<QString, std::map<QString, QString>> contexts;
    QXmlStreamReader xml(ts);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("extracomment"))
            contexts[context][source] = xml.readElementText();
    }
    if (xml.hasError())
        *error = xml.errorString();
    return contexts;
}

TEST_F(TranslationHookTest, TemplateListsEveryTextOnceUnderItsModule)
{
    QString error;
    const auto contexts = ParseTs(TranslationTemplate(), &error);
    ASSERT_TRUE(error.isEmpty()) << error.toStdString();
    ASSERT_EQ(contexts.size(), TextModules().size());
    for (const auto& module : TextModules()) {
        const auto it = contexts.find(QString::fromUtf8(
            module.Context.data(), static_cast<qsizetype>(module.Context.size())));
        ASSERT_NE(it, contexts.end()) << module.Context;
        std::set<std::string> sources;
        for (const auto& text : module.Texts) {
            sources.emplace(text.Source);
            const auto message = it->second.find(
                QString::fromUtf8(text.Source.data(), static_cast<qsizetype>(text.Source.size())));
            ASSERT_NE(message, it->second.end()) << text.Name;
            EXPECT_TRUE(message->second.split(QStringLiteral(", "))
                            .contains(QString::fromUtf8(text.Name.data(),
                                                        static_cast<qsizetype>(text.Name.size()))))
                << text.Name;
        }
        EXPECT_EQ(it->second.size(), sources.size()) << module.Context;
    }
    // Shared sources are listed once with every name that uses them.
    EXPECT_EQ(contexts.at(QStringLiteral("QORKIT_RS_Calc")).at(QStringLiteral("sin")),
              QStringLiteral("rsSinPaper, rsSinKey"));
}

// Fills the translations of some sources in a .ts text, as a translator would in Linguist.
QByteArray FillTranslations(const QByteArray& ts, const std::map<QString, QString>& translations)
{
    QByteArray result;
    QXmlStreamReader in(ts);
    QXmlStreamWriter out(&result);
    QString context;
    QString source;
    while (!in.atEnd()) {
        in.readNext();
        if (in.isStartElement() && in.name() == QLatin1String("translation")) {
            const auto found = translations.find(context + u'|' + source);
            out.writeStartElement(QStringLiteral("translation"));
            if (found == translations.end())
                out.writeAttribute(QStringLiteral("type"), QStringLiteral("unfinished"));
            else
                out.writeCharacters(found->second);
            out.writeEndElement();
            in.skipCurrentElement();
            continue;
        }
        const bool isName = in.isStartElement() && in.name() == QLatin1String("name");
        if (isName || (in.isStartElement() && in.name() == QLatin1String("source"))) {
            out.writeCurrentToken(in);
            QString& field = isName ? context : source;
            field = in.readElementText();
            out.writeCharacters(field);
            out.writeEndElement();
            continue;
        }
        out.writeCurrentToken(in);
    }
    return result;
}

// The whole Linguist path: the generated template, translated, compiled by lrelease into a
// .qm file and loaded by a plain QTranslator, translates the library's texts.
TEST_F(TranslationHookTest, CompiledTemplateTranslatesTheLibrary)
{
    const QString lrelease
        = QDir(QLibraryInfo::path(QLibraryInfo::BinariesPath)).filePath(QStringLiteral("lrelease"));
    if (!QFileInfo(lrelease).isExecutable())
        GTEST_SKIP() << "lrelease is not installed";
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString tsPath = dir.filePath(QStringLiteral("qorkit_de.ts"));
    const QString qmPath = dir.filePath(QStringLiteral("qorkit_de.qm"));
    QFile ts(tsPath);
    ASSERT_TRUE(ts.open(QIODevice::WriteOnly));
    ts.write(FillTranslations(
        TranslationTemplate(),
        {{QStringLiteral("QORKIT_RS_Calc|Error!"), QStringLiteral("Fehler!")},
         {QStringLiteral("QORKIT_RS_Calc|sin"), QStringLiteral("sinus")},
         {QStringLiteral("QORKITImperial|Ratio cannot be 0"),
          QStringLiteral("Verh\u00E4ltnis darf nicht 0 sein")},
         {QStringLiteral("QORKITFloatEdit|The value is not a finite number"),
          QStringLiteral("Der Wert ist keine endliche Zahl")},
         {QStringLiteral("QORKIT_RS_Calc|Exit and Transfer Result"),
          QString::fromUtf8("Beenden und Ergebnis \xC3\xBC"
                            "bernehmen")},
         {QStringLiteral("QORKIT_Base|Division by zero"), QStringLiteral("Division durch null")}}));
    ts.close();

    QProcess process;
    process.start(lrelease, {QStringLiteral("-silent"), tsPath, QStringLiteral("-qm"), qmPath});
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();

    QTranslator translator;
    ASSERT_TRUE(translator.load(qmPath));
    InstallQtTranslationHook();
    EXPECT_EQ(rsErrorMsg(), "Error!");
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(rsErrorMsg(), "Fehler!");
    EXPECT_EQ(rsDivideByZero(), "Division durch null");
    EXPECT_EQ(rsSinKey(), "sinus");
    EXPECT_EQ(rsSinPaper(), "sinus");
    EXPECT_EQ(rsImperialRatioZero(), "Verh\xC3\xA4ltnis darf nicht 0 sein");
    EXPECT_EQ(rsValueNotFinite(), "Der Wert ist keine endliche Zahl");
    EXPECT_EQ(rsExitHint(),
              "Beenden und Ergebnis \xC3\xBC"
              "bernehmen");
    // Untranslated texts stay English, and the lookup follows the installed translators.
    EXPECT_EQ(rsCosKey(), "cos");
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(rsErrorMsg(), "Error!");
}

struct LocaleRow {
    const char* name;
    QLocale locale;
    char decimal;
    char thousands;
    std::string currency;
};

class LocaleSyncTest : public test::GlobalStateTestOf<test::Area::Format>,
                       public ::testing::WithParamInterface<LocaleRow> { };

TEST_P(LocaleSyncTest, SeparatorsAndCurrencyFollowTheLocale)
{
    FormatSettings.CurrencyString = "stale";
    SyncFormatSettingsFromLocale(GetParam().locale);
    EXPECT_EQ(FormatSettings.DecimalSeparator, GetParam().decimal);
    EXPECT_EQ(FormatSettings.ThousandSeparator, GetParam().thousands);
    EXPECT_EQ(FormatSettings.CurrencyString, GetParam().currency);
}

INSTANTIATE_TEST_SUITE_P(
    Locales, LocaleSyncTest,
    ::testing::Values(
        LocaleRow {"German", QLocale(QLocale::German), ',', '.', "\xE2\x82\xAC"},
        // narrow no-break space as thousands separator
        LocaleRow {"French", QLocale(QLocale::French, QLocale::France), ',', ' ', "\xE2\x82\xAC"},
        // typographic apostrophe as thousands separator
        LocaleRow {"SwissGerman", QLocale(QLocale::German, QLocale::Switzerland), '.', '\'', "CHF"},
        // Arabic-Indic separators
        LocaleRow {"ArabicEgypt", QLocale(QLocale::Arabic, QLocale::Egypt), '.', ',',
                   "\xD8\xAC.\xD9\x85.\xE2\x80\x8F"},
        LocaleRow {"IndianEnglish", QLocale(QLocale::English, QLocale::India), '.', ',',
                   "\xE2\x82\xB9"},
        // no currency symbol at all: the library default
        LocaleRow {"C", QLocale::c(), '.', ',', "$"}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace qorkit

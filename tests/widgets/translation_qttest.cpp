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

// German for two texts of two modules; everything else untranslated.
class GermanTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override
    {
        Q_UNUSED(disambiguation);
        Q_UNUSED(n);
        const std::string key = std::string(context) + '|' + sourceText;
        if (key == "QORKIT_RS_Calc|Error!")
            return QStringLiteral("Fehler!");
        if (key == "QORKIT_RS_Calc|Exit and Transfer Result")
            return QString::fromUtf8("Beenden und Ergebnis \xC3\xBC"
                                     "bernehmen");
        if (key == "QORKIT_Base|Division by zero")
            return QStringLiteral("Division durch null");
        return {};
    }
};

class TranslationHookTest : public test::GlobalStateTest {
protected:
    void TearDown() override
    {
        QCoreApplication::removeTranslator(&translator_);
        test::GlobalStateTest::TearDown();
    }
    GermanTranslator translator_;
};

TEST_F(TranslationHookTest, InstalledTranslatorsTranslateAtTheMomentOfUse)
{
    InstallQtTranslationHook();
    EXPECT_EQ(rsErrorMsg(), "Error!");

    ASSERT_TRUE(QCoreApplication::installTranslator(&translator_));
    EXPECT_EQ(rsErrorMsg(), "Fehler!");
    EXPECT_EQ(rsDivideByZero(), "Division durch null");
    EXPECT_EQ(rsExitHint(),
              "Beenden und Ergebnis \xC3\xBC"
              "bernehmen");
    // A text the translator does not know stays English; the same source in another module's
    // context is not translated by accident.
    EXPECT_EQ(rsPaperErrLine(), "- - - - ERROR - - - -");

    QCoreApplication::removeTranslator(&translator_);
    EXPECT_EQ(rsErrorMsg(), "Error!");
}

TEST_F(TranslationHookTest, RemovingTheHookRestoresEnglish)
{
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator_));
    InstallQtTranslationHook();
    EXPECT_EQ(rsErrorMsg(), "Fehler!");
    SetTranslationHook({});
    EXPECT_EQ(rsErrorMsg(), "Error!");
}

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
        if (in.isStartElement() && in.name() == QLatin1String("name")) {
            out.writeCurrentToken(in);
            context = in.readElementText();
            out.writeCharacters(context);
            out.writeEndElement();
            continue;
        }
        if (in.isStartElement() && in.name() == QLatin1String("source")) {
            out.writeCurrentToken(in);
            source = in.readElementText();
            out.writeCharacters(source);
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
         {QStringLiteral("QORKIT_Base|Division by zero"), QStringLiteral("Division durch null")}}));
    ts.close();

    QProcess process;
    process.start(lrelease, {QStringLiteral("-silent"), tsPath, QStringLiteral("-qm"), qmPath});
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();

    QTranslator translator;
    ASSERT_TRUE(translator.load(qmPath));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    InstallQtTranslationHook();
    EXPECT_EQ(rsErrorMsg(), "Fehler!");
    EXPECT_EQ(rsDivideByZero(), "Division durch null");
    EXPECT_EQ(rsSinKey(), "sinus");
    EXPECT_EQ(rsSinPaper(), "sinus");
    EXPECT_EQ(rsCosKey(), "cos");
    QCoreApplication::removeTranslator(&translator);
}

struct LocaleRow {
    const char* name;
    QLocale locale;
    char decimal;
    char thousands;
    std::string currency;
};

class LocaleSyncTest : public test::GlobalStateTest,
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
                   QLocale(QLocale::Arabic, QLocale::Egypt).currencySymbol().toStdString()},
        LocaleRow {"IndianEnglish", QLocale(QLocale::English, QLocale::India), '.', ',',
                   "\xE2\x82\xB9"},
        // no currency symbol at all: the library default
        LocaleRow {"C", QLocale::c(), '.', ',', "$"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(LocaleSyncTest, DefaultArgumentIsTheCurrentDefaultLocale)
{
    const QLocale saved;
    QLocale::setDefault(QLocale(QLocale::German));
    SyncFormatSettingsFromLocale();
    QLocale::setDefault(saved);
    EXPECT_EQ(FormatSettings.DecimalSeparator, ',');
    EXPECT_EQ(FormatSettings.ThousandSeparator, '.');
}

} // namespace
} // namespace qorkit

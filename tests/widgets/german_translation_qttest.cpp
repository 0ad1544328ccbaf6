// The German translation bundled with the library: loaded by LoadTranslation(), complete
// against the current texts, and reaching the library's texts and dialogs.
#include "QORKITConversion.h"
#include "QORKITTranslation.h"
#include "QORKIT_RS_Calc.h"
#include "QORKIT_RS_UC.h"
#include "QorkitTestSupport.h"

#include <QCoreApplication>
#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

namespace qorkit {
namespace {

// One message of a .ts file.
struct TsMessage {
    QString Translation;
    bool Finished = false;
};
using TsFile = std::map<std::pair<QString, QString>, TsMessage>; // (context, source)

TsFile ReadTs(const QByteArray& ts)
{
    TsFile messages;
    QXmlStreamReader xml(ts);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            TsMessage message;
            message.Finished = xml.attributes().value(QLatin1String("type")).isEmpty();
            message.Translation = xml.readElementText();
            messages[{context, source}] = message;
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

class GermanTranslationTest : public test::GlobalStateTest {
protected:
    void TearDown() override
    {
        LoadTranslation(QLocale::c()); // back to the built-in English
        test::GlobalStateTest::TearDown();
    }
};

// Every text the library has today is in the German file, finished and not empty; a text added
// to a module without a German translation fails here.
TEST_F(GermanTranslationTest, EveryLibraryTextIsTranslated)
{
    QFile file(QStringLiteral(QORKIT_TRANSLATIONS_DIR "/qorkit_de.ts"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const TsFile german = ReadTs(file.readAll());
    const TsFile current = ReadTs(TranslationTemplate());
    ASSERT_GT(current.size(), 1200u);
    std::size_t differing = 0;
    for (const auto& [key, unused] : current) {
        if (key.second.isEmpty())
            continue; // an empty text has nothing to translate
        const auto found = german.find(key);
        ASSERT_NE(found, german.end())
            << key.first.toStdString() << ": " << key.second.toStdString();
        EXPECT_TRUE(found->second.Finished) << key.second.toStdString();
        EXPECT_FALSE(found->second.Translation.trimmed().isEmpty()) << key.second.toStdString();
        differing += found->second.Translation != key.second ? 1 : 0;
    }
    // Symbols, proper names and unit names shared by both languages stay; most texts change.
    EXPECT_GT(differing, current.size() * 3 / 4);
}

struct SampleRow {
    const char* name;
    std::string (*text)();
    const char* german;
};

class GermanSampleTest : public GermanTranslationTest,
                         public ::testing::WithParamInterface<SampleRow> { };

TEST_P(GermanSampleTest, LoadedTranslationGivesTheGermanText)
{
    ASSERT_TRUE(LoadTranslation(QLocale(QLocale::German, QLocale::Germany)));
    EXPECT_EQ(GetParam().text(), GetParam().german);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, GermanSampleTest,
    ::testing::Values(SampleRow {"ErrorMessage", rsErrorMsg, "Fehler!"},
                      SampleRow {"ExitHint", rsExitHint,
                                 "Beenden und Ergebnis \xC3\xBC"
                                 "bernehmen"},
                      SampleRow {"MemoryRecallHint", rsMRHint, "Speicher abrufen"},
                      SampleRow {"CalculatorTitle", rsCalculator, "Rechner"},
                      SampleRow {"GradiansOnTheKey", rsGraAbbrev, "gon"},
                      SampleRow {"QuantityPower", rsName_ectPowerConv, "Leistung"},
                      SampleRow {"Metres", rsName_edtMetres, "Meter"},
                      SampleRow {"Inches", rsName_edtInches, "Zoll"},
                      SampleRow {"Feet", rsName_edtFeet, "Fu\xC3\x9F"},
                      SampleRow {"Pounds", rsName_emtPounds, "Pfund"},
                      SampleRow {"Kiloponds", rsName_eftKiloponds, "Kilopond"},
                      SampleRow {"Celsius", rsName_ettCelsius, "Celsius"},
                      SampleRow {"KilometresPerHour", rsName_evtKilometresPerHr,
                                 "Kilometer pro Stunde"},
                      SampleRow {"KPHSymbol", rsName_evtKPH, "km/h"},
                      SampleRow {"CubicFeet", rsName_evtCubicFeet, "Kubikfu\xC3\x9F"},
                      SampleRow {"NauticalMilesUK", rsName_edtNauticalMilesUK, "Seemeile (brit.)"},
                      SampleRow {"MercuryColumn", rsName_eptMillimetresOfMercury0C,
                                 "Millimeter Quecksilbers\xC3\xA4ule bei 0 \xC2\xB0"
                                 "C"},
                      SampleRow {"CelsiusMessage", rsCelsiusBelowZero,
                                 "Die Temperatur kann nicht unter -273,15 \xC2\xB0"
                                 "C liegen"},
                      SampleRow {"DivideByZero", rsDivideByZero, "Division durch null"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(GermanTranslationTest, SwitchingBackToEnglishRemovesTheTranslation)
{
    ASSERT_TRUE(LoadTranslation(QLocale(QStringLiteral("de_AT"))));
    EXPECT_EQ(rsName_edtInches(), "Zoll");
    // A second German load replaces the first translator rather than stacking another one.
    ASSERT_TRUE(LoadTranslation(QLocale(QStringLiteral("de_DE"))));
    EXPECT_FALSE(LoadTranslation(QLocale(QLocale::English, QLocale::UnitedKingdom)));
    EXPECT_EQ(rsName_edtInches(), "Inches");
    EXPECT_EQ(rsErrorMsg(), "Error!");
}

// The conversion component names units through the same texts.
TEST_F(GermanTranslationTest, UnitNamesOfTheConversionTablesAreGerman)
{
    ASSERT_TRUE(LoadTranslation(QLocale(QLocale::German)));
    EXPECT_EQ(UnitName(ectTemperature, ettCelsius), "Celsius");
    EXPECT_EQ(UnitName(ectMass, emtKilograms), "Kilogramm");
}

} // namespace
} // namespace qorkit

// Loading and saving the calculator settings: both stores, names left empty, missing keys,
// and a memory that a double cannot carry.
#include "QORKITRegIni.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cfloat>

namespace qorkit {
namespace {

class RegIniTest : public test::GlobalStateTestOf<test::Area::Calculator | test::Area::Store> {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        ASSERT_TRUE(dir_.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir_.path());
    }
    void UseIni()
    {
        QORRegIniType = ritIniFile;
        QORIniFile = dir_.filePath(QStringLiteral("calc.ini")).toStdString();
        QORIniSection = "Calculator";
    }
    void UseRegistry()
    {
        QORRegIniType = ritRegistry;
        QORRegPath = "Software/QorkitTests/Calc";
        QORRegSection = "Calculator";
    }
    void SetVariables(bool radians, Extended memory, const std::string& font)
    {
        QORCalcRadians = radians;
        QORCalcMemory = memory;
        QORCalcDispFont = font;
    }
    static void WriteFile(const QString& path, const QByteArray& contents)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    static std::string ReadFile(const std::string& path)
    {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }
    QTemporaryDir dir_;
};

TEST_F(RegIniTest, IniRoundTripKeepsDoublePrecisionOfTheMemory)
{
    UseIni();
    SetVariables(false, 1.0L / 3.0L, "Arial,12,-1,5,75,0,0,0,0,0");
    SaveCalculatorSettings();
    SetVariables(true, 7, "Other");
    LoadCalculatorSettings();
    EXPECT_FALSE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, static_cast<Extended>(1.0 / 3.0));
    EXPECT_NE(QORCalcMemory, 1.0L / 3.0L);
    EXPECT_EQ(QORCalcDispFont, "Arial,12,-1,5,75,0,0,0,0,0");

    EXPECT_EQ(ReadFile(QORIniFile),
              "[Calculator]\nRadians=false\nMemory=0.33333333333333331\n"
              "DispFont=Arial,12,-1,5,75,0,0,0,0,0\n");
}

TEST_F(RegIniTest, HandWrittenIniFileIsReadAndKept)
{
    UseIni();
    QORIniSection = "Calc Settings";
    const QByteArray other = QByteArray("# kept by the host\n"
                                        "[Host Window]\n"
                                        "Left = 10\n"
                                        "not a setting\n")
        + QByteArray(1, '\0') + "\xfe\xff\n";
    WriteFile(QString::fromStdString(QORIniFile),
              other + "[Calc Settings]\nRadians=false\n; a note\nDispFont=Courier,10\nMemo");
    SetVariables(true, 3, "Mine");
    LoadCalculatorSettings();
    EXPECT_FALSE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, 3); // "Memo" is no key
    EXPECT_EQ(QORCalcDispFont, "Courier,10");

    SetVariables(true, -12.5L, "Serif");
    QString error;
    EXPECT_TRUE(TrySaveCalculatorSettings(&error)) << error.toStdString();
    EXPECT_TRUE(error.isEmpty());
    EXPECT_EQ(
        ReadFile(QORIniFile),
        (other + "[Calc Settings]\nRadians=true\n; a note\nDispFont=Serif\nMemory=-12.5\nMemo\n")
            .toStdString());
    SetVariables(false, 0, "");
    LoadCalculatorSettings();
    EXPECT_TRUE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, -12.5L);
    EXPECT_EQ(QORCalcDispFont, "Serif");
}

class RegIniJunkMemory : public RegIniTest,
                         public ::testing::WithParamInterface<TQORRegIniType> { };

TEST_P(RegIniJunkMemory, SerializedVariantKeepsThePresentMemory)
{
    const QByteArray section = "[Calculator]\nMemory=@Variant(\\0\\0\\0\\x87?\\x80\\0\\0)\n";
    if (GetParam() == ritIniFile) {
        UseIni();
        WriteFile(QString::fromStdString(QORIniFile), section);
    } else {
        UseRegistry();
        ASSERT_TRUE(QDir(dir_.path()).mkpath(QStringLiteral("Software/QorkitTests")));
        WriteFile(dir_.filePath(QStringLiteral("Software/QorkitTests/Calc.conf")), section);
    }
    SetVariables(true, 42.5L, "");
    LoadCalculatorSettings();
    EXPECT_EQ(QORCalcMemory, 42.5L);
}

INSTANTIATE_TEST_SUITE_P(Kinds, RegIniJunkMemory, ::testing::Values(ritRegistry, ritIniFile),
                         [](const auto& row) {
                             return std::string(row.param == ritRegistry ? "NativeStore"
                                                                         : "IniFile");
                         });

TEST_F(RegIniTest, FailuresReachTheHost)
{
    QSignalSpy errors(QORCalcSettingsEvents(), &TQORCalcSettingsEvents::errorOccurred);
    // A key path climbing out of the settings folder is refused.
    UseRegistry();
    QORRegPath = "Software/../../Outside";
    QString error;
    EXPECT_FALSE(TrySaveCalculatorSettings(&error));
    EXPECT_TRUE(error.contains(QStringLiteral("\"..\""))) << error.toStdString();
    EXPECT_EQ(errors.count(), 1);
    SetVariables(true, 5, "Kept");
    LoadCalculatorSettings();
    EXPECT_EQ(QORCalcMemory, 5);
    EXPECT_EQ(errors.count(), 2);
    EXPECT_TRUE(QDir(dir_.path()).isEmpty());

    // An INI file that cannot be written: its folder is a file.
    UseIni();
    WriteFile(dir_.filePath(QStringLiteral("file")), "x");
    QORIniFile = dir_.filePath(QStringLiteral("file/calc.ini")).toStdString();
    EXPECT_FALSE(TrySaveCalculatorSettings(&error));
    EXPECT_TRUE(error.contains(QStringLiteral("calc.ini"))) << error.toStdString();
    SaveCalculatorSettings(); // the documented form reports through the signal
    EXPECT_EQ(errors.count(), 4);

    // Persistence turned off is no failure.
    QORRegIniType = ritNone;
    EXPECT_TRUE(TrySaveCalculatorSettings(&error));
    EXPECT_EQ(errors.count(), 4);
}

TEST_F(RegIniTest, NativeStoreRoundTrip)
{
    UseRegistry();
    SetVariables(false, -2.5L, "Courier");
    SaveCalculatorSettings();
    SetVariables(true, 0, "");
    LoadCalculatorSettings();
    EXPECT_FALSE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, -2.5L);
    EXPECT_EQ(QORCalcDispFont, "Courier");
}

struct EmptyNameCase {
    const char* name;
    TQORRegIniType type;
    const char* path;
    const char* section;
};

class RegIniEmptyNames : public RegIniTest, public ::testing::WithParamInterface<EmptyNameCase> { };

TEST_P(RegIniEmptyNames, NothingIsLoadedOrSaved)
{
    // A complete store on disk under every name, to show that nothing is read from it.
    UseIni();
    UseRegistry();
    SetVariables(false, 99, "Stored");
    SaveCalculatorSettings();
    QORRegIniType = ritIniFile;
    SaveCalculatorSettings();

    const EmptyNameCase& c = GetParam();
    QORRegIniType = c.type;
    QORRegPath = c.path;
    QORIniFile = *c.path ? dir_.filePath(QString::fromLatin1(c.path)).toStdString() : "";
    QORRegSection = QORIniSection = c.section;
    SetVariables(true, 1.25L, "Kept");
    LoadCalculatorSettings();
    EXPECT_TRUE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, 1.25L);
    EXPECT_EQ(QORCalcDispFont, "Kept");

    const QStringList before = QDir(dir_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    SaveCalculatorSettings();
    EXPECT_EQ(QDir(dir_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
}

INSTANTIATE_TEST_SUITE_P(
    Names, RegIniEmptyNames,
    ::testing::Values(
        EmptyNameCase {"NoPersistence", ritNone, "Software/QorkitTests/Calc", "Calculator"},
        EmptyNameCase {"RegistryWithoutPath", ritRegistry, "", "Calculator"},
        EmptyNameCase {"RegistryWithoutSection", ritRegistry, "Software/QorkitTests/Calc", ""},
        EmptyNameCase {"IniWithoutFile", ritIniFile, "", "Calculator"},
        EmptyNameCase {"IniWithoutSection", ritIniFile, "calc.ini", ""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(RegIniTest, MissingKeysKeepThePresentValues)
{
    UseIni();
    QFile file(QString::fromStdString(QORIniFile));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Calculator]\nRadians=false\n[Elsewhere]\nMemory=5\nDispFont=Wrong\n");
    file.close();
    SetVariables(true, 1.0L / 3.0L, "Mine");
    LoadCalculatorSettings();
    EXPECT_FALSE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, 1.0L / 3.0L); // not even rounded to a double
    EXPECT_EQ(QORCalcDispFont, "Mine");
}

TEST_F(RegIniTest, MemoryBeyondDoubleRangeDoesNotComeBackUnchanged)
{
    UseIni();
    SetVariables(true, 1e400L, "");
    SaveCalculatorSettings();
    LoadCalculatorSettings();
    EXPECT_NE(QORCalcMemory, 1e400L);
    EXPECT_EQ(QORCalcMemory, static_cast<Extended>(DBL_MAX));

    SetVariables(true, -1e-4000L, "");
    SaveCalculatorSettings();
    LoadCalculatorSettings();
    EXPECT_EQ(QORCalcMemory, 0);
}

} // namespace
} // namespace qorkit

// The INI file document: a change to a hand-written file touches only the lines it owns, names
// are written as given, values read back as written, and a failed save leaves the old file.
#include "QORKITIniFile.h"
#include "QorkitTestSupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace qorkit {
namespace {

struct EditCase {
    const char* Name;
    QByteArray Before;
    const char* Section;
    const char* Key;
    const char* Value;
    QByteArray After;
};

class IniFileEdit : public ::testing::TestWithParam<EditCase> { };

TEST_P(IniFileEdit, ChangesOnlyItsOwnLinesAndReadsBack)
{
    const EditCase& c = GetParam();
    TQORIniFile ini;
    ini.Parse(c.Before);
    const QString section = QString::fromUtf8(c.Section);
    const QString key = QString::fromUtf8(c.Key);
    const QString value = QString::fromUtf8(c.Value);
    ASSERT_TRUE(ini.SetValue(section, key, value));
    EXPECT_EQ(ini.ToBytes(), c.After);

    TQORIniFile reread;
    reread.Parse(ini.ToBytes());
    EXPECT_EQ(reread.Value(section, key), value);
    EXPECT_EQ(reread.ToBytes(), c.After);
}

INSTANTIATE_TEST_SUITE_P(
    Files, IniFileEdit,
    ::testing::Values(
        EditCase {"NamesWithBlanksAsGiven", "", "Calc Settings", "Decimal Places", "2",
                  "[Calc Settings]\nDecimal Places=2\n"},
        EditCase {"CommentsAndLinesWithoutEquals",
                  "# written by hand\n[Calc]\n; the mode\nnot a setting\nRadians=true\n\n[Std "
                  "Calc]\nMemory=1\n",
                  "Calc", "Memory", "5",
                  "# written by hand\n[Calc]\n; the mode\nnot a setting\nRadians=true\n"
                  "Memory=5\n\n[Std Calc]\nMemory=1\n"},
        EditCase {"ExistingKeyKeepsItsSpellingAndPlace",
                  "[calc settings]\n  radians = true  \nX=1\n[Other]\nRadians=1\n", "Calc Settings",
                  "Radians", "false", "[calc settings]\nradians=false\nX=1\n[Other]\nRadians=1\n"},
        EditCase {"LastLineCutShort", "[Calc]\nRadians=tr", "Calc", "Memory", "1",
                  "[Calc]\nRadians=tr\nMemory=1\n"},
        EditCase {"HeaderCutShort", "[Other]\nA=1\n[Calc", "Calc", "Memory", "1",
                  "[Other]\nA=1\n[Calc\n\n[Calc]\nMemory=1\n"},
        EditCase {"BinaryJunkKept", QByteArray(1, '\0') + "\xff\xfe\x01junk\n[Calc]\nA=1\n", "Calc",
                  "B", "2", QByteArray(1, '\0') + "\xff\xfe\x01junk\n[Calc]\nA=1\nB=2\n"},
        EditCase {"WindowsLineBreaks", "[Calc]\r\nA=1\r\n", "Other", "B", "2",
                  "[Calc]\r\nA=1\r\n\r\n[Other]\r\nB=2\r\n"},
        EditCase {"KeysBeforeTheFirstSection", "top=1\n[A]\nx=1\n", "", "next", "2",
                  "top=1\nnext=2\n[A]\nx=1\n"},
        EditCase {"AwkwardValueQuoted", "", "A", "Font", "  two\nlines \"x\"\\ ",
                  "[A]\nFont=\"  two\\nlines \\\"x\\\"\\\\ \"\n"},
        EditCase {"LeadingQuoteQuoted", "", "A", "Q", "\"quoted\"", "[A]\nQ=\"\\\"quoted\\\"\"\n"},
        EditCase {"PlainValueWithSignsAsItIs", "", "A", "DispFont", "Arial,12,-1,5,75,0 =;#",
                  "[A]\nDispFont=Arial,12,-1,5,75,0 =;#\n"},
        EditCase {"Utf8AndByteOrderMark", "\xEF\xBB\xBF[Réglages]\nA=1\n", "réglages", "Ünit", "°C",
                  "\xEF\xBB\xBF[Réglages]\nA=1\nÜnit=°C\n"}),
    test::RowName<EditCase>);

TEST(IniFileRead, HandWrittenFile)
{
    TQORIniFile ini;
    ini.Parse("global = g\n"
              "[Std Calc]\n"
              "Radians = false \n"
              "Memory=\"  1.5 \"\n"
              "Memory=2\n"
              "Empty=\n"
              "=no key\n"
              "@Variant(\\0\\0\\0\\x87)\n"
              "Junk=@Variant(\\0\\0\\0\\x87?\\x80\\0\\0)\n"
              "[std calc]\n"
              "Later=1\n"
              "[Two]\n"
              "Path=C:\\temp\\new\n");
    EXPECT_EQ(ini.Value(QString(), QStringLiteral("global")), QStringLiteral("g"));
    EXPECT_EQ(ini.Value(QStringLiteral("Std Calc"), QStringLiteral("RADIANS")),
              QStringLiteral("false"));
    // The first of two equal keys is the one read; quotes keep blanks.
    EXPECT_EQ(ini.Value(QStringLiteral("Std Calc"), QStringLiteral("Memory")),
              QStringLiteral("  1.5 "));
    EXPECT_EQ(ini.Value(QStringLiteral("Std Calc"), QStringLiteral("Empty")), QString());
    EXPECT_EQ(ini.Value(QStringLiteral("Std Calc"), QStringLiteral("Junk")),
              QStringLiteral("@Variant(\\0\\0\\0\\x87?\\x80\\0\\0)"));
    EXPECT_FALSE(ini.Contains(QStringLiteral("Std Calc"), QStringLiteral("Later")));
    EXPECT_FALSE(ini.Contains(QStringLiteral("Std Calc"), QStringLiteral("global")));
    // Backslashes outside quotes are plain characters.
    EXPECT_EQ(ini.Value(QStringLiteral("Two"), QStringLiteral("Path")),
              QStringLiteral("C:\\temp\\new"));
    EXPECT_EQ(ini.Sections(),
              QStringList({QString(), QStringLiteral("Std Calc"), QStringLiteral("Two")}));
    EXPECT_EQ(ini.Keys(QStringLiteral("Std Calc")),
              QStringList({QStringLiteral("Radians"), QStringLiteral("Memory"),
                           QStringLiteral("Empty"), QStringLiteral("Junk")}));
}

TEST(IniFileNames, NamesAFileCannotHoldAreRefused)
{
    const std::pair<const char*, const char*> refused[] = {
        {"A]B", "Key"}, {"Line\nBreak", "Key"},
        {"A", ""},      {"A", "  "},
        {"A", "a=b"},   {"A", "[x"},
        {"A", "#x"},    {"A", ";x"},
        {"A", "x\ny"},
    };
    TQORIniFile ini;
    ini.Parse("[A]\nKey=1\n");
    for (const auto& [section, key] : refused) {
        EXPECT_FALSE(
            ini.SetValue(QString::fromUtf8(section), QString::fromUtf8(key), QStringLiteral("v")))
            << section << " / " << key;
    }
    EXPECT_EQ(ini.ToBytes(), QByteArray("[A]\nKey=1\n"));
}

TEST(IniFileRemove, KeysAndSectionsGoWithTheirLines)
{
    TQORIniFile ini;
    ini.Parse("; top\ng=1\n[A]\nx=1\n; about A\ny=2\n[B]\nz=3\n[a]\nw=4\n");
    ini.RemoveKey(QStringLiteral("A"), QStringLiteral("Y"));
    ini.RemoveKey(QStringLiteral("B"), QStringLiteral("missing"));
    EXPECT_EQ(ini.ToBytes(), QByteArray("; top\ng=1\n[A]\nx=1\n; about A\n[B]\nz=3\n[a]\nw=4\n"));
    ini.RemoveSection(QStringLiteral("A")); // both spellings
    EXPECT_EQ(ini.ToBytes(), QByteArray("; top\ng=1\n[B]\nz=3\n"));
    ini.RemoveSection(QString());
    EXPECT_EQ(ini.ToBytes(), QByteArray("; top\n[B]\nz=3\n"));
}

TEST(IniFileValues, EveryCharacterRoundTrips)
{
    QString all;
    for (char16_t c = 0; c < 0x180; ++c)
        all += QChar(c);
    const QString values[] = {all,
                              QStringLiteral(" "),
                              QStringLiteral("\""),
                              QStringLiteral("\"\""),
                              QStringLiteral("a\\"),
                              QStringLiteral("\\n"),
                              QString()};
    TQORIniFile ini;
    int n = 0;
    for (const QString& value : values)
        ASSERT_TRUE(ini.SetValue(QStringLiteral("S"), QStringLiteral("K%1").arg(n++), value));
    TQORIniFile reread;
    reread.Parse(ini.ToBytes());
    n = 0;
    for (const QString& value : values)
        EXPECT_EQ(reread.Value(QStringLiteral("S"), QStringLiteral("K%1").arg(n++)), value);
}

class IniFileDisk : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dir_.isValid()); }
    QString Path(const char* name) const { return dir_.filePath(QString::fromUtf8(name)); }
    QTemporaryDir dir_;
};

TEST_F(IniFileDisk, SaveCreatesFoldersAndLoadReadsBack)
{
    TQORIniFile ini;
    EXPECT_TRUE(ini.Load(Path("missing.ini"))); // a missing file is an empty document
    ini.SetValue(QStringLiteral("Calc Settings"), QStringLiteral("Decimal Places"),
                 QStringLiteral("2"));
    QString error;
    ASSERT_TRUE(ini.Save(Path("sub/dir/calc.ini"), &error)) << error.toStdString();
    TQORIniFile reread;
    ASSERT_TRUE(reread.Load(Path("sub/dir/calc.ini")));
    EXPECT_EQ(reread.Value(QStringLiteral("Calc Settings"), QStringLiteral("Decimal Places")),
              QStringLiteral("2"));
}

TEST_F(IniFileDisk, FailuresAreReportedAndLeaveTheOldFile)
{
    // A folder where the file should be cannot be read; a file where a folder should be
    // cannot be written into.
    ASSERT_TRUE(QDir(dir_.path()).mkdir(QStringLiteral("folder.ini")));
    TQORIniFile ini;
    QString error;
    EXPECT_FALSE(ini.Load(Path("folder.ini"), &error));
    EXPECT_TRUE(error.contains(QStringLiteral("folder.ini")));

    QFile blocker(Path("blocker"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.write("old");
    blocker.close();
    ini.SetValue(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"));
    error.clear();
    EXPECT_FALSE(ini.Save(Path("blocker/calc.ini"), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(ini.Save(Path("folder.ini"), &error));
    ASSERT_TRUE(blocker.open(QIODevice::ReadOnly));
    EXPECT_EQ(blocker.readAll(), QByteArray("old"));
}

} // namespace
} // namespace qorkit

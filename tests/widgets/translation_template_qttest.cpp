// translations/qorkit_en.ts is written from the library's text modules by the qorkit_ts_template
// tool. This test writes the template afresh into the build tree and fails when the file in the
// source tree no longer matches, so a text added, changed or removed cannot go unnoticed.
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(TranslationTemplate, CheckedInFileMatchesTheTexts)
{
#ifndef QORKIT_TS_TEMPLATE_TOOL
    GTEST_SKIP() << "the qorkit_ts_template tool is not part of this build";
#else
    const QString tool = QStringLiteral(QORKIT_TS_TEMPLATE_TOOL);
    const QString regenerated = QStringLiteral(QORKIT_TS_REGENERATED);
    if (!QFileInfo(tool).isExecutable())
        GTEST_SKIP() << "the qorkit_ts_template tool was not built: " << tool.toStdString();

    QProcess process;
    process.start(tool, {regenerated});
    ASSERT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();

    const QByteArray fresh = ReadAll(regenerated);
    const QByteArray committed = ReadAll(QStringLiteral(QORKIT_TRANSLATIONS_DIR "/qorkit_en.ts"));
    ASSERT_FALSE(fresh.isEmpty()) << "the tool wrote nothing to " << regenerated.toStdString();
    ASSERT_FALSE(committed.isEmpty()) << "cannot read translations/qorkit_en.ts";

    const QList<QByteArray> expected = fresh.split('\n');
    const QList<QByteArray> actual = committed.split('\n');
    const auto [wanted, found]
        = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    const auto line = [](const QList<QByteArray>& lines, QList<QByteArray>::const_iterator at) {
        return at == lines.end() ? std::string("<end of file>") : at->toStdString();
    };
    EXPECT_EQ(fresh, committed)
        << "translations/qorkit_en.ts is out of date at line " << (wanted - expected.begin()) + 1
        << ": expected \"" << line(expected, wanted) << "\", found \"" << line(actual, found)
        << "\" (the fresh template is " << regenerated.toStdString()
        << "). Regenerate it, and the German file from it, with: cmake --build build --target "
           "qorkit_ts";
#endif
}

} // namespace

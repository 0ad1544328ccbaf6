// The embedding guide's form: the label follows the edit's signals, and the calculator's
// settings go to the INI file and come back in the next form.
#include "AmountForm.h"

#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

class EmbeddingGuide : public ::testing::Test {
protected:
    QString IniFile() const { return dir_.filePath(QStringLiteral("amounts.ini")); }

    QTemporaryDir dir_;
};

TEST_F(EmbeddingGuide, LabelFollowsTheEditsChangesAndRefusals)
{
    ASSERT_TRUE(dir_.isValid());
    AmountForm form(IniFile());
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    auto* edit = form.findChild<qorkit::TQORCalcEdit*>();
    auto* status = form.findChild<QLabel*>(QStringLiteral("status"));
    ASSERT_NE(edit, nullptr);
    ASSERT_NE(status, nullptr);

    edit->setFocus(Qt::TabFocusReason);
    edit->SelectAll();
    QTest::keyClicks(edit->GetEdit(), QStringLiteral("1234.5"));
    QTest::keyClick(edit->GetEdit(), Qt::Key_Return);
    EXPECT_EQ(status->text(), QStringLiteral("Amount: 1234.5"));
    edit->clearFocus(); // the formatted text shows when the edit is left
    EXPECT_EQ(edit->GetText(), QStringLiteral("1 234.50")); // grouping by its name, 2 decimals

    // Beyond the upper bound: refused with a message, the amount stays.
    edit->setFocus(Qt::TabFocusReason);
    edit->SelectAll();
    QTest::keyClicks(edit->GetEdit(), QStringLiteral("2000000"));
    QTest::keyClick(edit->GetEdit(), Qt::Key_Return);
    EXPECT_EQ(edit->GetValue(), 1234.5L);
    EXPECT_FALSE(status->text().isEmpty());
    EXPECT_FALSE(status->text().startsWith(QStringLiteral("Amount:")));
}

TEST_F(EmbeddingGuide, CalculatorSettingsLiveInTheIniFile)
{
    ASSERT_TRUE(dir_.isValid());
    {
        AmountForm form(IniFile());
        ASSERT_TRUE(form.Calculator()->GetPrecedence());
        form.Calculator()->SetPrecedence(false);
    }
    const QSettings ini(IniFile(), QSettings::IniFormat);
    EXPECT_TRUE(ini.childGroups().contains(QStringLiteral("Calculator")));

    AmountForm next(IniFile());
    EXPECT_FALSE(next.Calculator()->GetPrecedence());
}

} // namespace

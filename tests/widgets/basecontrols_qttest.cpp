// The spin edit's stepping rules, the combo box's item loading and change report, the panel's
// layout hooks, and the glyphs at one and two device pixels per logical pixel.
#include "QORKITBaseControls.h"
#include "QORKITFloatEdit.h"
#include "QORKITGlyphs.h"
#include "QorkitTestSupport.h"

#include <QImage>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace qorkit {
namespace {

struct SpinCase {
    const char* name;
    Extended start;
    bool wrap;
    const char* clicks; // "u" up, "d" down
    std::vector<Extended> values; // after each click
};

class SpinClicks : public test::GlobalStateTest, public ::testing::WithParamInterface<SpinCase> { };

TEST_P(SpinClicks, StepClampAndTwoClickWrap)
{
    const SpinCase& c = GetParam();
    TQORFloatSpinEdit spin;
    spin.SetMin(0);
    spin.SetMax(10);
    spin.SetStep(3);
    spin.SetWrap(c.wrap);
    spin.SetValue(c.start);
    std::vector<Extended> seen;
    for (const char* k = c.clicks; *k; ++k) {
        if (*k == 'u')
            spin.UpClick(nullptr);
        else
            spin.DownClick(nullptr);
        seen.push_back(spin.GetValue());
    }
    EXPECT_EQ(seen, c.values);
}

INSTANTIATE_TEST_SUITE_P(
    Clicks, SpinClicks,
    ::testing::Values(SpinCase {"UpStopsAtMaxThenWraps", 9, true, "uuu", {10, 0, 3}},
                      SpinCase {"UpWithoutWrapStaysAtMax", 9, false, "uuu", {10, 10, 10}},
                      SpinCase {"DownStopsAtMinThenWraps", 1, true, "ddd", {0, 10, 7}},
                      SpinCase {"DownWithoutWrapStaysAtMin", 1, false, "dd", {0, 0}},
                      SpinCase {"PlainSteps", 4, false, "udd", {7, 4, 1}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(SpinEdit, BoundsClampAndStayConsistent)
{
    TQORFloatSpinEdit spin;
    spin.SetMin(0);
    spin.SetMax(10);
    spin.SetValue(15);
    EXPECT_EQ(spin.GetValue(), 10);
    spin.SetMax(5);
    EXPECT_EQ(spin.GetValue(), 5);
    spin.SetMin(8); // the maximum follows the minimum up
    EXPECT_EQ(spin.GetMax(), 8);
    EXPECT_EQ(spin.GetValue(), 8);
    spin.SetUnbounded(true);
    spin.SetValue(-40);
    EXPECT_EQ(spin.GetValue(), -40);
    spin.SetMax(20); // a bound switches Unbounded off and clamps
    EXPECT_FALSE(spin.GetUnbounded());
    EXPECT_EQ(spin.GetValue(), 8);
}

TEST(SpinEdit, EventsKeysAndReadOnly)
{
    TQORFloatSpinEdit spin;
    spin.SetMax(1000);
    spin.SetPageStep(100);
    std::string log;
    spin.SetOnUpClick([&](QObject*) { log += "u"; });
    spin.SetOnAfterUpClick([&](QObject*) { log += "U"; });
    spin.SetOnDownClick([&](QObject*) { log += "d"; });
    spin.SetOnAfterDownClick([&](QObject*) { log += "D"; });
    QTest::keyClick(spin.GetEditor(), Qt::Key_Up);
    QTest::keyClick(spin.GetEditor(), Qt::Key_PageUp);
    QTest::keyClick(spin.GetEditor(), Qt::Key_Down);
    EXPECT_EQ(log, "uUuUdD");
    EXPECT_EQ(spin.GetValue(), 100);
    spin.findChild<QToolButton*>(QStringLiteral("UpBtn"))->click();
    EXPECT_EQ(spin.GetValue(), 101);
    spin.SetReadOnly(true);
    spin.UpClick(nullptr);
    QTest::keyClick(spin.GetEditor(), Qt::Key_Up);
    EXPECT_EQ(spin.GetValue(), 101);
    EXPECT_EQ(log, "uUuUdDuU");
}

class LetterCombo : public TQORBaseComboBox {
public:
    QStringList items {QStringLiteral("alpha"), QStringLiteral("beta")};
    int displays = 0;

protected:
    QStringList ListItems() const override { return items; }
    void DisplayText() override { ++displays; }
};

TEST(BaseComboBox, LoadsItemsAndReportsOnlyTheUsersChoice)
{
    LetterCombo combo;
    int changes = 0;
    combo.SetOnChange([&](QObject* sender) {
        EXPECT_EQ(sender, &combo);
        ++changes;
    });
    combo.LoadItems();
    EXPECT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.displays, 1);
    combo.items << QStringLiteral("gamma");
    combo.LoadItems();
    EXPECT_EQ(combo.count(), 3);
    combo.SetItemIndex(2);
    combo.SetItemIndex(7);
    EXPECT_EQ(combo.GetItemIndex(), -1);
    EXPECT_EQ(changes, 0);
    Q_EMIT combo.activated(1);
    EXPECT_EQ(changes, 1);
}

class CountingPanel : public TQORBasePanel {
public:
    int layouts = 0;

protected:
    void Resize() override { ++layouts; }
    int AutoHeight() const override { return 33; }
};

TEST(BasePanel, LaysOutOnResizeButNotWhileLoading)
{
    CountingPanel panel;
    panel.BeginLoading();
    panel.SetAutoSize(true);
    panel.resize(200, 50);
    panel.show();
    EXPECT_EQ(panel.layouts, 0);
    panel.EndLoading();
    EXPECT_EQ(panel.height(), 33);
    EXPECT_GE(panel.layouts, 1);
    const int before = panel.layouts;
    panel.resize(300, 33);
    EXPECT_EQ(panel.layouts, before + 1);
}

class GlyphTest : public ::testing::TestWithParam<int> { };

TEST_P(GlyphTest, DrawnSharpAtOneAndTwoTimes)
{
    const auto glyph = static_cast<TQORGlyph>(GetParam());
    const QImage one = QORGlyphPixmap(glyph, QSize(16, 16), 1.0).toImage();
    const QImage two = QORGlyphPixmap(glyph, QSize(16, 16), 2.0).toImage();
    ASSERT_EQ(one.size(), QSize(16, 16));
    ASSERT_EQ(two.size(), QSize(32, 32));
    int inked = 0;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            inked += qAlpha(one.pixel(x, y)) > 0;
    EXPECT_GT(inked, 4) << "nothing drawn";
    // Drawn at the doubled size, not a blown-up copy of the small one.
    const QImage blownUp = one.scaled(32, 32, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                               .convertToFormat(two.format());
    EXPECT_NE(two, blownUp);
}

INSTANTIATE_TEST_SUITE_P(Glyphs, GlyphTest, ::testing::Range(0, QORGlyphCount),
                         [](const auto& row) {
                             return std::string(QORGlyphName(static_cast<TQORGlyph>(row.param)));
                         });

TEST(Glyphs, CalcEditButtonGlyphsByType)
{
    const auto image = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
    EXPECT_EQ(image(LoadCalcGlyph(cgtCalculator)), image(LoadCalcGlyFXBtn()));
    EXPECT_EQ(image(LoadCalcGlyph(cgtSmallCalculator)), image(LoadCalc1Btn()));
    EXPECT_EQ(image(LoadCalcGlyph(cgtEllipsis)), image(LoadCalc2Btn()));
    EXPECT_NE(image(LoadCalc1Btn()), image(LoadCalc2Btn()));
    EXPECT_TRUE(LoadCalcGlyph(static_cast<TQORCalcGlyphType>(3)).isNull());
}

} // namespace
} // namespace qorkit

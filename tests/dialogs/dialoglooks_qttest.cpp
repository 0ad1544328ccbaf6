// What users see in the dialogs: every key caption fits its key in every state of the Inv, Hyp
// and angle-mode keys, in the form's font and in wider ones, and the programmer's panels show
// every digit of a 64-bit binary value inside the dialog's fixed size. CTest runs these once
// more at a screen scale of two.
#include "CalcDialogTest.h"
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"

#include <QClipboard>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QStyle>

#include <limits>
#include <map>
#include <set>

namespace qorkit {
namespace {

using test::CalcDialogTest;

struct FontRow {
    const char* Name;
    const char* Family; // nullptr: the form's own font
    int Pixels;
};

class CaptionsFit : public CalcDialogTest, public ::testing::WithParamInterface<FontRow> {
protected:
    void ApplyFont(QWidget& form) const
    {
        if (GetParam().Family == nullptr)
            return;
        QFont font(QString::fromLatin1(GetParam().Family));
        font.setPixelSize(GetParam().Pixels);
        font.setBold(true);
        form.setFont(font);
    }

    // Every shown text key: its caption, in the key's own font, inside the key's frame, in a
    // readable size; the key keeps its size.
    void ExpectCaptionsFit(const TQORCalcFormBase& form, QSize keySize, const std::string& state)
    {
        for (auto* key : form.KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
            if (key->isHidden() || key->toolButtonStyle() != Qt::ToolButtonTextOnly)
                continue;
            const std::string where = key->objectName().toStdString() + " \""
                + key->text().toStdString() + "\" " + state;
            const int frame = key->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, key);
            EXPECT_LE(QFontMetricsF(key->font(), key).horizontalAdvance(key->text()),
                      key->contentsRect().width() - 2 * frame)
                << where;
            EXPECT_GE(QFontInfo(key->font()).pixelSize(), 6) << where;
            if (key->objectName() != QLatin1String("EqualsBtn")) {
                EXPECT_EQ(key->size(), keySize) << where;
            }
            captions_.insert(key->text());
        }
    }

    // Puts the float form's engine in a state of the toggles (through the keys, as a user
    // would) and the angle mode (the key toggles only radians and degrees).
    static void SetState(TQORFloatCalcForm& form, bool inv, bool hyp, TQORAngleMode mode)
    {
        TQORCalcEngine& engine = form.GetCalcEngine();
        engine.SetAngleMode(mode);
        if (engine.GetIsInv() != inv)
            form.InvBtn->click();
        if (auto* hypBtn = form.findChild<QToolButton*>(QStringLiteral("HypBtn"));
            hypBtn != nullptr && engine.GetIsHyp() != hyp)
            hypBtn->click();
    }

    std::set<QString> captions_;
};

TEST_P(CaptionsFit, ScientificKeysInEveryState)
{
    TQORSciCalcForm form;
    ApplyFont(form);
    for (const TQORAngleMode mode : {amDegrees, amRadians, amGradians}) {
        for (const bool inv : {false, true}) {
            for (const bool hyp : {false, true}) {
                SetState(form, inv, hyp, mode);
                ASSERT_EQ(form.GetCalcEngine().GetIsInv(), inv);
                ASSERT_EQ(form.GetCalcEngine().GetIsHyp(), hyp);
                ExpectCaptionsFit(form, QSize(30, 22),
                                  std::string(inv ? "Inv " : "") + (hyp ? "Hyp " : "") + "mode "
                                      + std::to_string(mode));
            }
        }
    }
    for (const char* seen : {"asinh", "acosh", "atanh", "10^x", "e^x", "2^x", "lg2"})
        EXPECT_TRUE(captions_.contains(QString::fromLatin1(seen))) << seen;
    EXPECT_EQ(form.size(), QSize(220, 244));
}

TEST_P(CaptionsFit, StandardAndProgrammersKeys)
{
    TQORCalcForm standard;
    ApplyFont(standard);
    for (const bool inv : {false, true}) {
        SetState(standard, inv, false, amGradians);
        ExpectCaptionsFit(standard, QSize(30, 22), inv ? "Inv" : "");
    }
    TQORProgCalcForm prog;
    ApplyFont(prog);
    ExpectCaptionsFit(prog, QSize(31, 22), "");
    EXPECT_TRUE(captions_.contains(QStringLiteral("xnor")));
}

TEST_P(CaptionsFit, FontChangedAfterwardsRefitsTheKeys)
{
    TQORSciCalcForm form;
    SetState(form, true, true, amGradians);
    ApplyFont(form);
    ExpectCaptionsFit(form, QSize(30, 22), "font set last");
    // Keys whose caption fits take the form's font itself.
    EXPECT_EQ(form.SevenBtn->font(), form.KeyPanel->font());
}

// A shrunk caption is in the largest size that fits, and every form asks the same of the same
// caption: a second form, and the first one after a round trip through another font, show
// each key in the size a fresh form gives it.
TEST_P(CaptionsFit, ShrunkCaptionsTakeTheLargestSizeThatFitsInEveryForm)
{
    const auto pixelsOf = [](const TQORCalcFormBase& form) {
        std::map<QString, int> pixels;
        for (auto* key : form.KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
            if (!key->isHidden() && key->toolButtonStyle() == Qt::ToolButtonTextOnly)
                pixels[key->objectName()] = QFontInfo(key->font()).pixelSize();
        }
        return pixels;
    };
    TQORSciCalcForm first;
    ApplyFont(first);
    const std::map<QString, int> fresh = pixelsOf(first);
    const int full = QFontInfo(first.KeyPanel->font()).pixelSize();
    int shrunk = 0;
    for (auto* key : first.KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
        if (key->isHidden() || key->toolButtonStyle() != Qt::ToolButtonTextOnly)
            continue;
        const int pixels = QFontInfo(key->font()).pixelSize();
        if (pixels >= full || pixels <= 6)
            continue;
        ++shrunk;
        QFont larger = key->font();
        larger.setPixelSize(pixels + 1);
        const int frame = key->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, key);
        EXPECT_GT(QFontMetricsF(larger, key).horizontalAdvance(key->text()),
                  key->contentsRect().width() - 2 * (frame + 1))
            << key->objectName().toStdString();
    }
    if (GetParam().Family != nullptr && GetParam().Pixels >= 16) {
        EXPECT_GT(shrunk, 0); // a font this large shrinks some captions
    }

    TQORSciCalcForm second;
    ApplyFont(second);
    EXPECT_EQ(pixelsOf(second), fresh);
    QFont other(QStringLiteral("DejaVu Serif"));
    other.setPixelSize(19);
    first.setFont(other);
    EXPECT_NE(pixelsOf(first), fresh);
    ApplyFont(first);
    if (GetParam().Family == nullptr)
        first.setFont(second.font());
    EXPECT_EQ(pixelsOf(first), fresh);
}

INSTANTIATE_TEST_SUITE_P(Fonts, CaptionsFit,
                         ::testing::Values(FontRow {"FormFont", nullptr, 0},
                                           FontRow {"WideSans13", "DejaVu Sans", 13},
                                           FontRow {"Serif16", "DejaVu Serif", 16},
                                           FontRow {"Mono14", "DejaVu Sans Mono", 14}),
                         test::RowName<FontRow>);

// ---- The programmer's panels ----------------------------------------------------------------

struct PanelRow {
    const char* Name;
    TQORBaseDisplay Base;
    TQORBitSize Size;
    TQORProgSpacing Spacing;
    std::int64_t Value;
    int Lines; // of the value panel
};

class ProgPanelsFit : public CalcDialogTest, public ::testing::WithParamInterface<PanelRow> {
protected:
    // The panel shows every digit of `expected` and every line fits inside its frame.
    static void ExpectShown(const TQORBasePanel* panel, const QString& expected, int lines)
    {
        const QString shown = panel->text();
        QString digits = shown;
        digits.remove(QLatin1Char('\n')).remove(QLatin1Char(' '));
        QString wanted = expected;
        wanted.remove(QLatin1Char(' '));
        EXPECT_EQ(digits, wanted) << panel->objectName().toStdString();
        const QStringList parts = shown.split(QLatin1Char('\n'));
        EXPECT_EQ(parts.size(), lines) << shown.toStdString();
        const QFontMetricsF metrics(panel->font(), panel);
        for (const QString& line : parts)
            EXPECT_LE(metrics.horizontalAdvance(line) + panel->indent(),
                      panel->contentsRect().width())
                << line.toStdString();
        EXPECT_LE(static_cast<qreal>(parts.size()) * metrics.lineSpacing(),
                  panel->contentsRect().height())
            << shown.toStdString();
        EXPECT_GE(QFontInfo(panel->font()).pixelSize(), 6);
    }
};

TEST_P(ProgPanelsFit, EveryDigitShowsInsideTheFixedDialog)
{
    const PanelRow& row = GetParam();
    TQORProgCalcForm form;
    IQORProgCalcEngine& engine = form.GetCalcEngine();
    engine.SetBaseDisplay(row.Base);
    engine.SetBitSize(row.Size);
    engine.SetSpacing(row.Spacing);
    engine.InputValue(row.Value);
    engine.SetMemory(row.Value);
    form.RefreshDisplays();

    const QString display = QString::fromStdString(engine.GetDisplayStr());
    ExpectShown(form.ValueDisplay, display, row.Lines);
    ExpectShown(form.MemoryDisplay, QString::fromStdString(engine.GetMemoryContents()),
                row.Base == bdBinary && row.Size == bs64Bits ? 2 : 1);
    EXPECT_EQ(form.size(), QSize(417, 152));
    // Two lines are for the eye: the value copied is the engine's one line.
    form.CopyBtn->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), display);
}

INSTANTIATE_TEST_SUITE_P(
    Values, ProgPanelsFit,
    ::testing::Values(PanelRow {"MinusOneBinary64", bdBinary, bs64Bits, psNoSpacing, -1, 2},
                      PanelRow {"MinusOneBinary64Bytes", bdBinary, bs64Bits, psByte, -1, 2},
                      PanelRow {"HighBitBinary64Words", bdBinary, bs64Bits, psWord,
                                std::numeric_limits<std::int64_t>::min(), 2},
                      PanelRow {"Binary32", bdBinary, bs32Bits, psNoSpacing, -1, 1},
                      PanelRow {"Hex64", bdHexadecimal, bs64Bits, psByte, -1, 1},
                      PanelRow {"Octal64", bdOctal, bs64Bits, psNoSpacing, -1, 1},
                      PanelRow {"Decimal64", bdDecimal, bs64Bits, psNoSpacing,
                                std::numeric_limits<std::int64_t>::min(), 1}),
    test::RowName<PanelRow>);

TEST_F(CalcDialogTest, ProgPanelsFitAgainWhenTheDisplayFontChanges)
{
    TQORProgCalcForm form;
    IQORProgCalcEngine& engine = form.GetCalcEngine();
    engine.SetBaseDisplay(bdBinary);
    engine.SetBitSize(bs64Bits);
    engine.InputValue(-1);
    form.RefreshDisplays();
    form.ApplyDispFont(QStringLiteral("DejaVu Serif,14,-1,5,700,0,0,0,0,0"));
    const QStringList lines = form.ValueDisplay->text().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[1], QString(32, QLatin1Char('1')));
    EXPECT_LE(
        QFontMetricsF(form.ValueDisplay->font(), form.ValueDisplay).horizontalAdvance(lines[0]),
        form.ValueDisplay->contentsRect().width());
    EXPECT_EQ(form.ValueDisplay->font().family(), QStringLiteral("DejaVu Serif"));
    // Back to a short value: one line in the display font itself.
    engine.SetBaseDisplay(bdHexadecimal);
    EXPECT_EQ(form.ValueDisplay->text(), QString(16, QLatin1Char('F')));
    EXPECT_EQ(form.ValueDisplay->font().pointSize(), 14);
}

} // namespace
} // namespace qorkit

// What users see in the dialogs: every key caption fits its key in every state of the Inv, Hyp
// and angle-mode keys, in the form's font and in wider ones, and the programmer's panels show
// every digit of a 64-bit binary value inside the dialog's fixed size. CTest runs these once
// more at a screen scale of two.
#include "CalcDialogTest.h"
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QStyle>

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

INSTANTIATE_TEST_SUITE_P(Fonts, CaptionsFit,
                         ::testing::Values(FontRow {"FormFont", nullptr, 0},
                                           FontRow {"WideSans13", "DejaVu Sans", 13},
                                           FontRow {"Serif16", "DejaVu Serif", 16},
                                           FontRow {"Mono14", "DejaVu Sans Mono", 14}),
                         test::RowName<FontRow>);

} // namespace
} // namespace qorkit

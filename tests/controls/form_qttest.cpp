// The edits on a form built by uic, as a host application builds its Designer forms: each
// control is made with its parent, its properties are set by name (enumerations by member
// name), and the form lays the controls out at their size hints.
#include "QORKITCalcEdit.h"
#include "QORKITCurrCalcEdit.h"
#include "QORKITCurrComboBox.h"
#include "QORKITCurrEdit.h"
#include "QORKITCurrSpinEdit.h"
#include "QORKITSciCalcEdit.h"
#include "QorkitTestSupport.h"
#include "ui_edits_form.h"

#include <QToolButton>

#include <gtest/gtest.h>

namespace qorkit {
namespace {

class EditsFormTest : public test::GlobalStateTest { };

TEST_F(EditsFormTest, ControlsBuildFromADesignerForm)
{
    QWidget form;
    Ui::EditsForm ui;
    ui.setupUi(&form);
    form.adjustSize();

    EXPECT_EQ(ui.calcEdit->GetCalcGlyphType(), cgtEllipsis);
    EXPECT_EQ(ui.calcEdit->GetDecimalPlaces(), 3);
    EXPECT_EQ(ui.calcEdit->GetCalcTitle(), QStringLiteral("Price"));
    EXPECT_EQ(ui.calcEdit->GetThousandSeparators(), tsApostrophe);
    EXPECT_TRUE(ui.sciCalcEdit->GetButton()->autoRaise());
    EXPECT_EQ(ui.currEdit->GetAsQORCurrency(), 150);
    EXPECT_EQ(ui.currEdit->text(), QStringLiteral("1.50 kr"));
    EXPECT_EQ(ui.currencyEdit->GetDecimalPlaces(), 4);
    EXPECT_EQ(ui.currCalcEdit->GetAsQORCurrency(), 1234);
    EXPECT_EQ(ui.currCalcEdit->GetCalcGlyphType(), cgtEllipsis);
    EXPECT_EQ(ui.currSpinEdit->GetStep(), 25);
    EXPECT_TRUE(ui.currSpinEdit->GetWrap());
    EXPECT_EQ(ui.currSpinEdit->GetArrows(), saLeftRight);
    EXPECT_EQ(ui.emuComboBox->GetEMU(), 4);
    EXPECT_EQ(ui.emuComboBox->currentText(), QStringLiteral("FRF"));

    // Sensible sizes: the button beside a usable edit, one line high.
    for (QWidget* edit :
         {static_cast<QWidget*>(ui.calcEdit), static_cast<QWidget*>(ui.sciCalcEdit),
          static_cast<QWidget*>(ui.currEdit), static_cast<QWidget*>(ui.currCalcEdit),
          static_cast<QWidget*>(ui.longCurrCalcEdit), static_cast<QWidget*>(ui.currencyCalcEdit),
          static_cast<QWidget*>(ui.currSpinEdit), static_cast<QWidget*>(ui.longCurrSpinEdit),
          static_cast<QWidget*>(ui.currencySpinEdit)}) {
        const QSize hint = edit->sizeHint();
        EXPECT_GE(hint.width(), 60) << edit->objectName().toStdString();
        EXPECT_GE(hint.height(), 16) << edit->objectName().toStdString();
        EXPECT_LE(hint.height(), 40) << edit->objectName().toStdString();
        EXPECT_EQ(edit->height(), hint.height()) << edit->objectName().toStdString();
    }
}

} // namespace
} // namespace qorkit

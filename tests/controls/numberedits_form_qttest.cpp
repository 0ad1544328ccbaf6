// The expression, complex and angle edits on a form built by uic, as a host application
// builds its Designer forms: each control is made with its parent and its properties are set
// by name, enumerations by member name.
#include "QORKITComplexEdit.h"
#include "QORKITDMSEdit.h"
#include "QORKITExprEdit.h"
#include "QorkitTestSupport.h"
#include "ui_number_edits_form.h"

#include <gtest/gtest.h>

namespace qorkit {
namespace {

// The form holds calculator edits, whose engines seed the random generator.
class NumberEditsFormTest : public test::GlobalStateTestOf<test::Area::Random> { };

TEST_F(NumberEditsFormTest, ControlsBuildFromADesignerForm)
{
    QWidget form;
    Ui::NumberEditsForm ui;
    ui.setupUi(&form);
    form.adjustSize();

    EXPECT_EQ(ui.expressEdit->GetExpressionType(), etFull);
    EXPECT_EQ(ui.expressEdit->GetFloatValue(), 2004);
    EXPECT_EQ(ui.expressEdit->text(), QStringLiteral("sqrt(16) + 2e3"));

    EXPECT_EQ(ui.complexEdit->GetComplexDisplay(), ctPolar);
    EXPECT_EQ(ui.complexEdit->GetComplex(), (TQORComplex {3, 4}));
    EXPECT_EQ(ui.complexEdit->GetElementEdit(0)->text(), QStringLiteral("5.000"));
    EXPECT_EQ(ui.complexEdit->height(), 21);

    EXPECT_EQ(ui.dmsEdit->GetDMSType(), dmsDegreesMinutesSeconds);
    EXPECT_EQ(ui.dmsEdit->text().toStdString(), "12d 30' 45\"");
}

} // namespace
} // namespace qorkit

// Helpers of the calculator dialog tests: a fixture with a settings store in a temporary
// directory, and driving a modal dialog from inside its loop.
#pragma once

#include "QORKITCalcFormBase.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

namespace qorkit::test {

// The calculators seed the random generator, keep their settings (memory, angle mode, display
// font) and may be pointed at an INI file.
class CalcDialogTest : public GlobalStateTestOf<Area::Random | Area::Calculator | Area::Store> {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        ASSERT_TRUE(dir_.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir_.path());
    }
    // Calculator settings in an INI file of the temporary directory.
    void UseIniSettings()
    {
        QORRegIniType = ritIniFile;
        QORIniFile = dir_.filePath(QStringLiteral("calc.ini")).toStdString();
        QORIniSection = "Calculator";
    }
    QTemporaryDir dir_;
};

// Runs `body` on the modal dialog once its loop has started. The body must close the dialog;
// if it does not (a failed expectation), the dialog is cancelled so the test does not hang.
template<class Form> void WhenModal(std::function<void(Form&)> body)
{
    QTimer::singleShot(0, [body] {
        auto* form = qobject_cast<Form*>(QApplication::activeModalWidget());
        ASSERT_NE(form, nullptr);
        body(*form);
        if (form->isVisible())
            form->CancelClick();
    });
}

} // namespace qorkit::test

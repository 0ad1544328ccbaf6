// Helpers of the calculator dialog tests: a fixture with a settings store in a temporary
// directory, typing a key string into a form, and driving a modal dialog from inside its loop.
#pragma once

#include "QORKITCalcFormBase.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace qorkit::test {

class CalcDialogTest : public GlobalStateTest {
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

// Presses and releases a key on `widget` as the keyboard would; the key event carries `text`.
inline void KeyClick(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                     const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &release);
}

// A left-button press and release in the middle of `widget`.
inline void MouseClick(QWidget* widget)
{
    const QPointF local = QRectF(widget->rect()).center();
    const QPointF global = widget->mapToGlobal(local);
    QMouseEvent press(QEvent::MouseButtonPress, local, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

// Types `keys` into the form as the user would: each character is a key press on the key
// panel; "\b", "\r" and "\x1b" are Backspace, Enter and Escape.
inline void TypeKeys(TQORCalcFormBase& form, const std::string& keys)
{
    for (const char ch : keys) {
        switch (ch) {
        case '\b':
            KeyClick(form.KeyPanel, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
            break;
        case '\r':
            KeyClick(form.KeyPanel, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
            break;
        case '\x1b':
            KeyClick(form.KeyPanel, Qt::Key_Escape, Qt::NoModifier, QStringLiteral("\x1b"));
            break;
        default: {
            const QChar c = QLatin1Char(ch);
            const int key = c.isLetter() ? c.toUpper().unicode() : c.unicode();
            KeyClick(form.KeyPanel, key, Qt::NoModifier, QString(c));
            break;
        }
        }
    }
}

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

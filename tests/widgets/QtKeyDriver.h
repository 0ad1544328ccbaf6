// Keystrokes and activation for widget tests, sent as real Qt events to the widget.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

namespace qorkit::test {

inline void SendKey(QWidget* target, int key, const QString& text = {},
                    Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(target, &release);
}

// Types `keys` one character at a time; "\b" is Backspace.
inline void TypeKeys(QWidget* target, const QString& keys)
{
    for (const QChar c : keys) {
        const char ascii = c.toLatin1();
        if (ascii == '\b') {
            SendKey(target, Qt::Key_Backspace);
            continue;
        }
        int key = Qt::Key_unknown;
        if (c.isDigit())
            key = Qt::Key_0 + (ascii - '0');
        else if (c.isLetter())
            key = Qt::Key_A + (c.toUpper().toLatin1() - 'A');
        else if (ascii >= ' ' && ascii < 'A')
            key = ascii; // Qt's key codes of punctuation are their ASCII codes
        SendKey(target, key, QString(c));
    }
}

// Shows `window` and makes it the active one, so focus changes are real.
inline bool ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    for (int i = 0; i < 100 && QApplication::activeWindow() != &window; ++i)
        QApplication::processEvents();
    return QApplication::activeWindow() == &window;
}

} // namespace qorkit::test

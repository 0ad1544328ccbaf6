// A fixture for tests that drive one edit control with real focus changes: the control and a
// plain line edit in an active window, the focus starting on the line edit. `Touched` names the
// process-wide areas the tests change.
#pragma once

#include "QorkitTestSupport.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

namespace qorkit::test {

template<class Control, Area Touched = Area::None>
class EditWindowTest : public GlobalStateTestOf<Touched> {
protected:
    void SetUp() override
    {
        GlobalStateTestOf<Touched>::SetUp();
        auto* layout = new QVBoxLayout(&window_);
        edit_ = new Control(&window_);
        other_ = new QLineEdit(&window_);
        layout->addWidget(edit_, 0, Qt::AlignLeft);
        layout->addWidget(other_);
        window_.show();
        window_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
        other_->setFocus(Qt::TabFocusReason);
    }
    // Tabs into `target`, replaces its text with `keys` and tabs out to the line edit.
    void TypeInto(QLineEdit* target, const QString& keys)
    {
        target->setFocus(Qt::TabFocusReason);
        target->selectAll();
        QTest::keyClicks(target, keys);
        other_->setFocus(Qt::TabFocusReason);
    }

    QWidget window_;
    Control* edit_ = nullptr;
    QLineEdit* other_ = nullptr;
};

} // namespace qorkit::test

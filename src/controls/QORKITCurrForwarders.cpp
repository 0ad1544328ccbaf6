#include "QORKITCurrForwarders.h"

namespace qorkit {

void TQORCurrForwarders::HookSpecialColor(QObject* owner,
                                          std::function<void(QColor*, QColor*)> emitSignal)
{
    currEdit_->SetOnSpecialColor([this, owner, emitSignal = std::move(emitSignal)](
                                     QObject*, QColor& background, QColor& text) {
        if (onSpecialColor_)
            onSpecialColor_(owner, background, text);
        emitSignal(&background, &text);
    });
}

} // namespace qorkit

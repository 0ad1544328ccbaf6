// What the library's components share: the event types of the controls, and the removal
// notice that lets a component drop its reference to another component that goes away.
//
// Events are std::function members set with SetOnX and read with GetOnX; they are called
// synchronously, only when assigned, with the control that raised them as the sender. Every
// event is also a Qt signal of the same name without "On" (OnChange: change()), emitted from
// the same place right after the std::function, so any number of listeners can follow it.
#pragma once

#include "qorkit_widgets_export.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

class QKeyEvent;
class QMouseEvent;

namespace qorkit {

using TQORNotifyEvent = std::function<void(QObject* sender)>;
// Raised with the sign of the value (-1, 0 or 1) after each conversion.
using TQORSignChangeEvent = std::function<void(QObject* sender, int sign)>;
// Raised when typed text cannot be taken over (not a number, or outside the bounds).
using TQORValidationErrorEvent = std::function<void(QObject* sender, const QString& message)>;
// Lets the host override the colours an edit is about to use.
using TQORSpecialColorEvent
    = std::function<void(QObject* sender, QColor& background, QColor& text)>;

using TQORKeyEvent = std::function<void(QObject* sender, QKeyEvent* event)>;
using TQORMouseEvent = std::function<void(QObject* sender, QMouseEvent* event)>;

// Stores `value` in `field` and says whether that changed it: setters emit their change signal
// only then.
template<class T> bool AssignChanged(T& field, const T& value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

enum TQOROperation : std::uint8_t { opInsert = 0, opRemove = 1 };

// A component that keeps a reference to another component implements this to hear that the
// other one is being removed; it then drops the reference.
class QORKIT_WIDGETS_EXPORT IQORNotifyClient {
public:
    virtual ~IQORNotifyClient() = default;
    virtual void Notification(QObject* component, TQOROperation operation) = 0;
};

// The clients registered with a component. Clients are held through QPointer, so a client
// that is destroyed without unregistering is skipped rather than called.
class QORKIT_WIDGETS_EXPORT TQORNotifyList {
public:
    void Add(QObject* client);
    void Remove(QObject* client);
    bool Contains(const QObject* client) const;
    int Count() const;
    // Tells every live client that `component` is going away. Clients may unregister (or
    // register others) from inside their Notification.
    void NotifyRemoval(QObject* component);

private:
    void Prune();
    std::vector<QPointer<QObject>> clients_;
};

} // namespace qorkit

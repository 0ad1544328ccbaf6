#include "QORKITComponent.h"

#include <algorithm>

namespace qorkit {

void TQORNotifyList::Prune()
{
    std::erase_if(clients_, [](const QPointer<QObject>& p) { return p.isNull(); });
}

void TQORNotifyList::Add(QObject* client)
{
    if (client == nullptr || Contains(client))
        return;
    Prune();
    clients_.emplace_back(client);
}

void TQORNotifyList::Remove(QObject* client)
{
    std::erase_if(clients_, [client](const QPointer<QObject>& p) {
        return p.isNull() || p.data() == client;
    });
}

bool TQORNotifyList::Contains(const QObject* client) const
{
    return std::any_of(clients_.begin(), clients_.end(),
                       [client](const QPointer<QObject>& p) { return p.data() == client; });
}

int TQORNotifyList::Count() const
{
    return static_cast<int>(std::count_if(clients_.begin(), clients_.end(),
                                          [](const QPointer<QObject>& p) { return !p.isNull(); }));
}

void TQORNotifyList::NotifyRemoval(QObject* component)
{
    // Work on a copy: a client's Notification usually unregisters it from this very list.
    const auto snapshot = clients_;
    for (const auto& client : snapshot) {
        if (client.isNull() || !Contains(client.data()))
            continue;
        if (auto* target = dynamic_cast<IQORNotifyClient*>(client.data()))
            target->Notification(component, opRemove);
    }
    clients_.clear();
}

} // namespace qorkit

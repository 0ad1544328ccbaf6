// A host class as an ordinary Qt application writes it, with Qt's keywords.
#pragma once

#include "AllHeaders.h"

#include <QObject>
#include <QString>

class Host : public QObject {
    Q_OBJECT

public:
    int changes = 0;
    int displays = 0;
    QString lastDisplay;

signals:
    void displaySeen(const QString& text);

public slots:
    void onChange() { ++changes; }
    void onDisplay()
    {
        auto* front = qobject_cast<qorkit::TQORCalcEngineObject*>(sender());
        ++displays;
        lastDisplay = front != nullptr ? front->GetDisplayText() : QString();
        emit displaySeen(lastDisplay);
    }
};

// TQORTapeModel: the paper tape of a calculator engine as a list model, for a QListView beside
// the keys, for QML (roles "display", "number", "operator", "kind", "numberText") and for
// export (plain text, CSV, the clipboard).
//
// The model follows its engine live through the engine's front (TQORCalcEngineObject,
// TQORProgCalcEngineObject): a new tape line inserts a row, so views keep their place, and only
// a cleared or rewritten tape resets the model. Made on an engine, the model uses the front the
// engine has or makes one of its own; any number of models can follow one engine. The model
// looks at the tape on the front's tape signal at once and, once the key is done, after any of
// its other signals, so it keeps up even when the host takes the engine's tape slot for itself.
#pragma once

#include "QORKITEngineObjects.h"
#include "QORKITTape.h"
#include "qorkit_widgets_export.h"

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORTapeModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int Count READ GetCount NOTIFY countChanged)

public:
    enum TapeRole {
        TextRole = Qt::DisplayRole, // the tape line as written ("+ 3", "1,246.5")
        NumberRole = Qt::UserRole + 1, // its number: double, or qlonglong on the programmer's
                                       // tape; no value when the line has none
        OperatorRole, // the operator part ("+", "sin", "="); empty on a bare number
        KindRole, // "value", "operator", "result", "rule" or "error"
        NumberTextRole, // the number part as written
    };
    Q_ENUM(TapeRole)

    // Follows the tape of `front`, which must outlive the model.
    explicit TQORTapeModel(TQORCalcEngineObject& front, QObject* parent = nullptr);
    explicit TQORTapeModel(TQORProgCalcEngineObject& front, QObject* parent = nullptr);
    // Follows the tape of `engine` (which must outlive the model) through its front.
    explicit TQORTapeModel(TQORCalcEngine& engine, QObject* parent = nullptr);
    explicit TQORTapeModel(IQORProgCalcEngine& engine, QObject* parent = nullptr);
    ~TQORTapeModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int GetCount() const { return static_cast<int>(rows_.size()); }
    const std::vector<TQORTapeRow>& GetRows() const { return rows_; }

    // The tape as plain text / CSV (see TapeToText and TapeToCsv): numbers in the current
    // format settings.
    Q_INVOKABLE QString ToText() const;
    Q_INVOKABLE QString ToCsv() const;
    // Puts the tape on the clipboard: the plain text, and the CSV as "text/csv".
    Q_INVOKABLE void CopyToClipboard() const;
    // Writes the tape to a file: CSV when the name ends in ".csv", plain text otherwise.
    Q_INVOKABLE bool SaveToFile(const QString& fileName) const;

public Q_SLOTS:
    // Picks up what changed on the engine's tape since the last look.
    void Sync();

Q_SIGNALS:
    void countChanged();

private:
    template<class Front> void Follow(Front& front);
    template<class Front, class Engine> void FollowEngine(Engine& engine);
    void ScheduleSync();
    void Reset(const QStringList& lines);

    QPointer<QObject> front_;
    std::function<const QStringList&()> readTape_;
    std::function<int()> generation_;
    std::function<TQORTapeReader()> makeReader_;
    TQORTapeReader reader_;
    std::vector<TQORTapeRow> rows_;
    int seenGeneration_ = -1;
    bool syncPending_ = false;
};

} // namespace qorkit

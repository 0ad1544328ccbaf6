// TQORTapeModel: the paper tape of a calculator engine as a list model, for a QListView beside
// the keys, for QML (roles "display", "number", "operator", "kind", "numberText") and for
// export (plain text, CSV, the clipboard).
//
// The model follows its engine live: it listens to the engine's tape and display events and
// picks up new lines as they are written (rows are inserted, so views keep their place); a
// cleared or rewritten tape resets the model. The engines call one handler per event, so the
// model chains itself behind the handlers the engine has when the model is made: create it
// after the engine's owner has set its own handlers, or feed it with Sync() from them. A
// handler chained this way outlives the model harmlessly: it only passes the event on then.
#pragma once

#include "QORKITCalcEngine.h"
#include "QORKITProgCalcEngine.h"
#include "QORKITTape.h"
#include "qorkit_widgets_export.h"

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <string>
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

    // Follows the tape of `engine`, which must outlive the model.
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
    using TLines = std::function<std::vector<std::string>()>;
    TQORTapeModel(TLines lines, std::function<TQORTapeReader()> makeReader, QObject* parent);
    void ScheduleSync();
    void Reset();

    TLines lines_;
    std::function<TQORTapeReader()> makeReader_;
    TQORTapeReader reader_;
    std::vector<std::string> seen_;
    std::vector<TQORTapeRow> rows_;
    bool syncPending_ = false;
};

} // namespace qorkit

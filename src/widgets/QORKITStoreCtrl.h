// TQORStoreCtrl: the settings store that components keep their settings in.
//
// The store is the platform's native settings store (the registry on Windows) under a key
// path, an INI file, or nothing at all, as RegIniType chooses. Keys live in a section:
// OpenStorage(section) enters it (an empty name means the store's own Section), typed reads
// return the default when the key is missing or unreadable, and CloseStorage writes the
// changes back. Settings files are never written in place: the first write of a session
// moves the session onto a working copy beside the file; the last close writes that copy,
// reads it back through a second name to check that every key arrived, and only then
// renames it over the old file. A crash or a full disk therefore leaves the previous file
// readable, and CloseStorage reports the failure.
//
// Components that refer to a store register with AddToNotifyList; when the store is
// destroyed each registered component that implements IQORNotifyClient hears of it through
// Notification(store, opRemove) and drops its reference.
#pragma once

#include "QORKITComponent.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"

#include <QObject>
#include <QSettings>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace qorkit {

// Section used by components that were given no section name of their own.
inline constexpr char QORDefaultStoreSection[] = "Settings";

class TQORStoreCtrl : public QObject {
    Q_OBJECT
    Q_PROPERTY(qorkit::TQORRegIniType RegIniType READ GetRegIniType WRITE SetRegIniType NOTIFY
                   regIniTypeChanged)
    Q_PROPERTY(QString RegPath READ GetRegPath WRITE SetRegPath NOTIFY regPathChanged)
    Q_PROPERTY(
        QString IniFileName READ GetIniFileName WRITE SetIniFileName NOTIFY iniFileNameChanged)
    Q_PROPERTY(QString Section READ GetSection WRITE SetSection NOTIFY sectionChanged)

public:
    explicit TQORStoreCtrl(QObject* owner = nullptr);
    ~TQORStoreCtrl() override;

    TQORRegIniType GetRegIniType() const { return regIniType_; }
    void SetRegIniType(TQORRegIniType value);
    // Key path of the native store, such as "Software/Acme/Planner" ("\" also separates).
    QString GetRegPath() const { return regPath_; }
    void SetRegPath(const QString& value);
    QString GetIniFileName() const { return iniFileName_; }
    void SetIniFileName(const QString& value);
    QString GetSection() const { return section_; }
    void SetSection(const QString& value);

    // Opens the store in `section` (the store's Section when empty). Calls nest: each
    // OpenStorage needs its CloseStorage, and the innermost section is the one in use.
    // Returns false when the kind is ritNone or the path or file name is empty; reads then
    // give their defaults and writes are dropped.
    bool OpenStorage(const QString& section = {});
    // Leaves the section; the last close writes the store. Returns false when writing failed
    // (the old contents stay in place).
    bool CloseStorage();
    bool IsOpen() const { return settings_ != nullptr; }
    // Status of the last write: QSettings::NoError, AccessError or FormatError.
    QSettings::Status GetStatus() const { return status_; }

    // Typed reads and writes in the open section. Without an open store they open and close
    // one around the single call.
    bool ReadBoolean(const QString& key, bool defaultValue);
    void WriteBoolean(const QString& key, bool value);
    std::int32_t ReadInteger(const QString& key, std::int32_t defaultValue);
    void WriteInteger(const QString& key, std::int32_t value);
    std::int64_t ReadInt64(const QString& key, std::int64_t defaultValue);
    void WriteInt64(const QString& key, std::int64_t value);
    // A double: what INI files traditionally carry. Values beyond double range are written
    // as the largest finite double of their sign; NaN is written as 0.
    double ReadFloat(const QString& key, double defaultValue);
    void WriteFloat(const QString& key, double value);
    // An extended value written with every digit it has, so it reads back exactly.
    Extended ReadExtended(const QString& key, Extended defaultValue);
    void WriteExtended(const QString& key, Extended value);
    QString ReadString(const QString& key, const QString& defaultValue);
    void WriteString(const QString& key, const QString& value);
    bool ValueExists(const QString& key);
    void EraseKey(const QString& key);
    // Removes every key of the open section.
    void EraseSection();

    void AddToNotifyList(QObject* component);
    void RemoveFromNotifyList(QObject* component);
    bool IsInNotifyList(const QObject* component) const;

Q_SIGNALS:
    void regIniTypeChanged(qorkit::TQORRegIniType regIniType);
    void regPathChanged(const QString& regPath);
    void iniFileNameChanged(const QString& iniFileName);
    void sectionChanged(const QString& section);

private:
    std::unique_ptr<QSettings> CreateSettings() const;
    void EnterTopSection();
    // Moves the open session onto a working copy of its file (once); false when writing is
    // impossible, and the write is then dropped.
    bool BeginWriting();
    bool VerifyWorkingCopy();
    bool FinishWriting();
    void DiscardWorkingCopy();
    class Session;

    TQORRegIniType regIniType_ = ritNone;
    QString regPath_;
    QString iniFileName_;
    QString section_ = QString::fromLatin1(QORDefaultStoreSection);
    std::unique_ptr<QSettings> settings_;
    std::vector<QString> sections_;
    bool writing_ = false;
    QString targetFile_; // the settings file a working copy replaces
    QString workingFile_;
    QSettings::Status status_ = QSettings::NoError;
    TQORNotifyList notifyList_;
};

} // namespace qorkit

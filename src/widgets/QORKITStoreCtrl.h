// TQORStoreCtrl: the settings store that components keep their settings in.
//
// The store is the platform's native settings store (the registry on Windows) under a key
// path, an INI file, or nothing at all, as RegIniType chooses. Keys live in a section:
// OpenStorage(section) enters it (an empty name means the store's own Section), typed reads
// return the default when the key is missing or unreadable, and CloseStorage writes the
// changes back.
//
// INI files are kept by TQORIniFile: section and key names are written as given, and every
// line the store does not own (comments, other sections, lines it cannot read) stays. The file
// is read again when the changes are written, so what other programs wrote meanwhile stays too,
// and it is replaced in one step: a crash or a full disk leaves the previous file readable.
// A store that cannot be used (a key path with ".." parts, an unreadable file) or a write that
// fails is reported: CloseStorage returns false, GetErrorString says why, and errorOccurred
// is emitted.
//
// Components that refer to a store register with AddToNotifyList; when the store is
// destroyed each registered component that implements IQORNotifyClient hears of it through
// Notification(store, opRemove) and drops its reference.
#pragma once

#include "QORKITComponent.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QObject>
#include <QSettings>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace qorkit {

namespace detail {
class TQORStoreBackend; // the INI file or native store behind an open TQORStoreCtrl
}

// Section used by components that were given no section name of their own.
inline constexpr char QORDefaultStoreSection[] = "Settings";

class QORKIT_WIDGETS_EXPORT TQORStoreCtrl : public QObject {
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
    // Key path of the native store, such as "Software/Acme/Planner" ("\" also separates). A
    // path with ".." parts is refused when the store is opened.
    QString GetRegPath() const { return regPath_; }
    void SetRegPath(const QString& value);
    QString GetIniFileName() const { return iniFileName_; }
    void SetIniFileName(const QString& value);
    QString GetSection() const { return section_; }
    void SetSection(const QString& value);

    // Opens the store in `section` (the store's Section when empty). Calls nest: each
    // OpenStorage needs its CloseStorage, and the innermost section is the one in use.
    // Returns false when the kind is ritNone or the path or file name is empty, or when the
    // store cannot be used (reported as an error); reads then give their defaults and writes
    // are dropped.
    bool OpenStorage(const QString& section = {});
    // Leaves the section; the last close writes the store. Returns false when writing failed
    // or a write was refused (the old contents stay in place).
    bool CloseStorage();
    bool IsOpen() const { return backend_ != nullptr; }
    // Status of the last session: QSettings::NoError, AccessError (the store could not be
    // opened or written) or FormatError (a section or key name an INI file cannot hold).
    QSettings::Status GetStatus() const { return status_; }
    // What went wrong in the last session, for people; empty without an error.
    QString GetErrorString() const { return errorString_; }

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

    // The store could not be opened or written, or refused a name; `message` says why.
    void errorOccurred(const QString& message);

private:
    class Session;
    std::unique_ptr<detail::TQORStoreBackend> CreateBackend();
    // Records a failure of this session and reports it.
    void Fail(QSettings::Status status, const QString& message);
    bool WriteText(const QString& key, const QString& value);

    TQORRegIniType regIniType_ = ritNone;
    QString regPath_;
    QString iniFileName_;
    QString section_ = QString::fromLatin1(QORDefaultStoreSection);
    std::unique_ptr<detail::TQORStoreBackend> backend_;
    std::vector<QString> sections_;
    QSettings::Status status_ = QSettings::NoError;
    QString errorString_;
    TQORNotifyList notifyList_;
};

} // namespace qorkit

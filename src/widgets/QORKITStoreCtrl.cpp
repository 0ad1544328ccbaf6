#include "QORKITStoreCtrl.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <charconv>
#include <cmath>
#include <filesystem>
#include <limits>

namespace qorkit {

// Opens the store around one read or write when the caller has not opened it.
class TQORStoreCtrl::Session {
public:
    explicit Session(TQORStoreCtrl& store)
        : store_(store), opened_(!store.IsOpen() && store.OpenStorage())
    { }
    ~Session()
    {
        if (opened_)
            store_.CloseStorage();
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    QSettings* Settings() const { return store_.settings_.get(); }
    // The settings to write to, or nullptr when the write must be dropped.
    QSettings* Writable() const { return store_.BeginWriting() ? Settings() : nullptr; }

private:
    TQORStoreCtrl& store_;
    bool opened_;
};

TQORStoreCtrl::TQORStoreCtrl(QObject* owner) : QObject(owner) { }

TQORStoreCtrl::~TQORStoreCtrl()
{
    notifyList_.NotifyRemoval(this);
    if (settings_) {
        sections_.clear();
        FinishWriting();
    }
}

void TQORStoreCtrl::SetRegIniType(TQORRegIniType value)
{
    if (value <= ritIniFile && AssignChanged(regIniType_, value))
        Q_EMIT regIniTypeChanged(value);
}

void TQORStoreCtrl::SetRegPath(const QString& value)
{
    if (AssignChanged(regPath_, value))
        Q_EMIT regPathChanged(value);
}

void TQORStoreCtrl::SetIniFileName(const QString& value)
{
    if (AssignChanged(iniFileName_, value))
        Q_EMIT iniFileNameChanged(value);
}

void TQORStoreCtrl::SetSection(const QString& value)
{
    if (AssignChanged(section_, value))
        Q_EMIT sectionChanged(value);
}

std::unique_ptr<QSettings> TQORStoreCtrl::CreateSettings() const
{
    std::unique_ptr<QSettings> settings;
    if (regIniType_ == ritRegistry) {
        static const QRegularExpression separators(QStringLiteral("[\\\\/]+"));
        QStringList parts = regPath_.split(separators, Qt::SkipEmptyParts);
        if (parts.isEmpty())
            return nullptr;
#ifdef Q_OS_WIN
        settings = std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\")
                                                   + parts.join(QLatin1Char('\\')),
                                               QSettings::NativeFormat);
#else
        // Elsewhere the native store is a file per application: the last part of the path
        // names the application, the parts before it the organisation (nested folders).
        const QString application = parts.size() > 1 ? parts.takeLast() : QString();
        settings = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                               parts.join(QLatin1Char('/')), application);
#endif
    } else if (regIniType_ == ritIniFile) {
        if (iniFileName_.trimmed().isEmpty())
            return nullptr;
        settings = std::make_unique<QSettings>(iniFileName_, QSettings::IniFormat);
    } else {
        return nullptr;
    }
    // A missing key must give the caller's default, not a value from a system-wide file.
    settings->setFallbacksEnabled(false);
    // Never write the file in place: a new file is written and renamed over the old one.
    settings->setAtomicSyncRequired(true);
    return settings;
}

void TQORStoreCtrl::EnterTopSection()
{
    while (!settings_->group().isEmpty())
        settings_->endGroup();
    if (!sections_.empty() && !sections_.back().isEmpty())
        settings_->beginGroup(sections_.back());
}

bool TQORStoreCtrl::OpenStorage(const QString& section)
{
    if (!settings_) {
        settings_ = CreateSettings();
        if (!settings_)
            return false;
        status_ = QSettings::NoError;
    }
    sections_.push_back(section.isEmpty() ? section_ : section);
    EnterTopSection();
    return true;
}

bool TQORStoreCtrl::CloseStorage()
{
    if (!settings_)
        return false;
    sections_.pop_back();
    if (!sections_.empty()) {
        EnterTopSection();
        return true;
    }
    return FinishWriting();
}

namespace {

std::filesystem::path FsPath(const QString& file)
{
    return std::filesystem::path(file.toStdU16String());
}

// Whether the store keeps its settings in a file that we can replace ourselves (rather than in
// the registry or the system's preferences service).
bool IsFileStore(const QSettings& settings)
{
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
    if (settings.format() == QSettings::NativeFormat)
        return false;
#endif
    return !settings.fileName().isEmpty();
}

} // namespace

bool TQORStoreCtrl::BeginWriting()
{
    if (!settings_)
        return false;
    if (writing_)
        return true;
    if (!IsFileStore(*settings_)) {
        writing_ = true;
        return true;
    }
    const QString target = QFileInfo(settings_->fileName()).absoluteFilePath();
    const QFileInfo info(target);
    if (!QDir().mkpath(info.absolutePath())) {
        status_ = QSettings::AccessError;
        return false;
    }
    QTemporaryFile working(info.absolutePath() + QStringLiteral("/.") + info.fileName()
                           + QStringLiteral(".XXXXXX"));
    working.setAutoRemove(false);
    if (!working.open()) {
        status_ = QSettings::AccessError;
        return false;
    }
    working.close();
    std::error_code error;
    if (info.exists())
        std::filesystem::copy_file(FsPath(target), FsPath(working.fileName()),
                                   std::filesystem::copy_options::overwrite_existing, error);
    if (error) {
        QFile::remove(working.fileName());
        status_ = QSettings::AccessError;
        return false;
    }
    // Nothing was written yet, so the session can move to the copy without losing anything.
    settings_.reset();
    settings_ = std::make_unique<QSettings>(working.fileName(), QSettings::IniFormat);
    settings_->setFallbacksEnabled(false);
    settings_->setAtomicSyncRequired(true);
    EnterTopSection();
    targetFile_ = target;
    workingFile_ = working.fileName();
    writing_ = true;
    return true;
}

bool TQORStoreCtrl::VerifyWorkingCopy()
{
    // Read the copy back under a second name: the settings cache knows files by name, so
    // this parses what actually reached the disk.
    const QString check = workingFile_ + QStringLiteral("v");
    std::error_code error;
    std::filesystem::create_hard_link(FsPath(workingFile_), FsPath(check), error);
    if (error) {
        error.clear();
        std::filesystem::copy_file(FsPath(workingFile_), FsPath(check), error);
        if (error)
            return false;
    }
    bool same = false;
    {
        QSettings reread(check, QSettings::IniFormat);
        reread.setFallbacksEnabled(false);
        while (!settings_->group().isEmpty())
            settings_->endGroup();
        const QStringList keys = settings_->allKeys();
        same = reread.status() == QSettings::NoError && reread.allKeys().size() == keys.size();
        for (const QString& key : keys) {
            if (!same)
                break;
            same = reread.value(key).toString() == settings_->value(key).toString();
        }
    }
    QFile::remove(check);
    return same;
}

void TQORStoreCtrl::DiscardWorkingCopy()
{
    if (!workingFile_.isEmpty())
        QFile::remove(workingFile_);
    workingFile_.clear();
    targetFile_.clear();
}

bool TQORStoreCtrl::FinishWriting()
{
    if (!settings_)
        return false;
    if (!writing_) {
        // Only read from (or every write was dropped): nothing to write back.
        settings_.reset();
        return status_ == QSettings::NoError;
    }
    settings_->sync();
    status_ = settings_->status();
    bool ok = status_ == QSettings::NoError;
    if (!workingFile_.isEmpty()) {
        ok = ok && VerifyWorkingCopy();
        settings_.reset();
        std::error_code error;
        if (ok)
            std::filesystem::rename(FsPath(workingFile_), FsPath(targetFile_), error);
        ok = ok && !error;
        if (ok)
            workingFile_.clear(); // it is the settings file now
        DiscardWorkingCopy();
        if (!ok)
            status_ = QSettings::AccessError;
    }
    settings_.reset();
    writing_ = false;
    return ok;
}

bool TQORStoreCtrl::ReadBoolean(const QString& key, bool defaultValue)
{
    Session session(*this);
    if (!session.Settings())
        return defaultValue;
    const QVariant v = session.Settings()->value(key);
    if (!v.isValid())
        return defaultValue;
    // INI files written by hand or by older programs may hold 0/1 or true/false.
    const QString text = v.toString().trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return defaultValue;
}

void TQORStoreCtrl::WriteBoolean(const QString& key, bool value)
{
    Session session(*this);
    if (QSettings* settings = session.Writable())
        settings->setValue(key, value);
}

std::int64_t TQORStoreCtrl::ReadInt64(const QString& key, std::int64_t defaultValue)
{
    Session session(*this);
    if (!session.Settings())
        return defaultValue;
    bool ok = false;
    const qlonglong v = session.Settings()->value(key).toString().trimmed().toLongLong(&ok);
    return ok ? v : defaultValue;
}

void TQORStoreCtrl::WriteInt64(const QString& key, std::int64_t value)
{
    Session session(*this);
    if (QSettings* settings = session.Writable())
        settings->setValue(key, QString::number(static_cast<qlonglong>(value)));
}

std::int32_t TQORStoreCtrl::ReadInteger(const QString& key, std::int32_t defaultValue)
{
    const std::int64_t v = ReadInt64(key, defaultValue);
    if (v < std::numeric_limits<std::int32_t>::min()
        || v > std::numeric_limits<std::int32_t>::max())
        return defaultValue;
    return static_cast<std::int32_t>(v);
}

void TQORStoreCtrl::WriteInteger(const QString& key, std::int32_t value) { WriteInt64(key, value); }

double TQORStoreCtrl::ReadFloat(const QString& key, double defaultValue)
{
    Session session(*this);
    if (!session.Settings())
        return defaultValue;
    bool ok = false;
    // QString::toDouble reads the C locale's "." whatever the user's locale is.
    const double v = session.Settings()->value(key).toString().trimmed().toDouble(&ok);
    return ok && std::isfinite(v) ? v : defaultValue;
}

void TQORStoreCtrl::WriteFloat(const QString& key, double value)
{
    if (std::isnan(value))
        value = 0;
    else if (std::isinf(value))
        value = std::copysign(std::numeric_limits<double>::max(), value);
    Session session(*this);
    if (QSettings* settings = session.Writable())
        settings->setValue(key,
                           QString::number(value, 'g', std::numeric_limits<double>::max_digits10));
}

Extended TQORStoreCtrl::ReadExtended(const QString& key, Extended defaultValue)
{
    const QString text = ReadString(key, QString()).trimmed();
    if (text.isEmpty())
        return defaultValue;
    const QByteArray bytes = text.toLatin1();
    Extended v = 0;
    const auto [end, ec] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), v);
    if (ec != std::errc() || end != bytes.data() + bytes.size() || !std::isfinite(v))
        return defaultValue;
    return v;
}

void TQORStoreCtrl::WriteExtended(const QString& key, Extended value)
{
    if (!std::isfinite(value))
        value = std::isnan(value) ? 0 : std::copysign(std::numeric_limits<Extended>::max(), value);
    char buffer[64];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
    if (ec == std::errc())
        WriteString(key, QString::fromLatin1(buffer, static_cast<int>(end - buffer)));
}

QString TQORStoreCtrl::ReadString(const QString& key, const QString& defaultValue)
{
    Session session(*this);
    if (!session.Settings())
        return defaultValue;
    const QVariant v = session.Settings()->value(key);
    return v.isValid() ? v.toString() : defaultValue;
}

void TQORStoreCtrl::WriteString(const QString& key, const QString& value)
{
    Session session(*this);
    if (QSettings* settings = session.Writable())
        settings->setValue(key, value);
}

bool TQORStoreCtrl::ValueExists(const QString& key)
{
    Session session(*this);
    return session.Settings() && session.Settings()->contains(key);
}

void TQORStoreCtrl::EraseKey(const QString& key)
{
    Session session(*this);
    if (QSettings* settings = session.Writable())
        settings->remove(key);
}

void TQORStoreCtrl::EraseSection()
{
    Session session(*this);
    if (QSettings* settings = session.Writable())
        settings->remove(QString());
}

void TQORStoreCtrl::AddToNotifyList(QObject* component) { notifyList_.Add(component); }
void TQORStoreCtrl::RemoveFromNotifyList(QObject* component) { notifyList_.Remove(component); }
bool TQORStoreCtrl::IsInNotifyList(const QObject* component) const
{
    return notifyList_.Contains(component);
}

} // namespace qorkit

#include "QORKITStoreCtrl.h"

#include "QORKITIniFile.h"

#include <QRegularExpression>

#include <charconv>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>

namespace qorkit {

// What the store reads from and writes to: an INI file or the native settings store.
class detail::TQORStoreBackend {
public:
    virtual ~TQORStoreBackend() = default;
    // The text of `key`, or nothing when it is missing or not text.
    virtual std::optional<QString> Value(const QString& section, const QString& key) = 0;
    virtual bool Contains(const QString& section, const QString& key) = 0;
    // False when the store cannot hold the name.
    virtual bool SetValue(const QString& section, const QString& key, const QString& value) = 0;
    virtual void Remove(const QString& section, const QString& key) = 0;
    virtual void RemoveSection(const QString& section) = 0;
    // Writes the changes; false with `error` set when that failed.
    virtual bool Flush(QString& error) = 0;
};

namespace {

class IniBackend : public detail::TQORStoreBackend {
public:
    explicit IniBackend(QString file) : file_(std::move(file)) { }
    bool Load(QString& error) { return document_.Load(file_, &error); }

    std::optional<QString> Value(const QString& section, const QString& key) override
    {
        return document_.Value(section, key);
    }
    bool Contains(const QString& section, const QString& key) override
    {
        return document_.Contains(section, key);
    }
    bool SetValue(const QString& section, const QString& key, const QString& value) override
    {
        return Change([=](TQORIniFile& d) { return d.SetValue(section, key, value); });
    }
    void Remove(const QString& section, const QString& key) override
    {
        Change([=](TQORIniFile& d) {
            d.RemoveKey(section, key);
            return true;
        });
    }
    void RemoveSection(const QString& section) override
    {
        Change([=](TQORIniFile& d) {
            d.RemoveSection(section);
            return true;
        });
    }
    bool Flush(QString& error) override
    {
        if (changes_.empty())
            return true;
        // The changes go onto the file as it is now, so what others wrote since it was read
        // stays.
        TQORIniFile latest;
        if (!latest.Load(file_, &error))
            return false;
        for (const auto& change : changes_)
            change(latest);
        changes_.clear();
        return latest.Save(file_, &error);
    }

private:
    using TChange = std::function<bool(TQORIniFile&)>;
    bool Change(TChange change)
    {
        if (!change(document_))
            return false;
        changes_.push_back(std::move(change));
        return true;
    }

    QString file_;
    TQORIniFile document_;
    std::vector<TChange> changes_;
};

class NativeBackend : public detail::TQORStoreBackend {
public:
    explicit NativeBackend(std::unique_ptr<QSettings> settings) : settings_(std::move(settings))
    {
        // A missing key must give the caller's default, not a value from a system-wide store.
        settings_->setFallbacksEnabled(false);
        settings_->setAtomicSyncRequired(true);
    }

    // Runs `body` in `section` (the top level when empty).
    template<class F> auto InSection(const QString& section, F body) -> decltype(body())
    {
        if (!section.isEmpty())
            settings_->beginGroup(section);
        auto result = body();
        if (!section.isEmpty())
            settings_->endGroup();
        return result;
    }

    std::optional<QString> Value(const QString& section, const QString& key) override
    {
        const QVariant v = InSection(section, [&] { return settings_->value(key); });
        // Only text is a setting of ours; anything the settings layer decodes into another
        // type (its "@Variant(...)" form, byte arrays) is unreadable.
        if (v.typeId() == QMetaType::QString)
            return v.toString();
        if (v.typeId() == QMetaType::QStringList)
            return v.toStringList().join(QLatin1Char(','));
        return std::nullopt;
    }
    bool Contains(const QString& section, const QString& key) override
    {
        return InSection(section, [&] { return settings_->contains(key); });
    }
    bool SetValue(const QString& section, const QString& key, const QString& value) override
    {
        changed_ = true;
        InSection(section, [&] {
            settings_->setValue(key, value);
            return true;
        });
        return true;
    }
    void Remove(const QString& section, const QString& key) override
    {
        changed_ = true;
        InSection(section, [&] {
            settings_->remove(key);
            return true;
        });
    }
    void RemoveSection(const QString& section) override { Remove(section, QString()); }
    bool Flush(QString& error) override
    {
        if (!changed_)
            return true;
        changed_ = false;
        settings_->sync();
        if (settings_->status() == QSettings::NoError)
            return true;
        error = QStringLiteral("Cannot write the settings store %1").arg(settings_->fileName());
        return false;
    }

private:
    std::unique_ptr<QSettings> settings_;
    bool changed_ = false;
};

} // namespace

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
    detail::TQORStoreBackend* Store() const { return store_.backend_.get(); }
    const QString& Section() const { return store_.sections_.back(); }

private:
    TQORStoreCtrl& store_;
    bool opened_;
};

TQORStoreCtrl::TQORStoreCtrl(QObject* owner) : QObject(owner) { }

TQORStoreCtrl::~TQORStoreCtrl()
{
    notifyList_.NotifyRemoval(this);
    if (backend_) {
        QString error;
        backend_->Flush(error);
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

void TQORStoreCtrl::Fail(QSettings::Status status, const QString& message)
{
    status_ = status;
    errorString_ = message;
    Q_EMIT errorOccurred(message);
}

std::unique_ptr<detail::TQORStoreBackend> TQORStoreCtrl::CreateBackend()
{
    if (regIniType_ == ritIniFile) {
        if (iniFileName_.trimmed().isEmpty())
            return nullptr;
        auto ini = std::make_unique<IniBackend>(iniFileName_);
        QString error;
        if (!ini->Load(error)) {
            Fail(QSettings::AccessError, error);
            return nullptr;
        }
        return ini;
    }
    if (regIniType_ != ritRegistry)
        return nullptr;
    static const QRegularExpression separators(QStringLiteral("[\\\\/]+"));
    QStringList parts = regPath_.split(separators, Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return nullptr;
    // Elsewhere than on Windows the key path becomes folders: ".." would climb out of the
    // user's settings folder, so such a path is refused everywhere.
    if (parts.contains(QStringLiteral(".."))) {
        Fail(QSettings::AccessError,
             QStringLiteral("The settings key path \"%1\" is refused: it has a \"..\" part.")
                 .arg(regPath_));
        return nullptr;
    }
#ifdef Q_OS_WIN
    return std::make_unique<NativeBackend>(std::make_unique<QSettings>(
        QStringLiteral("HKEY_CURRENT_USER\\") + parts.join(QLatin1Char('\\')),
        QSettings::NativeFormat));
#else
    // Elsewhere the native store is a file per application: the last part of the path
    // names the application, the parts before it the organisation (nested folders).
    const QString application = parts.size() > 1 ? parts.takeLast() : QString();
    return std::make_unique<NativeBackend>(std::make_unique<QSettings>(
        QSettings::NativeFormat, QSettings::UserScope, parts.join(QLatin1Char('/')), application));
#endif
}

bool TQORStoreCtrl::OpenStorage(const QString& section)
{
    if (!backend_) {
        status_ = QSettings::NoError;
        errorString_.clear();
        backend_ = CreateBackend();
        if (!backend_)
            return false;
    }
    sections_.push_back(section.isEmpty() ? section_ : section);
    return true;
}

bool TQORStoreCtrl::CloseStorage()
{
    if (!backend_)
        return false;
    sections_.pop_back();
    if (!sections_.empty())
        return true;
    QString error;
    const bool written = backend_->Flush(error);
    backend_.reset();
    if (!written)
        Fail(QSettings::AccessError, error);
    return status_ == QSettings::NoError;
}

bool TQORStoreCtrl::WriteText(const QString& key, const QString& value)
{
    Session session(*this);
    if (!session.Store())
        return false;
    if (session.Store()->SetValue(session.Section(), key, value))
        return true;
    Fail(QSettings::FormatError,
         QStringLiteral("The key \"%1\" in section \"%2\" cannot be kept in a settings file.")
             .arg(key, session.Section()));
    return false;
}

bool TQORStoreCtrl::ReadBoolean(const QString& key, bool defaultValue)
{
    // INI files written by hand or by older programs may hold 0/1 or true/false.
    const QString text = ReadString(key, QString()).trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return defaultValue;
}

void TQORStoreCtrl::WriteBoolean(const QString& key, bool value)
{
    WriteText(key, value ? QStringLiteral("true") : QStringLiteral("false"));
}

std::int64_t TQORStoreCtrl::ReadInt64(const QString& key, std::int64_t defaultValue)
{
    bool ok = false;
    const qlonglong v = ReadString(key, QString()).trimmed().toLongLong(&ok);
    return ok ? v : defaultValue;
}

void TQORStoreCtrl::WriteInt64(const QString& key, std::int64_t value)
{
    WriteText(key, QString::number(static_cast<qlonglong>(value)));
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
    bool ok = false;
    // QString::toDouble reads the C locale's "." whatever the user's locale is.
    const double v = ReadString(key, QString()).trimmed().toDouble(&ok);
    return ok && std::isfinite(v) ? v : defaultValue;
}

void TQORStoreCtrl::WriteFloat(const QString& key, double value)
{
    if (std::isnan(value))
        value = 0;
    else if (std::isinf(value))
        value = std::copysign(std::numeric_limits<double>::max(), value);
    WriteText(key, QString::number(value, 'g', std::numeric_limits<double>::max_digits10));
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
        WriteText(key, QString::fromLatin1(buffer, static_cast<int>(end - buffer)));
}

QString TQORStoreCtrl::ReadString(const QString& key, const QString& defaultValue)
{
    Session session(*this);
    if (!session.Store())
        return defaultValue;
    return session.Store()->Value(session.Section(), key).value_or(defaultValue);
}

void TQORStoreCtrl::WriteString(const QString& key, const QString& value) { WriteText(key, value); }

bool TQORStoreCtrl::ValueExists(const QString& key)
{
    Session session(*this);
    return session.Store() && session.Store()->Contains(session.Section(), key);
}

void TQORStoreCtrl::EraseKey(const QString& key)
{
    Session session(*this);
    if (session.Store())
        session.Store()->Remove(session.Section(), key);
}

void TQORStoreCtrl::EraseSection()
{
    Session session(*this);
    if (session.Store())
        session.Store()->RemoveSection(session.Section());
}

void TQORStoreCtrl::AddToNotifyList(QObject* component) { notifyList_.Add(component); }
void TQORStoreCtrl::RemoveFromNotifyList(QObject* component) { notifyList_.Remove(component); }
bool TQORStoreCtrl::IsInNotifyList(const QObject* component) const
{
    return notifyList_.Contains(component);
}

} // namespace qorkit

#include "QORKITIniFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace qorkit {

namespace {

constexpr char Utf8Bom[] = "\xEF\xBB\xBF";

bool SameName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

bool HasLineBreakOrNul(const QString& s)
{
    return s.contains(QLatin1Char('\n')) || s.contains(QLatin1Char('\r')) || s.contains(QChar(0));
}

// Whether a value would not read back the same when written as it is.
bool NeedsQuotes(const QString& value)
{
    return value != value.trimmed() || HasLineBreakOrNul(value)
        || value.startsWith(QLatin1Char('"'));
}

struct Escape {
    char16_t Plain;
    char Code;
};
constexpr Escape Escapes[]
    = {{u'\\', '\\'}, {u'"', '"'}, {u'\n', 'n'}, {u'\r', 'r'}, {u'\t', 't'}, {u'\0', '0'}};

QString Quoted(const QString& value)
{
    QString out = QStringLiteral("\"");
    for (const QChar ch : value) {
        const auto* escape = std::find_if(std::begin(Escapes), std::end(Escapes),
                                          [ch](const Escape& e) { return e.Plain == ch; });
        if (escape != std::end(Escapes)) {
            out += QLatin1Char('\\');
            out += QLatin1Char(escape->Code);
        } else {
            out += ch;
        }
    }
    return out + QLatin1Char('"');
}

// A value as read: blanks around it dropped, and a quoted value unescaped.
QString Unquoted(const QString& text)
{
    if (text.size() < 2 || !text.startsWith(QLatin1Char('"')) || !text.endsWith(QLatin1Char('"')))
        return text;
    QString out;
    const QString body = text.mid(1, text.size() - 2);
    for (qsizetype i = 0; i < body.size(); ++i) {
        if (body[i] == QLatin1Char('\\') && i + 1 < body.size()) {
            const QChar code = body[i + 1];
            const auto* escape = std::find_if(std::begin(Escapes), std::end(Escapes),
                                              [code](const Escape& e) { return e.Code == code; });
            if (escape != std::end(Escapes)) {
                out += QChar(escape->Plain);
                ++i;
                continue;
            }
        }
        out += body[i];
    }
    return out;
}

} // namespace

bool TQORIniFile::IsValidSectionName(const QString& name)
{
    return !name.contains(QLatin1Char(']')) && !HasLineBreakOrNul(name);
}

bool TQORIniFile::IsValidKeyName(const QString& name)
{
    const QString key = name.trimmed();
    return !key.isEmpty() && !key.contains(QLatin1Char('=')) && !HasLineBreakOrNul(key)
        && !key.startsWith(QLatin1Char('[')) && !key.startsWith(QLatin1Char('#'))
        && !key.startsWith(QLatin1Char(';'));
}

TQORIniFile::Line TQORIniFile::ParseLine(const QByteArray& raw)
{
    Line line;
    line.Raw = raw;
    const QString text = QString::fromUtf8(raw).trimmed();
    if (text.isEmpty() || text.startsWith(QLatin1Char('#')) || text.startsWith(QLatin1Char(';')))
        return line;
    if (text.startsWith(QLatin1Char('['))) {
        const qsizetype close = text.indexOf(QLatin1Char(']'));
        if (close > 0) {
            line.Kind = LineKind::Section;
            line.Name = text.mid(1, close - 1).trimmed();
        }
        return line; // "[" without "]": a header cut short, kept as an unknown line
    }
    const qsizetype equals = text.indexOf(QLatin1Char('='));
    const QString key = equals > 0 ? text.left(equals).trimmed() : QString();
    if (key.isEmpty())
        return line;
    line.Kind = LineKind::Entry;
    line.Name = key;
    line.Value = Unquoted(text.mid(equals + 1).trimmed());
    return line;
}

void TQORIniFile::Parse(const QByteArray& contents)
{
    lines_.clear();
    QByteArray text = contents;
    const bool bom = text.startsWith(Utf8Bom);
    if (bom)
        text.remove(0, 3);
    QList<QByteArray> raws = text.split('\n');
    if (!raws.isEmpty() && raws.back().isEmpty())
        raws.removeLast(); // the break after the last line
    crlf_ = !raws.isEmpty() && raws.front().endsWith('\r');
    for (const QByteArray& raw : raws)
        lines_.push_back(ParseLine(raw));
    if (bom) {
        if (lines_.empty())
            lines_.emplace_back();
        lines_.front().Raw.prepend(Utf8Bom);
    }
}

QByteArray TQORIniFile::ToBytes() const
{
    QByteArray out;
    for (const Line& line : lines_) {
        out += line.Raw;
        out += '\n';
    }
    return out;
}

bool TQORIniFile::Load(const QString& fileName, QString* error)
{
    lines_.clear();
    QFile file(fileName);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly)) {
        if (error != nullptr)
            *error = QStringLiteral("Cannot read %1: %2").arg(fileName, file.errorString());
        return false;
    }
    const QByteArray contents = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        if (error != nullptr)
            *error = QStringLiteral("Cannot read %1: %2").arg(fileName, file.errorString());
        return false;
    }
    Parse(contents);
    return true;
}

bool TQORIniFile::Save(const QString& fileName, QString* error) const
{
    const auto fail = [&](const QString& why) {
        if (error != nullptr)
            *error = QStringLiteral("Cannot write %1: %2").arg(fileName, why);
        return false;
    };
    if (!QDir().mkpath(QFileInfo(fileName).absolutePath()))
        return fail(QStringLiteral("the folder cannot be created"));
    QSaveFile file(fileName);
    // Unbuffered, so that a write the disk takes only in part is seen here: a buffered
    // QSaveFile can commit a file cut short when the disk or the file-size limit runs out.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return fail(file.errorString());
    const QByteArray bytes = ToBytes();
    const qint64 written = file.write(bytes);
    if (written != bytes.size()) {
        const QString why = file.error() != QFileDevice::NoError
            ? file.errorString()
            : QStringLiteral("only %1 of %2 bytes could be written").arg(written).arg(bytes.size());
        file.cancelWriting();
        return fail(why);
    }
    if (!file.commit())
        return fail(file.errorString());
    return true;
}

std::optional<TQORIniFile::Range> TQORIniFile::FindSection(const QString& section) const
{
    const QString name = section.trimmed();
    const int count = static_cast<int>(lines_.size());
    int first = -1;
    if (name.isEmpty()) {
        first = 0;
    } else {
        for (int i = 0; i < count && first < 0; ++i) {
            if (lines_[static_cast<std::size_t>(i)].Kind == LineKind::Section
                && SameName(lines_[static_cast<std::size_t>(i)].Name, name))
                first = i + 1;
        }
        if (first < 0)
            return std::nullopt;
    }
    int last = first;
    while (last < count && lines_[static_cast<std::size_t>(last)].Kind != LineKind::Section)
        ++last;
    return Range {first, last};
}

int TQORIniFile::FindEntry(const Range& range, const QString& key) const
{
    const QString name = key.trimmed();
    for (int i = range.First; i < range.Last; ++i) {
        const Line& line = lines_[static_cast<std::size_t>(i)];
        if (line.Kind == LineKind::Entry && SameName(line.Name, name))
            return i;
    }
    return -1;
}

std::optional<QString> TQORIniFile::Value(const QString& section, const QString& key) const
{
    const auto range = FindSection(section);
    const int index = range ? FindEntry(*range, key) : -1;
    if (index < 0)
        return std::nullopt;
    return lines_[static_cast<std::size_t>(index)].Value;
}

bool TQORIniFile::Contains(const QString& section, const QString& key) const
{
    return Value(section, key).has_value();
}

TQORIniFile::Line TQORIniFile::EntryLine(const QString& key, const QString& value) const
{
    Line line;
    line.Kind = LineKind::Entry;
    line.Name = key;
    line.Value = value;
    line.Raw = (key + QLatin1Char('=') + (NeedsQuotes(value) ? Quoted(value) : value)).toUtf8();
    if (crlf_)
        line.Raw += '\r';
    return line;
}

bool TQORIniFile::SetValue(const QString& section, const QString& key, const QString& value)
{
    if (!IsValidSectionName(section) || !IsValidKeyName(key))
        return false;
    const auto at = [this](int i) { return lines_.begin() + i; };
    if (const auto range = FindSection(section)) {
        const int index = FindEntry(*range, key);
        if (index >= 0) {
            // The key keeps the spelling it has in the file.
            Line& line = lines_[static_cast<std::size_t>(index)];
            line = EntryLine(line.Name, value);
            return true;
        }
        int after = range->First;
        for (int i = range->First; i < range->Last; ++i) {
            if (lines_[static_cast<std::size_t>(i)].Kind == LineKind::Entry)
                after = i + 1;
        }
        lines_.insert(at(after), EntryLine(key.trimmed(), value));
        return true;
    }
    if (!lines_.empty() && !QString::fromUtf8(lines_.back().Raw).trimmed().isEmpty()) {
        Line blank;
        if (crlf_)
            blank.Raw = "\r";
        lines_.push_back(blank);
    }
    Line header;
    header.Kind = LineKind::Section;
    header.Name = section.trimmed();
    header.Raw = (QLatin1Char('[') + header.Name + QLatin1Char(']')).toUtf8();
    if (crlf_)
        header.Raw += '\r';
    lines_.push_back(header);
    lines_.push_back(EntryLine(key.trimmed(), value));
    return true;
}

void TQORIniFile::RemoveKey(const QString& section, const QString& key)
{
    const auto range = FindSection(section);
    const int index = range ? FindEntry(*range, key) : -1;
    if (index >= 0)
        lines_.erase(lines_.begin() + index);
}

void TQORIniFile::RemoveSection(const QString& section)
{
    if (section.trimmed().isEmpty()) {
        // The keys before the first header; the comments there stay.
        const auto range = FindSection(section);
        std::erase_if(lines_, [&, i = 0](const Line& line) mutable {
            const bool inside = i >= range->First && i < range->Last;
            ++i;
            return inside && line.Kind == LineKind::Entry;
        });
        return;
    }
    while (const auto range = FindSection(section))
        lines_.erase(lines_.begin() + range->First - 1, lines_.begin() + range->Last);
}

QStringList TQORIniFile::Sections() const
{
    QStringList names;
    if (!Keys(QString()).isEmpty())
        names.append(QString());
    for (const Line& line : lines_) {
        if (line.Kind == LineKind::Section && !names.contains(line.Name, Qt::CaseInsensitive))
            names.append(line.Name);
    }
    return names;
}

QStringList TQORIniFile::Keys(const QString& section) const
{
    QStringList names;
    const auto range = FindSection(section);
    if (!range)
        return names;
    for (int i = range->First; i < range->Last; ++i) {
        const Line& line = lines_[static_cast<std::size_t>(i)];
        if (line.Kind == LineKind::Entry && !names.contains(line.Name, Qt::CaseInsensitive))
            names.append(line.Name);
    }
    return names;
}

} // namespace qorkit

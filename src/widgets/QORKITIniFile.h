// TQORIniFile: an INI file kept line by line, for settings files that people and other
// programs read and write too.
//
// Section and key names are written exactly as given ("[Calc Settings]", "Decimal Places=2")
// and found again without regard to letter case, as INI files have always been read. Every
// line the document does not own stays as it was, byte for byte: comments ("#" or ";"), blank
// lines, lines without "=", unknown sections, a last line cut short, even binary junk. A
// changed key is rewritten in its own line; a new key goes after the last key of its section,
// a new section at the end of the file.
//
// Values are stored as they are, unless they would not read back the same (a line break,
// blanks at either end, a leading double quote): those are written in double quotes with
// C-style escapes. Reading trims blanks around a value and undoes the quotes.
//
// Keys before the first section header belong to the section with the empty name. When a
// section or key appears twice, the first one is the one read and written.
#pragma once

#include "qorkit_widgets_export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORIniFile {
public:
    TQORIniFile() = default;

    // Reads `fileName`; a missing file gives an empty document. False (and the document is
    // left empty) when the file exists but cannot be read.
    bool Load(const QString& fileName, QString* error = nullptr);
    // Writes the document to `fileName` through a temporary file renamed over the old one, so
    // a failed write leaves the old file as it was. Creates missing folders.
    bool Save(const QString& fileName, QString* error = nullptr) const;

    void Parse(const QByteArray& contents);
    QByteArray ToBytes() const;

    // The value of `key` in `section`, or nothing when there is no such key.
    std::optional<QString> Value(const QString& section, const QString& key) const;
    bool Contains(const QString& section, const QString& key) const;
    // False, and nothing changes, when a name cannot be written (see the Valid... checks).
    bool SetValue(const QString& section, const QString& key, const QString& value);
    void RemoveKey(const QString& section, const QString& key);
    // Removes the section's header and every line up to the next section.
    void RemoveSection(const QString& section);
    QStringList Sections() const;
    QStringList Keys(const QString& section) const;

    // A section name holds no "]" and no line break; a key name is not empty, holds no "=" or
    // line break and does not start with "[", "#" or ";". Blanks at either end are dropped.
    static bool IsValidSectionName(const QString& name);
    static bool IsValidKeyName(const QString& name);

private:
    enum class LineKind { Other, Section, Entry };
    struct Line {
        QByteArray Raw; // the line as read, without its line break
        LineKind Kind = LineKind::Other;
        QString Name; // section or key name
        QString Value; // an entry's value, unquoted
    };
    // First and one-past-last line of a section's body (after its header); the header line
    // index is First - 1, or -1 for the empty name's lines before the first header.
    struct Range {
        int First = 0;
        int Last = 0;
    };

    std::optional<Range> FindSection(const QString& section) const;
    int FindEntry(const Range& range, const QString& key) const;
    static Line ParseLine(const QByteArray& raw);
    Line EntryLine(const QString& key, const QString& value) const;

    std::vector<Line> lines_;
    bool crlf_ = false; // new lines end as the file's first line does
};

} // namespace qorkit

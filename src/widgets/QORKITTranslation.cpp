#include "QORKITTranslation.h"

#include "QORKITExprEdit.h"
#include "QORKITFloatEdit.h"
#include "QORKITImperial.h"
#include "QORKITSettings.h"
#include "QORKIT_RS_Calc.h"
#include "QORKIT_RS_Dialogs.h"
#include "QORKIT_RS_UC.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QString>
#include <QTranslator>
#include <QXmlStreamWriter>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

// The translations live in a static library: their resources are registered by hand, from the
// global namespace.
static void InitTranslationResources()
{
    static const bool done = [] {
        Q_INIT_RESOURCE(qorkit_translations);
        return true;
    }();
    (void)done;
}

namespace qorkit {

namespace {

// Where LoadTranslation() looks for qorkit_<language>.qm, in order.
QStringList TranslationDirs()
{
    QStringList dirs {QStringLiteral(":/qorkit/i18n"), QStringLiteral(QORKIT_INSTALL_TRANSLATIONS)};
    if (QCoreApplication::instance() != nullptr) {
        const QDir appDir(QCoreApplication::applicationDirPath());
        // An application in PREFIX/bin of a prefix moved after installing.
        dirs << QDir::cleanPath(appDir.filePath(QStringLiteral("../share/qorkit/translations")))
             << appDir.filePath(QStringLiteral("translations"));
    }
    return dirs;
}

// The translator LoadTranslation() installed last.
QPointer<QTranslator>& CurrentTranslator()
{
    static QPointer<QTranslator> translator;
    return translator;
}

// The 8-bit stand-in for a locale's separator, or fallback when there is none.
char SeparatorChar(const QString& separator, char fallback)
{
    if (separator.size() != 1)
        return fallback;
    const QChar ch = separator.front();
    if (ch.unicode() > 0x20 && ch.unicode() < 0x7F)
        return static_cast<char>(ch.unicode());
    if (ch.isSpace())
        return ' ';
    switch (ch.unicode()) {
    case 0x2018: // quotation marks used as apostrophes (Switzerland, Liechtenstein)
    case 0x2019:
    case 0x02BC:
        return '\'';
    case 0x066B: // Arabic decimal separator
        return '.';
    case 0x066C: // Arabic thousands separator
    case 0x060C: // Arabic comma
        return ',';
    default:
        return fallback;
    }
}

// One message of the template: a source text and every rs... name that uses it.
struct TemplateMessage {
    std::string_view Source;
    std::string Names;
};

// Texts with the same source in one context share a translation (the lookup knows only the
// context and the source), so the template lists each source once.
std::vector<TemplateMessage> DistinctMessages(std::span<const TResourceText> texts)
{
    std::vector<TemplateMessage> messages;
    std::map<std::string_view, std::size_t> index;
    for (const auto& text : texts) {
        const auto [it, inserted] = index.try_emplace(text.Source, messages.size());
        if (inserted)
            messages.push_back({text.Source, std::string(text.Name)});
        else
            messages[it->second].Names.append(", ").append(text.Name);
    }
    return messages;
}

} // namespace

void InstallQtTranslationHook()
{
    SetTranslationHook([](std::string_view context, std::string_view source) -> std::string {
        // translate() wants zero-terminated UTF-8; the views need not be.
        const std::string contextText(context);
        const std::string sourceText(source);
        return QCoreApplication::translate(contextText.c_str(), sourceText.c_str()).toStdString();
    });
}

bool LoadTranslation(const QLocale& locale)
{
    InitTranslationResources();
    InstallQtTranslationHook();
    if (auto& current = CurrentTranslator(); current) {
        QCoreApplication::removeTranslator(current);
        delete current;
    }
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    for (const auto& dir : TranslationDirs()) {
        if (translator->load(locale, QStringLiteral("qorkit"), QStringLiteral("_"), dir)) {
            if (!QCoreApplication::installTranslator(translator.get()))
                return false;
            CurrentTranslator() = translator.release();
            return true;
        }
    }
    return false;
}

void SyncFormatSettingsFromLocale(const QLocale& locale)
{
    const char decimal = SeparatorChar(locale.decimalPoint(), '.');
    char thousands = SeparatorChar(locale.groupSeparator(), ',');
    // The parsers tell the two apart, so they must never coincide.
    if (thousands == decimal)
        thousands = decimal == ',' ? '.' : ',';
    FormatSettings.DecimalSeparator = decimal;
    FormatSettings.ThousandSeparator = thousands;
    // The C locale has no currency symbol; the library's default stands in for it.
    const QString currency = locale.currencySymbol();
    FormatSettings.CurrencyString
        = currency.isEmpty() ? TFormatSettings {}.CurrencyString : currency.toStdString();
}

std::span<const TTextModule> TextModules()
{
    // The contexts are those the modules pass to LoadResString.
    static const std::array<TTextModule, 7> modules {{
        {"QORKIT_Base", BaseTexts()},
        {"QORKIT_RS_Calc", CalcTexts()},
        {UCTextContext, UCTexts()},
        {"QORKITImperial", ImperialTexts()},
        {"QORKITFloatEdit", FloatEditTexts()},
        {DialogTextContext, DialogTexts()},
        {"QORKITExprEdit", ExprEditTexts()},
    }};
    return modules;
}

QByteArray TranslationTemplate()
{
    QByteArray result;
    QXmlStreamWriter xml(&result);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(4);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    xml.writeAttribute(QStringLiteral("sourcelanguage"), QStringLiteral("en"));
    for (const auto& module : TextModules()) {
        xml.writeStartElement(QStringLiteral("context"));
        xml.writeTextElement(QStringLiteral("name"), ToQString(module.Context));
        for (const auto& message : DistinctMessages(module.Texts)) {
            xml.writeStartElement(QStringLiteral("message"));
            xml.writeTextElement(QStringLiteral("source"), ToQString(message.Source));
            xml.writeTextElement(QStringLiteral("extracomment"), ToQString(message.Names));
            xml.writeStartElement(QStringLiteral("translation"));
            xml.writeAttribute(QStringLiteral("type"), QStringLiteral("unfinished"));
            xml.writeEndElement();
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return result;
}

} // namespace qorkit

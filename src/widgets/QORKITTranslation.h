// Qt side of the library's texts: the translation hook that lets Qt Linguist files translate
// every rs... text, the Linguist template of those texts, and the format settings taken from a
// QLocale.
#pragma once

#include "QORKITResource.h"
#include "qorkit_widgets_export.h"

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <span>
#include <string_view>

namespace qorkit {

// A library text (UTF-8) as a QString: the one conversion the Qt layer uses.
inline QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Routes every resource-string lookup through QCoreApplication::translate(context, source),
// so translators installed with QCoreApplication::installTranslator() translate the library.
// The contexts are the text modules ("QORKIT_Base", "QORKIT_RS_Calc", "QORKIT_RS_UC") and the
// modules that keep texts of their own ("QORKITImperial", "QORKITFloatEdit", "QORKIT_RS_Dialogs");
// see TextModules().
// SetTranslationHook({}) returns to the built-in English texts.
QORKIT_WIDGETS_EXPORT void InstallQtTranslationHook();

// Installs the library's own translation for a locale in one call: a QTranslator holding
// qorkit_<language>.qm (for de_DE: qorkit_de_DE.qm, else qorkit_de.qm), looked up in the
// translations built into the library (":/qorkit/i18n"), then in the install directory
// (PREFIX/share/qorkit/translations), then in ../share/qorkit/translations from the
// application's folder (an installed prefix moved elsewhere), then in "translations" beside
// the application. It also installs the translation hook. A translation loaded by an earlier
// call is removed first, so switching languages works; English needs no file and gives false.
// Number formats are not touched: call SyncFormatSettingsFromLocale() for those. Needs a
// QCoreApplication.
//   qorkit::LoadTranslation(QLocale(QStringLiteral("de_DE")));
QORKIT_WIDGETS_EXPORT bool LoadTranslation(const QLocale& locale = QLocale());

// Copies the decimal and thousands separators and the currency symbol of a locale into the
// process-wide FormatSettings. The separators are single 8-bit characters, so a locale whose
// separator is not plain ASCII is mapped: any kind of space (no-break space, narrow no-break
// space, thin space ...) becomes a plain blank, a typographic apostrophe becomes "'", the Arabic
// decimal and thousands marks become "." and ",". Anything else keeps "." and "," as defaults.
// The currency symbol is kept as UTF-8 text; a locale without one (the C locale) gives "$".
QORKIT_WIDGETS_EXPORT void SyncFormatSettingsFromLocale(const QLocale& locale = QLocale());

// One text module as seen by translation tools: its translation context and its texts.
struct QORKIT_WIDGETS_EXPORT TTextModule {
    std::string_view Context;
    std::span<const TResourceText> Texts;
};

// The text modules of the library, in the order the template lists them.
QORKIT_WIDGETS_EXPORT std::span<const TTextModule> TextModules();

// The Qt Linguist (.ts) template of every library text: one context per text module, one
// message per distinct source text with the rs... names that use it as translator comment.
QORKIT_WIDGETS_EXPORT QByteArray TranslationTemplate();

} // namespace qorkit

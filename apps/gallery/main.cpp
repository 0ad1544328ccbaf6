// The qorkit gallery: every dialog and control of the library in one window.
//   qorkit-gallery                   opens the window
//   qorkit-gallery --screenshot DIR  renders every page (offscreen) to DIR/*.png and exits
#include "GalleryPages.h"
#include "QORKITTranslation.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPixmap>
#include <QTabWidget>

#include <cstdio>

namespace {

QString FileNameOf(QString title)
{
    return title.toLower().replace(QLatin1Char(' '), QLatin1Char('-')) + QStringLiteral(".png");
}

bool Save(QWidget* widget, const QDir& dir, const QString& name)
{
    widget->ensurePolished();
    widget->adjustSize();
    const bool ok = widget->grab().save(dir.filePath(name));
    std::printf("%s %s\n", ok ? "wrote" : "FAILED", qPrintable(dir.filePath(name)));
    return ok;
}

// Switches texts and number formats to a locale.
void UseLocale(const QLocale& locale)
{
    QLocale::setDefault(locale);
    qorkit::LoadTranslation(locale);
    qorkit::SyncFormatSettingsFromLocale(locale);
}

// Writes every page (and its dialogs); then, unless a locale was chosen, the dialogs once more
// in German ("dialog-sci-calculator-de.png"), to check that translated captions fit.
int Screenshots(const QString& path, bool germanPass)
{
    QDir dir;
    if (!dir.mkpath(path)) {
        std::fprintf(stderr, "qorkit-gallery: cannot create %s\n", qPrintable(path));
        return 1;
    }
    dir.setPath(path);
    bool ok = true;
    for (const auto& page : gallery::AllPages()) {
        QWidget* widget = page.Make(nullptr);
        ok = Save(widget, dir, FileNameOf(page.Title)) && ok;
        delete widget;
        if (page.Shots) {
            for (auto& [name, shot] : page.Shots()) {
                ok = Save(shot, dir, name) && ok;
                delete shot;
            }
        }
    }
    if (germanPass) {
        UseLocale(QLocale(QLocale::German, QLocale::Germany));
        for (const auto& page : gallery::AllPages()) {
            if (!page.Shots)
                continue;
            for (auto& [name, shot] : page.Shots()) {
                ok = Save(shot, dir,
                          QString(name).replace(QStringLiteral(".png"), QStringLiteral("-de.png")))
                    && ok;
                delete shot;
            }
        }
    }
    return ok ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    // Offscreen rendering for --screenshot needs the platform chosen before QApplication.
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--screenshot") == 0 && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qorkit-gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Every dialog and control of qorkit."));
    parser.addHelpOption();
    QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                  QStringLiteral("Render every page to PNG files in DIR and exit."),
                                  QStringLiteral("DIR"));
    parser.addOption(screenshot);
    QCommandLineOption locale(
        QStringLiteral("locale"),
        QStringLiteral("Texts and number formats of the named locale, e.g. de_DE."),
        QStringLiteral("NAME"));
    parser.addOption(locale);
    parser.process(app);

    // Texts go through Qt's translators: the library's own translation of the chosen locale
    // (English when none is named); number formats follow that locale (the C locale's "." and
    // "," unless one is named).
    qorkit::InstallQtTranslationHook();
    if (parser.isSet(locale))
        UseLocale(QLocale(parser.value(locale)));

    if (parser.isSet(screenshot))
        return Screenshots(parser.value(screenshot), !parser.isSet(locale));

    QTabWidget window;
    window.setWindowTitle(QStringLiteral("qorkit gallery"));
    for (const auto& page : gallery::AllPages())
        window.addTab(page.Make(&window), page.Title);
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}

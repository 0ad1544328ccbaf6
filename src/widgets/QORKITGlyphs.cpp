#include "QORKITGlyphs.h"

#include <QCoreApplication>
#include <QPainter>

#include <array>
#include <map>
#include <tuple>

// The glyphs live in a static library: their resources must be registered by hand, from the
// global namespace.
static void InitGlyphResources()
{
    static const bool done = [] {
        Q_INIT_RESOURCE(qorkit_glyphs);
        return true;
    }();
    (void)done;
}

namespace qorkit {

namespace {

// Indexed by TQORGlyph.
constexpr std::array<std::string_view, QORGlyphCount> GlyphNames = {
    "calcfx",   "calc1",  "calc2",     "changesign", "add",  "subtract",
    "multiply", "divide", "backspace", "power",      "pi",   "square",
    "sqroot",   "invert", "exit",      "cancel",     "copy", "paste",
};

// One icon per glyph and one pixmap per glyph, size and scale, made on first use and shared
// by every key and dialog afterwards: opening a dialog reads no SVG again. Pixmaps cannot
// outlive the application object, so the cache empties itself when the application ends.
struct GlyphCache {
    std::array<QIcon, QORGlyphCount> icons;
    std::map<std::tuple<int, int, int, qreal>, QPixmap> pixmaps;
};

GlyphCache* cache = nullptr;

GlyphCache& Cache()
{
    if (cache == nullptr) {
        cache = new GlyphCache;
        qAddPostRoutine([] {
            delete cache;
            cache = nullptr;
        });
    }
    return *cache;
}

} // namespace

std::string_view QORGlyphName(TQORGlyph glyph)
{
    return glyph < QORGlyphCount ? GlyphNames[glyph] : std::string_view();
}

QString QORGlyphPath(TQORGlyph glyph)
{
    const std::string_view name = QORGlyphName(glyph);
    if (name.empty())
        return {};
    return QStringLiteral(":/qorkit/glyphs/")
        + QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()))
        + QStringLiteral(".svg");
}

QIcon QORGlyphIcon(TQORGlyph glyph)
{
    if (glyph >= QORGlyphCount)
        return {};
    QIcon& icon = Cache().icons[glyph];
    if (icon.isNull()) {
        InitGlyphResources();
        icon = QIcon(QORGlyphPath(glyph));
    }
    return icon;
}

QPixmap QORGlyphPixmap(TQORGlyph glyph, QSize logicalSize, qreal devicePixelRatio)
{
    const QIcon icon = QORGlyphIcon(glyph);
    if (icon.isNull() || logicalSize.isEmpty() || devicePixelRatio <= 0)
        return {};
    const auto key = std::make_tuple(static_cast<int>(glyph), logicalSize.width(),
                                     logicalSize.height(), devicePixelRatio);
    auto& pixmaps = Cache().pixmaps;
    if (const auto found = pixmaps.find(key); found != pixmaps.end())
        return found->second;
    // Drawn straight at the device size, so a doubled screen gets twice the detail rather
    // than a scaled-up bitmap.
    QPixmap pixmap(logicalSize * devicePixelRatio);
    pixmap.fill(Qt::transparent);
    {
        QPainter painter(&pixmap);
        icon.paint(&painter, pixmap.rect());
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmaps.emplace(key, pixmap);
    return pixmap;
}

QIcon LoadCalcGlyFXBtn() { return QORGlyphIcon(glCalcFX); }
QIcon LoadCalc1Btn() { return QORGlyphIcon(glCalc1); }
QIcon LoadCalc2Btn() { return QORGlyphIcon(glCalc2); }

QIcon LoadCalcGlyph(TQORCalcGlyphType type)
{
    switch (type) {
    case cgtCalculator:
        return LoadCalcGlyFXBtn();
    case cgtSmallCalculator:
        return LoadCalc1Btn();
    case cgtEllipsis:
        return LoadCalc2Btn();
    }
    return {};
}

} // namespace qorkit

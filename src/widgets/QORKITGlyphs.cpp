#include "QORKITGlyphs.h"

#include <QPainter>

#include <array>

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
    InitGlyphResources();
    const QString path = QORGlyphPath(glyph);
    return path.isEmpty() ? QIcon() : QIcon(path);
}

QPixmap QORGlyphPixmap(TQORGlyph glyph, QSize logicalSize, qreal devicePixelRatio)
{
    const QIcon icon = QORGlyphIcon(glyph);
    if (icon.isNull() || logicalSize.isEmpty() || devicePixelRatio <= 0)
        return {};
    // Drawn straight at the device size, so a doubled screen gets twice the detail rather
    // than a scaled-up bitmap.
    QPixmap pixmap(logicalSize * devicePixelRatio);
    pixmap.fill(Qt::transparent);
    {
        QPainter painter(&pixmap);
        icon.paint(&painter, pixmap.rect());
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
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

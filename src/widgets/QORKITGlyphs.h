// The glyphs of the calculator keys and of the calculator edits' buttons: SVG drawings in the
// library's resources (":/qorkit/glyphs/<name>.svg"), sharp at every screen scale.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

#include <cstdint>
#include <string_view>

namespace qorkit {

enum TQORGlyph : std::uint8_t {
    glCalcFX = 0, // calculator edit button, glyph type 0
    glCalc1, // calculator edit button, glyph type 1
    glCalc2, // calculator edit button, glyph type 2
    glChangeSign,
    glAdd,
    glSubtract,
    glMultiply,
    glDivide,
    glBackSpace,
    glPower,
    glPi,
    glSquare,
    glSqRoot,
    glInvert,
    glExit,
    glCancel,
    glCopy,
    glPaste,
};
inline constexpr int QORGlyphCount = glPaste + 1;

// Name of a glyph, also its file name without ".svg": "add", "sqroot" ...
QORKIT_WIDGETS_EXPORT std::string_view QORGlyphName(TQORGlyph glyph);
// Resource path of a glyph.
QORKIT_WIDGETS_EXPORT QString QORGlyphPath(TQORGlyph glyph);
QORKIT_WIDGETS_EXPORT QIcon QORGlyphIcon(TQORGlyph glyph);
// The glyph drawn for `logicalSize` at `devicePixelRatio` (2 on a doubled screen).
QORKIT_WIDGETS_EXPORT QPixmap QORGlyphPixmap(TQORGlyph glyph, QSize logicalSize,
                                             qreal devicePixelRatio = 1.0);

// The three glyphs a calculator edit's button can carry.
QORKIT_WIDGETS_EXPORT QIcon LoadCalcGlyFXBtn();
QORKIT_WIDGETS_EXPORT QIcon LoadCalc1Btn();
QORKIT_WIDGETS_EXPORT QIcon LoadCalc2Btn();
// The glyph of a TQORCalcGlyphType; a null icon for a value outside 0..2.
QORKIT_WIDGETS_EXPORT QIcon LoadCalcGlyph(TQORCalcGlyphType type);

} // namespace qorkit

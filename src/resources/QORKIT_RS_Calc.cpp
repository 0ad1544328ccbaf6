#include "QORKIT_RS_Calc.h"

namespace qorkit {

namespace {
constexpr std::string_view kTextContext = "QORKIT_RS_Calc";
constexpr TResourceText kTexts[] = {QORKIT_RS_CALC_TEXTS(QORKIT_LIST_TEXT)};
} // namespace

QORKIT_RS_CALC_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> CalcTexts() { return kTexts; }

} // namespace qorkit

// The calculator settings kept between runs: the angle mode (QORCalcRadians), the memory
// register (QORCalcMemory) and the display font (QORCalcDispFont), stored in the native
// settings store or an INI file as QORRegIniType chooses (QORKITSettings.h).
//
// A missing path, file name or section turns persistence off without a word, and a missing
// key keeps the variable's present value. The memory passes through a double, so only double
// precision survives a save and load.
#pragma once

namespace qorkit {

void LoadCalculatorSettings();
void SaveCalculatorSettings();

} // namespace qorkit

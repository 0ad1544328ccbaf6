// Keystroke driver for the programmer's engine: a key string becomes engine calls, and every
// notification is recorded, so a test reads like the keys a user presses.
//
// Keys are written in the grammar of KeyGrammar.h. Besides the characters of the engine's own
// table (0-9 A-F a-f, + - * / ( ) =), the driver reads these characters of the programmer's
// calculator keyboard:
//   %  [MOD]     &  [AND]     |  [OR]      ^  [XOR]     #  [NAND]    ?  [NOR]     !  [XNOR]
//   ~  [NOT]     _  [NEG]     <  [SHL 1]   >  [SHR 1]   {  [ROL 1]   }  [ROR 1]
// and a bracketed word size, [8] [16] [32] [64], is [BITS8] ... [BITS64]. Bases ([HEX]) and
// sizes go through the public setters, with their notifications and history lines.
#pragma once

#include "QORKITProgCalcEngine.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit::test {

class ProgKeyDriver {
public:
    ProgKeyDriver();

    // Quietly puts a fresh engine into a base and size, then clears the record.
    ProgKeyDriver& Setup(TQORBaseDisplay base, TQORBitSize size);
    // Presses the keys; an unknown key fails the running test.
    ProgKeyDriver& Press(std::string_view keys);

    IQORProgCalcEngine& Engine() { return *engine_; }
    std::string Display() const { return engine_->GetDisplayStr(); }
    std::int64_t Value() { return engine_->GetDisplayValue(); }
    // Every history line as stored (reads from the start; leaves the position on the last).
    std::vector<std::string> History();

    // Notifications received, by name: "History", "Display", "Error", "Memory", "Base",
    // "BitSize", "Spacing", "SizeChange"; Events() lists them in order.
    int Count(const std::string& event) const;
    const std::vector<std::string>& Events() const { return events_; }
    void ClearEvents();

private:
    std::shared_ptr<IQORProgCalcEngine> engine_;
    std::vector<std::string> events_;
    std::map<std::string, int> counts_;
};

} // namespace qorkit::test

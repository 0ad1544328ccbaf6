// Arbitrary key sequences through the programmer's engine at every base, size, spacing and
// size-change mode. Nothing may escape an operation, and the display must always be the error
// text or digits of the base (with signs and grouping blanks).
#include "QORKITProgCalcEngine.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <string>

namespace {

using qorkit::TQORProgCalcEngine;

void PressKey(TQORProgCalcEngine& e, std::uint8_t key, std::uint8_t arg)
{
    static const char kDigits[] = "0123456789ABCDEFabcdefG-+ ";
    const auto count = static_cast<std::int32_t>(arg) - 64; // also negative and above 64
    switch (key % 48) {
    case 0:
        e.DoAdd();
        break;
    case 1:
        e.DoSubtract();
        break;
    case 2:
        e.DoMultiply();
        break;
    case 3:
        e.DoDivide();
        break;
    case 4:
        e.DoMod();
        break;
    case 5:
        e.DoAnd();
        break;
    case 6:
        e.DoOr();
        break;
    case 7:
        e.DoXor();
        break;
    case 8:
        e.DoXnor();
        break;
    case 9:
        e.DoNor();
        break;
    case 10:
        e.DoNand();
        break;
    case 11:
        e.DoNeg();
        break;
    case 12:
        e.DoNot();
        break;
    case 13:
        e.DoShl(count);
        break;
    case 14:
        e.DoShr(count);
        break;
    case 15:
        e.DoRol(count);
        break;
    case 16:
        e.DoRor(count);
        break;
    case 17:
        e.InputLeftBracket();
        break;
    case 18:
        e.InputRightBracket();
        break;
    case 19:
        e.DoEquals();
        break;
    case 20:
        e.DoResult();
        break;
    case 21:
        e.InputBackspace();
        break;
    case 22:
        e.ClearDisplay();
        break;
    case 23:
        e.AllClear();
        break;
    case 24:
        e.MemoryAdd();
        break;
    case 25:
        e.MemorySubtract();
        break;
    case 26:
        e.MemoryRecall();
        break;
    case 27:
        e.MemoryClear();
        break;
    case 28:
        e.SetBaseDisplay(static_cast<qorkit::TQORBaseDisplay>(arg & 3U));
        break;
    case 29:
        e.SetBitSize(static_cast<qorkit::TQORBitSize>(arg & 3U));
        break;
    case 30:
        e.SetSpacing(static_cast<qorkit::TQORProgSpacing>(arg & 3U));
        break;
    case 31:
        e.SetSizeChange(static_cast<qorkit::TQORProgSizeChange>(arg % 3U));
        break;
    case 32:
        e.SetBaseDisplay2(static_cast<qorkit::TQORBaseDisplay>(arg & 3U));
        break;
    case 33:
        e.SetBitSize2(static_cast<qorkit::TQORBitSize>(arg & 3U));
        break;
    case 34:
        e.SetPrecedence((arg & 1U) != 0);
        break;
    case 35:
        e.SetPrefixFunctions((arg & 1U) != 0);
        break;
    case 36:
        e.SetMemoryHistory((arg & 1U) != 0);
        break;
    case 37:
        e.InputValue(static_cast<std::int64_t>(0x0101010101010101ULL * arg) - 64);
        break;
    case 38:
        e.InputString(std::string(1, kDigits[arg % (sizeof kDigits - 1)]) + "F7");
        break;
    case 39:
        e.SetMaxDisplayLength(arg);
        break;
    case 40:
        e.SetHistoryPosition(count);
        break;
    case 41:
        (void)e.GetNextHistoryEntry();
        break;
    case 42:
        (void)e.GetHistoryEntry(arg);
        break;
    case 43:
        (void)e.GetDisplayValueBin();
        (void)e.GetDisplayValueOct();
        break;
    case 44:
        e.SetMemory(static_cast<std::int64_t>(0ULL - (0x8000000000000000ULL >> (arg & 63U))));
        break;
    default:
        e.InputDigit(kDigits[arg % (sizeof kDigits - 1)]);
        break;
    }
}

bool DisplayIsSane(const std::string& display, const std::string& error)
{
    if (display == error)
        return true;
    for (char ch : display) {
        const bool ok = (ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'F') || ch == ' '
            || ch == '-' || ch == '+';
        if (!ok)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        TQORProgCalcEngine e;
        const std::string error = "Error!";
        for (std::size_t i = 0; i + 1 < size; i += 2) {
            PressKey(e, data[i], data[i + 1]);
            if (!DisplayIsSane(e.GetDisplayStr(), error))
                std::abort();
            (void)e.GetLastHistoryEntry();
            (void)e.GetMemoryContents();
        }
        (void)e.GetDisplayValue();
        (void)e.GetDisplayValueHex();
    } catch (const std::exception&) {
        std::abort(); // an operation let a failure escape
    }
    return 0;
}

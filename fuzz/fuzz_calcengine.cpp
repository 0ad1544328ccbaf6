// Arbitrary text to the expression evaluators and arbitrary key sequences to the engine. Any
// NaN or infinity in a display, a tape line, a memory or a result aborts.
#include "QORKITCalcEngine.h"
#include "QORKITExceptions.h"
#include "QORKITExpressions.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace qorkit;

void CheckText(std::string_view text)
{
    std::string lower(text);
    for (auto& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    if (lower.find("nan") != std::string::npos || lower.find("inf") != std::string::npos)
        std::abort();
}

void CheckValue(Extended value)
{
    if (!std::isfinite(value))
        std::abort();
}

void CheckEngine(TQORCalcEngine& engine)
{
    CheckText(engine.GetDisplayStr());
    CheckText(engine.GetMemoryContents());
    for (const auto& line : engine.GetHistory())
        CheckText(line);
    CheckValue(engine.GetMemoryValue());
    CheckValue(engine.GetDisplayValue());
}

void FuzzText(std::uint8_t mode, std::string_view text)
{
    TQORCalcEngine engine;
    Extended memory = 0;
    std::string error;
    CheckValue(EvaluateStr(text, engine, memory, error, static_cast<TQORAngleMode>(mode % 3)));
    CheckValue(memory);
    CheckEngine(engine);
    CheckValue(SimpleEvaluateStr(text, engine));
    CheckEngine(engine);
    try {
        CheckValue(EvaluateStr(text, false, amDegrees));
    } catch (const EMathError&) { }
}

void FuzzKeys(std::uint8_t mode, const std::uint8_t* data, std::size_t size)
{
    TQORCalcEngine engine;
    engine.SetPrefixFunctions((mode & 2) != 0);
    engine.SetPrecedence((mode & 4) == 0);
    engine.SetBinaryPercent((mode & 8) == 0);
    engine.SetOperatorSameLine((mode & 16) != 0);
    engine.SetSciUsage((mode & 32) != 0);
    engine.SetEnableGrads((mode & 64) != 0);
    engine.SetMemoryHistory((mode & 128) != 0);
    const auto keys = CalcEngineKeys();
    for (std::size_t i = 0; i < size; ++i) {
        const auto& key = keys[data[i] % keys.size()];
        if (key.Name == "rnd") // reseeds from the clock: keep runs reproducible
            engine.DoRound(static_cast<std::int32_t>(data[i] % 9) - 2);
        else
            key.Press(engine);
        CheckEngine(engine);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::uint8_t mode = data[0];
    if (mode & 1)
        FuzzText(mode, std::string_view(reinterpret_cast<const char*>(data + 1), size - 1));
    else
        FuzzKeys(mode, data + 1, size - 1);
    return 0;
}

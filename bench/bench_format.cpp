// Speed of the number text routines against the standard library: Str2Float against
// std::strtold, the formatters against snprintf. Each benchmark reports items per second.
#include "QORKITStrings.h"

#include <benchmark/benchmark.h>

#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

using qorkit::Extended;

// Typical calculator values: small, grouped, tiny, large, negative.
constexpr Extended kValues[] = {42.0L,    1234567.891L, -0.000123456L,     6.02214076e23L,
                                -98.765L, 0.1L,         3.14159265358979L, 1e-7L};
constexpr std::size_t kCount = std::size(kValues);
constexpr int kDecimals = 4;

template<class Fn> void RunOverValues(benchmark::State& state, Fn&& fn)
{
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(fn(kValues[i]));
        i = (i + 1) % kCount;
    }
    state.SetItemsProcessed(state.iterations());
}

// ---- Formatting ----------------------------------------------------------------------------

using Formatter = std::string (*)(Extended);

std::string Fixed(Extended v) { return qorkit::Float2EStr(v, kDecimals); }
std::string Grouped(Extended v) { return qorkit::Float2CEStr(v, kDecimals); }
std::string Trimmed(Extended v) { return qorkit::Float2EStr2(v, kDecimals); }
std::string GroupedLakhTrimmed(Extended v) { return qorkit::Float2CEStr2(v, kDecimals, true); }
std::string Scientific(Extended v) { return qorkit::SciFloat2EStr(v, kDecimals); }
std::string ProgramText(Extended v) { return qorkit::Float2Str(v, 19, kDecimals); }
std::string Dms(Extended v) { return qorkit::Angle2Str(v, 2); }

std::string PeerFixed(Extended v)
{
    char buffer[64];
    const int n = std::snprintf(buffer, sizeof buffer, "%.*Lf", kDecimals, v);
    return std::string(buffer, static_cast<std::size_t>(n));
}

std::string PeerGeneral18(Extended v)
{
    char buffer[64];
    const int n = std::snprintf(buffer, sizeof buffer, "%.18Lg", v);
    return std::string(buffer, static_cast<std::size_t>(n));
}

std::string PeerScientific(Extended v)
{
    char buffer[64];
    const int n = std::snprintf(buffer, sizeof buffer, "%.*LE", kDecimals, v);
    return std::string(buffer, static_cast<std::size_t>(n));
}

void BM_Format(benchmark::State& state, Formatter format) { RunOverValues(state, format); }

BENCHMARK_CAPTURE(BM_Format, Float2EStr, Fixed);
BENCHMARK_CAPTURE(BM_Format, Float2CEStr, Grouped);
BENCHMARK_CAPTURE(BM_Format, Float2EStr2, Trimmed);
BENCHMARK_CAPTURE(BM_Format, Float2CEStr2_lakh, GroupedLakhTrimmed);
BENCHMARK_CAPTURE(BM_Format, SciFloat2EStr, Scientific);
BENCHMARK_CAPTURE(BM_Format, Float2Str, ProgramText);
BENCHMARK_CAPTURE(BM_Format, Angle2Str, Dms);
BENCHMARK_CAPTURE(BM_Format, peer_snprintf_Lf, PeerFixed);
BENCHMARK_CAPTURE(BM_Format, peer_snprintf_LE, PeerScientific);
BENCHMARK_CAPTURE(BM_Format, peer_snprintf_Lg18, PeerGeneral18);

// Varied values: every magnitude from 1e-9 to 1e15, integers, short and long fractions, both
// signs. The same list feeds both sides of each pair.
const std::vector<Extended>& VariedValues()
{
    static const std::vector<Extended> values = [] {
        std::mt19937_64 random(19);
        std::vector<Extended> out;
        for (int i = 0; i < 256; ++i) {
            const auto bits = random();
            const Extended unit = static_cast<Extended>(bits >> 11) / 9007199254740992.0L;
            const int decade = static_cast<int>(bits % 25) - 9;
            Extended v = unit * std::pow(10.0L, decade);
            switch (i % 4) {
            case 0:
                v = std::round(v); // whole numbers
                break;
            case 1:
                v = std::round(v * 100) / 100; // cents
                break;
            default:
                break;
            }
            out.push_back(i % 3 == 0 ? -v : v);
        }
        return out;
    }();
    return values;
}

// One item per iteration, cycling through the list.
template<class T, class Fn>
void RunCycling(benchmark::State& state, const std::vector<T>& items, Fn&& fn)
{
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(fn(items[i]));
        i = (i + 1) % items.size();
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_Varied(benchmark::State& state, Formatter format)
{
    RunCycling(state, VariedValues(), format);
}

BENCHMARK_CAPTURE(BM_Varied, Float2EStr, Fixed);
BENCHMARK_CAPTURE(BM_Varied, peer_snprintf_Lf, PeerFixed);
BENCHMARK_CAPTURE(BM_Varied, Float2CEStr, Grouped);
BENCHMARK_CAPTURE(BM_Varied, peer_snprintf_Lg18, PeerGeneral18);

// ---- Parsing -------------------------------------------------------------------------------

// The same numbers as a calculator entry shows them, and in the peer's own syntax.
const std::string kTexts[] = {"42",      "1,234,567.891", "-0.000123456",     "6.02214076E23",
                              "-98.765", "0.1",           "3.14159265358979", "1E-7"};
const std::string kPeerTexts[] = {"42",      "1234567.891", "-0.000123456",     "6.02214076E23",
                                  "-98.765", "0.1",         "3.14159265358979", "1E-7"};

template<class Fn>
void RunOverTexts(benchmark::State& state, const std::string (&texts)[8], Fn&& fn)
{
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(fn(texts[i]));
        i = (i + 1) % std::size(texts);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_Str2Float(benchmark::State& state)
{
    RunOverTexts(state, kTexts, [](const std::string& s) { return qorkit::Str2Float(s); });
}
BENCHMARK(BM_Str2Float);

void BM_Parse_peer_strtold(benchmark::State& state)
{
    RunOverTexts(state, kPeerTexts,
                 [](const std::string& s) { return std::strtold(s.c_str(), nullptr); });
}
BENCHMARK(BM_Parse_peer_strtold);

// Varied texts: what a user types or pastes, from short integers to 19 significant digits,
// with and without separators and exponents. The peer reads the same numbers without
// thousands separators (strtold knows none).
struct TextPair {
    std::string Ours;
    std::string Peer;
};

const std::vector<TextPair>& VariedTexts()
{
    static const std::vector<TextPair> texts = [] {
        std::mt19937_64 random(23);
        std::vector<TextPair> out;
        for (int i = 0; i < 256; ++i) {
            const int digits = 1 + static_cast<int>(random() % 19);
            std::string mantissa;
            for (int d = 0; d < digits; ++d)
                mantissa += static_cast<char>('0' + (d == 0 ? 1 + random() % 9 : random() % 10));
            const int point = static_cast<int>(random() % static_cast<unsigned>(digits + 1));
            std::string integer = mantissa.substr(0, static_cast<std::size_t>(point));
            std::string fraction = mantissa.substr(static_cast<std::size_t>(point));
            if (integer.empty())
                integer = "0";
            const std::string sign = i % 5 == 0 ? "-" : "";
            const std::string exponent
                = i % 7 == 0 ? "E" + std::to_string(static_cast<int>(random() % 41) - 20) : "";
            std::string peer = sign + integer + (fraction.empty() ? "" : "." + fraction);
            std::string ours = sign + (i % 2 == 0 ? qorkit::GroupSpacing(integer, 3, ',') : integer)
                + (fraction.empty() ? "" : "." + fraction);
            out.push_back({ours + exponent, peer + exponent});
        }
        return out;
    }();
    return texts;
}

template<class Fn> void RunOverVariedTexts(benchmark::State& state, Fn&& fn)
{
    RunCycling(state, VariedTexts(), fn);
}

void BM_ParseVaried_Str2Float(benchmark::State& state)
{
    RunOverVariedTexts(state, [](const TextPair& t) { return qorkit::Str2Float(t.Ours); });
}
BENCHMARK(BM_ParseVaried_Str2Float);

void BM_ParseVaried_TryStr2Float(benchmark::State& state)
{
    RunOverVariedTexts(state, [](const TextPair& t) {
        Extended v = 0;
        return qorkit::TryStr2Float(t.Ours, v) ? v : -1;
    });
}
BENCHMARK(BM_ParseVaried_TryStr2Float);

void BM_ParseVaried_peer_strtold(benchmark::State& state)
{
    RunOverVariedTexts(state,
                       [](const TextPair& t) { return std::strtold(t.Peer.c_str(), nullptr); });
}
BENCHMARK(BM_ParseVaried_peer_strtold);

// ---- Integers and digit strings ------------------------------------------------------------

constexpr std::int64_t kIntegers[] = {-1, 255, -123456789, 0x0123456789ABCDEF};

void BM_Int2EHex(benchmark::State& state)
{
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::Int2EHex(kIntegers[i]));
        i = (i + 1) % std::size(kIntegers);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Int2EHex);

void BM_Int2EHex_peer_snprintf(benchmark::State& state)
{
    std::size_t i = 0;
    for (auto _ : state) {
        char buffer[32];
        const int n = std::snprintf(buffer, sizeof buffer, "%016" PRIX64,
                                    static_cast<std::uint64_t>(kIntegers[i]));
        benchmark::DoNotOptimize(std::string(buffer, static_cast<std::size_t>(n)));
        i = (i + 1) % std::size(kIntegers);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Int2EHex_peer_snprintf);

void BM_Hex2Oct_Hex2Bin(benchmark::State& state)
{
    const std::string hex = qorkit::Int2EHex(-123456789);
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::Hex2Oct(hex));
        benchmark::DoNotOptimize(qorkit::Hex2Bin(hex));
    }
    state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_Hex2Oct_Hex2Bin);

void BM_AddThousandsSeparators(benchmark::State& state)
{
    const std::string typed = "-1234567.891E-";
    for (auto _ : state)
        benchmark::DoNotOptimize(qorkit::AddThousandsSeparators(typed, false));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AddThousandsSeparators);

} // namespace

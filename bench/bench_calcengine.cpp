// Speed of the calculator engine: key presses of typical sequences with the tape and every
// event on, and one-shot expression strings, each beside a plain long-double peer.
#include "QORKITCalcEngine.h"
#include "QORKITExpressions.h"

#include <benchmark/benchmark.h>

#ifdef QORKIT_HAVE_MUPARSER
#include <muParser.h>
#endif

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace qorkit;

// Typical sessions, each ending in AC so the tape does not grow without bound.
constexpr std::string_view KeySessions[] = {
    "1 2 . 5 + 3 * 4 = ac",
    "2 * ( 3 . 2 5 + 4 ) - 1 7 / 3 = ac",
    "3 0 sin + 4 5 cos * 2 = sqrt ac",
    "1 9 9 . 9 9 + 1 7 % = m+ 4 0 0 m- mr 1/x = ac",
    "2 ^ 1 0 mod 7 = ln inv ln round2 ac",
};

std::vector<void (*)(TQORCalcEngine&)> ResolveKeys()
{
    std::vector<void (*)(TQORCalcEngine&)> presses;
    for (const auto session : KeySessions) {
        for (std::size_t pos = 0; pos < session.size();) {
            const auto end = std::min(session.find(' ', pos), session.size());
            const auto name = session.substr(pos, end - pos);
            pos = end + 1;
            for (const auto& key : CalcEngineKeys())
                if (key.Name == name)
                    presses.push_back(key.Press);
            if (name == "round2")
                presses.push_back([](TQORCalcEngine& e) { e.DoRound(2); });
        }
    }
    return presses;
}

void BM_EngineKeys(benchmark::State& state)
{
    const auto presses = ResolveKeys();
    TQORCalcEngine engine;
    engine.SetAngleMode(amDegrees);
    engine.SetMemoryHistory(true);
    engine.SetBinaryPercent(false);
    long events = 0;
    const auto count = [&events](TQORCalcEngine*) { ++events; };
    engine.SetOnDisplayChange(count);
    engine.SetOnHistoryChange(count);
    engine.SetOnMemoryChange(count);
    engine.SetOnClearToggles(count);
    engine.SetOnSetToggles(count);
    engine.SetOnError(count);
    for (auto _ : state) {
        for (const auto press : presses)
            press(engine);
        benchmark::DoNotOptimize(engine.GetDisplayStr().data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(presses.size()));
    state.counters["events"]
        = benchmark::Counter(static_cast<double>(events), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_EngineKeys);

// Peer: the arithmetic of one key press done directly on long doubles (one operation and one
// decimal formatting per key), a floor for what a keystroke can cost.
void BM_PeerDirectLongDouble(benchmark::State& state)
{
    long double x = 12.5L;
    char buffer[64];
    for (auto _ : state) {
        x = x * 1.0001L + 0.5L;
        std::snprintf(buffer, sizeof buffer, "%.4Lf", x);
        if (x > 1e6L)
            x = 12.5L;
        benchmark::DoNotOptimize(buffer);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_PeerDirectLongDouble);

constexpr const char* Expressions[] = {
    "2+3*4",      "(1.5+2.25)*4-7/2", "sqrt(2)*pi",   "sin 30 + cos(60)",
    "2^10 mod 7", "200+10%",          "1e3/8+ln(10)", "abs(-3.5)*floor 2.7",
};

void BM_EvaluateStrOneShot(benchmark::State& state)
{
    for (auto _ : state)
        for (const char* text : Expressions)
            benchmark::DoNotOptimize(EvaluateStr(text, amDegrees));
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(Expressions)));
}
BENCHMARK(BM_EvaluateStrOneShot);

void BM_EvaluateStrSharedEngine(benchmark::State& state)
{
    TQORCalcEngine engine;
    for (auto _ : state)
        for (const char* text : Expressions)
            benchmark::DoNotOptimize(EvaluateStr(text, engine, amDegrees));
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(Expressions)));
}
BENCHMARK(BM_EvaluateStrSharedEngine);

// Peer: only reading the numbers of the same strings with strtold, no evaluation at all.
void BM_PeerStrtoldNumbers(benchmark::State& state)
{
    for (auto _ : state) {
        for (const char* text : Expressions) {
            long double sum = 0;
            for (const char* p = text; *p;) {
                if (*p >= '0' && *p <= '9') {
                    char* end = nullptr;
                    sum += std::strtold(p, &end);
                    p = end;
                } else {
                    ++p;
                }
            }
            benchmark::DoNotOptimize(sum);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(Expressions)));
}
BENCHMARK(BM_PeerStrtoldNumbers);

// The same expressions written for both evaluators (muparser spells pi "_pi" and has no
// "floor" or "%"), each parsed and evaluated from scratch: a one-shot evaluation as a host
// would do it for a value typed into a field.
struct CommonExpression {
    const char* Ours;
    const char* Muparser;
};
constexpr CommonExpression CommonExpressions[] = {
    {"2+3*4", "2+3*4"},
    {"(1.5+2.25)*4-7/2", "(1.5+2.25)*4-7/2"},
    {"sqrt(2)*pi", "sqrt(2)*_pi"},
    {"sin(30)+cos(60)", "sin(30)+cos(60)"},
    {"2^10/7", "2^10/7"},
    {"1e3/8+ln(10)", "1e3/8+ln(10)"},
    {"abs(-3.5)*2.7", "abs(-3.5)*2.7"},
    {"((1+2)*(3+4))/(5-6)", "((1+2)*(3+4))/(5-6)"},
};

void BM_EvaluateStrCommonSet(benchmark::State& state)
{
    for (auto _ : state)
        for (const auto& e : CommonExpressions)
            benchmark::DoNotOptimize(EvaluateStr(e.Ours, amRadians));
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(CommonExpressions)));
}
BENCHMARK(BM_EvaluateStrCommonSet);

// Operators and brackets only: what SimpleEvaluateStr knows, written the same for both.
constexpr const char* SimpleExpressions[] = {
    "2+3*4",        "(1.5+2.25)*4-7/2",    "12.5*8-3",      "1000/8+2.5^2", "(7-2)*(3+4)",
    "99.99*3+0.01", "((1+2)*(3+4))/(5-6)", "123456/789-10",
};

void BM_SimpleEvaluateStrOneShot(benchmark::State& state)
{
    for (auto _ : state)
        for (const char* text : SimpleExpressions)
            benchmark::DoNotOptimize(SimpleEvaluateStr(text));
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(SimpleExpressions)));
}
BENCHMARK(BM_SimpleEvaluateStrOneShot);

#ifdef QORKIT_HAVE_MUPARSER
void BM_PeerMuparserSimple(benchmark::State& state)
{
    for (auto _ : state) {
        for (const char* text : SimpleExpressions) {
            mu::Parser parser;
            parser.SetExpr(text);
            benchmark::DoNotOptimize(parser.Eval());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(SimpleExpressions)));
}
BENCHMARK(BM_PeerMuparserSimple);

void BM_PeerMuparserOneShot(benchmark::State& state)
{
    for (auto _ : state) {
        for (const auto& e : CommonExpressions) {
            mu::Parser parser;
            parser.SetExpr(e.Muparser);
            benchmark::DoNotOptimize(parser.Eval());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(CommonExpressions)));
}
BENCHMARK(BM_PeerMuparserOneShot);
#endif

} // namespace

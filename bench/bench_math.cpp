// The math routines the calculator engines call per key press: the decimal rounding (which
// formats and parses), the degree sine (reduction in degrees), Gamma and the floored modulus.
#include "QORKITMath.h"

#include <benchmark/benchmark.h>

namespace {

using qorkit::Extended;

// Calls f on a walk of arguments start, start + step ... so no result can be cached; the walk
// restarts after `limit`.
void BM_Unary(benchmark::State& state, Extended (*f)(Extended), Extended start, Extended step,
              Extended limit)
{
    Extended x = start;
    for (auto _ : state) {
        benchmark::DoNotOptimize(f(x));
        x = x > limit ? start : x + step;
    }
}

Extended RoundTwoPlaces(Extended x) { return qorkit::RoundDP(x, 2); }
Extended ModThreeSixty(Extended x) { return qorkit::QORMod(x, 360); }

BENCHMARK_CAPTURE(BM_Unary, RoundDP, RoundTwoPlaces, 1.005L, 0.001L, 1e6L);
BENCHMARK_CAPTURE(BM_Unary, SinDeg, qorkit::QORSinDeg, 0.5L, 7.25L, 1e6L);
BENCHMARK_CAPTURE(BM_Unary, SinRadians, qorkit::QORSin, 0.5L, 0.125L, 1e4L);
BENCHMARK_CAPTURE(BM_Unary, Gamma, qorkit::Gamma, 0.5L, 1.25L, 150.0L);
BENCHMARK_CAPTURE(BM_Unary, Mod, ModThreeSixty, -1e6L, 13.5L, 1e6L);

} // namespace

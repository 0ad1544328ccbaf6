// The math routines the calculator engines call per key press: the decimal rounding (which
// formats and parses), the degree sine (reduction in degrees), Gamma and the floored modulus.
#include "QORKITMath.h"

#include <benchmark/benchmark.h>

namespace {

using qorkit::Extended;

void BM_RoundDP(benchmark::State& state)
{
    Extended x = 1.005L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::RoundDP(x, 2));
        x += 0.001L;
    }
}
BENCHMARK(BM_RoundDP);

void BM_SinDeg(benchmark::State& state)
{
    Extended x = 0.5L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::QORSinDeg(x));
        x += 7.25L;
    }
}
BENCHMARK(BM_SinDeg);

void BM_SinRadians(benchmark::State& state)
{
    Extended x = 0.5L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::QORSin(x));
        x += 0.125L;
    }
}
BENCHMARK(BM_SinRadians);

void BM_Gamma(benchmark::State& state)
{
    Extended x = 0.5L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::Gamma(x));
        x = x > 150 ? 0.5L : x + 1.25L;
    }
}
BENCHMARK(BM_Gamma);

void BM_Mod(benchmark::State& state)
{
    Extended x = -1e6L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qorkit::QORMod(x, 360));
        x += 13.5L;
    }
}
BENCHMARK(BM_Mod);

} // namespace

// Costs of the heavier numeric routines: a complex inverse function, the sun's position and
// its rising and setting, and a great-circle distance.
#include "QORKITAstronomy.h"
#include "QORKITComplex.h"
#include "QORKITDateTime.h"
#include "QORKITPositions.h"

#include <benchmark/benchmark.h>

namespace {

void BM_ComplexArcSin(benchmark::State& state)
{
    qorkit::TQORComplex z {0.3L, -0.7L};
    for (auto _ : state)
        benchmark::DoNotOptimize(qorkit::ComplexArcSin(z));
}
BENCHMARK(BM_ComplexArcSin);

void BM_SunPosition(benchmark::State& state)
{
    const qorkit::TDateTime dt = qorkit::EncodeDate(2024, 6, 21);
    qorkit::Extended ra = 0, dec = 0;
    for (auto _ : state) {
        qorkit::Sun_Position(dt, ra, dec);
        benchmark::DoNotOptimize(ra);
    }
}
BENCHMARK(BM_SunPosition);

void BM_SunRiseSet(benchmark::State& state)
{
    const qorkit::TDateTime dt = qorkit::EncodeDate(2024, 3, 20);
    const qorkit::TQORPosition where {51.48L, 0};
    qorkit::TDateTime rise = 0, set = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(qorkit::Sun_RiseSet(dt, where, 0, rise, set));
}
BENCHMARK(BM_SunRiseSet);

void BM_GreatCircleDistance(benchmark::State& state)
{
    const qorkit::TQORPosition a {51.5L, -0.13L}, b {40.71L, -74.0L};
    for (auto _ : state)
        benchmark::DoNotOptimize(qorkit::GetDistanceKm(a, b, 6371000));
}
BENCHMARK(BM_GreatCircleDistance);

} // namespace

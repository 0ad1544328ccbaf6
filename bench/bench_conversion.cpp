// Conversions per second: a generated routine, the generic entry point on a linear unit, an
// affine and a reciprocal unit, a chained unit, and a plain multiplication as the floor.
#include "QORKITConversion.h"

#include <benchmark/benchmark.h>

namespace {

using namespace qorkit;

void PlainMultiplication(benchmark::State& state)
{
    Extended value = 1.5L;
    Extended factor = 0.3048L;
    benchmark::DoNotOptimize(factor);
    for (auto _ : state) {
        value = value * factor;
        benchmark::DoNotOptimize(value);
        value = 1.5L;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PlainMultiplication);

void Routine(benchmark::State& state, Extended (*routine)(Extended))
{
    Extended value = 1.5L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(routine(value));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(Routine, FeetToInches, DistFeet2Inches);
BENCHMARK_CAPTURE(Routine, MilesToKm, DistMiles2Km);

void GenericConvert(benchmark::State& state, TQORConvType quantity, std::size_t from,
                    std::size_t to)
{
    Extended value = 1.5L;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ConvertUnits(quantity, from, to, value));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(GenericConvert, LinearCmToKm, ectDistance, edtCentimetres, edtKilometres);
BENCHMARK_CAPTURE(GenericConvert, ChainedMilesToFurlongs, ectDistance, edtMiles, edtFurlongs);
BENCHMARK_CAPTURE(GenericConvert, AffineFahrenheitToKelvin, ectTemperature, ettFahrenheit,
                  ettKelvin);
BENCHMARK_CAPTURE(GenericConvert, ReciprocalLP100KToMPGUS, ectFuelConsumption,
                  eftLitresPer100Kilometres, eftMPGUS);

} // namespace

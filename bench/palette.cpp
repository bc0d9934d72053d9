// Measures reducing a picture of noise to 256 colours, at the size of an icon and at a large size. Dithering changes
// the bitmap, so each iteration works on a fresh copy, which is made while the timer is paused.
#include "palette/HalftonePalette.h"
#include "palette/NearestMatch.h"
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"

#include <benchmark/benchmark.h>
#include <random>

namespace {

using namespace gp;

constexpr int kIconSize = 48;
constexpr int kLargeSize = 1024;
constexpr int kColors = 256;
constexpr int kLevels = 8;
constexpr int kDivisor = 15;

clsGPDIB noise(int size) {
  clsGPDIB dib;
  dib.CreateBlankDIB(size, size);
  std::mt19937 random(1);
  for (DibPixel& pixel : dib.DIBBitsPtr()) pixel = dibPixel(static_cast<Color>(random() & kColorBits));
  return dib;
}

template <typename Work>
void workOnNoise(benchmark::State& state, const Work& work) {
  const clsGPDIB picture = noise(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    clsGPDIB dib = picture;
    state.ResumeTiming();
    work(dib);
    benchmark::DoNotOptimize(dib.DIBBitsPtr().data());
  }
}

void optimalPalette(benchmark::State& state) {
  workOnNoise(state, [](clsGPDIB& dib) {
    clsGPPal palette;
    palette.CreateOptimal(dib, kColors, kLevels);
    clsGPPalDither dither;
    dither.DitherToPalette256(dib, palette);
  });
}
BENCHMARK(optimalPalette)->Arg(kIconSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);

void halftonePalette(benchmark::State& state) {
  workOnNoise(state, [](clsGPDIB& dib) { matchToPalette(dib, kHalftonePalette); });
}
BENCHMARK(halftonePalette)->Arg(kIconSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);

void blackAndWhite(benchmark::State& state) {
  workOnNoise(state, [](clsGPDIB& dib) { clsGPPalDither().DitherToBlackAndWhite(dib, kDivisor); });
}
BENCHMARK(blackAndWhite)->Arg(kIconSize)->Arg(kLargeSize)->Unit(benchmark::kMillisecond);

}  // namespace

// Measures rotating an icon: the computation alone, and Proceed with everything that it shows.
#include "BenchRooms.h"
#include "drawing/RotateSurface.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kSize = bench::kIconSize;
constexpr double kAngle = 33;

void rotateOneSurface(benchmark::State& state) {
  Surface source(kSize, kSize, 0x123456);
  Surface target(diagonalOf(kSize, kSize), diagonalOf(kSize, kSize), kBlack);
  for (auto _ : state) {
    rotateSurface(source, target, {.angleDegrees = kAngle, .skipBackground = true, .antialias = state.range(0) != 0});
    benchmark::DoNotOptimize(target.GetPixel(kSize / 2, kSize / 2));
  }
}
BENCHMARK(rotateOneSurface)->ArgName("antialias")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void rotateIcon(benchmark::State& state) {
  bench::IconScene scene;
  RotatePanel& panel = scene.drawing.rotatePanel;
  panel.setAngleText("33");
  for (auto _ : state) {
    state.PauseTiming();
    scene.state.picImage.fill(0x123456);
    scene.state.picMask.fill(kBlack);
    state.ResumeTiming();
    panel.doRotateProceed();
  }
}
BENCHMARK(rotateIcon)->Unit(benchmark::kMicrosecond);

}  // namespace

// Measures a redraw of the Editing Area: composing an icon and magnifying it.
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Stretch.h"
#include "platform/gdi/Surface.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kEditingAreaSide = 384;

gp::Surface makePicture(int side) {
  gp::Surface picture(side, side);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) picture.SetPixelV(x, y, static_cast<gp::Color>(x * 5 + y * 256 * 3));
  }
  return picture;
}

void combineByMask(benchmark::State& state) {
  const int side = static_cast<int>(state.range(0));
  const gp::Surface source = makePicture(side);
  gp::Surface target(side, side);
  for (auto _ : state) {
    gp::BitBlt(target, 0, 0, side, side, source, 0, 0, gp::RasterOp::SRCAND);
    gp::BitBlt(target, 0, 0, side, side, source, 0, 0, gp::RasterOp::SRCINVERT);
    benchmark::DoNotOptimize(target.GetPixel(0, 0));
  }
}
BENCHMARK(combineByMask)->Arg(16)->Arg(48);

void enlarge(benchmark::State& state) {
  const int side = static_cast<int>(state.range(0));
  const gp::Surface source = makePicture(side);
  gp::Surface target(kEditingAreaSide, kEditingAreaSide);
  for (auto _ : state) {
    gp::StretchBlt(target, 0, 0, kEditingAreaSide, kEditingAreaSide, source, 0, 0, side, side, gp::RasterOp::SRCCOPY);
    benchmark::DoNotOptimize(target.GetPixel(0, 0));
  }
}
BENCHMARK(enlarge)->Arg(16)->Arg(48);

}  // namespace

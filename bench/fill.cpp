// Measures a click with Fill or Replace on a whole icon of 48 pixels, including its undo step and the redraw of the
// Editing Area.
#include "BenchRooms.h"
#include "drawing/FillTools.h"

#include <benchmark/benchmark.h>

namespace {

constexpr gp::ToolMouse kMiddle{.pixelX = gp::bench::kIconSize / 2, .pixelY = gp::bench::kIconSize / 2};

// Two colours, used alternately, so that each click changes every pixel.
template <typename Tool>
void clickWholeIcon(benchmark::State& state) {
  gp::bench::IconScene scene;
  Tool tool(scene.context, scene.document.editingArea, scene.drawing.history);
  for (auto _ : state) {
    scene.state.mCurrentColor ^= gp::kWhite;
    tool.release(kMiddle);
    benchmark::DoNotOptimize(scene.state.picDisp.GetPixel(0, 0));
  }
}
BENCHMARK(clickWholeIcon<gp::FillTool>)->Name("fillWholeIcon")->Unit(benchmark::kMicrosecond);
BENCHMARK(clickWholeIcon<gp::ReplaceTool>)->Name("replaceWholeIcon")->Unit(benchmark::kMicrosecond);

void fillWholeIconTransparent(benchmark::State& state) {
  gp::bench::IconScene scene;
  gp::FillTool tool(scene.context, scene.document.editingArea, scene.drawing.history);
  gp::ToolMouse mouse = kMiddle;
  // Alternately painted and made transparent: half of the clicks are plain fills.
  for (auto _ : state) {
    mouse.modifiers ^= 1;
    tool.release(mouse);
    benchmark::DoNotOptimize(scene.state.picDisp.GetPixel(0, 0));
  }
}
BENCHMARK(fillWholeIconTransparent)->Unit(benchmark::kMicrosecond);

}  // namespace

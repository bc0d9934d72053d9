// What a click with Fill or Replace costs over a whole icon of 48 pixels, its step of Undo and the redraw of the
// Editing Area included.
#include "DrawingBench.h"
#include "drawing/FillTools.h"

namespace {

constexpr gp::ToolMouse kMiddle{gp::bench::kIconSize / 2, gp::bench::kIconSize / 2, 0, 0, 0};

// Two colours by turns, so that each click changes every pixel.
template <typename Tool>
void clickWholeIcon(benchmark::State& state) {
  gp::bench::Drawing drawing;
  Tool tool(drawing.state, drawing.editor);
  for (auto _ : state) {
    drawing.state.mCurrentColor ^= gp::kWhite;
    tool.release(kMiddle);
    benchmark::DoNotOptimize(drawing.state.picDisp.GetPixel(0, 0));
  }
}
BENCHMARK(clickWholeIcon<gp::FillTool>)->Name("fillWholeIcon")->Unit(benchmark::kMicrosecond);
BENCHMARK(clickWholeIcon<gp::ReplaceTool>)->Name("replaceWholeIcon")->Unit(benchmark::kMicrosecond);

void fillWholeIconTransparent(benchmark::State& state) {
  gp::bench::Drawing drawing;
  gp::FillTool tool(drawing.state, drawing.editor);
  gp::ToolMouse mouse = kMiddle;
  // By turns painted and made transparent: half of the clicks are plain fills.
  for (auto _ : state) {
    mouse.modifiers ^= 1;
    tool.release(mouse);
    benchmark::DoNotOptimize(drawing.state.picDisp.GetPixel(0, 0));
  }
}
BENCHMARK(fillWholeIconTransparent)->Unit(benchmark::kMicrosecond);

}  // namespace

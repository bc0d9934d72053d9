// Measures one mouse move while a region is dragged.
#include "BenchRooms.h"
#include "drawing/RegionTool.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

// A 48-pixel icon with a region of 40 x 40, at the magnification of a small screen.
struct Scene : bench::BenchRooms {
  static constexpr int kRegionSize = 40;

  RegionTool tool{context, drawing.history, drawing.regions, drawing.tools};

  Scene(bool editingAreaOnly, int grid) {
    state.options.updateOnlyEditingArea = editingAreaOnly;
    document.arrival.arrive(bench::colourfulIcon(), NewRecord());
    document.areaOptions.SetGrid(grid);
    drawing.tools.selectTool(kRegion);
    tool.press(at(0));
    tool.move(at(kRegionSize));
    tool.release(at(kRegionSize));
    tool.press(at(kRegionSize / 2));
  }
  ToolMouse at(int cell) const {
    const auto position = static_cast<float>(cell * state.gMagnification);
    return {.tool = kRegion, .pixelX = cell, .pixelY = cell, .x = position, .y = position};
  }
};

void moveRegion(benchmark::State& state) {
  Scene scene(state.range(0) != 0, static_cast<int>(state.range(1)));
  int step = 0;
  for (auto _ : state) scene.tool.move(scene.at(Scene::kRegionSize / 2 + ++step % 8));
}
BENCHMARK(moveRegion)
    ->ArgNames({"editingAreaOnly", "grid"})
    ->ArgsProduct({{0, 1}, {0, 2, 3, 6}})
    ->Unit(benchmark::kMicrosecond);

}  // namespace

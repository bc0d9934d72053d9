// What the Editing Area costs after a change of the icon, and what its grid costs after a change of the options.
#include "BenchRooms.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

// A 48-pixel icon with transparent pixels on an enlarged Editing Area.
struct Scene : bench::BenchRooms {
  explicit Scene(int grid) {
    state.screen.dispContainerWidth = state.screen.dispContainerHeight = 520;
    document.arrival.arrive(bench::colourfulIcon(), NewRecord());
    document.areaOptions.SetGrid(grid);
  }
};

void magnifyIcon(benchmark::State& state) {
  Scene scene(static_cast<int>(state.range(0)));
  for (auto _ : state) scene.document.editingArea.MagnifyIcon();
}
BENCHMARK(magnifyIcon)->ArgName("grid")->DenseRange(0, kGridCount - 1)->Unit(benchmark::kMicrosecond);

void buildGrid(benchmark::State& state) {
  Scene scene(static_cast<int>(state.range(0)));
  for (auto _ : state) scene.document.editingArea.BuildGrid();
}
BENCHMARK(buildGrid)->ArgName("grid")->DenseRange(0, kGridCount - 1)->Unit(benchmark::kMicrosecond);

}  // namespace

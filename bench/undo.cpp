// Measures an undo step on an icon of 48 pixels: recording it with a full history, and going back and forth.
#include "BenchRooms.h"

#include <benchmark/benchmark.h>

namespace {

void recordUndo(benchmark::State& state) {
  gp::bench::IconScene scene;
  for (int i = 0; i < gp::kMaxUndoSteps; ++i) scene.drawing.history.recordUndo();
  for (auto _ : state) {
    scene.state.picImage.SetPixelV(1, 1, gp::kWhite);
    scene.drawing.history.recordUndo();
    benchmark::DoNotOptimize(scene.drawing.history.undoCount());
  }
}
BENCHMARK(recordUndo)->Unit(benchmark::kMicrosecond);

// The stacks start empty and grow.
void recordUndoOnAFreshIcon(benchmark::State& state) {
  gp::bench::IconScene scene;
  for (auto _ : state) {
    scene.drawing.history.clearUndoHistory();
    scene.drawing.history.recordUndo();
    benchmark::DoNotOptimize(scene.drawing.history.undoCount());
  }
}
BENCHMARK(recordUndoOnAFreshIcon)->Unit(benchmark::kMicrosecond);

void undoAndRedo(benchmark::State& state) {
  gp::bench::IconScene scene;
  scene.state.picMask.fill(gp::kBlack);
  scene.drawing.history.recordUndo();
  for (auto _ : state) {
    scene.drawing.undo.doUndo();
    scene.drawing.undo.doRedo();
    benchmark::DoNotOptimize(scene.state.picDisp.GetPixel(0, 0));
  }
}
BENCHMARK(undoAndRedo)->Unit(benchmark::kMicrosecond);

}  // namespace

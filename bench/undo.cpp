// What a step of Undo costs on an icon of 48 pixels: recording it with a full history, and going back and forth.
#include "DrawingBench.h"

namespace {

void recordUndo(benchmark::State& state) {
  gp::bench::Drawing drawing;
  for (int i = 0; i < gp::kMaxUndoSteps; ++i) drawing.history.recordUndo();
  for (auto _ : state) {
    drawing.state.picImage.SetPixelV(1, 1, gp::kWhite);
    drawing.history.recordUndo();
    benchmark::DoNotOptimize(drawing.history.undoCount());
  }
}
BENCHMARK(recordUndo)->Unit(benchmark::kMicrosecond);

// The stacks grow from nothing.
void recordUndoOnAFreshIcon(benchmark::State& state) {
  gp::bench::Drawing drawing;
  for (auto _ : state) {
    drawing.history.clearUndoHistory();
    drawing.history.recordUndo();
    benchmark::DoNotOptimize(drawing.history.undoCount());
  }
}
BENCHMARK(recordUndoOnAFreshIcon)->Unit(benchmark::kMicrosecond);

void undoAndRedo(benchmark::State& state) {
  gp::bench::Drawing drawing;
  drawing.state.picMask.fill(gp::kBlack);
  drawing.history.recordUndo();
  for (auto _ : state) {
    drawing.history.doUndo();
    drawing.history.doRedo();
    benchmark::DoNotOptimize(drawing.state.picDisp.GetPixel(0, 0));
    drawing.editor.calls.clear();
  }
}
BENCHMARK(undoAndRedo)->Unit(benchmark::kMicrosecond);

}  // namespace

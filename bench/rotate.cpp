// What turning an icon costs: the arithmetic alone, and Proceed with all that it shows.
#include "../tests/support/FakeEditor.h"
#include "document/EditingArea.h"
#include "drawing/RotatePanel.h"
#include "drawing/RotateSurface.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kSize = 48;
constexpr double kAngle = 33;

class NoPump : public MessagePump {
 public:
  void pump() override {}
  void wait(int) override {}
};

class BenchEditor : public test::FakeEditor {
 public:
  EditingArea* area = nullptr;
  void ComposeCurrentIcon() override { area->ComposeCurrentIcon(); }
  void MagnifyIcon() override { area->MagnifyIcon(); }
  void UpdateCommands() override { calls.clear(); }
};

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
  EditState editState;
  BenchEditor editor;
  test::RecordingDisplay display;
  NoPump pump;
  EditingArea area(editState, editor, display, pump);
  editor.area = &area;
  DrawState draw;
  Regions regions(editState, draw, editor, display);
  RotatePanel panel(editState, editor, display, regions);
  editState.current().used = editState.current().present = true;
  editState.current().size = kSize;
  area.SizeEditSurfaces(kSize);
  area.ComposeCurrentIcon();
  area.SetGrid(0);
  panel.setAngleText("33");
  for (auto _ : state) {
    state.PauseTiming();
    editState.picImage.fill(0x123456);
    editState.picMask.fill(kBlack);
    display.parts.clear();
    state.ResumeTiming();
    panel.doRotateProceed();
  }
}
BENCHMARK(rotateIcon)->Unit(benchmark::kMicrosecond);

}  // namespace

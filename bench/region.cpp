// What one move of the mouse costs while a region is dragged.
#include "../tests/support/FakeEditor.h"
#include "document/EditingArea.h"
#include "drawing/RegionTool.h"
#include "drawing/Tools.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

using namespace gp;

class NoPump : public MessagePump {
 public:
  void pump() override {}
  void wait(int) override {}
};

class NoDisplay : public Display {
 public:
  void changed(DisplayPart) override {}
  void repaintEditingArea(int, int, int, int) override {}
  void showPopUpMenu() override {}
  void nudgeMousePointer() override {}
  void focusColorValue() override {}
};

class BenchEditor : public test::FakeEditor {
 public:
  EditState* state = nullptr;
  EditingArea* area = nullptr;
  Regions* regions = nullptr;

  void ComposeCurrentIcon() override { area->ComposeCurrentIcon(); }
  void MagnifyIcon() override {
    area->MagnifyIcon();
    if (state->mRegionActive) regions->redrawRegion();
  }
  void UpdateCommands() override {}
};

// A 48-pixel icon with a region of 40 x 40 on it.
struct Scene {
  static constexpr int kSize = 48;
  static constexpr int kRegionSize = 40;

  EditState state;
  BenchEditor editor;
  NoDisplay display;
  NoPump pump;
  DrawState draw;
  EditingArea area{state, editor, display, pump};
  Regions regions{state, draw, editor, display};
  RegionTool tool{state, draw, editor, regions, pump};

  Scene(bool editingAreaOnly, int grid) {
    editor.state = &state;
    editor.area = &area;
    editor.regions = &regions;
    editor.tool = kRegion;
    state.options.updateOnlyEditingArea = editingAreaOnly;
    state.current().used = state.current().present = true;
    state.current().size = kSize;
    area.SizeEditSurfaces(kSize);
    for (int y = 0; y < kSize; ++y)
      for (int x = 0; x < kSize; ++x) {
        const bool opaque = (x + y) % 5 != 0;
        state.picImage.SetPixelV(x, y, opaque ? rgb(x * 5, y * 5, 99) : kBlack);
        state.picMask.SetPixelV(x, y, opaque ? kBlack : kWhite);
      }
    area.ComposeCurrentIcon();
    area.SetGrid(grid);
    tool.press(at(0));
    tool.move(at(kRegionSize));
    tool.release(at(kRegionSize));
    tool.press(at(kRegionSize / 2));
  }
  ToolMouse at(int cell) const {
    const int position = cell * state.gMagnification;
    return {cell, cell, static_cast<float>(position), static_cast<float>(position), 0};
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

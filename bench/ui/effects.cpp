// Measures the time from a changed setting of an effect to the painted sample, on a painted 48x48 icon, in visible
// panels.
#include "effects/Effects.h"

#include "../BenchRooms.h"
#include "effects/ButtonizePanel.h"
#include "effects/ConfinePanel.h"
#include "effects/DisabledImagePanel.h"
#include "effects/ShadesPanel.h"
#include "effects/ui/ButtonizePanelView.h"
#include "effects/ui/ConfinePanelView.h"
#include "effects/ui/DisabledImagePanelView.h"
#include "effects/ui/ShadesPanelView.h"

#include <QApplication>
#include <QEvent>

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kPanelWidth = 264;
constexpr int kPanelHeight = 500;

// Notices when a sample is painted.
class PaintWatcher : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject* watched, QEvent* event) override {
    painted = painted || (event->type() == QEvent::Paint && watched->objectName().startsWith(QLatin1String("pic")));
    return false;
  }
};

// A disc of many colours, and the panels of the effects applied to it.
class Panels {
 public:
  Panels() {
    constexpr int kMiddle = bench::kIconSize / 2, kRadius = 20;
    for (int y = 0; y < bench::kIconSize; ++y)
      for (int x = 0; x < bench::kIconSize; ++x)
        if ((x - kMiddle) * (x - kMiddle) + (y - kMiddle) * (y - kMiddle) < kRadius * kRadius) {
          scene_.state.picImage.SetPixelV(x, y, rgb(x * 5, y * 5, x * y % 256));
          scene_.state.picMask.SetPixelV(x, y, kBlack);
        }
  }
  Effects& effects() { return effects_; }

 private:
  bench::IconScene scene_;
  Effects effects_{scene_.context, scene_.document, scene_.drawing.history};
};

// `change` changes the setting for one iteration.
template <class View, class Panel, class Change>
void measure(benchmark::State& state, Panel& panel, Change change) {
  View view(nullptr, panel);
  view.resize(kPanelWidth, kPanelHeight);
  view.show();
  PaintWatcher watcher;
  qApp->installEventFilter(&watcher);
  QApplication::processEvents();
  int turn = 0;
  for (auto _ : state) {
    watcher.painted = false;
    change(turn++);
    QApplication::processEvents();
    if (!watcher.painted) return state.SkipWithError("no sample was painted");
  }
}

void relief(benchmark::State& state, int command) {
  Panels panels;
  ShadesPanel& panel = panels.effects().panel<ShadesPanel>();
  panel.open(command);
  measure<ShadesPanelView>(state, panel, [&](int turn) { panel.setUseSelectedColor(turn % 2 == 0); });
}
BENCHMARK_CAPTURE(relief, embossed, 11)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(relief, engraved, 12)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(relief, raised, 13)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(relief, shadowed, 14)->UseRealTime()->Unit(benchmark::kMillisecond);

void buttonStyles(benchmark::State& state) {
  Panels panels;
  ButtonizePanel& panel = panels.effects().panel<ButtonizePanel>();
  panel.open(ButtonizePanel::kCommands.front());
  measure<ButtonizePanelView>(state, panel, [&](int turn) { panel.pickPattern(turn % kButtonPatterns); });
}
BENCHMARK(buttonStyles)->UseRealTime()->Unit(benchmark::kMillisecond);

void disabledButton(benchmark::State& state) {
  Panels panels;
  DisabledImagePanel& panel = panels.effects().panel<DisabledImagePanel>();
  panel.open(DisabledImagePanel::kCommands.front());
  measure<DisabledImagePanelView>(state, panel, [&](int) { panel.preview(); });
}
BENCHMARK(disabledButton)->UseRealTime()->Unit(benchmark::kMillisecond);

void reduction(benchmark::State& state, int run, int method) {
  Panels panels;
  ConfinePanel& panel = panels.effects().panel<ConfinePanel>();
  panel.doConfineColors(run);
  measure<ConfinePanelView>(state, panel, [&](int) { panel.pickMethod(method); });
}
BENCHMARK_CAPTURE(reduction, optimal, 0, 0)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, system, 0, 1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, optimized, 1, 0)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, nearest, 1, 1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, standardVga, 1, 2)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, selectCutoff, 2, 0)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, weighted, 2, 1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reduction, ordered, 2, 2)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

// Measures the time from a changed setting of an effect to the painted sample, on a painted 48x48 icon, in visible
// panels.
#include "effects/Effects.h"

#include "../BenchRooms.h"
#include "document/ui/QtDisplay.h"
#include "effects/ConfinePanel.h"
#include "effects/SettingsPanel.h"
#include "effects/ui/ConfinePanelView.h"
#include "effects/ui/SettingsPanelView.h"

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
    scene_.display.form = &display_;
  }
  Effects& effects() { return effects_; }
  // Lets a view follow its panel, as on the main form.
  void connect(EffectPanelView& view) {
    display_.listen(DisplayPart::SidePanel, &view, [&view] { view.refreshAll(); });
  }

 private:
  bench::IconScene scene_;
  QtDisplay display_;
  Effects effects_{scene_.context, scene_.document, scene_.drawing.history};
};

// `change` changes the setting for one iteration.
template <class View, class Panel, class Change>
void measure(benchmark::State& state, Panels& panels, Panel& panel, Change change) {
  View view(nullptr, panel);
  panels.connect(view);
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

// Goes through the choices of the effect's first setting; an effect without settings is previewed again.
void effectOf(benchmark::State& state, const EffectRow& effect) {
  Panels panels;
  SettingsPanel& panel = *panels.effects().settingsPanel(effect.panel.number);
  panel.open(effect);
  measure<SettingsPanelView>(state, panels, panel, [&](int turn) {
    if (effect.settings.empty()) return panel.preview();
    const Setting& setting = effect.settings.front();
    panel.choose(setting, turn % choiceCount(setting));
  });
}

void addEffects() {
  for (const EffectRow* effect : effectTable())
    if (effect->apply)
      benchmark::RegisterBenchmark(effect->name, [effect](benchmark::State& state) { effectOf(state, *effect); })
          ->UseRealTime()
          ->Unit(benchmark::kMillisecond);
}

void reduction(benchmark::State& state, int run, int method) {
  Panels panels;
  ConfinePanel& panel = panels.effects().panel<ConfinePanel>();
  panel.doConfineColors(run);
  measure<ConfinePanelView>(state, panels, panel, [&](int) { panel.pickMethod(method); });
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
  addEffects();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

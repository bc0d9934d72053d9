// Measures the time from a changed setting of an effect to the painted sample, on a painted 48x48 icon, in visible
// panels.
#include "effects/Effects.h"

#include "../BenchRooms.h"
#include "document/ui/QtDisplay.h"
#include "effects/BlendPanel.h"
#include "effects/BrightnessPanel.h"
#include "effects/ConfinePanel.h"
#include "effects/EffectTable.h"
#include "effects/GradientPanel.h"
#include "effects/ResizePanel.h"
#include "effects/SettingsPanel.h"
#include "effects/SpherePanel.h"
#include "effects/TextPanel.h"
#include "effects/TexturePanel.h"
#include "effects/ThemePanel.h"
#include "effects/ui/EffectPanelView.h"
#include "effects/ui/EffectViews.h"
#include "platform/ports/PictureLoader.h"
#include "platform/qt/QtTextDrawing.h"

#include <QApplication>
#include <QEvent>

#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace {

using namespace gp;

constexpr int kPanelWidth = 264;
constexpr int kPanelHeight = 500;
constexpr QLatin1String kTextSample("lblTextSample");

// Notices when a sample is painted.
class PaintWatcher : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject* watched, QEvent* event) override {
    const QString name = watched->objectName();
    const bool isSample = name.startsWith(QLatin1String("pic"), Qt::CaseInsensitive) || name == kTextSample;
    painted = painted || (event->type() == QEvent::Paint && isSample);
    return false;
  }
};

// The user picks another colour each time.
class ManyColors : public bench::NoDialogs {
 public:
  bool chooseColor(Color& color) override {
    color = (color + rgb(1, 30, 50)) & kWhite;
    return true;
  }
};

class NoPictures : public PictureLoader {
 public:
  LoadedPicture loadPicture(const std::string&, int, int) override { return {}; }
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
    // An icon to blend in.
    scene_.document.arrival.fillContainer(1, {scene_.state.picImage, scene_.state.picMask, {}}, NewRecord());
    scene_.display.form = &display_;
  }
  Effects& effects() { return effects_; }
  // The visible view of a panel, which follows it as on the main form.
  std::unique_ptr<EffectPanelView> show(int number) {
    std::unique_ptr<EffectPanelView> view(makeEffectView(number, nullptr, effects_));
    display_.listen(DisplayPart::SidePanel, view.get(), [shown = view.get()] { shown->refreshAll(); });
    view->resize(kPanelWidth, kPanelHeight);
    view->show();
    return view;
  }

 private:
  bench::IconScene scene_;
  QtDisplay display_;
  ManyColors dialogs_;
  clsGPDialog dialog_{dialogs_};
  NoPictures pictures_;
  QtTextDrawing fonts_;
  Effects effects_{scene_.context, scene_.document, scene_.drawing, {dialog_, pictures_, fonts_}};
};

// `change` changes a setting of the panel for one iteration.
template <class Change>
void measure(benchmark::State& state, Panels& panels, int number, Change change) {
  const auto view = panels.show(number);
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
void ofSettings(benchmark::State& state, const EffectRow& effect) {
  Panels panels;
  SettingsPanel& panel = *panels.effects().settingsPanel(effect.panel.number);
  panel.open(effect);
  measure(state, panels, panel.number(), [&](int turn) {
    if (effect.settings.empty()) return panel.preview();
    const Setting& setting = effect.settings.front();
    panel.choose(setting, turn % choiceCount(setting));
  });
}

// A setting of a panel that has its own class.
template <class Panel>
void ofPanel(benchmark::State& state, const EffectRow& effect, void (*change)(Panel& panel, int turn)) {
  Panels panels;
  panels.effects().open(effect.menu.index);
  Panel& panel = panels.effects().panel<Panel>();
  change(panel, 0);
  measure(state, panels, Panel::kNumber, [&](int turn) { change(panel, turn + 1); });
}

void addBenchmark(const char* name, auto... arguments) {
  benchmark::RegisterBenchmark(name, arguments...)->UseRealTime()->Unit(benchmark::kMillisecond);
}

template <class Panel>
void addPanel(const char* setting, void (*change)(Panel& panel, int turn)) {
  for (const EffectRow* effect : effectTable())
    if (effect->panel.number == Panel::kNumber)
      addBenchmark((std::string(effect->title) + "/" + setting).c_str(), ofPanel<Panel>, *effect, change);
}

// A text of six letters, the largest that an icon shows, in a font that is loaded already.
void write(TextPanel& panel) {
  if (panel.text().empty()) panel.setText("Sample");
}

void addText() {
  addPanel<TextPanel>("letters",
                      [](TextPanel& panel, int turn) { panel.setText(turn % 2 == 0 ? "Sampled" : "Sample"); });
  addPanel<TextPanel>("angle", [](TextPanel& panel, int turn) {
    write(panel);
    panel.setAngle(turn % kLargestTextAngle + 1);
  });
  addPanel<TextPanel>("style", [](TextPanel& panel, int turn) {
    write(panel);
    panel.pickStyle(turn % kTextStyles);
  });
  addPanel<TextPanel>("size", [](TextPanel& panel, int turn) {
    write(panel);
    panel.pickSize(turn % kTextSizes);
  });
  addPanel<TextPanel>("10,000 letters", [](TextPanel& panel, int) { panel.setText(std::string(10000, 'M')); });
}

void addEffects() {
  addText();
  for (const EffectRow* effect : effectTable())
    if (effect->panel.isGenerated) addBenchmark(effect->title, ofSettings, *effect);
  addPanel<SpherePanel>("factor", [](SpherePanel& panel, int turn) { panel.pickFactor(turn % 11); });
  addPanel<SpherePanel>("size", [](SpherePanel& panel, int turn) { panel.pickSize(turn % kSphereSizes); });
  addPanel<SpherePanel>("light", [](SpherePanel& panel, int turn) { panel.clickSample(10 + turn % 12, 16); });
  addPanel<SpherePanel>("color", [](SpherePanel& panel, int) { panel.chooseColor(); });
  addPanel<GradientPanel>("angle", [](GradientPanel& panel, int turn) { panel.pickAngle(0, turn % 361); });
  addPanel<GradientPanel>("kind", [](GradientPanel& panel, int turn) { panel.pickKind(turn % kGradientKinds); });
  addPanel<GradientPanel>("center",
                          [](GradientPanel& panel, int turn) { panel.clickCenter(turn % bench::kIconSize, 7); });
  addPanel<GradientPanel>("color", [](GradientPanel& panel, int) { panel.chooseColor(0); });
  addPanel<BrightnessPanel>("change", [](BrightnessPanel& panel, int turn) {
    panel.adjust(static_cast<BrightnessOf>(turn % 4), turn % 2 == 0 ? 9 : 12);
  });
  addPanel<BlendPanel>("percent", [](BlendPanel& panel, int turn) {
    if (turn == 0) panel.pickContainer(1);
    panel.pickPercent(turn % 19);
  });
  addPanel<TexturePanel>("depth", [](TexturePanel& panel, int turn) { panel.pick(TextureList::Depth, turn % 9); });
  addPanel<TexturePanel>("pattern", [](TexturePanel& panel, int turn) { panel.pick(TextureList::Pattern, turn % 3); });
  addPanel<ThemePanel>("color", [](ThemePanel& panel, int) { panel.pickColor(); });
}

void reduction(benchmark::State& state, int run, int method) {
  Panels panels;
  ConfinePanel& panel = panels.effects().panel<ConfinePanel>();
  panel.doConfineColors(run);
  measure(state, panels, ConfinePanel::kNumber, [&](int) { panel.pickMethod(method); });
}

// The icon of 48 pixels, to another size.
void resizing(benchmark::State& state) {
  Panels panels;
  ResizePanel& panel = panels.effects().panel<ResizePanel>();
  panel.shrinkTo(0);
  measure(state, panels, ResizePanel::kNumber, [&](int turn) { panel.pickOption(turn % ResizePanel::kOptions); });
}
BENCHMARK(resizing)->UseRealTime()->Unit(benchmark::kMillisecond);

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

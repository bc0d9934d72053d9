// Measures the time from a changed setting of Text to the painted sample, on a 48x48 icon, in a visible panel. The font
// is loaded already.
#include "../BenchRooms.h"
#include "document/ui/QtDisplay.h"
#include "effects/Effects.h"
#include "effects/TextPanel.h"
#include "effects/ui/TextPanelView.h"
#include "platform/ports/PictureLoader.h"
#include "platform/qt/QtTextDrawing.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>

namespace {

using namespace gp;

constexpr int kTextEntry = 0;
constexpr int kPanelWidth = 264;
constexpr int kPanelHeight = 500;
constexpr const char* kFamily = "DejaVu Sans";

class NoPictures : public PictureLoader {
 public:
  LoadedPicture loadPicture(const std::string&, int, int) override { return {}; }
};

// Notices when the sample is painted.
class PaintWatcher : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject* watched, QEvent* event) override {
    painted = painted || (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("lblTextSample"));
    return false;
  }
};

// The panel with a text of six letters, the largest that an icon shows.
class Program {
 public:
  Program() {
    scene_.display.form = &display_;
    effects_.open(kTextEntry);
    const auto& families = panel.families();
    panel.pickFamily(static_cast<int>(std::ranges::find(families, kFamily) - families.begin()));
    panel.setText("Sample");
    display_.listen(DisplayPart::SidePanel, &view_, [this] { view_.refreshAll(); });
    view_.resize(kPanelWidth, kPanelHeight);
    view_.show();
    QApplication::processEvents();
  }

 private:
  bench::IconScene scene_;
  QtDisplay display_;
  QtTextDrawing fonts_;
  NoPictures pictures_;
  Effects effects_{scene_.context, scene_.document, scene_.drawing, {scene_.dialog, pictures_, fonts_}};

 public:
  TextPanel& panel = effects_.panel<TextPanel>();

 private:
  TextPanelView view_{nullptr, panel};
};

// `change` makes the change of one turn.
template <class Change>
void measure(benchmark::State& state, Change change) {
  Program program;
  PaintWatcher watcher;
  qApp->installEventFilter(&watcher);
  int turn = 0;
  for (auto _ : state) {
    watcher.painted = false;
    change(program.panel, turn++);
    QApplication::processEvents();
    if (!watcher.painted) return state.SkipWithError("no sample was painted");
  }
}

void letters(benchmark::State& state) {
  measure(state, [](TextPanel& panel, int turn) { panel.setText(turn % 2 == 0 ? "Sampled" : "Sample"); });
}
void angles(benchmark::State& state) {
  measure(state, [](TextPanel& panel, int turn) { panel.setAngle(turn % kLargestTextAngle + 1); });
}
void styles(benchmark::State& state) {
  measure(state, [](TextPanel& panel, int turn) { panel.pickStyle(turn % kTextStyles); });
}
void sizes(benchmark::State& state) {
  measure(state, [](TextPanel& panel, int turn) { panel.pickSize(turn % kTextSizes); });
}
void looks(benchmark::State& state) {
  measure(state, [](TextPanel& panel, int turn) { panel.toggleFontStyle(turn % TextPanel::kFontStyles); });
}
void tenThousandLetters(benchmark::State& state) {
  const std::string text(10000, 'M');
  measure(state, [&text](TextPanel& panel, int) { panel.setText(text); });
}
BENCHMARK(letters)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(angles)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(styles)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sizes)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(looks)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(tenThousandLetters)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

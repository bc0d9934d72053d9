// Measures opening a file of 99 icons in frmGPMultiIcon, from the file on disk to the first paint of the preview.
// Processor time of the whole process. The very first opening is reported separately, since it also loads fonts and
// styles.
#include "../ManyIconsFile.h"
#include "document/ui/QtDisplay.h"
#include "files/ui/frmGPMultiIcon.h"

#include <QApplication>
#include <QEvent>

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kPatience = 1000;  // rounds of events after which a preview that was not painted counts as a failure

// Notices when the preview is painted.
class PaintWatcher : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject* watched, QEvent* event) override {
    painted = painted || (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("picIconInFile(0)"));
    return false;
  }
};

bool isPainted(const PaintWatcher& watcher) {
  for (int round = 0; round < kPatience && !watcher.painted; ++round) QApplication::processEvents();
  return watcher.painted;
}

void openForm(benchmark::State& state, bench::Icons icons) {
  bench::ManyIconsFile file(icons);
  PaintWatcher watcher;
  qApp->installEventFilter(&watcher);
  for (auto _ : state) {
    watcher.painted = false;
    gp::QtDisplay display;
    frmGPMultiIcon form(file.context(&display), display, nullptr);
    if (!form.comeUp() || !isPainted(watcher)) return state.SkipWithError("no preview was painted");
    state.PauseTiming();
    form.reject();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(openForm, veryFirst, bench::Icons::Deep)
    ->Iterations(1)
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openForm, deep, bench::Icons::Deep)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openForm, mixed, bench::Icons::Mixed)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

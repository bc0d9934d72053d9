// Measures one painted cell of the alpha screen on a 48-pixel icon: from the mouse event to the repainted form.
#include "../BenchRooms.h"
#include "alpha/ui/frmGPAlpha.h"
#include "files/Files.h"

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QSlider>

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kCell = AlphaCanvas::kSide / bench::kIconSize;
constexpr int kCells = bench::kIconSize * bench::kIconSize;

// Notices when the magnified icon is painted.
class PaintWatcher : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    painted = painted || event->type() == QEvent::Paint;
    return false;
  }
};

class Screen {
 public:
  Screen() {
    form_.show();
    area_->installEventFilter(&watcher_);
    settle();
    send(QEvent::MouseButtonPress, 0);
    settle();
  }

  // Paints the next cell, row by row and with another value after the last one. Returns false when nothing was painted
  // on the screen.
  bool paintNext() {
    cell_ = (cell_ + 1) % kCells;
    if (cell_ == 0) form_.findChild<QSlider*>("hsrAlphaValue")->setValue(value_ = 255 - value_);
    watcher_.painted = false;
    send(QEvent::MouseMove, cell_);
    settle();
    return watcher_.painted;
  }

 private:
  static IconImage paintedIcon() {
    IconImage icon = bench::colourfulIcon();
    icon.mask.fill(kBlack);
    icon.alpha = AlphaMatrix(bench::kIconSize, bench::kIconSize, 255);
    return icon;
  }
  void settle() { QApplication::processEvents(); }
  void send(QEvent::Type type, int cell) {
    const QPointF position((cell % bench::kIconSize + 0.5) * kCell, (cell / bench::kIconSize + 0.5) * kCell);
    QMouseEvent event(type, position, area_->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area_, &event);
  }

  bench::BenchRooms rooms_;
  Files files_{rooms_.context, rooms_.document, rooms_.drawing, rooms_.dialog, ""};
  frmGPAlpha form_{files_.context(), paintedIcon(), AlphaMode::Edit, nullptr};
  QWidget* area_ = form_.findChild<QWidget*>("picDisp");
  PaintWatcher watcher_;
  int cell_ = 0;
  int value_ = 128;
};

void BM_PaintedAlphaCell(benchmark::State& state) {
  Screen screen;
  for (auto _ : state)
    if (!screen.paintNext()) return state.SkipWithError("the cell was not painted");
}
BENCHMARK(BM_PaintedAlphaCell)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

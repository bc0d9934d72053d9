// Measures one paint move on a 48-pixel icon: from the mouse event to the repainted Editing Area of the real form.
#include "document/EditState.h"
#include "document/ui/QtDisplay.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtMessagePump.h"
#include "platform/qt/QtPictureLoader.h"
#include "platform/qt/QtProcesses.h"
#include "platform/qt/QtSystemInfo.h"
#include "platform/qt/QtTextDrawing.h"
#include "platform/qt/QtTimer.h"
#include "shell/Shell.h"
#include "shell/ui/frmGPEdit.h"
#include "support/FoldersIn.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int kIconSize = 48;
constexpr int kStroke = 40;  // icon pixels of the stroke, there and back

// The program without its start-up checks, with a new icon of 48 pixels and the grid.
class Program {
 public:
  Program() {
    shell_.formLoad();
    form_.show();
    settle();
    shell_.formActivate("");
    shell_.files().iconSaver.doNewIcon(kIconSize);
    settle();
    send(QEvent::MouseButtonPress, 0);
  }
  ~Program() { state_.current() = {}; }

  // A move to the next pixel of the stroke, until it is painted.
  void move() {
    step_ = (step_ + 1) % (2 * kStroke);
    send(QEvent::MouseMove, step_ < kStroke ? step_ : 2 * kStroke - step_);
    settle();
  }

 private:
  void settle() { QApplication::processEvents(); }
  void send(QEvent::Type type, int pixel) {
    QWidget* area = form_.findChild<QWidget*>("picDisp");
    const double at = (pixel + 0.5) * state_.gMagnification;
    const QPointF position(at, at);
    QMouseEvent event(type, position, area->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &event);
  }

  QTemporaryDir folder_;
  gp::QtMessageBoxes boxes_;
  gp::QtFileDialogs dialogs_{[](const std::string&, const std::string&) { return std::string(); }};
  gp::QtMessagePump pump_;
  gp::QtSystemInfo system_;
  gp::QtProcesses processes_;
  gp::QtClipboard clipboard_;
  gp::QtPictureLoader pictures_;
  gp::QtTextDrawing text_;
  gp::QtTimer timer_;
  gp::EditState state_;
  gp::QtDisplay display_;
  gp::Shell shell_{state_,
                   {boxes_, dialogs_, pump_, system_, processes_, clipboard_, pictures_, text_, timer_},
                   display_,
                   gp::test::foldersIn(folder_.path().toStdString())};
  gp::frmGPEdit form_{shell_, display_, ""};
  int step_ = 0;
};

void BM_PaintMove(benchmark::State& state) {
  Program program;
  for (auto _ : state) program.move();
}
BENCHMARK(BM_PaintMove)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

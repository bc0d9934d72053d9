// Measures how exactly the test of a film keeps the times of its frames: the largest difference between the time for
// which a frame is shown and the time that it states, in milliseconds.
#include "animation/AniFrames.h"
#include "animation/AniTest.h"
#include "platform/qt/QtTimer.h"
#include "support/FakeEditor.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>

namespace {

using namespace gp;

constexpr int kMillisecondsPerJiffy = 10;
constexpr int kFrames = 40;

AniFrames filmOfTimes() {
  std::vector<FilmFrame> frames(kFrames);
  for (int i = 0; i < kFrames; ++i) frames[static_cast<std::size_t>(i)].jiffies = 1 + i % 12;
  return AniFrames(std::move(frames));
}

double worstDifference() {
  const AniFrames frames = filmOfTimes();
  test::RecordingDisplay display;
  QtTimer timer;
  AniTest film(frames, timer, display);
  QElapsedTimer clock;
  double worst = 0;
  int shown = 0;
  display.onChanged = [&](DisplayPart) {
    if (!film.isRunning()) return;
    if (shown > 0) {
      const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
      worst = std::max(worst, std::abs(milliseconds - frames.frame(shown).jiffies * kMillisecondsPerJiffy));
    }
    clock.start();
    shown = film.frame();
    if (shown == kFrames) film.stop();
  };
  film.start();
  while (film.isRunning()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return worst;
}

void BM_FilmTest(benchmark::State& state) {
  double worst = 0;
  for (auto _ : state) worst = std::max(worst, worstDifference());
  state.counters["worst_ms"] = worst;
}
BENCHMARK(BM_FilmTest)->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

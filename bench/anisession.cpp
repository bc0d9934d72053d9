// Measures opening an animated cursor of 70 frames of 32 x 32 pixels with alpha, from the file on disk to the drawn
// film, and saving it: the session without its pane. Processor time of the whole process.
#include "animation/AniSession.h"

#include "BenchRooms.h"
#include "animation/format/AniWriter.h"
#include "files/Files.h"
#include "files/IcoBuilder.h"
#include "platform/ports/Timer.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

class NoTimer : public Timer {
 public:
  void start(int, std::function<void()>) override {}
  void stop() override {}
};

class AgreeingBoxes : public MessageBoxes {
 public:
  BoxAnswer show(const std::string&, BoxButtons buttons, BoxIcon, BoxAnswer) override {
    return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
  }
};

class OneFile : public FileDialogs {
 public:
  explicit OneFile(std::string path) : path_(std::move(path)) {}
  bool openFile(const FileDialogRequest&, std::string& path, int&) override { return path = path_, true; }
  bool saveFile(const FileDialogRequest&, std::string& path, int&) override { return path = path_, true; }
  bool chooseColor(Color&) override { return false; }
  bool choosePrinter(PrinterRequest&) override { return false; }
  std::string chooseFolder(const std::string&, const std::string&) override { return {}; }

 private:
  const std::string path_;
};

test::Bytes filmWithAlpha() {
  std::vector<AniFrame> frames;
  for (int i = 0; i < cMaxAniFrames; ++i) frames.push_back({test::build(test::anyEntry(kFrameSide, 32)), 1 + i});
  return composeAniFile(frames, 3, 4);
}

struct Scene {
  test::IconFolder folder;
  const std::string path = folder.write("film.ani", filmWithAlpha());
  bench::BenchRooms rooms;
  AgreeingBoxes boxes;
  NoTimer timer;
  OneFile file{folder.path("saved.ani")};
  clsGPDialog dialog{file};
  const Context context{rooms.state, rooms.editor, rooms.display, boxes, rooms.pump};
  Files files{context, rooms.document, rooms.drawing, dialog, folder.path("gptmp.ico")};
  AniSession session{files.context(), timer};
};

void openFilm(benchmark::State& state) {
  Scene scene;
  for (auto _ : state) {
    scene.session.openFile(scene.path);
    if (scene.session.frames().count() != cMaxAniFrames) return state.SkipWithError("not opened");
    benchmark::DoNotOptimize(scene.session.film().picFilm().pixels().data());
  }
}
BENCHMARK(openFilm)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

void saveFilm(benchmark::State& state) {
  constexpr int kSave = 5;
  Scene scene;
  scene.session.openFile(scene.path);
  for (auto _ : state) {
    scene.session.cmdANI(kSave);
    if (scene.session.path() == scene.path) return state.SkipWithError("not saved");
  }
}
BENCHMARK(saveFilm)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

}  // namespace

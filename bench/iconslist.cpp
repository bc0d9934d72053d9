// Measures the Icons List from its command to the first drawn panel of a folder of 10,000 icon files, which the system
// has in memory: the list without its panel. Processor time of the whole process.
#include "extraction/IconsList.h"

#include "BenchRooms.h"
#include "files/Files.h"
#include "files/IcoBuilder.h"
#include "platform/ports/FileTypeIcons.h"

#include <algorithm>
#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kFiles = 10000;

class NoFileTypes : public FileTypeIcons {
 public:
  std::optional<FileTypeIcon> iconOfFile(const std::string&, int) override { return std::nullopt; }
  std::optional<FileTypeIcon> namedIcon(const std::string&, int) override { return std::nullopt; }
};

class OneFolder : public bench::NoDialogs {
 public:
  explicit OneFolder(std::string path) : path_(std::move(path)) {}
  std::string chooseFolder(const std::string&, const std::string&) override { return path_; }

 private:
  const std::string path_;
};

struct Scene {
  test::IconFolder folder;
  bench::BenchRooms rooms;
  OneFolder chosen{folder.folder()};
  NoFileTypes fileTypes;
  clsGPDialog dialog{chosen};
  Files files{rooms.context, rooms.document, rooms.drawing, dialog, folder.path("gptmp.ico")};

  Scene() {
    for (int i = 0; i < kFiles; ++i)
      folder.write("icon" + std::to_string(i) + ".ico", test::build(test::anyEntry(kDefaultIconSize, 32)));
  }
};

void firstPanelOfAFolder(benchmark::State& state) {
  Scene scene;
  for (auto _ : state) {
    IconsList list(scene.files.context(), scene.files, scene.fileTypes);
    list.displayIconsInFolder();
    const bool isWhole =
        std::ranges::all_of(list.cells(), [](const ListCell& cell) { return cell.isDrawn && cell.valid; });
    if (list.cells().size() != kCellsOnPanel || !isWhole) return state.SkipWithError("not drawn");
  }
}
BENCHMARK(firstPanelOfAFolder)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

}  // namespace

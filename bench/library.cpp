// Measures what a panel of the list of icons costs for a library of 10 MB: opening it, listing its icons, and the
// pictures of the 48 icons of a panel, as they are drawn and as they are loaded. Processor time.
#include "extraction/format/ExtractedIcon.h"
#include "extraction/format/IclScan.h"
#include "extraction/format/IconHandle.h"
#include "support/PeBytes.h"
#include "support/PngBuilder.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

constexpr int kIcons = 200, kOnPanel = 48;

test::Picture anyPicture(int size, int bits) {
  test::Picture p;
  p.width = p.height = size;
  p.bits = bits;
  p.color = [](int x, int y) { return test::Rgb{x * 5 % 256, y * 5 % 256, (x ^ y) % 256, (x + y) * 3 % 256}; };
  p.transparent = [](int x, int y) { return (x + y) % 5 == 0; };
  return p;
}

// The images of an icon as programs have them: about 50 KB.
std::vector<test::Bytes> imagesOfOneIcon() {
  std::vector<test::Bytes> images;
  for (const int bits : {4, 8, 32})
    for (const int size : {16, 24, 32, 48}) images.push_back(test::imageBytes(anyPicture(size, bits)));
  const auto large = test::build(test::anyPng(64));
  images.emplace_back(large.begin(), large.end());
  return images;
}

std::vector<test::GroupEntry> entriesFrom(int id) {
  std::vector<test::GroupEntry> entries;
  for (const int bits : {4, 8, 32})
    for (const int size : {16, 24, 32, 48}) entries.push_back({size, size, 0, 1, bits, 0, id++});
  entries.push_back({64, 64, 0, 1, 32, 0, id});
  return entries;
}

class LibraryFile {
 public:
  LibraryFile() {
    const auto images = imagesOfOneIcon();
    std::vector<test::Resource> resources;
    for (int icon = 0; icon < kIcons; ++icon) {
      const int first = icon * static_cast<int>(images.size()) + 1;
      for (std::size_t i = 0; i < images.size(); ++i)
        resources.push_back(test::iconOf(first + static_cast<int>(i), images[i]));
      resources.push_back(test::groupOf(icon + 1, entriesFrom(first)));
    }
    bytes_ = test::peWith(resources);
    std::ofstream(path(), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes_.data()), static_cast<std::streamsize>(bytes_.size()));
  }
  std::string path() const { return folder_.path() + "/library.dll"; }
  const test::Bytes& bytes() const { return bytes_; }

 private:
  test::TempFolder folder_;
  test::Bytes bytes_;
};

const LibraryFile& library() {
  static const LibraryFile file;
  return file;
}

void openLibrary(benchmark::State& state) {
  const std::string path = library().path();
  for (auto _ : state) {
    const auto opened = IconLibrary::open(path);
    if (opened->groups().size() != kIcons) return state.SkipWithError("icons are missing");
  }
  state.counters["MB"] = static_cast<double>(library().bytes().size()) / (1 << 20);
}
BENCHMARK(openLibrary)->Unit(benchmark::kMicrosecond);

void listIcons(benchmark::State& state) {
  const std::string path = library().path();
  for (auto _ : state) {
    const auto opened = IconLibrary::open(path);
    std::size_t images = 0;
    for (const IconGroup& group : opened->groups()) images += opened->imagesOf(group).size();
    benchmark::DoNotOptimize(images);
  }
}
BENCHMARK(listIcons)->Unit(benchmark::kMicrosecond);

void drawPanel(benchmark::State& state, int size) {
  const std::string path = library().path();
  for (auto _ : state) {
    const auto opened = IconLibrary::open(path);
    for (int i = 0; i < kOnPanel; ++i) {
      const auto handle = libraryIcon(*opened, opened->groups()[static_cast<std::size_t>(i)], size);
      if (!handle) return state.SkipWithError("an icon cannot be drawn");
      benchmark::DoNotOptimize(drawnOn(*handle, kGround).pixels().data());
    }
  }
}
BENCHMARK_CAPTURE(drawPanel, large, kLargeIcon)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawPanel, small, kSmallIcon)->Unit(benchmark::kMillisecond);

// One icon, as it comes into a container and into a file.
void extractIcon(benchmark::State& state) {
  const auto opened = IconLibrary::open(library().path());
  for (auto _ : state) {
    const IconImage icon = surfacesOf(libraryIcon(*opened, opened->groups()[7], kLargeIcon).value());
    benchmark::DoNotOptimize(fileOfExtracted(icon).data());
  }
}
BENCHMARK(extractIcon)->Unit(benchmark::kMicrosecond);

void scanFile(benchmark::State& state, bool isDense) {
  const test::Bytes dense(library().bytes().size(), 40);
  const test::Bytes& file = isDense ? dense : library().bytes();
  for (auto _ : state) benchmark::DoNotOptimize(scanForIconImages(file).data());
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.size()));
}
BENCHMARK_CAPTURE(scanFile, library, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scanFile, onlyHeaderBytes, true)->Unit(benchmark::kMillisecond);

}  // namespace

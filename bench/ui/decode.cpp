// Measures decoding icon entries of 16 to 48 pixels into Surfaces, beside Qt's reader of icon files on the same
// entries. Both get the bytes of whole files in memory. The files are those of the folder GLIMMERPANE_CORPUS, otherwise
// of the corpus beside the repository.
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

struct Sample {
  QByteArray bytes;
  std::vector<int> entries;  // those that both readers decode at the size of the directory
  gp::IconFile file;         // the same bytes
};

gp::IconFile fileOf(const QByteArray& bytes) {
  const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.constData());
  return gp::parseIconFile(gp::FileBytes(std::span(data, static_cast<std::size_t>(bytes.size()))));
}

std::string corpusFolder() {
  const char* folder = std::getenv("GLIMMERPANE_CORPUS");
  return std::string(folder ? folder : GP_SOURCE_DIR "/../shared/corpus") + "/ico";
}

QByteArray bytesOf(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(stream)), {});
  return QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QImage qtImage(const QByteArray& bytes, int index) {
  QBuffer buffer(const_cast<QByteArray*>(&bytes));
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "ico");
  return reader.jumpToImage(index) ? reader.read() : QImage();
}

Sample sampleOf(const std::filesystem::path& path) {
  Sample sample{bytesOf(path), {}, {}};
  sample.file = fileOf(sample.bytes);
  if (!sample.file.isIcon()) return sample;
  for (int i = 0; i < sample.file.directory.presentCount(); ++i) {
    const gp::IconEntry entry = sample.file.entry(i);
    if (gp::isUsableEntry(sample.file, entry) && qtImage(sample.bytes, i).width() == entry.width)
      sample.entries.push_back(i);
  }
  return sample;
}

const std::vector<Sample>& samples() {
  static const std::vector<Sample> all = [] {
    std::vector<Sample> found;
    std::error_code missing;
    for (const auto& item : std::filesystem::directory_iterator(corpusFolder(), missing))
      if (Sample sample = sampleOf(item.path()); !sample.entries.empty()) found.push_back(std::move(sample));
    return found;
  }();
  return all;
}

std::int64_t entryCount() {
  std::int64_t count = 0;
  for (const Sample& sample : samples()) count += static_cast<std::int64_t>(sample.entries.size());
  return count;
}

// Parses the directory once for each file, as the program does.
void decodeEntries(const Sample& sample) {
  benchmark::DoNotOptimize(gp::parseIconDirectory(sample.file.span()).entries.data());
  for (const int index : sample.entries) {
    const gp::IconEntry entry = sample.file.entry(index);
    const gp::DecodedIcon decoded = gp::decodeEntry(sample.file, entry, entry.width, entry.height);
    benchmark::DoNotOptimize(decoded.icon.image.pixels().data());
  }
}

// Makes one reader per file.
void decodeEntriesByQt(const Sample& sample) {
  QBuffer buffer(const_cast<QByteArray*>(&sample.bytes));
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "ico");
  for (const int index : sample.entries) {
    reader.jumpToImage(index);
    benchmark::DoNotOptimize(reader.read().constBits());
  }
}

void run(benchmark::State& state, void (*decode)(const Sample& sample)) {
  if (samples().empty()) return state.SkipWithError("no corpus: set GLIMMERPANE_CORPUS");
  for (auto _ : state)
    for (const Sample& sample : samples()) decode(sample);
  state.SetItemsProcessed(state.iterations() * entryCount());
  state.SetLabel(std::to_string(entryCount()) + " entries");
}

void BM_Glimmerpane(benchmark::State& state) { run(state, decodeEntries); }
void BM_Qt(benchmark::State& state) { run(state, decodeEntriesByQt); }

BENCHMARK(BM_Glimmerpane)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Qt)->Unit(benchmark::kMicrosecond);

}  // namespace

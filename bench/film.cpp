// Measures opening and saving a film of 70 frames of 32 x 32 with alpha: from the bytes of the file to the painted
// film, and from the frames to the bytes. Processor time of the whole process.
#include "animation/AniFilm.h"
#include "animation/format/FilmReading.h"
#include "files/IcoBuilder.h"

#include <benchmark/benchmark.h>
#include <cstring>

namespace {

using namespace gp;

constexpr int kFrames = 70;

void putTag(test::Bytes& out, const char* tag, std::size_t size) {
  out.insert(out.end(), tag, tag + std::strlen(tag));
  test::put32(out, static_cast<std::uint32_t>(size));
}

// No two frames are equal, and every alpha value occurs.
test::Bytes frameFile(int number) {
  test::Picture p = test::anyPicture(32, 32);
  p.color = [number](int x, int y) { return test::Rgb{(x * 5 + number) % 256, y * 5, x ^ y, (x + 32 * y) % 256}; };
  test::Bytes file = test::build(test::entryOf(p));
  file[2] = 2;
  return file;
}

test::Bytes fileOfFilm() {
  test::Bytes frames;
  for (int i = 0; i < kFrames; ++i) {
    const test::Bytes frame = frameFile(i);
    putTag(frames, "icon", frame.size());
    test::append(frames, frame);
  }
  test::Bytes file;
  putTag(file, "RIFF", frames.size() + 68);
  putTag(file, "ACONanih", 36);
  for (const std::uint32_t field : {36, kFrames, kFrames, 0, 0, 0, 0, 6, 1}) test::put32(file, field);
  putTag(file, "LIST", frames.size() + 4);
  file.insert(file.end(), {'f', 'r', 'a', 'm'});
  test::append(file, frames);
  return file;
}

void openFilm(benchmark::State& state) {
  const test::Bytes file = fileOfFilm();
  for (auto _ : state) {
    ReadFilm read = ReadANIFileFrames(file);
    if (read.frames.size() != kFrames || !read.losses.alpha) return state.SkipWithError("no film with alpha");
    AniFilm film;
    film.redraw(AniFrames(std::move(read.frames)));
    benchmark::DoNotOptimize(film.picFilm().pixels().data());
  }
}
BENCHMARK(openFilm)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

}  // namespace

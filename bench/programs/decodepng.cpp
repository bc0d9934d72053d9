// Decodes all PNG images of an icon file again and again, so that the decoder can be timed beside others.
//
//     decodepng FILE.ico ROUNDS
//
// Prints the fewest microseconds of a round, and the number of images.
#include "files/format/IconFile.h"
#include "platform/codec/Png.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

using namespace gp;
using Clock = std::chrono::steady_clock;

// The number of images that were decoded.
int decodeAll(const IconFile& file) {
  int decoded = 0;
  for (const IconEntry& entry : file.directory.entries)
    decoded += decodePng(file.span().subspan(entry.imageOffset, entry.bytesInRes), kPngInIconFile).isRead();
  return decoded;
}

}  // namespace

int main(int count, char** words) {
  const auto file = count == 3 ? readWholeIconFile(words[1]) : std::nullopt;
  if (!file) {
    std::fprintf(stderr, "usage: decodepng FILE.ico ROUNDS\n");
    return EXIT_FAILURE;
  }
  double best = std::numeric_limits<double>::max();
  int decoded = 0;
  for (int round = std::atoi(words[2]); round > 0; --round) {
    const auto begin = Clock::now();
    decoded = decodeAll(*file);
    best = std::min(best, std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
  }
  std::printf("%.1f %d\n", best, decoded);
  return EXIT_SUCCESS;
}

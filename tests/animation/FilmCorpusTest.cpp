// Reads the animated cursors of the corpus of real and generated files, if the corpus is beside the repository, and
// compares their images and frames with independent measurements.
#include "animation/format/AniFile.h"
#include "animation/format/FilmReading.h"
#include "animation/format/FrameImages.h"
#include "files/IcoBuilder.h"
#include "support/PictureHashes.h"
#include "support/Sha256.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

namespace gp::test {
namespace {

const std::string kCorpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";

struct Measured {
  std::string file, kind;
  std::size_t number = 0;
  std::string index, picture, mask, alpha;

  bool isStep() const { return kind == "step"; }
  std::string name() const { return file + " " + kind + " " + std::to_string(number) + " " + index; }
};

std::vector<Measured> measurements() {
  std::ifstream stream(std::string(GP_TEST_DATA) + "/corpus-anis.tsv");
  std::vector<Measured> all;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream fields(line);
    Measured m;
    fields >> m.file >> m.kind >> m.number >> m.index >> m.picture >> m.mask >> m.alpha;
    all.push_back(m);
  }
  return all;
}

std::string alphaHashOf(const IconImage& icon) {
  Bytes rows;
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) rows.push_back(icon.hasAlphaValues() ? icon.alpha.at(x, y) : 0);
  return Sha256::of(rows);
}

// The images of each frame of a file.
std::vector<Bytes> framesOf(const Bytes& file) {
  std::vector<Bytes> frames;
  for (const AniImage& image : readAniFile(file).file.images) {
    const auto begin = file.begin() + static_cast<std::ptrdiff_t>(image.offset);
    frames.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(image.size));
  }
  return frames;
}

// Checks what was measured; "-" was not.
void expectHash(const std::string& measured, const std::string& ours, const std::string& what) {
  EXPECT_EQ(measured == "-" ? measured : ours, measured) << what;
}

TEST(FilmCorpus, EveryImageOfEveryFrameDecodesToTheMeasuredPixels) {
  if (!std::filesystem::is_directory(kCorpus)) GTEST_SKIP() << "no corpus in " << kCorpus << ": nothing was checked";
  std::map<std::string, std::vector<Bytes>> frames;
  int checked = 0;
  for (const Measured& m : measurements()) {
    // The third frame of made__truncated.ani has no measured pixels, as it has no image.
    if (m.isStep() || m.picture == "-") continue;
    if (!frames.contains(m.file)) frames[m.file] = framesOf(bytesOf(kCorpus + m.file));
    ASSERT_LT(m.number, frames[m.file].size()) << m.name();
    const Bytes& frame = frames[m.file][m.number];
    const auto images = frameImages(frame);
    ASSERT_LT(std::stoul(m.index), images.size()) << m.name();
    const auto icon = decodeFrameImage(frame, images[std::stoul(m.index)]);
    ASSERT_TRUE(icon) << m.name();
    expectHash(m.picture, pictureHash(icon->image), m.name());
    expectHash(m.mask, maskHash(icon->mask), m.name());
    expectHash(m.alpha, alphaHashOf(*icon), m.name());
    ++checked;
  }
  std::cout << "corpus: " << checked << " images of " << frames.size() << " files equal to what was measured\n";
  EXPECT_GT(checked, 450);
}

// What may differ from the drawings that were measured, with the reason.
enum Difference { kNothing = 0, kPicture = 1, kMask = 2, kRefused = 4 };
struct Known {
  const char* file;
  std::size_t firstStep;
  int difference;
  const char* why;
};
constexpr Known kKnown[] = {
    {"ani/made__frames_png.ani", 0, kMask, "a pixel of a PNG picture is opaque from an alpha of 128 on, not of 255"},
    {"ani/made__steps_150.ani", 0, kRefused, "more than 70 steps"},
    {"ani/made__steps_zero.ani", 1, kPicture | kMask, "no steps mean as many as frames, not the first frame always"},
    {"ani/made__truncated.ani", 0, kRefused, "the third frame is cut off"},
    {"ani/yaru-theme-icon__00000000000000020006000e7e9ffc3f.ani", 0, kMask, "as above, PNG pictures"},
};

int expectedDifference(const Measured& m) {
  for (const Known& known : kKnown)
    if (m.file == known.file && m.number >= known.firstStep) return known.difference;
  return kNothing;
}

int differenceOf(const ReadFilm& film, const Measured& m) {
  if (m.number >= film.frames.size()) return kRefused;
  const FramePicture& picture = film.frames[m.number].picture;
  int difference = kNothing;
  if (pictureHash(picture.image) != m.picture) difference |= kPicture;
  if (pictureHash(picture.mask) != m.mask) difference |= kMask;
  return difference;
}

TEST(FilmCorpus, EveryFrameIsTheMeasuredOne) {
  if (!std::filesystem::is_directory(kCorpus)) GTEST_SKIP() << "no corpus in " << kCorpus << ": nothing was checked";
  std::map<std::string, ReadFilm> films;
  int checked = 0, known = 0;
  for (const Measured& m : measurements()) {
    if (!m.isStep()) continue;
    if (!films.contains(m.file)) films[m.file] = ReadANIFileFrames(bytesOf(kCorpus + m.file));
    const int expected = expectedDifference(m);
    EXPECT_EQ(differenceOf(films[m.file], m), expected) << m.name();
    expected == kNothing ? ++checked : ++known;
  }
  std::cout << "corpus: " << checked << " frames of " << films.size() << " files equal to what was measured, " << known
            << " known to differ\n";
  EXPECT_GT(checked, 140);
}

}  // namespace
}  // namespace gp::test

// Decodes every entry of an icon size in the corpus of real and generated icon files, if the corpus is beside the
// repository, and compares it with independent measurements.
#include "document/IconContainerRec.h"
#include "files/Decoding.h"
#include "files/format/IconProbe.h"
#include "platform/codec/Png.h"
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

struct Measured {
  std::string file;
  int index = 0, side = 0;
  std::string bits, picture, mask, alpha;
};

std::vector<Measured> measuredEntries() {
  std::ifstream stream(std::string(GP_TEST_DATA) + "/corpus-icons.tsv");
  std::vector<Measured> all;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream fields(line);
    Measured m;
    fields >> m.file >> m.index >> m.side >> m.bits >> m.picture >> m.mask >> m.alpha;
    all.push_back(m);
  }
  return all;
}

enum Difference { kNothing = 0, kPicture = 1, kMask = 2, kRefused = 4 };

// The only entries that may differ from the measurements, which followed the bitmap header, with the reason.
struct Known {
  const char* entry;
  int difference;
  const char* why;
};
constexpr Known kKnown[] = {
    {"ico/made__bitfields_32.ico 0", kPicture | kMask,
     "three colour masks of four bytes stand behind the header, where the pixels are taken to begin"},
    {"ico/made__directory_says_16_data_is_32.ico 0", kPicture | kMask,
     "the directory's 16x16 is believed over the header's 32x32"},
    {"ico/made__topdown_24bpp.ico 0", kPicture,
     "a negative height is not looked at: rows always stand bottom row first (the mask is the same both ways)"},
    {"ico/made__png_directory_size_wrong.ico 0", kRefused,
     "the picture's 64x64 is believed over the directory's 16x16, which was asked for"},
};

int differenceOf(const Measured& m, const Bytes& file) {
  const Decoded d = decode(file, m.index);
  if (d.defect != IconDefect::None) return kRefused;
  int difference = kNothing;
  if (m.picture != "-" && pictureHash(d.image) != m.picture) difference |= kPicture;
  if (m.mask != "-" && maskHash(d.mask) != m.mask) difference |= kMask;
  return difference;
}

int expectedDifference(const Measured& m) {
  const std::string entry = m.file + " " + std::to_string(m.index);
  for (const Known& known : kKnown)
    if (entry == known.entry) return known.difference;
  return kNothing;
}

TEST(Sha256, OfTheEmptyTextAndOfAbc) {
  EXPECT_EQ(Sha256::of({}), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Sha256::of(Bytes{'a', 'b', 'c'}), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(Corpus, EveryEntryOfAnIconSizeDecodesToTheMeasuredPixels) {
  const std::string corpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";
  if (!std::filesystem::is_directory(corpus)) GTEST_SKIP() << "no corpus in " << corpus << ": nothing was checked";
  std::set<std::string> files;
  int pictures = 0, masks = 0, known = 0;
  for (const Measured& m : measuredEntries()) {
    const Bytes file = bytesOf(corpus + m.file);
    ASSERT_FALSE(file.empty()) << m.file;
    const int expected = expectedDifference(m);
    EXPECT_EQ(differenceOf(m, file), expected) << m.file << " entry " << m.index;
    files.insert(m.file);
    if (expected != kNothing)
      ++known;
    else
      pictures += m.picture != "-", masks += m.mask != "-";
  }
  std::cout << "corpus: " << files.size() << " icon files, " << pictures << " pictures and " << masks
            << " masks equal to what was measured, " << known << " entries known to differ\n";
  EXPECT_EQ(known, static_cast<int>(std::size(kKnown)));
  EXPECT_GT(pictures, 300);
}

// The measured alpha values are those of the file; ours are 255 where the file has 0. Without a 0 in the file, both are
// equal.
TEST(Corpus, AlphaIsTheMeasuredOneWhereNoPixelHasAnAlphaOfZero) {
  const std::string corpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";
  if (!std::filesystem::is_directory(corpus)) GTEST_SKIP() << "no corpus in " << corpus << ": nothing was checked";
  int equal = 0, withZeros = 0;
  for (const Measured& m : measuredEntries()) {
    if (m.alpha == "-" || m.bits == "png" || expectedDifference(m) != kNothing) continue;
    const Bytes file = bytesOf(corpus + m.file);
    const IconEntry entry = parseIconDirectory(file).entry(m.index);
    Bytes raw, ours;
    const Decoded d = decode(file, m.index);
    for (int y = 0; y < m.side; ++y) {
      for (int x = 0; x < m.side; ++x) {
        const std::size_t at =
            entry.imageOffset + 40 + static_cast<std::size_t>(((m.side - 1 - y) * m.side + x) * 4 + 3);
        raw.push_back(at < file.size() ? file[at] : 0);
        ours.push_back(d.alpha.at(x, y));
        ASSERT_EQ(ours.back(), raw.back() == 0 ? 255 : raw.back()) << m.file;
      }
    }
    ASSERT_EQ(Sha256::of(raw), m.alpha) << m.file << " entry " << m.index;
    raw == ours ? ++equal : ++withZeros;
  }
  std::cout << "corpus: " << equal << " alpha channels equal to what was measured, " << withZeros
            << " more equal but for the zeros that read as 255\n";
  EXPECT_GT(equal + withZeros, 50);
}

struct MeasuredPng {
  std::string file;
  int index = 0, width = 0, height = 0;
  std::string picture, alpha;
};

std::vector<MeasuredPng> measuredPngs() {
  std::ifstream stream(std::string(GP_TEST_DATA) + "/corpus-pngs.tsv");
  std::vector<MeasuredPng> all;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream fields(line);
    MeasuredPng m;
    fields >> m.file >> m.index >> m.width >> m.height >> m.picture >> m.alpha;
    all.push_back(m);
  }
  return all;
}

// One of the pictures, of 512 x 512, is larger than an icon file may state.
TEST(Corpus, EveryPngPictureDecodesToTheMeasuredPixels) {
  const std::string corpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";
  if (!std::filesystem::is_directory(corpus)) GTEST_SKIP() << "no corpus in " << corpus << ": nothing was checked";
  const std::vector<MeasuredPng> all = measuredPngs();
  for (const MeasuredPng& m : all) {
    const Bytes file = bytesOf(corpus + m.file);
    const std::uint32_t offset = parseIconDirectory(file).entry(m.index).imageOffset;
    ASSERT_LT(offset, file.size()) << m.file;
    const DecodedPng decoded = decodePng(std::span(file).subspan(offset), kPngPicture);
    ASSERT_TRUE(decoded.isRead()) << m.file << " entry " << m.index;
    EXPECT_EQ(decoded.picture.width, m.width) << m.file;
    EXPECT_EQ(decoded.picture.height, m.height) << m.file;
    Bytes picture, alpha;
    for (std::size_t i = 0; i < decoded.picture.rgba.size(); ++i)
      (i % kRgbaBytes == kRgbaBytes - 1 ? alpha : picture).push_back(decoded.picture.rgba[i]);
    EXPECT_EQ(Sha256::of(picture), m.picture) << m.file << " entry " << m.index;
    EXPECT_EQ(Sha256::of(alpha), m.alpha) << m.file << " entry " << m.index;
  }
  std::cout << "corpus: " << all.size() << " PNG pictures equal to what was measured\n";
  EXPECT_EQ(all.size(), 30u);
}

TEST(Corpus, EveryFileOfItIsAnsweredWholeAndCut) {
  const std::string corpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/ico";
  if (!std::filesystem::is_directory(corpus)) GTEST_SKIP() << "no corpus in " << corpus << ": nothing was checked";
  int files = 0;
  for (const auto& item : std::filesystem::directory_iterator(corpus)) {
    Bytes file = bytesOf(item.path().string());
    ++files;
    for (const std::size_t part : {file.size(), file.size() / 2, file.size() / 7, std::size_t{40}, std::size_t{5}}) {
      file.resize(std::min(part, file.size()));
      const IconFile held = iconFileOf(file);
      const IconFacts facts = probeIcon(held, true);
      EXPECT_EQ(facts.canBeOpened(), isIconSize(facts.width)) << item.path();
      for (int i = 0; i < held.directory.presentCount(); ++i) (void)decode(file, i);
    }
  }
  std::cout << "corpus: " << files << " files read whole and cut\n";
}

}  // namespace
}  // namespace gp::test

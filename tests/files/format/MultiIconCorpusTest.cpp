// Takes every icon file of the corpus, if it is beside the repository, as arrays of entries and images: written
// unchanged, split, shortened, reordered and repaired. Only split images are decoded.
#include "document/IconContainerRec.h"
#include "files/Decoding.h"
#include "files/format/IconArrays.h"
#include "files/format/IconSalvage.h"
#include "files/format/IconUpdates.h"
#include "files/format/SingleEntryFile.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <numeric>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDirSize = 6;
constexpr std::size_t kEntrySize = 16;

struct CorpusFile {
  std::string path;
  IconArrays arrays;
};

// The only files that are refused as a whole, with the reason.
const std::map<std::string, const char*> kRefused = {
    {"gdk-pixbuf-tests__bug778204.ico", "a cursor's type, and no entry of the 79 told"},
    {"gdk-pixbuf-tests__bug779012.ico", "its image begins far behind the end"},
    {"gdk-pixbuf-tests__invalid.3.ico", "an animated cursor by another name"},
    {"made__count_too_large.ico", "three entries told, one there"},
    {"made__empty.ico", "no entries"},
    {"zoneminder__favicon.ico", "a PNG picture by another name"},
};
// An entry that states fewer bytes than its picture needs. In its file, the reader continues after them.
constexpr const char* kTooFewBytesTold = "made__bytes_in_res_too_small.ico";

class MultiIconCorpus : public testing::Test {
 protected:
  static inline const std::string kFolder = std::string(GP_SOURCE_DIR) + "/../shared/corpus/ico";
  TempFolder scratch;
  std::vector<CorpusFile> files;

  void SetUp() override {
    if (!fs::is_directory(kFolder)) GTEST_SKIP() << "no corpus in " << kFolder << ": nothing was checked";
    for (const auto& item : fs::directory_iterator(kFolder)) take(item.path());
    ASSERT_GT(files.size(), 100u);
  }

  void take(const fs::path& path) {
    CorpusFile file{path.string(), {}};
    const bool taken = readIconArrays(file.path, ReservedField::Any, file.arrays) == ArraysDefect::None;
    EXPECT_EQ(taken, !kRefused.contains(path.filename().string())) << path;
    if (taken) files.push_back(std::move(file));
  }
};

std::vector<Bytes> imagesOf(const IconArrays& arrays) {
  std::vector<Bytes> images;
  for (const ImageBytes image : arrays.images) images.emplace_back(image.begin(), image.end());
  return images;
}

// The directory, then the images in its order, then the end.
bool isCanonical(const IconArrays& arrays) {
  std::size_t running = kDirSize + arrays.entries.size() * kEntrySize;
  for (const IconEntry& entry : arrays.entries) {
    if (entry.imageOffset != running) return false;
    running += entry.bytesInRes;
  }
  return running == arrays.file.span().size();
}

IconArrays copyOf(const CorpusFile& file) {
  IconArrays arrays;
  EXPECT_EQ(readIconArrays(file.path, ReservedField::Any, arrays), ArraysDefect::None);
  return arrays;
}

IconArrays writtenAndRead(IconArrays& arrays, const std::string& path) {
  EXPECT_EQ(writeWholeFile(arrays, path), WriteDefect::None);
  IconArrays again;
  EXPECT_EQ(readIconArrays(path, ReservedField::Any, again), ArraysDefect::None);
  return again;
}

bool sameButForOffset(IconEntry a, const IconEntry& b) {
  a.imageOffset = b.imageOffset;
  return a == b;
}

// `kept` holds, for each place of `after`, the place in `before` that it came from.
void expectSameEntries(const CorpusFile& before, const IconArrays& after, std::span<const int> kept) {
  ASSERT_EQ(after.entries.size(), kept.size()) << before.path;
  const std::vector<Bytes> was = imagesOf(before.arrays), is = imagesOf(after);
  for (std::size_t place = 0; place < kept.size(); ++place) {
    const auto from = static_cast<std::size_t>(kept[place]);
    EXPECT_TRUE(sameButForOffset(after.entries[place], before.arrays.entries[from])) << before.path << " " << from;
    EXPECT_EQ(is[place], was[from]) << before.path << " " << from;
  }
}

std::vector<int> everyIndex(const IconArrays& arrays) {
  std::vector<int> all(arrays.entries.size());
  std::iota(all.begin(), all.end(), 0);
  return all;
}

TEST_F(MultiIconCorpus, AFileThatIsWrittenUnchangedIsByteIdenticalWhereItIsLaidOutInOrder) {
  int identical = 0, laidOutAnew = 0;
  for (const CorpusFile& file : files) {
    IconArrays arrays = copyOf(file);
    const std::string path = scratch.file("copy.ico");
    const IconArrays again = writtenAndRead(arrays, path);
    expectSameEntries(file, again, everyIndex(again));
    EXPECT_EQ(bytesOf(path) == bytesOf(file.path), isCanonical(file.arrays)) << file.path;
    ++(isCanonical(file.arrays) ? identical : laidOutAnew);
  }
  std::cout << "corpus: " << files.size() << " icon files written unchanged, " << identical << " byte-identical, "
            << laidOutAnew << " laid out anew\n";
  EXPECT_GT(identical, 100);
}

// For sizes that icons do not have, the reader may use rows after the image, which no longer exist.
bool isReadWithinItself(const CorpusFile& file, const IconEntry& entry) {
  return isIconSize(entry.width) && entry.width == entry.height && !file.path.ends_with(kTooFewBytesTold);
}

TEST_F(MultiIconCorpus, EveryEntryThatIsSavedAloneReadsLikeTheOneInTheFile) {
  int entries = 0, pictures = 0;
  for (const CorpusFile& file : files) {
    const Bytes whole = bytesOf(file.path);
    for (int i = 0; i < file.arrays.count(); ++i) {
      const auto at = static_cast<std::size_t>(i);
      const std::string path = scratch.file("alone.ico");
      ASSERT_TRUE(saveEntryToSingleFile(file.arrays, i, path)) << file.path;
      const auto alone = imageOfSingleIcon(FileBytes(bytesOf(path)));
      ASSERT_TRUE(alone) << file.path << " " << i;
      EXPECT_TRUE(sameButForOffset(alone->entry, file.arrays.entries[at])) << file.path << " " << i;
      EXPECT_EQ(alone->bytes, imagesOf(file.arrays)[at]) << file.path << " " << i;
      const Decoded inFile = decode(whole, i), single = decode(bytesOf(path));
      EXPECT_EQ(single.defect, inFile.defect) << file.path << " " << i;
      ++entries;
      if (!isReadWithinItself(file, alone->entry)) continue;
      EXPECT_TRUE(samePixels(single.image, inFile.image) && samePixels(single.mask, inFile.mask))
          << file.path << " " << i;
      pictures += inFile.defect == IconDefect::None;
    }
  }
  std::cout << "corpus: " << entries << " entries saved alone, " << pictures
            << " of an icon size with the same picture\n";
  EXPECT_GT(pictures, 300);
}

TEST_F(MultiIconCorpus, EveryRemovalLeavesTheOtherImagesByteIdentical) {
  int removals = 0;
  for (const CorpusFile& file : files) {
    if (file.arrays.count() < 2) continue;
    for (int i = 0; i < file.arrays.count(); ++i) {
      IconArrays arrays = copyOf(file);
      std::vector<int> kept = everyIndex(arrays);
      kept.erase(kept.begin() + i);
      removeImage(arrays, i);
      expectSameEntries(file, writtenAndRead(arrays, scratch.file("fewer.ico")), kept);
      ++removals;
    }
  }
  std::cout << "corpus: " << removals << " removals\n";
  EXPECT_GT(removals, 200);
}

TEST_F(MultiIconCorpus, EveryFileThatIsReversedOrTurnedKeepsItsImagesByteIdentical) {
  int reordered = 0;
  for (const CorpusFile& file : files) {
    std::vector<int> reversed = everyIndex(file.arrays), turned = reversed;
    std::ranges::reverse(reversed);
    std::ranges::rotate(turned, turned.begin() + 1);
    for (const std::vector<int>& order : {reversed, turned}) {
      IconArrays arrays = copyOf(file);
      reorderImages(arrays, order);
      expectSameEntries(file, writtenAndRead(arrays, scratch.file("reordered.ico")), order);
      ++reordered;
    }
  }
  std::cout << "corpus: " << reordered << " files in another order\n";
}

TEST_F(MultiIconCorpus, AnEntryThatIsReplacedByItselfOrPutInAgainLeavesTheOthersByteIdentical) {
  int changed = 0;
  for (const CorpusFile& file : files) {
    const int last = file.arrays.count() - 1;
    const NewImage image{file.arrays.entries.back(), imagesOf(file.arrays).back()};
    IconArrays arrays = copyOf(file);
    replaceImage(arrays, last, image);
    expectSameEntries(file, writtenAndRead(arrays, scratch.file("replaced.ico")), everyIndex(arrays));
    insertImage(arrays, 0, image);
    const IconArrays longer = writtenAndRead(arrays, scratch.file("longer.ico"));
    IconArrays others = copyOf(file);
    ASSERT_EQ(longer.count(), others.count() + 1) << file.path;
    EXPECT_EQ(imagesOf(longer).front(), image.bytes) << file.path;
    EXPECT_EQ(longer.entries.front().planes, 1) << file.path;
    removeImage(arrays, 0);
    expectSameEntries(file, writtenAndRead(arrays, scratch.file("as-before.ico")), everyIndex(others));
    ++changed;
  }
  std::cout << "corpus: " << changed << " files with an entry replaced and one put in\n";
}

bool headersAgree(const IconArrays& arrays) {
  for (std::size_t i = 0; i < arrays.entries.size(); ++i) {
    const IconEntry& entry = arrays.entries[i];
    if (hasBitmapHeader(arrays.images[i]) &&
        headerFactsOf(arrays.images[i]) != HeaderFacts{entry.width, entry.height, entry.bitCount})
      return false;
  }
  return true;
}

TEST_F(MultiIconCorpus, SalvageChangesNothingInFilesWhoseHeadersAgreeAndNoImageInOthers) {
  int agree = 0, repaired = 0;
  for (const CorpusFile& file : files) {
    IconArrays arrays = copyOf(file);
    salvageEntries(arrays);
    EXPECT_EQ(arrays.entries == file.arrays.entries, headersAgree(file.arrays)) << file.path;
    EXPECT_EQ(imagesOf(arrays), imagesOf(file.arrays)) << file.path;
    EXPECT_TRUE(headersAgree(arrays)) << file.path;
    const IconArrays again = writtenAndRead(arrays, scratch.file("salvaged.ico"));
    EXPECT_EQ(again.entries, arrays.entries) << file.path;
    ++(headersAgree(file.arrays) ? agree : repaired);
  }
  std::cout << "corpus: " << agree << " files whose headers agree left as they are, " << repaired << " repaired\n";
  EXPECT_GT(agree, 50);
}

}  // namespace
}  // namespace gp::test

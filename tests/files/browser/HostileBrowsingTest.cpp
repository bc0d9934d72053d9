// Defective icon files in the browser: each listed entry is shown or refused, and a file that is only viewed does not
// change on disk.
#include "files/BrowserFixture.h"
#include "support/ProcessUse.h"

namespace gp::test {
namespace {

class HostileBrowsing : public BrowserTest {
 protected:
  IcoFile file = iconFile({anyEntry(16, 4), anyEntry(32, 8), anyEntry(48, 24)});

  bool lists(const Bytes& bytes, std::size_t count) {
    unloads = 0;
    browse(bytes);
    return unloads == 0 && browser->lisIcons().size() + browser->lisOtherIcons().size() == count;
  }
  bool unloadsAtOnce(const Bytes& bytes) {
    unloads = 0;
    browse(bytes);
    return listsNothingAndUnloaded() && bytesOf(path) == bytes;
  }
  void expectNotShown(int ref) {
    boxes.expectTold("Ref " + std::to_string(ref) + "\nUnable to get this one", BoxIcon::None);
  }
};

// The directory.

TEST_F(HostileBrowsing, ReservedNotZeroIsNotLookedAtAndKept) {
  file.reserved = 0x1234;
  EXPECT_TRUE(lists(build(file), 3));
  browser->clickIcon(0);
  boxes.expectAsked("Permanently remove the selected icon from the multi-icon file.\n" + path +
                        "\n\nSure to remove this icon permanently?\n\n",
                    BoxAnswer::Yes);
  browser->cmdRemove();
  file.entries.erase(file.entries.begin());
  EXPECT_EQ(bytesOf(path), build(file));
}

TEST_F(HostileBrowsing, OtherTypesThanIconUnload) {
  for (const int type : {0, 2, 3, 0x0100, 0xFFFF}) {
    file.type = type;
    EXPECT_TRUE(unloadsAtOnce(build(file))) << type;
  }
}

TEST_F(HostileBrowsing, CountsOf0AndBeyondTheFileUnload) {
  for (const int count : {0, 1000, 65535}) {
    file.count = count;
    EXPECT_TRUE(unloadsAtOnce(build(file))) << count;
  }
}

// The directory states four entries where there are three: the fourth is read from the first image, and its offset is
// invalid.
TEST_F(HostileBrowsing, ADirectoryThatReachesIntoTheImagesUnloads) {
  file.count = 4;
  EXPECT_TRUE(unloadsAtOnce(build(file)));
}

TEST_F(HostileBrowsing, OtherFilesUnload) {
  Bytes png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}, bmp{'B', 'M'}, gif{'G', 'I', 'F', '8', '9', 'a'};
  for (Bytes bytes : {Bytes{}, Bytes{0}, png, bmp, gif, Bytes(5000, 0xFF), Bytes(5000)}) {
    EXPECT_TRUE(unloadsAtOnce(bytes));
    bytes.resize(2000, 0x20);
    EXPECT_TRUE(unloadsAtOnce(bytes));
  }
}

TEST_F(HostileBrowsing, FoldersAreNotRead) {
  exchange.gMultiIconFile = folder.folder();
  show();
  EXPECT_TRUE(listsNothingAndUnloaded());
}

TEST_F(HostileBrowsing, EntriesWithoutOrWithUnequalSidesStandWithTheOtherSizes) {
  file.entries[0].width = 0;
  file.entries[1].width = file.entries[1].height = 0;
  file.entries[2].width = 16, file.entries[2].height = 32;
  EXPECT_TRUE(lists(build(file), 3));
  EXPECT_EQ(browser->lisOtherIcons(), (Items{"Ref 1  \t4 BPP\t16-Color\t  0 x 16", "Ref 2  \t8 BPP\t256-Color\t  0 x 0",
                                             "Ref 3  \t24 BPP\tTrue-Color\t  16 x 32"}));
  EXPECT_FALSE(browser->canLoad());
}

TEST_F(HostileBrowsing, EntriesWithoutSizeCannotBeShownOnThePane) {
  file.entries[1].width = file.entries[1].height = 0;
  file.entries[2].height = 0;
  file.entries.push_back(anyEntry(24, 4));
  EXPECT_TRUE(lists(build(file), 4));
  browser->cmdReposition();
  for (const int item : {1, 2}) {
    expectNotShown(item + 1);
    browser->clickRepositionIcon(item);
    EXPECT_EQ(browser->reposition().selected(), 0);
  }
}

TEST_F(HostileBrowsing, TheDirectorysSizeCountsNotTheImages) {
  file.entries[1].width = file.entries[1].height = 16;
  EXPECT_TRUE(lists(build(file), 3));
  browser->clickIcon(1);
  EXPECT_EQ(browser->picIconInFile().width(), 16);
}

TEST_F(HostileBrowsing, DepthsWithoutRowFormatCannotBeShown) {
  file.entries = {anyEntry(32, 4), entryOf(anyPicture(16, 8), 0, 2), entryOf(anyPicture(16, 8), 0, 3),
                  entryOf(anyPicture(16, 8), 0, 7)};
  const Bytes bytes = build(file);
  EXPECT_TRUE(lists(bytes, 4));
  for (int item = 1; item < 4; ++item) {
    expectNotShown(item + 1);
    browser->clickIcon(item);
    EXPECT_EQ(browser->selectedIcon(), 0);
    EXPECT_TRUE(previews(bytes, 0));
  }
}

// Offsets.

TEST_F(HostileBrowsing, OffsetsPastTheEndUnload) {
  for (const std::uint32_t offset : {0x10000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    file.entries[1].offset = offset;
    EXPECT_TRUE(unloadsAtOnce(build(file))) << offset;
  }
}

TEST_F(HostileBrowsing, SizesPastTheEndUnload) {
  for (const std::uint32_t size : {0x10000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    file.entries[0].bytesInRes = size;
    EXPECT_TRUE(unloadsAtOnce(build(file))) << size;
  }
}

TEST_F(HostileBrowsing, TheLastImageMayEndWithTheFileAndNotOneByteLater) {
  const auto size = static_cast<std::uint32_t>(file.entries[2].image.size());
  file.entries[2].bytesInRes = size + 1;
  EXPECT_TRUE(unloadsAtOnce(build(file)));
  file.entries[2].bytesInRes = size;
  EXPECT_TRUE(lists(build(file), 3));
}

TEST_F(HostileBrowsing, SizesOf0AndTooSmallAreListedAndShown) {
  const Bytes honest = build(file);
  for (const std::uint32_t size : {0u, 1u, 39u}) {
    for (Entry& entry : file.entries) entry.bytesInRes = size;
    EXPECT_TRUE(lists(build(file), 3)) << size;
    EXPECT_TRUE(previews(honest, 1)) << size;
  }
}

TEST_F(HostileBrowsing, EntriesMayShareTheirImageOrOverlap) {
  const Bytes honest = build(file);
  const std::uint32_t second = parseIconDirectory(honest).entry(1).imageOffset;
  file.entries.push_back(file.entries[1]);
  file.entries[3].offset = second + 16;  // the directory has one more entry
  const Bytes bytes = build(file);
  EXPECT_TRUE(lists(bytes, 4));
  browser->clickIcon(3);
  EXPECT_TRUE(previews(honest, 1));
  file.entries[3].offset = second;  // 16 bytes earlier: inside the first image
  EXPECT_TRUE(lists(build(file), 4));
  browser->clickIcon(3);
  EXPECT_EQ(browser->selectedIcon(), 3);
}

TEST_F(HostileBrowsing, AnImageInsideTheDirectoryIsShownAsWhatItReadsAs) {
  file.entries[1].offset = 0;
  EXPECT_TRUE(lists(build(file), 3));
  browser->clickIcon(1);
  EXPECT_EQ(browser->selectedIcon(), 1);
}

TEST_F(HostileBrowsing, TheFileOfOverlappingImagesIsWrittenWithAllOfThem) {
  file.entries = {anyEntry(16, 4), anyEntry(16, 8), anyEntry(24, 4)};
  const std::uint32_t first = 6 + 3 * 16;
  file.entries[0].offset = file.entries[2].offset = first;
  file.entries[2].bytesInRes = static_cast<std::uint32_t>(file.entries[0].image.size());
  EXPECT_TRUE(lists(build(file), 3));
  browser->clickIcon(1);
  boxes.expectAsked("Permanently remove the selected icon from the multi-icon file.\n" + path +
                        "\n\nSure to remove this icon permanently?\n\n",
                    BoxAnswer::Yes);
  browser->cmdRemove();
  Entry last = anyEntry(24, 4);
  last.image = anyEntry(16, 4).image;
  EXPECT_EQ(bytesOf(path), build(iconFile({anyEntry(16, 4), last})));
}

// Images.

TEST_F(HostileBrowsing, LiesOfBitmapHeadersChangeNoPreview) {
  const Bytes honest = build(anyEntry(32, 8));
  for (const auto& lie : std::vector<std::function<void(Picture&)>>{
           [](Picture& p) { p.headerHeight = 32; }, [](Picture& p) { p.headerHeight = 0; },
           [](Picture& p) { p.headerHeight = -64; }, [](Picture& p) { p.headerWidth = 0x7FFFFFFF; },
           [](Picture& p) { p.colorsUsed = 0xFFFFFFFF; }, [](Picture& p) { p.compression = 3; },
           [](Picture& p) { p.headerSize = 124; }, [](Picture& p) { p.headerBits = 32; }}) {
    Picture p = anyPicture(32, 8);
    lie(p);
    EXPECT_TRUE(lists(build(entryOf(p)), 1));
    EXPECT_TRUE(previews(honest, 0));
  }
}

TEST_F(HostileBrowsing, PngImagesOfAnySizeCannotBeShown) {
  file.entries = {anyEntry(32, 4), pngEntry(16), pngEntry(24), pngEntry(48)};
  EXPECT_TRUE(lists(build(file), 4));
  for (int item = 1; item < 4; ++item) {
    expectNotShown(item + 1);
    browser->clickIcon(item);
  }
  EXPECT_EQ(browser->selectedIcon(), 0);
}

TEST_F(HostileBrowsing, ATruncatedLastImageUnloadsAndASizeThatFitsIsShownWithoutItsMask) {
  Entry entry = anyEntry(16, 8);
  entry.image.resize(entry.image.size() - 16 * 4);  // the Mask
  EXPECT_TRUE(lists(build(entry), 1));
  EXPECT_EQ(browser->selectedIcon(), 0);
  const Color topLeft = decode(build(anyEntry(16, 8))).image.GetPixel(0, 0);
  EXPECT_EQ(browser->picIconInFile().GetPixel(0, 0), topLeft);
}

TEST_F(HostileBrowsing, FilesCutAnywhereUnloadAndStayAsTheyWere) {
  file.entries = {anyEntry(16, 4), anyEntry(16, 1)};
  const Bytes whole = build(file);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    ASSERT_TRUE(unloadsAtOnce(cut)) << size;
  }
  EXPECT_TRUE(lists(whole, 2));
}

// The same with sizes for which every truncated file is readable.
TEST_F(HostileBrowsing, ImagesCutAnywhereAreShown) {
  const Bytes whole = build(anyEntry(16, 4));
  for (std::size_t size = 22; size < whole.size(); ++size) {
    Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    for (std::size_t at = 14; at < 18; ++at) cut[at] = 0;
    ASSERT_TRUE(lists(cut, 1)) << size;
    ASSERT_EQ(browser->selectedIcon(), 0) << size;
    ASSERT_EQ(bytesOf(path), cut);
  }
}

// Many entries.

TEST_F(HostileBrowsing, AFileOf65535EntriesWithOneImageCostsNoMoreThanItsSizeAnd64MB) {
  constexpr int kEntries = 65535;
  constexpr std::size_t kImageRoom = 4 << 20, kAllowance = 64 * kMegabyte;
  Bytes bytes{0, 0, 1, 0, 0xFF, 0xFF};
  bytes.reserve(6 + 16 * kEntries + kImageRoom);
  for (int i = 0; i < kEntries; ++i) {
    append(bytes, {32, 32, 0, 0, 1, 0, 8, 0});
    put32(bytes, kImageRoom);
    put32(bytes, 6 + 16 * kEntries);
  }
  append(bytes, anyEntry(32, 8).image);
  bytes.resize(6 + 16 * kEntries + kImageRoom);
  path = folder.write("tools.ico", bytes);
  exchange.gMultiIconFile = path;
  const std::size_t size = std::exchange(bytes, {}).size();

  restartPeakMemory();
  const std::size_t before = peakMemory();
  show();
  EXPECT_LE(peakMemory(), before + size + kAllowance);
  EXPECT_EQ(browser->lisIcons().size(), std::size_t{kEntries});
  EXPECT_EQ(browser->lisIcons().back(), "Ref 65535  \t8 BPP\t256-Color\t   32 x  32");
  EXPECT_EQ(browser->selectedIcon(), 98) << "the last one that can be selected";
  EXPECT_EQ(browser->picIconInFile().width(), 32);
}

// 99 images of 4 MB that are the same bytes: separate copies would exceed the limit on file sizes.
TEST_F(HostileBrowsing, OverlappingImagesThatWouldFillMoreThanAFileMayHaveAreNotWritten) {
  constexpr std::uint32_t kImageRoom = 4 << 20;
  std::vector<Entry> entries(99, anyEntry(16, 4));
  for (Entry& entry : entries) {
    entry.offset = 6 + 16 * 99;
    entry.bytesInRes = kImageRoom;
  }
  entries.back().image.resize(kImageRoom);
  const Bytes bytes = build(iconFile(entries));
  EXPECT_TRUE(lists(bytes, 99));
  boxes.expectAsked("Permanently remove the selected icon from the multi-icon file.\n" + path +
                        "\n\nSure to remove this icon permanently?\n\n",
                    BoxAnswer::Yes);
  boxes.expectTold("Failed to update the file for this icon.", BoxIcon::None);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), bytes);
  EXPECT_EQ(browser->lisIcons().size(), 99u);
}

}  // namespace
}  // namespace gp::test

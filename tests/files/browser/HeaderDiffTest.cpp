#include "document/CurrentIcon.h"
#include "files/FilesFixture.h"
#include "files/browser/HeaderDiff.h"
#include "support/FullDisk.h"

#include <filesystem>
#include <memory>

namespace gp::test {
namespace {

constexpr const char* kNoIcon = "No icon retrieved.";
constexpr const char* kSalvaged = "\n\n(per bitmap header entry, irrespective of actual color depth)\n\n";
constexpr int kFirstImage = 6 + 16;

// Offsets in a directory entry.
constexpr std::size_t kWidthAt = 0, kHeightAt = 1, kColorsAt = 2, kBitsAt = 6, kBytesAt = 8, kOffsetAt = 12;

std::uint8_t entryByte(const Bytes& file, std::size_t entry, std::size_t at) { return file.at(6 + 16 * entry + at); }

Entry pngEntry(int size) {
  Entry entry;
  entry.width = entry.height = size;
  entry.bitCount = 32;
  entry.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0, 0, 16};
  return entry;
}

// An image of 256 colours whose directory states 16, with a correct header.
Entry lyingEntry() { return entryOf(anyPicture(32, 8), 16, 4); }

class HeaderDiffTest : public FilesTest {
 protected:
  std::string path;
  std::unique_ptr<HeaderDiff> diff;
  int changes = 0;

  void open(const Bytes& file, const std::string& name = "lies.ico") { show(folder.write(name, file)); }
  void open(const std::vector<Entry>& entries) { open(build(IcoFile{entries, 0, 1, {}})); }
  void show(const std::string& file) {
    path = file;
    exchange.gMultiIconFile = path;
    diff = std::make_unique<HeaderDiff>(files.context());
    changes = 0;
    display.onChanged = [this](DisplayPart part) { changes += part == DisplayPart::ModalForm; };
    diff->activate();
  }
  // All dialogs of a successful salvage; returns the bytes written.
  Bytes salvageTo(const std::string& target, bool isThere) {
    dialogs.paths = {target};
    boxes.expectAsked(
        isThere ? target + " already in existence.\n\nOverwrite?\n" : "Salvage to \n\n" + target + "\nProceed?",
        BoxAnswer::Yes);
    boxes.expectTold("File salvaged to " + target + kSalvaged, BoxIcon::None);
    display.announced.clear();
    diff->cmdSalvage();
    EXPECT_EQ(display.announced, std::vector<std::string>{"Salvaged"});
    return bytesOf(target);
  }
  Bytes salvage() { return salvageTo(folder.path("out.ico"), false); }
  std::vector<std::string> texts() const {
    const EnquiryTable& t = diff->table();
    return {t.lblIDEColor, t.lblIDEBPP, t.lblBIHColor, t.lblBIHBPP, t.lblActualColor, t.lblActualBPP};
  }
};

using Texts = std::vector<std::string>;

// Listing and selection.

TEST_F(HeaderDiffTest, EveryEntryStandsInTheOneListByTheDirectory) {
  Entry wide = entryOf(anyPicture(24, 4));
  wide.width = 64;
  open({entryOf(anyPicture(16, 1)), wide, entryOf(anyPicture(32, 8)), entryOf(anyPicture(48, 32))});
  EXPECT_EQ(diff->lisIcons(), (Texts{"1\t1-BPP\t2-Color\t16 x 16", "2\t4-BPP\t16-Color\t64 x 24",
                                     "3\t8-BPP\t256-Color\t32 x 32", "4\t32-BPP\tTrue-Color\t48 x 48"}));
  EXPECT_EQ(diff->file(), path);
  EXPECT_EQ(diff->base(), HeaderBase::Icon);
  EXPECT_EQ(changes, 1);
}

TEST_F(HeaderDiffTest, ByTheBitmapHeaderItListsWhatTheHeadersTell) {
  Picture lying = anyPicture(32, 8);
  lying.headerHeight = 60;
  lying.headerWidth = 31;
  open({entryOf(lying, 0, 4), pngEntry(16)});
  EXPECT_EQ(diff->lisIcons(), (Texts{"1\t4-BPP\t16-Color\t32 x 32", "2\t32-BPP\tTrue-Color\t16 x 16"}));
  diff->setBase(HeaderBase::Bitmap);
  EXPECT_EQ(diff->lisIcons(), (Texts{"1\t8-BPP\t256-Color\t31 x 30", "2\t32-BPP\tTrue-Color\t16 x 16"}))
      << "a PNG picture has no bitmap header to go by";
  EXPECT_EQ(changes, 2);
}

TEST_F(HeaderDiffTest, TheFirst32x32EntryIsSelectedAndALaterOneOfEightBitsDisplacesIt) {
  open({entryOf(anyPicture(16, 8)), entryOf(anyPicture(32, 4)), entryOf(anyPicture(32, 24))});
  EXPECT_EQ(diff->selectedIcon(), 1);
  open({entryOf(anyPicture(32, 4)), entryOf(anyPicture(32, 24)), entryOf(anyPicture(32, 8)),
        entryOf(anyPicture(32, 1))});
  EXPECT_EQ(diff->selectedIcon(), 2);
  open({entryOf(anyPicture(32, 4)), entryOf(anyPicture(32, 24))});
  EXPECT_EQ(diff->selectedIcon(), 0);
  open({entryOf(anyPicture(16, 4)), entryOf(anyPicture(48, 24))});
  EXPECT_EQ(diff->selectedIcon(), 0);
}

TEST_F(HeaderDiffTest, TheAlphaValuesOfTheCurrentIconStandWhileTheFormIsOpenAndAfterwards) {
  given(entryOf(anyPicture(32, 32)), "current.ico");
  const AlphaMatrix alpha = currentIcon(state).alpha;
  ASSERT_TRUE(alpha.isOfSize(32));
  Picture other = anyPicture(32, 32);
  other.color = [](int x, int y) { return Rgb{x, y, 0, 77}; };
  open({entryOf(other), entryOf(anyPicture(48, 32)), entryOf(anyPicture(16, 4))});
  for (const HeaderBase base : {HeaderBase::Icon, HeaderBase::Bitmap}) {
    diff->setBase(base);
    for (int item = 0; item < 3; ++item) {
      diff->clickIcon(item);
      EXPECT_EQ(diff->selectedIcon(), item);
      EXPECT_EQ(currentIcon(state).alpha, alpha) << item;
    }
  }
  salvage();
  diff.reset();
  EXPECT_EQ(currentIcon(state).alpha, alpha);
  EXPECT_EQ(state.mAlphaRecs[0], alpha);
}

TEST_F(HeaderDiffTest, RefsAbove99AreSelectedAsTheyAre) {
  std::vector<Entry> entries(120, entryOf(anyPicture(16, 1)));
  entries[104] = entryOf(anyPicture(24, 4));
  open(entries);
  diff->clickIcon(104);
  EXPECT_EQ(diff->selectedIcon(), 104);
  EXPECT_EQ(diff->picIconInFile().width(), 24);
}

TEST_F(HeaderDiffTest, ThePreviewIsTheIconOnTheGroundWithoutAlpha) {
  const Bytes file = build(entryOf(anyPicture(32, 32)));
  open(file);
  const Decoded d = decode(file);
  const Surface& shown = diff->picIconInFile();
  ASSERT_EQ(shown.width(), 32);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x)
      ASSERT_EQ(shown.GetPixel(x, y), ((kGround & d.mask.GetPixel(x, y)) ^ d.image.GetPixel(x, y)));
}

TEST_F(HeaderDiffTest, AnImageWhoseDirectoryLiesIsShownForWhatItIs) {
  const Picture truth = anyPicture(32, 8);
  Entry lying = entryOf(truth, 16, 4);
  lying.width = 16;
  open({lying});
  EXPECT_EQ(diff->picIconInFile().width(), 16);
  diff->setBase(HeaderBase::Bitmap);
  const Decoded d = decode(build(entryOf(truth)));
  const Surface& shown = diff->picIconInFile();
  ASSERT_EQ(shown.width(), 32);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x)
      ASSERT_EQ(shown.GetPixel(x, y), ((kGround & d.mask.GetPixel(x, y)) ^ d.image.GetPixel(x, y)));
}

TEST_F(HeaderDiffTest, LargePreviewsAndOnesThatAreNotSquareAreShown) {
  Picture wide = anyPicture(255, 8);
  wide.height = 17;
  open({entryOf(wide)});
  EXPECT_EQ(diff->picIconInFile().width(), 255);
  EXPECT_EQ(diff->picIconInFile().height(), 17);
}

TEST_F(HeaderDiffTest, AnEntryThatCannotBeShownIsReportedAndTheOneBeforeComesBack) {
  open({entryOf(anyPicture(32, 4)), pngEntry(16)});
  const Texts before = texts();
  boxes.expectTold("Ref 2\nUnable to get this one", BoxIcon::None);
  diff->clickIcon(1);
  EXPECT_EQ(diff->selectedIcon(), 0);
  EXPECT_EQ(texts(), before);
  EXPECT_EQ(diff->picIconInFile().width(), 32);
  EXPECT_FALSE(state.screen.hourglass);
  EXPECT_EQ(changes, 2) << "the form shows the earlier selection again";
}

TEST_F(HeaderDiffTest, WhenTheFirstOneCannotBeShownNoneIsSelected) {
  boxes.expectTold("Ref 1\nUnable to get this one", BoxIcon::None);
  open({pngEntry(32), entryOf(anyPicture(16, 4))});
  EXPECT_EQ(diff->selectedIcon(), -1);
  EXPECT_EQ(texts(), Texts(6));
  EXPECT_EQ(diff->picIconInFile().width(), 0);
  EXPECT_FALSE(diff->canSalvage());
  diff->cmdSalvage();
  diff->clickIcon(1);
  EXPECT_EQ(diff->selectedIcon(), 1);
  EXPECT_TRUE(diff->canSalvage());
}

TEST_F(HeaderDiffTest, WhatIsNoIconFileHasNothingToShow) {
  boxes.expectTold(kNoIcon, BoxIcon::None);
  open(Bytes{'t', 'e', 'x', 't'});
  EXPECT_TRUE(diff->lisIcons().empty());
  EXPECT_EQ(diff->selectedIcon(), -1);
  EXPECT_FALSE(diff->canSalvage());
  diff->clickIcon(0);
  diff->clickIcon(-1);
  diff->cmdSalvage();
  boxes.expectTold(kNoIcon, BoxIcon::None);
  show(folder.path("missing.ico"));
}

TEST_F(HeaderDiffTest, AnotherBaseReadsTheFileAgain) {
  open({entryOf(anyPicture(16, 4))});
  folder.write("lies.ico", build(IcoFile{{entryOf(anyPicture(24, 4)), entryOf(anyPicture(32, 8))}, 0, 1, {}}));
  diff->setBase(HeaderBase::Icon);
  EXPECT_EQ(diff->lisIcons().size(), 1U) << "no other base, nothing to do";
  diff->setBase(HeaderBase::Bitmap);
  EXPECT_EQ(diff->lisIcons().size(), 2U);
  EXPECT_EQ(diff->selectedIcon(), 1);
  std::filesystem::remove(path);
  boxes.expectTold(kNoIcon, BoxIcon::None);
  diff->setBase(HeaderBase::Icon);
  EXPECT_TRUE(diff->lisIcons().empty());
  EXPECT_EQ(texts(), Texts(6));
}

// The table.

TEST_F(HeaderDiffTest, ATruthfulPaletteIconAgreesInAllRows) {
  Picture picture = anyPicture(32, 8);
  picture.index = [](int x, int y) { return (x * 7 + y * 13) % 200; };
  open({entryOf(picture)});
  EXPECT_EQ(texts(), (Texts{"256", "8", "256", "8", "256", "8"}));
}

TEST_F(HeaderDiffTest, TrueColorIsTrueByBitsOfTheHeader) {
  open({entryOf(anyPicture(32, 24))});
  EXPECT_EQ(texts(), (Texts{"True", "24", "True", "24", "True", "24"}));
  open({entryOf(anyPicture(32, 32))});
  EXPECT_EQ(texts(), (Texts{"True", "32", "True", "32", "True", "32"}));
}

TEST_F(HeaderDiffTest, BitsThatDoNotFitTheColorsAreDoubted) {
  const Picture eight = anyPicture(32, 8);
  struct Row {
    int colorCount, bits;
    const char *color, *text;
  };
  for (const Row& row : {Row{16, 8, "16", "8   (?)"}, Row{0, 0, "256", "0   (?)"}, Row{2, 4, "2", "4   (?)"},
                         Row{255, 24, "16", "24   (?)"}, Row{0, 8, "256", "8"}, Row{16, 4, "16", "4"},
                         Row{2, 1, "2", "1"}, Row{0, 24, "True", "24"}, Row{0, 16, "True", "16"}}) {
    open({entryOf(eight, row.colorCount, row.bits)});
    EXPECT_EQ(diff->table().lblIDEColor, row.color);
    EXPECT_EQ(diff->table().lblIDEBPP, row.text);
  }
}

TEST_F(HeaderDiffTest, ColorsPerBitmapHeaderFollowTheDirectorysCountFirst) {
  open({lyingEntry()});
  EXPECT_EQ(diff->table().lblBIHColor, "16");
  EXPECT_EQ(diff->table().lblBIHBPP, "8");
}

TEST_F(HeaderDiffTest, ActualColorsAreMeasuredOnThePicture) {
  Picture black = anyPicture(32, 24);
  black.color = [](int, int) { return Rgb{}; };
  open({entryOf(black)});
  EXPECT_EQ(texts(), (Texts{"True", "24", "True", "24", "2", "1"}));
  black.color = [](int x, int) { return x % 2 ? Rgb{255, 0, 0} : Rgb{0, 0, 128}; };
  open({entryOf(black)});
  EXPECT_EQ(texts(), (Texts{"True", "24", "True", "24", "16", "4"}));
}

TEST_F(HeaderDiffTest, AnAlphaImageOfFewColorsIsTrueColorAllTheSame) {
  Picture red = anyPicture(32, 32);
  red.color = [](int x, int y) { return Rgb{255, 0, 0, x == 31 && y == 0 ? 1 : 0}; };
  open({entryOf(red)});
  EXPECT_EQ(diff->table().lblActualColor, "True");
  EXPECT_EQ(diff->table().lblActualBPP, "32");
}

TEST_F(HeaderDiffTest, WithoutAnyAlphaByteColorsAreMeasured) {
  Picture red = anyPicture(32, 32);
  red.color = [](int, int) { return Rgb{255, 0, 0, 0}; };
  red.transparent = [](int, int) { return true; };  // the mask after the rows is not alpha
  open({entryOf(red)});
  EXPECT_EQ(diff->table().lblActualColor, "16");
  EXPECT_EQ(diff->table().lblActualBPP, "4");
}

// Salvage.

TEST_F(HeaderDiffTest, A16ColorLieOverEightBitsSalvagesToEightBitsAndKeepsItsColorCount) {
  const Bytes file = build(lyingEntry());
  open(file);
  const Bytes out = salvage();
  Bytes expected = file;
  expected[6 + kBitsAt] = 8;
  EXPECT_EQ(out, expected);
  EXPECT_EQ(entryByte(out, 0, kColorsAt), 16);
  EXPECT_EQ(bytesOf(path), file) << "the source is only read";
}

TEST_F(HeaderDiffTest, AWidthOf129RefusesTheWholeFileWhateverTheHeaderSays) {
  Entry wide = entryOf(anyPicture(16, 4));
  wide.width = 129;
  open({entryOf(anyPicture(32, 8)), wide});
  boxes.expectTold("One or more icons have width or height exceeds 128, cannot save per actual", BoxIcon::Exclamation);
  diff->cmdSalvage();
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(HeaderDiffTest, A256WideImagePassesTheSizeTestByItsZero) {
  Entry big = entryOf(anyPicture(256, 32));
  big.width = big.height = 0;
  open({entryOf(anyPicture(32, 8)), big});
  const Bytes out = salvage();
  EXPECT_EQ(out, bytesOf(path));
}

TEST_F(HeaderDiffTest, AHeightThatIsNotDoubledGivesHalfOfItsByte) {
  Picture single = anyPicture(32, 8);
  single.headerHeight = 32;
  open({entryOf(single)});
  const Bytes out = salvage();
  EXPECT_EQ(entryByte(out, 0, kWidthAt), 32);
  EXPECT_EQ(entryByte(out, 0, kHeightAt), 16);
}

TEST_F(HeaderDiffTest, AnIconWhoseTopRowComesFirstKeepsItsSize) {
  Picture topDown = anyPicture(32, 24);
  topDown.headerHeight = -64;
  open({entryOf(topDown)});
  diff->setBase(HeaderBase::Bitmap);
  EXPECT_EQ(diff->lisIcons(), (Texts{"1\t24-BPP\tTrue-Color\t32 x 32"}));
  EXPECT_EQ(salvage(), bytesOf(path));
}

TEST_F(HeaderDiffTest, SalvagingOverTheSourceAsksAndReplacesIt) {
  Bytes expected = build(lyingEntry());
  open(expected);
  expected[6 + kBitsAt] = 8;
  EXPECT_EQ(salvageTo(path, true), expected);
  EXPECT_EQ(diff->lisIcons(), Texts{"1\t8-BPP\t16-Color\t32 x 32"}) << "the form shows the file as it is now";
  EXPECT_EQ(diff->selectedIcon(), 0);
}

TEST_F(HeaderDiffTest, SalvagingOverTheSourceByAnotherNameShowsItAsItIsNow) {
  open(build(lyingEntry()));
  const std::string link = folder.path("link.ico");
  std::filesystem::create_symlink(path, link);
  salvageTo(link, true);
  EXPECT_EQ(diff->lisIcons(), Texts{"1\t8-BPP\t16-Color\t32 x 32"});
}

TEST_F(HeaderDiffTest, OverwritingTheSourceKeepsTheSelection) {
  open({entryOf(anyPicture(32, 8)), lyingEntry(), entryOf(anyPicture(16, 4))});
  diff->clickIcon(2);
  salvageTo(path, true);
  EXPECT_EQ(diff->selectedIcon(), 2);
  EXPECT_EQ(diff->picIconInFile().width(), 16);
}

TEST_F(HeaderDiffTest, TheDialogProposesANameAndLeavesTheQuestionToTheForm) {
  open(build(lyingEntry()), "tools.v2.ico");
  dialogs.paths = {""};
  diff->cmdSalvage();
  ASSERT_EQ(dialogs.requests.size(), 1U);
  const FileDialogRequest& request = dialogs.requests[0];
  EXPECT_EQ(request.fileName, "tools.v2_X.ico");
  EXPECT_EQ(request.filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}}));
  EXPECT_EQ(request.defaultExtension, "ico");
  EXPECT_EQ(request.flags & kFileOverwritePrompt, 0U);
}

TEST_F(HeaderDiffTest, NoLeavesExistingFilesAndMakesNoNewOnes) {
  open({lyingEntry()});
  const std::string fresh = folder.path("new.ico");
  dialogs.paths = {path, fresh};
  boxes.expectAsked(path + " already in existence.\n\nOverwrite?\n", BoxAnswer::No);
  const Bytes before = bytesOf(path);
  diff->cmdSalvage();
  EXPECT_EQ(bytesOf(path), before);
  boxes.expectAsked("Salvage to \n\n" + fresh + "\nProceed?", BoxAnswer::No);
  diff->cmdSalvage();
  EXPECT_FALSE(std::filesystem::exists(fresh));
}

TEST_F(HeaderDiffTest, AFileOfAnotherContainerIsNotWrittenOverWithoutAQuestion) {
  open({lyingEntry()});
  const std::string held = folder.write("held.ico", {1, 2, 3});
  state.mIconRecs[0].path = path;  // the current container, whose file is salvaged
  state.mIconRecs[1].path = held;
  dialogs.paths = {held};
  boxes.expectAsked(held + " already in existence.\n\nOverwrite?\n", BoxAnswer::Yes);
  boxes.expectAsked("Container 2 holds an icon of this file.\nProceed?", BoxAnswer::No);
  diff->cmdSalvage();
  EXPECT_EQ(bytesOf(held), (Bytes{1, 2, 3}));
  salvageTo(path, true);
}

TEST_F(HeaderDiffTest, AFileThatCannotBeCreatedIsReported) {
  open({lyingEntry()});
  const std::string target = folder.path("no folder/out.ico");
  dialogs.paths = {target};
  boxes.expectAsked("Salvage to \n\n" + target + "\nProceed?", BoxAnswer::Yes);
  boxes.expectTold("Failed to salvage to " + target, BoxIcon::Exclamation);
  diff->cmdSalvage();
  EXPECT_TRUE(boxes.done());
  const std::string readOnly = folder.write("ro.ico", {1, 2, 3});
  std::filesystem::permissions(readOnly, std::filesystem::perms::owner_read);
  dialogs.paths = {readOnly};
  boxes.expectTold(folder.path("no folder/") + "\nFolder not found.", BoxIcon::Exclamation);
  boxes.expectAsked(readOnly + " already in existence.\n\nOverwrite?\n", BoxAnswer::Yes);
  boxes.expectTold("Failed to salvage to " + readOnly, BoxIcon::Exclamation);
  diff->cmdSalvage();
  EXPECT_EQ(bytesOf(readOnly), (Bytes{1, 2, 3}));
}

TEST_F(HeaderDiffTest, AWriteThatFailsIsReportedAndTheFormerContentStays) {
  open({lyingEntry()});
  const Bytes source = bytesOf(path);
  const Bytes other{1, 2, 3, 4, 5};
  const std::string former = folder.write("former.ico", other), fresh = folder.path("fresh.ico");
  const std::vector<std::pair<std::string, std::string>> questions{
      {path, path + " already in existence.\n\nOverwrite?\n"},
      {former, former + " already in existence.\n\nOverwrite?\n"},
      {fresh, "Salvage to \n\n" + fresh + "\nProceed?"}};
  for (const auto& [target, question] : questions) {
    dialogs.paths = {target};
    boxes.expectAsked(question, BoxAnswer::Yes);
    boxes.expectTold("Error occurred in writing overall header", BoxIcon::None);
    const FullDisk full(10);
    diff->cmdSalvage();
  }
  EXPECT_EQ(bytesOf(path), source);
  EXPECT_EQ(bytesOf(former), other);
  EXPECT_FALSE(std::filesystem::exists(fresh));
}

TEST_F(HeaderDiffTest, PngEntriesStayAsTheyAre) {
  Entry png = pngEntry(48);
  png.bitCount = 31;
  open({lyingEntry(), png});
  const Bytes out = salvage();
  EXPECT_EQ(entryByte(out, 0, kBitsAt), 8);
  EXPECT_EQ(entryByte(out, 1, kWidthAt), 48);
  EXPECT_EQ(entryByte(out, 1, kHeightAt), 48);
  EXPECT_EQ(entryByte(out, 1, kBitsAt), 31);
}

std::uint32_t entryLong(const Bytes& file, std::size_t entry, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) value = value << 8 | entryByte(file, entry, at + i);
  return value;
}

// Each image of a file, located by the directory.
std::vector<Bytes> imagesOf(const Bytes& file) {
  std::vector<Bytes> images;
  for (std::size_t i = 0; i < file.at(4); ++i) {
    const auto from = file.begin() + entryLong(file, i, kOffsetAt);
    images.emplace_back(from, from + entryLong(file, i, kBytesAt));
  }
  return images;
}

TEST_F(HeaderDiffTest, ImagesThatLieScatteredAreLaidOutInDirectoryOrder) {
  Entry first = lyingEntry(), second = entryOf(anyPicture(16, 4)), third = entryOf(anyPicture(24, 24));
  const auto size = [](const Entry& e) { return static_cast<std::uint32_t>(e.image.size()); };
  const std::uint32_t start = 6 + 3 * 16;
  // In the file: third, first, second; the entries have the right offsets.
  IcoFile file{{first, second, third}, 0, 1, {}};
  file.entries[0].offset = start + size(third);
  file.entries[1].offset = start + size(third) + size(first);
  file.entries[2].offset = start;
  Bytes bytes = build(file);
  bytes.resize(start);
  for (const Entry* entry : {&third, &first, &second}) append(bytes, entry->image);
  open(bytes);
  const Bytes out = salvage();
  EXPECT_EQ(imagesOf(out), (std::vector<Bytes>{first.image, second.image, third.image}));
  EXPECT_EQ(entryLong(out, 0, kOffsetAt), start);
  EXPECT_EQ(entryLong(out, 1, kOffsetAt), start + size(first));
  EXPECT_EQ(entryLong(out, 2, kOffsetAt), start + size(first) + size(second));
  EXPECT_EQ(out.size(), start + size(first) + size(second) + size(third));
}

TEST_F(HeaderDiffTest, ImagesThatOverlapGetBytesOfTheirOwn) {
  const Entry icon = lyingEntry();
  IcoFile file{{icon, icon, icon}, 0, 1, {}};
  const std::uint32_t start = 6 + 3 * 16;
  for (std::size_t i = 0; i < 3; ++i) file.entries[i].offset = start;
  file.entries[2].bytesInRes = 100;
  open(build(file));
  const Bytes out = salvage();
  const Bytes cut(icon.image.begin(), icon.image.begin() + 100);
  EXPECT_EQ(imagesOf(out), (std::vector<Bytes>{icon.image, icon.image, cut}));
}

TEST_F(HeaderDiffTest, AnOffsetIntoTheDirectoryIsReadAndWrittenAsItsBytes) {
  Entry inside = entryOf(anyPicture(16, 4));
  inside.offset = 0;
  open({lyingEntry(), inside});
  const Bytes source = bytesOf(path);
  const Bytes image(source.begin(), source.begin() + static_cast<std::ptrdiff_t>(inside.image.size()));
  EXPECT_EQ(imagesOf(salvage())[1], image);
}

TEST_F(HeaderDiffTest, TheReservedWordIsWrittenAsItWas) {
  open(build(IcoFile{{lyingEntry()}, 0x1234, 1, {}}));
  const Bytes out = salvage();
  EXPECT_EQ(out[0], 0x34);
  EXPECT_EQ(out[1], 0x12);
}

TEST_F(HeaderDiffTest, AFileCutAnywhereIsNoIconFile) {
  const Bytes whole = build(entryOf(anyPicture(16, 1)));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    boxes.expectTold(kNoIcon, BoxIcon::None);
    open(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    EXPECT_TRUE(diff->lisIcons().empty()) << size;
  }
}

TEST_F(HeaderDiffTest, ImagesShorterThanTheirHeaderAreListedAndSalvagedWithoutHarm) {
  const Entry icon = entryOf(anyPicture(32, 8));
  for (std::uint32_t size = 0; size <= 40; ++size) {
    Entry cut = icon;
    cut.bytesInRes = size;
    open({cut});
    EXPECT_EQ(diff->selectedIcon(), 0);
    diff->setBase(HeaderBase::Bitmap);
    EXPECT_EQ(diff->lisIcons(), Texts{"1\t8-BPP\t256-Color\t32 x 32"}) << size;
    std::filesystem::remove(folder.path("out.ico"));
    ASSERT_TRUE(diff->canSalvage());
    EXPECT_EQ(salvage().size(), kFirstImage + size);
  }
}

TEST_F(HeaderDiffTest, HostileHeadersEndInTheListOrInTheBox) {
  struct Hostile {
    int width, height, bits;
    bool isShown;  // by the bitmap header
  };
  for (const Hostile& h :
       {Hostile{32, 0, 8, false}, Hostile{0, 64, 8, false}, Hostile{32, 63, 8, true}, Hostile{32, -64, 8, true},
        Hostile{0x7FFFFFFF, 0x7FFFFFFF, 8, true}, Hostile{32, 64, 16, true}, Hostile{32, 64, 65535, true},
        Hostile{32, 64, 2, false}, Hostile{32, 64, 0, true}}) {
    Picture picture = anyPicture(32, 8);
    picture.headerWidth = h.width;
    picture.headerHeight = h.height;
    picture.headerBits = h.bits;
    picture.colorsUsed = 0xFFFFFFFF;
    open({entryOf(picture, 0, 8)});
    EXPECT_EQ(diff->selectedIcon(), 0);
    if (!h.isShown) boxes.expectTold("Ref 1\nUnable to get this one", BoxIcon::None);
    diff->setBase(HeaderBase::Bitmap);
    EXPECT_EQ(diff->selectedIcon(), h.isShown ? 0 : -1);
  }
}

TEST_F(HeaderDiffTest, ReadingLeavesTheFileAndTheCurrentIconAlone) {
  given(entryOf(anyPicture(16, 4)), "current.ico");
  const Surface before = state.picImage;
  const Bytes file = build(IcoFile{{lyingEntry(), entryOf(anyPicture(48, 32))}, 0, 1, {}});
  open(file);
  diff->clickIcon(1);
  diff->setBase(HeaderBase::Bitmap);
  EXPECT_EQ(bytesOf(path), file);
  EXPECT_TRUE(samePixels(state.picImage, before));
  EXPECT_EQ(record().size, 16);
}

}  // namespace
}  // namespace gp::test

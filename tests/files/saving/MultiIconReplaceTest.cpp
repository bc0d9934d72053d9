#include "files/MultiIconReplaceFixture.h"
#include "support/FullDisk.h"

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kReadOnly = "File is read-only.";
constexpr const char* kNotWritten = "Failed to save current icon - at writing stage";
constexpr const char* kNotPrepared = "Failed to save current icon - preparation";
constexpr const char* kNotReopened = "Failed to save current icon - at re-opening original file stage";

TEST_F(MultiIconReplaceTest, AnImageOfTheSameSizeLeavesAllOffsetsAndOtherImages) {
  const std::string path = givenSecond();
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(markedPicture(16, 24, kMark))));
}

TEST_F(MultiIconReplaceTest, ASmallerImageMovesTheLaterOnesDown) {
  IcoFile file = three;
  file.entries[1] = entryOf(anyPicture(16, 8));
  const std::string path = givenEntry(file, 1);
  state.picImage.fill(kWhite);
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(whitePicture(16))));
  EXPECT_EQ(record().dirColors, 2);
  EXPECT_EQ(record().bitCount, 1);
}

TEST_F(MultiIconReplaceTest, ALargerImageMovesTheLaterOnesUp) {
  IcoFile file = three;
  file.entries[1] = entryOf(anyPicture(16, 1));
  const std::string path = givenEntry(file, 1);
  const Picture wanted = anyPicture(16, 24);
  record().dirColors = kTrueColor;
  record().bitCount = 24;
  for (int i = 0; i < 16 * 16; ++i) {
    const Rgb c = wanted.color(i % 16, i / 16);
    state.picImage.SetPixelV(i % 16, i / 16, colorOf(c));
  }
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), build(three));
}

TEST_F(MultiIconReplaceTest, AnIconPaintedAbove256ColorsIsWrittenAndReportedAsTrueColor) {
  const std::string path = givenEntry(three, 2);
  Picture wanted = anyPicture(48, 24);
  wanted.color = [](int x, int y) { return Rgb{x, y, 1}; };
  for (int i = 0; i < 48 * 48; ++i) state.picImage.SetPixelV(i % 48, i / 48, colorOf(wanted.color(i % 48, i / 48)));
  replaceOnto(path, 3);
  IcoFile expected = three;
  expected.entries[2] = entryOf(wanted);
  EXPECT_EQ(bytesOf(path), build(expected));
  EXPECT_EQ(record().dirColors, -1);
  EXPECT_EQ(record().bitCount, 24);
  EXPECT_FALSE(record().isDiscrepant());
}

TEST_F(MultiIconReplaceTest, AResizedIconTellsItsNewSizeInTheEntry) {
  const std::string path = givenEntry(three, 1);
  Picture wanted = anyPicture(24, 24);
  wanted.color = [](int x, int y) { return Rgb{x, y, 200}; };
  wanted.transparent = [](int, int) { return false; };
  record().size = 24;
  rooms.document.editingArea.SizeEditSurfaces(24);
  rooms.document.editingArea.SizePanelSurfaces(24);
  state.picMask.fill(kBlack);
  for (int i = 0; i < 24 * 24; ++i) state.picImage.SetPixelV(i % 24, i / 24, colorOf(wanted.color(i % 24, i / 24)));
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(wanted)));
}

TEST_F(MultiIconReplaceTest, AnIconWithAlphaGoesInWithItsAlpha) {
  IcoFile file = three;
  file.entries[1] = entryOf(anyPicture(16, 32));
  const std::string path = givenEntry(file, 1);
  mark();
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(withSavedAlpha(markedPicture(16, 32, kMark)))));
  EXPECT_TRUE(record().hasAlpha);
  EXPECT_EQ(record().bitCount, 32);
}

TEST_F(MultiIconReplaceTest, ReservedFieldAndPlanesOfTheEntryStay) {
  Bytes bytes = build(three), expected = threeWith(entryOf(markedPicture(16, 24, kMark)));
  for (Bytes* file : {&bytes, &expected}) {
    (*file)[6 + 16 + 3] = 7;
    (*file)[6 + 16 + 4] = 3;
  }
  const std::string path = folder.write("multi.ico", bytes);
  holdEntry(path, three, 1);
  mark();
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), expected);
}

TEST_F(MultiIconReplaceTest, EntriesThatShareOneImageAreToldApartAfterwards) {
  IcoFile file = three;
  file.entries[0] = file.entries[1];
  file.entries[0].bitCount = 0;
  file.entries[1].offset = 6 + 3 * 16;  // the first entry's image
  const std::string path = folder.write("shared.ico", build(file));
  holdEntry(path, three, 1);
  mark();
  replaceOnto(path, 2);
  IcoFile expected = file;
  expected.entries[1] = entryOf(markedPicture(16, 24, kMark));
  EXPECT_EQ(bytesOf(path), build(expected)) << "the entry that nobody picked keeps its image";
}

TEST_F(MultiIconReplaceTest, AnotherNameGetsAllEntriesAndTheOldFileStays) {
  const std::string old = givenSecond(), other = folder.path("other.ico");
  replaceOnto(other, 2);
  EXPECT_EQ(bytesOf(old), build(three));
  EXPECT_EQ(bytesOf(other), threeWith(entryOf(markedPicture(16, 24, kMark))));
  EXPECT_EQ(record().path.trimmed(), other);
  EXPECT_EQ(record().multiIconIndex, 1);
}

TEST_F(MultiIconReplaceTest, AnotherFileThatIsThereIsOverwrittenWhole) {
  givenSecond();
  const std::string other = folder.write("other.ico", Bytes(50000, 'x'));
  replaceOnto(other, 2);
  EXPECT_EQ(bytesOf(other), threeWith(entryOf(markedPicture(16, 24, kMark))));
}

TEST_F(MultiIconReplaceTest, AnotherFileOfAnotherContainerIsRefusedHoweverItIsReached) {
  const std::string old = givenSecond(), other = folder.write("other.ico", build(three));
  fs::create_symlink(other, folder.path("link.ico"));
  state.mIconRecs[3].path = other;
  for (const std::string& path : {other, folder.path("link.ico")}) {
    boxes.expectAsked(question(2), BoxAnswer::Yes);
    boxes.expectTold(openedInPanel("File being saved to", 4), BoxIcon::None);
    dialogs.paths = {path};
    replace();
    EXPECT_EQ(bytesOf(other), build(three));
    EXPECT_EQ(bytesOf(old), build(three));
  }
  EXPECT_EQ(record().path.trimmed(), old);
  EXPECT_TRUE(record().modified);
  EXPECT_EQ(editor.count("AddHistory " + other), 0);
}

TEST_F(MultiIconReplaceTest, TheOriginalFileIsWrittenAlsoWhenAnotherContainerHasAnIconOfIt) {
  const std::string path = givenSecond();
  state.mIconRecs[3].path = path;
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(markedPicture(16, 24, kMark))));
}

TEST_F(MultiIconReplaceTest, TheRecordIsSavedAndTheHistoryKnowsTheFile) {
  const std::string path = givenSecond();
  record().neverSaved = record().modified = true;
  record().bihColors = 256;
  record().bihBitCount = 8;
  state.screen.lblStatusPanel = {"", "*"};
  replaceOnto(path, 2);
  EXPECT_FALSE(record().neverSaved || record().modified || record().isDiscrepant());
  EXPECT_TRUE(record().fromMultiIconFile);
  EXPECT_EQ(state.screen.lblStatusPanel[1], "");
  EXPECT_EQ(state.screen.lblStatusPanel[0], path);
  EXPECT_EQ(editor.count("AddHistory " + path), 1);
  EXPECT_EQ(display.announced, std::vector<std::string>{"Saved"});
}

TEST_F(MultiIconReplaceTest, WhatIsOpenOnTheIconEndsAndItsContainerIsUpToDate) {
  givenSecond();
  leaveOpen();
  boxes.expectAsked(question(2), BoxAnswer::No);
  replace();
  expectNothingOpen();
}

TEST_F(MultiIconReplaceTest, TheDialogOffersTheFilesNameInItsFolder) {
  const std::string path = givenSecond();
  state.process.mLastFolder = "/somewhere";
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  dialogs.paths = {""};
  replace();
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].fileName, "multi.ico");
  EXPECT_EQ(dialogs.requests[0].folder, folder.folder() + "/");
  EXPECT_EQ(dialogs.requests[0].defaultExtension, "ico");
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}, {"(*.*)", "*.*"}}));
  EXPECT_EQ(bytesOf(path), build(three));
  EXPECT_TRUE(record().modified);
}

// The dialog adds an extension to a name that its filter does not list, and to one without any.
TEST_F(MultiIconReplaceTest, TheDialogOffersTheNameAsItIsAndAddsNothingToIt) {
  using Filters = std::vector<FileFilter>;
  const FileFilter iconFiles{"Icon files (*.ico)", "*.ico"}, allFiles{"(*.*)", "*.*"};
  struct Case {
    const char* name;
    Filters filters;
    const char* extension;
  };
  for (const Case& c : {Case{"MULTI.ICO", {iconFiles, allFiles}, "ico"}, Case{"a.b.Ico", {iconFiles, allFiles}, "ico"},
                        Case{"multi.dat", {allFiles, iconFiles}, "ico"}, Case{"multi", {allFiles, iconFiles}, ""}}) {
    givenEntry(three, 1, c.name);
    boxes.expectAsked(question(2), BoxAnswer::Yes);
    dialogs.paths = {""};
    replace();
    EXPECT_EQ(dialogs.requests.back().fileName, c.name);
    EXPECT_EQ(dialogs.requests.back().filters, c.filters) << c.name;
    EXPECT_EQ(dialogs.requests.back().defaultExtension, c.extension) << c.name;
  }
}

TEST_F(MultiIconReplaceTest, NoEndsBeforeAnyDialog) {
  const std::string path = givenSecond();
  boxes.expectAsked(question(2), BoxAnswer::No);
  replace();
  EXPECT_TRUE(dialogs.requests.empty());
  EXPECT_EQ(bytesOf(path), build(three));
}

TEST_F(MultiIconReplaceTest, AFileThatIsGoneIsReported) {
  const std::string path = givenSecond();
  fs::remove(path);
  expectFailure(path + "\nfile can no longer be found!");
  replace();
}

TEST_F(MultiIconReplaceTest, AFileThatIsNoIconFileAnyMoreIsReported) {
  const std::string path = givenSecond();
  Bytes reserved = build(three);
  reserved[0] = 1;
  Bytes cut = build(three);
  cut.pop_back();
  for (const Bytes& bytes : {reserved, cut, Bytes{'t', 'e', 'x', 't'}}) {
    folder.write("multi.ico", bytes);
    boxes.expectAsked(question(2), BoxAnswer::Yes);
    expectFailure("Failed to save current icon - at reading preparation stage");
    replace();
    EXPECT_EQ(bytesOf(path), bytes);
  }
}

TEST_F(MultiIconReplaceTest, Ref3WithSizeAndColorsOfRef5IsRefusedWithItsOwnItIsNot) {
  Picture third = anyPicture(32, 8);
  third.index = [](int x, int y) {
    return (x * 7 + y * 13) % 100;
  };  // a number of colours that always fits into a palette
  const IcoFile five = fileOf({entryOf(anyPicture(16, 4)), entryOf(anyPicture(16, 8)), entryOf(third),
                               entryOf(anyPicture(48, 4)), entryOf(anyPicture(32, 24))});
  const std::string path = givenEntry(five, 2);
  record().dirColors = kTrueColor;
  record().bitCount = 24;
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  boxes.expectTold(sameIcon("True Color 24 BPP 32 x 32"), BoxIcon::None);
  replace();
  EXPECT_TRUE(dialogs.requests.empty());
  EXPECT_EQ(bytesOf(path), build(five));
  holdEntry(path, five, 2);
  const Surface image = state.picImage;
  replaceOnto(path, 3);
  EXPECT_FALSE(record().modified);
  EXPECT_TRUE(samePixels(decode(bytesOf(path), 2).image, image));
  EXPECT_EQ(bytesOf(path)[6 + 2 * 16 + 6], 8);
}

TEST_F(MultiIconReplaceTest, TheRefusalNamesThePaletteByItsColors) {
  const IcoFile file = fileOf({entryOf(anyPicture(16, 1)), entryOf(anyPicture(16, 8))});
  givenEntry(file, 1);
  state.picImage.fill(kWhite);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(sameIcon("2-color 16 x 16"), BoxIcon::None);
  replace();
}

TEST_F(MultiIconReplaceTest, AnEntryWithoutBitCountIsNeverTheSame) {
  IcoFile file = three;
  file.entries[0] = entryOf(anyPicture(16, 24), 0, 0);
  const std::string path = givenEntry(file, 1);
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), build(file));
}

TEST_F(MultiIconReplaceTest, AFileThatLostTheEntryIsReportedAsChangedUnlessAnotherIsTheSame) {
  const std::string path = givenEntry(three, 2);
  folder.write("multi.ico", build(fileOf({three.entries[0], three.entries[1]})));
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  boxes.expectTold(kChanged, BoxIcon::None);
  replace();
  record().dirColors = kTrueColor;
  record().bitCount = 24;
  folder.write("multi.ico", build(fileOf({entryOf(anyPicture(48, 24))})));
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  boxes.expectTold(sameIcon("True Color 24 BPP 48 x 48"), BoxIcon::None);
  replace();
}

TEST_F(MultiIconReplaceTest, AFileThatGoesWhileTheNameIsAskedForIsReported) {
  const std::string path = givenSecond();
  dialogs.inside = [&] { fs::remove(path); };
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotReopened);
  dialogs.paths = {path};
  replace();
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(MultiIconReplaceTest, AReadOnlyFileIsReportedWithAFullStop) {
  const std::string path = givenSecond();
  fs::permissions(path, fs::perms::owner_read);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kReadOnly);
  dialogs.paths = {path};
  replace();
  EXPECT_EQ(bytesOf(path), build(three));
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconReplaceTest, AFileThatTurnsReadOnlyBetweenReadingAndWritingStays) {
  const std::string path = givenSecond();
  dialogs.inside = [&] { fs::permissions(path, fs::perms::owner_read); };
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kReadOnly);
  dialogs.paths = {path};
  replace();
  EXPECT_EQ(bytesOf(path), build(three));
}

TEST_F(MultiIconReplaceTest, AFolderThatIsNotThereFailsInWriting) {
  const std::string path = givenSecond();
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotWritten);
  dialogs.paths = {folder.path("no/such.ico")};
  replace();
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_TRUE(record().modified);
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(MultiIconReplaceTest, AStaleScratchFileIsReplacedEvenIfItIsReadOnly) {
  const std::string path = givenSecond();
  folder.write("gptmp.ico", {'o', 'l', 'd'});
  fs::permissions(scratch, fs::perms::owner_read);
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(markedPicture(16, 24, kMark))));
}

TEST_F(MultiIconReplaceTest, AScratchFileThatIsALinkCostsItsFileNothing) {
  const std::string path = givenSecond(), precious = folder.write("precious", {'p'});
  fs::create_symlink(precious, scratch);
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(precious), Bytes{'p'});
}

TEST_F(MultiIconReplaceTest, WhereNoScratchFileCanBeMadeThePreparationFails) {
  const std::string path = givenSecond();
  MultiIconCommands elsewhere{files.context(), folder.path("no/gptmp.ico")};
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotPrepared);
  dialogs.paths = {path};
  elsewhere.doMnuFileSaveMultiIconReplace();
  EXPECT_EQ(bytesOf(path), build(three));
}

TEST_F(MultiIconReplaceTest, AnIconFromTheScratchFileItselfIsNotLost) {
  const std::string path = folder.write("gptmp.ico", build(three));
  holdEntry(path, three, 1);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotPrepared);
  dialogs.paths = {folder.path("other.ico")};
  replace();
  EXPECT_EQ(bytesOf(path), build(three));
  fs::remove(path);
}

// Larger than any scratch file, so that only the last step runs out of space.
IcoFile largeFile() {
  return fileOf({entryOf(anyPicture(48, 32)), entryOf(anyPicture(48, 1)), entryOf(anyPicture(32, 32)),
                 entryOf(anyPicture(32, 24)), entryOf(anyPicture(24, 24))});
}

TEST_F(MultiIconReplaceTest, OnAFullDiskTheOldFileStaysWhole) {
  const std::string disk = folder.path("disk");
  fs::create_directory(disk);
  const SmallDisk mounted(disk);
  if (!mounted.isMounted()) GTEST_SKIP() << "only root can mount a disk";
  const IcoFile file = largeFile();
  const std::string path = folder.write("disk/m.ico", build(file));
  ASSERT_EQ(bytesOf(path), build(file));
  holdEntry(path, file, 1);
  record().dirColors = kTrueColor;
  record().bitCount = 24;
  mounted.fillUpTo(0);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotWritten);
  dialogs.paths = {path};
  replace();
  EXPECT_EQ(bytesOf(path), build(file));
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconReplaceTest, WithoutRoomForANewFileNoneIsLeft) {
  const IcoFile file = largeFile();
  const std::string path = givenEntry(file, 1);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotWritten);
  dialogs.paths = {folder.path("other.ico")};
  const FullDisk full(12000);
  replace();
  EXPECT_FALSE(fs::exists(folder.path("other.ico")));
  EXPECT_EQ(bytesOf(path), build(file));
}

TEST_F(MultiIconReplaceTest, WithoutRoomAnotherFileThatWasThereStays) {
  givenEntry(largeFile(), 1);
  const std::string other = folder.write("other.ico", {'o', 'l', 'd'});
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotWritten);
  dialogs.paths = {other};
  const FullDisk full(12000);
  replace();
  EXPECT_EQ(bytesOf(other), (Bytes{'o', 'l', 'd'}));
}

TEST_F(MultiIconReplaceTest, WithoutRoomForTheScratchFileThePreparationFails) {
  const std::string path = givenSecond();
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  expectFailure(kNotPrepared);
  dialogs.paths = {path};
  const FullDisk full(100);
  replace();
  EXPECT_EQ(bytesOf(path), build(three));
}

}  // namespace
}  // namespace gp::test

// Replacing an entry of a file that another program has changed since the icon was loaded.
#include "files/MultiIconReplaceFixture.h"
#include "files/browser/MultiIconBrowser.h"

namespace gp::test {
namespace {

// The same file with another picture of the same size and depth in its second entry.
Bytes threeWithOtherSecond(const IcoFile& three) {
  IcoFile changed = three;
  changed.entries[1] = entryOf(markedPicture(16, 24, Rgb{1, 2, 3}));
  return build(changed);
}

TEST_F(MultiIconReplaceTest, AnEntryThatChangesWhileTheNameIsAskedForIsNotReplaced) {
  const std::string path = givenSecond();
  const Bytes changed = threeWithOtherSecond(three);
  dialogs.inside = [&] { folder.write("multi.ico", changed); };
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(kChanged, BoxIcon::None);
  dialogs.paths = {path};
  replace();
  EXPECT_EQ(bytesOf(path), changed);
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconReplaceTest, AnEntryThatChangedSinceItWasLoadedIsNotReplaced) {
  const std::string path = givenSecond();
  const Bytes changed = threeWithOtherSecond(three);
  folder.write("multi.ico", changed);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(kChanged, BoxIcon::None);
  replace();
  EXPECT_EQ(bytesOf(path), changed);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(MultiIconReplaceTest, AnEntryWhoseFieldsChangedSinceItWasLoadedIsNotReplaced) {
  const std::string path = givenSecond();
  Bytes changed = build(three);
  changed[6 + 16 + 3] = 1;  // bReserved
  folder.write("multi.ico", changed);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(kChanged, BoxIcon::None);
  replace();
  EXPECT_EQ(bytesOf(path), changed);
}

TEST_F(MultiIconReplaceTest, AnEntryThatMovedIsReplacedWhereItIsNowAndAddedOnesStay) {
  const std::string path = givenSecond();
  IcoFile moved = three;
  moved.entries.insert(moved.entries.begin(), entryOf(anyPicture(24, 8)));
  folder.write("multi.ico", build(moved));
  replaceOnto(path, 3);
  moved.entries[2] = entryOf(markedPicture(16, 24, kMark));
  EXPECT_EQ(bytesOf(path), build(moved));
  EXPECT_EQ(record().multiIconIndex, 2);
}

TEST_F(MultiIconReplaceTest, AnEntryThatMovesWhileTheNameIsAskedForIsReplacedWhereItIsThen) {
  const std::string path = givenSecond();
  dialogs.inside = [&] { folder.write("multi.ico", build(fileOf({three.entries[1], three.entries[2]}))); };
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), build(fileOf({entryOf(markedPicture(16, 24, kMark)), three.entries[2]})));
  EXPECT_EQ(record().multiIconIndex, 0);
}

TEST_F(MultiIconReplaceTest, AnIconOfTheSameKindThatIsAddedWhileTheNameIsAskedForIsRefused) {
  const std::string path = givenEntry(three, 1);
  state.picImage.fill(kWhite);
  record().dirColors = 2;
  IcoFile added = three;
  added.entries.push_back(entryOf(blackAndWhitePicture(16)));
  dialogs.inside = [&] { folder.write("multi.ico", build(added)); };
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(sameIcon("2-color 16 x 16"), BoxIcon::None);
  dialogs.paths = {path};
  replace();
  EXPECT_EQ(bytesOf(path), build(added));
}

TEST_F(MultiIconReplaceTest, OfTwoEqualEntriesNeitherIsTakenUnlessOneIsWhereItWas) {
  Entry unnamed = entryOf(anyPicture(16, 24), 0, 0);  // may occur twice: it states no bits
  const IcoFile twice = fileOf({three.entries[0], unnamed, unnamed});
  const std::string path = folder.write("multi.ico", build(twice));
  holdEntry(path, twice, 1);
  state.picImage.fill(kWhite);
  record().dirColors = 2;
  const Bytes shifted = build(fileOf({unnamed, three.entries[0], unnamed}));
  folder.write("multi.ico", shifted);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(kChanged, BoxIcon::None);
  replace();
  EXPECT_EQ(bytesOf(path), shifted);
  folder.write("multi.ico", build(twice));
  replaceOnto(path, 2);
  const IconDirectory written = parseIconDirectory(bytesOf(path));
  EXPECT_EQ(written.entry(1).bitCount, 1);
  EXPECT_EQ(written.entry(2).bitCount, 0);
}

TEST_F(MultiIconReplaceTest, AReplacedEntryCanBeReplacedAgain) {
  const std::string path = givenSecond();
  replaceOnto(path, 2);
  state.picImage.SetPixelV(1, 0, rgb(1, 2, 3));
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWithOtherSecond(three));
}

TEST_F(MultiIconReplaceTest, AnIconThatWasLoadedIsFoundWhereItMoved) {
  const Bytes before = build(three);
  const std::string path = folder.write("multi.ico", before);
  user.push_back([&] {
    MultiIconBrowser browser(files.context());
    browser.activate();
    browser.clickIcon(1);
    browser.cmdEdit();
  });
  ASSERT_TRUE(open(path));
  mark();
  folder.write("multi.ico", build(fileOf({three.entries[1], three.entries[0], three.entries[2]})));
  replaceOnto(path, 1);
  EXPECT_EQ(bytesOf(path), build(fileOf({entryOf(markedPicture(16, 24, kMark)), three.entries[0], three.entries[2]})));
}

TEST_F(MultiIconReplaceTest, AnIconThatWasOpenedWithoutTheBrowserIsFoundWhereItMoved) {
  const std::string path = folder.write("multi.ico", build(three));
  ASSERT_TRUE(openQuietly(path));
  state.picImage.fill(kWhite);
  folder.write("multi.ico", build(fileOf({three.entries[1], three.entries[0]})));
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), build(fileOf({three.entries[1], entryOf(whitePicture(32))})));
}

TEST_F(MultiIconReplaceTest, ImagesThatStateTooFewBytesAreWrittenWholeAndTheirEntriesAreCorrected) {
  IcoFile tooShort = three;
  for (Entry& entry : tooShort.entries) entry.bytesInRes = 50;
  tooShort.entries[2].bytesInRes = 0;
  const std::string path = givenEntry(tooShort, 1);
  mark();
  replaceOnto(path, 2);
  EXPECT_EQ(bytesOf(path), threeWith(entryOf(markedPicture(16, 24, kMark))));
}

TEST_F(MultiIconReplaceTest, AnEntryWhoseByteCountAnotherUpdateCorrectedIsStillFound) {
  IcoFile tooShort = three;
  tooShort.entries[1].bytesInRes = 50;
  const std::string path = givenEntry(tooShort, 1);
  mark();
  folder.write("multi.ico", build(fileOf({three.entries[1], three.entries[2]})));
  replaceOnto(path, 1);
  EXPECT_EQ(bytesOf(path), build(fileOf({entryOf(markedPicture(16, 24, kMark)), three.entries[2]})));
}

TEST_F(MultiIconReplaceTest, AClearedContainerForgetsTheOrigin) {
  givenSecond();
  ASSERT_NE(record().origin, EntryOrigin{});
  ClearContainer(state);
  EXPECT_EQ(record().origin, EntryOrigin{});
}

}  // namespace
}  // namespace gp::test

#include "document/CurrentIcon.h"
#include "files/MultiIconFixture.h"
#include "files/browser/MultiIconBrowser.h"
#include "support/FullDisk.h"

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kOwnFile = "Cannot add to original file itself.";
constexpr const char* kReadOnly = "File is read-only";
constexpr const char* kNotWritten = "Failed to save current icon - writing";
constexpr const char* kNotPrepared = "Failed to save current icon - preparation";

std::string sameIcon(const std::string& what) {
  return what +
         "\n\nIcon of same size and color palette already in file.\n"
         "Multi-icon file cannot have two icons of identical\nsize and color depth.";
}

// The Current Icon is a true colour icon of 16x16; the file holds one of 32x32 and one of 48x48.
class MultiIconAddTest : public MultiIconTest {
 protected:
  const Entry icon = entryOf(anyPicture(16, 24));
  const IcoFile two = fileOf({entryOf(anyPicture(32, 4)), entryOf(anyPicture(48, 8))});
  const std::string target = folder.write("two.ico", build(two));

  MultiIconAddTest() { hold(icon); }
  ~MultiIconAddTest() override { EXPECT_TRUE(scratchIsGone()); }
  void hold(const Entry& entry) {
    given(entry, "own.ico");
    record().modified = true;
  }
  void addTo(const std::string& path) {
    dialogs.paths.push_front(path);
    files.multiIcon.doMnuFileSaveMultiIconAddTo();
  }
  // Adds to the target after an answer in the browser.
  void add(const std::string& answer) {
    userAnswers(answer);
    addTo(target);
  }
  Bytes twoWith(const Entry& entry, std::ptrdiff_t index) const {
    IcoFile file = two;
    file.entries.insert(file.entries.begin() + index, entry);
    return build(file);
  }
  void expectFailure(const std::string& text) { boxes.expectTold(text, BoxIcon::Exclamation); }
  void expectRefusal(const std::string& text) { boxes.expectTold(text, BoxIcon::None); }
};

TEST_F(MultiIconAddTest, AtPosition1TheNewEntryIsRef1AndAllOthersMoveUp) {
  add("1/1");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 0));
}

TEST_F(MultiIconAddTest, InTheMiddleAndBehindTheLastOne) {
  add("1/2");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 1));
  folder.write("two.ico", build(two));
  add("1/3");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 2));
}

TEST_F(MultiIconAddTest, ScatteredImagesAreMended) {
  IcoFile scattered = two;
  const auto first = static_cast<std::uint32_t>(two.entries[0].image.size());
  const auto second = static_cast<std::uint32_t>(two.entries[1].image.size());
  Bytes bytes = build(two);
  bytes.resize(6 + 2 * 16);
  scattered.entries[0].offset = 38 + 5 + second;
  scattered.entries[1].offset = 38 + 5;
  bytes = build(scattered);
  bytes.resize(38);
  append(bytes, Bytes(5, 'j'));
  append(bytes, two.entries[1].image);
  append(bytes, two.entries[0].image);
  ASSERT_EQ(bytes.size(), 38 + 5 + first + second);
  folder.write("two.ico", bytes);
  add("1/2");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 1));
}

TEST_F(MultiIconAddTest, AnIconWithAlphaGoesInWithItsAlpha) {
  hold(entryOf(anyPicture(16, 32)));
  add("1/3");
  EXPECT_EQ(bytesOf(target), twoWith(entryOf(withSavedAlpha(anyPicture(16, 32))), 2));
}

TEST_F(MultiIconAddTest, APaintedPixelOfAlpha0GoesInWith1) {
  Picture picture = anyPicture(16, 32);
  hold(entryOf(picture));
  state.picAlpha.fill(kBlack);
  picture.color = [color = picture.color](int x, int y) {
    const Rgb c = color(x, y);
    return Rgb{c.r, c.g, c.b, 1};
  };
  add("1/3");
  EXPECT_EQ(bytesOf(target), twoWith(entryOf(withSavedAlpha(picture)), 2));
}

TEST_F(MultiIconAddTest, APaintedDownIconGoesInAsWhatItHasBecome) {
  hold(entryOf(anyPicture(16, 8)));
  state.picImage.fill(kWhite);
  add("1/1");
  EXPECT_EQ(bytesOf(target), twoWith(entryOf(whitePicture(16)), 0));
}

TEST_F(MultiIconAddTest, TheIconStaysItsOwnDocumentAndCountsAsSaved) {
  record().neverSaved = true;
  state.picImage.SetPixelV(2, 2, 0x123456);
  state.screen.lblStatusPanel.fill("");
  editor.calls.clear();
  add("1/1");
  EXPECT_FALSE(record().modified);
  EXPECT_TRUE(record().neverSaved);
  EXPECT_FALSE(record().fromMultiIconFile);
  EXPECT_EQ(record().path.trimmed(), folder.path("own.ico"));
  EXPECT_EQ(state.screen.lblStatusPanel[0], folder.path("own.ico"));
  EXPECT_GE(editor.count("UpdateCommands"), 1);
  EXPECT_TRUE(panelIsUpToDate());
  EXPECT_EQ(display.announced, std::vector<std::string>{"Saved"});
}

TEST_F(MultiIconAddTest, TheBrowserShowsItsAddFaceWithTheIcon) {
  exchange.gFileInPanel = exchange.gLoadAndReturn = true;
  exchange.gMultiIconResult = "3";
  user.push_back([&] {
    EXPECT_TRUE(exchange.gAddToFile);
    EXPECT_FALSE(exchange.gFileInPanel);
    EXPECT_EQ(exchange.gMultiIconFile, target);
    EXPECT_EQ(exchange.gMultiIconResult, "");
    EXPECT_TRUE(samePixels(exchange.PicCurrIcon, state.PicIcon));
    EXPECT_EQ(exchange.lblCurrIcon, "24 BPP   True-color  Size: 16x16");
    answers("");
  });
  addTo(target);
}

TEST_F(MultiIconAddTest, TheLabelTellsColorsOrBits) {
  struct Case {
    Entry entry;
    const char* text;
  };
  Picture sixteen = anyPicture(24, 4);
  sixteen.palette = {{0, 0, 0}, {255, 0, 0}};
  sixteen.index = [](int x, int) { return x % 2; };
  for (const Case& c : {Case{entryOf(whitePicture(24)), "2-color  Size: 24x24"},
                        {entryOf(sixteen), "16-color  Size: 24x24"},
                        {entryOf(anyPicture(24, 32)), "32 BPP   True-color  Size: 24x24"}}) {
    hold(c.entry);
    user.push_back([&] {
      EXPECT_EQ(exchange.lblCurrIcon, c.text);
      answers("");
    });
    addTo(target);
  }
}

TEST_F(MultiIconAddTest, CancelsAndMalformedAnswersChangeNothing) {
  dialogs.paths = {};
  addTo("");
  EXPECT_EQ(forms.multiIcons, 0);
  for (const std::string answer : {"", "1", "1/", "/1", "0/1", "3/1", "1/0", "1/-1", "1/1/1", "1/x", "x/1"}) {
    add(answer);
    EXPECT_EQ(bytesOf(target), build(two)) << answer;
    EXPECT_TRUE(record().modified);
  }
}

TEST_F(MultiIconAddTest, LookingAtEntriesLeavesTheAlphaValues) {
  hold(entryOf(anyPicture(16, 32)));
  const AlphaMatrix alpha = currentIcon(state).alpha;
  user.push_back([&] {
    MultiIconBrowser(files.context()).activate();
    answers("");
  });
  addTo(target);
  EXPECT_EQ(currentIcon(state).alpha, alpha);
}

TEST_F(MultiIconAddTest, WhatIsOpenOnTheIconEndsFirst) {
  leaveOpen();
  addTo("");
  expectNothingOpen();
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}}));
}

TEST_F(MultiIconAddTest, TheIconsOwnFileIsRefusedHoweverItIsReached) {
  const std::string own = folder.path("own.ico");
  fs::create_symlink(own, folder.path("link.ico"));
  fs::create_hard_link(own, folder.path("hard.ico"));
  const Bytes before = bytesOf(own);
  for (const std::string& path :
       {own, folder.folder() + "/./own.ico", folder.path("link.ico"), folder.path("hard.ico")}) {
    expectRefusal(kOwnFile);
    addTo(path);
  }
  EXPECT_EQ(bytesOf(own), before);
  EXPECT_EQ(forms.multiIcons, 0);
}

TEST_F(MultiIconAddTest, AFileOfAnotherContainerIsRefused) {
  fs::create_symlink(target, folder.path("link.ico"));
  state.mIconRecs[3].path = target;
  for (const std::string& path : {target, folder.path("link.ico")}) {
    expectRefusal(openedInPanel("File being added to", 4));
    addTo(path);
  }
}

TEST_F(MultiIconAddTest, FilesWithoutIconsAreRefused) {
  IcoFile cursor = two;
  cursor.type = 2;
  for (const Bytes& bytes : {Bytes{'t', 'e', 'x', 't'}, build(cursor), Bytes{}}) {
    expectRefusal("File does not contain 16x16, 24x24, 32x32 or 48x48 icon.");
    addTo(folder.write("no.ico", bytes));
  }
}

TEST_F(MultiIconAddTest, FilesThatDoNotHoldWhatTheyStateAreRefused) {
  Bytes cut = build(two);
  cut.pop_back();
  Bytes reserved = build(two);
  reserved[0] = 1;
  for (const Bytes& bytes : {cut, reserved}) {
    const std::string path = folder.write("bad.ico", bytes);
    expectRefusal("No icon found in " + path);
    addTo(path);
    EXPECT_EQ(bytesOf(path), bytes);
  }
}

TEST_F(MultiIconAddTest, AnIconOfTheSameSizeAndDepthIsRefused) {
  folder.write("two.ico", build(fileOf({entryOf(anyPicture(32, 4)), entryOf(anyPicture(16, 24))})));
  expectRefusal(sameIcon("True Color 24 BPP 16 x 16"));
  addTo(target);
  EXPECT_EQ(forms.multiIcons, 0);
}

TEST_F(MultiIconAddTest, TheSameSizeInAnotherDepthIsTaken) {
  const IcoFile file =
      fileOf({entryOf(anyPicture(16, 32)), entryOf(anyPicture(16, 8)), entryOf(anyPicture(16, 24), 0, 0)});
  folder.write("two.ico", build(file));
  add("1/4");
  IcoFile expected = file;
  expected.entries.push_back(icon);
  EXPECT_EQ(bytesOf(target), build(expected));
}

TEST_F(MultiIconAddTest, AFileThatChangesInTheBrowserIsReported) {
  struct Case {
    std::function<void()> change;
    std::string text;
    BoxIcon icon;
  };
  for (const Case& c : {Case{[&] { fs::remove(target); }, "Failed to open " + target, BoxIcon::Exclamation},
                        Case{[&] {
                               folder.write("two.ico", {1, 2});
                             },
                             "No icon file in " + target, BoxIcon::None},
                        Case{[&] { folder.write("two.ico", build(two.entries[0])); },
                             "Discrepancy found in the position ref to add in " + target, BoxIcon::None}}) {
    folder.write("two.ico", build(two));
    boxes.expectTold(c.text, c.icon);
    user.push_back([&] { c.change(), answers("1/3"); });
    addTo(target);
    EXPECT_TRUE(record().modified);
    EXPECT_TRUE(scratchIsGone());
  }
  EXPECT_EQ(bytesOf(target), build(two.entries[0]));
}

TEST_F(MultiIconAddTest, AFileThatAnotherProgramChangesWhileItIsListedKeepsWhatWasAdded) {
  IcoFile added = two;
  added.entries.insert(added.entries.begin(), entryOf(anyPicture(24, 8)));
  Bytes repainted = build(two);
  repainted.back() ^= 0xFF;
  for (const Bytes& changed : {build(added), repainted}) {
    for (const std::string answer : {"1/1", "1/3", "2/1"}) {
      folder.write("two.ico", build(two));
      user.push_back([&] { folder.write("two.ico", changed), answers(answer); });
      expectRefusal(target + "\n\nThis file has been changed meanwhile.\nNothing has been written to it.");
      dialogs.paths = {};
      if (answer[0] == '2') dialogs.paths = {folder.path("other.ico")};
      addTo(target);
      EXPECT_EQ(bytesOf(target), changed);
      EXPECT_FALSE(fs::exists(folder.path("other.ico")));
      EXPECT_TRUE(record().modified);
    }
  }
}

TEST_F(MultiIconAddTest, AnEntryRemovedInTheBrowserItselfIsNoChangeOfAnotherProgram) {
  user.push_back([&] {
    MultiIconBrowser browser(files.context());
    browser.activate();
    browser.clickIcon(0);
    boxes.expectAsked("Permanently remove the selected icon from the multi-icon file.\n" + target +
                          "\n\nSure to remove this icon permanently?\n\n",
                      BoxAnswer::Yes);
    browser.cmdRemove();
    boxes.expectAsked("Append to position ref 2.   \n\nConfirm?\n", BoxAnswer::Yes);
    browser.cmdSaveAdd(kSaveButton);
  });
  addTo(target);
  EXPECT_EQ(bytesOf(target), build(fileOf({two.entries[1], icon})));
}

TEST_F(MultiIconAddTest, ImagesThatStateTooFewBytesAreWrittenWhole) {
  IcoFile tooShort = two;
  tooShort.entries[0].bytesInRes = 50;
  tooShort.entries[1].bytesInRes = 0;
  folder.write("two.ico", build(tooShort));
  add("1/2");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 1));
}

TEST_F(MultiIconAddTest, SaveAsGoesToACopy) {
  const std::string other = folder.path("other.ico");
  dialogs.paths = {other};
  add("2/1");
  EXPECT_EQ(bytesOf(target), build(two));
  EXPECT_EQ(bytesOf(other), twoWith(icon, 0));
  ASSERT_EQ(dialogs.requests.size(), 2u);
  EXPECT_EQ(dialogs.requests[1].fileName, "two.ico");
  EXPECT_EQ(dialogs.requests[1].defaultExtension, "ico");
  EXPECT_EQ(dialogs.requests[1].filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}}));
  EXPECT_FALSE(record().modified);
}

TEST_F(MultiIconAddTest, SaveAsUnderTheSameNameIsASave) {
  dialogs.paths = {target};
  add("2/3");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 2));
}

TEST_F(MultiIconAddTest, SaveAsThatFailsInThePreparationLeavesNoCopy) {
  const std::string old = folder.write("old.ico", {'o', 'l', 'd'});
  MultiIconCommands elsewhere{files.context(), folder.path("no/gptmp.ico")};
  for (const std::string& other : {folder.path("other.ico"), old}) {
    userAnswers("2/1");
    dialogs.paths = {target, other};
    expectFailure(kNotPrepared);
    elsewhere.doMnuFileSaveMultiIconAddTo();
  }
  EXPECT_FALSE(fs::exists(folder.path("other.ico")));
  EXPECT_EQ(bytesOf(old), (Bytes{'o', 'l', 'd'}));
  EXPECT_EQ(bytesOf(target), build(two));
}

TEST_F(MultiIconAddTest, SaveAsThatFailsInWritingTheNewEntryLeavesNoCopy) {
  const std::string other = folder.path("other.ico");
  dialogs.paths = {other};
  expectFailure(kNotWritten);
  const FullDisk full(build(two).size() + 100);  // room for a copy without the new entry
  add("2/1");
  EXPECT_FALSE(fs::exists(other));
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconAddTest, SaveAsFromTheScratchFileOrOverItLosesNeither) {
  folder.write("gptmp.ico", build(two));
  for (const auto& [from, to] : {std::pair(scratch, folder.path("other.ico")), std::pair(target, scratch)}) {
    userAnswers("2/1");
    dialogs.paths = {to};
    expectFailure(kNotPrepared);
    addTo(from);
    EXPECT_EQ(bytesOf(scratch), build(two));
  }
  EXPECT_FALSE(fs::exists(folder.path("other.ico")));
  fs::remove(scratch);
}

TEST_F(MultiIconAddTest, SaveAsOverAnotherFileLeavesNothingOfIt) {
  const std::string other = folder.write("other.ico", Bytes(100000, 'x'));
  dialogs.paths = {other};
  add("2/1");
  EXPECT_EQ(bytesOf(other), twoWith(icon, 0));
}

TEST_F(MultiIconAddTest, SaveAsAsksAgainForFilesThatAreInThePanel) {
  const std::string loaded = folder.write("loaded.ico", build(two)), other = folder.path("other.ico");
  state.mIconRecs[2].path = loaded;
  expectRefusal(kOwnFile);
  expectRefusal(openedInPanel("File being added to", 3));
  dialogs.paths = {folder.path("own.ico"), loaded, other};
  add("2/1");
  EXPECT_EQ(bytesOf(folder.path("own.ico")), build(icon));
  EXPECT_EQ(bytesOf(loaded), build(two));
  EXPECT_EQ(bytesOf(other), twoWith(icon, 0));
}

TEST_F(MultiIconAddTest, SaveAsCanBeCancelled) {
  dialogs.paths = {""};
  add("2/1");
  EXPECT_EQ(bytesOf(target), build(two));
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconAddTest, SaveAsThatCannotBeWrittenIsReported) {
  const std::string readOnly = folder.write("other.ico", {'o'});
  fs::permissions(readOnly, fs::perms::owner_read);
  expectFailure(kReadOnly);
  dialogs.paths = {readOnly};
  add("2/1");
  expectFailure(kNotWritten);
  dialogs.paths = {folder.path("no/such.ico")};
  add("2/1");
  EXPECT_EQ(bytesOf(readOnly), Bytes{'o'});
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconAddTest, AReadOnlyTargetIsReportedWithoutAFullStop) {
  fs::permissions(target, fs::perms::owner_read);
  expectFailure(kReadOnly);
  add("1/1");
  EXPECT_EQ(bytesOf(target), build(two));
  EXPECT_TRUE(record().modified);
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(MultiIconAddTest, ATargetThatTurnsReadOnlyInTheBrowserStays) {
  user.push_back([&] {
    fs::permissions(target, fs::perms::owner_read);
    answers("1/1");
  });
  expectFailure(kReadOnly);
  addTo(target);
  EXPECT_EQ(bytesOf(target), build(two));
}

TEST_F(MultiIconAddTest, WhereNoScratchFileCanBeMadeThePreparationFails) {
  MultiIconCommands elsewhere{files.context(), folder.path("no/gptmp.ico")};
  userAnswers("1/1");
  dialogs.paths = {target};
  expectFailure(kNotPrepared);
  elsewhere.doMnuFileSaveMultiIconAddTo();
  EXPECT_EQ(bytesOf(target), build(two));
}

TEST_F(MultiIconAddTest, AStaleScratchFileIsReplaced) {
  folder.write("gptmp.ico", Bytes(100000, 'x'));
  add("1/1");
  EXPECT_EQ(bytesOf(target), twoWith(icon, 0));
}

TEST_F(MultiIconAddTest, TheScratchFileItselfTakesNoIcon) {
  folder.write("gptmp.ico", build(two));
  userAnswers("1/1");
  expectFailure(kNotPrepared);
  addTo(scratch);
  EXPECT_EQ(bytesOf(scratch), build(two));
  fs::remove(scratch);
}

TEST_F(MultiIconAddTest, OnAFullDiskTheTargetStaysWhole) {
  const std::string disk = folder.path("disk");
  fs::create_directory(disk);
  const SmallDisk mounted(disk);
  if (!mounted.isMounted()) GTEST_SKIP() << "only root can mount a disk";
  hold(entryOf(anyPicture(48, 24)));
  const std::string path = folder.write("disk/two.ico", build(two));
  ASSERT_EQ(bytesOf(path), build(two));
  mounted.fillUpTo(0);
  userAnswers("1/1");
  expectFailure(kNotWritten);
  addTo(path);
  EXPECT_EQ(bytesOf(path), build(two));
  EXPECT_TRUE(record().modified);
}

TEST_F(MultiIconAddTest, WithoutRoomForACopyTheChosenFileStays) {
  const std::string other = folder.write("other.ico", {'o', 'l', 'd'});
  dialogs.paths = {other};
  expectFailure(kNotWritten);
  const FullDisk full(2000);
  add("2/1");
  EXPECT_EQ(bytesOf(other), (Bytes{'o', 'l', 'd'}));
  EXPECT_EQ(bytesOf(target), build(two));
}

}  // namespace
}  // namespace gp::test

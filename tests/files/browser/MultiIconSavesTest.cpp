// Saving single entries from the browser. Files are compared byte by byte.
#include "files/BrowserFixture.h"
#include "support/FullDisk.h"

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kReadOnly =
    "File is read-only\n\nYou may save it under a different file name or reset the file attributes.";

// Lets a test act whenever the pointer changes, which it does at the end of each save.
class WatchedDisplay : public RecordingDisplay {
 public:
  std::function<void()> inside;
  void changed(DisplayPart part) override {
    if (part == DisplayPart::Pointer && inside) inside();
  }
};

class BrowserSavesTest : public BrowserTest {
 protected:
  // Saves the selected entry under a name; returns the proposed name.
  std::string save(const std::string& name) {
    dialogs.paths.push_back(name.empty() ? name : folder.path(name));
    browser->cmdSaveSingle();
    return dialogs.requests.back().fileName;
  }
  std::string question(const std::string& target, int count) const {
    return "Single-icon files will be saved as " + target + "_(Size)_(Color), ...\nTotally " + std::to_string(count) +
           " items on list.\n\nProceed?";
  }
  static std::string holds(int container) {
    return "Container " + std::to_string(container) + " holds an icon of this file.\nProceed?";
  }
  void split(int count, BoxAnswer answer = BoxAnswer::Yes, const std::string& report = {}) {
    fs::create_directory(folder.path("out"));
    dialogs.paths.push_back(folder.path("out"));
    boxes.expectAsked(question(folder.path("out/tools"), count), answer);
    if (!report.empty()) boxes.expectTold(report, BoxIcon::None);
    browser->cmdSplitSave();
  }
  std::vector<std::string> namesSplit() const {
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator(folder.path("out"))) names.push_back(file.path().filename());
    std::ranges::sort(names);
    return names;
  }
};

TEST_F(BrowserSavesTest, SavesTheSelectedEntryAsAFileOfItsOwn) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  EXPECT_EQ(save("one.ico"), "tools_32_256.ico");
  EXPECT_EQ(bytesOf(folder.path("one.ico")), build(anyEntry(32, 8)));
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(BrowserSavesTest, TheDialogOffersIconFiles) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  state.process.mLastFolder = folder.path("last");
  std::filesystem::create_directory(folder.path("last"));
  save("one.ico");
  const FileDialogRequest& request = dialogs.requests.back();
  EXPECT_EQ(request.filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}}));
  EXPECT_EQ(request.defaultExtension, "ico");
  EXPECT_EQ(request.folder, folder.path("last"));
}

TEST_F(BrowserSavesTest, ProposesBitsForTrueColorAndColorsOtherwise) {
  browse({anyEntry(32, 24), anyEntry(48, 32), anyEntry(16, 1), anyEntry(24, 4), entryOf(anyPicture(24, 8), 0, 0)});
  const std::vector<std::string> expected{"tools_32_24bpp.ico", "tools_48_32bpp.ico", "tools_16_2.ico",
                                          "tools_24_16.ico", "tools_24_256.ico"};
  for (int item = 0; item < 5; ++item) {
    browser->clickIcon(item);
    EXPECT_EQ(save(""), expected[static_cast<std::size_t>(item)]);
  }
}

TEST_F(BrowserSavesTest, ASaveOverTheFileItselfByAnotherNameListsItAgain) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  fs::create_symlink(browser->file(), folder.path("link.ico"));
  save("link.ico");
  EXPECT_EQ(browser->lisIcons().size(), 1U);
}

TEST_F(BrowserSavesTest, ACancelWritesNothing) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  save("");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.folder()), {}), 1);
}

// Header 0, 1, 1; the entry unchanged except for its offset; the image unchanged.
TEST_F(BrowserSavesTest, EntryAndImageAreCopiedWithTheirLies) {
  Bytes file = build(iconFile({anyEntry(16, 4), entryOf(anyPicture(32, 8), 77, 8)}));
  file[0] = 9;           // idReserved
  file[6 + 16 + 3] = 5;  // bReserved
  file[6 + 16 + 4] = 3;  // wPlanes
  browse(file);
  save("one.ico");
  Bytes expected = build(entryOf(anyPicture(32, 8), 77, 8));
  expected[6 + 3] = 5;
  expected[6 + 4] = 3;
  EXPECT_EQ(bytesOf(folder.path("one.ico")), expected);
}

TEST_F(BrowserSavesTest, AnImageHasTheBytesThatItsEntryTellsButNoFewerThanItNeeds) {
  Entry longer = anyEntry(32, 4), shorter = anyEntry(16, 4);
  longer.bytesInRes = static_cast<std::uint32_t>(longer.image.size() + 20);  // extends into the next image
  shorter.bytesInRes = 50;                                                   // readers show it all the same
  const Bytes file = build(iconFile({longer, shorter}));
  browse(file);
  save("long.ico");
  browser->clickIcon(1);
  save("short.ico");
  const Bytes saved = bytesOf(folder.path("long.ico"));
  ASSERT_EQ(saved.size(), 22 + longer.image.size() + 20);
  EXPECT_TRUE(std::equal(saved.begin() + 22, saved.end(), file.begin() + 6 + 2 * 16));
  EXPECT_EQ(bytesOf(folder.path("short.ico")), build(anyEntry(16, 4)));
}

TEST_F(BrowserSavesTest, AReadOnlyTargetIsReportedAndKept) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  makeReadOnly(folder.write("one.ico", {1, 2, 3}));
  boxes.expectTold(kReadOnly, BoxIcon::Exclamation);
  save("one.ico");
  EXPECT_EQ(bytesOf(folder.path("one.ico")), (Bytes{1, 2, 3}));
}

TEST_F(BrowserSavesTest, AFullDiskIsReported) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  boxes.expectTold("Failed to save this icon", BoxIcon::Exclamation);
  const FullDisk full(1000);
  save("one.ico");
  EXPECT_FALSE(fs::exists(folder.path("one.ico")));
}

TEST_F(BrowserSavesTest, NothingIsSavedWithoutASelection) {
  browse({anyEntry(16, 4), anyEntry(32, 8)}, true);
  browser->cmdSaveSingle();
  browser->cmdSplitSave();
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(BrowserSavesTest, TheAddFaceSavesToo) {
  browse({anyEntry(16, 4), anyEntry(32, 8)}, true);
  browser->clickIcon(0);
  EXPECT_EQ(save("one.ico"), "tools_16_16.ico");
  EXPECT_EQ(bytesOf(folder.path("one.ico")), build(anyEntry(16, 4)));
}

TEST_F(BrowserSavesTest, WhatIsSavedOverTheListedFileIsListed) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  save("tools.ico");
  EXPECT_EQ(browser->lisIcons(), (Items{"Ref 1  \t8 BPP\t256-Color\t   32 x  32"}));
  EXPECT_EQ(browser->selectedIcon(), 0);
}

TEST_F(BrowserSavesTest, AFileOfAContainerIsNotWrittenOverWithoutAQuestion) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  const std::string held = folder.write("held.ico", {'o', 'l', 'd'});
  state.mIconRecs[0].path = held;  // the current container, whose icon is not the one that is saved
  boxes.expectAsked(holds(1), BoxAnswer::No);
  save("held.ico");
  EXPECT_EQ(bytesOf(held), (Bytes{'o', 'l', 'd'}));
  boxes.expectAsked(holds(1), BoxAnswer::Yes);
  save("held.ico");
  EXPECT_EQ(bytesOf(held), build(anyEntry(32, 8)));
}

// Split Save.

TEST_F(BrowserSavesTest, OneQuestionPrecedesASplitOverFilesOfContainers) {
  browse({anyEntry(16, 4), anyEntry(32, 24), anyEntry(48, 1)});
  state.mIconRecs[2].path = folder.path("out/tools_48_2.ico");
  state.mIconRecs[4].path = folder.path("out/tools_32_24bpp.ico");
  fs::create_directory(folder.path("out"));
  folder.write("out/tools_48_2.ico", {'o', 'l', 'd'});
  const auto splitAnswered = [&](BoxAnswer answer) {
    dialogs.paths.push_back(folder.path("out"));
    boxes.expectAsked(question(folder.path("out/tools"), 3), BoxAnswer::Yes);
    boxes.expectAsked(holds(5), answer);
    browser->cmdSplitSave();
  };
  splitAnswered(BoxAnswer::No);
  EXPECT_EQ(namesSplit(), Items{"tools_48_2.ico"});
  EXPECT_EQ(bytesOf(folder.path("out/tools_48_2.ico")), (Bytes{'o', 'l', 'd'}));
  splitAnswered(BoxAnswer::Yes);
  EXPECT_EQ(namesSplit().size(), 3U);
}

TEST_F(BrowserSavesTest, SplitsTheListedEntriesIntoFiles) {
  const Bytes file = build(iconFile({anyEntry(16, 4), anyEntry(64, 8), anyEntry(32, 24), anyEntry(48, 1)}));
  browse(file);
  split(3);
  EXPECT_EQ(namesSplit(), (Items{"tools_16_16.ico", "tools_32_24bpp.ico", "tools_48_2.ico"}));
  EXPECT_EQ(bytesOf(folder.path("out/tools_16_16.ico")), build(anyEntry(16, 4)));
  EXPECT_EQ(bytesOf(folder.path("out/tools_32_24bpp.ico")), build(anyEntry(32, 24)));
  EXPECT_EQ(bytesOf(folder.path("out/tools_48_2.ico")), build(anyEntry(48, 1)));
  EXPECT_EQ(bytesOf(path), file);
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(BrowserSavesTest, TheSelectionComesBackAfterASplit) {
  const Bytes file = build(iconFile({anyEntry(16, 4), anyEntry(32, 24), anyEntry(48, 1)}));
  browse(file);
  browser->clickIcon(1);
  changes = 0;
  split(3);
  EXPECT_EQ(browser->selectedIcon(), 1);
  EXPECT_TRUE(previews(file, 1));
  EXPECT_EQ(changes, 1) << "the views follow once, however many items there are";
}

TEST_F(BrowserSavesTest, EachItemIsSelectedAndPreviewedWhenItIsSaved) {
  const Bytes file = build(iconFile({anyEntry(16, 4), anyEntry(32, 24), anyEntry(48, 1)}));
  browse(file);
  WatchedDisplay watched;
  const FilesContext context{{state, editor, watched, boxes, pump},
                             state.process,
                             rooms.document,
                             rooms.drawing,
                             rooms.dialog,
                             exchange,
                             files.context().forms};
  browser = std::make_unique<MultiIconBrowser>(context);
  browser->activate();
  const Items names{"tools_16_16.ico", "tools_32_24bpp.ico", "tools_48_2.ico"};
  std::vector<int> saved;
  watched.inside = [&] {
    const std::size_t next = saved.size();
    if (next == names.size() || !fs::exists(folder.path("out/" + names[next]))) return;
    saved.push_back(browser->selectedIcon());
    EXPECT_TRUE(previews(file, static_cast<int>(next)));
  };
  split(3);
  EXPECT_EQ(saved, (std::vector{0, 1, 2}));
}

TEST_F(BrowserSavesTest, OfTwoEntriesWithOneNameTheLaterStays) {
  Picture first = anyPicture(16, 4), second = anyPicture(16, 4);
  second.index = [](int, int) { return 7; };
  browse({entryOf(first), entryOf(second)});
  split(2);
  EXPECT_EQ(namesSplit(), (Items{"tools_16_16.ico"}));
  EXPECT_EQ(bytesOf(folder.path("out/tools_16_16.ico")), build(entryOf(second)));
}

TEST_F(BrowserSavesTest, ExistingFilesAreOverwrittenAndFailuresNotReported) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  fs::create_directory(folder.path("out"));
  folder.write("out/tools_32_256.ico", Bytes(5000));
  makeReadOnly(folder.write("out/tools_16_16.ico", {1, 2, 3}));
  split(2);
  EXPECT_EQ(bytesOf(folder.path("out/tools_16_16.ico")), (Bytes{1, 2, 3}));
  EXPECT_EQ(bytesOf(folder.path("out/tools_32_256.ico")), build(anyEntry(32, 8)));
}

TEST_F(BrowserSavesTest, NoAnswerOtherThanYesSplits) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  split(2, BoxAnswer::No);
  EXPECT_TRUE(namesSplit().empty());
  dialogs.paths.push_back("");
  browser->cmdSplitSave();  // without a folder there is no question
}

TEST_F(BrowserSavesTest, AFolderThatEndsWithASeparatorGetsNoSecondOne) {
  browse({anyEntry(16, 4), anyEntry(32, 8)});
  dialogs.paths.push_back("/");
  boxes.expectAsked(question("/tools", 2), BoxAnswer::No);
  browser->cmdSplitSave();
}

TEST_F(BrowserSavesTest, RefsAbove99AreNotSplitAndNamedOnce) {
  for (const int count : {99, 100, 120}) {
    std::vector<Entry> entries(static_cast<std::size_t>(count), anyEntry(16, 4));
    entries[9] = anyEntry(24, 8);
    for (std::size_t i = 99; i < entries.size(); ++i) entries[i] = anyEntry(32, 24);
    browse(entries);
    browser->clickIcon(0);
    const std::string report = count == 100 ? "Ref 100" : "Ref 100 to 120";
    split(count, BoxAnswer::Yes, count == 99 ? "" : report + "\nUnable to get this one");
    EXPECT_EQ(namesSplit(), (Items{"tools_16_16.ico", "tools_24_256.ico"})) << count;
    EXPECT_EQ(browser->selectedIcon(), 0);
  }
}

TEST_F(BrowserSavesTest, EntriesThatCannotBeShownAreSplitAllTheSame) {
  browse({anyEntry(32, 4), pngEntry(16), anyEntry(48, 8)});
  split(3);
  EXPECT_EQ(bytesOf(folder.path("out/tools_16_32bpp.ico")), build(pngEntry(16)));
  EXPECT_EQ(namesSplit().size(), 3u);
  EXPECT_EQ(browser->selectedIcon(), 0);
}

}  // namespace
}  // namespace gp::test

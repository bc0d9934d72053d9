// The search for icons on its panel, in the whole program.
#include "extraction/SearchPanel.h"
#include "shell/IconsListFixture.h"

#include <filesystem>

namespace gp::test {
namespace {

constexpr const char* kSession = "You are already in Search & Extract Icons From EXE Files In Folder session.";
constexpr int kSearchCommand = 7;

class SearchProgram : public IconsListProgram {
 protected:
  SearchPanel& search = shell.extraction().search;
  const std::string source = folder.makeFolder("programs");
  const std::string target = folder.makeFolder("saved");

  SearchProgram() {
    click("mnuExtractSub", kSearchCommand);
    search.setFolder(0, source);
    search.setFolder(1, target);
  }
  void writeProgram(const std::string& name, int icons) { folder.write("programs/" + name, asText(library(icons))); }
  std::vector<std::string> savedNames() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(target)) names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
  }
  void expectEnded(int count) {
    EXPECT_FALSE(search.isRunning());
    EXPECT_EQ(search.mSearchCount(), count);
    EXPECT_EQ(search.progressText(), "Total: " + std::to_string(count) + " icons");
    EXPECT_EQ(search.currentFile(), "");
  }
  std::string question() const {
    return target + "\n\nThere are icon files in this folder, which the search can overwrite.\n\nGo on?";
  }
};

TEST_F(SearchProgram, TheCommandOpensThePanelOnce) {
  EXPECT_EQ(state.screen.mActivePanel, SearchPanel::kNumber);
  boxes.expectTold(kSession, BoxIcon::None);
  click("mnuExtractSub", kSearchCommand);
  EXPECT_EQ(state.screen.mActivePanel, SearchPanel::kNumber);
}

TEST_F(SearchProgram, ASessionOfAnAnimatedCursorEndsAfterAQuestion) {
  shell.closePanels();
  click("mnuANIFileCreateOrEdit", kNoIndex);
  shell.animation().session.openFile(writeAni(3));
  boxes.expectAsked("Terminate animated cursor session?", BoxAnswer::No);
  click("mnuExtractSub", kSearchCommand);
  EXPECT_TRUE(state.screen.aniContainerVisible);
  boxes.expectAsked("Terminate animated cursor session?", BoxAnswer::Yes);
  click("mnuExtractSub", kSearchCommand);
  EXPECT_FALSE(state.screen.aniContainerVisible);
  EXPECT_EQ(shell.animation().session.frames().count(), 0);
  EXPECT_EQ(state.screen.mActivePanel, SearchPanel::kNumber);
}

TEST_F(SearchProgram, BothFoldersAreNeeded) {
  search.setFolder(0, "  ");
  boxes.expectTold("Source directory not entered yet", BoxIcon::None);
  search.doSearchExtract();
  search.setFolder(0, source);
  search.setFolder(1, "");
  boxes.expectTold("Save to directory not entered yet", BoxIcon::None);
  search.doSearchExtract();
  EXPECT_FALSE(search.isRunning());
  EXPECT_EQ(search.progressText(), "");
}

TEST_F(SearchProgram, ProceedSavesTheIconsOfTheProgramsInTheFolder) {
  folder.makeFolder("programs/sub");
  writeProgram("b.exe", 2);
  writeProgram("a.dll", 1);
  writeProgram("sub/c.exe", 1);
  search.setFolder(0, " " + source + " ");
  shell.cmdProceed();
  expectEnded(2);
  EXPECT_EQ(savedNames(), (std::vector<std::string>{"b0_x.ico", "b1_x.ico"}));
  EXPECT_EQ(search.foundFiles(), std::vector<std::string>{source + "/b.exe  2"});
  EXPECT_FALSE(state.current().present) << "nothing goes to the containers";
}

TEST_F(SearchProgram, SubfoldersComeFirstAndSerialNumbersCountAllFiles) {
  folder.makeFolder("programs/sub");
  writeProgram("a.exe", 1);
  writeProgram("sub/a.exe", 2);
  search.setTick(0, true);
  search.setTick(1, true);
  search.setTick(2, true);
  search.doSearchExtract();
  expectEnded(3);
  EXPECT_EQ(savedNames(), (std::vector<std::string>{"0_a.ico", "1_a.ico", "2_a.ico"}));
  EXPECT_EQ(folder.read("saved/2_a.ico").at(6), 16);
  EXPECT_EQ(search.foundFiles(), (std::vector<std::string>{source + "/sub/a.exe  2", source + "/a.exe  1"}));
}

TEST_F(SearchProgram, AMaximumOfOneSavesOneIconAndEnds) {
  folder.makeFolder("programs/sub");
  writeProgram("a.exe", 3);
  writeProgram("sub/b.exe", 3);
  search.setTick(0, true);
  search.setMaximum("1");
  search.doSearchExtract();
  expectEnded(1);
  EXPECT_EQ(savedNames(), std::vector<std::string>{"b0_x.ico"});
}

TEST_F(SearchProgram, TheMaximumKeepsItsLastValidValue) {
  EXPECT_EQ(search.maximum(), 1000);
  search.setMaximum("2147483647");
  EXPECT_EQ(search.maximum(), 2147483647);
  for (const char* text : {"", "0", "-3", "x", "5 ", "2147483648", "99999999999999999999"}) {
    search.setMaximum(text);
    EXPECT_EQ(search.maximum(), 2147483647) << text;
  }
}

TEST_F(SearchProgram, AMissingTargetIsNotCreated) {
  writeProgram("a.exe", 2);
  std::filesystem::remove(target);
  search.doSearchExtract();
  expectEnded(0);
  EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(SearchProgram, AMissingSourceHasNoIcons) {
  search.setFolder(0, folder.file("missing"));
  search.doSearchExtract();
  expectEnded(0);
}

TEST_F(SearchProgram, ATargetWithIconFilesIsAskedAboutOnceBeforeTheStart) {
  writeProgram("a.exe", 2);
  folder.write("saved/a0_x.ico", "kept");
  boxes.expectAsked(question(), BoxAnswer::No);
  search.doSearchExtract();
  EXPECT_EQ(folder.read("saved/a0_x.ico"), "kept");
  EXPECT_FALSE(search.isRunning());
  boxes.expectAsked(question(), BoxAnswer::Yes);
  search.doSearchExtract();
  expectEnded(2);
  EXPECT_NE(folder.read("saved/a0_x.ico"), "kept");
}

TEST_F(SearchProgram, TextsOfARunningSearch) {
  writeProgram("a.exe", 1);
  pump.inside = [this] {
    EXPECT_TRUE(search.isRunning());
    EXPECT_EQ(search.progressText(), "In progress... (To halt click Stop)");
    EXPECT_EQ(search.currentFile(), "Search in progress......    ");
  };
  search.doSearchExtract();
  EXPECT_FALSE(pump.inside);
  expectEnded(1);
}

TEST_F(SearchProgram, StopLeavesTheCountSoFarAndAnotherSearchStartsFromZero) {
  writeProgram("a.exe", 1);
  pump.inside = [this] {
    search.cmdStopBrowse();
    EXPECT_EQ(search.progressText(), "");
    EXPECT_TRUE(search.isRunning()) << "until Proceed returns";
  };
  search.doSearchExtract();
  expectEnded(0);
  search.doSearchExtract();
  expectEnded(1);
}

// The events of the search come while icons are saved, whenever the machine gets to them.
TEST_F(SearchProgram, StopInTheMiddleLeavesTheIconsThatAreSaved) {
  constexpr int kIcons = 1000;
  writeProgram("a.exe", kIcons);
  search.setMaximum(std::to_string(2 * kIcons));
  std::function<void()> stopAfterAnIcon = [&] {
    if (search.mSearchCount() == 0)
      pump.inside = stopAfterAnIcon;
    else
      search.cmdStopBrowse();
  };
  pump.inside = stopAfterAnIcon;
  search.doSearchExtract();
  const int saved = search.mSearchCount();
  EXPECT_GT(saved, 0);
  EXPECT_LT(saved, kIcons);
  expectEnded(saved);
  EXPECT_EQ(savedNames().size(), static_cast<std::size_t>(saved));
}

TEST_F(SearchProgram, WhileItRunsNothingChangesItsChoicesAndNoOtherOneStarts) {
  writeProgram("a.exe", 1);
  pump.inside = [this] {
    search.setFolder(0, "/other");
    search.setTick(2, true);
    search.setMaximum("7");
    search.cmdInvokeSearchPath(0);
    search.doSearchExtract();
    EXPECT_TRUE(search.isRunning());
  };
  search.doSearchExtract();
  expectEnded(1);
  EXPECT_EQ(search.folder(0), source);
  EXPECT_FALSE(search.tick(2));
  EXPECT_EQ(search.maximum(), 1000);
}

TEST_F(SearchProgram, ClosingThePanelStopsTheSearch) {
  writeProgram("a.exe", 1);
  pump.inside = [this] { shell.cmdCancel(); };
  search.doSearchExtract();
  expectEnded(0);
  EXPECT_NE(state.screen.mActivePanel, SearchPanel::kNumber);
}

TEST_F(SearchProgram, TheEndOfTheProgramStopsTheSearch) {
  writeProgram("a.exe", 1);
  pump.inside = [this] { EXPECT_TRUE(shell.queryUnload()); };
  search.doSearchExtract();
  expectEnded(0);
}

TEST_F(SearchProgram, ACommandThatThrowsEndsTheSearch) {
  writeProgram("a.exe", 1);
  pump.inside = [] { throw std::runtime_error("command"); };
  EXPECT_THROW(search.doSearchExtract(), std::runtime_error);
  expectEnded(0);
  search.doSearchExtract();
  expectEnded(1);
}

TEST_F(SearchProgram, FolderButtonsAskAndClicksOnTicksClearTheProgress) {
  dialogs.paths = {"/chosen", ""};
  search.cmdInvokeSearchPath(1);
  EXPECT_EQ(search.folder(1), "/chosen");
  search.cmdInvokeSearchPath(1);
  EXPECT_EQ(search.folder(1), "/chosen") << "cancelled";
  search.doSearchExtract();
  expectEnded(0);
  search.setTick(1, true);
  EXPECT_EQ(search.progressText(), "");
}

}  // namespace
}  // namespace gp::test

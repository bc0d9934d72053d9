// The commands that open the Icons List: questions, dialogs, messages, and what each source shows and brings.
#include "shell/IconsListFixture.h"
#include "support/LinkBytes.h"
#include "support/NeBytes.h"

#include <algorithm>
#include <filesystem>

namespace gp::test {
namespace {

using testing::ElementsAre;

constexpr const char* kAniQuestion = "Terminate animated cursor session?";

class IconsListSources : public IconsListProgram {
 protected:
  std::vector<std::string> labels() const {
    std::vector<std::string> texts;
    for (const ListCell& cell : list.cells()) texts.push_back(cell.label);
    return texts;
  }
  Color cellColor(int cell) const { return list.cells().at(static_cast<std::size_t>(cell)).picture.GetPixel(0, 0); }
  Bytes iclFile() const {
    Bytes bytes{1, 2, 3};
    append(bytes, imageBytes(plainPicture(16, {9, 8, 7})));
    append(bytes, imageBytes(plainPicture(48, {6, 5, 4})));
    return bytes;
  }
  std::string desktop() {
    const std::string path = folder.makeFolder("desktop");
    state.process.mDesktopFolder = path;
    return path;
  }
};

// Questions and dialogs.

TEST_F(IconsListSources, TheSameSessionIsNotOpenedTwice) {
  const std::pair<int, const char*> sessions[] = {
      {kLargeCommand, "You are already in Extract Large Icons From DLL or Similar Resource session."},
      {kSmallCommand, "You are already in Extract Small Icons From DLL or Similar Resource session."}};
  const std::string path = writeLibrary(2);
  for (const auto& [command, text] : sessions) {
    extract(command, path);
    boxes.expectTold(text, BoxIcon::None);
    click("mnuExtractSub", command);
    EXPECT_EQ(drawnCells(), 2);
  }
}

TEST_F(IconsListSources, EachSessionHasItsName) {
  const std::string ani = writeAni(2), icl = folder.write("a.icl", asText(iclFile()));
  folder.write("desktop/a.txt");
  desktop();
  folder.write("desktop/a.txt");
  openFolder(writeFolder(1));
  EXPECT_EQ(list.sessionMessage(), "You are already in Display All Icons In Folder session.");
  extract(kAniCommand, ani);
  EXPECT_EQ(list.sessionMessage(), "You are already in Extract From ANI session.");
  extract(kIclCommand, icl);
  EXPECT_EQ(list.sessionMessage(), "You are already in Extract From ICL session.");
  extract(kFileTypeCommand, icl);
  EXPECT_EQ(list.sessionMessage(), "You are already in Extract Icons Associated With Any File Type session.");
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_EQ(list.sessionMessage(), "You are already in Extract Desktop Icons session.");
  shell.cmdCancel();
  EXPECT_EQ(list.sessionMessage(), "");
}

TEST_F(IconsListSources, ACancelledDialogChangesNothing) {
  openFolder(writeFolder(3));
  list.moveMark(ListMove::End);
  state.process.mLastFolder = "/kept";
  for (const int command : {kAniCommand, kLargeCommand, kSmallCommand, kIclCommand, kFileTypeCommand}) {
    extract(command, "");
    EXPECT_EQ(list.mListSource(), ListSource::Folder);
    EXPECT_EQ(drawnCells(), 3);
    EXPECT_EQ(list.markedCell(), 2);
  }
  dialogs.paths.push_back("");
  list.cmdInvokeFolderOrFileDialog();
  EXPECT_EQ(drawnCells(), 3);
  EXPECT_EQ(state.process.mLastFolder, "/kept");
}

TEST_F(IconsListSources, DialogsHaveTheFiltersOfTheirSource) {
  const std::pair<int, std::vector<FileFilter>> filters[] = {
      {kAniCommand, {{"(*.ani)", "*.ani"}}},
      {kLargeCommand, {{"(*.dll)", "*.dll"}, {"(*.*)", "*.*"}}},
      {kSmallCommand, {{"(*.dll)", "*.dll"}, {"(*.*)", "*.*"}}},
      {kIclCommand, {{"(*.icl)", "*.icl"}}},
      {kFileTypeCommand, {{"(*.exe)", "*.exe"}, {"(*.*)", "*.*"}}}};
  for (const auto& [command, expected] : filters) {
    extract(command, "");
    EXPECT_EQ(dialogs.requests.back().filters, expected);
    EXPECT_EQ(dialogs.requests.back().fileName, "");
    EXPECT_EQ(dialogs.requests.back().folder, state.process.mLastFolder);
  }
}

TEST_F(IconsListSources, TheLibraryOfTheSystemIsProposedWhereItIs) {
  state.process.gSystemDir = folder.path();
  writeLibrary(1, "Shell32.dll");
  extract(kLargeCommand, "");
  EXPECT_EQ(dialogs.requests.back().fileName, folder.file("Shell32.dll"));
  EXPECT_EQ(dialogs.requests.back().folder, folder.path());
  extract(kIclCommand, "");
  EXPECT_EQ(dialogs.requests.back().fileName, "");
}

TEST_F(IconsListSources, TheFolderOfTheDialogIsRemembered) {
  extract(kLargeCommand, writeLibrary(1));
  EXPECT_EQ(state.process.mLastFolder, folder.path() + "/");
  const std::string icons = writeFolder(1);
  openFolder(icons);
  EXPECT_EQ(state.process.mLastFolder, icons + "/");
}

TEST_F(IconsListSources, TheIconIsAskedAboutBeforeTheDialog) {
  click("mnuFileSub", 2);
  paint(3, 3);
  expectSaveQuestion(BoxAnswer::Cancel);
  click("mnuExtractSub", kLargeCommand);  // no dialog
  EXPECT_FALSE(isListUp());
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(IconsListSources, ASessionOfAnAnimatedCursorEndsAfterTheLastQuestion) {
  click("mnuANIFileCreateOrEdit", kNoIndex);
  shell.animation().session.openFile(writeAni(3));
  boxes.expectAsked(kAniQuestion, BoxAnswer::No);
  click("mnuExtractSub", kLargeCommand);
  boxes.expectAsked(kAniQuestion, BoxAnswer::Yes);
  extract(kLargeCommand, "");
  const std::string bad = folder.write("bad.dll");
  boxes.expectAsked(kAniQuestion, BoxAnswer::Yes);
  boxes.expectTold(bad + "\nNo icon in this file", BoxIcon::Exclamation);
  extract(kLargeCommand, bad);
  EXPECT_TRUE(state.screen.aniContainerVisible);
  EXPECT_EQ(shell.animation().session.frames().count(), 3);
  boxes.expectAsked(kAniQuestion, BoxAnswer::Yes);
  extract(kLargeCommand, writeLibrary(1));
  EXPECT_FALSE(state.screen.aniContainerVisible);
  EXPECT_EQ(shell.animation().session.frames().count(), 0);
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListSources, AnotherSourceTakesThePlaceOfTheList) {
  openFolder(writeFolder(60));
  list.cmdNextPanel();
  extract(kLargeCommand, writeLibrary(2));
  EXPECT_EQ(list.mListSource(), ListSource::LargeIcons);
  EXPECT_EQ(list.cells().size(), 2U);
  EXPECT_EQ(list.panelItem(), 0);
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListSources, AnotherFileOfTheSameSourceIsListed) {
  extract(kLargeCommand, writeLibrary(2));
  const std::string other = writeLibrary(3, "other.dll");
  dialogs.paths.push_back(other);
  list.cmdInvokeFolderOrFileDialog();
  EXPECT_EQ(list.cells().size(), 3U);
  EXPECT_EQ(list.sourceLabel(), " " + other);
  EXPECT_EQ(list.mListSource(), ListSource::LargeIcons);
}

// Folders.

TEST_F(IconsListSources, AnEmptyFolderClosesTheList) {
  openFolder(writeFolder(2));
  dialogs.paths.push_back(folder.makeFolder("empty"));
  list.cmdInvokeFolderOrFileDialog();
  EXPECT_FALSE(isListUp());
  EXPECT_EQ(list.mListSource(), ListSource::None);
  EXPECT_EQ(list.countLabel(), "Icons  0 / 0");
  EXPECT_EQ(display.announced.back(), "Icons  0 / 0");
}

TEST_F(IconsListSources, AFolderIsJoinedWithOneSeparator) {
  openFolder(writeFolder(1) + "/");
  clickCell(0);
  EXPECT_EQ(path(), folder.path() + "/icons/a00.ico");
}

TEST_F(IconsListSources, FilesOfAFolderAreSortedAndOnlyIcons) {
  const std::string path = folder.makeFolder("icons");
  for (const char* name : {"b.ICO", "A.ico", "c.ico", "x.cur", "ico"})
    folder.write(std::string("icons/") + name, plainIconFile(16, 1));
  folder.makeFolder("icons/folder.ico");
  openFolder(path);
  EXPECT_THAT(labels(), ElementsAre("A", "b", "c"));
}

// Animated cursors.

TEST_F(IconsListSources, FramesAreListedAsTheyArePlayed) {
  const std::string ani =
      folder.write("film.ani", aniOf(headerWithSteps(2, 3, 3) + sequenceOf({1, 0, 1}) + frameList(2)));
  extract(kAniCommand, ani);
  EXPECT_EQ(list.mListSource(), ListSource::AniFrames);
  EXPECT_EQ(list.kindLabel(), "Extract Icons In ANI File");
  EXPECT_TRUE(list.offersSaveAll() && list.isSaveAllEnabled());
  EXPECT_THAT(labels(), ElementsAre("  1", "  2", "  3"));
  EXPECT_EQ(cellColor(0), colorOf(frameColor(1)));
  EXPECT_EQ(cellColor(1), colorOf(frameColor(0)));
  clickCell(2);
  EXPECT_EQ(stored(0), colorOf(frameColor(1)));
  EXPECT_EQ(path(), folder.path() + "/film_3");
}

TEST_F(IconsListSources, AFileWithoutFramesIsRefusedAndTheListIsEmpty) {
  const std::string bad = folder.write("bad.ani");
  boxes.expectTold("Failed to read this animated cursor file", BoxIcon::Exclamation);
  extract(kAniCommand, bad);
  EXPECT_TRUE(isListUp());
  EXPECT_TRUE(list.cells().empty());
  EXPECT_EQ(list.countLabel(), "Icons  0 / 0");
  EXPECT_FALSE(list.isSaveAllEnabled());
  dialogs.paths.push_back(writeAni(2));
  list.cmdInvokeFolderOrFileDialog();
  EXPECT_EQ(drawnCells(), 2);
}

TEST_F(IconsListSources, SeventyFramesAreListedAtMost) {
  extract(kAniCommand, writeAni(71));
  EXPECT_EQ(list.countLabel(), "Icons  48 / 70");
}

TEST_F(IconsListSources, AFrameThatCannotBeDrawnIsInvalidAndTheOthersAreNot) {
  const std::string ani =
      folder.write("film.ani", aniOf(headerOf(3) + frameList({plainFrame(0), "no icon file", plainFrame(2)})));
  extract(kAniCommand, ani);
  EXPECT_TRUE(list.cells()[0].valid);
  EXPECT_FALSE(list.cells()[1].valid);
  EXPECT_TRUE(list.cells()[2].valid);
}

TEST_F(IconsListSources, AFilmThatChangesUnderTheListIsReported) {
  extract(kAniCommand, writeAni(2));
  const std::string ani = folder.write("film.ani");
  boxes.expectTold(ani + "\nFailed to open the animated cursor file.", BoxIcon::Exclamation);
  clickCell(0);
  folder.write("film.ani", aniOf(headerOf(2) + frameList({"x", "y"})));
  boxes.expectTold(ani + "\nFailed to extract this icon from animated cursor file.", BoxIcon::Exclamation);
  clickCell(0);
  EXPECT_FALSE(state.current().used);
}

TEST_F(IconsListSources, AFileThatIsMissingAtTheNextPanelIsNamed) {
  const std::string path = writeLibrary(60);
  extract(kLargeCommand, path);
  std::filesystem::remove(path);
  boxes.expectTold(path + " missing", BoxIcon::None);
  list.cmdNextPanel();
  EXPECT_EQ(drawnCells(), 0);
}

// Libraries.

TEST_F(IconsListSources, LargeAndSmallIconsOfALibrary) {
  const std::string path = writeLibrary(3);
  extract(kLargeCommand, path);
  EXPECT_EQ(list.kindLabel(), "Extract DLL-Large");
  EXPECT_THAT(labels(), ElementsAre("  1", "  2", "  3"));
  EXPECT_EQ(cellColor(1), colorOf({11, 20, 30}));
  clickCell(1);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_EQ(stored(0), colorOf({11, 20, 30}));
  expectSaveQuestion(BoxAnswer::No);
  extract(kSmallCommand, path);
  EXPECT_EQ(list.kindLabel(), "Extract DLL-Small");
  EXPECT_EQ(cellColor(2), colorOf({12, 40, 50}));
  EXPECT_EQ(list.cells()[2].picture.width(), 16);
  clickCell(2);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_EQ(this->path(), folder.path() + "/tools_3");
  EXPECT_EQ(list.spokenMark(), "Icon 3 of 3, tools.dll, 16 by 16");
}

TEST_F(IconsListSources, ASmallIconHasSixteenPixelsWhateverTheLibraryHas) {
  const std::vector<Resource> resources{iconOf(1, imageBytes(plainPicture(48, {1, 2, 3}))),
                                        groupOf(1, {{48, 48, 0, 1, 24, 0, 1}})};
  extract(kSmallCommand, folder.write("big.dll", asText(peWith(resources))));
  clickCell(0);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_EQ(stored(0), colorOf({1, 2, 3}));
}

TEST_F(IconsListSources, AFileWithoutIconsIsNamed) {
  const std::string bad = folder.write("bad.dll");
  boxes.expectTold(bad + "\nNo icon in this file", BoxIcon::Exclamation);
  extract(kLargeCommand, bad);
  EXPECT_TRUE(isListUp());
  EXPECT_EQ(list.countLabel(), "Icons  0 / 0");
}

TEST_F(IconsListSources, TheRecordIsThatOfAnUnsavedIcon) {
  extract(kLargeCommand, writeLibrary(1));
  clickCell(0);
  const IconContainerRec& record = state.current();
  EXPECT_TRUE(record.used && record.present && record.neverSaved);
  EXPECT_FALSE(record.modified || record.hasAlpha || record.fromMultiIconFile || record.isCursor);
  EXPECT_EQ(record.sourceLabel.trimmed(), "Extraction");
}

TEST_F(IconsListSources, AlphaOfALibraryIsKept) {
  const std::vector<Resource> resources{iconOf(1, imageBytes(plainPicture(32, {1, 2, 3, 77}, 32))),
                                        groupOf(1, {{32, 32, 0, 1, 32, 0, 1}})};
  extract(kLargeCommand, folder.write("alpha.dll", asText(peWith(resources))));
  clickCell(0, ListButton::Right);
  EXPECT_TRUE(state.current().hasAlpha);
  EXPECT_EQ(state.current().bitCount, 32);
  EXPECT_EQ(state.mAlphaRecs[0].at(5, 5), 77);
}

TEST_F(IconsListSources, ExtractionNeverTouchesTheFile) {
  const Bytes bytes = library(2);
  extract(kLargeCommand, writeLibrary(2));
  clickCell(0);
  clickCell(1, ListButton::Right);
  EXPECT_EQ(folder.read("tools.dll"), asText(bytes));
}

// Scans.

TEST_F(IconsListSources, AScanShowsSizesAndBits) {
  extract(kIclCommand, folder.write("a.icl", asText(iclFile())));
  EXPECT_EQ(list.kindLabel(), "Extract Icons From ICL File");
  EXPECT_THAT(labels(), ElementsAre("16x16 (24)", "48x48 (24)"));
  EXPECT_EQ(list.cells()[1].picture.width(), 32);
  clickCell(1);
  EXPECT_EQ(state.current().size, 48);
  EXPECT_EQ(stored(0), colorOf({6, 5, 4}));
  EXPECT_EQ(path(), folder.path() + "/a_2");
}

TEST_F(IconsListSources, AScanThatFindsNothingSaysSo) {
  const std::string bad = folder.write("bad.icl");
  boxes.expectTold("No 16x16, 24x24, 32x32 or 48x48 icon found in this file", BoxIcon::Exclamation);
  extract(kIclCommand, bad);
  EXPECT_TRUE(list.cells().empty());
}

TEST_F(IconsListSources, ALibraryWithMoreIconsThanTheScanFindsIsOffered) {
  // The two icons share an image of another size.
  const std::vector<Resource> resources{iconOf(1, imageBytes(plainPicture(20, {1, 2, 3}))),
                                        groupOf(1, {{20, 20, 0, 1, 24, 0, 1}}), groupOf(2, {{20, 20, 0, 1, 24, 0, 1}})};
  for (const Bytes& bytes : {peWith(resources), neWith(resources)}) {
    const std::string path = folder.write("b.icl", asText(bytes));
    const std::string question = path +
                                 "\n\nThe scan finds 0 icons in this file, which is a library of 2 icons.\n\n"
                                 "List the large icons of the library instead?";
    boxes.expectAsked(question, BoxAnswer::No);
    boxes.expectTold("No 16x16, 24x24, 32x32 or 48x48 icon found in this file", BoxIcon::Exclamation);
    extract(kIclCommand, path);
    EXPECT_EQ(list.mListSource(), ListSource::IclScan);
    shell.cmdCancel();
    boxes.expectAsked(question, BoxAnswer::Yes);
    extract(kIclCommand, path);
    EXPECT_EQ(list.mListSource(), ListSource::LargeIcons);
    EXPECT_EQ(drawnCells(), 2);
    shell.cmdCancel();
  }
}

TEST_F(IconsListSources, ALibraryWhoseIconsTheScanFindsIsNotOffered) {
  extract(kIclCommand, writeLibrary(2, "a.icl"));
  EXPECT_EQ(list.mListSource(), ListSource::IclScan);
  EXPECT_EQ(drawnCells(), 4);
}

// Files of any type, and the desktop.

TEST_F(IconsListSources, AFileHasALargeAndASmallIcon) {
  const std::string path = folder.write("letter.txt");
  fileTypes.colors[path] = 0x123456;
  extract(kFileTypeCommand, path);
  EXPECT_EQ(list.kindLabel(), "Icons Associated With File");
  EXPECT_THAT(labels(), ElementsAre("", ""));
  EXPECT_EQ(list.cells()[0].picture.width(), 32);
  EXPECT_EQ(list.cells()[1].picture.width(), 16);
  clickCell(1);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_EQ(stored(0), 0x123456);
  EXPECT_EQ(this->path(), folder.path() + "/letter_Extract");
  EXPECT_TRUE(state.current().hasAlpha);
}

TEST_F(IconsListSources, AFileWithoutAnIconHasInvalidCells) {
  extract(kFileTypeCommand, folder.write("letter.txt"));
  EXPECT_FALSE(list.cells()[0].valid);
  EXPECT_FALSE(list.cells()[1].valid);
}

TEST_F(IconsListSources, AnIconThatHasGoneSinceItWasDrawnIsReported) {
  const std::string path = folder.write("letter.txt");
  fileTypes.colors[path] = 0x123456;
  extract(kFileTypeCommand, path);
  fileTypes.colors.clear();
  boxes.expectTold(path + "\nFailed to extract the clicked one", BoxIcon::Exclamation);
  clickCell(0);
}

TEST_F(IconsListSources, TheDesktopShowsItsFiles) {
  const std::string path = desktop();
  for (const char* name : {"letter.txt", "a long name.txt"}) {
    folder.write(std::string("desktop/") + name);
    fileTypes.colors[path + "/" + name] = 0x102030;
  }
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_EQ(list.kindLabel(), "Desktop Icons");
  EXPECT_EQ(list.sourceLabel(), " " + path);
  EXPECT_THAT(labels(), ElementsAre("a long nam..", "letter"));
  clickCell(1);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_EQ(stored(0), 0x102030);
  EXPECT_EQ(this->path(), path + "/letter_Extract");
}

// A shell link to a file of this machine.
std::string linkTo(std::string path) {
  constexpr std::uint32_t kHasInfo = 0x2;
  std::ranges::replace(path, '/', '\\');
  LinkBytes link(kHasInfo);
  return asText(link.info("Z:" + path).bytes());
}

TEST_F(IconsListSources, AShellLinkCountsAsItsTarget) {
  desktop();
  const std::string target = folder.write("setup.exe");
  fileTypes.colors[target] = 0x102030;
  folder.write("desktop/a.lnk", linkTo(target));
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_THAT(labels(), ElementsAre("setup"));
  clickCell(0);
  EXPECT_EQ(stored(0), 0x102030);
  EXPECT_EQ(path(), folder.path() + "/setup_Extract");
}

TEST_F(IconsListSources, ALinkWithoutATargetHereCountsAsItself) {
  const std::string path = desktop();
  folder.write("desktop/gone.lnk", linkTo(folder.file("gone.exe")));
  folder.write("desktop/link", linkTo(folder.write("setup.exe")));  // not named as a link
  for (const char* name : {"gone.lnk", "link"}) fileTypes.colors[path + "/" + name] = 0x102030;
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_THAT(labels(), ElementsAre("gone", "link"));
  EXPECT_TRUE(list.cells()[0].valid && list.cells()[1].valid);
}

TEST_F(IconsListSources, ADesktopEntryHasTheIconThatItNames) {
  const std::string path = desktop();
  folder.write("desktop/a.desktop", "[Desktop Entry]\nName=Paint\nIcon=painter\nExec=never\n");
  folder.write("desktop/b.desktop", "[Desktop Entry]\nIcon=unknown\n");
  fileTypes.colors["painter"] = 0x112233;
  fileTypes.colors[path + "/b.desktop"] = 0x445566;
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_EQ(cellColor(0), 0x112233);
  EXPECT_EQ(cellColor(1), 0x445566);
  EXPECT_THAT(fileTypes.askedNames, ElementsAre("painter", "unknown"));
}

TEST_F(IconsListSources, AnIconFileThatADesktopEntryNamesIsReadAsAnyIcon) {
  desktop();
  const std::string own = folder.write("own.ico", asText(build(IcoFile{{plainEntry(32, {1, 2, 3})}, 0, 1, {}})));
  folder.write("desktop/a.desktop", "[Desktop Entry]\nIcon=" + own + "\n");
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_EQ(cellColor(0), colorOf({1, 2, 3}));
  EXPECT_TRUE(fileTypes.askedNames.empty());
}

TEST_F(IconsListSources, AnIconOfTheDesktopThatHasGoneSaysSo) {
  const std::string file = desktop() + "/a.txt";
  folder.write("desktop/a.txt", "");
  fileTypes.colors[file] = 0x445566;
  click("mnuExtractSub", kDesktopCommand);
  fileTypes.colors.clear();
  boxes.expectTold(file + "\nUnable to retieve this one.", BoxIcon::Exclamation);
  clickCell(0);
  EXPECT_FALSE(state.current().used);
}

TEST_F(IconsListSources, ADesktopThatIsNotThereOrEmptySaysSo) {
  state.process.mDesktopFolder = "";
  boxes.expectTold("No desktop shortcut icon files found", BoxIcon::Exclamation);
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_TRUE(list.cells().empty());
  shell.cmdCancel();
  desktop();
  boxes.expectTold("No icons found", BoxIcon::Exclamation);
  click("mnuExtractSub", kDesktopCommand);
  EXPECT_EQ(list.countLabel(), "Icons  0 / 0");
}

TEST_F(IconsListSources, AnIconWithoutAVisiblePixelIsInvalid) {
  const std::string path = folder.write("letter.txt");
  fileTypes.colors[path] = 0x123456;
  fileTypes.alpha = 0;
  extract(kFileTypeCommand, path);
  EXPECT_FALSE(list.cells()[0].valid);
}

TEST_F(IconsListSources, AnIconOfTheDesktopWithAnotherSizeIsNotTaken) {
  const std::string path = folder.write("letter.txt");
  fileTypes.colors[path] = 0x123456;
  fileTypes.givenSize = 20;
  extract(kFileTypeCommand, path);
  boxes.expectTold(path + "\nWidth and height of this image not 16x16, 24x24, 32x32 or 48x48", BoxIcon::Exclamation);
  clickCell(0);
  EXPECT_FALSE(state.current().used);
}

// A question can let other events in.
class ClosingBoxes : public ScriptedBoxes {
 public:
  std::function<void()> inside;  // at the next box

  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) override {
    if (auto action = std::exchange(inside, nullptr)) action();
    return ScriptedBoxes::show(text, buttons, icon, suggested);
  }
};

class IconsListEvents : public ListProgram<ProgramFixture<ClosingBoxes>> {};

TEST_F(IconsListEvents, AListThatClosesDuringAQuestionBringsNoIcon) {
  click("mnuFileSub", 2);
  paint(3, 3);
  expectSaveQuestion(BoxAnswer::No);
  extract(kLargeCommand, writeLibrary(2));
  expectSaveQuestion(BoxAnswer::No);
  boxes.inside = [&] { shell.showPanel(kColorPanel); };
  clickCell(1);
  EXPECT_FALSE(isListUp());
  EXPECT_EQ(state.picImage.GetPixel(3, 3), state.mCurrentColor);
}

TEST_F(IconsListEvents, NothingIsOpenedWhileADialogOfTheListIsOpen) {
  const std::string path = writeLibrary(2);
  dialogs.inside = [&] { click("mnuExtractSub", kSmallCommand); };
  extract(kLargeCommand, path);
  EXPECT_EQ(list.mListSource(), ListSource::LargeIcons);
  EXPECT_EQ(dialogs.requests.size(), 1U);
}

}  // namespace
}  // namespace gp::test

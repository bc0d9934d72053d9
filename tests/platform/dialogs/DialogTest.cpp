#include "platform/dialogs/clsGPDialog.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

using namespace std::string_literals;

class Dialog : public testing::Test {
 protected:
  const FileDialogRequest& request() const { return dialogs_.requests.back(); }
  unsigned openFlags(const OpenOptions& options) {
    dialogs_.paths.push_back("");
    dialog_.ShowOpen(options);
    return request().flags;
  }
  unsigned saveFlags(const SaveOptions& options) {
    dialogs_.paths.push_back("");
    dialog_.ShowSave(options);
    return request().flags;
  }

  test::ScriptedDialogs dialogs_;
  clsGPDialog dialog_{dialogs_};
};

OpenOptions openWith(bool multiSelect, bool fileMustExist, bool readOnly, bool hideReadOnly) {
  OpenOptions options;
  options.multiSelect = multiSelect;
  options.fileMustExist = fileMustExist;
  options.readOnly = readOnly;
  options.hideReadOnly = hideReadOnly;
  return options;
}

TEST_F(Dialog, EachOpenOptionIsOneFlag) {
  EXPECT_EQ(openFlags(openWith(false, false, false, false)), 0u);
  EXPECT_EQ(openFlags(openWith(true, false, false, false)), 0x200u);
  EXPECT_EQ(openFlags(openWith(false, true, false, false)), 0x1000u);
  EXPECT_EQ(openFlags(openWith(false, false, true, false)), 1u);
  EXPECT_EQ(openFlags(openWith(false, false, false, true)), 4u);
  EXPECT_EQ(openFlags(OpenOptions()), 0x1004u);
  EXPECT_EQ(openFlags(openWith(true, true, true, true)), 0x1205u);
}

TEST_F(Dialog, SavingAlwaysHidesReadOnlyAndMayAskBeforeOverwriting) {
  SaveOptions options;
  EXPECT_EQ(saveFlags(options), 6u);
  options.overwritePrompt = false;
  EXPECT_EQ(saveFlags(options), 4u);
}

TEST_F(Dialog, OpeningPassesEverythingOn) {
  dialogs_.paths.push_back("/a/b.ico");
  OpenOptions options;
  options.fileName = "b.ico";
  options.filter = "Icon files (*.ico)|*.ico|(*.*)|*.*|";
  options.initialFolder = "/a";
  options.title = "Open";
  options.defaultExtension = "ico";
  EXPECT_EQ(dialog_.ShowOpen(options), "/a/b.ico");
  EXPECT_EQ(request().fileName, "b.ico");
  EXPECT_EQ(request().folder, "/a");
  EXPECT_EQ(request().title, "Open");
  EXPECT_EQ(request().defaultExtension, "ico");
  EXPECT_EQ(request().filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}, {"(*.*)", "*.*"}}));
}

TEST_F(Dialog, SavingPassesEverythingOn) {
  dialogs_.paths.push_back("/a/b.ico");
  SaveOptions options;
  options.fileName = "b";
  options.filter = "Palette file (*.pal)|*.pal|";
  options.initialFolder = "/a";
  options.title = "Save";
  options.defaultExtension = "pal";
  EXPECT_EQ(dialog_.ShowSave(options), "/a/b.ico");
  EXPECT_EQ(request().fileName, "b");
  EXPECT_EQ(request().folder, "/a");
  EXPECT_EQ(request().title, "Save");
  EXPECT_EQ(request().defaultExtension, "pal");
  EXPECT_EQ(request().filters, (std::vector<FileFilter>{{"Palette file (*.pal)", "*.pal"}}));
}

TEST_F(Dialog, ACancelWithoutAnErrorGivesAnEmptyPathAndNoError) {
  dialogs_.paths = {"", ""};
  EXPECT_EQ(dialog_.ShowOpen({}), "");
  EXPECT_EQ(dialog_.extendedError(), 0);
  EXPECT_EQ(dialog_.ShowSave({}), "");
  EXPECT_EQ(dialog_.extendedError(), 0);
}

TEST_F(Dialog, AnErrorIsKeptUntilTheNextCall) {
  dialogs_.paths = {"", "", "/a"};
  dialogs_.errorOnCancel = 0x3003;
  EXPECT_EQ(dialog_.ShowOpen({}), "");
  EXPECT_EQ(dialog_.extendedError(), 0x3003);
  EXPECT_EQ(dialog_.ShowSave({}), "");
  EXPECT_EQ(dialog_.extendedError(), 0x3003);
  EXPECT_EQ(dialog_.ShowOpen({}), "/a");
  EXPECT_EQ(dialog_.extendedError(), 0);
}

TEST_F(Dialog, TheColorDialogClearsTheError) {
  dialogs_.paths = {""};
  dialogs_.errorOnCancel = 5;
  dialog_.ShowOpen({});
  dialogs_.colors = {kNoColor};
  Color color = 0x123456;
  EXPECT_FALSE(dialog_.ShowColor(color));
  EXPECT_EQ(dialog_.extendedError(), 0);
}

TEST_F(Dialog, APathIsCutAtItsFirstNul) {
  dialogs_.paths = {"/a/b.ico\0rest"s, "/c\0"s};
  EXPECT_EQ(dialog_.ShowOpen({}), "/a/b.ico");
  EXPECT_EQ(dialog_.ShowSave({}), "/c");
}

TEST_F(Dialog, APathOf260CharactersPassesWhole) {
  const std::string path = "/" + std::string(259, 'p');
  dialogs_.paths = {path, path};
  OpenOptions options;
  options.fileName = path;
  EXPECT_EQ(dialog_.ShowOpen(options), path);
  EXPECT_EQ(request().fileName, path);
  EXPECT_EQ(dialog_.ShowSave({}), path);
}

TEST_F(Dialog, AProposedNameEndsAtItsFirstNul) {
  dialogs_.paths = {""};
  OpenOptions options;
  options.fileName = "a.ico\0\0\0"s;
  dialog_.ShowOpen(options);
  EXPECT_EQ(request().fileName, "a.ico");
}

TEST_F(Dialog, AChosenColorIsReturned) {
  dialogs_.colors = {0x0000FF, kNoColor};
  Color color = 0x123456;
  EXPECT_TRUE(dialog_.ShowColor(color));
  EXPECT_EQ(color, 0x0000FF);
  EXPECT_FALSE(dialog_.ShowColor(color));
  EXPECT_EQ(color, 0x0000FF);
}

TEST_F(Dialog, TheFolderChooserAnswersAFolder) {
  dialogs_.paths = {"/home/ana", ""};
  EXPECT_EQ(dialog_.chooseFolder("*.ICO", "/home"), "/home/ana");
  EXPECT_EQ(dialog_.chooseFolder("*.ICO", "/home"), "");
}

// Records the request to the printer dialog.
class PrinterDialogs : public test::ScriptedDialogs {
 public:
  bool accepted = true;
  int chosenCopies = 1;
  PrinterRequest asked;

  bool choosePrinter(PrinterRequest& request) override {
    asked = request;
    request.copies = chosenCopies;
    return accepted;
  }
};

TEST(PrinterDialog, ThePageRangeChoosesTheFlag) {
  PrinterDialogs dialogs;
  clsGPDialog dialog(dialogs);
  int copies = 2;
  dialogs.chosenCopies = 3;
  EXPECT_TRUE(dialog.ShowPrinter(true, copies));
  EXPECT_EQ(dialogs.asked.flags, 0x40102u);
  EXPECT_EQ(dialogs.asked.copies, 2);
  EXPECT_EQ(copies, 3);
  EXPECT_TRUE(dialog.ShowPrinter(false, copies));
  EXPECT_EQ(dialogs.asked.flags, 0x40101u);
}

TEST(PrinterDialog, ACancelKeepsTheCopies) {
  PrinterDialogs dialogs;
  clsGPDialog dialog(dialogs);
  dialogs.accepted = false;
  dialogs.chosenCopies = 9;
  int copies = 2;
  EXPECT_FALSE(dialog.ShowPrinter(true, copies));
  EXPECT_EQ(copies, 2);
}

TEST(Filter, BarsAndColonsBecomeNulsAndTwoEndTheText) {
  EXPECT_EQ(separateFilter("Icon files (*.ico)|*.ico|"), "Icon files (*.ico)\0*.ico\0\0\0"s);
  EXPECT_EQ(separateFilter("a:b"), "a\0b\0\0"s);
}

TEST(Filter, ATextWithoutATrailingBarStillEndsWithTwoNuls) {
  EXPECT_EQ(separateFilter("Icon files (*.ico)|*.ico"), "Icon files (*.ico)\0*.ico\0\0"s);
  EXPECT_EQ(separateFilter(""), "\0\0"s);
}

TEST(Filter, PairsAreTheSameWithAndWithoutTheTrailingBar) {
  const std::vector<FileFilter> expected = {{"Icon files (*.ico)", "*.ico"}};
  EXPECT_EQ(parseFilter("Icon files (*.ico)|*.ico|"), expected);
  EXPECT_EQ(parseFilter("Icon files (*.ico)|*.ico"), expected);
  EXPECT_EQ(parseFilter(separateFilter("Icon files (*.ico)|*.ico|")), expected);
}

TEST(Filter, AColonInADescriptionSeparatesToo) {
  EXPECT_EQ(parseFilter("Icons: small|*.ico|"), (std::vector<FileFilter>{{"Icons", " small"}}));
}

TEST(Filter, AnEmptyTextHasNoPairs) {
  EXPECT_TRUE(parseFilter("").empty());
  EXPECT_TRUE(parseFilter("||").empty());
  EXPECT_TRUE(parseFilter("alone").empty());
}

}  // namespace
}  // namespace gp

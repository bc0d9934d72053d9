#include "output/Enquiry.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Writes down what is shown, with the file that it is shown for.
class RecordingForms : public FileForms {
 public:
  explicit RecordingForms(EditState& state) : state_(state) {}
  std::vector<std::string> shown;

  void showMultiIcon() override { shown.push_back("browser " + state_.multiIcon.gMultiIconFile); }
  void showHeaderDiff() override { shown.push_back("headers " + state_.multiIcon.gMultiIconFile); }

 private:
  EditState& state_;
};

class EnquiryTest : public testing::Test {
 protected:
  TempFolder folder;
  EditState state;
  FakeEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  ScriptedDialogs dialogs;
  clsGPDialog dialog{dialogs};
  RecordingForms forms{state};
  CursorFiles cursors{FilesContext{state, editor, display, boxes, pump, dialog}};
  Enquiry enquiry{state, editor, boxes, pump, forms, cursors};

  IconContainerRec& record() { return state.current(); }
  void makeIcon(const std::string& path) {
    record().used = record().present = true;
    record().path = path;
  }
};

TEST_F(EnquiryTest, WithoutAnIconEveryEntrySaysSo) {
  for (const int index : {5, 9, 11}) {
    boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
    enquiry.mnuEnquiryCurrent(index);
  }
  EXPECT_TRUE(forms.shown.empty());
  EXPECT_EQ(pump.pumps, 0);
}

TEST_F(EnquiryTest, TheHeadersOfADiscrepantFileAreShown) {
  makeIcon(folder.write("odd.ico"));
  record().dirColors = 16;
  record().bihColors = 256;
  enquiry.mnuEnquiryCurrent(5);
  EXPECT_EQ(forms.shown, std::vector<std::string>{"headers " + folder.file("odd.ico")});
  EXPECT_EQ(pump.pumps, 1);
}

TEST_F(EnquiryTest, HeadersThatAgreeAreNotShown) {
  makeIcon(folder.write("even.ico"));
  enquiry.mnuEnquiryCurrent(5);
  EXPECT_TRUE(forms.shown.empty());
}

TEST_F(EnquiryTest, AFileThatIsGoneIsTold) {
  makeIcon(folder.file("gone.ico"));
  record().bitCount = 4;
  record().bihBitCount = 8;
  record().fromMultiIconFile = true;
  for (const int index : {5, 9}) {
    boxes.expectTold(folder.file("gone.ico") + "\nfile can no longer be found!", BoxIcon::Exclamation);
    enquiry.mnuEnquiryCurrent(index);
  }
  EXPECT_TRUE(forms.shown.empty());
  EXPECT_EQ(editor.count("doOpenIconFile " + folder.file("gone.ico")), 0);
}

TEST_F(EnquiryTest, TheIconsOfAMultiIconFileAreShownByOpeningIt) {
  makeIcon(folder.write("many.ico"));
  record().fromMultiIconFile = true;
  enquiry.mnuEnquiryCurrent(9);
  EXPECT_EQ(editor.calls,
            (std::vector<std::string>{"CommitPendingPaint", "doOpenIconFile " + folder.file("many.ico")}));
}

TEST_F(EnquiryTest, AnIconOfASingleIconFileHasNoOthersToShow) {
  makeIcon(folder.write("one.ico"));
  enquiry.mnuEnquiryCurrent(9);
  EXPECT_TRUE(editor.calls.empty());
}

TEST_F(EnquiryTest, AChangedIconIsAskedAboutAndARefusalShowsNothing) {
  makeIcon(folder.write("many.ico"));
  record().fromMultiIconFile = true;
  record().modified = true;
  editor.askSaveProceeds = false;
  enquiry.mnuEnquiryCurrent(9);
  EXPECT_EQ(editor.calls, (std::vector<std::string>{"CommitPendingPaint", "AskSaveCurrent "}));
}

TEST_F(EnquiryTest, TheHotSpotOfTheOriginalCursorBlinksForCursorsOnly) {
  makeIcon(folder.file("arrow.cur"));
  enquiry.mnuEnquiryCurrent(11);
  EXPECT_EQ(pump.waitedMilliseconds, 0);
  record().isCursor = true;
  record().hotspotX = 3;
  record().hotspotY = 4;
  enquiry.mnuEnquiryCurrent(11);
  EXPECT_EQ(pump.waitedMilliseconds, 900);
}

}  // namespace
}  // namespace gp::test

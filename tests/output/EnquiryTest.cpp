#include "document/Containers.h"
#include "files/Files.h"
#include "files/IcoBuilder.h"
#include "output/Output.h"
#include "support/Rooms.h"

#include <functional>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Records which form is shown, and for which file.
class RecordingForms : public FileForms {
 public:
  explicit RecordingForms(MultiIconExchange& exchange) : exchange_(exchange) {}
  std::vector<std::string> shown;

  // The user closes the browser at once.
  void showMultiIcon() override {
    shown.push_back("browser " + exchange_.gMultiIconFile);
    exchange_.gMultiIconResult.clear();
    exchange_.gLoadAndReturn = false;
  }
  void showHeaderDiff() override { shown.push_back("headers " + exchange_.gMultiIconFile); }

 private:
  MultiIconExchange& exchange_;
};

class EnquiryTest : public testing::Test, protected Rooms {
 protected:
  IconFolder folder;
  Files files{context, document, drawing, dialog, folder.path("gptmp.ico")};
  Output output{context, files};
  Enquiry& enquiry = output.enquiry;
  RecordingForms forms{files.context().multiIcon};

  EnquiryTest() { files.attach(&forms); }
  IconContainerRec& record() { return state.current(); }
  void makeIcon(const std::string& path) {
    document.arrival.arrive(transparentIcon(32), NewRecord());
    record().path = path;
    editor.calls.clear();
    pump.pumps = 0;
  }
  std::string writeManyIcons(const std::string& name) {
    return folder.write(name, build(IcoFile{{anyEntry(16, 4), anyEntry(32, 8)}, 0, 1, {}}));
  }
};

TEST_F(EnquiryTest, TheHeadersOfADiscrepantFileAreShown) {
  makeIcon(writeManyIcons("odd.ico"));
  enquiry.showOriginalHeaders();
  EXPECT_EQ(forms.shown, std::vector<std::string>{"headers " + folder.file("odd.ico")});
  EXPECT_EQ(pump.pumps, 1);
}

TEST_F(EnquiryTest, AFileThatIsGoneIsReported) {
  makeIcon(folder.file("gone.ico"));
  record().fromMultiIconFile = true;
  for (void (Enquiry::*entry)() : {&Enquiry::showOriginalHeaders, &Enquiry::showIconsInFile}) {
    boxes.expectTold(folder.file("gone.ico") + "\nfile can no longer be found!", BoxIcon::Exclamation);
    std::invoke(entry, enquiry);
  }
  EXPECT_TRUE(forms.shown.empty());
}

TEST_F(EnquiryTest, TheIconsOfAMultiIconFileAreShownByOpeningIt) {
  makeIcon(writeManyIcons("many.ico"));
  record().fromMultiIconFile = true;
  const unsigned icon = state.iconSerial;
  enquiry.showIconsInFile();
  EXPECT_EQ(forms.shown, std::vector<std::string>{"browser " + folder.file("many.ico")});
  EXPECT_EQ(editor.count("AskSaveCurrent "), 0);
  EXPECT_EQ(state.iconSerial, icon) << "the user chose none of them";
}

TEST_F(EnquiryTest, AChangedIconIsAskedAboutAndARefusalShowsNothing) {
  makeIcon(writeManyIcons("many.ico"));
  record().fromMultiIconFile = true;
  record().modified = true;
  editor.askSaveProceeds = false;
  enquiry.showIconsInFile();
  EXPECT_EQ(editor.calls, std::vector<std::string>{"AskSaveCurrent "});
  EXPECT_TRUE(forms.shown.empty());
  editor.askSaveProceeds = true;
  enquiry.showIconsInFile();
  EXPECT_EQ(editor.count("AskSaveCurrent "), 2);
  EXPECT_EQ(forms.shown.size(), 1U);
}

TEST_F(EnquiryTest, AfterASaveTheFileThatTheIconCameFromIsShown) {
  makeIcon(writeManyIcons("many.ico"));
  record().fromMultiIconFile = true;
  record().modified = true;
  editor.atCall("AskSaveCurrent ", [this] { record().path = folder.file("saved.ico"); });
  enquiry.showIconsInFile();
  EXPECT_EQ(forms.shown, std::vector<std::string>{"browser " + folder.file("many.ico")});
}

TEST_F(EnquiryTest, TheHotSpotOfTheOriginalCursorBlinks) {
  makeIcon(folder.file("arrow.cur"));
  enquiry.revealHotspot();
  EXPECT_EQ(pump.waitedMilliseconds, 0) << "it came from no cursor";
  record().isCursor = true;
  record().hotspotX = 3;
  record().hotspotY = 4;
  enquiry.revealHotspot();
  EXPECT_EQ(pump.waitedMilliseconds, 900);
}

}  // namespace
}  // namespace gp::test

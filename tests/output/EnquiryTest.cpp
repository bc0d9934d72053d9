#include "alpha/Alpha.h"
#include "document/Containers.h"
#include "document/CurrentIcon.h"
#include "files/Files.h"
#include "files/IcoBuilder.h"
#include "files/enquiry/IconProperties.h"
#include "files/format/IconWriter.h"
#include "files/saving/CurrentIcon.h"
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
  Alpha alpha{files.context(), files.iconSaver};
  Output output{context, files, alpha.commands};
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

// General properties, colours and bytes ------------------------------------------------------------------------------

TEST_F(EnquiryTest, ThePropertiesOfANewIcon) {
  makeIcon("Untitled");
  record().setDepth(kStandardDepth);
  record().setHeaderDepth(kStandardDepth);
  record().neverSaved = true;
  boxes.expectTold(
      "PROPERTIES OF CURRENT ICON:  \n\n\nPosition in Icons Panel:    1 (of 6)\nSource:    New icon\n\nIcon size:    "
      "32 x "
      "32\n\nColor-depth per original:   16-color  4 BPP   \n\nCurrent color-depth:   2-color  1 BPP\n\nChange made:   "
      " "
      "Yes\n\n",
      BoxIcon::None);
  enquiry.showProperties();
  EXPECT_EQ(pump.pumps, 1);
}

TEST_F(EnquiryTest, ThePropertiesNameFileReferenceAndHotspot) {
  struct Case {
    const char* source;
    bool fromMultiIconFile, isCursor;
    const char* lines;
  };
  const Case cases[] = {
      {"ICO file", false, true, "Source:    ICO file\nFile spec:    /icons/app.ico    \n\nIcon size"},
      {"ICO file", true, false,
       "Source:    ICO file\nFile spec:    /icons/app.ico    \n(Index Ref 7 in multi-icon file)\n\nIcon size"},
      {"CUR file", true, true,
       "Source:    CUR file\nFile spec:    /icons/app.ico    \n[Hotspot:    3, 14]\n\nIcon size"},
      {"CUR file", false, false, "Source:    CUR file\nFile spec:    /icons/app.ico    \n\nIcon size"},
      {"BMP or opened as BMP", true, true,
       "Source:    BMP or opened as BMP\nFile spec:    /icons/app.ico    \n\nIcon size"},
      {"Extraction", true, true, "Source:    Extraction\n\nIcon size"}};
  makeIcon("/icons/app.ico");
  for (const Case& one : cases) {
    record().sourceLabel = one.source;
    record().fromMultiIconFile = one.fromMultiIconFile;
    record().isCursor = one.isCursor;
    record().multiIconIndex = 7;
    record().hotspotX = 3;
    record().hotspotY = 14;
    EXPECT_NE(propertiesText(record(), state.picImage, false).find(one.lines), std::string::npos)
        << propertiesText(record(), state.picImage, false);
  }
}

TEST_F(EnquiryTest, ThePropertiesStateBothDepths) {
  struct Case {
    ColorDepth directory, header;
    bool hasAlpha;
    const char* lines;
  };
  const Case cases[] = {
      {{256, 8},
       {256, 8},
       false,
       "Color-depth per original:   256-color  8 BPP   \n\nCurrent color-depth:   2-color  1 BPP\n\n"},
      {{kTrueColor, 24},
       {16, 4},
       false,
       "Color-depth per original:   True-color  4 BPP   \n\nCurrent color-depth:   True-color  24 BPP\n\n"},
      {{kTrueColor, 32},
       {kTrueColor, 32},
       true,
       "Color-depth per original:   True-color  32 BPP   \n[With Alpha Channel]\n\nCurrent color-depth:   True-color  "
       "32 "
       "BPP\n[With Alpha Channel]\n\n"},
      {{16, 0}, {16, 4}, false, "32 x 32\n\n\nCurrent color-depth:   2-color  1 BPP\n\n"}};
  makeIcon("app.ico");
  for (const Case& one : cases) {
    record().setDepth(one.directory);
    record().setHeaderDepth(one.header);
    record().hasAlpha = one.hasAlpha;
    EXPECT_NE(propertiesText(record(), state.picImage, false).find(one.lines), std::string::npos)
        << propertiesText(record(), state.picImage, false);
  }
}

TEST_F(EnquiryTest, AnIconThatWasNeverSavedCountsAsChanged) {
  makeIcon("app.ico");
  record().modified = false;
  for (const bool neverSaved : {true, false}) {
    record().neverSaved = neverSaved;
    boxes.expectTold(propertiesText(record(), state.picImage, neverSaved), BoxIcon::None);
    enquiry.showProperties();
  }
  EXPECT_NE(propertiesText(record(), state.picImage, true).find("Change made:    Yes\n\n"), std::string::npos);
  EXPECT_NE(propertiesText(record(), state.picImage, false).find("Change made:    No\n\n"), std::string::npos);
}

TEST_F(EnquiryTest, ColorsAreCountedWithTheBlackOfTransparentPixels) {
  makeIcon("app.ico");
  boxes.expectTold("COUNT OF COLORS:\n\nActual count of colors used:   1\n", BoxIcon::None);
  enquiry.showColorCount();
  for (int i = 0; i < 300; ++i) {
    state.picImage.SetPixelV(i % 32, i / 32, rgb(1 + i % 250, i / 250, 9));
    state.picMask.SetPixelV(i % 32, i / 32, kBlack);
  }
  boxes.expectTold("COUNT OF COLORS:\n\nActual count of colors used:   301\n", BoxIcon::None);
  enquiry.showColorCount();
  state.picImage.fill(kWhite);
  boxes.expectTold("COUNT OF COLORS:\n\nActual count of colors used:   1\n", BoxIcon::None);
  enquiry.showColorCount();
  EXPECT_EQ(pump.pumps, 3);
}

TEST_F(EnquiryTest, TheBytesAreThoseOfTheFileThatASaveWrites) {
  // The pictures need 1, 4, 8 and 24 bits; a record of true colour makes each one of 24, one of alpha of 32.
  const auto fill = [](Surface& image, int picture) {
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const Color colors[] = {(x + y) % 2 == 0 ? kBlack : kWhite, x % 2 == 0 ? rgb(128, 0, 0) : rgb(0, 0, 255),
                                rgb(x % 8 * 30, y % 8 * 30, 1), rgb(x * 5, y * 5, x * y % 256)};
        image.SetPixelV(x, y, colors[picture]);
      }
  };
  for (const int size : kIconSides)
    for (int picture = 0; picture < 4; ++picture)
      for (const ColorDepth depth : {kStandardDepth, ColorDepth{kTrueColor, 24}, ColorDepth{kTrueColor, 32}}) {
        IconImage icon = transparentIcon(size);
        fill(icon.image, picture);
        icon.mask.fill(kBlack);
        if (depth.hasAlpha()) icon.alpha = AlphaMatrix(size, size, 128);
        IconContainerRec described = NewRecord();
        described.setDepth(depth);
        described.setHeaderDepth(depth);
        described.hasAlpha = depth.hasAlpha();
        document.arrival.arrive(icon, described);
        const auto file = composeSingleIcon(currentIcon(state), depthToWrite(currentIcon(state), record()));
        EXPECT_EQ(bytesWhenSaved(record(), icon), file.size()) << size << " " << picture;
        boxes.expectTold(std::to_string(file.size()) + " bytes when saved to a single-icon file.", BoxIcon::None);
        enquiry.showByteCount();
      }
}

// A cursor cannot be saved as the icon with alpha whose bytes are stated.
TEST_F(EnquiryTest, ACursorWithAlphaCountsAsAnIconWithAlpha) {
  makeIcon("arrow.cur");
  record().setDepth({kTrueColor, 32});
  record().hasAlpha = true;
  record().isCursor = true;
  boxes.expectTold("4286 bytes when saved to a single-icon file.", BoxIcon::None);
  enquiry.showByteCount();
}

TEST_F(EnquiryTest, ATrueColorIconOf32PixelsHas3262Bytes) {
  makeIcon("app.ico");
  record().setDepth({kTrueColor, 24});
  EXPECT_EQ(bytesWhenSaved(record(), currentIcon(state)), 3262U);
}

}  // namespace
}  // namespace gp::test

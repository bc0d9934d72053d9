// The panel that shows the icon on three screen colours: what its pictures are made of, and what they follow.
#include "alpha/Alpha.h"
#include "document/Containers.h"
#include "files/Files.h"
#include "output/Output.h"
#include "output/PreviewPanel.h"
#include "support/Rooms.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr Color kNavy = rgb(0, 0, 128);

class PreviewPanelTest : public testing::Test, protected Rooms {
 protected:
  Files files{context, document, drawing, dialog, "/gptmp.ico"};
  Alpha alpha{files.context(), files.iconSaver};
  Output output{context, files, alpha.commands};
  PreviewPanel& panel = output.previewPanel;

  // Pixel 0, 0 is painted, 1, 0 transparent and 2, 0 inverting; all others are transparent.
  static IconImage threePixels(int size, Color painted, Color inverting) {
    IconImage icon = transparentIcon(size);
    icon.image.SetPixelV(0, 0, painted);
    icon.mask.SetPixelV(0, 0, kBlack);
    icon.image.SetPixelV(2, 0, inverting);
    return icon;
  }
  void arrive(const IconImage& icon, bool hasAlpha = false) {
    IconContainerRec record = NewRecord();
    if (hasAlpha) {
      record.setDepth({kTrueColor, 32});
      record.setHeaderDepth({kTrueColor, 32});
      record.hasAlpha = true;
    }
    document.arrival.arrive(icon, record);
  }
  // A row of painted pixels of one colour, one for each alpha value.
  void arriveWithAlpha(Color color, const std::vector<int>& values) {
    IconImage icon = transparentIcon(16);
    icon.alpha = AlphaMatrix(16, 16, 255);
    for (int x = 0; x < static_cast<int>(values.size()); ++x) {
      icon.image.SetPixelV(x, 0, color);
      icon.mask.SetPixelV(x, 0, kBlack);
      icon.alpha.at(x, 0) = static_cast<std::uint8_t>(values[static_cast<std::size_t>(x)]);
    }
    arrive(icon, true);
  }
  void choose(int i, Color color) {
    dialogs.colors.push_back(color);
    panel.chooseColor(i);
    EXPECT_TRUE(dialogs.colors.empty());
  }
  // The first pixels of the first row.
  std::vector<Color> row(int i, int count) const {
    std::vector<Color> colors(static_cast<std::size_t>(count));
    for (int x = 0; x < count; ++x) colors[static_cast<std::size_t>(x)] = panel.picture(i).GetPixel(x, 0);
    return colors;
  }
  int drawn() { return display.count(DisplayPart::SidePanel); }
};

TEST_F(PreviewPanelTest, TheScreensAreWhiteTheGroundAndDarkAtFirst) {
  EXPECT_EQ(panel.color(0), kWhite);
  EXPECT_EQ(panel.color(1), rgb(192, 192, 192));
  EXPECT_EQ(panel.color(2), rgb(32, 32, 32));
}

TEST_F(PreviewPanelTest, MaskAndImageAreComposedOnEachScreenColorAndInvertingPixelsInvertIt) {
  arrive(threePixels(16, rgb(1, 2, 3), kWhite));
  panel.open(PreviewForm::ScreenColors);
  choose(2, kNavy);
  EXPECT_EQ(row(0, 4), (std::vector<Color>{rgb(1, 2, 3), kWhite, kBlack, kWhite}));
  EXPECT_EQ(row(1, 4), (std::vector<Color>{rgb(1, 2, 3), kGround, rgb(63, 63, 63), kGround}));
  EXPECT_EQ(row(2, 4), (std::vector<Color>{rgb(1, 2, 3), kNavy, rgb(255, 255, 127), kNavy}));
}

TEST_F(PreviewPanelTest, AnInvertingPixelOfAnyColorIsCombinedWithTheScreenBitByBit) {
  arrive(threePixels(16, kWhite, rgb(0x0F, 0xF0, 0x81)));
  panel.open(PreviewForm::ScreenColors);
  choose(0, rgb(0x33, 0x33, 0xFF));
  EXPECT_EQ(panel.picture(0).GetPixel(2, 0), rgb(0x3C, 0xC3, 0x7E));
}

TEST_F(PreviewPanelTest, ThePicturesHaveTheSizeOfTheIcon) {
  for (const int size : kIconSides) {
    arrive(threePixels(size, kWhite, kWhite));
    panel.open(PreviewForm::ScreenColors);
    for (int i = 0; i < PreviewPanel::kColors; ++i) {
      EXPECT_EQ(panel.picture(i).width(), size);
      EXPECT_EQ(panel.picture(i).height(), size);
    }
  }
}

TEST_F(PreviewPanelTest, AlphaIsBlendedWithEachScreenColorByItsWholePercent) {
  arriveWithAlpha(rgb(200, 100, 0), {255, 254, 128, 3, 2, 1, 0});
  panel.open(PreviewForm::AlphaEffects);
  choose(0, rgb(0, 50, 255));
  // 100, 99, 50, 1 and three times 0 percent, each channel without its fraction.
  EXPECT_EQ(row(0, 8), (std::vector<Color>{rgb(200, 100, 0), rgb(198, 99, 2), rgb(100, 75, 127), rgb(2, 50, 252),
                                           rgb(0, 50, 255), rgb(0, 50, 255), rgb(0, 50, 255), rgb(0, 50, 255)}));
  EXPECT_EQ(row(1, 4), (std::vector<Color>{rgb(200, 100, 0), rgb(199, 100, 1), rgb(196, 146, 96), rgb(192, 191, 190)}));
  EXPECT_EQ(row(2, 3), (std::vector<Color>{rgb(200, 100, 0), rgb(198, 99, 0), rgb(116, 66, 16)}));
}

TEST_F(PreviewPanelTest, TheFormWithoutAlphaEffectsShowsPaintedPixelsAsOpaque) {
  arriveWithAlpha(rgb(200, 100, 0), {255, 128, 0});
  panel.open(PreviewForm::ScreenColors);
  EXPECT_EQ(row(0, 4), (std::vector<Color>{rgb(200, 100, 0), rgb(200, 100, 0), rgb(200, 100, 0), kWhite}));
}

TEST_F(PreviewPanelTest, AlphaEffectsLeaveTransparentPixelsInTheScreenColor) {
  IconImage icon = threePixels(16, rgb(9, 9, 9), kWhite);
  icon.alpha = AlphaMatrix(16, 16, 255);
  arrive(icon, true);
  panel.open(PreviewForm::AlphaEffects);
  EXPECT_EQ(row(2, 3), (std::vector<Color>{rgb(9, 9, 9), rgb(32, 32, 32), rgb(32, 32, 32)}));
}

TEST_F(PreviewPanelTest, AnIconWhoseAlphaValuesAreMissingIsShownByItsMask) {
  arriveWithAlpha(rgb(200, 100, 0), {128});
  state.mAlphaRecs.at(0) = AlphaMatrix();
  panel.open(PreviewForm::AlphaEffects);
  EXPECT_EQ(row(0, 2), (std::vector<Color>{rgb(200, 100, 0), kWhite}));
}

TEST_F(PreviewPanelTest, AChosenColorLastsForTheSessionInBothForms) {
  arriveWithAlpha(kBlack, {255});
  panel.open(PreviewForm::ScreenColors);
  choose(1, kNavy);
  EXPECT_EQ(row(1, 2), (std::vector<Color>{kBlack, kNavy}));
  EXPECT_EQ(row(0, 2), (std::vector<Color>{kBlack, kWhite}));
  editor.closePanels();
  panel.open(PreviewForm::AlphaEffects);
  EXPECT_EQ(panel.color(1), kNavy);
  EXPECT_EQ(row(1, 2), (std::vector<Color>{kBlack, kNavy}));
}

TEST_F(PreviewPanelTest, ACancelledDialogAndAnIndexOutOfRangeChangeNothing) {
  arrive(threePixels(16, kWhite, kWhite));
  panel.open(PreviewForm::ScreenColors);
  const int before = drawn();
  choose(0, kNoColor);
  for (const int i : {-1, 3, 1000}) panel.chooseColor(i);
  EXPECT_EQ(panel.color(0), kWhite);
  EXPECT_EQ(drawn(), before);
}

TEST_F(PreviewPanelTest, TheCaptionIsThatOfTheForm) {
  arriveWithAlpha(kBlack, {255});
  panel.open(PreviewForm::ScreenColors);
  EXPECT_STREQ(panel.caption(), "Preview - different screen colors");
  panel.open(PreviewForm::AlphaEffects);
  EXPECT_STREQ(panel.caption(), "Current icon with alpha effects");
  panel.open(PreviewForm::ScreenColors);
  EXPECT_STREQ(panel.caption(), "Preview - different screen colors");
}

TEST_F(PreviewPanelTest, MessagesAreProcessedBeforeThePanelComesUp) {
  arrive(threePixels(16, kWhite, kWhite));
  pump.pumps = 0;
  pump.inside = [this] { EXPECT_EQ(state.screen.mActivePanel, kColorPanel); };
  panel.open(PreviewForm::ScreenColors);
  EXPECT_EQ(pump.pumps, 1);
  EXPECT_EQ(state.screen.mActivePanel, 21);
}

TEST_F(PreviewPanelTest, AnotherIconIsShownAndAnEmptyContainerShowsNone) {
  arrive(threePixels(16, kWhite, kWhite));
  panel.open(PreviewForm::ScreenColors);
  arrive(threePixels(48, rgb(5, 6, 7), kWhite));
  panel.follow();
  EXPECT_EQ(panel.picture(2).width(), 48);
  EXPECT_EQ(row(2, 1), std::vector<Color>{rgb(5, 6, 7)});
  document.iconsPanel.showEmptyContainer();
  panel.follow();
  for (int i = 0; i < PreviewPanel::kColors; ++i) EXPECT_EQ(panel.picture(i).width(), 0);
}

TEST_F(PreviewPanelTest, AnIconThatGoesWhileMessagesAreProcessedLeavesEmptyPictures) {
  arrive(threePixels(16, kWhite, kWhite));
  pump.inside = [this] { document.iconsPanel.showEmptyContainer(); };
  panel.open(PreviewForm::ScreenColors);
  EXPECT_EQ(panel.picture(0).width(), 0);
}

TEST_F(PreviewPanelTest, APanelThatIsNotShownDrawsNothing) {
  arrive(threePixels(16, kWhite, kWhite));
  panel.follow();
  EXPECT_EQ(panel.picture(0).width(), 0);
  panel.open(PreviewForm::ScreenColors);
  editor.closePanels();
  const int before = drawn();
  panel.follow();
  EXPECT_EQ(drawn(), before);
}

TEST_F(PreviewPanelTest, ThePreviewChangesNothingOfTheIcon) {
  arriveWithAlpha(rgb(200, 100, 0), {255, 128, 0});
  const IconContainerRec record = state.current();
  const Surface image = state.picImage, mask = state.picMask, greys = state.picAlpha;
  panel.open(PreviewForm::AlphaEffects);
  choose(0, kNavy);
  EXPECT_EQ(state.current().modified, record.modified);
  EXPECT_EQ(state.current().neverSaved, record.neverSaved);
  EXPECT_TRUE(std::ranges::equal(state.picImage.pixels(), image.pixels()));
  EXPECT_TRUE(std::ranges::equal(state.picMask.pixels(), mask.pixels()));
  EXPECT_TRUE(std::ranges::equal(state.picAlpha.pixels(), greys.pixels()));
}

}  // namespace
}  // namespace gp::test

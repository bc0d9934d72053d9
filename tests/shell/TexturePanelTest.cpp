// The panel of textures in the whole program.
#include "document/Containers.h"
#include "effects/Texture.h"
#include "effects/TexturePanel.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr int kTextureEntry = 24;
constexpr int kFirstDepth = 4, kLastDepth = 8;  // list indices of 0.5 and 0.9
constexpr const char* kBlank = "Current icon is blank, i.e. no painted area yet.";
constexpr const char* kNotLoaded = "Failed to load the image file";
constexpr const char* kWithAlpha =
    "Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.";

using Entries = std::vector<std::string>;

class TexturePanelTest : public EffectFixture {
 protected:
  TexturePanel& texture() { return shell.effects().panel<TexturePanel>(); }
  void open() { click("mnuEffectsSub", kTextureEntry); }
  void startWith(const IconImage& icon) {
    shell.document().arrival.arrive(icon, NewRecord());
    open();
  }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  // The icon by the effect's own function; pattern 3 is the custom one.
  static IconImage made(const IconImage& icon, int pattern, int depth, int style) {
    EffectValues values{pattern, depth, style};
    values.setPictures({{customPattern(), Surface(), {}}});
    return findEffect("texture")->apply(icon, values);
  }
  void load(const LoadedPicture& picture, const std::string& path = "/pictures/a.bmp") {
    pictures.next = picture;
    dialogs.paths.push_back(path);
    texture().cmdTextureOpen();
  }
  static LoadedPicture loaded(const Surface& picture) {
    return {PictureProblem::None, picture.width(), picture.height(), picture};
  }
  Entries patterns() { return texture().listOf(TextureList::Pattern).entries; }
  void expectPattern(int index, const Surface& pattern) {
    EXPECT_EQ(texture().choiceOf(TextureList::Pattern), index);
    EXPECT_TRUE(samePixels(texture().picTexturize(), pattern));
  }
};

TEST_F(TexturePanelTest, ItStartsWithTheFirstPatternTheFirstStyleAndHalfDepth) {
  start();
  const IconImage icon = generatedIcons(32).back();
  startWith(icon);
  ASSERT_EQ(panel(), TexturePanel::kNumber);
  EXPECT_EQ(patterns(), (Entries{"Pattern 1", "Pattern 2", "Pattern 3"}));
  EXPECT_EQ(texture().listOf(TextureList::Style).entries, (Entries{"Style 1", "Style 2"}));
  EXPECT_EQ(texture().listOf(TextureList::Depth).entries.size(), 9U);
  EXPECT_EQ(texture().choiceOf(TextureList::Depth), kFirstDepth);
  EXPECT_EQ(texture().choiceOf(TextureList::Style), 0);
  expectPattern(0, storedPattern(0));
  EXPECT_TRUE(samePixels(texture().picture(), made(icon, 0, 5, 0)));
  EXPECT_TRUE(samePixels(current(), icon));
}

TEST_F(TexturePanelTest, TheSampleIsWhatProceedMakesAndOneStepOfUndoBringsTheIconBack) {
  start();
  for (const int size : kIconSides)
    for (const IconImage& icon : generatedIcons(size)) {
      if (refusalOf(kTexture, icon, {0, 5, 0}).text) continue;
      for (int pattern = 0; pattern < kStoredPatterns; ++pattern)
        for (const auto& [index, style] : {std::pair{0, 0}, {kLastDepth, 1}, {kFirstDepth, 1}}) {
          startWith(icon);
          texture().pick(TextureList::Pattern, pattern);
          texture().pick(TextureList::Depth, index);
          texture().pick(TextureList::Style, style);
          const IconImage expected = made(icon, pattern, index + 1, style);
          expectPattern(pattern, storedPattern(pattern));
          EXPECT_TRUE(samePixels(texture().picture(), expected));
          EXPECT_TRUE(samePixels(current(), icon));
          shell.cmdProceed();
          EXPECT_EQ(panel(), kColorPanel);
          EXPECT_TRUE(samePixels(current(), expected));
          EXPECT_TRUE(state.current().modified);
          click("mnuEditSub", kUndo);
          EXPECT_TRUE(samePixels(current(), icon));
          EXPECT_FALSE(enabled("mnuEditSub", kUndo));
        }
    }
}

TEST_F(TexturePanelTest, CloseChangesNothing) {
  start();
  startWith(generatedIcons(24).back());
  texture().pick(TextureList::Pattern, 2);
  shell.cmdCancel();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), generatedIcons(24).back()));
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(TexturePanelTest, AnIconThatIsPaintedNowhereIsRefused) {
  start();
  const IconImage inverting{Surface(16, 16, kWhite), Surface(16, 16, kWhite), {}};
  for (const IconImage& icon : {transparentIcon(16), inverting}) {
    boxes.expectTold(kBlank, BoxIcon::None);
    startWith(icon);
    EXPECT_EQ(panel(), kColorPanel);
  }
  // An icon that is painted everywhere is taken; another one can come up under the panel.
  startWith(generatedIcons(16)[1]);
  EXPECT_EQ(panel(), TexturePanel::kNumber);
  shell.document().arrival.arrive(transparentIcon(16), NewRecord());
  texture().preview();
  EXPECT_TRUE(samePixels(texture().picture(), transparentIcon(16)));
  boxes.expectTold(kBlank, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), TexturePanel::kNumber);
}

TEST_F(TexturePanelTest, AnIconWithAlphaOrNoneUnderThePanelIsRefused) {
  start();
  startWith(generatedIcons(16)[1]);
  state.current().hasAlpha = true;
  boxes.expectTold(kWithAlpha, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), TexturePanel::kNumber);
  state.current() = IconContainerRec();
  texture().preview();
  EXPECT_TRUE(texture().picture().isEmpty());
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), TexturePanel::kNumber);
}

TEST_F(TexturePanelTest, AnIconOfAnotherSizeUnderThePanelIsTextured) {
  start();
  startWith(generatedIcons(48).back());
  const IconImage other = generatedIcons(16).back();
  shell.document().arrival.arrive(other, NewRecord());
  texture().preview();
  EXPECT_TRUE(samePixels(texture().picture(), made(other, 0, 5, 0)));
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(current(), made(other, 0, 5, 0)));
}

TEST_F(TexturePanelTest, ACustomPatternIsAddedToTheListAndChosen) {
  start();
  const IconImage icon = generatedIcons(32).back();
  startWith(icon);
  load(loaded(customPattern()));
  EXPECT_EQ(patterns(), (Entries{"Pattern 1", "Pattern 2", "Pattern 3", "Custom"}));
  expectPattern(3, customPattern());
  EXPECT_TRUE(samePixels(texture().picture(), made(icon, 3, 5, 0)));
  texture().pick(TextureList::Pattern, 1);
  expectPattern(1, storedPattern(1));
  texture().pick(TextureList::Pattern, 3);
  expectPattern(3, customPattern());
  // A second one replaces it.
  load(loaded(Surface(48, 48, kBlack)));
  EXPECT_EQ(patterns().size(), 4U);
  expectPattern(3, Surface(48, 48, kBlack));
  EXPECT_TRUE(samePixels(texture().picture(), icon)) << "a pattern of one colour";
}

TEST_F(TexturePanelTest, TheDialogOffersTheFormatsAndRemembersTheFolder) {
  start();
  startWith(generatedIcons(32).back());
  state.process.mLastFolder = "/icons/";
  load(loaded(customPattern()), "/home/ana/patterns/a.gif");
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].folder, "/icons/");
  EXPECT_EQ(dialogs.requests[0].filters,
            (std::vector<FileFilter>{{"(*.bmp/*.gif/*.jpg/*.jpeg)", "*.bmp;*.gif;*.jpg;*.jpeg"},
                                     {"(*.bmp)", "*.bmp"},
                                     {"(*.gif)", "*.gif"},
                                     {"(*.jpg/*.jpeg)", "*.jpg;*.jpeg"},
                                     {"(*.wmf/*.emf)", "*.wmf;*.emf"}}));
  EXPECT_EQ(state.process.mLastFolder, "/home/ana/patterns/");
}

TEST_F(TexturePanelTest, APictureThatIsNoPatternLeavesThePatternAsItIs) {
  start();
  startWith(generatedIcons(32).back());
  texture().pick(TextureList::Pattern, 2);
  const auto expectUnchanged = [this] {
    expectPattern(2, storedPattern(2));
    EXPECT_EQ(patterns().size(), 3U);
    EXPECT_EQ(panel(), TexturePanel::kNumber);
  };
  boxes.expectTold(kNotLoaded, BoxIcon::None);
  load({});
  expectUnchanged();
  boxes.expectTold("Incoming image is 47 x 48, not of the size of 48x48.", BoxIcon::None);
  load(loaded(Surface(47, 48)));
  expectUnchanged();
  boxes.expectTold("Incoming image is 48 x 1, not of the size of 48x48.", BoxIcon::None);
  load(loaded(Surface(48, 1)));
  expectUnchanged();
  boxes.expectTold("Incoming image is 30000 x 20000, not of the size of 48x48.", BoxIcon::None);
  load({PictureProblem::TooLarge, 30000, 20000, Surface(0, 0)});
  expectUnchanged();
  load({}, "");
  expectUnchanged();
}

TEST_F(TexturePanelTest, AFailureAfterACustomPatternKeepsIt) {
  start();
  startWith(generatedIcons(32).back());
  load(loaded(customPattern()));
  boxes.expectTold(kNotLoaded, BoxIcon::None);
  load({});
  expectPattern(3, customPattern());
}

TEST_F(TexturePanelTest, ChoicesAreKeptWhileThePanelIsClosed) {
  start();
  startWith(generatedIcons(32).back());
  load(loaded(customPattern()));
  texture().pick(TextureList::Depth, 0);
  texture().pick(TextureList::Style, 1);
  shell.cmdCancel();
  open();
  expectPattern(3, customPattern());
  EXPECT_TRUE(samePixels(texture().picture(), made(generatedIcons(32).back(), 3, 1, 1)));
}

TEST_F(TexturePanelTest, CloseWhileTheFileDialogIsOpen) {
  start();
  startWith(generatedIcons(32).back());
  dialogs.inside = [this] { shell.cmdCancel(); };
  load(loaded(customPattern()));
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), generatedIcons(32).back()));
}

TEST_F(TexturePanelTest, AnIndexOutsideAListIsIgnored) {
  start();
  startWith(generatedIcons(32).back());
  for (const auto& [list, beyond] :
       {std::pair{TextureList::Depth, 9}, {TextureList::Pattern, 3}, {TextureList::Style, 2}})
    for (const int index : {-1, beyond, 1000}) texture().pick(list, index);
  EXPECT_EQ(texture().choiceOf(TextureList::Depth), kFirstDepth);
  EXPECT_EQ(texture().choiceOf(TextureList::Style), 0);
  expectPattern(0, storedPattern(0));
}

}  // namespace
}  // namespace gp::test

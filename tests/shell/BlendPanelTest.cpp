// The panel of blending in the whole program.
#include "document/Containers.h"
#include "effects/Blend.h"
#include "effects/BlendPanel.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr int kBlendEntry = 23;
constexpr int kFirstPercent = 8, kLastPercent = 18;  // list indices of 40 and 90
constexpr const char* kNothing = "No icon of same size from Icons Panel to blend in.";
constexpr const char* kNoBlend = "No blend in yet";
constexpr const char* kWithAlpha =
    "Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.";

using Entries = std::vector<std::string>;

class BlendPanelTest : public EffectFixture {
 protected:
  BlendPanel& blend() { return shell.effects().panel<BlendPanel>(); }
  // A program with an icon in the first container, and with icons in others, counted from 0.
  void startWith(const IconImage& icon, const std::map<int, IconImage>& others) {
    start();
    shell.document().arrival.arrive(icon, NewRecord());
    for (const auto& [container, other] : others) fill(container, other);
    for (IconContainerRec& record : state.mIconRecs) record.neverSaved = record.modified = false;
  }
  void fill(int container, const IconImage& icon) {
    shell.document().arrival.fillContainer(container, icon, NewRecord());
  }
  void open() { click("mnuEffectsSub", kBlendEntry); }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  static IconImage iconOfSize(int size, int kind = 3) { return generatedIcons(size)[static_cast<std::size_t>(kind)]; }
  void expectNoBlend(const IconImage& icon) {
    EXPECT_EQ(blend().containerIndex(), 0);
    EXPECT_TRUE(samePixels(blend().picture(), icon));
    boxes.expectTold(kNoBlend, BoxIcon::None);
    shell.cmdProceed();
    EXPECT_EQ(panel(), BlendPanel::kNumber);
    EXPECT_TRUE(samePixels(current(), icon));
    EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  }
};

TEST_F(BlendPanelTest, ItListsTheOtherContainersOfTheSameSizeWithoutAlphaAfterAnEmptyEntry) {
  startWith(iconOfSize(32), {{1, iconOfSize(32)}, {2, iconOfSize(16)}, {3, iconOfSize(32)}, {5, iconOfSize(32)}});
  state.mIconRecs[3].hasAlpha = true;
  // As the browser of several icons fills a container.
  state.mIconRecs[5].present = false;
  open();
  ASSERT_EQ(panel(), BlendPanel::kNumber);
  EXPECT_EQ(blend().containerEntries(), (Entries{"", "2", "6"}));
  EXPECT_EQ(blend().lblBlendIn(), "Base icon ref:  1");
  EXPECT_EQ(blend().percentIndex(), kFirstPercent);
  expectNoBlend(iconOfSize(32));
}

TEST_F(BlendPanelTest, WithoutAnIconToBlendInItDoesNotOpen) {
  startWith(iconOfSize(32), {{1, iconOfSize(16)}, {2, iconOfSize(32)}});
  state.mIconRecs[2].hasAlpha = true;
  boxes.expectTold(kNothing, BoxIcon::None);
  open();
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(BlendPanelTest, AnIconWithAlphaIsRefusedBeforeAnythingElse) {
  startWith(iconOfSize(32), {});
  state.current().hasAlpha = true;
  boxes.expectTold(kWithAlpha, BoxIcon::None);
  open();
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(BlendPanelTest, TheSampleIsWhatProceedMakesAndOneStepOfUndoBringsTheIconBack) {
  for (const int size : kIconSides)
    for (int kind = 0; kind < 4; ++kind) {
      const IconImage icon = iconOfSize(size, kind), other = iconOfSize(size, 3 - kind);
      startWith(icon, {{4, other}});
      open();
      blend().pickContainer(1);
      for (const auto& [index, percent] : {std::pair{0, 0}, {kLastPercent, 90}, {kFirstPercent, 40}}) {
        blend().pickPercent(index);
        EXPECT_TRUE(samePixels(blend().picture(), blended(icon, other, percent))) << size << " " << percent;
      }
      EXPECT_TRUE(samePixels(current(), icon));
      shell.cmdProceed();
      EXPECT_EQ(panel(), kColorPanel);
      EXPECT_TRUE(samePixels(current(), blended(icon, other, 40)));
      EXPECT_TRUE(samePixels(state.picPanelImage[0], blended(icon, other, 40).image));
      EXPECT_TRUE(samePixels(state.picPanelImage[4], other.image)) << "the other icon stays";
      EXPECT_TRUE(state.current().modified);
      click("mnuEditSub", kUndo);
      EXPECT_TRUE(samePixels(current(), icon));
      EXPECT_FALSE(enabled("mnuEditSub", kUndo));
      click("mnuEditSub", kRedo);
      EXPECT_TRUE(samePixels(current(), blended(icon, other, 40)));
    }
}

TEST_F(BlendPanelTest, CloseChangesNothing) {
  startWith(iconOfSize(24), {{1, iconOfSize(24, 1)}});
  open();
  blend().pickContainer(1);
  shell.cmdCancel();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), iconOfSize(24)));
  EXPECT_FALSE(state.current().modified);
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(BlendPanelTest, EachOpeningFillsTheListAgainAndStartsWithoutAContainer) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  blend().pickPercent(0);
  shell.cmdCancel();
  fill(3, iconOfSize(32, 1));
  open();
  EXPECT_EQ(blend().containerEntries(), (Entries{"", "2", "4"}));
  EXPECT_EQ(blend().percentIndex(), 0) << "this choice is kept";
  expectNoBlend(iconOfSize(32));
}

TEST_F(BlendPanelTest, TheEmptyEntryTakesTheBlendBack) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  EXPECT_FALSE(samePixels(blend().picture(), iconOfSize(32)));
  blend().pickContainer(0);
  expectNoBlend(iconOfSize(32));
}

TEST_F(BlendPanelTest, AnotherIconOfTheSameSizeInTheChosenContainerIsBlendedIn) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  fill(1, iconOfSize(32, 2));
  blend().preview();
  EXPECT_EQ(blend().containerIndex(), 1);
  EXPECT_TRUE(samePixels(blend().picture(), blended(iconOfSize(32), iconOfSize(32, 2), 40)));
}

TEST_F(BlendPanelTest, AChosenContainerThatNoLongerFitsIsGivenUp) {
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"another size", [this] { fill(1, iconOfSize(16)); }},
      {"emptied", [this] { state.mIconRecs[1].used = false; }},
      {"alpha", [this] { state.mIconRecs[1].hasAlpha = true; }}};
  for (const auto& [what, change] : changes) {
    SCOPED_TRACE(what);
    startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}, {2, iconOfSize(32, 1)}});
    state.mIconRecs[1].hasAlpha = false;
    open();
    blend().pickContainer(1);
    change();
    // Proceed may come before the views follow the change.
    boxes.expectTold(kNoBlend, BoxIcon::None);
    shell.cmdProceed();
    EXPECT_TRUE(samePixels(current(), iconOfSize(32)));
    blend().preview();
    EXPECT_EQ(blend().containerEntries(), (Entries{"", "3"}));
    expectNoBlend(iconOfSize(32));
    shell.cmdCancel();
  }
}

TEST_F(BlendPanelTest, AContainerThatFitsAgainIsListedButNotChosen) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}, {2, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  fill(1, iconOfSize(16));
  blend().preview();
  fill(1, iconOfSize(32, 1));
  blend().preview();
  EXPECT_EQ(blend().containerEntries(), (Entries{"", "2", "3"}));
  expectNoBlend(iconOfSize(32));
}

TEST_F(BlendPanelTest, ASwitchToTheChosenContainerClosesThePanelAndMakesTheFormerOneOfTheOthers) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  shell.document().iconsPanel.SwitchContainer(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), iconOfSize(32, 1)));
  open();
  EXPECT_EQ(blend().containerEntries(), (Entries{"", "1"}));
  EXPECT_EQ(blend().lblBlendIn(), "Base icon ref:  2");
  expectNoBlend(iconOfSize(32, 1));
  blend().pickContainer(1);
  EXPECT_TRUE(samePixels(blend().picture(), blended(iconOfSize(32, 1), iconOfSize(32), 40)));
}

// A file dropped on a container makes it the current one.
TEST_F(BlendPanelTest, TheChosenContainerIsGivenUpWhenItBecomesTheCurrentOne) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  state.mCurContainer = 1;
  blend().preview();
  EXPECT_EQ(blend().containerEntries(), (Entries{"", "1"}));
  EXPECT_EQ(blend().lblBlendIn(), "Base icon ref:  2");
  EXPECT_EQ(blend().containerIndex(), 0);
}

TEST_F(BlendPanelTest, AnIconOfAnotherSizeUnderThePanelHasOtherContainers) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}, {2, iconOfSize(16)}});
  open();
  blend().pickContainer(1);
  shell.document().arrival.arrive(iconOfSize(16), NewRecord());
  blend().preview();
  EXPECT_EQ(blend().containerEntries(), (Entries{"", "3"}));
  EXPECT_EQ(blend().containerIndex(), 0);
  shell.document().arrival.arrive(iconOfSize(48), NewRecord());
  blend().preview();
  EXPECT_EQ(blend().containerEntries(), (Entries{""}));
  EXPECT_TRUE(samePixels(blend().picture(), iconOfSize(48)));
}

TEST_F(BlendPanelTest, WithoutAnIconTheSampleAndTheListAreEmptyAndProceedSaysSo) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  state.current().present = false;
  blend().preview();
  EXPECT_TRUE(blend().picture().isEmpty());
  EXPECT_EQ(blend().containerEntries(), (Entries{""}));
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), BlendPanel::kNumber);
}

TEST_F(BlendPanelTest, AChoiceInsideAPreviewIsTheOneThatIsPreviewedAndNotTwice) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}, {2, iconOfSize(32, 2)}});
  open();
  const int pumps = pump.pumps;
  pump.inside = [this] {
    blend().pickContainer(2);
    blend().pickPercent(kLastPercent);
  };
  blend().pickContainer(1);
  EXPECT_EQ(pump.pumps, pumps + 1) << "the choices inside do not start previews";
  EXPECT_EQ(blend().containerIndex(), 2);
  EXPECT_TRUE(samePixels(blend().picture(), blended(iconOfSize(32), iconOfSize(32, 2), 90)));
  blend().pickContainer(1);
  EXPECT_TRUE(samePixels(blend().picture(), blended(iconOfSize(32), iconOfSize(32, 1), 90))) << "no longer busy";
}

TEST_F(BlendPanelTest, CloseAndProceedInsideAPreview) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  pump.inside = [this] { shell.cmdCancel(); };
  blend().pickContainer(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), iconOfSize(32)));
  open();
  pump.inside = [this] { shell.cmdProceed(); };
  blend().pickContainer(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), blended(iconOfSize(32), iconOfSize(32, 1), 40)));
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(current(), iconOfSize(32)));
}

TEST_F(BlendPanelTest, AnIndexOutsideAListIsIgnored) {
  startWith(iconOfSize(32), {{1, iconOfSize(32, 1)}});
  open();
  blend().pickContainer(1);
  for (const int index : {-1, 2, 1000}) blend().pickContainer(index);
  for (const int index : {-1, kLastPercent + 1, 1000}) blend().pickPercent(index);
  EXPECT_EQ(blend().containerIndex(), 1);
  EXPECT_EQ(blend().percentIndex(), kFirstPercent);
}

}  // namespace
}  // namespace gp::test

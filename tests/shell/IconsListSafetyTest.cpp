// The Icons List and the other commands: nothing is lost, and no pixels of one icon get into another.
#include "shell/IconsListFixture.h"

#include <array>
#include <optional>
#include <random>

namespace gp::test {
namespace {

class IconsListSafety : public IconsListProgram {
 protected:
  IconsPanel& panel = shell.document().iconsPanel;

  // A left click brings icon `n` of a library, of the colour (10 + n, 20, 30), into the container.
  static Color large(int n) { return colorOf({10 + n, 20, 30}); }
  void openLibrary(int icons = 5) { extract(kLargeCommand, writeLibrary(icons)); }
  // With an unsaved icon in the current container.
  void openLibraryWithQuestion() {
    expectSaveQuestion(BoxAnswer::No);
    openLibrary();
  }
  void expectShown(int n) {
    EXPECT_FALSE(panel.displayWaits());
    EXPECT_EQ(shown(), large(n));
    EXPECT_EQ(stored(state.mCurContainer), large(n));
  }
};

// The display waits.

TEST_F(IconsListSafety, ClicksWithinTheListReplaceOneAnotherWithoutAQuestion) {
  openLibrary();
  for (const int n : {0, 3, 1}) {
    clickCell(n);
    EXPECT_EQ(stored(0), large(n));
    EXPECT_EQ(path(), folder.path() + "/tools_" + std::to_string(n + 1));
    EXPECT_TRUE(state.current().present && state.current().neverSaved);
    EXPECT_FALSE(state.current().modified);
  }
}

TEST_F(IconsListSafety, AnIconThatWasCollectedInAnotherContainerIsAskedAbout) {
  state.options.promptToSave = false;
  openLibrary();
  clickCell(0);
  panel.SwitchContainer(1);
  clickCell(1);
  panel.SwitchContainer(0);
  expectSaveQuestion(BoxAnswer::Cancel);
  clickCell(2);
  EXPECT_EQ(stored(0), large(0));
  expectSaveQuestion(BoxAnswer::No);
  clickCell(2);
  EXPECT_EQ(stored(0), large(2));
  EXPECT_EQ(stored(1), large(1));
  clickCell(3);
  EXPECT_EQ(stored(0), large(3)) << "the last one gives way without a question";
}

TEST_F(IconsListSafety, AnotherUnsavedIconIsAskedAbout) {
  click("mnuFileSub", 2);
  paint(3, 3);
  openLibraryWithQuestion();
  expectSaveQuestion(BoxAnswer::Cancel);
  clickCell(1);
  EXPECT_EQ(state.picImage.GetPixel(3, 3), state.mCurrentColor);
  EXPECT_FALSE(panel.displayWaits());
  expectSaveQuestion(BoxAnswer::No);
  clickCell(1);
  EXPECT_EQ(stored(0), large(1));
}

TEST_F(IconsListSafety, AChangedIconOfTheListIsAskedAbout) {
  openLibrary();
  clickCell(0);
  click("mnuRotateSubmenu", 0);
  openLibraryWithQuestion();
  expectSaveQuestion(BoxAnswer::Cancel);
  clickCell(1);
  EXPECT_EQ(path(), folder.path() + "/tools_1");
}

TEST_F(IconsListSafety, ACommandShowsTheIconFirst) {
  openLibrary();
  clickCell(2);
  EXPECT_TRUE(panel.displayWaits());
  click("mnuRotateSubmenu", 1);
  expectShown(2);
  EXPECT_TRUE(state.current().modified);
}

TEST_F(IconsListSafety, UndoDoesNotBringTheFormerIconBack) {
  click("mnuFileSub", 2);
  paint(3, 3);
  openLibraryWithQuestion();
  expectSaveQuestion(BoxAnswer::No);
  clickCell(2);
  click("mnuEditSub", 1);
  click("mnuEditSub", 0);
  expectShown(2);
}

TEST_F(IconsListSafety, ThePressThatShowsTheIconDrawsNothing) {
  click("mnuFileSub", 2);
  openLibrary();
  clickCell(2);
  shell.drawing().tools.press(at(3, 3));
  expectShown(2);
  shell.drawing().tools.move(at(4, 4));
  shell.drawing().tools.release(at(4, 4));
  EXPECT_FALSE(state.current().modified);
  EXPECT_EQ(state.picImage.GetPixel(3, 3), large(2));
}

TEST_F(IconsListSafety, ToolsZoomAndResizeShowTheIcon) {
  openLibrary();
  const std::vector<std::function<void()>> actions{
      [&] { shell.chooseColorPicker(); }, [&] { shell.zoom(ZoomStep::In); }, [&] { shell.formResize(500, 500); },
      [&] { shell.runToolbar(toolbarTable()[14]); }};
  for (std::size_t i = 0; i < actions.size(); ++i) {
    if (state.current().modified) expectSaveQuestion(BoxAnswer::No);
    clickCell(static_cast<int>(i));
    EXPECT_TRUE(panel.displayWaits());
    actions[i]();
    expectShown(static_cast<int>(i));
  }
}

TEST_F(IconsListSafety, ASwitchOfContainersKeepsBothIcons) {
  state.options.promptToSave = false;
  openLibrary();
  clickCell(0);
  panel.SwitchContainer(1);
  clickCell(1);
  panel.SwitchContainer(0);
  EXPECT_EQ(stored(0), large(0));
  EXPECT_EQ(stored(1), large(1));
  EXPECT_TRUE(panel.displayWaits());
  shell.cmdProceed();
  expectShown(0);
  EXPECT_EQ(stored(1), large(1));
}

TEST_F(IconsListSafety, ASwitchAsksWhenItsOptionIsOn) {
  state.options.promptToSave = true;
  openLibrary();
  clickCell(0);
  boxes.expect(std::string(kSaveIconQuestion) + "\n\n(To remove Reminder, untick the related Option submenu)\n",
               BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  panel.SwitchContainer(1);
  EXPECT_EQ(state.mCurContainer, 0);
  expectShown(0);
}

TEST_F(IconsListSafety, ARightClickOnAContainerEndsTheList) {
  state.options.promptToSave = false;
  openLibrary();
  clickCell(3);
  panel.PanelRightClick(1);
  EXPECT_FALSE(isListUp());
  EXPECT_EQ(list.mListSource(), ListSource::None);
  EXPECT_EQ(state.mCurContainer, 1);
  EXPECT_EQ(stored(0), large(3));
}

TEST_F(IconsListSafety, ADropDoesNotMixIcons) {
  openLibrary();
  clickCell(3);
  panel.PanelDrop(1, {folder.write("drop.ico", plainIconFile(32, 2))});
  EXPECT_EQ(stored(0), large(3));
  EXPECT_EQ(stored(1), colorOf({253, 2, 32}));
}

// Leaving.

TEST_F(IconsListSafety, CloseAsksAboutTheIconOfTheList) {
  openLibrary();
  clickCell(0);
  expectSaveQuestion(BoxAnswer::Cancel);
  shell.cmdCancel();
  EXPECT_TRUE(isListUp());
  expectSaveQuestion(BoxAnswer::No);
  shell.escapeKey();
  EXPECT_FALSE(isListUp());
  expectShown(0);
}

TEST_F(IconsListSafety, CloseDoesNotAskAboutAnIconFromElsewhere) {
  click("mnuFileSub", 2);
  paint(3, 3);
  openLibraryWithQuestion();
  shell.cmdCancel();
  EXPECT_FALSE(isListUp());
}

TEST_F(IconsListSafety, AnIconIsSavedWithoutClosingTheList) {
  openLibrary();
  clickCell(1);
  dialogs.paths.push_back(folder.file("saved.ico"));
  click("mnuFileSub", 12);
  EXPECT_TRUE(isListUp());
  EXPECT_EQ(path(), folder.file("saved.ico"));
  EXPECT_FALSE(state.current().neverSaved);
  clickCell(2);
  EXPECT_EQ(stored(0), large(2));
}

TEST_F(IconsListSafety, TheExitAsksAboutIconsOfTheListInAllContainers) {
  state.options.promptToSave = false;
  openLibrary();
  clickCell(0);
  panel.SwitchContainer(1);
  boxes.expectAsked(
      "The following is not saved yet: \n\nIcon Seq 1    " + folder.path() + "/tools_1\n\nProceed to exit still?\n",
      BoxAnswer::No);
  EXPECT_FALSE(shell.queryUnload());
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListSafety, AMenuCommandThatReplacesTheIconAsks) {
  openLibrary();
  clickCell(0);
  expectSaveQuestion(BoxAnswer::Cancel);
  click("mnuFileSub", 2);
  EXPECT_EQ(stored(0), large(0));
}

// Other panels.

TEST_F(IconsListSafety, CommandsThatNeedThePanelAreRefused) {
  openLibrary();
  clickCell(0);
  const std::string text = "You are already in Extract Large Icons From DLL or Similar Resource session.";
  const std::pair<const char*, int> commands[] = {
      {"mnuEffectsSub", 6}, {"mnuRotateSubmenu", 4}, {"mnuFileSub", 18},    {"mnuEnquiryCurrent", 7},
      {"mnuExtractSub", 7}, {"mnuExtractSub", 1},    {"mnuEffectsSub3", 0}, {"mnuANIFileCreateOrEdit", kNoIndex}};
  for (const auto& [control, index] : commands) {
    boxes.expectTold(text, BoxIcon::None);
    click(control, index);
    EXPECT_TRUE(isListUp());
    EXPECT_FALSE(state.screen.aniContainerVisible);
    EXPECT_EQ(stored(0), large(0));
  }
}

TEST_F(IconsListSafety, EveryCommandThatOpensAPanelIsRefused) {
  openLibrary();
  clickCell(0);
  state.current().size = 32;
  for (const Command& row : commandTable()) {
    const std::string_view control = row.control;
    if (control == "mnuExtractSub" || !row.run || row.unmet(shell, row.index)) continue;
    if (control != "mnuEffectsSub" && !control.starts_with("mnuEffectsSub")) continue;
    boxes.expectTold(list.sessionMessage(), BoxIcon::None);
    shell.run(row);
    EXPECT_TRUE(isListUp()) << objectNameOf(row.control, row.index);
  }
}

// A user who loses icons rather than save them.
class CarelessBoxes : public MessageBoxes {
 public:
  BoxAnswer show(const std::string&, BoxButtons buttons, BoxIcon, BoxAnswer) override {
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    return buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::No;
  }
};

// Does what a user can do, in any order. The model knows the image of each container's icon, and the images that Undo
// brings back.
class IconsListWalk : public ListProgram<ProgramFixture<CarelessBoxes>> {
 protected:
  using Image = std::vector<Color>;
  static constexpr int kIcons = 4, kSide = 32;
  void walk(unsigned seed) {
    random_.seed(seed);
    for (int step = 0; step < 60; ++step) {
      const auto action = static_cast<std::size_t>(number(static_cast<int>(actions().size())));
      (this->*actions()[action])();
      followShownIcon();
      expectModel("seed " + std::to_string(seed) + ", step " + std::to_string(step) + ", action " +
                  std::to_string(action));
      if (HasFailure()) return;
    }
  }

 private:
  using Action = void (IconsListWalk::*)();
  static const std::vector<Action>& actions() {
    using W = IconsListWalk;
    static const std::vector<Action> kActions{
        &W::clickList,  &W::clickList,          &W::clickContainer, &W::flip,
        &W::paintPixel, &W::pressOnly,          &W::undo,           &W::save,
        &W::closeList,  &W::openList,           &W::refusedCommand, &W::updateContainer,
        &W::resize,     &W::rightClickContainer};
    return kActions;
  }
  int number(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  std::size_t current() const { return static_cast<std::size_t>(state.mCurContainer); }
  bool waits() const { return shell.document().iconsPanel.displayWaits(); }
  bool hasIcon() const { return model_[current()].has_value(); }

  static Rgb pixelOf(int icon, int x, int y) { return {10 + icon, 7 * x, 7 * y}; }
  static Image imageOf(const Surface& surface) {
    Image image;
    for (int y = 0; y < surface.height(); ++y)
      for (int x = 0; x < surface.width(); ++x) image.push_back(surface.GetPixel(x, y));
    return image;
  }
  static Image imageOfIcon(int icon) {
    Image image;
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) image.push_back(colorOf(pixelOf(icon, x, y)));
    return image;
  }

  // Another icon, or none, is on the Editing Area: Undo starts again.
  void followShownIcon() {
    if (state.iconSerial == serial_) return;
    serial_ = state.iconSerial;
    former_.clear();
  }
  void change(const Image& image) {
    followShownIcon();
    former_.push_back(*model_[current()]);
    model_[current()] = image;
  }
  void expectModel(const std::string& where) const {
    for (std::size_t i = 0; i < model_.size(); ++i) {
      EXPECT_EQ(state.mIconRecs[i].used, model_[i].has_value()) << where;
      if (!model_[i]) continue;
      const bool isOnArea = i == current() && !waits();
      EXPECT_TRUE(imageOf(isOnArea ? state.picImage : state.picPanelImage[i]) == *model_[i])
          << where << ", container " << i;
    }
  }

  void openList() {
    if (list.mListSource() != ListSource::None) return;
    extract(kLargeCommand, library_);
  }
  void closeList() { shell.cmdCancel(); }
  void clickList() {
    openList();
    const int icon = number(kIcons);
    const bool right = number(4) == 0;
    clickCell(icon, right ? ListButton::Right : ListButton::Left);
    model_[current()] = imageOfIcon(icon);
  }
  void clickContainer() { shell.document().iconsPanel.SwitchContainer(number(kContainerCount)); }
  void rightClickContainer() { shell.document().iconsPanel.PanelRightClick(number(kContainerCount)); }
  void flip() {
    const bool has = hasIcon();
    click("mnuRotateSubmenu", 0);
    if (!has) return;
    Image image = *model_[current()];
    for (auto row = image.begin(); row != image.end(); row += kSide) std::reverse(row, row + kSide);
    change(image);
  }
  void paintPixel() {
    if (!hasIcon()) return;
    if (shell.drawing().tools.selectedTool() != kPaint) shell.chooseTool(kPaint);
    const bool waited = waits();
    const int x = number(kSide), y = number(kSide);
    state.mCurrentColor = 1 + number(1000);
    paint(x, y);
    if (waited) return;
    Image image = *model_[current()];
    image[static_cast<std::size_t>(y * kSide + x)] = state.mCurrentColor;
    change(image);
  }
  void pressOnly() {
    if (waits()) paint(number(kSide), number(kSide));
  }
  void undo() {
    click("mnuEditSub", 1);
    followShownIcon();
    if (former_.empty()) return;
    model_[current()] = former_.back();
    former_.pop_back();
  }
  void save() {
    if (!hasIcon()) return;
    const std::string former = path();
    const bool asks = !former.ends_with(".ico");
    if (asks) dialogs.paths.push_back(folder.file("saved" + std::to_string(++saved_) + ".ico"));
    click("mnuFileSub", 12);
    EXPECT_TRUE(dialogs.paths.empty());
    const DecodedIcon icon = IconFiles::ReadIconFileToImage(path(), 0, true);
    ASSERT_TRUE(icon.isRead());
    EXPECT_TRUE(imageOf(icon.icon.image) == *model_[current()]);
  }
  void refusedCommand() {
    if (list.mListSource() != ListSource::None) click("mnuEffectsSub", 6);
  }
  void updateContainer() {
    shell.document().iconsPanel.updateFromCurrent();
    if (!isListUp() && hasIcon()) former_.clear();
  }
  void resize() { shell.formResize(300 + number(300), 400); }

  std::string patternedLibrary() const {
    std::vector<Resource> resources;
    for (int icon = 0; icon < kIcons; ++icon) {
      Picture picture = plainPicture(kSide, {});
      picture.color = [icon](int x, int y) { return pixelOf(icon, x, y); };
      resources.push_back(iconOf(icon + 1, imageBytes(picture)));
      resources.push_back(groupOf(icon + 1, {{kSide, kSide, 0, 1, 24, 0, icon + 1}}));
    }
    return folder.write("pattern.dll", asText(peWith(resources)));
  }

  std::mt19937 random_;
  std::string library_ = patternedLibrary();
  std::array<std::optional<Image>, kContainerCount> model_;
  std::vector<Image> former_;
  unsigned serial_ = 0;
  int saved_ = 0;
};

class IconsListWalks : public IconsListWalk, public testing::WithParamInterface<int> {};

TEST_P(IconsListWalks, NoOrderOfActionsLosesOrMixesPixels) {
  state.options.promptToSave = GetParam() % 2 == 0;
  walk(static_cast<unsigned>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Seeds, IconsListWalks, testing::Range(1, 61));

}  // namespace
}  // namespace gp::test

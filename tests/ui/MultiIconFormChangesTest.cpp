// frmGPMultiIcon where it writes or answers: saves, removals, reordering and the add face.
#include "ui/MultiIconFormFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <functional>
#include <initializer_list>
#include <utility>

namespace gp {
namespace {

using test::kAllSizes;
using test::kStandard;
using test::Told;

using MultiIconForm = test::MultiIconFormFixture;

// Saving entries.

TEST_F(MultiIconForm, SaveSingleWritesTheSelectedEntry) {
  open();
  dialogs.paths = {folder.file("one.ico")};
  access(Qt::Key_S);
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].fileName, "icons_32_16.ico");
  EXPECT_EQ(folder.read("one.ico"), test::iconFileOf({kStandard[2]}));
  EXPECT_EQ(form->focusWidget(), icons());
}

TEST_F(MultiIconForm, SplitSaveWritesAllAndSelectsTheFormerAgain) {
  open();
  dialogs.paths = {folder.makeFolder("parts")};
  boxes.expectAsked("Single-icon files will be saved as " + folder.file("parts/icons") +
                        "_(Size)_(Color), ...\nTotally 5 items on list.\n\nProceed?",
                    BoxAnswer::Yes);
  click("cmdSplitSave(0)");
  for (const auto& [name, index] : std::initializer_list<std::pair<const char*, std::size_t>>{
           {"16_16", 0}, {"24_16", 1}, {"32_16", 2}, {"32_32bpp", 3}, {"48_16", 4}})
    EXPECT_EQ(folder.read(std::string("parts/icons_") + name + ".ico"), test::iconFileOf({kStandard[index]})) << name;
  EXPECT_EQ(icons()->selected(), 2);
  EXPECT_EQ(find("picIconInFile(0)")->size(), QSize(32, 32));
}

// Removing.

constexpr const char* kRemoveQuestion = "Permanently remove the selected icon from the multi-icon file.\n";
constexpr const char* kRemoveAssurance = "\n\nSure to remove this icon permanently?\n\n";

TEST_F(MultiIconForm, RemoveByKeyKeepsTheFocusInTheList) {
  open();
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::Yes);
  key(Qt::Key_End);
  access(Qt::Key_R);
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf({kStandard.begin(), kStandard.end() - 1}));
  EXPECT_EQ(icons()->count(), 4);
  EXPECT_EQ(icons()->selected(), 3);
  EXPECT_EQ(form->focusWidget(), icons());
  key(Qt::Key_Up);
  EXPECT_EQ(icons()->selected(), 2);
}

TEST_F(MultiIconForm, RemoveByMouseGivesTheFocusToTheListAlsoWhenTheButtonIsDisabledThen) {
  open({kStandard[0], kStandard[1]});
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::Yes);
  click("cmdRemove(0)");
  EXPECT_EQ(icons()->count(), 1);
  EXPECT_EQ(icons()->selected(), 0);
  EXPECT_FALSE(find("cmdRemove(0)")->isEnabled());
  EXPECT_EQ(form->focusWidget(), icons());
}

TEST_F(MultiIconForm, ARefusedRemoveChangesNothing) {
  open();
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::No);
  click("cmdRemove(0)");
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kStandard));
  EXPECT_EQ(icons()->selected(), 2);
}

TEST_F(MultiIconForm, AFileInTheIconsPanelIsNotChanged) {
  exchange.gFileInPanel = true;
  open();
  boxes.expectTold(
      "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no deletion is allowed.",
      BoxIcon::None);
  boxes.expectTold(
      "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no reposition is allowed.",
      BoxIcon::None);
  click("cmdRemove(0)");
  click("cmdReposition(0)");
  EXPECT_TRUE(isShown("picContainer(0)"));
}

// Repositioning.

TEST_F(MultiIconForm, RepositionListsAllSizesWithTheFirstSelected) {
  open(kAllSizes);
  access(Qt::Key_O);
  EXPECT_TRUE(isShown("picContainer(2)"));
  EXPECT_FALSE(isShown("picContainer(0)"));
  EXPECT_FALSE(isShown("fraOtherIcons"));
  EXPECT_EQ(sequence()->count(), 7);
  EXPECT_EQ(sequence()->item(5)->text(), "Ref 6  \t4 BPP\t16-Color\t   64 x  64");
  EXPECT_EQ(sequence()->selected(), 0);
  EXPECT_EQ(form->focusWidget(), sequence());
  EXPECT_EQ(find("picReposition")->size(), QSize(16, 16));
  key(Qt::Key_Down);
  EXPECT_EQ(find("picReposition")->size(), QSize(24, 24));
}

TEST_F(MultiIconForm, AltWithAnArrowMovesTheSelectedEntry) {
  open(kAllSizes);
  access(Qt::Key_O);
  const QString first = sequence()->item(0)->text(), second = sequence()->item(1)->text();
  QTest::keyClick(form->focusWidget(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(sequence()->item(1)->text(), first);
  EXPECT_EQ(sequence()->selected(), 1);
  QTest::keyClick(form->focusWidget(), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(sequence()->item(1)->text(), second);
  QTest::keyClick(form->focusWidget(), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(sequence()->item(0)->text(), first) << "at the end nothing moves";
}

// An entry of 24 bits whose pixels, 0xRRGGBB, are given by `colorAt`. Its side in the directory is its width, a
// multiple of four.
using ColorAt = std::function<std::size_t(int x, int y)>;
Told trueColorEntry(int width, int height, const ColorAt& colorAt) {
  const auto columns = static_cast<std::size_t>(width), rows = static_cast<std::size_t>(height);
  std::string image = test::littleEndian(40, 4) + test::littleEndian(columns, 4) + test::littleEndian(2 * rows, 4) +
                      test::littleEndian(1, 2) + test::littleEndian(24, 2) + std::string(24, '\0');
  for (int y = height; y-- > 0;)
    for (int x = 0; x < width; ++x) image += test::littleEndian(colorAt(x, y), 3);
  return {width, 0, 24, image + std::string((columns + 31) / 32 * 4 * rows, '\0')};
}

// Red and green above, blue and white below.
Told quartersEntry(int width, int height) {
  return trueColorEntry(width, height, [=](int x, int y) -> std::size_t {
    if (y < height / 2) return x < width / 2 ? 0xFF0000 : 0x00FF00;
    return x < width / 2 ? 0x0000FF : 0xFFFFFF;
  });
}

const QColor kRed(255, 0, 0), kGreen(0, 255, 0), kBlue(0, 0, 255), kWhiteQuarter(255, 255, 255);
const QColor kPreviewGround(0xC0, 0xC0, 0xC0);

// The pixels of the preview in the pane, by pixels of the form.
class PreviewLook {
 public:
  explicit PreviewLook(QWidget* frame) : image_(frame->grab().toImage()) {}
  QColor at(int x, int y) const {
    const double ratio = image_.devicePixelRatio();
    return image_.pixelColor(static_cast<int>((x + 0.5) * ratio), static_cast<int>((y + 0.5) * ratio));
  }
  int width() const { return image_.deviceIndependentSize().toSize().width(); }

 private:
  QImage image_;
};

TEST_F(MultiIconForm, RepositionShowsLargePicturesWhole) {
  open({quartersEntry(128, 128), quartersEntry(64, 64), quartersEntry(252, 252), kStandard[0], kStandard[1]});
  click("cmdReposition(0)");
  const QSize formSize = form->size();
  for (const int item : {0, 1, 2}) {
    clickItem(sequence(), item);
    EXPECT_EQ(find("picReposition")->geometry(), QRect(1, 1, 48, 48));
    const PreviewLook look(find("lblReposition"));
    ASSERT_EQ(look.width(), 50);
    for (const int near : {1, 12, 23}) {
      const int far = 49 - near;
      EXPECT_EQ(look.at(near, near), kRed);
      EXPECT_EQ(look.at(far, near), kGreen);
      EXPECT_EQ(look.at(near, far), kBlue);
      EXPECT_EQ(look.at(far, far), kWhiteQuarter);
    }
  }
  EXPECT_EQ(accessible("lblReposition", QAccessible::Value), "252 by 252 pixels");
  clickItem(sequence(), 3);
  EXPECT_EQ(find("picReposition")->geometry(), QRect(17, 17, 16, 16));
  EXPECT_EQ(form->size(), formSize);
}

TEST_F(MultiIconForm, RepositionKeepsTheAspectOfALargePicture) {
  struct Shape {
    int width, height;
    QRect shown;
  };
  constexpr std::size_t kThirdHeight = 6 + 2 * 16 + 1;
  for (const Shape& shape : {Shape{64, 16, {1, 19, 48, 12}},
                             {16, 64, {19, 1, 12, 48}},
                             {128, 1, {1, 24, 48, 1}},
                             {48, 16, {1, 17, 48, 16}}}) {
    std::string content = test::iconFileOf({kStandard[0], kStandard[1], quartersEntry(shape.width, shape.height)});
    content[kThirdHeight] = static_cast<char>(shape.height);
    openFile(folder.write("wide.ico", content));
    click("cmdReposition(0)");
    clickItem(sequence(), 2);
    EXPECT_EQ(find("picReposition")->geometry(), shape.shown);
    const PreviewLook look(find("lblReposition"));
    const QRect shown = shape.shown;
    EXPECT_EQ(look.at(shown.left(), shown.bottom()), kBlue);
    EXPECT_EQ(look.at(shown.right(), shown.bottom()), kWhiteQuarter);
    if (shape.height > 1) {
      EXPECT_EQ(look.at(shown.left(), shown.top()), kRed);
      EXPECT_EQ(look.at(shown.right(), shown.top()), kGreen);
    }
    EXPECT_EQ(look.at(3, 3), kPreviewGround);
    EXPECT_EQ(look.at(46, 46), kPreviewGround);
  }
}

TEST_F(MultiIconForm, RepositionSmoothsWhatItScalesDownAndNothingElse) {
  const auto stripes = [](int, int y) -> std::size_t { return y % 2 == 0 ? 0x000000 : 0xFFFFFF; };
  open({trueColorEntry(192, 192, stripes), trueColorEntry(48, 48, stripes), trueColorEntry(32, 32, stripes)});
  click("cmdReposition(0)");
  const auto look = [&](int item) {
    clickItem(sequence(), item);
    return PreviewLook(find("lblReposition"));
  };
  const PreviewLook large = look(0), largest = look(1), small = look(2);
  for (const int y : {10, 11, 30, 31}) {
    EXPECT_NEAR(large.at(20, y).lightness(), 127, 1);
    const QColor exact = y % 2 == 0 ? Qt::white : Qt::black;  // both begin at an odd row
    EXPECT_EQ(largest.at(20, y), exact);
    EXPECT_EQ(small.at(20, y), exact);
  }
}

TEST_F(MultiIconForm, ShiftButtonsAreEnabledBetweenTheEnds) {
  open();
  click("cmdReposition(0)");
  EXPECT_FALSE(find("cmdShift(0)")->isEnabled());
  EXPECT_TRUE(find("cmdShift(1)")->isEnabled());
  access(Qt::Key_D);
  EXPECT_EQ(sequence()->selected(), 1);
  EXPECT_EQ(sequence()->item(1)->text(), "Ref 1  \t4 BPP\t16-Color\t   16 x  16");
  EXPECT_TRUE(find("cmdShift(0)")->isEnabled());
  key(Qt::Key_End);
  EXPECT_TRUE(find("cmdShift(0)")->isEnabled());
  EXPECT_FALSE(find("cmdShift(1)")->isEnabled());
}

TEST_F(MultiIconForm, AShiftButtonThatReachesTheEndGivesItsFocusToTheList) {
  open({kStandard[0], kStandard[1]});
  click("cmdReposition(0)");
  click("cmdShift(1)");
  EXPECT_EQ(form->focusWidget(), sequence());
  click("cmdShift(0)");
  EXPECT_EQ(form->focusWidget(), sequence());
  EXPECT_EQ(sequence()->selected(), 0);
}

TEST_F(MultiIconForm, NothingInTheSequenceIsDestructive) {
  open();
  click("cmdReposition(0)");
  click("cmdShift(1)");
  sequence()->setFocus();
  key(Qt::Key_Return);
  doubleClickItem(sequence(), 3);
  EXPECT_TRUE(isShown("picContainer(2)"));
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kStandard));
  EXPECT_EQ(exchange.gMultiIconResult, "");
}

TEST_F(MultiIconForm, AbortAndEscapeLeaveThePaneOnly) {
  open(kAllSizes);
  for (const auto& leave : std::initializer_list<std::function<void()>>{[&] { click("cmdRepositionAbort"); },
                                                                        [&] { key(Qt::Key_Escape); }}) {
    click("cmdReposition(0)");
    access(Qt::Key_D);
    leave();
    EXPECT_TRUE(isShown("picContainer(0)"));
    EXPECT_TRUE(isShown("fraOtherIcons"));
    EXPECT_EQ(icons()->selected(), 2);
    EXPECT_EQ(form->focusWidget(), icons());
  }
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kAllSizes));
}

TEST_F(MultiIconForm, TheFrameClosesTheFormAlsoFromThePane) {
  open();
  click("cmdReposition(0)");
  form->close();
  EXPECT_FALSE(form->isVisible());
}

TEST_F(MultiIconForm, ProceedWritesTheNewSequenceAndComesBack) {
  open(kAllSizes);
  click("cmdReposition(0)");
  access(Qt::Key_D);
  boxes.expectAsked(file + "\nProceed to save re-positioned sequence of icons in file?\n", BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + file + "\n", BoxIcon::None);
  access(Qt::Key_P);
  std::vector<Told> expected = kAllSizes;
  std::swap(expected[0], expected[1]);
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(expected));
  EXPECT_TRUE(isShown("picContainer(0)"));
  EXPECT_TRUE(isShown("fraOtherIcons"));
  EXPECT_EQ(form->focusWidget(), icons());
  EXPECT_EQ(icons()->item(0)->text(), "Ref 1  \t4 BPP\t16-Color\t   24 x  24");
}

TEST_F(MultiIconForm, AnUnchangedSequenceIsNotWritten) {
  open();
  click("cmdReposition(0)");
  boxes.expectTold("There is no change in original sequence.", BoxIcon::None);
  click("cmdRepositionProceed");
  EXPECT_TRUE(isShown("picContainer(2)"));
}

// Adding.

TEST_F(MultiIconForm, TheAddFaceShowsTheIconAndPositionsWithNothingSelected) {
  openToAdd(kAllSizes);
  EXPECT_EQ(form->windowTitle(), "Add Icon To Existing Icon File");
  EXPECT_EQ(find<TextCell>("lblExistingFile(1)")->text(), toText(ShortenPath(file)));
  EXPECT_EQ(find<QLabel>("lblCurrIcon(1)")->text(), "16-color  Size: 32x32");
  EXPECT_EQ(find("PicCurrIcon")->size(), QSize(32, 32));
  EXPECT_EQ(icons()->selected(), -1);
  EXPECT_EQ(form->focusWidget(), icons());
  auto* positions = find<QComboBox>("cboAddToPosition");
  EXPECT_EQ(positions->count(), 8);
  EXPECT_EQ(positions->currentText(), "8");
  EXPECT_TRUE(find<QPushButton>("cmdSaveAdd(0)")->isDefault());
  key(Qt::Key_Down);
  EXPECT_EQ(icons()->selected(), 0);
  EXPECT_EQ(find("picIconInFile(1)")->size(), QSize(16, 16));
}

TEST_F(MultiIconForm, SaveAppendsAtTheEnd) {
  openToAdd();
  key(Qt::Key_Down);
  boxes.expectAsked("Append to position ref 6.   \n\nConfirm?\n", BoxAnswer::Yes);
  key(Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "1/6");
}

TEST_F(MultiIconForm, SaveAsInsertsAtThePositionThatIsChosen) {
  openToAdd();
  clickItem(icons(), 1);
  access(Qt::Key_I);
  EXPECT_EQ(form->focusWidget(), find("cboAddToPosition"));
  key(Qt::Key_Home);
  boxes.expectAsked("Insert to position ref 1.   \n\nConfirm?\n", BoxAnswer::Yes);
  access(Qt::Key_A);
  EXPECT_EQ(exchange.gMultiIconResult, "2/1");
}

TEST_F(MultiIconForm, NothingIsAddedBeforeAnIconIsSelectedAndTheFormSaysSo) {
  openToAdd();
  EXPECT_FALSE(find("cmdSaveAdd(0)")->isEnabled() || find("cmdSaveAdd(1)")->isEnabled());
  EXPECT_TRUE(isShown("lblExistingFile(3)"));
  EXPECT_EQ(find<QLabel>("lblExistingFile(3)")->text(), "Select an icon, or append");
  key(Qt::Key_Return);
  EXPECT_TRUE(form->isVisible());
  clickItem(icons(), 1);
  EXPECT_TRUE(find("cmdSaveAdd(0)")->isEnabled() && find("cmdSaveAdd(1)")->isEnabled());
  EXPECT_FALSE(isShown("lblExistingFile(3)"));
}

TEST_F(MultiIconForm, AnUnconfirmedAddStays) {
  openToAdd();
  clickItem(icons(), 1);
  boxes.expectAsked("Append to position ref 6.   \n\nConfirm?\n", BoxAnswer::No);
  click("cmdSaveAdd(0)");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "");
}

TEST_F(MultiIconForm, ADoubleClickOnTheAddFaceOnlySelects) {
  openToAdd();
  doubleClickItem(icons(), 1);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(icons()->selected(), 1);
}

TEST_F(MultiIconForm, RemovingOnTheAddFaceTakesAPositionAway) {
  openToAdd();
  clickItem(icons(), 4);
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::Yes);
  click("cmdRemove(1)");
  EXPECT_EQ(find<QComboBox>("cboAddToPosition")->count(), 5);
  EXPECT_EQ(find<QComboBox>("cboAddToPosition")->currentText(), "5");
  EXPECT_EQ(icons()->selected(), 3);
}

TEST_F(MultiIconForm, CloseEndsTheAddFaceWithoutAnAnswer) {
  openToAdd();
  click("cmdClose(1)");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "");
}

}  // namespace
}  // namespace gp

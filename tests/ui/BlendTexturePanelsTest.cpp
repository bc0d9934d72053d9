// The panels of blending and textures on the main form, used by mouse and keyboard.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "document/ui/SampleView.h"
#include "document/ui/SurfacePainting.h"
#include "effects/Blend.h"
#include "effects/BlendPanel.h"
#include "effects/EffectCases.h"
#include "effects/Texture.h"
#include "effects/TexturePanel.h"
#include "ui/FormFixture.h"
#include "ui/Screens.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>

namespace gp {
namespace {

constexpr int kBlendEntry = 23, kTextureEntry = 24;

class BlendTexturePanelsTest : public test::FormFixture {
 protected:
  // Icons of one size in the first three containers.
  void startWith(int size) {
    start();
    shell.document().arrival.arrive(iconOfSize(size, 3), NewRecord());
    fill(1, size, 1);
    fill(2, size, 2);
    settle();
  }
  static IconImage iconOfSize(int size, int kind) { return test::generatedIcons(size)[static_cast<std::size_t>(kind)]; }
  void fill(int container, int size, int kind) {
    shell.document().arrival.fillContainer(container, iconOfSize(size, kind), NewRecord());
    state.mIconRecs.at(static_cast<std::size_t>(container)).neverSaved = false;
  }
  void open(int entry) {
    find<QAction>(QString("mnuEffectsSub(%1)").arg(entry))->trigger();
    settle();
  }
  QComboBox* list(const char* name) { return find<QComboBox>(name); }
  QStringList entries(const char* name) {
    QStringList texts;
    for (int i = 0; i < list(name)->count(); ++i) texts << list(name)->itemText(i);
    return texts;
  }
  BlendPanel& blend() { return shell.effects().panel<BlendPanel>(); }
  TexturePanel& texture() { return shell.effects().panel<TexturePanel>(); }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  static QString nameOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  }
  // What a screen reader speaks in front of a list.
  static QString labelOf(QWidget* list) {
    for (const auto& [label, relation] : QAccessible::queryAccessibleInterface(list)->relations())
      if (relation == QAccessible::Label) return label->text(QAccessible::Name);
    return {};
  }
  // The colour of a pixel of a sample, which shows pictures of that side.
  QRgb sampleAt(const char* name, int side, int x, int y) {
    const auto* sample = dynamic_cast<SampleView*>(find(name));
    const int factor = sample->place().width() / side;
    return find(name)->grab().toImage().pixel(sample->place().topLeft() + QPoint(x * factor, y * factor));
  }
  // Every control has a name, and Tab goes from one to the next.
  void expectReachedByTab(const QStringList& controls) {
    EXPECT_EQ(QApplication::focusWidget()->objectName(), controls.front());
    for (const QString& control : controls) {
      EXPECT_EQ(QApplication::focusWidget()->objectName(), control);
      key(Qt::Key_Tab);
    }
  }
  void close() {
    key(Qt::Key_Escape);
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  }
  void restore() { state.current().modified = state.current().neverSaved = false; }
};

TEST_F(BlendTexturePanelsTest, TheControlsOfBlendHaveTheirTextsAndNames) {
  startWith(32);
  open(kBlendEntry);
  ASSERT_EQ(state.screen.mActivePanel, BlendPanel::kNumber);
  EXPECT_EQ(find("fraPanel(16)")->accessibleName(), "Blend in other icon into current one");
  EXPECT_EQ(find<QLabel>("lblBlendIn")->text(), "Base icon ref:  1");
  EXPECT_EQ(labelOf(list("cboBlendIn(0)")).trimmed(), "Blend in icon from container ref:");
  EXPECT_EQ(labelOf(list("cboBlendIn(1)")), "Translucency %:");
  EXPECT_EQ(entries("cboBlendIn(0)"), (QStringList{"", "2", "3"}));
  EXPECT_EQ(list("cboBlendIn(0)")->currentText(), "");
  EXPECT_EQ(list("cboBlendIn(0)")->itemData(0, Qt::AccessibleTextRole), "none");
  EXPECT_EQ(entries("cboBlendIn(1)").size(), 19);
  EXPECT_EQ(entries("cboBlendIn(1)").first(), "0");
  EXPECT_EQ(entries("cboBlendIn(1)").last(), "90");
  EXPECT_EQ(list("cboBlendIn(1)")->currentText(), "40");
  EXPECT_EQ(nameOf(find("picBlendIn")), "Sample");
  expectReachedByTab({"cboBlendIn(0)", "cboBlendIn(1)", "cmdProceed", "cmdCancel"});
  close();
  restore();
}

TEST_F(BlendTexturePanelsTest, ABlendIsChosenByKeysShownAndMadeByEnter) {
  startWith(48);
  open(kBlendEntry);
  key(Qt::Key_Down);
  EXPECT_EQ(list("cboBlendIn(0)")->currentText(), "2");
  key(Qt::Key_Tab);
  key(Qt::Key_End);
  EXPECT_EQ(list("cboBlendIn(1)")->currentText(), "90");
  const IconImage expected = blended(iconOfSize(48, 3), iconOfSize(48, 1), 90);
  EXPECT_TRUE(test::samePixels(blend().picture(), expected));
  for (const auto& [x, y] : {std::pair{0, 0}, {20, 7}, {47, 47}})
    EXPECT_EQ(sampleAt("picBlendIn", 48, x, y), toRgb(expected.image.GetPixel(x, y))) << "all is painted";
  key(Qt::Key_Return);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(test::samePixels(current(), expected));
  restore();
}

TEST_F(BlendTexturePanelsTest, TheListOfContainersFollowsThemWhileThePanelIsOpen) {
  startWith(32);
  open(kBlendEntry);
  QTest::keyClick(list("cboBlendIn(0)"), Qt::Key_Down);
  ASSERT_EQ(list("cboBlendIn(0)")->currentText(), "2");
  fill(4, 32, 1);
  EXPECT_EQ(entries("cboBlendIn(0)"), (QStringList{"", "2", "3", "5"}));
  EXPECT_EQ(list("cboBlendIn(0)")->currentText(), "2");
  fill(1, 16, 1);
  EXPECT_EQ(entries("cboBlendIn(0)"), (QStringList{"", "3", "5"}));
  EXPECT_EQ(list("cboBlendIn(0)")->currentText(), "");
  boxes.expectTold("No blend in yet", BoxIcon::None);
  click(find("fraPanel(16)")->findChild<QWidget*>("cmdProceed"));
  shell.document().arrival.arrive(iconOfSize(16, 3), NewRecord());
  EXPECT_EQ(entries("cboBlendIn(0)"), (QStringList{"", "2"}));
  close();
  restore();
}

TEST_F(BlendTexturePanelsTest, ThePanelOfBlendNamesTheCurrentContainer) {
  startWith(32);
  restore();
  click(indexed("picPanelIcon", 2));
  open(kBlendEntry);
  EXPECT_EQ(find<QLabel>("lblBlendIn")->text(), "Base icon ref:  3");
  EXPECT_EQ(entries("cboBlendIn(0)"), (QStringList{"", "1", "2"}));
  close();
  restore();
}

TEST_F(BlendTexturePanelsTest, TheControlsOfTextureHaveTheirTextsAndNames) {
  startWith(32);
  open(kTextureEntry);
  ASSERT_EQ(state.screen.mActivePanel, TexturePanel::kNumber);
  EXPECT_EQ(find("fraPanel(17)")->accessibleName(), "Texturize Painted Area");
  EXPECT_EQ(labelOf(list("cboTexturize(0)")), "Depth:");
  EXPECT_EQ(labelOf(list("cboTexturize(1)")), "Pattern in use:");
  EXPECT_EQ(labelOf(list("cboTexturize(2)")), "Style:");
  EXPECT_EQ(entries("cboTexturize(0)"), (QStringList{"0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9"}));
  EXPECT_EQ(list("cboTexturize(0)")->currentText(), "0.5");
  EXPECT_EQ(entries("cboTexturize(1)"), (QStringList{"Pattern 1", "Pattern 2", "Pattern 3"}));
  EXPECT_EQ(entries("cboTexturize(2)"), (QStringList{"Style 1", "Style 2"}));
  EXPECT_EQ(nameOf(find("cmdTextureOpen")), "Open custom pattern bitmap file");
  EXPECT_EQ(find("cmdTextureOpen")->toolTip(), "Open custom pattern bitmap file");
  EXPECT_EQ(find<QLabel>("lblTextureOpen")->text(), "(Custom 48x48)");
  EXPECT_EQ(nameOf(find("picTexturize(0)")), "Sample");
  EXPECT_EQ(nameOf(find("picTexturize(1)")), "Pattern");
  expectReachedByTab(
      {"cboTexturize(1)", "cmdTextureOpen", "cboTexturize(2)", "cboTexturize(0)", "cmdProceed", "cmdCancel"});
  close();
  restore();
}

TEST_F(BlendTexturePanelsTest, ATextureIsChosenByKeysShownAndMadeByEnter) {
  startWith(48);
  open(kTextureEntry);
  key(Qt::Key_End);
  EXPECT_EQ(list("cboTexturize(1)")->currentText(), "Pattern 3");
  key(Qt::Key_Tab);
  key(Qt::Key_Tab);
  key(Qt::Key_Down);
  EXPECT_EQ(list("cboTexturize(2)")->currentText(), "Style 2");
  key(Qt::Key_Tab);
  key(Qt::Key_Home);
  EXPECT_EQ(list("cboTexturize(0)")->currentText(), "0.1");
  const IconImage expected = kTexture.apply(iconOfSize(48, 3), {2, 1, 1});
  EXPECT_TRUE(test::samePixels(texture().picture(), expected));
  for (const auto& [x, y] : {std::pair{0, 0}, {20, 7}, {47, 47}})
    EXPECT_EQ(sampleAt("picTexturize(1)", 48, x, y), toRgb(storedPattern(2).GetPixel(x, y)));
  key(Qt::Key_Return);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(test::samePixels(current(), expected));
  restore();
}

TEST_F(BlendTexturePanelsTest, ACustomPatternIsOpenedByMouseAndKeysAndShown) {
  startWith(32);
  open(kTextureEntry);
  pictures.next = {PictureProblem::None, 48, 48, test::customPattern()};
  dialogs.paths = {"/a/pattern.bmp", "/a/pattern.bmp"};
  click("cmdTextureOpen");
  EXPECT_EQ(entries("cboTexturize(1)"), (QStringList{"Pattern 1", "Pattern 2", "Pattern 3", "Custom"}));
  EXPECT_EQ(list("cboTexturize(1)")->currentText(), "Custom");
  EXPECT_EQ(sampleAt("picTexturize(1)", 48, 33, 21), toRgb(test::customPattern().GetPixel(33, 21)));
  QTest::keyClick(list("cboTexturize(1)"), Qt::Key_Home);
  EXPECT_EQ(sampleAt("picTexturize(1)", 48, 33, 21), toRgb(storedPattern(0).GetPixel(33, 21)));
  find("cmdTextureOpen")->setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(list("cboTexturize(1)")->currentText(), "Custom");
  pictures.next = {PictureProblem::None, 47, 48, Surface(47, 48)};
  dialogs.paths = {"/a/narrow.bmp"};
  boxes.expectTold("Incoming image is 47 x 48, not of the size of 48x48.", BoxIcon::None);
  click("cmdTextureOpen");
  EXPECT_EQ(list("cboTexturize(1)")->currentText(), "Custom");
  close();
  restore();
}

TEST_F(BlendTexturePanelsTest, PicturesForTheEye) {
  const QPalette light = QApplication::palette();
  for (const char* theme : {"", "-dark"}) {
    if (*theme) QApplication::setPalette(test::darkPalette());
    startWith(48);
    open(kBlendEntry);
    QTest::keyClick(list("cboBlendIn(0)"), Qt::Key_Down);
    screenshot(QString("panel-blend%1").arg(theme));
    open(kTextureEntry);
    screenshot(QString("panel-texture%1").arg(theme));
    restore();
    form.reset();
  }
  QApplication::setPalette(light);
}

}  // namespace
}  // namespace gp

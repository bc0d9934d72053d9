#include "colour/Colour.h"
#include "colour/ui/ColorMixerView.h"
#include "document/EditState.h"
#include "document/ui/SurfacePainting.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/qt/PathText.h"
#include "platform/qt/QtPictureLoader.h"
#include "platform/qt/widgets/TextCell.h"
#include "support/FakeEditor.h"
#include "support/ProcessUse.h"
#include "support/ScriptedPorts.h"
#include "support/TempFolder.h"
#include "support/TopRowFirst.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QSlider>
#include <QTest>

#include <filesystem>
#include <sys/stat.h>

namespace gp {
namespace {

constexpr int kPanelWidth = 264;
constexpr int kRoomHeight = 260;

class RefreshingDisplay : public test::RecordingDisplay {
 public:
  ColorMixerView* view = nullptr;
  void changed(DisplayPart part) override {
    RecordingDisplay::changed(part);
    if (view && part == DisplayPart::ColorPanel) view->refresh();
  }
};

// The letters beside the sliders, from the top.
QString lettersIn(QWidget& view) {
  QString letters;
  for (int y = 0; y < view.height(); ++y)
    if (const auto* label = qobject_cast<QLabel*>(view.childAt(12, y)); label && !letters.endsWith(label->text()))
      letters += label->text();
  return letters;
}

class ColorMixerViewTest : public testing::Test {
 protected:
  test::TempFolder folder;
  EditState state;
  test::FakeEditor editor;
  RefreshingDisplay display;
  test::ScriptedBoxes boxes;
  test::ScriptedDialogs dialogs;
  test::ScriptedPump pump;
  clsGPDialog dialog{dialogs};
  QtPictureLoader loader;
  Colour colour{Context{state, editor, display, boxes, pump}, dialog, loader, folder.path()};
  ColorMixer& mixer = colour.mixer;
  const std::filesystem::path before = std::filesystem::current_path();
  QWidget window;
  ColorMixerView* view = new ColorMixerView(&window, mixer, colour.paletteFile);

  void SetUp() override {
    display.view = view;
    window.resize(kPanelWidth, kRoomHeight);
    view->setGeometry(0, 0, kPanelWidth, kRoomHeight);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void TearDown() override {
    display.view = nullptr;
    std::filesystem::current_path(before);
  }

  template <class Widget = QWidget>
  Widget* find(const QString& name) {
    auto* found = view->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name.toStdString();
    return found;
  }
  QSlider* slider(int channel) { return find<QSlider>(QString("HsrRGB(%1)").arg(channel)); }
  QAbstractButton* adjust(int index) { return find<QAbstractButton>(QString("cmdAdjMix(%1)").arg(index)); }
  QString text(const QString& name) { return find<TextCell>(name)->text(); }
  QWidget* strip() { return find("picMixGradient"); }
  // The position of a pixel of the strip on its widget.
  QPoint onStrip(int x, int y) {
    return QPoint(x, y) + QPoint(strip()->width() - kMixGradientWidth, strip()->height() - kMixGradientHeight) / 2;
  }
  void mix(int red, int green, int blue) {
    slider(0)->setValue(red);
    slider(1)->setValue(green);
    slider(2)->setValue(blue);
  }
  QRgb shownAt(const QString& name, QPoint at) { return find(name)->grab().toImage().pixel(at); }
  QRgb middleOf(const QString& name) { return shownAt(name, find(name)->rect().center()); }
  void key(int code) { QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(code)); }
  void load(const std::string& path) {
    dialogs.paths = {path};
    QTest::mouseClick(find("imgLoadPalette"), Qt::LeftButton);
  }
  std::string pictureFile(QSize size, QImage::Format depth, const char* format = "bmp") {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(0, 0, 255));
    const std::string path = folder.file("picture.pal");
    EXPECT_TRUE(image.convertToFormat(depth).save(QString::fromStdString(path), format));
    return path;
  }
  void expectRefused(const std::string& path, const char* text) {
    const QImage shown = strip()->grab().toImage();
    boxes.expectTold(text, BoxIcon::None);
    load(path);
    EXPECT_TRUE(boxes.done());
    EXPECT_EQ(strip()->grab().toImage(), shown);
  }
  void screenshot(const QString& name) {
    QDir().mkpath(GP_BINARY_DIR "/screens");
    EXPECT_TRUE(window.grab().save(QString(GP_BINARY_DIR "/screens/%1.png").arg(name)));
  }
};

TEST_F(ColorMixerViewTest, TheSlidersCarryTheLettersOfTheirChannels) {
  EXPECT_EQ(lettersIn(*view), "RGB");
  for (int channel = 0; channel < 3; ++channel) EXPECT_GE(slider(channel)->width(), 60);
}

TEST_F(ColorMixerViewTest, EverythingFitsBelowTheChartsAndHasItsName) {
  EXPECT_EQ(view->objectName(), "fraColorMixer");
  EXPECT_EQ(view->caption(), "Color Mixer");
  EXPECT_LE(view->minimumSizeHint().width(), kPanelWidth);
  EXPECT_LE(view->minimumSizeHint().height(), kRoomHeight);
  const std::pair<const char*, const char*> tooltips[] = {{"PicRGBMix", "Dithered Color"},
                                                          {"cmdAdjMix(0)", "To lighten"},
                                                          {"cmdAdjMix(1)", "To darken"},
                                                          {"cmdAdjMix(2)", "Copy currently selected color"},
                                                          {"cboIntervalColor", "Interval value for darken/lighten"}};
  for (const auto& [name, tooltip] : tooltips) EXPECT_EQ(find(name)->toolTip(), tooltip);
  for (const QWidget* child : view->findChildren<QWidget*>()) {
    if (child->focusPolicy() == Qt::NoFocus || !child->isVisible()) continue;
    EXPECT_FALSE(child->accessibleName().isEmpty()) << child->objectName().toStdString();
  }
  const auto fits = [this](const QString& name, const QString& shown) {
    const auto* cell = find<TextCell>(name);
    return cell->fontMetrics().horizontalAdvance(shown) <= cell->width() - 2 * TextCell::kMargin;
  };
  for (int value = 0; value <= kMostOfChannel; ++value)
    EXPECT_TRUE(fits("lblRGB(0)", QString("%1 / %2").arg(value).arg(value, 0, 16).toUpper())) << value;
  EXPECT_TRUE(fits("lblMix", "RGB: 255, 255, 255"));
  auto* interval = find<QComboBox>("cboIntervalColor");
  EXPECT_EQ(interval->count(), 26);
  EXPECT_EQ(interval->itemText(0), "5");
  EXPECT_EQ(interval->itemText(25), "30");
  EXPECT_EQ(interval->currentText(), "17");
}

TEST_F(ColorMixerViewTest, ASliderShowsItsMixture) {
  mix(255, 128, 10);
  EXPECT_EQ(middleOf("PicRGBMix"), toRgb(rgb(255, 128, 10)));
  EXPECT_EQ(middleOf("PicRGB(0)"), toRgb(rgb(255, 0, 0)));
  EXPECT_EQ(middleOf("PicRGB(1)"), toRgb(rgb(0, 128, 0)));
  EXPECT_EQ(middleOf("PicRGB(2)"), toRgb(rgb(0, 0, 10)));
  EXPECT_EQ(text("lblRGB(0)"), "255 / FF");
  EXPECT_EQ(text("lblRGB(2)"), "10 / A");
  EXPECT_EQ(shownAt("picMixGradient", onStrip(0, 0)), toRgb(rgb(255, 0, 0)));
  EXPECT_EQ(shownAt("picMixGradient", onStrip(39, 199)), toRgb(rgb(0, 5, 0)));  // 128 / 26, as blue is below 16
  EXPECT_EQ(state.mCurrentColor, kWhite);
  screenshot("color-mixer");
}

TEST_F(ColorMixerViewTest, SlidersMoveByKeyboard) {
  slider(1)->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Left);
  EXPECT_EQ(mixer.HsrRGB(1), 254);
  key(Qt::Key_Home);
  EXPECT_EQ(mixer.HsrRGB(1), 0);
}

TEST_F(ColorMixerViewTest, LightenAndDarkenFollowTheListAndStopAtTheEnds) {
  mix(250, 255, 240);
  find<QComboBox>("cboIntervalColor")->setCurrentText("10");
  adjust(0)->click();
  EXPECT_EQ(slider(0)->value(), 255);
  EXPECT_EQ(slider(2)->value(), 250);
  EXPECT_EQ(state.mCurrentColor, rgb(255, 255, 250));
  adjust(0)->click();
  EXPECT_FALSE(adjust(0)->isEnabled());
  EXPECT_TRUE(adjust(1)->isEnabled());
  mix(0, 0, 0);
  EXPECT_TRUE(adjust(0)->isEnabled());
  EXPECT_FALSE(adjust(1)->isEnabled());
}

TEST_F(ColorMixerViewTest, CopyTakesTheCurrentColourOntoTheSliders) {
  state.mCurrentColor = rgb(3, 20, 100);
  adjust(2)->click();
  EXPECT_EQ(slider(0)->value(), 3);
  EXPECT_EQ(slider(1)->value(), 20);
  EXPECT_EQ(slider(2)->value(), 100);
}

TEST_F(ColorMixerViewTest, SwatchesAreTakenByAnyButtonAndByKeyboardButNotFromOutside) {
  mix(30, 60, 90);
  QTest::mouseClick(find("PicRGB(1)"), Qt::RightButton);
  EXPECT_EQ(state.mCurrentColor, rgb(0, 60, 0));
  QTest::mouseClick(find("PicRGBMix"), Qt::LeftButton);
  EXPECT_EQ(state.mCurrentColor, rgb(30, 60, 90));
  find("PicRGB(2)")->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Return);
  EXPECT_EQ(state.mCurrentColor, rgb(0, 0, 90));
  find("PicRGB(0)")->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Space);
  EXPECT_EQ(state.mCurrentColor, rgb(30, 0, 0));
  QTest::mousePress(find("PicRGBMix"), Qt::LeftButton);
  QTest::mouseRelease(find("PicRGBMix"), Qt::LeftButton, {}, QPoint(5, -20));
  EXPECT_EQ(state.mCurrentColor, rgb(30, 0, 0));
}

TEST_F(ColorMixerViewTest, HoveringTheMixedColourTellsIt) {
  mix(255, 128, 0);
  QTest::mouseMove(find("PicRGBMix"), QPoint(10, 10));
  EXPECT_EQ(find("PicRGBMix")->toolTip(), "80FFh  RGB(255, 128, 0)");
  boxes.expectTold("Currently selected color:      \n\n16777215 / hFFFFFF\n\nRGB(255, 255, 255) \n\nHTML #FF8000",
                   BoxIcon::Information);
  colour.selection.showCurrentColor();
}

TEST_F(ColorMixerViewTest, TheStripIsTakenByPressAndByRelease) {
  mix(255, 100, 50);
  QTest::mousePress(strip(), Qt::LeftButton, {}, onStrip(20, 0));
  EXPECT_EQ(state.mCurrentColor, rgb(255, 0, 0));
  QTest::mouseRelease(strip(), Qt::LeftButton, {}, onStrip(20, 26));
  EXPECT_EQ(state.mCurrentColor, rgb(255, 50, 0));
  QTest::mousePress(strip(), Qt::LeftButton, {}, onStrip(20, 0));
  QTest::mouseRelease(strip(), Qt::LeftButton, {}, onStrip(20, 230));
  EXPECT_EQ(state.mCurrentColor, rgb(255, 0, 0)) << "a release below the strip takes nothing";
}

TEST_F(ColorMixerViewTest, HoveringTheStripShowsMarkerAndTextUntilThePointerIsOnTheFrame) {
  mix(255, 100, 50);
  QTest::mouseMove(strip(), onStrip(10, 100));
  EXPECT_EQ(text("lblMix"), "RGB: 0, 100, 2");
  EXPECT_EQ(shownAt("picMixGradient", onStrip(10, 98)), toRgb(kWhite)) << "the marker's upper line";
  EXPECT_EQ(shownAt("picMixGradient", onStrip(10, 101)), toRgb(kWhite)) << "and its lower one";
  EXPECT_EQ(shownAt("picMixGradient", onStrip(10, 100)), toRgb(rgb(0, 100, 2)));
  EXPECT_EQ(shownAt("picMixGradient", onStrip(39, 98)), toRgb(rgb(10, 100, 0))) << "one pixel less than the strip";
  screenshot("color-mixer-marker");
  QTest::mouseMove(view, QPoint(2, 2));
  EXPECT_EQ(text("lblMix"), "");
}

TEST_F(ColorMixerViewTest, ArrowsWalkAlongTheStripSpeakTheColourAndEnterTakesIt) {
  mix(255, 100, 50);
  const auto spoken = [this] { return QAccessible::queryAccessibleInterface(strip())->text(QAccessible::Value); };
  strip()->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(spoken(), "RGB: 255, 0, 0");
  key(Qt::Key_Down);
  EXPECT_EQ(spoken(), "RGB: 255, 4, 0");
  key(Qt::Key_Return);
  EXPECT_EQ(state.mCurrentColor, rgb(255, 4, 0));
  key(Qt::Key_End);
  key(Qt::Key_Space);
  EXPECT_EQ(state.mCurrentColor, rgb(0, 4, 50));
  key(Qt::Key_Home);
  key(Qt::Key_Up);
  EXPECT_EQ(spoken(), "RGB: 255, 0, 0");
}

TEST_F(ColorMixerViewTest, ASavedPaletteComesBackAsItWas) {
  mix(255, 100, 50);
  const QImage first = strip()->grab().toImage();
  dialogs.paths = {folder.file("mine.pal")};
  QTest::mouseClick(find("imgSavePalette"), Qt::LeftButton);
  mix(1, 2, 3);
  EXPECT_NE(strip()->grab().toImage(), first);
  load(folder.file("mine.pal"));
  EXPECT_EQ(strip()->grab().toImage(), first);
  EXPECT_EQ(slider(0)->value(), 1);
  slider(0)->setValue(2);
  EXPECT_NE(strip()->grab().toImage(), first);
}

TEST_F(ColorMixerViewTest, APaletteWithItsTopRowFirstLoadsPixelByPixel) {
  mix(255, 100, 50);
  const QImage first = strip()->grab().toImage();
  dialogs.paths = {folder.file("mine.pal")};
  QTest::mouseClick(find("imgSavePalette"), Qt::LeftButton);
  mix(1, 2, 3);
  load(folder.write("upright.pal", test::topRowFirst(folder.read("mine.pal"), 40, 200, 24)));
  EXPECT_EQ(strip()->grab().toImage(), first);
}

TEST_F(ColorMixerViewTest, PalettesOfAnyDepthAndFormatLoadIfTheSizeFits) {
  for (const QImage::Format depth : {QImage::Format_Indexed8, QImage::Format_RGB16, QImage::Format_RGB32}) {
    for (const char* format : {"bmp", "png"}) {
      mix(1, 2, 3);
      load(pictureFile({40, 200}, depth, format));
      EXPECT_EQ(shownAt("picMixGradient", onStrip(0, 0)), qRgb(0, 0, 255)) << format << depth;
      EXPECT_EQ(shownAt("picMixGradient", onStrip(39, 199)), qRgb(0, 0, 255)) << format << depth;
    }
  }
  mix(1, 2, 3);
  load(pictureFile({42, 202}, QImage::Format_RGB32));
  EXPECT_EQ(shownAt("picMixGradient", onStrip(0, 0)), qRgb(0, 0, 255));
}

TEST_F(ColorMixerViewTest, PalettesOfAnotherSizeAreRefused) {
  expectRefused(pictureFile({43, 200}, QImage::Format_RGB32), "Not a valid pal file for Glimmerpane (2)");
  expectRefused(pictureFile({40, 203}, QImage::Format_RGB32), "Not a valid pal file for Glimmerpane (2)");
  expectRefused(pictureFile({39, 200}, QImage::Format_RGB32), "Not a valid pal file for Glimmerpane (1)");
  expectRefused(pictureFile({40, 199}, QImage::Format_RGB32), "Not a valid pal file for Glimmerpane (1)");
  expectRefused(pictureFile({2000, 2000}, QImage::Format_Mono), "Not a valid pal file for Glimmerpane (2)");
}

TEST_F(ColorMixerViewTest, OfBadPaletteFilesNoMoreIsReadThanAPaletteCanTake) {
  constexpr const char* kInvalid = "Invalid pal for Glimmerpane";
  constexpr std::size_t kMostRead = 21 * test::kMegabyte;
  const std::size_t read = test::bytesRead();
  expectRefused(folder.write("text.pal", "no picture"), kInvalid);
  expectRefused(folder.write("empty.pal", ""), kInvalid);
  const std::string whole = pictureFile({40, 200}, QImage::Format_RGB888);
  std::filesystem::resize_file(whole, std::filesystem::file_size(whole) - 1);
  expectRefused(whole, kInvalid);
  const std::string large = folder.write("large.pal", "");
  std::filesystem::resize_file(large, 100'000'000);
  expectRefused(large, kInvalid);
  expectRefused(folder.makeFolder("folder.pal"), kInvalid);
  ASSERT_EQ(mkfifo(folder.file("pipe.pal").c_str(), 0600), 0);
  expectRefused(folder.file("pipe.pal"), kInvalid);
  expectRefused(folder.file("missing.pal"), kInvalid);
  EXPECT_LT(test::bytesRead() - read, kMostRead);
}

TEST_F(ColorMixerViewTest, ASliderDraggedDuringLightenGoesBack) {
  mix(100, 100, 100);
  pump.inside = [this] { slider(0)->setValue(3); };
  adjust(0)->click();
  EXPECT_EQ(slider(0)->value(), 117);
  EXPECT_EQ(mixer.HsrRGB(0), 117);
}

}  // namespace
}  // namespace gp

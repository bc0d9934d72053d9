// Checks that chosen and pressed buttons differ from the others.
#include "platform/qt/widgets/PictureButton.h"
#include "ui/Contrast.h"
#include "ui/FormFixture.h"

namespace gp {
namespace {

using test::contrast;
using test::kLeastContrast;
using test::leastContrast;
using test::seen;

constexpr int kWindows[] = {239, 53, 0};
constexpr int kCorner = 3;  // rounded

// The colour that most pixels have.
QColor fillOf(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  return std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;
}

int pixelsVisibleOn(const QImage& image, const QColor& ground) {
  int count = 0;
  for (int y = kCorner; y < image.height() - kCorner; ++y)
    for (int x = kCorner; x < image.width() - kCorner; ++x)
      if (contrast(image.pixelColor(x, y), ground) >= kLeastContrast) ++count;
  return count;
}

// `visible` is the number of pixels of the picture that differ visibly from the tile.
void expectChosenLook(QWidget& button, int visible) {
  const QImage image = seen(button);
  const QColor window = button.palette().color(QPalette::Window), fill = fillOf(image);
  EXPECT_GE(contrast(fill, window), kLeastContrast) << fill.name().toStdString();
  const int last = image.width() - 1, length = image.width() - 2 * kCorner;
  for (const QRect& side : {QRect(kCorner, 0, length, 1), QRect(kCorner, last, length, 1), QRect(0, kCorner, 1, length),
                            QRect(last, kCorner, 1, length)})
    EXPECT_GE(leastContrast(image, side, window), kLeastContrast);
  EXPECT_GE(pixelsVisibleOn(image, fill), visible);
}

class ChosenButtons : public test::FormFixture {
 protected:
  ~ChosenButtons() override { QApplication::setPalette(QPalette()); }
  void startWithNew() {
    start();
    find<QAction>("mnuFileSub(2)")->trigger();
    state.current().neverSaved = false;
    settle();
    click("imgGet256ColorChart");
    click("imgClearAllTools");
  }
};

TEST_F(ChosenButtons, TheSelectedToolTheShiftSquareAndThePickerDifferFromTheWindow) {
  for (const int lightness : kWindows) {
    SCOPED_TRACE(lightness);
    QApplication::setPalette(test::paletteOf(lightness));
    startWithNew();
    for (const char* name : {"imgTool(4)", "imgTool(9)", "imgTool(14)", "imgTool(15)", "imgColorPicker"}) {
      SCOPED_TRACE(name);
      auto* button = find<PictureButton>(name);
      const QImage before = seen(*button);
      click(name);
      ASSERT_TRUE(button->isChecked());
      expectChosenLook(*button, 12);
      click("imgClearAllTools");
      EXPECT_EQ(seen(*button), before);
    }
    form.reset();
  }
}

TEST_F(ChosenButtons, ACellOfThePadDiffersWhileItIsPressed) {
  for (const int lightness : kWindows) {
    SCOPED_TRACE(lightness);
    QApplication::setPalette(test::paletteOf(lightness));
    startWithNew();
    click("imgTool(15)");
    auto* cell = find<PictureButton>("imgShiftDir(1)");
    cell->setDown(true);
    expectChosenLook(*cell, 8);
    form.reset();
  }
}

// A selected tool keeps its look while it has the focus.
TEST_F(ChosenButtons, AChosenButtonWithTheFocusIsStillATile) {
  startWithNew();
  click("imgTool(4)");
  auto* button = find<PictureButton>("imgTool(4)");
  button->setFocus(Qt::TabFocusReason);
  settle();
  EXPECT_GE(contrast(fillOf(seen(*button)), button->palette().color(QPalette::Window)), kLeastContrast);
}

}  // namespace
}  // namespace gp

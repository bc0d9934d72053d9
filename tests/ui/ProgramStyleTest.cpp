// Checks that controls are visible with all colours of the desktop.
#include "ui/Contrast.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QMainWindow>
#include <QMenuBar>
#include <QRadioButton>
#include <QSlider>
#include <QStyleFactory>
#include <QToolButton>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace gp {
namespace {

using test::contrast;
using test::kLeastContrast;
using test::paletteOf;

constexpr int kLight = 239, kDark = 42, kBlackest = 0;

// The greatest contrast between a pixel of the control and the window behind it.
double greatestContrast(QWidget& control, int window) {
  control.setPalette(paletteOf(window));
  control.resize(control.sizeHint());
  QImage image(control.size(), QImage::Format_RGB32);
  image.fill(QColor(window, window, window));
  control.render(&image, {}, {}, QWidget::DrawChildren);
  double greatest = 1;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      greatest = std::max(greatest, contrast(image.pixelColor(x, y), QColor(window, window, window)));
  return greatest;
}

TEST(ProgramStyle, UntickedBoxesAreSeenOnADarkWindow) {
  for (const int window : {kDark, kBlackest}) {
    QCheckBox box;
    EXPECT_GE(greatestContrast(box, window), kLeastContrast) << window;
    QRadioButton button;
    EXPECT_GE(greatestContrast(button, window), kLeastContrast) << window;
  }
}

TEST(ProgramStyle, SlidersAreSeenOnADarkWindow) {
  for (const int window : {kDark, kBlackest}) {
    QSlider slider(Qt::Horizontal);
    EXPECT_GE(greatestContrast(slider, window), kLeastContrast) << window;
  }
}

// On a light window, boxes look like those of other programs.
TEST(ProgramStyle, NothingChangesOnALightWindow) {
  const auto picture = [](QStyle* style) {
    QCheckBox box;
    box.setStyle(style);
    box.setPalette(paletteOf(kLight));
    box.resize(box.sizeHint());
    QImage image(box.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    box.render(&image);
    return image;
  };
  const std::unique_ptr<QStyle> plain(QStyleFactory::create(QApplication::style()->name()));
  EXPECT_EQ(picture(QApplication::style()), picture(plain.get()));
}

// In a window too narrow for its menus, a button shows the others.
TEST(ProgramStyle, TheButtonForMoreMenusIsSeenInEveryTheme) {
  for (const int window : {kLight, kDark, kBlackest}) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(paletteOf(window));
    QMainWindow form;
    for (const char* title : {"First", "Second", "Third", "Fourth"}) form.menuBar()->addMenu(title);
    form.resize(90, 60);
    form.show();
    auto* more = form.menuBar()->findChild<QToolButton*>("qt_menubar_ext_button");
    ASSERT_TRUE(more && more->isVisible());
    const QImage image = test::seen(*more);
    int visible = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (contrast(image.pixelColor(x, y), QColor(window, window, window)) >= kLeastContrast) ++visible;
    EXPECT_GE(visible, 20) << window;
    QApplication::setPalette(before);
  }
}

TEST(ProgramStyle, ListsDropDownAsLists) {
  QComboBox list;
  EXPECT_EQ(list.style()->styleHint(QStyle::SH_ComboBox_Popup, nullptr, &list), 0);
}

}  // namespace
}  // namespace gp

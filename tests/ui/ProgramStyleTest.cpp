// Checks that controls are visible with all colours of the desktop.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QRadioButton>
#include <QSlider>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace gp {
namespace {

constexpr int kLight = 239, kDark = 42, kBlackest = 0;
// The contrast with their background at which most people see the outlines of controls.
constexpr double kLeastContrast = 3;

QPalette paletteOf(int window) {
  const bool isDark = window < 128;
  QPalette palette(QColor(window, window, window));
  palette.setColor(QPalette::Base, isDark ? QColor(27, 27, 27) : QColor(255, 255, 255));
  return palette;
}

// Relative luminance, 0 to 1.
double luminance(QColor color) {
  const auto linear = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(QColor a, QColor b) {
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

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

TEST(ProgramStyle, ListsDropDownAsLists) {
  QComboBox list;
  EXPECT_EQ(list.style()->styleHint(QStyle::SH_ComboBox_Popup, nullptr, &list), 0);
}

}  // namespace
}  // namespace gp

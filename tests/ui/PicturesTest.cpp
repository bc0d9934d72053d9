#include "platform/qt/Pictures.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPalette>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gp {
namespace {

constexpr QRgb kInk = 0xFF3B4252;
constexpr QRgb kInkInTheDark = 0xFFD8DEE9;
constexpr QRgb kAccent = 0xFF2F7FD8;
constexpr QRgb kOutline = 0xFFFFFFFF;

// Sets a window colour of the application for its own lifetime.
class WindowColour {
 public:
  explicit WindowColour(const QColor& colour) : before_(QGuiApplication::palette()) {
    QPalette palette = before_;
    palette.setColor(QPalette::Window, colour);
    QGuiApplication::setPalette(palette);
  }
  ~WindowColour() { QGuiApplication::setPalette(before_); }
  WindowColour(const WindowColour&) = delete;
  WindowColour& operator=(const WindowColour&) = delete;

 private:
  QPalette before_;
};

QImage pictureOf(std::string_view name, qreal ratio = 1, int size = Pictures::kSize) {
  return Pictures::pixmap(name, ratio, size).toImage();
}

QImage iconImage(const QIcon& icon, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(Pictures::kSize, Pictures::kSize), 1.0, mode).toImage();
}

QDir drawings() { return QDir(GP_SOURCE_DIR "/resources/pictures", "*.svg"); }

QByteArray contentOf(const QString& name) {
  QFile file(drawings().filePath(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const std::vector<std::string> kToolbar = {
    "new-32",        "new-16",      "open",         "open-folder",  "save",
    "save-as",       "undo-all",    "undo",         "redo",         "cut",
    "erase-region",  "copy",        "paste",        "paste-opaque", "flip-horizontal",
    "flip-vertical", "rotate-left", "rotate-right", "text",         "sphere",
    "buttonize",     "gradient",    "brightness",   "properties",   "capture",
    "animation",     "alpha"};
const std::vector<std::string> kTools = {"paint",   "erase",       "fill",      "replace",
                                         "restore", "line",        "rectangle", "filled-rectangle",
                                         "oval",    "filled-oval", "region",    "shift"};
const std::vector<std::string> kOthers = {"color-picker",
                                          "clear-tools",
                                          "update-panel",
                                          "chart-16",
                                          "chart-256",
                                          "direct-entry",
                                          "return-256",
                                          "color-dialog",
                                          "screen-color",
                                          "proceed",
                                          "close",
                                          "shrink",
                                          "extend",
                                          "alpha-indicator",
                                          "shift-nw",
                                          "shift-n",
                                          "shift-ne",
                                          "shift-w",
                                          "shift-center",
                                          "shift-e",
                                          "shift-sw",
                                          "shift-s",
                                          "shift-se",
                                          "region-move",
                                          "lighten",
                                          "darken",
                                          "save-palette",
                                          "load-palette",
                                          "help",
                                          "info",
                                          "logo",
                                          "glimmerpane",
                                          "more",
                                          "bold",
                                          "italic",
                                          "underline",
                                          "strikeout",
                                          "step-down",
                                          "step-up",
                                          "film-new",
                                          "film-time",
                                          "frame-above",
                                          "frame-below",
                                          "frame-remove",
                                          "frame-up",
                                          "frame-down",
                                          "frame-shift-up",
                                          "frame-shift-down",
                                          "frame-from-area",
                                          "frame-to-area",
                                          "frame-load",
                                          "pane-resize",
                                          "pane-minimize",
                                          "next-panel",
                                          "next-page",
                                          "print",
                                          "stop"};

TEST(Pictures, EveryButtonToolAndDialogHasItsPicture) {
  EXPECT_EQ(kToolbar.size(), 27u);
  for (const auto& names : {kToolbar, kTools, kOthers}) {
    for (const std::string& name : names) EXPECT_TRUE(Pictures::has(name)) << name;
  }
}

TEST(Pictures, EveryDrawingIsInTheProgramAtAllScales) {
  const QStringList files = drawings().entryList();
  ASSERT_FALSE(files.isEmpty());
  for (const QString& file : files) {
    const std::string name = file.chopped(4).toStdString();
    for (qreal ratio : {1.0, 1.5, 2.0}) {
      const QPixmap pixmap = Pictures::pixmap(name, ratio);
      EXPECT_EQ(pixmap.width(), 20 * ratio) << name;
      EXPECT_EQ(pixmap.devicePixelRatio(), ratio) << name;
    }
  }
}

TEST(Pictures, DrawingsUseTwoNeutralsOneAccentAndNothingElse) {
  const QSet<QString> allowed = {"#3B4252", "#FFFFFF", "#2F7FD8"};
  static const QRegularExpression colour("#[0-9A-Fa-f]{3,8}");
  for (const QString& file : drawings().entryList()) {
    const QString svg = QString::fromUtf8(contentOf(file));
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 20 20\"")) << qPrintable(file);
    EXPECT_FALSE(svg.contains("Gradient")) << qPrintable(file);
    EXPECT_FALSE(svg.contains("<text")) << qPrintable(file);
    for (auto match = colour.globalMatch(svg); match.hasNext();) {
      const QString found = match.next().captured();
      EXPECT_TRUE(allowed.contains(found)) << qPrintable(file + ' ' + found);
    }
  }
}

TEST(Pictures, NoPictureIsEmptyAndNoTwoObjectsShareOne) {
  QSet<QByteArray> seen;
  for (const auto& names : {kToolbar, kTools}) {
    for (const std::string& name : names) {
      const QImage image = pictureOf(name);
      const QByteArray pixels(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
      EXPECT_NE(pixels.count('\0'), pixels.size()) << name;
      EXPECT_FALSE(seen.contains(pixels)) << name;
      seen.insert(pixels);
    }
  }
}

TEST(Pictures, TheSameObjectHasTheSamePicture) {
  EXPECT_EQ(pictureOf("alpha"), pictureOf("alpha-indicator"));
  EXPECT_EQ(pictureOf("shift"), pictureOf("shift-center"));
}

// Each is drawn from one end point to the other, which are the only parts in the accent colour.
TEST(Pictures, TheLineAndTheShapesShowTheirEndPoints) {
  struct Shape {
    const char* name;
    QPoint from, to;
  };
  constexpr int kRadius = 3;
  for (const auto& [name, from, to] : {Shape{"line", {3, 3}, {16, 16}},
                                       {"rectangle", {2, 4}, {17, 15}},
                                       {"filled-rectangle", {2, 4}, {17, 15}},
                                       {"oval", {2, 4}, {17, 15}},
                                       {"filled-oval", {2, 4}, {17, 15}}}) {
    const QImage image = pictureOf(name);
    EXPECT_EQ(image.pixel(from), kAccent) << name;
    EXPECT_EQ(image.pixel(to), kAccent) << name;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != kAccent) continue;
        const int distance = std::min((QPoint(x, y) - from).manhattanLength(), (QPoint(x, y) - to).manhattanLength());
        EXPECT_LE(distance, kRadius) << name << ' ' << x << ' ' << y;
      }
  }
  const QImage line = pictureOf("line");
  for (int i = 6; i <= 13; ++i) EXPECT_EQ(line.pixel(i, i), kInk) << i;
}

TEST(Pictures, AReversedPictureHasTheColoursOfTheOtherTheme) {
  const QIcon reversed = Pictures::reversedIcon("filled-rectangle");
  {
    const WindowColour light(Qt::white);
    EXPECT_EQ(iconImage(reversed).pixel(10, 10), kInkInTheDark);
  }
  {
    const WindowColour dark(Qt::black);
    EXPECT_EQ(iconImage(reversed).pixel(10, 10), kInk);
  }
  EXPECT_TRUE(Pictures::reversedIcon("no-such-picture").isNull());
}

TEST(Pictures, AnUnknownNameGivesNothing) {
  EXPECT_FALSE(Pictures::has("no-such-picture"));
  EXPECT_FALSE(Pictures::has(""));
  EXPECT_TRUE(Pictures::icon("no-such-picture").isNull());
  EXPECT_TRUE(Pictures::pixmap("no-such-picture", 1).isNull());
  EXPECT_EQ(Pictures::cursor("no-such-picture", 1).shape(), Qt::ArrowCursor);
}

TEST(Pictures, ASizeBetweenTheSheetsIsScaledToTheDevicePixel) {
  EXPECT_EQ(Pictures::pixmap("save", 1.25).width(), 25);
  EXPECT_EQ(Pictures::pixmap("save", 3).width(), 60);
  EXPECT_EQ(Pictures::pixmap("save", 1, 16).width(), 16);
  EXPECT_TRUE(Pictures::pixmap("save", 1, 0).isNull());
}

TEST(Pictures, ADarkWindowSwapsTheNeutralsAndKeepsTheAccent) {
  const auto inside = [] { return pictureOf("filled-rectangle").pixel(11, 11); };
  const auto accent = [] { return pictureOf("update-panel").pixel(5, 14); };
  {
    const WindowColour light(Qt::white);
    EXPECT_EQ(inside(), kInk);
    EXPECT_EQ(accent(), kAccent);
  }
  {
    const WindowColour dark(QColor(0x202020));
    EXPECT_EQ(inside(), kInkInTheDark);
    EXPECT_EQ(accent(), kAccent);
  }
}

TEST(Pictures, LightnessOf128IsStillALightWindow) {
  {
    const WindowColour grey(QColor(128, 128, 128));
    EXPECT_EQ(pictureOf("filled-rectangle").pixel(11, 11), kInk);
  }
  const WindowColour darker(QColor(127, 127, 127));
  EXPECT_EQ(pictureOf("filled-rectangle").pixel(11, 11), kInkInTheDark);
}

TEST(Pictures, AnIconThatIsThereFollowsTheTheme) {
  const WindowColour light(Qt::white);
  const QIcon icon = Pictures::icon("filled-rectangle");
  EXPECT_EQ(iconImage(icon).pixel(11, 11), kInk);
  {
    const WindowColour dark(Qt::black);
    EXPECT_EQ(iconImage(icon).pixel(11, 11), kInkInTheDark);
  }
  EXPECT_EQ(iconImage(icon).pixel(11, 11), kInk);
}

TEST(Pictures, ADisabledIconIsFaded) {
  const QIcon icon = Pictures::icon("filled-rectangle");
  EXPECT_EQ(qAlpha(iconImage(icon).pixel(11, 11)), 255);
  EXPECT_NEAR(qAlpha(iconImage(icon, QIcon::Disabled).pixel(11, 11)), 89, 1);
}

TEST(Pictures, TheProgramsIconComesInFourSizesOfItsOwn) {
  const QList<QSize> sizes = {QSize(16, 16), QSize(32, 32), QSize(48, 48), QSize(64, 64)};
  EXPECT_EQ(Pictures::icon("glimmerpane").availableSizes(), sizes);
  EXPECT_EQ(Pictures::pixmap("glimmerpane", 2, 48).width(), 96);
}

TEST(Pictures, TheLogoIsOpaqueSoThatItsGroundCanBeContinued) {
  const QImage logo = pictureOf("logo", 1, Pictures::kLogoSize);
  ASSERT_EQ(logo.size(), QSize(64, 64));
  EXPECT_EQ(logo.pixel(1, 1), 0xFF26324A);
  for (int i = 0; i < 64; ++i) {
    EXPECT_EQ(logo.pixel(i, 0), logo.pixel(1, 1));
    EXPECT_EQ(logo.pixel(63, i), logo.pixel(1, 1));
  }
}

struct Pointer {
  const char* name;
  QPoint tip;
};

// One more in each direction than in the drawing: the margin of the outline.
const Pointer kPointers[] = {{"paint", {3, 18}},      {"erase", {5, 15}},           {"fill", {3, 18}},
                             {"replace", {3, 3}},     {"restore", {3, 18}},         {"color-picker", {3, 18}},
                             {"line", {4, 4}},        {"rectangle", {3, 5}},        {"oval", {3, 5}},
                             {"filled-oval", {3, 5}}, {"filled-rectangle", {3, 5}}, {"region", {11, 11}}};

TEST(PicturePointers, TheHotSpotIsAtTheTipAtEveryScale) {
  for (const Pointer& pointer : kPointers) {
    for (qreal ratio : {1.0, 1.5, 2.0})
      EXPECT_EQ(Pictures::cursor(pointer.name, ratio).hotSpot(), pointer.tip) << pointer.name;
  }
}

TEST(PicturePointers, ATipIsAPixelOfThePictureItself) {
  for (const Pointer& pointer : kPointers) {
    if (std::string_view(pointer.name) == "region") continue;  // A frame: its centre is empty.
    const QRgb tip = pictureOf(pointer.name).pixel(pointer.tip - QPoint(1, 1));
    EXPECT_GT(qAlpha(tip), 128) << pointer.name;
  }
}

TEST(PicturePointers, AWhiteOutlineRunsRoundThePicture) {
  for (qreal ratio : {1.0, 2.0}) {
    const QImage image = Pictures::cursor("filled-rectangle", ratio).pixmap().toImage();
    EXPECT_EQ(image.width(), 22 * ratio);
    const int middle = static_cast<int>(12 * ratio), right = static_cast<int>(19 * ratio);
    EXPECT_EQ(image.pixel(right - 1, middle), kInk);
    EXPECT_EQ(image.pixel(right, middle), kOutline);
    EXPECT_EQ(qAlpha(image.pixel(image.width() - 1, middle)), 0);
  }
}

TEST(PicturePointers, PointersStayTheSameInADarkTheme) {
  const QImage before = Pictures::cursor("erase", 1).pixmap().toImage();
  const WindowColour dark(Qt::black);
  EXPECT_EQ(Pictures::cursor("erase", 1).pixmap().toImage(), before);
}

}  // namespace
}  // namespace gp

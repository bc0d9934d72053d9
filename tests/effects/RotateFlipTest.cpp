// The commands of the Rotate menu as effects: the same as in the editor, and as a slow model of their description.
#include "document/CurrentIcon.h"
#include "drawing/DrawingRooms.h"
#include "effects/EffectCases.h"
#include "effects/ModelIcons.h"
#include "effects/Pictures.h"

#include <cmath>
#include <functional>

namespace gp::test {
namespace {

class RotateFlip : public DrawingRooms {
 protected:
  // The pixels of the Current Icon after a command.
  IconImage afterCommand(const IconImage& icon, const std::function<void()>& command) {
    IconContainerRec record = NewRecord();
    record.setDepth(depthOfColors(kTrueColor, icon.hasAlphaValues()));
    record.hasAlpha = icon.hasAlphaValues();
    document.arrival.arrive(icon, record);
    command();
    return currentIcon(state);
  }
  void rotateBy(int angle) {
    drawing.rotatePanel.open();
    drawing.rotatePanel.setSlider(angle);
    drawing.rotatePanel.doRotateProceed();
  }
};

struct Turn {
  const char* effect;
  EffectValues values;
  void (Transforms::*command)();
  // Where the pixel comes from that the result has at (x, y), in an icon whose last coordinate is `last`.
  int (*sourceX)(int x, int y, int last);
  int (*sourceY)(int x, int y, int last);
};

const Turn kTurns[] = {
    {"flip",
     {1, 0},
     &Transforms::RotateFlipHoriz,
     [](int x, int, int last) { return last - x; },
     [](int, int y, int) { return y; }},
    {"flip",
     {0, 1},
     &Transforms::RotateFlipVertical,
     [](int x, int, int) { return x; },
     [](int, int y, int last) { return last - y; }},
    {"turn",
     {1, 0},
     &Transforms::RotateLeft,
     [](int, int y, int last) { return last - y; },
     [](int x, int, int) { return x; }},
    {"turn",
     {0, 1},
     &Transforms::RotateRight,
     [](int, int y, int) { return y; },
     [](int x, int, int last) { return last - x; }},
};

TEST_F(RotateFlip, FlipsAndTurnsAreThoseOfTheEditor) {
  for (const int size : kIconSides)
    for (const IconImage& icon : iconsOfSize(size))
      for (const Turn& turn : kTurns)
        ASSERT_TRUE(samePixels(applied(turn.effect, icon, turn.values),
                               afterCommand(icon, [&] { (drawing.transforms.*turn.command)(); })))
            << turn.effect << " " << size;
}

TEST_F(RotateFlip, FlipsAndTurnsMoveEachPixelWithItsMask) {
  for (const int size : kIconSides)
    for (const IconImage& icon : iconsOfSize(size))
      for (const Turn& turn : kTurns) {
        const IconImage result = applied(turn.effect, icon, turn.values);
        for (int y = 0; y < size; ++y)
          for (int x = 0; x < size; ++x) {
            const int fromX = turn.sourceX(x, y, size - 1), fromY = turn.sourceY(x, y, size - 1);
            ASSERT_EQ(result.image.GetPixel(x, y), icon.image.GetPixel(fromX, fromY)) << turn.effect;
            ASSERT_EQ(result.mask.GetPixel(x, y), icon.mask.GetPixel(fromX, fromY)) << turn.effect;
          }
      }
}

TEST_F(RotateFlip, ARotationIsThatOfTheEditor) {
  for (const int size : kIconSides) {
    int angle = -360;
    for (const IconImage& icon : iconsOfSize(size)) {
      ASSERT_TRUE(samePixels(applied("rotate", icon, {angle}), afterCommand(icon, [&] { rotateBy(angle); })))
          << size << " by " << angle;
      angle += 13;
    }
  }
}

// The pixel that the result has `x` and `y` from the middle comes from the place there before the rotation.
Color rotatedPixel(const Surface& picture, int x, int y, double angle, Color ground) {
  const int middleX = picture.width() / 2, middleY = picture.height() / 2;
  const double radians = angle * 3.14159265359 / 180;
  const double sourceX = middleX + (x - middleX) * std::cos(radians) - (y - middleY) * std::sin(radians);
  const double sourceY = middleY + (x - middleX) * std::sin(radians) + (y - middleY) * std::cos(radians);
  const Color color = picture.GetPixel(static_cast<int>(std::lrint(sourceX)), static_cast<int>(std::lrint(sourceY)));
  return color == kNoColor ? ground : color;
}

TEST_F(RotateFlip, ARotationTakesEachPixelFromWhereItWas) {
  for (const int size : kIconSides) {
    int angle = -359;
    for (const IconImage& icon : iconsOfSize(size)) {
      angle += 12;
      if (angle % 15 == 0) continue;  // sources half way between two pixels
      const IconImage result = applied("rotate", icon, {angle});
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          ASSERT_EQ(result.image.GetPixel(x, y), rotatedPixel(icon.image, x, y, angle, kBlack)) << size << " " << angle;
          ASSERT_EQ(result.mask.GetPixel(x, y), rotatedPixel(icon.mask, x, y, angle, kWhite)) << size << " " << angle;
        }
    }
  }
}

TEST_F(RotateFlip, AWholeTurnChangesNothing) {
  for (const IconImage& icon : iconsOfSize(24))
    for (const int angle : {-360, 0, 360}) ASSERT_TRUE(samePixels(applied("rotate", icon, {angle}), icon)) << angle;
}

// Each pixel has another colour, with its alpha value as red.
TEST_F(RotateFlip, AlphaValuesMoveWithTheirPixels) {
  IconImage icon = transparentIcon(16);
  icon.alpha = AlphaMatrix(16, 16);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) {
      icon.image.SetPixelV(x, y, rgb(16 * y + x, 1, 0));
      icon.mask.SetPixelV(x, y, kBlack);
      icon.alpha.at(x, y) = static_cast<std::uint8_t>(16 * y + x);
    }
  const auto expectMoved = [](const IconImage& moved, const std::string& effect) {
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 16; ++x) {
        const int red = redOf(moved.image.GetPixel(x, y));
        ASSERT_EQ(moved.alpha.at(x, y), moved.mask.GetPixel(x, y) == kBlack ? red : 255) << effect;
      }
  };
  for (const Turn& turn : kTurns) {
    const IconImage turned = applied(turn.effect, icon, turn.values);
    expectMoved(turned, turn.effect);
    EXPECT_FALSE(turned.alpha == icon.alpha) << turn.effect;
    EXPECT_EQ(afterCommand(icon, [&] { (drawing.transforms.*turn.command)(); }).alpha, turned.alpha) << turn.effect;
  }
  for (const int angle : {0, 45, -30}) {
    const IconImage turned = applied("rotate", icon, {angle});
    expectMoved(turned, "rotate");
    EXPECT_EQ(afterCommand(icon, [&] { rotateBy(angle); }).alpha, turned.alpha);
  }
}

TEST_F(RotateFlip, PicturesOfAnySizeAreFlippedTurnedAndRotated) {
  for (const OddSize& size : kOddSizes) {
    const IconImage icon{Surface(size.width, size.height, kBlack), Surface(size.width, size.height, kWhite), {}};
    for (const Turn& turn : kTurns) {
      const IconImage result = applied(turn.effect, icon, turn.values);
      const bool exchanges = turn.effect == std::string_view("turn");
      EXPECT_EQ(result.width(), exchanges ? size.height : size.width) << turn.effect;
      EXPECT_EQ(result.height(), exchanges ? size.width : size.height) << turn.effect;
    }
    if (size.width <= 33 && size.height <= 33) {
      EXPECT_TRUE(samePixels(applied("rotate", icon, {45}), icon)) << size.width << "x" << size.height;
    }
  }
}

}  // namespace
}  // namespace gp::test

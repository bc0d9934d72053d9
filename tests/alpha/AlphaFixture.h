// The alpha commands over the real rooms to their left, with a screen in which the user does what a test defines.
#pragma once

#include "alpha/AlphaCommands.h"
#include "alpha/AlphaConversion.h"
#include "document/CurrentIcon.h"
#include "files/FilesFixture.h"

#include <functional>

namespace gp::test {

inline constexpr int kEditAlpha = 0, kConvertAlpha = 1;

// By default the user aborts the session, and one that comes up again.
class FakeAlphaForms : public AlphaForms {
 public:
  std::function<AlphaOutcome(const IconImage& icon)> onAlpha;
  std::vector<IconImage> icons;
  std::vector<AlphaMode> modes;
  std::function<AlphaOutcome(const AlphaMatrix& values)> onResumed;
  int resumptions = 0;

  AlphaOutcome showAlpha(const IconImage& icon, AlphaMode mode, const std::optional<AlphaMatrix>& resumed) override {
    if (resumed) {
      ++resumptions;
      return onResumed ? onResumed(*resumed) : AlphaOutcome();
    }
    icons.push_back(icon);
    modes.push_back(mode);
    return onAlpha ? onAlpha(icon) : AlphaOutcome();
  }
};

// The icon with the same alpha value in all of its pixels.
inline IconImage withAlpha(IconImage icon, std::uint8_t value) {
  icon.alpha = AlphaMatrix(icon.width(), icon.height(), value);
  return icon;
}

class AlphaFixture : public FilesTest {
 protected:
  AlphaCommands commands{files.context(), saver};
  FakeAlphaForms screen;
  const std::string target = folder.path("target.ico");

  AlphaFixture() { commands.attach(&screen); }

  // The user sets all values, and saves.
  void saveWith(std::uint8_t value, AlphaResult result = AlphaResult::SaveChanged) {
    screen.onAlpha = [=, this](const IconImage& icon) { return AlphaOutcome{result, target, withAlpha(icon, value)}; };
    commands.mnuAlphaSub(kEditAlpha);
  }
  // The user converts the icon.
  void convert() {
    screen.onAlpha = [this](const IconImage& icon) {
      return AlphaOutcome{AlphaResult::ConvertTo24, target, convertRetainAlpha(icon)};
    };
    commands.mnuAlphaSub(kConvertAlpha);
  }
  AlphaMatrix& alphaRec() { return state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer)); }
  // A picture of few colours, in true colour with alpha.
  static Picture plainPicture(int size, const Rgb& color) {
    Picture picture = anyPicture(size, 32);
    picture.color = [color](int, int) { return color; };
    return picture;
  }
};

}  // namespace gp::test

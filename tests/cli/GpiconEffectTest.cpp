// gpicon effect: the result of each effect and of its options, and every refusal.
#include "cli/WrittenPicture.h"
#include "effects/EffectTable.h"

namespace gp::test {
namespace {

struct EffectCase {
  std::vector<std::string> words;  // behind OUT; the first is the effect's name
  EffectValues values;

  IconImage make(const IconImage& icon) const { return findEffect(words.front())->apply(icon, values); }
};

// All give different results.
std::vector<EffectCase> effects() {
  return {{{"embossed"}, {}},
          {{"engraved"}, {}},
          {{"raised"}, {}},
          {{"shadowed"}, {kBlack}},
          {{"shadowed", "--color", "Ff8001"}, {rgb(255, 128, 1)}},
          {{"buttonize"}, {0}},
          {{"buttonize", "--style", "1"}, {1}},
          {{"buttonize", "--style", "2"}, {2}},
          {{"disabled"}, {}}};
}

// A disc in dark colours, black in the transparent part.
Picture disc(int size, int bits) {
  Picture p = anyPicture(size, bits);
  const auto isOutside = [size](int x, int y) {
    return (2 * x - size) * (2 * x - size) + (2 * y - size) * (2 * y - size) > size * size / 2;
  };
  p.transparent = isOutside;
  p.color = [isOutside](int x, int y) { return isOutside(x, y) ? Rgb{0, 0, 0} : Rgb{3 * x, 3 * y, 60}; };
  p.palette = {{0, 0, 0}, {128, 0, 0}, {0, 0, 128}};
  p.index = [isOutside](int x, int y) { return isOutside(x, y) ? 0 : 1 + (x + y) % 2; };
  return p;
}

class GpiconEffect : public GpiconOneImage {
 protected:
  std::string write(const Picture& p) const { return folder.write("in.ico", build(entryOf(p))); }
  std::vector<std::string> call(const std::string& input, const std::vector<std::string>& words) const {
    std::vector<std::string> arguments{"effect", input, "0", out};
    arguments.insert(arguments.end(), words.begin(), words.end());
    return arguments;
  }
  WrittenPicture made(const Picture& p, const std::vector<std::string>& words) const {
    expectDone(call(write(p), words));
    return writtenIcon(out);
  }
};

TEST_F(GpiconEffect, EachEffectMakesWhatTheEditorMakes) {
  for (const int size : {16, 24, 32, 48}) {
    const Picture p = disc(size, 24);
    static_cast<void>(write(p));
    std::set<std::string> results{textOf("in.ico")};
    for (const EffectCase& effect : effects()) {
      SCOPED_TRACE(testing::PrintToString(effect.words) + std::to_string(size));
      const WrittenPicture written = made(p, effect.words);
      expectPixels(written, effect.make(iconOf(p)));
      EXPECT_EQ(written.bits, 24);
      results.insert(textOf("out"));
    }
    EXPECT_EQ(results.size(), effects().size() + 1) << "two effects make the same";
  }
}

TEST_F(GpiconEffect, PaletteIconsAreSavedInTheDepthThatTheirColorsNeed) {
  const Picture p = disc(32, 4);
  for (const EffectCase& effect : effects()) {
    SCOPED_TRACE(testing::PrintToString(effect.words));
    expectPixels(made(p, effect.words), effect.make(iconOf(p)));
  }
  EXPECT_EQ(made(p, {"shadowed"}).bits, 4);
  EXPECT_EQ(made(p, {"shadowed", "--color", "FF8001"}).bits, 8);
}

TEST_F(GpiconEffect, TheShadowHasTheColorWhereItWasBlack) {
  Picture p = disc(16, 24);
  p.transparent = [](int x, int y) { return x != 7 || y != 7; };
  p.color = [](int x, int y) { return x == 7 && y == 7 ? Rgb{255, 0, 0} : Rgb{0, 0, 0}; };
  const WrittenPicture black = made(p, {"shadowed"}), colored = made(p, {"--color", "00ff80", "shadowed"});
  int shadows = 0;
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) {
      ASSERT_EQ(colored.isTransparent(x, y), black.isTransparent(x, y));
      const bool isShadow = !black.isTransparent(x, y) && (x != 7 || y != 7);
      if (isShadow) ++shadows;
      ASSERT_EQ(black.color(x, y), x == 7 && y == 7 ? rgb(255, 0, 0) : kBlack);
      ASSERT_EQ(colored.color(x, y), isShadow ? rgb(0, 255, 128) : black.color(x, y));
    }
  EXPECT_GT(shadows, 0);
}

TEST_F(GpiconEffect, StyleNoughtIsTheUsualOne) {
  static_cast<void>(made(disc(32, 24), {"buttonize"}));
  const Bytes usual = bytesOf(out);
  static_cast<void>(made(disc(32, 24), {"buttonize", "--style", "0"}));
  EXPECT_EQ(bytesOf(out), usual);
}

TEST_F(GpiconEffect, ButtonsHaveTransparentCornersAndPaintedEdges) {
  for (const std::string style : {"0", "1", "2"}) {
    const WrittenPicture written = made(disc(24, 24), {"buttonize", "--style", style});
    for (int i = 0; i < 24; ++i)
      for (const auto& [x, y] : {std::pair{i, 0}, {i, 23}, {0, i}, {23, i}})
        EXPECT_EQ(written.isTransparent(x, y), i == 0 || i == 23) << style << " " << x << "," << y;
  }
}

TEST_F(GpiconEffect, TheDisabledLookOfLightColorsIsEmpty) {
  Picture p = disc(32, 24);
  p.transparent = [](int, int) { return false; };
  p.color = [](int x, int) { return Rgb{153 + x, 0, 0}; };
  const WrittenPicture written = made(p, {"disabled"});
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      ASSERT_TRUE(written.isTransparent(x, y));
      ASSERT_EQ(written.color(x, y), kBlack);
    }
}

TEST_F(GpiconEffect, ReliefOfAnEmptyIconIsEmpty) {
  Picture p = disc(32, 24);
  p.transparent = [](int, int) { return true; };
  p.color = [](int, int) { return Rgb{0, 0, 0}; };
  for (const std::string name : {"embossed", "engraved", "raised", "shadowed"}) {
    static_cast<void>(made(p, {name}));
    EXPECT_EQ(bytesOf(out), build(entryOf(p))) << name;
  }
}

TEST_F(GpiconEffect, TheIndexSelectsTheImage) {
  const std::string path = folder.write("three.ico", fileOf({anyEntry(16, 4), entryOf(disc(48, 24)), anyEntry(32, 8)}));
  expectDone({"effect", path, "1", out, "raised"});
  const IconImage before = iconOf(disc(48, 24));
  expectPixels(writtenIcon(out), findEffect("raised")->apply(before, {}));
}

TEST_F(GpiconEffect, TheInputMayBeTheOutput) {
  const std::string input = write(disc(32, 24));
  const IconImage before = iconOf(disc(32, 24));
  expectDone({"effect", input, "0", input, "engraved"});
  expectPixels(writtenIcon(input), findEffect("engraved")->apply(before, {}));
}

TEST_F(GpiconEffect, AlphaIsRefused) {
  const std::string input = icon("alpha.ico", 16, 32);
  const Bytes before = bytesOf(input);
  const std::string text =
      input + ": Current icon is with alpha, please run Convert 32 To 24 BPP to convert it to 24-BPP first.";
  for (const EffectCase& effect : effects()) {
    expectRefusal(call(input, effect.words), text);
    std::vector<std::string> ontoItself = call(input, effect.words);
    ontoItself[3] = input;
    expectRefusal(ontoItself, text);
  }
  EXPECT_EQ(bytesOf(input), before);
}

TEST_F(GpiconEffect, WhatTheEditorDoesNotOpenIsRefused) { expectRefusalsOfFiles("effect", {"buttonize"}); }

TEST_F(GpiconEffect, WhatCannotBeWrittenLeavesNothing) { expectFailuresToWrite("effect", {"raised"}); }

TEST_F(GpiconEffect, BadUsage) {
  const std::string a = icon("a.ico", 16, 24);
  const std::string needed = "effect: IN.ico INDEX OUT.ico NAME is needed";
  expectBadUsage({"effect"}, needed);
  expectBadUsage(call(a, {}), needed);
  expectBadUsage(call(a, {"raised", "raised"}), needed);
  expectBadUsage({"effect", a, "x", out, "raised"}, "effect: the index is no number");
  for (const std::string name : {"Raised", "raise", "sharp", ""})
    expectBadUsage(call(a, {name}), "effect: no effect is named " + name);
  for (const std::string color : {"12345", "1234567", "zzzzzz", "-00001"})
    expectBadUsage(call(a, {"shadowed", "--color", color}), "effect: --color takes six hexadecimal digits");
  for (const std::string style : {"3", "-1", "x", "0x1", "99999999999"})
    expectBadUsage(call(a, {"buttonize", "--style", style}), "effect: --style takes a number from 0 to 2");
  expectBadUsage(call(a, {"raised", "--threshold", "1"}), "effect: unknown option --threshold");
}

TEST_F(GpiconEffect, AGradientHasTheOptionsOfItsKind) {
  const std::string a = icon("a.ico", 16, 24);
  const auto gradient = [this, &a](std::vector<std::string> more) {
    more.insert(more.begin(), {"gradient", "--from", "000000", "--to", "FFFFFF", "--kind"});
    return call(a, more);
  };
  for (const std::string kind : {"square", "spherical"})
    expectBadUsage(gradient({kind, "--angle", "0"}), "effect: --angle goes with --kind linear and symmetric only");
  for (const std::string kind : {"linear", "symmetric", "square"})
    expectBadUsage(gradient({kind, "--center", "1,1"}), "effect: --center goes with --kind spherical only");
  expectBadUsage(call(a, {"gradient", "--kind", "square"}), "effect: gradient needs --kind, --from and --to");
  for (const std::string angle : {"361", "-1", "1.5"})
    expectBadUsage(gradient({"linear", "--angle", angle}), "effect: --angle takes a number from 0 to 360");
  expectBadUsage(gradient({"spherical", "--center", "3"}), "effect: --center takes two whole numbers, X,Y");
}

TEST_F(GpiconEffect, AnIconThatAnEffectDoesNotTakeIsRefused) {
  const std::vector<std::string> gradient{"gradient", "--from", "000000", "--to", "FFFFFF", "--kind", "spherical"};
  const auto with = [](std::vector<std::string> words, const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
  };
  const std::string input = write(disc(16, 24));
  for (const std::string center : {"16,3", "3,16", "-1,0"})
    expectRefusal(call(input, with(gradient, {"--center", center})), input + ": Center point is outside the icon.");
  expectRefusal(call(input, {"sphere"}), input + ": Current icon is less then 32x 32.");
  expectRefusal(call(input, {"sphere", "--size", "small"}), input + ": Current icon is less then 24x24.");
  expectRefusal(call(input, {"sphere", "--size", "tiny", "--light", "0,0"}),
                input + ": Please click a point on sphere");
  Picture full = disc(16, 24);
  full.transparent = [](int, int) { return false; };
  expectRefusal(call(write(full), gradient), input + ": No unpainted area in current icon.");
}

}  // namespace
}  // namespace gp::test

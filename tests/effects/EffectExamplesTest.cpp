// What each effect makes of a small picture, pixel by pixel. An effect that the program has needs an example here.
#include "effects/EffectCases.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

struct Example {
  const char* effect;
  EffectValues values;
  Rows before, after;
};

const Rows kWhiteDisc{"................", "................", "......wwwww.....", "....wwwwwwwww...",
                      "...wwwwwwwwwww..", "...wwwwwwwwwww..", "..wwwwwwwwwwwww.", "..wwwwwwwwwwwww.",
                      "..wwwwwwwwwwwww.", "..wwwwwwwwwwwww.", "..wwwwwwwwwwwww.", "...wwwwwwwwwww..",
                      "...wwwwwwwwwww..", "....wwwwwwwww...", "......wwwww.....", "................"};

// A pattern that rises by 40 from the first three pixels to the last one.
Surface smallPattern() {
  Surface pattern(2, 2, kBlack);
  pattern.SetPixelV(1, 1, rgb(40, 40, 40));
  return pattern;
}

const Example kExamples[] = {
    {"embossed", {}, {"...", ".o.", "..^"}, {"w..", ".o.", "..g"}},
    {"engraved", {}, {"...", ".o.", "..^"}, {"g..", ".o.", "..w"}},
    {"raised", {}, {"...", ".o.", "..^"}, {"w..", ".o.", "..b"}},
    {"shadowed", {rgb(255, 1, 2)}, {"...", ".o.", "..^"}, {"...", ".o.", "..r"}},
    {"buttonize", {0}, {"opo", "pop", "opo"}, {".w.", "wob", ".b."}},
    {"buttonize", {1}, {"opo", "pop", "opo"}, {".g.", "wgw", ".w."}},
    {"buttonize", {2}, {"opo", "pop", "opo"}, {".w.", "wdb", ".b."}},
    {"sharpen", {0}, {"oo.", "og^"}, {"oo.", "o7^"}},
    {"soften", {0}, {".b.", "bwb", "^b."}, {".b.", "b8b", "^b."}},
    {"antialias", {}, {"..", "^w"}, {"..", "^9"}},
    {"brightness", {100, 0, 0, -50}, {"o.", "^o"}, {"4.", "^4"}},
    {"theme", {rgb(0, 9, 0), 100}, {"o.", "^o"}, {"5.", "^5"}},
    {"cast", {rgb(128, 128, 128)}, {"bb.", "bb^"}, {"gw.", "66^"}},
    {"grayscale", {}, {"o.", "^o"}, {"1.", "^1"}},
    {"invert", {}, {"o.", "^o"}, {"2.", "^2"}},
    {"swap", {0}, {"o.", "^o"}, {"3.", "^3"}},
    {"disabled", {}, {"...", "po.", "..^"}, {"...", ".g.", "..w"}},
    {"rotate", {90}, {"....", ".po.", "..^.", "...."}, {"....", "....", ".o^.", ".p.."}},
    {"flip", {1, 0}, {"...", "po.", "..^"}, {"...", ".op", "^.."}},
    {"flip", {0, 1}, {"...", "po.", "..^"}, {"..^", "po.", "..."}},
    {"turn", {1, 0}, {"...", "po.", "..^"}, {"..^", ".o.", ".p."}},
    {"turn", {0, 1}, {"...", "po.", "..^"}, {".p.", ".o.", "^.."}},
    {"gradient", {0, kWhite, kWhite, 0, kMiddlePoint}, {"...", ".o.", "..^"}, {"www", "wow", "www"}},
    {"blend", withPictures({0, 50}, {iconOf({"ww", "w."})}), {"o.", "^o"}, {"Aw", "wo"}},
    {"texture", withPictures({3, 5, 0}, {{smallPattern(), Surface(), {}}}), {"g.", "^g"}, {"B.", "^C"}},
    {"resize", {0, 0}, flatRows(32, 32, 'o'), flatRows(16, 16, 'o')},
    {"sphere", {kWhite, pointValue(16, 16), 2, 0}, flatRows(16, 16, 'o'), kWhiteDisc},
};

TEST(EffectExamples, EachExampleIsExact) {
  for (const Example& example : kExamples)
    EXPECT_EQ(rowsOf(applied(example.effect, iconOf(example.before), example.values)), example.after) << example.effect;
}

TEST(EffectExamples, EachEffectHasOne) {
  for (const EffectRow* effect : commandLineEffects())
    EXPECT_TRUE(std::ranges::any_of(kExamples, [effect](const Example& example) {
      return effect->name == std::string_view(example.effect);
    })) << effect->name;
}

}  // namespace
}  // namespace gp::test

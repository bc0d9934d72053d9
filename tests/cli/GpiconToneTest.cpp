// The options of tone and sharpening on the command line, beyond what holds for every effect.
#include "cli/WrittenPicture.h"

namespace gp::test {
namespace {

class GpiconTone : public GpiconOneImage {
 protected:
  const std::string input = icon("a.ico", 16, 24);

  std::vector<std::string> call(const std::vector<std::string>& words) const {
    std::vector<std::string> arguments{"effect", input, "0", out};
    arguments.insert(arguments.end(), words.begin(), words.end());
    return arguments;
  }
};

TEST_F(GpiconTone, ThePercentageOfAThemeNeedsAColorOfHueZero) {
  for (const char* color : {"0000FF", "FF0100", "10FF10"})
    for (const char* percent : {"100", "0"})
      expectBadUsage(call({"theme", "--color", color, "--percent", percent}),
                     "effect: --percent goes with a --color of hue 0 only");
  for (const char* color : {"FF0000", "800000", "000000", "FFFFFF", "7F7F7F"})
    expectDone(call({"theme", "--color", color, "--percent", "40"}));
  expectDone(call({"theme", "--color", "0000FF"}));
}

TEST_F(GpiconTone, BrightnessNeedsAnOptionAndTakesZero) {
  expectBadUsage(call({"brightness"}), "effect: brightness needs at least one of its options");
  for (const char* value : {"-101", "101", "1.5", "x"})
    expectBadUsage(call({"brightness", "--green", value}), "effect: --green takes a number from -100 to 100");
  expectDone(call({"brightness", "--red", "0"}));
  EXPECT_TRUE(std::filesystem::exists(out));
  expectDone(call({"brightness", "--overall", "-100", "--blue", "100"}));
}

TEST_F(GpiconTone, LevelsAreThreeNumbers) {
  expectBadUsage(call({"cast"}), "effect: cast needs --levels");
  for (const char* levels : {"1,2", "1,2,3,4", "1,2,256", "-1,2,3", "1,,3", ",,", "1 ,2,3", "1,2,3,", "1;2;3", "abc"})
    expectBadUsage(call({"cast", "--levels", levels}),
                   "effect: --levels takes three numbers from 0 to 255 with commas between them");
  expectDone(call({"cast", "--levels", "0,127,255"}));
}

TEST_F(GpiconTone, AnOrderIsOneOfFive) {
  expectBadUsage(call({"swap"}), "effect: swap needs --order");
  for (const char* order : {"RGB", "bgr", "B.G.R.", "0"})
    expectBadUsage(call({"swap", "--order", order}), "effect: --order takes BGR, GRB, BRG, GBR or RBG");
  for (const char* order : {"BGR", "GRB", "BRG", "GBR", "RBG"}) expectDone(call({"swap", "--order", order}));
}

TEST_F(GpiconTone, SharpenAndSoftenAreStrongOnRequest) {
  for (const char* name : {"antialias", "grayscale", "invert"})
    expectBadUsage(call({name, "--strong"}), "effect: --strong goes with sharpen and soften only");
  for (const char* name : {"antialias", "grayscale", "invert", "sharpen", "soften"}) expectDone(call({name}));
  for (const char* name : {"sharpen", "soften"}) expectDone(call({name, "--strong"}));
}

}  // namespace
}  // namespace gp::test

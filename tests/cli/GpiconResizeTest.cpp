// gpicon effect resize: pixels, size and depth of the written icon, and every refusal.
#include "cli/WrittenPicture.h"
#include "effects/Resize.h"

namespace gp::test {
namespace {

const std::vector<std::string> kWords{"16", "24", "32", "48"};

class GpiconResize : public GpiconOneImage {
 protected:
  std::string write(const Picture& p) const { return folder.write("in.ico", build(entryOf(p))); }
  std::vector<std::string> call(const std::string& input, const std::vector<std::string>& options) const {
    std::vector<std::string> arguments{"effect", input, "0", out, "resize"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
  }
};

TEST_F(GpiconResize, EveryPairOfSizesIsMadeAsTheEditorMakesIt) {
  for (std::size_t from = 0; from < kWords.size(); ++from)
    for (std::size_t to = 0; to < kWords.size(); ++to) {
      if (from == to) continue;
      const Picture p = anyPicture(kIconSides.at(from), 24);
      for (const bool isPlain : {false, true}) {
        std::vector<std::string> options{"--to", kWords[to]};
        if (isPlain) options.emplace_back("--plain");
        expectDone(call(write(p), options));
        const WrittenPicture written = writtenIcon(out);
        EXPECT_EQ(written.width, kIconSides.at(to));
        expectPixels(written, resizedIcon(iconOf(p), kIconSides.at(to), !isPlain));
      }
    }
}

TEST_F(GpiconResize, TheColorsAreCountedAnew) {
  // True colour that needs two colours only.
  Picture p = anyPicture(48, 24);
  p.color = [](int, int) { return Rgb{255, 255, 255}; };
  p.transparent = [](int, int) { return false; };
  expectDone(call(write(p), {"--to", "16"}));
  EXPECT_EQ(writtenIcon(out).bits, 1);
  p.color = [](int x, int y) { return Rgb{5 * x, 5 * y, x * y % 256}; };
  expectDone(call(write(p), {"--to", "32"}));
  EXPECT_EQ(writtenIcon(out).bits, 24);
}

TEST_F(GpiconResize, ThePresentSizeIsRefused) {
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    const std::string input = write(anyPicture(kIconSides.at(i), 8));
    expectRefusal(call(input, {"--to", kWords[i]}), input + ": No icon in Editing Area yet or not of suitable size.");
  }
}

TEST_F(GpiconResize, OtherSizesInTheFileAreNoReasonToRefuse) {
  const std::string input = folder.write("two.ico", fileOf({anyEntry(32, 24), anyEntry(16, 24)}));
  expectDone(call(input, {"--to", "48"}));
  EXPECT_EQ(writtenIcon(out).width, 48);
}

TEST_F(GpiconResize, AlphaIsRefused) {
  const std::string input = icon("alpha.ico", 16, 32);
  expectRefusal(call(input, {"--to", "32"}), input +
                                                 ": Current icon is with alpha, please run Convert 32 To 24 BPP "
                                                 "to convert it to 24-BPP first.");
}

TEST_F(GpiconResize, OnlyTheFourSizesAreTaken) {
  const std::string input = write(anyPicture(32, 24));
  expectBadUsage(call(input, {}), "effect: resize needs --to");
  for (const std::string size : {"17", "64", "0", "-16", "big", "16x16"})
    expectBadUsage(call(input, {"--to", size}), "effect: --to takes 16, 24, 32 or 48");
}

}  // namespace
}  // namespace gp::test

// gpicon alpha, to24, shades and info.
#include "alpha/AlphaConversion.h"
#include "alpha/AlphaShade.h"
#include "cli/EntryLoading.h"
#include "cli/WrittenPicture.h"

#include <set>

namespace gp::test {
namespace {

class GpiconAlpha : public GpiconOneImage {
 protected:
  // The parts of the image that out holds, as gpicon unpack shows them.
  Bytes part(const std::string& name) const {
    std::filesystem::remove_all(folder.file("parts"));
    EXPECT_EQ(run({"unpack", out, "-d", folder.file("parts")}).status, 0);
    return bytesOf(folder.file("parts/out_0." + name));
  }
  static Bytes samplesOf(const Bytes& pgm, int size) { return {pgm.end() - size * size, pgm.end()}; }
  std::vector<std::string> call(const std::string& command, const std::string& input,
                                const std::vector<std::string>& options = {}) const {
    std::vector<std::string> words{command, input, "0", out};
    words.insert(words.end(), options.begin(), options.end());
    return words;
  }
};

TEST_F(GpiconAlpha, AnIconWithoutAlphaGets255AndTheAreaItsValue) {
  for (const int bits : {1, 4, 8, 24}) {
    const std::string input = icon("in.ico", 16, bits);
    const Picture p = anyPicture(16, bits);
    expectDone(call("alpha", input, {"--set", "77", "--area", "2,3,5,6"}));
    const Bytes alpha = samplesOf(part("alpha.pgm"), 16);
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 16; ++x) {
        const bool isSet = x >= 2 && x < 7 && y >= 3 && y < 9 && !p.transparent(x, y);
        ASSERT_EQ(alpha[static_cast<std::size_t>(y * 16 + x)], isSet ? 77 : 255) << x << " " << y;
      }
    EXPECT_NE(run({"list", out}).out.find("\t-1\t32\t-1\t32\t"), std::string::npos);
  }
}

TEST_F(GpiconAlpha, NoughtIsWrittenAsOneAndComesBack) {
  const std::string input = icon("in.ico", 16, 24);
  const Picture p = anyPicture(16, 24);
  expectDone(call("alpha", input, {"--set", "0"}));
  const Bytes alpha = samplesOf(part("alpha.pgm"), 16);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) ASSERT_EQ(alpha[static_cast<std::size_t>(y * 16 + x)], p.transparent(x, y) ? 255 : 1);
  expectDone(call("to24", out));
  EXPECT_EQ(samplesOf(part("mask.pgm"), 16), Bytes(256, 255)) << "all of it is transparent";
}

TEST_F(GpiconAlpha, PresentValuesStayOutsideTheArea) {
  const std::string input = icon("in.ico", 32, 32);
  expectDone(call("resave", input));
  const Bytes before = samplesOf(part("alpha.pgm"), 32);
  expectDone(call("alpha", input, {"--area", "0,0,1,1", "--set", "9"}));
  const Bytes after = samplesOf(part("alpha.pgm"), 32);
  EXPECT_EQ(Bytes(after.begin() + 1, after.end()), Bytes(before.begin() + 1, before.end()));
}

TEST_F(GpiconAlpha, AnAreaThatIsNotInsideIsRefused) {
  const std::string input = icon("in.ico", 16, 24);
  for (const std::string area : {"0,0,17,1", "0,0,1,17", "16,0,1,1", "0,16,1,1", "2147483647,0,2147483647,1"})
    expectRefusal(call("alpha", input, {"--set", "1", "--area", area}), input + ": the area is not inside the icon");
}

TEST_F(GpiconAlpha, BadValuesAreBadUsage) {
  const std::string input = icon("in.ico", 16, 24);
  for (const std::string value : {"256", "-1", "x", "1.5"})
    expectBadUsage(call("alpha", input, {"--set", value}), "alpha: --set takes a number from 0 to 255");
  expectBadUsage(call("alpha", input), "alpha: --set takes a number from 0 to 255");
  for (const std::string area : {"1", "1,2,3", "1,2,0,4", "1,2,3,0", "1,2,3,4,5", "a,b,c,d", "-1,0,1,1"})
    expectBadUsage(call("alpha", input, {"--set", "1", "--area", area}), "alpha: --area takes X,Y,W,H");
  expectBadUsage(call("alpha", input, {"--set", "1", "--set", "2"}), "alpha: --set and --area take one value each");
}

TEST_F(GpiconAlpha, To24MakesWhatTheEditorMakes) {
  for (const int size : {16, 24, 32, 48}) {
    const std::string input = icon("in.ico", size, 32);
    IconDefect defect = IconDefect::None;
    const auto loaded = cli::loadEntry(*readIconFile(input), 0, input, defect);
    ASSERT_TRUE(loaded && loaded->record.hasAlpha);
    const IconImage converted = convertRetainAlpha(loaded->icon);
    expectDone(call("to24", input));
    const WrittenPicture written = writtenIcon(out);
    EXPECT_EQ(written.bits, 24);
    expectPixels(written, converted);
    expectDone(call("to24", input, {"--palette"}));
    expectPixels(writtenIcon(out), converted);
  }
}

TEST_F(GpiconAlpha, PaletteSavesInTheDepthThatTheColorsNeed) {
  Picture p = anyPicture(16, 24);
  p.color = [](int x, int) { return x % 2 == 0 ? Rgb{0, 0, 0} : Rgb{255, 255, 255}; };
  expectDone(call("alpha", folder.write("in.ico", build(entryOf(p))), {"--set", "255"}));
  expectDone({"to24", out, "0", out, "--palette"});
  EXPECT_EQ(writtenIcon(out).bits, 1);
}

TEST_F(GpiconAlpha, IconsWithoutAlphaAreNotConvertedAndHaveNoShades) {
  for (const int bits : {1, 4, 8, 24}) {
    const std::string input = icon("in.ico", 16, bits);
    for (const std::string command : {"to24", "shades"})
      expectRefusal(call(command, input), input + ": the icon has no alpha channel");
  }
}

TEST_F(GpiconAlpha, ShadesAreThoseOfTheScreen) {
  const std::string input = icon("in.ico", 32, 32);
  IconDefect defect = IconDefect::None;
  const auto loaded = cli::loadEntry(*readIconFile(input), 0, input, defect);
  ASSERT_TRUE(loaded);
  EXPECT_EQ(run(call("shades", input)).status, 0);
  const Bytes file = bytesOf(out);
  EXPECT_EQ(std::string(file.begin(), file.begin() + 13), "P5\n32 32\n255\n");
  const Bytes samples = samplesOf(file, 32);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x)
      ASSERT_EQ(samples[static_cast<std::size_t>(y * 32 + x)],
                loaded->icon.mask.GetPixel(x, y) == kBlack ? shadeOf(loaded->icon.alpha.at(x, y)) : 255);
}

TEST_F(GpiconAlpha, InfoStatesDepthsColorsAndBytes) {
  const std::string two = folder.write("two.ico", fileOf({anyEntry(16, 4), anyEntry(32, 32)}));
  const Outcome all = run({"info", two});
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(lines(all.out), 2);
  const Outcome one = run({"info", two, "1"});
  EXPECT_EQ(one.out, all.out.substr(all.out.find('\n') + 1));
  EXPECT_NE(one.out.find(two + "\t1\t32x32\t-1\t32\t-1\t32\t-1\t32\t"), std::string::npos) << one.out;
  const Outcome json = run({"info", "--json", two, "1"});
  EXPECT_NE(json.out.find("\"index\":1,\"size\":32,\"colors\":-1,\"bits\":32,\"headerColors\":-1,\"headerBits\":32,"
                          "\"presentColors\":-1,\"presentBits\":32,\"colorsUsed\":"),
            std::string::npos)
      << json.out;
}

TEST_F(GpiconAlpha, InfoStatesTheSizeOfEachImage) {
  for (const int size : {16, 24, 32, 48}) {
    const std::string input = icon("in.ico", size, 4), sides = std::to_string(size);
    EXPECT_TRUE(run({"info", input, "0"}).out.starts_with(input + "\t0\t" + sides + "x" + sides + "\t16\t4\t"));
    EXPECT_NE(run({"info", "--json", input, "0"}).out.find("\"size\":" + sides + ","), std::string::npos);
  }
}

TEST_F(GpiconAlpha, InfoCountsTheColorsOfPaintedTransparentAndInvertingPixels) {
  for (const int bits : {1, 4, 8, 24}) {
    const std::string input = icon("in.ico", 16, bits);
    IconDefect defect = IconDefect::None;
    const auto loaded = cli::loadEntry(*readIconFile(input), 0, input, defect);
    ASSERT_TRUE(loaded);
    std::set<Color> colors;
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 16; ++x) colors.insert(loaded->icon.image.GetPixel(x, y));
    const std::string json = run({"info", "--json", input, "0"}).out;
    EXPECT_NE(json.find("\"colorsUsed\":" + std::to_string(colors.size()) + ",\"bytesWhenSaved\":"), std::string::npos)
        << json;
  }
}

TEST_F(GpiconAlpha, TheBytesOfInfoAreThoseThatResaveWrites) {
  for (const int size : {16, 24, 32, 48})
    for (const int bits : {1, 4, 8, 24, 32}) {
      const std::string input = icon("in.ico", size, bits);
      expectDone(call("resave", input));
      const std::string line = run({"info", input, "0"}).out;
      EXPECT_EQ(line.substr(line.rfind('\t') + 1), std::to_string(bytesOf(out).size()) + "\n") << size << " " << bits;
    }
}

TEST_F(GpiconAlpha, InfoOfWhatTheEditorDoesNotOpenIsRefused) {
  const std::string input = icon("in.ico", 16, 24);
  EXPECT_EQ(run({"info", input, "1"}).status, 1);
  EXPECT_EQ(run({"info", folder.file("gone.ico")}).status, 1);
  EXPECT_EQ(run({"info", input, "x"}).status, 2);
  EXPECT_EQ(run({"info"}).status, 2);
  EXPECT_EQ(run({"info", input, "0", "1"}).status, 2);
  EXPECT_EQ(run({"info", "--json", folder.file("gone.ico")}).status, 1);
}

}  // namespace
}  // namespace gp::test

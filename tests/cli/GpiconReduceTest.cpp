// gpicon reduce: the result of each method, the depth with which it is saved, and every refusal.
#include "cli/WrittenPicture.h"
#include "effects/ColorReduction.h"

namespace gp::test {
namespace {

struct MethodCase {
  std::string to, name;
  ReductionMethod method;
};
const std::vector<MethodCase> kMethods{
    {"256", "optimal", ReductionMethod::Optimal},    {"256", "system", ReductionMethod::System},
    {"16", "optimized", ReductionMethod::Optimized}, {"16", "nearest", ReductionMethod::Nearest},
    {"16", "vga", ReductionMethod::StandardVga},     {"2", "cutoff", ReductionMethod::SelectCutoff},
    {"2", "weighted", ReductionMethod::Weighted},    {"2", "ordered", ReductionMethod::Ordered}};

// More colours than a palette holds; black in the transparent part.
Picture colorful(int size) {
  Picture p = anyPicture(size, 24);
  p.transparent = [](int x, int y) { return x + y < 9; };
  p.color = [](int x, int y) { return x + y < 9 ? Rgb{0, 0, 0} : Rgb{x * 5, 255 - y * 5, 9 * x ^ 5 * y}; };
  for (int i = 0; i < 256; ++i) p.palette.push_back({i, 255 - i, 7 * i % 256});
  return p;
}
Picture greys() {
  Picture p;
  p.width = p.height = 16;
  p.bits = 24;
  p.color = [](int x, int y) { return Rgb{16 * y + x, 16 * y + x, 16 * y + x}; };
  return p;
}

class GpiconReduce : public GpiconOneImage {
 protected:
  std::string write(const Entry& entry) const { return folder.write("in.ico", build(entry)); }
  WrittenPicture reduced(const std::string& input, const std::string& to, const std::string& method,
                         const std::vector<std::string>& options = {}) const {
    std::vector<std::string> arguments{"reduce", input, "0", out, "--to", to, "--method", method};
    arguments.insert(arguments.end(), options.begin(), options.end());
    expectDone(arguments);
    return writtenIcon(out);
  }
};

TEST_F(GpiconReduce, EachMethodMakesWhatTheEditorMakes) {
  const Picture p = colorful(48);
  const std::string input = write(entryOf(p));
  const IconImage before = iconOf(p);
  std::set<std::string> results;
  for (const MethodCase& m : kMethods) {
    SCOPED_TRACE(m.name);
    const WrittenPicture written = reduced(input, m.to, m.name);
    expectPixels(written, reduceColors(before.image, before.mask, {m.method}));
    EXPECT_LE(written.colorCount(), static_cast<std::size_t>(std::stoi(m.to)) + (m.to == "256" ? 1 : 0));
    results.insert(textOf("out"));
  }
  EXPECT_EQ(results.size(), kMethods.size()) << "two methods make the same";
}

TEST_F(GpiconReduce, TheMaskStaysButForTheCutoff) {
  const Picture p = colorful(32);
  const std::string input = write(entryOf(p));
  for (const MethodCase& m : kMethods) {
    const WrittenPicture written = reduced(input, m.to, m.name);
    bool isSame = true;
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x) isSame = isSame && written.isTransparent(x, y) == p.transparent(x, y);
    EXPECT_EQ(isSame, m.name != "cutoff") << m.name;
  }
}

TEST_F(GpiconReduce, TheCutoffPaintsWhatIsDarkerThanTheThreshold) {
  const std::string input = write(entryOf(greys()));
  struct Case {
    std::vector<std::string> options;
    int threshold;
  };
  for (const Case& c :
       {Case{{}, 128}, Case{{"--threshold", "128"}, 128}, Case{{"--threshold", "0"}, 0}, Case{{"--threshold", "1"}, 1},
        Case{{"--threshold", "129"}, 129}, Case{{"--threshold", "255"}, 255}, Case{{"--threshold", "256"}, 256},
        Case{{"--threshold", "354"}, 354}, Case{{"--threshold", "2000000000"}, 2000000000}}) {
    const WrittenPicture written = reduced(input, "2", "cutoff", c.options);
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 16; ++x) {
        ASSERT_EQ(written.isTransparent(x, y), 16 * y + x >= c.threshold) << c.threshold << " " << x << "," << y;
        ASSERT_EQ(written.color(x, y), kBlack);
      }
  }
}

TEST_F(GpiconReduce, TrueColorStaysTrueColor) {
  const std::string input = write(entryOf(colorful(32)));
  for (const MethodCase& m : kMethods) EXPECT_EQ(reduced(input, m.to, m.name).bits, 24) << m.name;
}

TEST_F(GpiconReduce, PaletteIconsTakeTheDepthThatTheyNeed) {
  Picture p = colorful(32);
  p.bits = 8;
  p.index = [](int x, int y) { return (8 * y + x) % 256; };
  const std::string input = write(entryOf(p));
  EXPECT_EQ(reduced(input, "16", "optimized").bits, 4);
  EXPECT_EQ(reduced(input, "16", "nearest").bits, 4);
  EXPECT_EQ(reduced(input, "16", "vga").bits, 4);
  EXPECT_EQ(reduced(input, "2", "cutoff").bits, 1);
  EXPECT_EQ(reduced(input, "2", "weighted").bits, 1);
  EXPECT_EQ(reduced(input, "2", "ordered").bits, 1);
  Picture standard = anyPicture(32, 4);
  standard.palette = {{0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {255, 255, 255}};
  standard.index = [](int x, int y) { return (x + y) % 4; };
  EXPECT_EQ(reduced(write(entryOf(standard)), "2", "weighted").bits, 1);
}

// Enough colours for the count to report more than 256.
TEST_F(GpiconReduce, AFullPaletteIsReducedTo256ColorsAndKeepsItsDepth) {
  Picture p = colorful(32);
  p.bits = 8;
  for (int i = 0; i < 256; ++i) p.palette[static_cast<std::size_t>(i)] = {i % 16 * 16 + 1, i / 16 * 16 + 1, i};
  p.index = [](int x, int y) { return (32 * y + x) % 256; };
  p.transparent = [](int, int) { return false; };
  const std::string input = write(entryOf(p));
  const IconImage before = iconOf(p);
  const WrittenPicture written = reduced(input, "256", "system");
  EXPECT_EQ(written.bits, 8);
  expectPixels(written, reduceColors(before.image, before.mask, {ReductionMethod::System}));
}

TEST_F(GpiconReduce, TheIndexSelectsTheImage) {
  const std::string path = folder.write("three.ico", fileOf({anyEntry(16, 4), entryOf(colorful(48)), anyEntry(32, 8)}));
  expectDone({"reduce", "--to", "16", "--method", "vga", path, "1", out});
  EXPECT_EQ(writtenIcon(out).width, 48);
}

TEST_F(GpiconReduce, TheInputMayBeTheOutput) {
  const Picture p = colorful(32);
  const std::string input = write(entryOf(p));
  const IconImage before = iconOf(p);
  expectDone({"reduce", input, "0", input, "--to", "16", "--method", "nearest"});
  expectPixels(writtenIcon(input), reduceColors(before.image, before.mask, {ReductionMethod::Nearest}));
}

TEST_F(GpiconReduce, AnIconOfSoFewColorsAlreadyIsRefused) {
  Picture p = anyPicture(16, 24);
  struct Case {
    int colors;
    std::function<Rgb(int, int)> color;
    std::set<std::string> refused;
  };
  for (const Case& c : {Case{2,
                             [](int x, int y) {
                               return x < y ? Rgb{0, 0, 0} : Rgb{255, 255, 255};
                             },
                             {"256", "16", "2"}},
                        Case{16,
                             [](int x, int y) {
                               return x < y ? Rgb{0, 0, 0} : Rgb{0, 128, 128 * (x % 2)};
                             },
                             {"256", "16"}},
                        Case{256,
                             [](int x, int y) {
                               return Rgb{x, y / 4, 3};
                             },
                             {"256"}}}) {
    p.color = c.color;
    const std::string input = write(entryOf(p));
    for (const MethodCase& m : kMethods) {
      SCOPED_TRACE(std::to_string(c.colors) + " " + m.name);
      const std::vector<std::string> arguments{"reduce", input, "0", out, "--to", m.to, "--method", m.name};
      std::filesystem::remove(out);
      if (c.refused.contains(m.to))
        expectRefusal(arguments, input + ": Current image is of " + std::to_string(c.colors) + "-color depth.  ");
      else
        expectDone(arguments);
    }
  }
}

TEST_F(GpiconReduce, FewColorsOfPaletteIconsAreRefusedToo) {
  for (const auto& [bits, to, method] : {std::tuple{1, "2", "ordered"}, {4, "16", "vga"}, {8, "256", "optimal"}}) {
    Picture p = anyPicture(16, bits);
    p.palette = {{0, 0, 0}, {255, 255, 255}};
    if (bits > 1) p.palette.push_back({255, 0, 0});
    if (bits > 4) p.palette.push_back({255, 1, 0});
    p.index = [&p](int x, int y) { return (x + y) % static_cast<int>(p.palette.size()); };
    const std::string input = write(entryOf(p));
    expectRefusal({"reduce", input, "0", out, "--to", to, "--method", method},
                  input + ": Current image is of " + std::to_string(1 << bits) + "-color depth.  ");
  }
}

TEST_F(GpiconReduce, AlphaIsRefused) {
  const std::string input = icon("alpha.ico", 32, 32);
  const Bytes before = bytesOf(input);
  for (const MethodCase& m : kMethods) {
    const std::string text =
        input + ": Current icon is with alpha, please run Convert 32 To 24 BPP to convert it to 24-BPP first.";
    expectRefusal({"reduce", input, "0", out, "--to", m.to, "--method", m.name}, text);
    expectRefusal({"reduce", input, "0", input, "--to", m.to, "--method", m.name}, text);
  }
  EXPECT_EQ(bytesOf(input), before);
}

TEST_F(GpiconReduce, WhatTheEditorDoesNotOpenIsRefused) {
  expectRefusalsOfFiles("reduce", {"--to", "16", "--method", "nearest"});
}

TEST_F(GpiconReduce, WhatCannotBeWrittenLeavesNothing) {
  expectFailuresToWrite("reduce", {"--to", "256", "--method", "system"});
}

TEST_F(GpiconReduce, MethodsGoWithTheirColorsOnly) {
  const std::string input = write(entryOf(colorful(32)));
  for (const MethodCase& m : kMethods)
    for (const std::string to : {"256", "16", "2"})
      if (to != m.to)
        expectBadUsage({"reduce", input, "0", out, "--to", to, "--method", m.name},
                       "reduce: --to " + to + " has no method " + m.name);
}

TEST_F(GpiconReduce, ThresholdsGoWithTheCutoffOnly) {
  const std::string input = write(entryOf(colorful(32)));
  for (const MethodCase& m : kMethods)
    if (m.name != "cutoff")
      expectBadUsage({"reduce", input, "0", out, "--to", m.to, "--method", m.name, "--threshold", "9"},
                     "reduce: --threshold goes with cutoff only");
}

TEST_F(GpiconReduce, BadUsage) {
  const std::string a = icon("a.ico", 16, 24);
  const auto with = [&](const std::vector<std::string>& options) {
    std::vector<std::string> arguments{"reduce", a, "0", out};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
  };
  const std::string both = "reduce: --to and --method are needed",
                    once = "reduce: --to, --method and --threshold take one value each",
                    files = "reduce: IN.ico INDEX OUT.ico is needed";
  expectBadUsage({"reduce"}, both);
  expectBadUsage(with({}), both);
  expectBadUsage(with({"--to", "2"}), both);
  expectBadUsage(with({"--method", "cutoff"}), both);
  expectBadUsage(with({"--to", "--method", "cutoff"}), both);
  expectBadUsage(with({"--to", "2", "--method"}), once);
  expectBadUsage(with({"--to", "2", "--method", ""}), once);
  expectBadUsage(with({"--to", "2", "--to", "2", "--method", "cutoff"}), once);
  expectBadUsage(with({"--to", "2", "--method", "cutoff", "--method", "cutoff"}), once);
  expectBadUsage(with({"--to", "2", "--method", "cutoff", "--threshold"}), once);
  for (const std::string to : {"8", "0", "-2", "two", "2x"})
    expectBadUsage(with({"--to", to, "--method", "cutoff"}), "reduce: --to " + to + " has no method cutoff");
  for (const std::string method : {"Cutoff", "cut", "best"})
    expectBadUsage(with({"--to", "2", "--method", method}), "reduce: --to 2 has no method " + method);
  for (const std::string threshold : {"-1", "x", "1.5", "99999999999"})
    expectBadUsage(with({"--to", "2", "--method", "cutoff", "--threshold", threshold}),
                   "reduce: --threshold takes a number");
  expectBadUsage(with({"--to", "2", "--method", "cutoff", "--color", "000000"}), "reduce: unknown option --color");
  expectBadUsage(with({"--to", "2", "--method", "cutoff", "more"}), files);
  expectBadUsage({"reduce", a, "0", "--to", "2", "--method", "cutoff"}, files);
  expectBadUsage({"reduce", a, "-1", out, "--to", "2", "--method", "cutoff"}, "reduce: unknown option -1");
  expectBadUsage({"reduce", a, "x", out, "--to", "2", "--method", "cutoff"}, "reduce: the index is no number");
}

}  // namespace
}  // namespace gp::test

// gpicon to24 --all: the files that it writes byte by byte, which files it refuses, and its arguments.
#include "cli/GpiconAllFixture.h"

namespace gp::test {
namespace {

namespace fs = std::filesystem;

// Of two colours, so that --palette saves it with 1 bit.
Entry blackAndWhite(int size) {
  Picture picture = anyPicture(size, 32);
  picture.color = [](int x, int y) {
    const int level = (x + y) % 2 * 255;
    return Rgb{level, level, level, 255};
  };
  return entryOf(picture);
}

class GpiconTo24All : public GpiconAll {
 protected:
  GpiconTo24All() : GpiconAll("to24") {}

  // What to24 for one image and `replace` make of all images with alpha.
  Bytes convertedOneByOne(const std::vector<Entry>& entries, const std::vector<std::string>& options) const {
    const std::string path = folder.write("given.ico", fileOf(entries));
    const std::string expected = folder.write("expected.ico", fileOf(entries)), one = folder.path("one.ico");
    for (std::size_t i = 0; i < entries.size(); ++i) {
      std::vector<std::string> words{"to24", path, std::to_string(i), one};
      words.insert(words.end(), options.begin(), options.end());
      if (run(words).status != 0) continue;
      EXPECT_EQ(run({"replace", expected, std::to_string(i), one}).status, 0) << i;
    }
    return bytesOf(expected);
  }
};

TEST_F(GpiconTo24All, EachImageWithAlphaIsTheOneThatTo24AndReplaceMakeAndOthersStay) {
  const std::vector<Entry> entries{anyEntry(16, 32), anyEntry(32, 4), blackAndWhite(48), anyEntry(24, 8)};
  for (const std::vector<std::string>& options : {std::vector<std::string>{}, std::vector<std::string>{"--palette"}}) {
    const Bytes expected = convertedOneByOne(entries, options);
    std::vector<std::string> more = options;
    more.push_back("--force");
    expectDone(runAll({folder.path("given.ico")}, more));
    EXPECT_EQ(written("given.ico"), expected) << options.size();
    EXPECT_NE(written("given.ico"), fileOf(entries));
  }
}

TEST_F(GpiconTo24All, TwoImagesThatGetOneSizeAndDepthBothStay) {
  expectDone(runAll({folder.write("two.ico", fileOf({anyEntry(16, 32), anyEntry(16, 24)}))}));
  EXPECT_EQ(lines(run({"list", out + "/two.ico"}).out), 2);
  EXPECT_EQ(number(written("two.ico"), 6 + 6, 2), 24U);
  EXPECT_EQ(number(written("two.ico"), 6 + 16 + 6, 2), 24U);
}

TEST_F(GpiconTo24All, AFileWithoutAlphaIsRefusedAndTheOthersAreWritten) {
  const std::string plain = folder.write("plain.ico", fileOf({anyEntry(16, 24), anyEntry(32, 4)}));
  const std::string alpha = folder.write("alpha.ico", fileOf({anyEntry(16, 32)}));
  const Outcome o = runAll({plain, alpha});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + plain + ": no image of it can be converted: the icon has no alpha channel\n");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"alpha.ico"});
}

TEST_F(GpiconTo24All, AFileThatIsThereStaysWithoutForce) {
  const std::string alpha = folder.write("alpha.ico", fileOf({anyEntry(16, 32)}));
  fs::create_directory(out);
  folder.write("out/alpha.ico", {1, 2, 3});
  EXPECT_EQ(runAll({alpha}).status, 1);
  EXPECT_EQ(written("alpha.ico"), (Bytes{1, 2, 3}));
}

TEST_F(GpiconTo24All, BadUsageMakesNoFolder) {
  const std::string alpha = folder.write("alpha.ico", fileOf({anyEntry(16, 32)}));
  expectBadUsage(runAll({}), "no file given");
  expectBadUsage(runAll({alpha, "0"}), "--all takes no INDEX; the file of this name is ./0");
  expectBadUsage(runAll({alpha}, {"--png"}), "unknown option --png");
  expectBadUsage(run({"to24", alpha, "--all"}), "one -d DIR is needed");
}

}  // namespace
}  // namespace gp::test

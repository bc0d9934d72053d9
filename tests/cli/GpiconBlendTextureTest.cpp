// gpicon effect blend and texture: the icon that is blended in, the bitmaps that are patterns, and every refusal.
#include "cli/WrittenPicture.h"
#include "effects/Texture.h"
#include "files/BitmapBuilder.h"

namespace gp::test {
namespace {

constexpr const char* kNothing = "No icon of same size from Icons Panel to blend in.";
constexpr const char* kNotLoaded = "Failed to load the image file";

// A picture of a depth, of the size of a pattern, in many colours.
Picture patternPicture(int bits, int width = 48, int height = 48) {
  Picture p = anyPicture(width, bits);
  p.height = height;
  for (int i = 0; i < defaultPaletteSize(bits); ++i) p.palette.push_back({i * 7 % 256, 255 - i, i * 3 % 256});
  p.color = [](int x, int y) { return Rgb{x * 5, y * 5, x * y % 256, (x + y) % 256}; };
  p.transparent = [](int, int) { return false; };
  return p;
}

class GpiconBlendTexture : public GpiconOneImage {
 protected:
  const Picture own = anyPicture(32, 24);
  const std::string input = folder.write("in.ico", build(entryOf(own)));

  std::vector<std::string> call(const std::vector<std::string>& words) const {
    std::vector<std::string> arguments{"effect", input, "0", out};
    arguments.insert(arguments.end(), words.begin(), words.end());
    return arguments;
  }
  std::vector<std::string> blendWith(const std::string& other, const std::string& percent = "") const {
    std::vector<std::string> words{"blend", "--with", other};
    if (!percent.empty()) words.insert(words.end(), {"--percent", percent});
    return call(words);
  }
  std::vector<std::string> textureOf(const std::string& pattern) const {
    return call({"texture", "--pattern", pattern});
  }
  std::string bitmap(const Picture& p) const { return folder.write("pattern.bmp", bitmapFileOf(p)); }
  // The icon with the pattern of a file, at the usual depth.
  IconImage texturedBy(const Picture& pattern, const EffectValues& usual = {kStoredPatterns, 5, 0}) const {
    EffectValues values = usual;
    values.setPictures({{iconOf(pattern).image, Surface(), {}}});
    return findEffect("texture")->apply(iconOf(own), values);
  }
  IconImage blendedWith(const Picture& other, int percent) const {
    EffectValues values{0, percent};
    values.setPictures({iconOf(other)});
    return findEffect("blend")->apply(iconOf(own), values);
  }
};

TEST_F(GpiconBlendTexture, TheFirstIconOfTheSameSizeWithoutAlphaIsBlendedIn) {
  Picture first = anyPicture(32, 24), second = first;
  first.color = [](int x, int y) { return Rgb{255 - x, y, 77}; };
  second.color = [](int, int) { return Rgb{255, 255, 255}; };
  const std::string other = folder.write(
      "other.ico", fileOf({entryOf(anyPicture(16, 24)), entryOf(anyPicture(32, 32)), entryOf(first), entryOf(second)}));
  for (const auto& [text, percent] : {std::pair{"", 40}, {"0", 0}, {"55", 55}, {"100", 100}}) {
    expectDone(blendWith(other, text));
    expectPixels(writtenIcon(out), blendedWith(first, percent));
  }
}

TEST_F(GpiconBlendTexture, AnImageThatTheEditorDoesNotShowIsNotBlendedIn) {
  Entry damaged = entryOf(own, 0, 16);
  const std::string other = folder.write("other.ico", fileOf({damaged, entryOf(own)}));
  expectDone(blendWith(other));
  expectPixels(writtenIcon(out), blendedWith(own, 40));
}

TEST_F(GpiconBlendTexture, WithoutAnIconOfTheSameSizeWithoutAlphaNothingIsBlended) {
  for (const auto& entries : {std::vector{anyEntry(16, 24), anyEntry(48, 4)}, {anyEntry(32, 32)}}) {
    const std::string other = folder.write("other.ico", fileOf(entries));
    expectRefusal(blendWith(other), input + ": " + kNothing);
  }
}

TEST_F(GpiconBlendTexture, AFileThatIsNoIconIsNotBlended) {
  const std::string text = folder.write("a.txt", {'h', 'i'});
  expectRefusal(blendWith(text), text + ": not an icon file");
  expectRefusal(blendWith(folder.path("gone.ico")), folder.path("gone.ico") + ": not a file that can be read");
  expectRefusal(blendWith(folder.folder()), folder.folder() + ": not a file that can be read");
}

TEST_F(GpiconBlendTexture, ManyImagesWithAlphaAreGoneThroughOnce) {
  const Entry image = anyEntry(32, 32);
  Entry shared = image;
  shared.image.clear();
  shared.bytesInRes = static_cast<std::uint32_t>(image.image.size());
  std::vector<Entry> entries(20000, shared);
  for (Entry& entry : entries) entry.offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
  entries.front().image = image.image;
  expectRefusal(blendWith(folder.write("other.ico", fileOf(entries))), input + ": " + kNothing);
}

TEST_F(GpiconBlendTexture, TheIconCanComeFromStandardInput) {
  const std::string other = folder.write("other.ico", build(entryOf(anyPicture(32, 8))));
  expectDone(blendWith(other));
  const Bytes fromFile = bytesOf(out);
  std::filesystem::remove(out);
  EXPECT_EQ(runAfter("cat " + inShell(other) + " | ", blendWith("-")).status, 0);
  EXPECT_EQ(bytesOf(out), fromFile);
}

TEST_F(GpiconBlendTexture, BadUsageOfBlend) {
  expectBadUsage(call({"blend"}), "effect: blend needs --with");
  expectBadUsage(call({"blend", "--percent", "40"}), "effect: blend needs --with");
  for (const char* percent : {"-1", "101", "x", "1.5"})
    expectBadUsage(blendWith(input, percent), "effect: --percent takes a number from 0 to 100");
}

TEST_F(GpiconBlendTexture, EachStoredPatternHasItsNumberAndTheFirstIsTheUsualOne) {
  std::vector<Bytes> results;
  for (const std::string pattern : {"1", "2", "3"}) {
    expectDone(textureOf(pattern));
    expectPixels(writtenIcon(out), findEffect("texture")->apply(iconOf(own), {std::stoi(pattern) - 1, 5, 0}));
    results.push_back(bytesOf(out));
  }
  expectDone(call({"texture"}));
  EXPECT_EQ(bytesOf(out), results[0]);
  EXPECT_NE(results[0], results[1]);
  EXPECT_NE(results[1], results[2]);
}

TEST_F(GpiconBlendTexture, DepthAndStyleApply) {
  for (const char* depth : {"0", "1", "0.55", "-0.1", "x"})
    expectBadUsage(call({"texture", "--depth", depth}), "effect: --depth takes a number from 0.1 to 0.9");
  for (const auto& [text, depth] : {std::pair{"0.1", 1}, {"0.9", 9}}) {
    expectDone(call({"texture", "--depth", text}));
    expectPixels(writtenIcon(out), findEffect("texture")->apply(iconOf(own), {0, depth, 0}));
    expectDone(call({"texture", "--inverted", "--depth", text}));
    expectPixels(writtenIcon(out), findEffect("texture")->apply(iconOf(own), {0, depth, 1}));
  }
}

TEST_F(GpiconBlendTexture, BitmapsOfEachPlainDepthArePatterns) {
  for (const int bits : {1, 4, 8, 24, 32}) {
    SCOPED_TRACE(bits);
    const Picture p = patternPicture(bits);
    expectDone(textureOf(bitmap(p)));
    expectPixels(writtenIcon(out), texturedBy(p));
  }
}

TEST_F(GpiconBlendTexture, ABitmapMayHaveItsTopRowFirst) {
  Picture p = patternPicture(24), turned = p;
  p.headerHeight = -48;
  turned.color = [color = p.color](int x, int y) { return color(x, 47 - y); };
  expectDone(textureOf(bitmap(p)));
  expectPixels(writtenIcon(out), texturedBy(turned));
}

TEST_F(GpiconBlendTexture, AFileWhoseNameIsANumberNeedsItsFolder) {
  const Picture p = patternPicture(24);
  folder.write("1", bitmapFileOf(p));
  const std::string there = "cd " + inShell(folder.folder()) + "; ";
  EXPECT_EQ(runAfter(there, textureOf("./1")).status, 0);
  expectPixels(writtenIcon(out), texturedBy(p));
  EXPECT_EQ(runAfter(there, textureOf("1")).status, 0);
  expectPixels(writtenIcon(out), findEffect("texture")->apply(iconOf(own), {0, 5, 0}));
  EXPECT_EQ(runAfter(there, textureOf("4")).err, "gpicon: 4: " + std::string(kNotLoaded) + "\n");
}

TEST_F(GpiconBlendTexture, APatternOfAnotherSizeIsRefused) {
  for (const auto& [width, height] : {std::pair{47, 48}, {48, 47}, {16, 16}, {49, 48}, {96, 96}, {480, 1}})
    for (const int bits : {8, 24}) {
      const std::string path = bitmap(patternPicture(bits, width, height));
      expectRefusal(textureOf(path), path + ": Incoming image is " + std::to_string(width) + " x " +
                                         std::to_string(height) + ", not of the size of 48x48.");
    }
  Picture huge = patternPicture(24);
  huge.headerWidth = huge.headerHeight = 2147483647;
  const std::string path = bitmap(huge);
  expectRefusal(textureOf(path), path + ": Incoming image is 2147483647 x 2147483647, not of the size of 48x48.");
}

TEST_F(GpiconBlendTexture, ABitmapOfAnotherKindIsNotLoaded) {
  struct Case {
    int bits;
    std::uint32_t compression, headerSize;
  };
  for (const Case& c : {Case{16, 0, 40},
                        {2, 0, 40},
                        {0, 0, 40},
                        {8, 1, 40},
                        {4, 2, 40},
                        {32, 3, 40},
                        {16, 3, 40},
                        {24, 4, 40},
                        {24, 0, 12},
                        {24, 0, 0}}) {
    Picture p = patternPicture(24);
    p.headerBits = c.bits;
    p.compression = c.compression;
    p.headerSize = c.headerSize;
    const std::string path = bitmap(p);
    expectRefusal(textureOf(path), path + ": " + kNotLoaded);
  }
  // Complete, but with channel masks.
  Picture masked = patternPicture(32);
  masked.compression = 3;
  const std::string withMasks = bitmap(masked);
  expectRefusal(textureOf(withMasks), withMasks + ": " + kNotLoaded);
  for (const auto& [width, height] : {std::pair{0, 48}, {48, 0}, {-48, 48}, {0, 0}}) {
    Picture p = patternPicture(24);
    p.headerWidth = width;
    p.headerHeight = height;
    const std::string path = bitmap(p);
    expectRefusal(textureOf(path), path + ": " + kNotLoaded);
  }
}

TEST_F(GpiconBlendTexture, ABitmapThatIsCutShortIsNotLoaded) {
  for (const int bits : {1, 8, 24}) {
    const Bytes whole = bitmapFileOf(patternPicture(bits));
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{14}, std::size_t{30}, std::size_t{53},
                                   whole.size() / 2, whole.size() - 1}) {
      const auto end = whole.begin() + static_cast<std::ptrdiff_t>(size);
      const std::string path = folder.write("cut.bmp", Bytes(whole.begin(), end));
      expectRefusal(textureOf(path), path + ": " + kNotLoaded);
    }
  }
}

TEST_F(GpiconBlendTexture, WhatIsNoBitmapIsNotLoaded) {
  for (const std::string& path : {input, folder.path("gone.bmp"), folder.folder()})
    expectRefusal(textureOf(path), path + ": " + kNotLoaded);
}

TEST_F(GpiconBlendTexture, AnIconThatIsPaintedNowhereTakesNoTexture) {
  Picture empty = anyPicture(32, 24);
  empty.transparent = [](int, int) { return true; };
  const std::string path = folder.write("empty.ico", build(entryOf(empty)));
  expectRefusal({"effect", path, "0", out, "texture"}, path + ": Current icon is blank, i.e. no painted area yet.");
}

TEST_F(GpiconBlendTexture, TheHelpNamesTheFiles) {
  const std::string help = run({"help", "effect"}).out;
  for (const char* text :
       {"[--with OTHER.ico]", "[--pattern FILE.bmp|1|2|3]", "(a bitmap file, 1, 2 or 3, without it 1)",
        "(a number from 0.1 to 0.9, without it 0.5)", "(an icon file)"})
    EXPECT_NE(help.find(text), std::string::npos) << text;
}

}  // namespace
}  // namespace gp::test

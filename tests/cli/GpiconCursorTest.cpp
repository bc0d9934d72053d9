// Cursor files, which gpicon recognises by their content and not by their name.
#include "cli/GpiconFixture.h"

namespace gp::test {
namespace {

class GpiconCursor : public Gpicon {
 protected:
  // A cursor with its hot spot in the fields of planes and bits.
  std::string cursor(const std::string& name, const Picture& picture, std::uint8_t x, std::uint8_t y) const {
    return folder.write(name, bytes(entryOf(picture, 0, y), x));
  }
  static Bytes bytes(const Entry& entry, std::uint8_t x) {
    Bytes file = build(IcoFile{{entry}, 0, 2, {}});
    file[6 + 4] = x;
    return file;
  }
};

TEST_F(GpiconCursor, ProbePrintsThreeNumbers) {
  const std::string a = cursor("a.cur", anyPicture(32, 4), 31, 0), b = cursor("b.ico", anyPicture(32, 32), 0, 31),
                    outside = cursor("c.cur", anyPicture(32, 4), 32, 0),
                    small = cursor("d.cur", anyPicture(16, 4), 1, 1);
  EXPECT_EQ(run({"probe", a, b, outside, small}).out,
            a + "\t1/16/4\n" + b + "\t1/-1/32\n" + outside + "\t0/0/0\n" + small + "\t0/0/0\n");
}

TEST_F(GpiconCursor, ListShowsTheHeadersDepthAndTheHotSpot) {
  const std::string path = cursor("a.cur", anyPicture(32, 8), 3, 5);
  const Outcome o = run({"list", path});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(o.out, path + "\t0\t32x32\t256\t8\t256\t8\t2216\t22\tbmp\tusable\t3\t5\n");
}

TEST_F(GpiconCursor, ListAsJsonTellsTheKindAndTheHotSpot) {
  const std::string path = cursor("a.ico", anyPicture(32, 1), 0, 31);
  EXPECT_EQ(run({"list", "--json", path}).out,
            "[\n{\"file\":\"" + path +
                "\",\"kind\":\"cur\",\"images\":[\n"
                "{\"index\":0,\"width\":32,\"height\":32,\"colors\":2,\"bits\":1,\"headerColors\":2,\"headerBits\":1,"
                "\"bytes\":304,\"offset\":22,\"encoding\":\"bmp\",\"usable\":true,\"hotspotX\":0,\"hotspotY\":31}]}\n"
                "]\n");
}

TEST_F(GpiconCursor, OtherSizesDepthsPlacesAndHotSpotsAreUnusable) {
  Picture strange = anyPicture(32, 24);
  strange.headerBits = 16;
  const std::string several = folder.write("several.cur", build(IcoFile{{anyEntry(32, 4), anyEntry(32, 8)}, 0, 2, {}}));
  for (const std::string& path : {cursor("small.cur", anyPicture(16, 4), 1, 1), cursor("strange.cur", strange, 1, 1),
                                  cursor("outside.cur", anyPicture(32, 4), 1, 32), several}) {
    const Outcome o = run({"list", path});
    EXPECT_EQ(o.status, 0) << path;
    EXPECT_EQ(o.out.find("\tusable"), std::string::npos) << o.out;
    EXPECT_NE(o.out.find("\tunusable\t"), std::string::npos) << o.out;
    const Outcome unpacked = run({"unpack", path, "-d", folder.path("out")});
    EXPECT_EQ(unpacked.status, 1) << path;
    EXPECT_EQ(unpacked.err, "gpicon: " + path + ": no usable image\n");
  }
}

TEST_F(GpiconCursor, UnpackWritesWhatTheEditorShows) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 7, x == 3 ? 0 : 200}; };
  ASSERT_EQ(run({"unpack", cursor("hand.cur", p, 4, 4), "-d", folder.path("out")}).status, 0);
  const std::string image = textOf("out/hand_0.image.ppm"), mask = textOf("out/hand_0.mask.pgm"),
                    alpha = textOf("out/hand_0.alpha.pgm");
  ASSERT_EQ(image.size(), 13u + 3 * 1024);
  ASSERT_EQ(mask.size(), 13u + 1024);
  ASSERT_EQ(alpha.size(), 13u + 1024);
  for (std::size_t i = 0; i < 1024; ++i) {
    const int x = static_cast<int>(i % 32), y = static_cast<int>(i / 32);
    ASSERT_EQ(image.substr(13 + 3 * i, 3), (std::string{static_cast<char>(x), static_cast<char>(y), 7}));
    ASSERT_EQ(static_cast<unsigned char>(mask[13 + i]), p.transparent(x, y) ? 255 : 0);
    ASSERT_EQ(static_cast<unsigned char>(alpha[13 + i]), x == 3 ? 255 : 200);
  }
}

TEST_F(GpiconCursor, UnpackBelow32BitsWritesNoAlpha) {
  Picture p = anyPicture(32, 4);
  p.palette = {{1, 2, 3}, {4, 5, 6}};
  p.index = [](int x, int) { return x % 2; };
  ASSERT_EQ(run({"unpack", cursor("c.cur", p, 0, 0), "-d", folder.path("out")}).status, 0);
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"c_0.image.ppm", "c_0.mask.pgm"}));
  EXPECT_EQ(textOf("out/c_0.image.ppm").substr(13, 6), std::string({1, 2, 3, 4, 5, 6}));
}

TEST_F(GpiconCursor, TheHeaderDecidesTheDepthWhateverTheEntrySays) {
  Entry e = entryOf(anyPicture(32, 8), 16, 4);
  const std::string path = folder.write("c.cur", bytes(e, 4));
  EXPECT_EQ(run({"probe", path}).out, path + "\t1/256/8\n");
}

TEST_F(GpiconCursor, WhatChangesIconFilesRefusesCursors) {
  const std::string path = cursor("c.cur", anyPicture(32, 4), 0, 0), a = icon("a.ico", 16, 4);
  const Bytes before = bytesOf(path);
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"replace", path, "0", a},
           {"add", path, a},
           {"remove", path, "0"},
           {"reorder", path, "1"},
           {"salvage", path, "-o", folder.path("out")},
           {"resave", path, "0", folder.path("out")},
           {"bmp", path, "0", folder.path("out")},
           {"reduce", path, "0", folder.path("out"), "--to", "2", "--method", "cutoff"},
           {"effect", path, "0", folder.path("out"), "raised"},
           {"split", path, "-d", folder.path("parts")}}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1) << arguments.front();
    EXPECT_EQ(lines(o.err), 1) << arguments.front();
    EXPECT_EQ(bytesOf(path), before);
  }
}

}  // namespace
}  // namespace gp::test

// What gpicon prints, writes and returns for icon files, and how it parses its arguments.
#include "cli/GpiconFixture.h"

#include <sys/stat.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

TEST_F(Gpicon, HelpTellsEverySubcommandAndSucceeds) {
  const Outcome o = run({"--help"});
  EXPECT_EQ(o.status, 0);
  for (const char* word : {"gpicon probe [--json] FILE...",
                           "gpicon list [--json] FILE...",
                           "gpicon check [--json] FILE...",
                           "gpicon unpack FILE... -d DIR",
                           "gpicon split FILE... -d DIR",
                           "gpicon resave IN.ico INDEX OUT.ico",
                           "gpicon replace FILE INDEX ICON.ico [--image N] [-o OUT]",
                           "gpicon add FILE... ICON.ico [--at N] [--image N] [-o OUT]",
                           "gpicon remove FILE INDEX [-o OUT]",
                           "gpicon reorder FILE 3,1,2 [-o OUT]",
                           "gpicon salvage FILE -o OUT",
                           "gpicon bmp IN.ico INDEX OUT.bmp [--background RRGGBB]",
                           "gpicon reduce IN.ico INDEX OUT.ico --to COLORS --method METHOD [--threshold N]",
                           "gpicon effect IN.ico INDEX OUT.ico NAME\n",
                           " FILE... NAME --all -d DIR [--force] [--max-size MB]\n",
                           "Exit status",
                           "count from 0",
                           "NAME-2",
                           "NAME_32_256-2.ico",
                           "hotspotX",
                           "cursor"})
    EXPECT_NE(o.out.find(word), std::string::npos) << word;
}

TEST_F(Gpicon, BadUsageIsStatus2WithOneLine) {
  const std::string a = icon("a.ico", 32, 4);
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{},
                                             {"nonsense"},
                                             {"probe"},
                                             {"list"},
                                             {"list", "--yaml", a},
                                             {"unpack", a},
                                             {"unpack", a, "-d"},
                                             {"unpack", "-d", folder.folder()},
                                             {"resave", a, "0"},
                                             {"resave", a, "x", "b.ico"},
                                             {"resave", a, "0x", "b.ico"},
                                             {"resave", a, "99999999999", "b.ico"},
                                             {"check"},
                                             {"check", "--yaml", a},
                                             {"split", a},
                                             {"split", "-d", folder.folder()},
                                             {"split", a, "-d", folder.folder(), "-d", folder.folder()},
                                             {"replace", a, "0"},
                                             {"replace", a, "-1", a},
                                             {"replace", a, "0", a, "-o"},
                                             {"replace", a, "0", a, "-o", ""},
                                             {"replace", a, "0", a, "--at", "1"},
                                             {"add", a},
                                             {"add", a, a, "--at"},
                                             {"add", a, a, "--at", "x"},
                                             {"add", a, a, "-o", "x", "-o", "y"},
                                             {"add", a, a, a, "-o", folder.path("b.ico")},
                                             {"remove", a},
                                             {"remove", a, "x"},
                                             {"remove", a, "0", "1"},
                                             {"reorder", a},
                                             {"reorder", a, "2,,1"},
                                             {"reorder", a, "2,1,"},
                                             {"reorder", a, "2;1"},
                                             {"salvage", a},
                                             {"salvage", a, a, "-o", folder.path("b.ico")}}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(lines(o.err), 1);
  }
}

TEST_F(Gpicon, ProbePrintsTheNineNumbersOfEachFile) {
  const std::string a = icon("a.ico", 32, 4), b = icon("b c.ico", 16, 32), none = folder.write("n.ico", {'h', 'i'});
  const Outcome o = run({"probe", a, b, none});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out,
            a + "\t1/1/0/32/32/16/4/16/4\n" + b + "\t1/1/0/16/16/-1/32/-1/32\n" + none + "\t0/0/0/0/0/0/0/0/0\n");
  EXPECT_EQ(o.err, "");
}

TEST_F(Gpicon, ABadFileCostsOneLineAndNotTheOthers) {
  const std::string a = icon("a.ico", 32, 4), b = icon("b.ico", 32, 4),
                    bad = folder.write("bad.ico", {0, 0, 3, 0, 1, 0});
  const Outcome o = run({"list", a, bad, folder.path("missing.ico"), b});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(lines(o.out), 2);
  EXPECT_EQ(o.err, "gpicon: " + bad + ": not an icon file\ngpicon: " + folder.path("missing.ico") +
                       ": not a file that can be read\n");
}

TEST_F(Gpicon, ListPrintsOneLinePerImage) {
  const std::string path =
      folder.write("m.ico", build(IcoFile{{entryOf(anyPicture(16, 1)), entryOf(anyPicture(32, 24))}, 0, 1, {}}));
  EXPECT_EQ(run({"list", path}).out, path + "\t0\t16x16\t2\t1\t2\t1\t176\t38\tbmp\tusable\n" + path +
                                         "\t1\t32x32\t-1\t24\t-1\t24\t3240\t214\tbmp\tusable\n");
}

TEST_F(Gpicon, ListAsJsonIsOneArrayOfFiles) {
  Entry png;
  png.width = png.height = 0;
  png.bitCount = 32;
  png.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  const std::string path = folder.write("m.ico", build(IcoFile{{entryOf(anyPicture(16, 1)), png}, 0, 1, {}}));
  EXPECT_EQ(run({"list", "--json", path}).out,
            "[\n{\"file\":\"" + path +
                "\",\"kind\":\"ico\",\"images\":[\n"
                "{\"index\":0,\"width\":16,\"height\":16,\"colors\":2,\"bits\":1,\"headerColors\":2,\"headerBits\":1,"
                "\"bytes\":176,\"offset\":38,\"encoding\":\"bmp\",\"usable\":true},\n"
                "{\"index\":1,\"width\":256,\"height\":256,\"colors\":-1,\"bits\":32,\"headerColors\":0,\"headerBits\":"
                "0,\"bytes\":8,\"offset\":214,\"encoding\":\"png\",\"usable\":false}]}\n]\n");
}

TEST_F(Gpicon, ListAsJsonOfNothingButBadFilesIsAnEmptyArray) {
  const Outcome o = run({"list", "--json", folder.path("missing")});
  EXPECT_EQ(o.out, "[]\n");
  EXPECT_EQ(o.status, 1);
}

TEST_F(Gpicon, JsonNamesSurviveQuotesControlsAndForeignBytes) {
  const std::string path = icon("q\"b\\t\tn\xC3\xA4r\xFF.ico", 16, 4);
  const Outcome o = run({"list", "--json", path});
  EXPECT_EQ(o.status, 0);
  EXPECT_NE(o.out.find("q\\\"b\\\\t\\u0009n\xC3\xA4r\\udcff.ico\""), std::string::npos) << o.out;
}

TEST_F(Gpicon, UnpackKeepsFilesAndNeverFollowsPlantedLinks) {
  namespace fs = std::filesystem;
  const std::string path = icon("a.ico", 16, 4);
  const std::string outside = folder.write("outside", Bytes(8, 7));
  fs::create_directories(folder.path("out"));
  const std::string planted = folder.path("out/a_0.mask.pgm");
  fs::create_symlink(outside, planted);
  for (const bool byForce : {false, true}) {
    std::vector<std::string> arguments{"unpack", path, "-d", folder.path("out")};
    if (byForce) arguments.push_back("--force");
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1);
    EXPECT_NE(o.err.find(": already there, and not replaced\n"), std::string::npos) << o.err;
    EXPECT_EQ(bytesOf(outside), Bytes(8, 7));
    EXPECT_TRUE(fs::is_symlink(planted));
  }
  fs::remove(planted);
  EXPECT_EQ(run({"unpack", path, "-d", folder.path("out"), "--force"}).status, 0);
}

TEST_F(Gpicon, UnpackWritesImageMaskAndAlpha) {
  Picture p = anyPicture(16, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 7, x == 3 ? 0 : 200}; };
  const std::string path = folder.write("smile.ico", build(entryOf(p)));
  ASSERT_EQ(run({"unpack", path, "-d", folder.path("out")}).status, 0);
  const std::string image = textOf("out/smile_0.image.ppm"), mask = textOf("out/smile_0.mask.pgm"),
                    alpha = textOf("out/smile_0.alpha.pgm");
  ASSERT_EQ(image.substr(0, 13), "P6\n16 16\n255\n");
  ASSERT_EQ(mask.substr(0, 13), "P5\n16 16\n255\n");
  ASSERT_EQ(alpha.substr(0, 13), "P5\n16 16\n255\n");
  ASSERT_EQ(image.size(), 13u + 768);
  ASSERT_EQ(mask.size(), 13u + 256);
  EXPECT_EQ(image.substr(13 + 3 * (2 * 16 + 5), 3), std::string({5, 2, 7}));
  for (std::size_t i = 0; i < 256; ++i) {
    const int x = static_cast<int>(i % 16), y = static_cast<int>(i / 16);
    ASSERT_EQ(static_cast<unsigned char>(mask[13 + i]), p.transparent(x, y) ? 255 : 0);
    ASSERT_EQ(static_cast<unsigned char>(alpha[13 + i]), x == 3 ? 255 : 200);
  }
}

TEST_F(Gpicon, UnpackTakesUsableEntriesOnlyAndNoAlphaBelow32Bits) {
  Entry large = entryOf(anyPicture(48, 8));
  large.width = large.height = 64;
  const std::string path = folder.write("m.ico", build(IcoFile{{large, entryOf(anyPicture(24, 24))}, 0, 1, {}}));
  const Outcome o = run({"unpack", "-d", folder.path("out"), path});
  EXPECT_EQ(o.status, 0) << o.err;
  std::vector<std::string> names;
  for (const auto& item : fs::directory_iterator(folder.path("out"))) names.push_back(item.path().filename());
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"m_1.image.ppm", "m_1.mask.pgm"}));
}

TEST_F(Gpicon, UnpackKeepsFilesOfOneNameApart) {
  fs::create_directory(folder.path("x"));
  const std::string a = icon("same.ico", 16, 4), b = icon("x/same.ico", 32, 4);
  EXPECT_EQ(run({"unpack", a, b, "-d", folder.path("out")}).status, 0);
  EXPECT_EQ(textOf("out/same_0.image.ppm").substr(0, 8), "P6\n16 16");
  EXPECT_EQ(textOf("out/same-2_0.image.ppm").substr(0, 8), "P6\n32 32");
}

TEST_F(Gpicon, UnpackOfAFileWithoutUsableEntriesIsARefusal) {
  const std::string path = folder.write("hi.ico", build(entryOf(anyPicture(32, 32), 0, 16)));
  const Outcome o = run({"unpack", path, "-d", folder.path("out")});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": no usable image\n");
}

TEST_F(Gpicon, UnpackIntoWhatIsNoFolderFails) {
  const std::string path = icon("a.ico", 16, 4);
  EXPECT_EQ(run({"unpack", path, "-d", path}).status, 1);
}

TEST_F(Gpicon, ResaveWritesTheEntryAsTheEditorSavesIt) {
  Picture p = anyPicture(32, 24);
  const std::string path = folder.write("m.ico", build(IcoFile{{entryOf(anyPicture(16, 8)), entryOf(p)}, 0, 1, {}}));
  EXPECT_EQ(run({"resave", path, "1", folder.path("out.ico")}).status, 0);
  EXPECT_EQ(bytesOf(folder.path("out.ico")), build(entryOf(p)));
}

TEST_F(Gpicon, ResaveRefusesAnIndexThatIsNotThereAndWhatTheEditorDoesNotShow) {
  const std::string a = icon("a.ico", 16, 4), hi = folder.write("hi.ico", build(entryOf(anyPicture(32, 32), 0, 16)));
  Entry large = entryOf(anyPicture(48, 8));
  large.width = large.height = 64;
  const std::string big = folder.write("big.ico", build(large));
  for (const auto& [path, index] : {std::pair{a, "1"}, std::pair{hi, "0"}, std::pair{big, "0"}}) {
    const Outcome o = run({"resave", path, index, folder.path("out.ico")});
    EXPECT_EQ(o.status, 1) << path;
    EXPECT_EQ(lines(o.err), 1);
    EXPECT_FALSE(fs::exists(folder.path("out.ico")));
  }
}

TEST_F(Gpicon, ResaveOntoWhatCannotBeWrittenFails) {
  const std::string a = icon("a.ico", 16, 4);
  EXPECT_EQ(run({"resave", a, "0", folder.path("no/such.ico")}).status, 1);
  EXPECT_EQ(run({"resave", a, "0", folder.folder()}).status, 1);
}

TEST_F(Gpicon, FoldersPipesDevicesAndHugeEmptyFilesEndAtOnceWithALine) {
  const std::string pipe = folder.path("pipe.ico"), huge = folder.write("huge.ico", {});
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  fs::resize_file(huge, std::uintmax_t{1} << 30);
  for (const std::string& path :
       {folder.folder(), pipe, std::string("/dev/zero"), huge, folder.write("empty.ico", {})}) {
    const Outcome o = run({"list", path});
    EXPECT_EQ(o.status, 1) << path;
    EXPECT_EQ(lines(o.err), 1) << path;
  }
}

TEST_F(Gpicon, UnusualNamesAreTaken) {
  for (const std::string& name :
       {std::string("two words.ico"), std::string("it's \"so\".ico"), std::string("\xC3\xA4.ico"),
        std::string("raw\xFF.ico"), std::string(250, 'n') + ".ico", std::string("-dash.ico")}) {
    const std::string path = icon(name, 16, 4);
    EXPECT_EQ(run({"probe", path}).status, 0) << name;
  }
}

TEST_F(Gpicon, OptionsEndAtTwoDashes) {
  const Outcome o = run({"probe", "--", "-x"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: -x: not a file that can be read\n");
}

}  // namespace
}  // namespace gp::test

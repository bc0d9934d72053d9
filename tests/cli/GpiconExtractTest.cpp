// gpicon extract and scan on built files.
#include "animation/FilmBytes.h"
#include "cli/GpiconFixture.h"
#include "extraction/LibraryBytes.h"
#include "support/NeBytes.h"

namespace gp::test {
namespace {

constexpr Rgb kRed{255, 0, 0, 255}, kGreen{0, 255, 0, 255}, kBlue{0, 0, 255, 255};

GroupEntry entryFor(const Resource& icon, int size, int bits) {
  return {size, size, 0, 1, bits, static_cast<std::uint32_t>(icon.data.size()), icon.id};
}

class GpiconExtract : public Gpicon {
 protected:
  const Resource red = iconOf(1, imageBytes(plainPicture(32, kRed, 24)));
  const Resource green = iconOf(2, imageBytes(plainPicture(16, kGreen, 24)));
  const Resource blue = iconOf(9, imageBytes(plainPicture(48, kBlue, 4)), 1031);
  // Three icons: a name, and two numbers; the third has an image that is missing.
  const std::vector<Resource> resources{red,
                                        green,
                                        blue,
                                        {kGroupType, 0, u"APP", 1033, groupDirectory({entryFor(red, 32, 24)})},
                                        groupOf(7, {entryFor(red, 32, 24), entryFor(green, 16, 24)}, 1031),
                                        groupOf(300, {entryFor(blue, 48, 4), {32, 32, 16, 1, 4, 744, 77}})};
  const std::string program = folder.write("setup.exe", peWith(resources));

  Color firstPixel(const std::string& name) const {
    const Bytes file = bytesOf(folder.path(name));
    const auto icon = fileIcon(file, static_cast<int>(file.at(6)));
    return icon ? icon->image.GetPixel(0, 0) : kNoColor;
  }
};

TEST_F(GpiconExtract, EachIconIsALineWithItsImages) {
  const Outcome o = run({"extract", program});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out, program + "\t0\tAPP\t32x32x24\n" + program + "\t1\t#7\t32x32x24 16x16x24\n" + program +
                       "\t2\t#300\t48x48x4 32x32x4\n");
  EXPECT_EQ(run({"extract", "--list", program}).out, o.out);
}

TEST_F(GpiconExtract, ALibraryOfTheOldFormatIsListedInTheSameWay) {
  const std::string old = folder.write("old.icl", neWith(resources));
  EXPECT_EQ(run({"extract", old}).out,
            old + "\t0\tAPP\t32x32x24\n" + old + "\t1\t#7\t32x32x24 16x16x24\n" + old + "\t2\t#300\t48x48x4 32x32x4\n");
}

TEST_F(GpiconExtract, JsonStatesNumbersLanguagesAndImages) {
  const std::string json = run({"extract", "--json", program}).out;
  const auto has = [&](const std::string& part) { return json.find(part) != std::string::npos; };
  EXPECT_TRUE(json.starts_with("[\n{\"file\":\"" + program +
                               "\",\"kind\":\"pe\",\"icons\":[\n{\"index\":0,\"name\":\"APP\",\"language\":1033,"
                               "\"images\":[{\"index\":0,\"id\":1,\"width\":32,\"height\":32,\"colors\":-1,\"bits\":24,"
                               "\"headerColors\":-1,\"headerBits\":24,\"bytes\":3240,\"offset\":"))
      << json;
  EXPECT_TRUE(has("\"encoding\":\"bmp\",\"usable\":true}]},\n{\"index\":1,\"id\":7,\"language\":1031,")) << json;
  EXPECT_TRUE(
      has("{\"index\":1,\"id\":77,\"width\":32,\"height\":32,\"colors\":16,\"bits\":4,\"headerColors\":0,"
          "\"headerBits\":0,\"bytes\":0,\"offset\":0,\"encoding\":\"none\",\"usable\":false}]}]}\n]\n"))
      << json;
}

TEST_F(GpiconExtract, TheOffsetOfAnImageIsThatOfItsBytes) {
  const std::string json = run({"extract", "--json", program}).out;
  const std::size_t at = json.find("\"offset\":") + 9;
  const Bytes file = bytesOf(program);
  const auto offset = static_cast<std::size_t>(std::stoul(json.substr(at)));
  EXPECT_TRUE(std::equal(red.data.begin(), red.data.end(), file.begin() + static_cast<std::ptrdiff_t>(offset)));
}

TEST_F(GpiconExtract, OnePictureOfEachIconIsWritten) {
  const Outcome o = run({"extract", program, "-d", folder.path("out")});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"setup_0.ico", "setup_1.ico", "setup_2.ico"}));
  EXPECT_EQ(bytesOf(folder.path("out/setup_0.ico")).at(6), 32);
  EXPECT_EQ(firstPixel("out/setup_1.ico"), rgb(255, 0, 0));
  EXPECT_EQ(firstPixel("out/setup_2.ico"), rgb(0, 0, 255)) << "the image that is there, scaled";
}

TEST_F(GpiconExtract, TheSmallPictureComesFromTheNearestImage) {
  ASSERT_EQ(run({"extract", program, "-d", folder.path("out"), "--index", "1", "--size", "16"}).status, 0);
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"setup_1.ico"});
  EXPECT_EQ(bytesOf(folder.path("out/setup_1.ico")).at(6), 16);
  EXPECT_EQ(firstPixel("out/setup_1.ico"), rgb(0, 255, 0));
}

TEST_F(GpiconExtract, AGroupKeepsTheBytesOfAllItsImages) {
  ASSERT_EQ(run({"extract", program, "-d", folder.path("out"), "--group", "--index", "1"}).status, 0);
  const Bytes file = bytesOf(folder.path("out/setup_1.ico"));
  EXPECT_EQ(number(file, 4, 2), 2u);
  const auto image = [&](std::size_t i) {
    const std::size_t at = number(file, 6 + 16 * i + 12, 4), size = number(file, 6 + 16 * i + 8, 4);
    return Bytes(file.begin() + static_cast<std::ptrdiff_t>(at), file.begin() + static_cast<std::ptrdiff_t>(at + size));
  };
  EXPECT_EQ(image(0), red.data);
  EXPECT_EQ(image(1), green.data);
  EXPECT_EQ(file.size(), 38 + red.data.size() + green.data.size());
}

TEST_F(GpiconExtract, AMissingImageOfAGroupIsLeftOutWithAComplaint) {
  const Outcome o = run({"extract", program, "-d", folder.path("out"), "--group"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + program + ": icon 2: image 77 is not in the file\n");
  EXPECT_EQ(namesIn("out").size(), 3u);
  EXPECT_EQ(number(bytesOf(folder.path("out/setup_2.ico")), 4, 2), 1u);
}

TEST_F(GpiconExtract, ImagesThatAGroupNamesTwiceAreWrittenOnce) {
  const std::vector<GroupEntry> twice(200, entryFor(red, 32, 24));
  const std::string path = folder.write("twice.dll", peWith({red, groupOf(1, twice)}));
  ASSERT_EQ(run({"extract", path, "-d", folder.path("out"), "--group"}).status, 0);
  EXPECT_EQ(bytesOf(folder.path("out/twice_0.ico")).size(), 6 + 16 * 200 + red.data.size());
}

TEST_F(GpiconExtract, AnIconThatCannotBeDrawnCostsAComplaintAndNotTheOthers) {
  const std::string path = folder.write(
      "holes.dll", peWith({red, groupOf(1, {{32, 32, 0, 1, 24, 3240, 5}}), groupOf(2, {entryFor(red, 32, 24)})}));
  const Outcome o = run({"extract", path, "-d", folder.path("out")});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": icon 0 cannot be drawn\n");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"holes_1.ico"});
}

TEST_F(GpiconExtract, IconAndCursorFilesAreOneIconEach) {
  const std::string ico = icon("a.ico", 24, 8), cur = folder.write("b.cur", cursorFile({plainEntry(32, kRed)}));
  const Outcome o = run({"extract", ico, cur});
  EXPECT_EQ(o.out, ico + "\t0\t-\t24x24x8\n" + cur + "\t0\t-\t32x32x24\n");
  ASSERT_EQ(run({"extract", ico, cur, "-d", folder.path("out"), "--group"}).status, 0);
  EXPECT_EQ(bytesOf(folder.path("out/a_0.ico")), bytesOf(ico));
  EXPECT_EQ(bytesOf(folder.path("out/b_0.cur")), bytesOf(cur));
}

TEST_F(GpiconExtract, WhatAnIconFileLacksIsLeftOut) {
  Bytes bytes = fileOf({plainEntry(16, kGreen), plainEntry(32, kRed)});
  bytes.resize(bytes.size() - 1);
  const std::string path = folder.write("cut.ico", bytes);
  const Outcome o = run({"extract", path, "-d", folder.path("out"), "--group"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": icon 0: 1 of its images reach behind the end of the file\n");
  EXPECT_EQ(bytesOf(folder.path("out/cut_0.ico")), fileOf({plainEntry(16, kGreen)}));
}

TEST_F(GpiconExtract, EachPlayedFrameOfAFilmIsAnIcon) {
  const std::string film = folder.write(
      "film.ani", bytesOfText(aniOf(headerOf(2) + frameList(std::vector<std::string>{plainFrame(1), plainFrame(2)}))));
  EXPECT_EQ(run({"extract", film}).out, film + "\t0\t-\t32x32x24\n" + film + "\t1\t-\t32x32x24\n");
  ASSERT_EQ(run({"extract", film, "-d", folder.path("out"), "--index", "1"}).status, 0);
  const Rgb second = frameColor(2);
  EXPECT_EQ(firstPixel("out/film_1.ico"), rgb(second.r, second.g, second.b));
  ASSERT_EQ(run({"extract", film, "-d", folder.path("whole"), "--group"}).status, 0);
  EXPECT_EQ(asText(bytesOf(folder.path("whole/film_1.cur"))), plainFrame(2));
}

TEST_F(GpiconExtract, FilesWithoutIconsAreNamed) {
  const std::string text = folder.write("t", {'h', 'i'}), none = folder.write("none.dll", peWith({}));
  for (const std::string& path : {text, none}) {
    const Outcome o = run({"extract", path});
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(o.err, "gpicon: " + path + ": No icon in this file\n");
  }
  EXPECT_EQ(run({"extract", folder.path("gone")}).err, "gpicon: " + folder.path("gone") + ": cannot be read\n");
}

TEST_F(GpiconExtract, TheOthersGoOnAfterABadFile) {
  const Outcome o = run({"extract", "--json", folder.path("gone"), program});
  EXPECT_EQ(o.status, 1);
  EXPECT_TRUE(o.out.starts_with("[\n{\"file\":\"" + program)) << o.out;
  EXPECT_TRUE(o.out.ends_with("}\n]\n")) << o.out;
}

TEST_F(GpiconExtract, ManyJobsGiveTheSameOutputInTheSameOrder) {
  std::vector<std::string> files;
  for (int i = 0; i < 60; ++i)
    files.push_back(i % 7 == 3 ? folder.path("gone" + std::to_string(i))
                               : folder.write("p" + std::to_string(i) + ".exe", peWith(resources)));
  for (const std::string form : {"--list", "--json"}) {
    std::vector<std::string> one{"extract", form, "--jobs", "1"}, many{"extract", form, "--jobs", "8"};
    one.insert(one.end(), files.begin(), files.end());
    many.insert(many.end(), files.begin(), files.end());
    const Outcome a = run(one), b = run(many);
    EXPECT_EQ(a.out, b.out);
    EXPECT_EQ(a.err, b.err);
    EXPECT_EQ(lines(a.err), 9);
  }
}

TEST_F(GpiconExtract, StandardInputIsReadAsAFileIs) {
  const Outcome o = runAfter("cat " + inShell(program) + " | ", {"extract", "-"});
  EXPECT_EQ(o.out, "-\t0\tAPP\t32x32x24\n-\t1\t#7\t32x32x24 16x16x24\n-\t2\t#300\t48x48x4 32x32x4\n");
}

TEST_F(GpiconExtract, NoNameInsideAFileBecomesAFileName) {
  const std::string path =
      folder.write("evil.dll", peWith({red, namedGroup(u"..\\..\\x\n/y", {entryFor(red, 32, 24)})}));
  EXPECT_EQ(run({"extract", path}).out, path + "\t0\t..\\..\\x\\u000a/y\t32x32x24\n");
  ASSERT_EQ(run({"extract", path, "-d", folder.path("out")}).status, 0);
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"evil_0.ico"});
}

TEST_F(GpiconExtract, WhatIsThereIsKept) {
  ASSERT_EQ(run({"extract", program, "-d", folder.path("out"), "--index", "0"}).status, 0);
  const Bytes before = bytesOf(folder.path("out/setup_0.ico"));
  const Outcome o = run({"extract", program, "-d", folder.path("out"), "--index", "0", "--group"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(bytesOf(folder.path("out/setup_0.ico")), before);
  EXPECT_EQ(run({"extract", program, "-d", folder.path("out"), "--index", "0", "--group", "--force"}).status, 0);
}

TEST_F(GpiconExtract, AnIndexThatIsNotThereIsRefused) {
  const Outcome o = run({"extract", program, "-d", folder.path("out"), "--index", "3"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + program + ": no icon 3\n");
}

TEST_F(GpiconExtract, WrongUsageIsNamed) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"extract"},
                                             {"extract", program, "--list", "--json"},
                                             {"extract", program, "--index", "1"},
                                             {"extract", program, "-d"},
                                             {"extract", program, "-d", folder.path("out"), "--size", "48"},
                                             {"extract", program, "-d", folder.path("out"), "--size", "16", "--group"},
                                             {"extract", program, "-d", folder.path("out"), "--index", "-1"},
                                             {"extract", program, "-d", folder.path("out"), "--json"},
                                             {"extract", program, "--jobs", "0"},
                                             {"scan"},
                                             {"scan", program, "--index", "1"},
                                             {"scan", program, "-d", folder.path("out"), "--index", "x"}}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(lines(o.err), 1);
  }
}

// A directory that many groups share would give more lines than the file has bytes.
TEST_F(GpiconExtract, DirectoriesThatGroupsShareAreListedAsOftenAsTheFileHasRoomFor) {
  std::vector<Resource> all{red};
  for (int i = 1; i <= 300; ++i) all.push_back(groupOf(i, std::vector<GroupEntry>(1, entryFor(red, 32, 24))));
  Bytes file = peWith(all);
  // One large directory in the place of all groups' own.
  const Bytes shared = groupDirectory(std::vector<GroupEntry>(20'000, entryFor(red, 32, 24)));
  const std::size_t tree = kPeSections;
  const std::uint32_t address = static_cast<std::uint32_t>(0x2000 + file.size() - tree);
  append(file, shared);
  std::size_t changed = 0;
  for (std::size_t at = tree; at + 16 <= tree + 40'000 && at + 16 <= file.size(); at += 4)
    if (number(file, at + 4, 4) == 20 && number(file, at + 8, 4) == 0 && number(file, at, 4) > 0x2000) {
      set32(file, at, address), set32(file, at + 4, static_cast<std::uint32_t>(shared.size()));
      ++changed;
    }
  ASSERT_EQ(changed, 300u);
  set32(file, kPeHeader + 24 + 224 + 16, static_cast<std::uint32_t>(file.size() - tree));
  set32(file, kPeHeader + 24 + 224 + 8, static_cast<std::uint32_t>(file.size() - tree));
  const Outcome o = run({"extract", folder.write("shared.dll", file)});
  EXPECT_EQ(o.status, 1);
  EXPECT_NE(o.err.find("state more images than the file can have"), std::string::npos) << o.err;
  EXPECT_EQ(lines(o.out), 300);
  EXPECT_LT(o.out.size(), 2'000'000u);
}

class GpiconScan : public Gpicon {};

TEST_F(GpiconScan, FindsEveryImageByItsHeader) {
  const std::string ico = folder.write("a.ico", fileOf({plainEntry(16, kGreen), plainEntry(48, kRed)}));
  const Outcome o = run({"scan", ico});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out, ico + "\t0\t16x16\t24\t38\t872\n" + ico + "\t1\t48x48\t24\t910\t7336\n");
  EXPECT_EQ(run({"scan", "--json", ico}).out,
            "[\n{\"file\":\"" + ico +
                "\",\"images\":[\n{\"index\":0,\"width\":16,\"height\":16,\"bits\":24,\"offset\":38,\"bytes\":872},\n"
                "{\"index\":1,\"width\":48,\"height\":48,\"bits\":24,\"offset\":910,\"bytes\":7336}]}\n]\n");
}

TEST_F(GpiconScan, SavesWhatItFinds) {
  const std::string ico = folder.write("a.ico", fileOf({plainEntry(16, kGreen), plainEntry(48, kRed)}));
  ASSERT_EQ(run({"scan", ico, "-d", folder.path("out"), "--index", "1"}).status, 0);
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"a_1.ico"});
  const auto icon = fileIcon(bytesOf(folder.path("out/a_1.ico")), 48);
  ASSERT_TRUE(icon.has_value());
  EXPECT_EQ(icon->image.GetPixel(5, 5), rgb(255, 0, 0));
  ASSERT_EQ(run({"scan", ico, "-d", folder.path("all")}).status, 0);
  EXPECT_EQ(namesIn("all"), (std::vector<std::string>{"a_0.ico", "a_1.ico"}));
}

TEST_F(GpiconScan, NothingFoundIsNamed) {
  const std::string text = folder.write("t", {'h', 'i'});
  const Outcome o = run({"scan", text});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + text + ": No 16x16, 24x24, 32x32 or 48x48 icon found in this file\n");
  EXPECT_EQ(run({"scan", "--json", text}).out, "[\n{\"file\":\"" + text + "\",\"images\":[]}\n]\n");
  EXPECT_EQ(run({"scan", text, "-d", folder.path("out")}).status, 1);
}

}  // namespace
}  // namespace gp::test

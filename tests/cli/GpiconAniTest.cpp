// What gpicon prints about animated cursors, and their frames.
#include "animation/FilmBytes.h"
#include "cli/GpiconFixture.h"

#include <cstring>

namespace gp::test {
namespace {

constexpr const char* kNotRead = "Failed to read this ANI file";
constexpr const char* kLimit = "Either an invalid ANI file or number of frames exceeds limit of 70.";

class GpiconAni : public Gpicon {
 protected:
  std::string write(const std::string& name, const std::string& bytes) const {
    return folder.write(name, bytesOfText(bytes));
  }
  std::string film(const std::string& name, const std::string& chunks) const { return write(name, aniOf(chunks)); }
  Outcome unpack(const std::string& path) const { return run({"unpack", path, "-d", folder.path("out")}); }
};

// Two images and three steps, with all that a file can state.
std::string fullFilm() {
  return listOf("INFO", padded(chunkOf("INAM", std::string("A \"title\"\0rest", 14))) + chunkOf("IART", "Me")) +
         headerWithSteps(2, 3, 3) + ratesOf({300, 5, 91}) + sequenceOf({1, 0, 1}) +
         frameList({plainFrame(2, {3, 4}), plainFrame(5, {6, 7})});
}

TEST_F(GpiconAni, ProbePrintsTheNumberOfFrames) {
  const std::string steps = film("steps.ani", fullFilm()), many = film("many.ani", headerOf(1) + frameList(71)),
                    odd = write("any name", aniOf(headerOf(1) + frameList(2))), text = write("text.ani", "6x6"),
                    cut = write("cut.ani", "RIFF"), still = write("still.ANI", plainFrame(1));
  const Outcome o = run({"probe", steps, many, odd, text, cut, still});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out,
            steps + "\t3\n" + many + "\t71\n" + odd + "\t2\n" + text + "\t0\n" + cut + "\t0\n" + still + "\t1\n");
  EXPECT_EQ(run({"probe", "--json", steps}).out, "[\n{\"file\":\"" + steps + "\",\"numbers\":[3]}\n]\n");
}

TEST_F(GpiconAni, ProbeReadsAFileOfAnySizeWhole) {
  std::vector<std::string> frames(60, asText(cursorFile({plainEntry(48, frameColor(1), 32)})));
  const std::string path = film("large.ani", headerOf(60) + frameList(frames));
  ASSERT_GT(std::filesystem::file_size(path), 512U * 1024);
  EXPECT_EQ(run({"probe", path}).out, path + "\t60\n");
  EXPECT_EQ(runAfter("cat " + inShell(path) + " | ", {"probe", "-"}).out, "-\t60\n");
}

TEST_F(GpiconAni, ListPrintsTheFilmAndItsImages) {
  const std::string path = film("full.ani", fullFilm());
  const Outcome o = run({"list", path});
  EXPECT_EQ(o.status, 0) << o.err;
  const std::string bytes = std::to_string(plainFrame(2).size());
  const std::size_t first = aniOf(fullFilm()).find("framicon") + 12, second = first + plainFrame(2).size() + 8;
  EXPECT_EQ(o.out, path + "\tani\tA \"title\"\tMe\t2\t3\t10\t3\t300,5,91\t1,0,1\t44,5,90\t3\t4\n" + path +
                       "\t0\t32x32\t-1\t24\t" + bytes + "\t" + std::to_string(first) + "\tbmp\tusable\t3\t4\n" + path +
                       "\t1\t32x32\t-1\t24\t" + bytes + "\t" + std::to_string(second) + "\tbmp\tusable\t6\t7\n");
}

TEST_F(GpiconAni, ListPrintsJson) {
  const std::string path = film("full.ani", fullFilm());
  const std::string bytes = std::to_string(plainFrame(2).size());
  const std::size_t first = aniOf(fullFilm()).find("framicon") + 12, second = first + plainFrame(2).size() + 8;
  const auto image = [&](int index, std::size_t offset, const std::string& hotspot) {
    return "{\"index\":" + std::to_string(index) + ",\"width\":32,\"height\":32,\"colors\":-1,\"bits\":24," + hotspot +
           ",\"bytes\":" + bytes + ",\"offset\":" + std::to_string(offset) + ",\"encoding\":\"bmp\",\"usable\":true}";
  };
  EXPECT_EQ(run({"list", "--json", path}).out,
            "[\n{\"file\":\"" + path +
                "\",\"kind\":\"ani\",\"title\":\"A \\\"title\\\"\",\"artist\":\"Me\",\"frames\":2,\"steps\":3,"
                "\"rate\":10,\"flags\":3,\"rates\":[300,5,91],\"sequence\":[1,0,1],\"jiffies\":[44,5,90],"
                "\"hotspotX\":3,\"hotspotY\":4,\"images\":[\n" +
                image(0, first, "\"hotspotX\":3,\"hotspotY\":4") + ",\n" +
                image(1, second, "\"hotspotX\":6,\"hotspotY\":7") + "]}\n]\n");
}

TEST_F(GpiconAni, ListPrintsNullForWhatIsMissingOrRefused) {
  const std::string frames = frameList({smallFrame(), frameOf(2, 0, 0)});
  const auto json = [&](const std::string& chunks) { return run({"list", "--json", film("a.ani", chunks)}).out; };
  const std::string none = "\"rates\":null,\"sequence\":null,\"jiffies\":null,\"hotspotX\":null,\"hotspotY\":null,";
  // A frame that cannot be drawn.
  EXPECT_NE(json(headerOf(2) + frames)
                .find("\"title\":null,\"artist\":null,\"frames\":2,\"steps\":2,\"rate\":10,"
                      "\"flags\":1," +
                      none + "\"images\":[\n{\"index\":0,"),
            std::string::npos);
  EXPECT_NE(json(headerOf(2) + frames).find("\"encoding\":\"bmp\",\"usable\":false}]}"), std::string::npos);
  for (const std::string& header : {std::string(), chunkOf("anih", "")})
    EXPECT_NE(json(header + frames).find("\"frames\":null,\"steps\":null,\"rate\":null,\"flags\":null," + none),
              std::string::npos);
  EXPECT_NE(json(headerOf(0, 9, 0)).find("\"frames\":0,\"steps\":0,\"rate\":9,\"flags\":0," + none + "\"images\":[]}"),
            std::string::npos);
  EXPECT_EQ(run({"list", film("b.ani", chunkOf("anih", ""))}).out,
            folder.path("b.ani") + "\tani\t-\t-\t-\t-\t-\t-\t-\t-\t-\t-\t-\n");
}

TEST_F(GpiconAni, TheImageThatIsDrawnIsListed) {
  const std::string frame =
      asText(cursorFile({plainEntry(16, {}), pngEntry({.width = 48, .height = 40})}, {{1, 2}, {40, 9}}));
  const std::string truncated = asText(cursorFile({anyEntry(32, 4)}, {{5, 6}})).substr(0, 200);
  const std::string path = film("a.ani", headerOf(2) + frameList({frame, truncated}));
  const std::string out = run({"list", path}).out;
  EXPECT_NE(out.find("\t0\t48x40\t-1\t32\t"), std::string::npos) << out;
  EXPECT_NE(out.find("\t32x32\t16\t4\t200\t"), std::string::npos) << out;
  EXPECT_NE(out.find("\tbmp\tunusable\t5\t6\n"), std::string::npos) << out;
}

TEST_F(GpiconAni, FilesThatAreNoAnimatedCursorAreRefused) {
  const std::string riff = write("wave", chunkOf("RIFF", "WAVEdata")), text = write("text.ani", "6x6");
  const std::string lines = "gpicon: " + riff + ": " + kNotRead + "\ngpicon: " + text + ": " + kNotRead + "\n";
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"list", riff, text},
                                             {"list", "--json", riff, text},
                                             {"check", riff, text},
                                             {"unpack", riff, text, "-d", folder.path("out")}}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1) << arguments.front();
    EXPECT_EQ(o.err, lines) << arguments.front();
  }
}

TEST_F(GpiconAni, UnpackWritesTheFramesAsTheyArePlayed) {
  const Outcome o = unpack(film("full.ani", fullFilm()));
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(o.out + o.err, "");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"full_0.image.ppm", "full_0.mask.pgm", "full_1.image.ppm",
                                                      "full_1.mask.pgm", "full_2.image.ppm", "full_2.mask.pgm"}));
  const auto imageOf = [](int number) {
    std::string text = "P6\n32 32\n255\n";
    for (int i = 0; i < 32 * 32; ++i)
      for (const int channel : {16 * number, 255 - 16 * number, number}) text += static_cast<char>(channel);
    return text;
  };
  EXPECT_EQ(textOf("out/full_0.image.ppm"), imageOf(5));
  EXPECT_EQ(textOf("out/full_1.image.ppm"), imageOf(2));
  EXPECT_EQ(textOf("out/full_2.image.ppm"), imageOf(5));
  EXPECT_EQ(textOf("out/full_2.mask.pgm"), "P5\n32 32\n255\n" + std::string(32 * 32, '\0'));
}

TEST_F(GpiconAni, UnpackDrawsOnWhiteAndAt32Pixels) {
  Picture p = plainPicture(16, {0, 0, 0, 255});
  p.transparent = [](int x, int) { return x >= 8; };
  ASSERT_EQ(unpack(film("a.ani", headerOf(1) + frameList({asText(cursorFile({entryOf(p, 0, 24)}))}))).status, 0);
  std::string row, maskRow;
  for (int x = 0; x < 32; ++x) {
    row += std::string(3, static_cast<char>(x < 16 ? 0 : 255));
    maskRow += static_cast<char>(x < 16 ? 0 : 255);
  }
  const std::string image = textOf("out/a_0.image.ppm"), mask = textOf("out/a_0.mask.pgm");
  ASSERT_EQ(image.size(), 13U + 3 * 1024);
  ASSERT_EQ(mask.size(), 13U + 1024);
  for (std::size_t y = 0; y < 32; ++y) {
    EXPECT_EQ(image.substr(13 + 96 * y, 96), row);
    EXPECT_EQ(mask.substr(13 + 32 * y, 32), maskRow);
  }
}

TEST_F(GpiconAni, UnpackWritesNothingOfAFileThatTheEditorRefuses) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {headerOf(1) + frameList(71), kLimit},
      {headerOf(2) + frameList({plainFrame(0), frameOf(2, 0, 0)}), "Failed to retrieve one of the frames, i.e. 1"},
      {frameList(1), "Failed to read jiffies info of file."},
      {headerOf(1, 10, 0) + frameList(1), kNotRead}};
  for (const auto& [chunks, reason] : cases) {
    const std::string path = film("bad.ani", chunks);
    const Outcome o = unpack(path);
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + path + ": " + reason + "\n");
    EXPECT_TRUE(namesIn("out").empty());
  }
}

class GpiconAniCheck : public GpiconAni {
 protected:
  // What is printed behind the file's name.
  std::string check(const std::string& bytes) const {
    const std::string path = write("a.ani", bytes);
    const Outcome o = run({"check", path});
    EXPECT_EQ(o.status, o.out.empty() ? 0 : 1);
    EXPECT_EQ(o.err, "");
    std::string lines = o.out;
    for (std::size_t at; (at = lines.find(path + "\t")) != std::string::npos;) lines.erase(at, path.size() + 1);
    return lines;
  }
};

TEST_F(GpiconAniCheck, AFileInOrderHasNoLines) {
  const std::string bytes = aniOf(headerOf(2) + ratesOf({1, 90}) + frameList(2));
  EXPECT_EQ(check(bytes), "");
  // The size of the whole file, as editors also write it.
  EXPECT_EQ(check("RIFF" + u32Text(static_cast<std::uint32_t>(bytes.size())) + bytes.substr(8)), "");
  EXPECT_EQ(check(aniOf(headerWithSteps(2, 0) + frameList(2))), "");
}

TEST_F(GpiconAniCheck, WhatASaveWillNotKeepIsStated) {
  EXPECT_EQ(check(aniOf(fullFilm())), "-\tWill not be kept: sequence, rates above 90\t-\t-\t-\n");
  const std::string alpha = asText(cursorFile({plainEntry(48, {1, 2, 3, 9}, 32)}));
  const std::string path = film("b.ani", headerOf(1) + frameList({alpha}));
  EXPECT_EQ(run({"check", "--json", path}).out,
            "[\n{\"file\":\"" + path +
                "\",\"index\":null,\"what\":\"Will not be kept: alpha, other sizes\",\"directory\":null,"
                "\"header\":null,\"pixels\":null}\n]\n");
}

TEST_F(GpiconAniCheck, NumbersThatContradictEachOtherArePrinted) {
  EXPECT_EQ(check(aniOf(headerOf(3) + frameList(2))), "-\tframes\t-\t3\t2\n-\tsteps\t-\t3\t2\n");
  EXPECT_EQ(check(aniOf(headerOf(2) + ratesOf({1, 2, 3}) + frameList(2))), "-\trates\t-\t2\t3\n");
  EXPECT_EQ(check(aniOf(headerOf(2) + sequenceOf({1, 0}) + frameList(2))), "-\tsequence\t-\t0\t1\n");
  EXPECT_EQ(check(aniOf(headerWithSteps(2, 2, 3) + frameList(2))), "-\tsequence\t-\t1\t0\n");
  EXPECT_EQ(check(aniOf(headerWithSteps(2, 3, 3) + sequenceOf({1, 0}) + frameList(2))),
            "-\tsteps\t-\t3\t2\n-\tWill not be kept: sequence\t-\t-\t-\n");
  EXPECT_EQ(check(aniOf(headerWithSteps(2, 2, 3) + sequenceOf({1, 7}) + frameList(2))),
            "-\tsequence\t-\t7\t2\n-\tFailed to retrieve one of the frames, i.e. 1\t-\t-\t-\n");
}

TEST_F(GpiconAniCheck, DamageIsPrinted) {
  const std::string bytes = aniOf(headerOf(2) + frameList({smallFrame(), smallFrame()}));
  const std::string whole = std::to_string(bytes.size() - 8), cut = std::to_string(bytes.size() - 300);
  EXPECT_EQ(check(bytes + "behind"), "-\tsize\t-\t" + whole + "\t" + std::to_string(bytes.size() - 2) + "\n");
  EXPECT_EQ(check(bytes.substr(0, bytes.size() - 300)),
            "-\tsize\t-\t" + whole + "\t" + std::to_string(bytes.size() - 308) + "\n1\tend\t-\t-\t" + cut +
                "\n1\tpicture\t-\t-\t-\n-\tFailed to retrieve one of the frames, i.e. 1\t-\t-\t-\n");
  EXPECT_EQ(check(aniOf(headerOf(2, 10, 0) + frameList(2))), std::string("-\t") + kNotRead + "\t-\t-\t-\n");
  EXPECT_EQ(check(aniOf(headerOf(71) + frameList(71))), std::string("-\t") + kLimit + "\t-\t-\t-\n");
}

}  // namespace
}  // namespace gp::test

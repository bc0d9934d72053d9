// "-" in place of a file, and --json where something is listed.
#include "cli/GpiconFixture.h"

namespace gp::test {
namespace {

class GpiconStreams : public Gpicon {
 protected:
  const std::string two_ = folder.write("two.ico", fileOf({anyEntry(16, 24), anyEntry(32, 24)}));

  Outcome runOn(const std::string& input, const std::vector<std::string>& arguments) const {
    return runAfter("cat " + inShell(input) + " | ", arguments);
  }
  Bytes bytesFrom(const std::string& text) const { return {text.begin(), text.end()}; }
};

// With `arguments` the file is named "in" and the output, if there is one, "out".
TEST_F(GpiconStreams, EachCommandReadsStandardInputAsItReadsAFile) {
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"probe", "in"}, {"list", "in"}, {"list", "--json", "in"}, {"check", "in"}}) {
    std::vector<std::string> named = arguments, piped = arguments;
    named.back() = two_;
    piped.back() = "-";
    std::string expected = run(named).out;
    for (std::size_t at; (at = expected.find(two_)) != std::string::npos;) expected.replace(at, two_.size(), "-");
    const Outcome o = runOn(two_, piped);
    EXPECT_EQ(o.out, expected) << testing::PrintToString(arguments);
    EXPECT_EQ(o.err, "");
  }
}

TEST_F(GpiconStreams, EachCommandThatWritesOneFileWritesItToStandardOutput) {
  const std::string out = folder.path("out");
  const std::string icon16 = icon("i.ico", 24, 24);
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"resave", "in", "0", "out"},
                                             {"bmp", "in", "1", "out"},
                                             {"effect", "in", "1", "out", "raised"},
                                             {"reduce", "in", "1", "out", "--to", "16", "--method", "nearest"},
                                             {"remove", "in", "0", "-o", "out"},
                                             {"reorder", "in", "2,1", "-o", "out"},
                                             {"salvage", "in", "-o", "out"},
                                             {"xcursor", "in", "-o", "out"},
                                             {"add", "in", icon16, "-o", "out"},
                                             {"replace", "in", "0", icon16, "-o", "out"}}) {
    std::vector<std::string> named = arguments, piped = arguments;
    std::ranges::replace(named, "in", two_);
    std::ranges::replace(named, "out", out);
    std::ranges::replace(piped, "in", "-");
    std::ranges::replace(piped, "out", "-");
    ASSERT_EQ(run(named).status, 0) << testing::PrintToString(arguments);
    const Outcome o = runOn(two_, piped);
    EXPECT_EQ(o.status, 0) << o.err;
    EXPECT_EQ(bytesFrom(o.out), bytesOf(out)) << testing::PrintToString(arguments);
    EXPECT_FALSE(std::filesystem::exists("-"));
  }
}

TEST_F(GpiconStreams, AnUpdateOfStandardInputGoesToStandardOutput) {
  ASSERT_EQ(run({"remove", two_, "1", "-o", folder.path("out")}).status, 0);
  EXPECT_EQ(bytesFrom(runOn(two_, {"remove", "-", "1"}).out), bytesOf(folder.path("out")));
}

TEST_F(GpiconStreams, FilesFromStandardInputAreNamedAfterIt) {
  ASSERT_EQ(runOn(two_, {"split", "-", "-d", folder.path("d")}).status, 0);
  EXPECT_EQ(namesIn("d"), (std::vector<std::string>{"stdin_16_24bpp.ico", "stdin_32_24bpp.ico"}));
}

TEST_F(GpiconStreams, WhatIsNoIconFileIsRefusedAsAFileIs) {
  const std::string text = folder.write("t", {'h', 'i'}), empty = folder.write("e", {});
  for (const std::string& input : {text, empty}) {
    const Outcome o = runOn(input, {"list", "-"});
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: -: not an icon file\n");
  }
  EXPECT_EQ(runAfter("", {"list", "./-"}).err, "gpicon: ./-: not a file that can be read\n");
}

TEST_F(GpiconStreams, AFullOutputIsAFailure) {
  const Outcome o = runAfter("exec >/dev/full; ", {"resave", two_, "0", "-"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err.substr(0, 28), "gpicon: -: cannot be written");
}

TEST_F(GpiconStreams, DashesAfterTwoDashesAreFilesToo) {
  EXPECT_EQ(runOn(two_, {"list", "--", "-"}).status, 0);
  EXPECT_EQ(run({"check", "--", "--json"}).err, "gpicon: --json: not a file that can be read\n");
}

TEST_F(GpiconStreams, CheckAndProbePrintJson) {
  const std::string same = folder.write("s.ico", fileOf({anyEntry(16, 24), anyEntry(16, 24)}));
  EXPECT_EQ(run({"check", "--json", same}).out,
            "[\n{\"file\":\"" + same +
                "\",\"index\":1,\"what\":\"same\",\"directory\":\"image 0\",\"header\":null,\"pixels\":null}\n]\n");
  EXPECT_EQ(run({"check", "--json", same}).status, 1);
  const Outcome healthy = run({"check", two_, "--json"});
  EXPECT_EQ(healthy.out, "[]\n");
  EXPECT_EQ(healthy.status, 0);
  EXPECT_EQ(run({"probe", "--json", two_, folder.path("gone")}).out,
            "[\n{\"file\":\"" + two_ + "\",\"numbers\":[2,2,1,32,32,-1,24,-1,24]}\n]\n");
}

}  // namespace
}  // namespace gp::test

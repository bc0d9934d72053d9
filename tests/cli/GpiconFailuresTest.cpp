// Every subcommand of gpicon that writes files, on a device that fails.
#include "animation/FilmBytes.h"
#include "animation/XcursorBytes.h"
#include "cli/Subcommands.h"
#include "files/IcoBuilder.h"
#include "support/CommandUnderFailures.h"
#include "support/PngBuilder.h"

#include <algorithm>
#include <string>
#include <vector>

namespace gp::test {
namespace {

struct WritingSubcommand {
  std::string name;
  int (*run)(const cli::Arguments& arguments);
  std::vector<std::string> arguments;  // "@name" is the path of a file
  std::string target;
  bool needsTarget = false;  // it changes an existing file
};

const std::vector<WritingSubcommand> kWritingSubcommands{
    {"Bmp", cli::runBmp, {"@multi.ico", "0", "@a.bmp"}, "a.bmp"},
    {"Resave", cli::runResave, {"@multi.ico", "0", "@a.ico"}, "a.ico"},
    {"ResaveOverItself", cli::runResave, {"@multi.ico", "0", "@multi.ico"}, "multi.ico", true},
    {"Reduce", cli::runReduce, {"@multi.ico", "2", "@a.ico", "--to", "16", "--method", "nearest"}, "a.ico"},
    {"Effect", cli::runEffect, {"@multi.ico", "0", "@a.ico", "disabled"}, "a.ico"},
    {"EffectOnAll",
     cli::runEffect,
     {"@multi.ico", "@single.ico", "invert", "--all", "-d", "@out", "--force"},
     "out/multi.ico"},
    {"Alpha", cli::runAlpha, {"@multi.ico", "0", "@a.ico", "--set", "9"}, "a.ico"},
    {"To24", cli::runTo24, {"@alpha.ico", "0", "@a.ico"}, "a.ico"},
    {"Shades", cli::runShades, {"@alpha.ico", "0", "@a.pgm"}, "a.pgm"},
    {"Replace", cli::runReplace, {"@multi.ico", "0", "@single.ico"}, "multi.ico", true},
    {"ReplaceTo", cli::runReplace, {"@multi.ico", "0", "@single.ico", "-o", "@a.ico"}, "a.ico"},
    {"Add", cli::runAdd, {"@multi.ico", "@single.ico"}, "multi.ico", true},
    {"AddToTwo", cli::runAdd, {"@multi.ico", "@lies.ico", "@single.ico", "--at", "1"}, "lies.ico", true},
    {"AddTo", cli::runAdd, {"@multi.ico", "@single.ico", "-o", "@a.ico"}, "a.ico"},
    {"Remove", cli::runRemove, {"@multi.ico", "1"}, "multi.ico", true},
    {"RemoveTo", cli::runRemove, {"@multi.ico", "1", "-o", "@a.ico"}, "a.ico"},
    {"Reorder", cli::runReorder, {"@multi.ico", "3,1,2"}, "multi.ico", true},
    {"ReorderTo", cli::runReorder, {"@multi.ico", "3,1,2", "-o", "@a.ico"}, "a.ico"},
    {"Salvage", cli::runSalvage, {"@lies.ico", "-o", "@a.ico"}, "a.ico"},
    {"SalvageOverItself", cli::runSalvage, {"@lies.ico", "-o", "@lies.ico"}, "lies.ico", true},
    {"Unpack", cli::runUnpack, {"@multi.ico", "@single.ico", "-d", "@out", "--force"}, "out/multi_0.image.ppm"},
    {"UnpackFilm", cli::runUnpack, {"@film.ani", "-d", "@out", "--force"}, "out/film_1.image.ppm"},
    {"UnpackPng", cli::runUnpack, {"@multi.ico", "--png", "-d", "@out", "--force"}, "out/multi_0.png"},
    {"Make", cli::runMake, {"@a.ico", "@logo.png", "--force"}, "a.ico"},
    {"Strip", cli::runStrip, {"@thin.ico"}, "thin.ico", true},
    {"StripTo", cli::runStrip, {"@thin.ico", "-o", "@a.ico"}, "a.ico"},
    {"Split", cli::runSplit, {"@multi.ico", "@single.ico", "-d", "@out", "--force"}, "out/multi_32_16.ico"},
    {"Extract", cli::runExtract, {"@multi.ico", "@film.ani", "-d", "@out", "--jobs", "1", "--force"}, "out/film_1.ico"},
    {"ExtractGroup", cli::runExtract, {"@multi.ico", "-d", "@out", "--group", "--force"}, "out/multi_0.ico"},
    {"Scan", cli::runScan, {"@multi.ico", "-d", "@out", "--force"}, "out/multi_0.ico"},
    {"Xcursor", cli::runXcursor, {"@multi.ico", "-o", "@a"}, "a"},
    {"AniBuild", cli::runAni, {"build", "@frame.ico", "-o", "@a.ani"}, "a.ani"},
    {"AniSet", cli::runAni, {"set", "@film.ani", "--jiffies", "7"}, "film.ani", true},
    {"AniSetTo", cli::runAni, {"set", "@film.ani", "--jiffies", "7", "-o", "@a.ani"}, "a.ani"},
    {"AniIcon", cli::runAni, {"icon", "@film.ani", "1", "@a.ico"}, "a.ico"},
    {"Unxcursor", cli::runUnxcursor, {"@xcursor", "-o", "@a.cur"}, "a.cur"},
    {"UnxcursorMoving", cli::runUnxcursor, {"@moving", "-o", "@a.ani"}, "a.ani"},
};

struct FailingSubcommand {
  WritingSubcommand command;
  Target target;
};

// Files with other names in a folder of output are refused.
bool isRun(const WritingSubcommand& command, Target target) {
  const bool isInFolder = command.target.starts_with("out/");
  return target == Target::Existing || (target == Target::New ? !command.needsTarget : !isInFolder);
}

// For messages of tests.
void PrintTo(const FailingSubcommand& test, std::ostream* out) { *out << test.command.name << nameOf(test.target); }

std::vector<FailingSubcommand> failingSubcommands() {
  std::vector<FailingSubcommand> all;
  for (const WritingSubcommand& command : kWritingSubcommands)
    for (const Target target : kTargets)
      if (isRun(command, target)) all.push_back({command, target});
  return all;
}

class GpiconFailures : public CommandUnderFailures, public testing::WithParamInterface<FailingSubcommand> {
 protected:
  const WritingSubcommand& command() const { return GetParam().command; }

  void makeFiles() override {
    std::filesystem::create_directories(path("out"));
    if (GetParam().target != Target::New) write(command().target, {'o', 'l', 'd'});
    write("single.ico", build(anyEntry(24, 8)));
    write("alpha.ico", build(anyEntry(16, 32)));
    write("multi.ico", build(IcoFile{{anyEntry(32, 4), anyEntry(16, 24), anyEntry(48, 8)}, 0, 1, {}}));
    Picture thin = anyPicture(32, 8);
    thin.index = [](int x, int y) { return (x + y) % 3; };
    write("thin.ico", build(entryOf(thin)));
    write("logo.png", build(anyPng(32)));
    write("frame.ico", build(plainEntry(32, {1, 2, 3, 255})));
    const std::string film = aniOf(headerOf(2) + frameList({smallFrame(), smallFrame()}));
    write("film.ani", Bytes(film.begin(), film.end()));
    write("xcursor", bytesOfText(xcursorOf({{}})));
    write("moving", bytesOfText(xcursorOf({{}, {}})));
    write("lies.ico", build(entryOf(anyPicture(32, 8), 16, 4)));
  }
  // A failure is a status of 1 and a line for each file that was not written.
  bool run() override {
    cli::Arguments arguments;
    for (const std::string& argument : command().arguments)
      arguments.push_back(argument.starts_with('@') ? path(argument.substr(1)) : argument);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = command().run(arguments);
    const std::string errors = testing::internal::GetCapturedStderr();
    testing::internal::GetCapturedStdout();
    EXPECT_TRUE(status == cli::kDone || status == cli::kRefused) << errors;
    EXPECT_EQ(status == cli::kDone, errors.empty()) << errors;
    EXPECT_TRUE(status == cli::kDone || errors.starts_with("gpicon: " + work() + "/")) << errors;
    return status == cli::kDone;
  }

 private:
  void write(const std::string& name, const Bytes& bytes) {
    folder().write("work/" + name, std::string(bytes.begin(), bytes.end()));
  }
};

TEST_P(GpiconFailures, LeaveEachFileWholeAndAreReported) { failEveryCall(GetParam().target, command().target); }

std::string nameOfTest(const testing::TestParamInfo<FailingSubcommand>& test) {
  return test.param.command.name + nameOf(test.param.target);
}

INSTANTIATE_TEST_SUITE_P(All, GpiconFailures, testing::ValuesIn(failingSubcommands()), nameOfTest);

}  // namespace
}  // namespace gp::test

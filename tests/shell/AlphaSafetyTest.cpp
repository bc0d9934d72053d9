// Alpha in the whole program: outcomes of the screen that cannot be saved, files with odd alpha values, many switches
// between containers, and Undo.
#include "alpha/AlphaConversion.h"
#include "document/AlphaGreys.h"
#include "document/CurrentIcon.h"
#include "files/Decoding.h"
#include "shell/ShellSnapshot.h"
#include "support/FullDisk.h"
#include "support/ShellFixture.h"

#include <filesystem>
#include <ostream>
#include <random>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr int kEditAlpha = 0, kUndo = 1;
constexpr const char* kNoChannel = "Current Icon has no Alpha Channel.  Proceed still?";
constexpr const char* kReadOnly =
    "File is read-only\n\nYou may save it under a different file name or reset the file attributes.";
constexpr const char* kNotSaved = "Failed to save this icon";
constexpr const char* kReminder =
    "Reminder:  The original icon file contains multiple icons.\n\n"
    " If you don't wish to overwrite it, save to a different name.\n\nProceed?";

using AlphaAt = std::uint8_t (*)(int x, int y);

Picture alphaPicture(int size, AlphaAt alpha) {
  Picture picture = anyPicture(size, 32);
  picture.color = [alpha](int x, int y) { return Rgb{x * 5, y * 5, x ^ y, alpha(x, y)}; };
  return picture;
}

class AlphaProgram : public ShellFixture {
 protected:
  std::string write(const std::string& name, const Bytes& bytes) {
    return folder.write(name, std::string(bytes.begin(), bytes.end()));
  }
  void open(const std::string& path) {
    bool ok = false;
    shell.doOpenIconFileQuietly(path, ok);
    ASSERT_TRUE(ok) << path;
  }
  IconContainerRec& record() { return state.current(); }
  void runWith(const std::function<AlphaOutcome(const IconImage&)>& user) {
    form.onAlpha = [user](const IconImage& icon, AlphaMode) { return user(icon); };
    click("mnuAlphaSub", kEditAlpha);
  }
};

// Outcomes that cannot be saved.

struct UnsavedOutcome {
  const char* name;
  AlphaResult result;
  int bits;  // of the icon before
  IconImage (*make)(const IconImage& icon);
};

IconImage withValues(const IconImage& icon) {
  return {icon.image, icon.mask, AlphaMatrix(icon.width(), icon.height(), 77)};
}

const std::vector<UnsavedOutcome> kOutcomes{
    {"Convert", AlphaResult::ConvertTo24, 32, convertRetainAlpha},
    {"Change", AlphaResult::SaveChanged, 32, withValues},
    {"Create", AlphaResult::SaveNew, 24, withValues},
};

// A target that cannot be written, or may not. The file of the icon is own.ico.
struct BadTarget {
  const char* name;
  std::string target;
  void (*prepare)(const TempFolder& folder, EditState& state);
  void (*expect)(ScriptedBoxes& boxes, const std::string& path);
};

std::string text(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }
void tellsReadOnly(ScriptedBoxes& boxes, const std::string&) { boxes.expectTold(kReadOnly, BoxIcon::Exclamation); }
void tellsNotSaved(ScriptedBoxes& boxes, const std::string&) { boxes.expectTold(kNotSaved, BoxIcon::Exclamation); }

const std::vector<BadTarget> kBadTargets{
    {"ReadOnly", "/old.ico",
     [](const TempFolder& folder, EditState&) { fs::permissions(folder.write("old.ico"), fs::perms::owner_read); },
     tellsReadOnly},
    {"MissingFolder", "/no/such.ico", [](const TempFolder&, EditState&) {}, tellsNotSaved},
    {"Directory", "/folder.ico", [](const TempFolder& folder, EditState&) { folder.makeFolder("folder.ico"); },
     tellsReadOnly},
    {"NameTooLong", "/" + std::string(300, 'n') + ".ico", [](const TempFolder&, EditState&) {}, tellsNotSaved},
    {"HeldByAnother", "/old.ico",
     [](const TempFolder& folder, EditState& state) { state.mIconRecs[2].path = folder.write("old.ico"); },
     [](ScriptedBoxes& boxes, const std::string&) {
       boxes.expectAsked("Container 3 holds an icon of this file.\nProceed?", BoxAnswer::No);
     }},
    {"ChangedByAnotherProgram", "/own.ico",
     [](const TempFolder& folder, EditState&) {
       folder.write("own.ico", text(build(IcoFile{{anyEntry(16, 4), anyEntry(32, 4)}, 0, 1, {}})));
     },
     [](ScriptedBoxes& boxes, const std::string& path) {
       boxes.expectTold(path + "\n\nThis file has been changed meanwhile.\nNothing has been written to it.",
                        BoxIcon::None);
     }},
    {"ItsMultiIconFile", "/own.ico",
     [](const TempFolder&, EditState& state) { state.current().fromMultiIconFile = true; },
     [](ScriptedBoxes& boxes, const std::string&) { boxes.expectAsked(kReminder, BoxAnswer::No); }},
};

struct UnsavedCase {
  UnsavedOutcome outcome;
  BadTarget target;
};
void PrintTo(const UnsavedCase& one, std::ostream* out) { *out << one.outcome.name << one.target.name; }

std::vector<UnsavedCase> unsavedCases() {
  std::vector<UnsavedCase> all;
  for (const UnsavedOutcome& outcome : kOutcomes)
    for (const BadTarget& target : kBadTargets) all.push_back({outcome, target});
  return all;
}

class UnsavedAlpha : public AlphaProgram, public testing::WithParamInterface<UnsavedCase> {
 protected:
  // A changed icon with a step to undo.
  void makeIcon(int bits) {
    start();
    open(write("own.ico", build(anyEntry(32, bits))));
    shell.chooseTool(kPaint);
    paint(3, 4);
    ASSERT_TRUE(record().modified && shell.drawing().history.canUndo());
  }
  void expectQuestion() {
    if (!record().hasAlpha) boxes.expectAsked(kNoChannel, BoxAnswer::Yes);
  }
  // Everything in the program is as after an aborted session.
  void expectUnchangedBy(const UnsavedOutcome& outcome, const std::string& path) {
    const Snapshot before = SnapshotMaker(shell, clipboard, folder).make();
    runWith([&](const IconImage& icon) { return AlphaOutcome{outcome.result, path, outcome.make(icon)}; });
    EXPECT_EQ(differences(before, SnapshotMaker(shell, clipboard, folder).make()), std::vector<std::string>{});
    EXPECT_TRUE(boxes.done());
  }
  void abort() {
    expectQuestion();
    runWith([](const IconImage&) { return AlphaOutcome(); });
  }
};

TEST_P(UnsavedAlpha, LeavesTheContainerAsItWas) {
  const auto& [outcome, target] = GetParam();
  makeIcon(outcome.bits);
  target.prepare(folder, state);
  abort();
  const std::string path = folder.path() + target.target;
  expectQuestion();
  target.expect(boxes, path);
  expectUnchangedBy(outcome, path);
}

std::string nameOfCase(const testing::TestParamInfo<UnsavedCase>& one) {
  return std::string(one.param.outcome.name) + one.param.target.name;
}
INSTANTIATE_TEST_SUITE_P(All, UnsavedAlpha, testing::ValuesIn(unsavedCases()), nameOfCase);

class AlphaOnAFullDisk : public UnsavedAlpha {};
TEST_P(AlphaOnAFullDisk, LeavesTheContainerAsItWas) {
  const UnsavedOutcome& outcome = GetParam().outcome;
  makeIcon(outcome.bits);
  abort();
  for (const std::string& path : {folder.file("new.ico"), record().path.trimmed()}) {
    const FullDisk full(100);
    expectQuestion();
    boxes.expectTold(kNotSaved, BoxIcon::Exclamation);
    expectUnchangedBy(outcome, path);
  }
}
INSTANTIATE_TEST_SUITE_P(All, AlphaOnAFullDisk,
                         testing::Values(UnsavedCase{kOutcomes[0], kBadTargets[0]},
                                         UnsavedCase{kOutcomes[1], kBadTargets[0]},
                                         UnsavedCase{kOutcomes[2], kBadTargets[0]}));

// Files with odd alpha values.

struct OddAlpha {
  const char* name;
  AlphaAt inFile;
};
const OddAlpha kOddAlpha[] = {
    {"all 0", [](int, int) { return std::uint8_t{0}; }},
    {"all 255", [](int, int) { return std::uint8_t{255}; }},
    {"as the Mask, inverted", [](int x, int y) { return static_cast<std::uint8_t>((x + 2 * y) % 3 == 0 ? 255 : 0); }},
    {"without regard to the Mask", [](int x, int y) { return static_cast<std::uint8_t>(x * 8 + y); }},
};

TEST_F(AlphaProgram, OddAlphaSurvivesOpeningTheScreenSavingAndReopening) {
  start();
  for (const int size : {16, 24, 32, 48})
    for (const OddAlpha& odd : kOddAlpha) {
      SCOPED_TRACE(std::string(odd.name) + " " + std::to_string(size));
      const Picture picture = alphaPicture(size, odd.inFile);
      open(write("odd.ico", build(entryOf(picture))));
      IconImage shown;
      runWith([&](IconImage icon) {
        shown = icon;
        for (int x = 0; x < size; ++x) icon.alpha.at(x, 1) = 0;
        return AlphaOutcome{AlphaResult::SaveChanged, folder.file("saved.ico"), icon};
      });
      open(folder.file("saved.ico"));
      const IconImage again = currentIcon(state);
      EXPECT_TRUE(samePixels(again.image, shown.image));
      EXPECT_TRUE(samePixels(again.mask, shown.mask));
      ASSERT_TRUE(shown.hasAlphaValues() && again.hasAlphaValues());
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          const int opened = odd.inFile(x, y) == 0 ? 255 : odd.inFile(x, y);
          ASSERT_EQ(shown.alpha.at(x, y), opened) << x << " " << y;
          ASSERT_EQ(again.alpha.at(x, y), picture.transparent(x, y) ? 255 : y == 1 ? 1 : opened) << x << " " << y;
        }
    }
}

// Switches between containers.

class AlphaInContainers : public AlphaProgram {
 protected:
  static constexpr int kSwitches = 500;
  std::mt19937 numbers{20};
  std::vector<AlphaMatrix> expected;

  int below(int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); }
  void fillContainers() {
    state.options.flagMessageIfAlpha = false;
    for (int i = 0; i < kContainerCount; ++i) {
      shell.document().iconsPanel.SwitchContainer(i);
      Picture picture = anyPicture(i % 2 == 0 ? 32 : 16, 32);
      picture.color = [i](int x, int y) { return Rgb{i, x, y, 10 + 40 * i + (x + y) % 30}; };
      picture.transparent = [](int, int) { return false; };
      open(write("icon" + std::to_string(i) + ".ico", build(entryOf(picture))));
      expected.push_back(currentIcon(state).alpha);
    }
  }
  // A changed value of the Current Icon, as a tool leaves it.
  void changeOneValue() {
    AlphaMatrix& values = expected.at(static_cast<std::size_t>(state.mCurContainer));
    const int x = below(values.width()), y = below(values.height()), value = 1 + below(255);
    values.at(x, y) = static_cast<std::uint8_t>(value);
    state.picAlpha.SetPixelV(x, y, greyOf(value));
    record().modified = true;
  }
  void expectOwnValues() {
    for (int i = 0; i < kContainerCount; ++i) {
      shell.document().iconsPanel.SwitchContainer(i);
      const auto container = static_cast<std::size_t>(i);
      EXPECT_EQ(state.mAlphaRecs.at(container), expected.at(container)) << i;
      EXPECT_EQ(currentIcon(state).alpha, expected.at(container)) << i;
      EXPECT_EQ(redOf(state.picImage.GetPixel(0, 0)), i);
    }
  }
};

// The next key arrives while the indicator of the last container still flashes.
TEST_F(AlphaInContainers, KeepTheirOwnValuesThroughAStormOfSwitches) {
  start();
  fillContainers();
  for (int i = 0; i < kSwitches; i += 2) {
    pump.inside = [this] { shell.document().iconsPanel.SwitchContainer(below(kContainerCount)); };
    shell.document().iconsPanel.SwitchContainer(below(kContainerCount));
    pump.inside = nullptr;
    if (i % 7 == 0) changeOneValue();
  }
  expectOwnValues();
}

// Undo.

TEST_F(AlphaProgram, UndoStartsAgainWithNewAlphaAndWithTheConversion) {
  start();
  open(write("icon.ico", build(anyEntry(32, 24))));
  shell.chooseTool(kPaint);
  paint(3, 4);
  ASSERT_TRUE(enabled("mnuEditSub", kUndo));
  boxes.expectAsked(kNoChannel, BoxAnswer::Yes);
  runWith([&](const IconImage& icon) {
    return AlphaOutcome{AlphaResult::SaveNew, folder.file("new.ico"), withValues(icon)};
  });
  EXPECT_FALSE(enabled("mnuEditSub", kUndo)) << "the steps were those of an icon without alpha";
  const IconImage created = currentIcon(state);
  EXPECT_EQ(created.alpha, AlphaMatrix(32, 32, 77));

  shell.chooseTool(kPaint);
  paint(10, 11);
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(currentIcon(state).image, created.image));
  EXPECT_EQ(currentIcon(state).alpha, created.alpha);

  const IconImage converted = convertRetainAlpha(created);
  runWith([&](const IconImage&) { return AlphaOutcome{AlphaResult::ConvertTo24, folder.file("24.ico"), converted}; });
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  shell.chooseTool(kPaint);
  paint(10, 11);
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(state.picImage, converted.image));
  EXPECT_TRUE(samePixels(state.picMask, converted.mask));
  EXPECT_FALSE(currentIcon(state).hasAlphaValues());
}

}  // namespace
}  // namespace gp::test

// Every command of the editor that writes a file, on a device that fails.
#include "alpha/AlphaConversion.h"
#include "files/IcoBuilder.h"
#include "files/browser/HeaderDiff.h"
#include "files/browser/MultiIconBrowser.h"
#include "support/CommandUnderFailures.h"
#include "support/FakeFileTypeIcons.h"
#include "support/FakeTextDrawing.h"
#include "support/FakeTimer.h"
#include "support/ShellFixture.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace gp::test {
namespace {

// Agrees to everything.
class AgreeingBoxes : public MessageBoxes {
 public:
  std::vector<std::string> texts;
  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon, BoxAnswer) override {
    texts.push_back(text);
    return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
  }
};

// The whole program of a user who does in the forms what a command needs.
class AgreeingProgram {
 public:
  AgreeingBoxes boxes;
  ScriptedDialogs dialogs;
  FakeForm form;

 private:
  ScriptedPump pump_;
  FakeSystem system_;
  FakeProcesses processes_;
  FakeClipboard clipboard_;
  ScriptedPictures pictures_;
  FakeTextDrawing text_;
  FakeTimer timer_;
  FakeFileTypeIcons fileTypes_;
  RecordingDisplay display_;
  EditState state_;
  const std::string folder_;

 public:
  Shell shell;

  explicit AgreeingProgram(const std::string& folder)
      : folder_(folder),
        shell(state_,
              Ports{boxes, dialogs, pump_, system_, processes_, clipboard_, pictures_, text_, timer_, fileTypes_},
              display_, foldersIn(folder)) {
    shell.attach(&form, &form, &form);
    shell.formLoad();
    shell.formActivate("");
  }

  std::string path(const std::string& name) const { return folder_ + "/" + name; }
  void click(const char* control, int index) { shell.run(*findCommand(control, index)); }
  void answer(const std::string& name) { dialogs.paths.push_back(path(name)); }
  IconContainerRec& record() { return state_.current(); }
  void openAndPaint(const std::string& name) {
    bool ok = false;
    shell.doOpenIconFileQuietly(path(name), ok);
    EXPECT_TRUE(ok);
    shell.chooseTool(kPaint);
    const auto m = static_cast<float>(state_.gMagnification);
    const MouseInput middle{kLeftButton, 0, 16.5F * m, 16.5F * m};
    shell.drawing().tools.press(middle);
    shell.drawing().tools.release(middle);
    EXPECT_TRUE(record().modified);
  }
  // The browser shows a file, and the user acts in it and closes it.
  void browse(const std::string& name, const std::function<void(MultiIconBrowser&)>& act) {
    form.onMultiIcon = inBrowser(act);
    bool ok = false;
    shell.files().iconFiles.doOpenIconFile(path(name), true, ok);
  }
  std::function<void()> inBrowser(std::function<void(MultiIconBrowser&)> act) {
    return [this, act = std::move(act)] {
      MultiIconBrowser browser(shell.files().context());
      bool isOpen = true;
      browser.onUnload = [&isOpen] { isOpen = false; };
      browser.activate();
      act(browser);
      if (isOpen) browser.cmdClose();
    };
  }
};

void nothing(AgreeingProgram&) {}
template <int index>
void fileCommand(AgreeingProgram& p) {
  p.click("mnuFileSub", index);
}
// An icon that has changed, and a file name for the dialog of the command.
template <const char* const& name>
void paintAndName(AgreeingProgram& p) {
  p.openAndPaint("single.ico");
  p.answer(name);
}
template <int button>
void add(AgreeingProgram& p) {
  p.form.onMultiIcon = p.inBrowser([](MultiIconBrowser& browser) {
    browser.clickIcon(0);
    browser.cmdSaveAdd(button);
  });
  p.click("mnuFileSub", 16);
}
template <void (MultiIconBrowser::*act)()>
void inBrowser(AgreeingProgram& p) {
  p.browse("multi.ico", [](MultiIconBrowser& browser) { (browser.*act)(); });
}
void reposition(AgreeingProgram& p) {
  p.browse("multi.ico", [](MultiIconBrowser& browser) {
    browser.cmdReposition();
    browser.cmdShiftDown();
    browser.cmdRepositionProceed();
  });
}
template <const char* const& name>
void salvage(AgreeingProgram& p) {
  p.answer(name);
  p.form.onHeaderDiff = [&p] {
    HeaderDiff diff(p.shell.files().context());
    diff.activate();
    diff.cmdSalvage();
  };
  p.click("mnuEnquiryCurrent", 5);
}

template <AlphaResult result, const char* const& name>
void leaveAlphaScreen(AgreeingProgram& p) {
  p.form.onAlpha = [&p](const IconImage& icon, AlphaMode) {
    return AlphaOutcome{result, p.path(name),
                        result == AlphaResult::ConvertTo24 ? convertRetainAlpha(icon) : withAlphaValues(icon)};
  };
  p.click("mnuAlphaSub", 0);
}

// A film whose only frame is the icon of a file.
void makeFilm(AgreeingProgram& p) {
  AniSession& session = p.shell.animation().session;
  session.enter();
  session.cmdANI(3);
  p.answer("single.ico");
  session.cmdANI(15);
  EXPECT_TRUE(session.isChanged());
}

constexpr const char* kFolder = "";
constexpr const char* kSettings = "Glimmerpane.ini";
constexpr const char* kSingle = "single.ico";
constexpr const char* kMulti = "multi.ico";
constexpr const char* kAlpha = "alpha.ico";
constexpr const char* kLies = "lies.ico";
constexpr const char* kOther = "other.ico";
constexpr const char* kCursor = "a.cur";
constexpr const char* kBitmap = "a.bmp";
constexpr const char* kPalette = "a.pal";
constexpr const char* kPart = "multi_32_16.ico";
constexpr const char* kFilm = "film.ani";

// Whether a command that is done clears the mark of an icon that has changed.
enum class Mark { Cleared, Kept };

struct WritingCommand {
  std::string name;
  std::string target;  // the file that it writes
  bool needsTarget;    // it changes an existing file
  void (*begin)(AgreeingProgram& p);
  void (*run)(AgreeingProgram& p);
  std::vector<std::string> failures;  // parts of their texts; none if failures are not reported
  Mark mark = Mark::Kept;
};

// clang-format off
const std::vector<WritingCommand> kWritingCommands{
    {"Save", kSingle, true, [](AgreeingProgram& p) { p.openAndPaint(kSingle); }, fileCommand<12>,
     {"Failed to save this icon"}, Mark::Cleared},
    {"SaveAs", kOther, false, paintAndName<kOther>, fileCommand<13>, {"Failed to save this icon"}, Mark::Cleared},
    {"SaveAsCursor", kCursor, false, [](AgreeingProgram& p) { paintAndName<kCursor>(p), p.click("mnuFileSub", 18); },
     [](AgreeingProgram& p) { p.shell.cmdProceed(); }, {"Failed to save curosr"}},
    {"SaveAsBitmap", kBitmap, false, paintAndName<kBitmap>, fileCommand<19>, {"Failed to save this file."}},
    {"SaveMask", kBitmap, false, paintAndName<kBitmap>, fileCommand<20>, {"Failed to save this file."}},
    {"Replace", kMulti, true, [](AgreeingProgram& p) { p.openAndPaint(kMulti), p.answer(kMulti); }, fileCommand<15>,
     {"Failed to save current icon - preparation", "Failed to save current icon - at writing stage"}, Mark::Cleared},
    {"Add", kMulti, true, paintAndName<kMulti>, add<kSaveButton>,
     {"Failed to save current icon - preparation", "Failed to save current icon - writing"}, Mark::Cleared},
    {"AddSaveAs", kOther, false, [](AgreeingProgram& p) { paintAndName<kMulti>(p), p.answer(kOther); },
     add<kSaveAsButton>, {"Failed to save current icon - preparation", "Failed to save current icon - writing"},
     Mark::Cleared},
    {"Remove", kMulti, true, nothing, inBrowser<&MultiIconBrowser::cmdRemove>,
     {"Failed to update the file for this icon."}},
    {"Reposition", kMulti, true, nothing, reposition, {"encountered in writing file."}},
    {"SaveSingle", kOther, false, [](AgreeingProgram& p) { p.answer(kOther); },
     inBrowser<&MultiIconBrowser::cmdSaveSingle>, {"Failed to save this icon"}},
    {"SplitSave", kPart, false, [](AgreeingProgram& p) { p.answer(kFolder); },
     inBrowser<&MultiIconBrowser::cmdSplitSave>, {}},
    {"Salvage", kOther, false, [](AgreeingProgram& p) { p.openAndPaint(kLies); }, salvage<kOther>,
     {"Failed to salvage to ", "Error occurred in writing overall header"}},
    {"SalvageOverItself", kLies, true, [](AgreeingProgram& p) { p.openAndPaint(kLies); }, salvage<kLies>,
     {"Failed to salvage to ", "Error occurred in writing overall header"}},
    {"ConvertAlpha", kOther, false, [](AgreeingProgram& p) { p.openAndPaint(kAlpha); },
     leaveAlphaScreen<AlphaResult::ConvertTo24, kOther>, {"Failed to save this icon"}, Mark::Cleared},
    {"ChangeAlpha", kAlpha, true, [](AgreeingProgram& p) { p.openAndPaint(kAlpha); },
     leaveAlphaScreen<AlphaResult::SaveChanged, kAlpha>, {"Failed to save this icon"}, Mark::Cleared},
    {"CreateAlpha", kOther, false, [](AgreeingProgram& p) { p.openAndPaint(kSingle); },
     leaveAlphaScreen<AlphaResult::SaveNew, kOther>, {"Failed to save this icon"}, Mark::Cleared},
    {"SavePalette", kPalette, false, [](AgreeingProgram& p) { p.answer(kPalette); },
     [](AgreeingProgram& p) { p.click("mnuPaletteSub", 5); }, {"The palette file cannot be written"}},
    {"Settings", kSettings, false, [](AgreeingProgram& p) { p.click("mnuOptionsSub", 3); },
     [](AgreeingProgram& p) { EXPECT_TRUE(p.shell.queryUnload()); }, {}},
    {"SaveAni", kFilm, false, [](AgreeingProgram& p) { makeFilm(p), p.answer(kFilm); },
     [](AgreeingProgram& p) { p.shell.animation().session.cmdANI(5); }, {"Failed to save this ani file"}},
    {"History", kSettings, false, nothing, [](AgreeingProgram& p) { p.shell.AddHistory(p.path(kOther)); }, {}},
};
// clang-format on

struct FailingCommand {
  WritingCommand command;
  Target target;
};

// For messages of tests.
void PrintTo(const FailingCommand& test, std::ostream* out) { *out << test.command.name << nameOf(test.target); }

std::vector<FailingCommand> failingCommands() {
  std::vector<FailingCommand> all;
  for (const WritingCommand& command : kWritingCommands)
    for (const Target target : kTargets)
      if (target != Target::New || !command.needsTarget) all.push_back({command, target});
  return all;
}

class WritingFailures : public CommandUnderFailures, public testing::WithParamInterface<FailingCommand> {
 protected:
  const WritingCommand& command() const { return GetParam().command; }

  void makeFiles() override {
    program_.reset();
    std::filesystem::current_path(directory_.before());
    if (GetParam().target != Target::New) write(command().target, {'o', 'l', 'd'});
    write(kSingle, build(anyEntry(32, 8)));
    write(kAlpha, build(anyEntry(32, 32)));
    write(kMulti, build(IcoFile{{anyEntry(32, 4), anyEntry(16, 24), anyEntry(48, 8)}, 0, 1, {}}));
    write(kLies, build(entryOf(anyPicture(32, 24), 0, 0)));
  }
  void begin() override {
    program_.emplace(work());
    command().begin(*program_);
    wasModified_ = program_->record().modified;
    program_->boxes.texts.clear();
  }
  bool run() override {
    command().run(*program_);
    return !hasTold();
  }
  void checkState(bool isDone) override {
    EXPECT_EQ(program_->record().modified, wasModified_ && !(isDone && command().mark == Mark::Cleared));
  }
  bool isSilent(const std::string& path) const override { return path == kSettings || command().failures.empty(); }

 private:
  void write(const std::string& name, const Bytes& bytes) {
    folder().write("work/" + name, std::string(bytes.begin(), bytes.end()));
  }
  bool hasTold() const {
    return std::ranges::any_of(program_->boxes.texts, [this](const std::string& text) {
      return std::ranges::any_of(
          command().failures, [&text](const std::string& failure) { return text.find(failure) != std::string::npos; });
    });
  }

  const KeptDirectory directory_;
  std::optional<AgreeingProgram> program_;
  bool wasModified_ = false;
};

TEST_P(WritingFailures, LeaveEachFileWholeAndAreReported) { failEveryCall(GetParam().target, command().target); }

std::string nameOfTest(const testing::TestParamInfo<FailingCommand>& test) {
  return test.param.command.name + nameOf(test.param.target);
}

INSTANTIATE_TEST_SUITE_P(All, WritingFailures, testing::ValuesIn(failingCommands()), nameOfTest);

}  // namespace
}  // namespace gp::test

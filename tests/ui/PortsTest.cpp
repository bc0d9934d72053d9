// The ports on the desktop: boxes and dialogs as they are shown, the machine, and real processes.
#include "platform/files/ProgramFolders.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/ProcessTable.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtMessagePump.h"
#include "platform/qt/QtProcesses.h"
#include "platform/qt/QtSystemInfo.h"
#include "support/TempFolder.h"
#include "ui/ModalDialogs.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gp {
namespace {

// ---- Paths

TEST(PathText, BytesThatAreNoUtf8ComeBackUnchanged) {
  for (const std::string path :
       {"/a/caf\xE9.ico", "/\xFF\xFE", "\xC0\x80", "\xED\xB2\x80", "/gr\xC3\xBC\xC3\x9F\x65/\xC3"}) {
    EXPECT_EQ(textToPath(pathToText(path)), path);
  }
}

TEST(PathText, ProperUtf8IsReadAsItself) {
  EXPECT_EQ(pathToText("/gr\xC3\xBC\xC3\x9F\x65/\xF0\x9F\x8E\xA8.ico"), QString::fromUtf8("/grüße/🎨.ico"));
  EXPECT_EQ(textToPath(QString::fromUtf8("/grüße/🎨.ico")), "/gr\xC3\xBC\xC3\x9F\x65/\xF0\x9F\x8E\xA8.ico");
}

// ---- Message boxes

struct Look {
  BoxButtons buttons;
  BoxIcon icon;
  BoxAnswer suggested;
  QMessageBox::StandardButton defaultButton;
  QMessageBox::Icon shownIcon;
  BoxAnswer onEscape;
};

TEST(QtMessageBoxes, HaveTheirTitlePlainTextDefaultButtonAndEscape) {
  const Look looks[] = {
      {BoxButtons::Ok, BoxIcon::None, BoxAnswer::Ok, QMessageBox::Ok, QMessageBox::Information, BoxAnswer::Ok},
      {BoxButtons::Ok, BoxIcon::Exclamation, BoxAnswer::Ok, QMessageBox::Ok, QMessageBox::Warning, BoxAnswer::Ok},
      {BoxButtons::Ok, BoxIcon::Information, BoxAnswer::Ok, QMessageBox::Ok, QMessageBox::Information, BoxAnswer::Ok},
      {BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::No, QMessageBox::No, QMessageBox::Question, BoxAnswer::No},
      {BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::Yes, QMessageBox::Yes, QMessageBox::Question, BoxAnswer::No},
      {BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes, QMessageBox::Yes, QMessageBox::Question,
       BoxAnswer::Cancel},
  };
  const std::string text = "A <b>bold</b> name\nis kept && \xC3\xA4s it is: \"x\"";
  for (const Look& look : looks) {
    whenShown<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "Glimmerpane");
      EXPECT_EQ(box.text().toStdString(), text);
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.icon(), look.shownIcon);
      EXPECT_EQ(box.defaultButton(), box.button(look.defaultButton));
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(QtMessageBoxes().show(text, look.buttons, look.icon, look.suggested), look.onEscape);
  }
}

TEST(QtMessageBoxes, HaveThePicturesOfTheProgramAndPlainButtons) {
  for (const auto& [icon, name] :
       {std::pair(BoxIcon::Information, "box-information"), std::pair(BoxIcon::Question, "box-question"),
        std::pair(BoxIcon::Exclamation, "box-exclamation")}) {
    QMessageBox box;
    QtMessageBoxes::prepare(box, "?", BoxButtons::YesNo, icon, BoxAnswer::No);
    const QPixmap own = Pictures::pixmap(name, box.devicePixelRatioF(), Pictures::kBoxSize);
    ASSERT_FALSE(own.isNull());
    EXPECT_EQ(box.iconPixmap().toImage(), own.toImage()) << name;
    for (const QAbstractButton* button : box.buttons()) EXPECT_TRUE(button->icon().isNull());
  }
}

TEST(QtMessageBoxes, ABoxIsAsWideAsItsLinesIfTheScreenIs) {
  const auto widthOf = [](const std::string& text) {
    QMessageBox box;
    QtMessageBoxes::prepare(box, text, BoxButtons::Ok, BoxIcon::None, BoxAnswer::Ok);
    return box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->minimumWidth();
  };
  const QFontMetrics metrics(QMessageBox().findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->font());
  const int screen = QGuiApplication::primaryScreen()->availableGeometry().width();
  ASSERT_GT(screen, 600 + metrics.horizontalAdvance("and one"));
  EXPECT_EQ(widthOf("A line\nand one"), metrics.horizontalAdvance("and one"));
  EXPECT_EQ(widthOf(std::string(1000, 'x')), 0) << "Qt breaks it";
}

TEST(QtMessageBoxes, LongNamesAreBrokenAndNotCutOff) {
  const QString name(250, 'W');
  QMessageBox box;
  QtMessageBoxes::prepare(box, name.toStdString(), BoxButtons::Ok, BoxIcon::None, BoxAnswer::Ok);
  EXPECT_EQ(box.text().remove(QChar(0x200B)), name);
  box.show();
  const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  const QFontMetrics metrics(label->font());
  EXPECT_EQ(label->accessibleName(), name);
  EXPECT_LT(label->width(), metrics.horizontalAdvance(name));
  EXPECT_GE(label->width(), metrics.horizontalAdvance(name.left(50)));
  EXPECT_GE(label->height(), 3 * metrics.height());
}

TEST(QtMessageBoxes, EnterGivesTheSuggestedAnswer) {
  for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}) {
    whenShown<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(QtMessageBoxes().show("?", BoxButtons::YesNoCancel, BoxIcon::Question, answer), answer);
  }
}

TEST(QtMessageBoxes, ABoxStandsOverTheActiveWindow) {
  QWidget form;
  form.show();
  QApplication::setActiveWindow(&form);
  whenShown<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &form);
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(QtMessageBoxes().ask("Continue?"));
}

TEST(QtMessageBoxes, TheWindowBeneathIsActiveAgainAfterTwoThatClosedAtOnce) {
  QWidget form;
  form.show();
  QApplication::setActiveWindow(&form);
  whenShown<QMessageBox>([](QMessageBox& below) {
    whenShown<QMessageBox>([&](QMessageBox& box) {
      below.done(QMessageBox::Ok);
      box.done(QMessageBox::Ok);
    });
    QtMessageBoxes().tell("second");
  });
  QtMessageBoxes().tell("first");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
}

// ---- Pump and machine

TEST(QtMessagePump, PumpRunsWhatIsPending) {
  bool ran = false;
  QTimer::singleShot(0, [&] { ran = true; });
  QtMessagePump().pump();
  EXPECT_TRUE(ran);
}

TEST(QtMessagePump, WaitingKeepsEventsRunning) {
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(5);
  QElapsedTimer clock;
  clock.start();
  QtMessagePump().wait(100);
  EXPECT_GE(clock.elapsed(), 99);
  EXPECT_GT(ticks, 3);
}

TEST(QtSystemInfo, TellsTheScreenTheMemoryAndTheFolders) {
  QtSystemInfo system;
  EXPECT_EQ(system.GetScreenBPP(), 32);
  EXPECT_EQ(system.screenWidth(), 800);
  EXPECT_EQ(system.screenHeight(), 800);
  EXPECT_EQ(system.physicalScreenWidth(), 800);
  EXPECT_EQ(system.physicalScreenHeight(), 800);
  EXPECT_EQ(system.GetPixelsPerInch(), 96);
  EXPECT_GT(system.totalMemoryKb(), 1024);
  EXPECT_EQ(system.windowsDirectory(), "/usr");
  EXPECT_EQ(system.systemDirectory(), "/usr/lib");
  EXPECT_TRUE(system.tempDirectory().ends_with('/'));
  EXPECT_FALSE(system.desktopDirectory().empty());
}

// ---- Processes

// A copy of sleep under another name, started and ended with the object.
class Sleeper {
 public:
  explicit Sleeper(const std::string& path) {
    std::filesystem::copy_file("/bin/sleep", path, std::filesystem::copy_options::overwrite_existing);
    process_.start(QString::fromStdString(path), {"60"});
    EXPECT_TRUE(process_.waitForStarted(kPatience));
  }
  ~Sleeper() {
    process_.kill();
    process_.waitForFinished(kPatience);
  }
  QProcess& process() { return process_; }

 private:
  QProcess process_;
};

TEST(QtProcesses, ARunningProgramIsFoundByItsWholeFileNameInAnyCase) {
  const test::TempFolder folder;
  QtProcesses processes(folder.file("lock"));
  EXPECT_FALSE(processes.IsProcessRunning("gptest-sleeper.exe"));
  const Sleeper other(folder.file("Old-GPTest-Sleeper.EXE"));
  EXPECT_FALSE(processes.IsProcessRunning("gptest-sleeper.exe")) << "the name ends like it";
  const Sleeper sleeper(folder.file("GPTest-Sleeper.EXE"));
  EXPECT_TRUE(processes.IsProcessRunning("gptest-sleeper.exe"));
  EXPECT_TRUE(processes.IsProcessRunning("GPTEST-sleeper.exe"));
  EXPECT_FALSE(processes.IsProcessRunning("gptest-sleeper"));
  EXPECT_FALSE(processes.IsProcessRunning(""));
}

TEST(QtProcesses, TheCompanionIsKilledAndThenGone) {
  const test::TempFolder folder;
  QtProcesses processes(folder.file("lock"));
  Sleeper sleeper(folder.file("gptest-supp1.exe"));
  ASSERT_TRUE(processes.IsProcessRunning("gptest-supp1.exe"));
  processes.TerminateProcessByName("gptest-supp1.exe");
  EXPECT_TRUE(sleeper.process().waitForFinished(kPatience));
  EXPECT_EQ(sleeper.process().exitStatus(), QProcess::CrashExit);
  EXPECT_FALSE(processes.IsProcessRunning("gptest-supp1.exe"));
}

// The companion may have unsaved work: it is asked first.
TEST(QtProcesses, TheCompanionIsAskedBeforeItIsKilled) {
  const test::TempFolder folder;
  const std::string script = folder.write("gp-asked.exe",
                                          "#!/bin/sh\ntrap 'echo asked > \"$0.out\"; exit 0' TERM\n"
                                          "echo > \"$0.ready\"\nwhile :; do sleep 0.1; done\n");
  std::filesystem::permissions(script, std::filesystem::perms::owner_all);
  QtProcesses processes(folder.file("lock"));
  QProcess companion;
  companion.start(QString::fromStdString(script), {});
  ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(script + ".ready"); }, kPatience));
  processes.TerminateProcessByName("gp-asked.exe");
  EXPECT_TRUE(companion.waitForFinished(kPatience));
  EXPECT_TRUE(std::filesystem::exists(script + ".out"));
}

TEST(QtProcesses, ProcessesOfOtherPeopleAreNotFound) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can act as another person";
  const test::TempFolder folder;
  std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
  const std::string program = folder.file("gptest-foreign.exe");
  std::filesystem::copy_file("/bin/sleep", program);
  const pid_t child = fork();
  if (child == 0) {
    if (setuid(65534) == 0) execl(program.c_str(), program.c_str(), "60", static_cast<char*>(nullptr));
    _exit(1);
  }
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return std::filesystem::read_symlink("/proc/" + std::to_string(child) + "/exe") == program; }, kPatience));
  EXPECT_FALSE(findProcess("gptest-foreign.exe"));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

TEST(QtProcesses, ADeadChildThatNoOneWaitedForDoesNotRun) {
  const test::TempFolder folder;
  const std::string program = folder.file("gptest-zombie.exe");
  std::filesystem::copy_file("/bin/true", program);
  const pid_t child = fork();
  if (child == 0) {
    execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
    _exit(1);
  }
  siginfo_t ended{};
  waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT);
  EXPECT_FALSE(QtProcesses(folder.file("lock")).IsProcessRunning("gptest-zombie.exe"));
  waitpid(child, nullptr, 0);
}

TEST(QtProcesses, TheProgramItselfIsNeverFound) {
  // Other tests of this program may run at the same time, and may be found.
  const std::string own = std::filesystem::read_symlink("/proc/self/exe").string();
  EXPECT_NE(findProcess(own), std::optional<int>(getpid()));
}

TEST(QtProcesses, StartTellsWhetherTheProgramCouldBeStarted) {
  const test::TempFolder folder;
  QtProcesses processes(folder.file("lock"));
  EXPECT_FALSE(processes.start(folder.file("missing.exe")));
  const std::string script = folder.write("companion.sh", "#!/bin/sh\necho started > \"$0.out\"\n");
  std::filesystem::permissions(script, std::filesystem::perms::owner_all);
  EXPECT_TRUE(processes.start(script));
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(script + ".out"); }, kPatience));
}

// Another instance: takes the lock, reports what it found, and holds the lock until it is ended.
class Instance {
 public:
  explicit Instance(const std::string& lock) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    child_ = fork();
    if (child_ == 0) {
      QtProcesses processes(lock);
      const char answer = processes.IsPrevInstance() ? 'y' : 'n';
      if (write(ends[1], &answer, 1) != 1) _exit(1);
      for (;;) pause();
    }
    EXPECT_EQ(read(ends[0], &answer_, 1), 1);
    close(ends[0]);
    close(ends[1]);
  }
  ~Instance() { end(); }
  bool foundAnother() const { return answer_ == 'y'; }
  // Ends like a crash, without clean-up.
  void end() {
    if (child_ <= 0) return;
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
    child_ = 0;
  }

 private:
  pid_t child_ = 0;
  char answer_ = '?';
};

TEST(QtProcesses, TheSecondInstanceSeesTheFirst) {
  const test::TempFolder folder;
  QtProcesses first(folder.file("lock"));
  EXPECT_FALSE(first.IsPrevInstance());
  EXPECT_FALSE(first.IsPrevInstance());
  EXPECT_TRUE(Instance(folder.file("lock")).foundAnother());
}

TEST(QtProcesses, ALockLeftByACrashIsTakenOver) {
  const test::TempFolder folder;
  Instance crashing(folder.file("lock"));
  EXPECT_FALSE(crashing.foundAnother());
  EXPECT_TRUE(QtProcesses(folder.file("lock")).IsPrevInstance());
  crashing.end();
  EXPECT_TRUE(std::filesystem::exists(folder.file("lock")));
  EXPECT_FALSE(QtProcesses(folder.file("lock")).IsPrevInstance());
}

TEST(QtProcesses, WithoutAPlaceForTheLockThereIsNoOtherInstance) {
  EXPECT_FALSE(QtProcesses("/nowhere/at/all/lock").IsPrevInstance());
}

TEST(QtProcesses, TheLockIsTheUsersOwn) {
  const test::TempFolder folder;
  qputenv("XDG_RUNTIME_DIR", folder.file("run").c_str());
  EXPECT_EQ(QtProcesses::userLockFile(), programFolders().scratch + "/glimmerpane.lock");
  std::filesystem::create_directory(folder.file("run"));
  EXPECT_EQ(QtProcesses::userLockFile(), folder.file("run/glimmerpane.lock"));
  qunsetenv("XDG_RUNTIME_DIR");
}

TEST(QtProcesses, ClosingByTitleDoesNothingWithoutAnXServer) {
  const QByteArray display = qgetenv("DISPLAY");
  qputenv("DISPLAY", ":6789");
  const test::TempFolder folder;
  QtProcesses(folder.file("lock")).CloseWindowByTitle("Glimmerpane By Zorvex Lattice");
  if (display.isNull()) {
    qunsetenv("DISPLAY");
  } else {
    qputenv("DISPLAY", display);
  }
}

// ---- What assistive technology is given

class ValuePanel : public QLabel, public AccessibleValue {
 public:
  QString accessibleValue() const override { return text(); }
};

class ValueCanvas : public QWidget, public AccessibleValue {
 public:
  QString accessibleValue() const override { return QStringLiteral("X=3  Y=4  Red"); }
  QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
};

TEST(Accessibility, APanelKeepsItsNameAndTellsItsTextAsValue) {
  ValuePanel panel;
  panel.setAccessibleName(QStringLiteral("Icon size"));
  panel.setText(QStringLiteral("32 x 32"));
  QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(&panel);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::StaticText);
  EXPECT_EQ(shown->text(QAccessible::Name), "Icon size");
  EXPECT_EQ(shown->text(QAccessible::Value), "32 x 32");
  EXPECT_EQ(shown->text(QAccessible::Description), "") << "it would be read twice";
  ASSERT_NE(shown->textInterface(), nullptr);
  EXPECT_EQ(shown->textInterface()->characterCount(), 7);
  EXPECT_EQ(shown->textInterface()->text(0, 2), "32");
}

TEST(Accessibility, AWidgetChoosesItsRole) {
  ValueCanvas canvas;
  canvas.setAccessibleName(QStringLiteral("Editing Area"));
  canvas.setFocusPolicy(Qt::StrongFocus);
  QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(&canvas);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::Canvas);
  EXPECT_EQ(shown->text(QAccessible::Name), "Editing Area");
  EXPECT_EQ(shown->text(QAccessible::Description), "X=3  Y=4  Red");
  EXPECT_EQ(shown->textInterface(), nullptr) << "it would be read twice";
  EXPECT_TRUE(shown->state().focusable);
}

}  // namespace
}  // namespace gp

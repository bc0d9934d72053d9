#include "document/EditState.h"
#include "shell/StartUp.h"
#include "support/FakeMachine.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace gp {
namespace {

constexpr const char* kRunning =
    "Program is already running.\n\nYou can click the File main menu and select the\nappropriate submenus there.\n\n";
constexpr const char* kCompanion =
    "Custom Size Glimmerpane is running.  In order to conserve memory,\nit is not advisable to run both Glimmerpanes "
    "concurrently.\n\nContinue?\n";
constexpr const char* kColors =
    "Your current display setting in Windows is below High Color;\nSome images may not be displayed correctly and you "
    "will not\nbe able to view/edit True Color icons.\n\nProceed still?";

class StartUpChecks : public testing::Test {
 protected:
  bool run() { return runStartUpChecks(system_, processes_, boxes_, state_, "/opt/glimmerpane"); }
  static std::string screenText(const std::string& size) {
    return "This program requires a 800x600 screen or better.\n Your current screen is " + size + ".  Proceed still?";
  }

  test::FakeSystem system_;
  test::FakeProcesses processes_;
  test::ScriptedBoxes boxes_;
  EditState state_;
};

TEST_F(StartUpChecks, AGoodMachineRaisesNoBox) {
  EXPECT_TRUE(run());
  EXPECT_TRUE(processes_.calls.empty());
}

TEST_F(StartUpChecks, WhatIsFoundOutGoesIntoTheState) {
  system_.bits = 24;
  EXPECT_TRUE(run());
  EXPECT_EQ(state_.process.gScreenBPP, 24);
  EXPECT_EQ(state_.process.gWindowsDir, "/usr");
  EXPECT_EQ(state_.process.gSystemDir, "/usr/lib");
  EXPECT_EQ(state_.process.gTempDir, "/tmp/");
}

TEST_F(StartUpChecks, ASecondInstanceClosesTheAboutScreenTellsAndEnds) {
  processes_.previousInstance = true;
  processes_.running = {"gpsupp1.exe"};
  boxes_.expectTold(kRunning, BoxIcon::Exclamation);
  EXPECT_FALSE(run());
  EXPECT_EQ(processes_.calls, std::vector<std::string>{"close Glimmerpane By Zorvex Lattice"});
}

TEST_F(StartUpChecks, ARunningCompanionIsEndedOnYes) {
  processes_.running = {"gpsupp1.exe"};
  boxes_.expectAsked(kCompanion, BoxAnswer::Yes);
  EXPECT_TRUE(run());
  EXPECT_EQ(processes_.calls, std::vector<std::string>{"terminate gpsupp1.exe"});
}

TEST_F(StartUpChecks, ARunningCompanionLivesOnAndTheProgramEndsOnNo) {
  processes_.running = {"gpsupp1.exe"};
  boxes_.expectAsked(kCompanion, BoxAnswer::No);
  EXPECT_FALSE(run());
  EXPECT_TRUE(processes_.calls.empty());
}

TEST_F(StartUpChecks, AScreenOf16BitsRaisesNoBox) {
  system_.bits = 16;
  EXPECT_TRUE(run());
}

TEST_F(StartUpChecks, AScreenOf8BitsIsTheUsersChoice) {
  system_.bits = 8;
  boxes_.expectAsked(kColors, BoxAnswer::Yes);
  EXPECT_TRUE(run());
  EXPECT_EQ(state_.process.gScreenBPP, 8);
}

TEST_F(StartUpChecks, AScreenOf8BitsEndsTheProgramOnNo) {
  system_.bits = 8;
  boxes_.expectAsked(kColors, BoxAnswer::No);
  EXPECT_FALSE(run());
  EXPECT_EQ(state_.process.gWindowsDir, "");
}

TEST_F(StartUpChecks, AScreenOfExactly800x600RaisesNoBox) {
  system_.width = 800;
  system_.height = 600;
  EXPECT_TRUE(run());
}

TEST_F(StartUpChecks, AScreenOf799PixelsWidthIsTheUsersChoice) {
  system_.width = 799;
  system_.height = 600;
  boxes_.expectAsked(screenText("799x600"), BoxAnswer::Yes);
  EXPECT_TRUE(run());
}

TEST_F(StartUpChecks, AScaledScreenCountsByItsPhysicalPixels) {
  system_.width = 640;
  system_.height = 400;
  system_.scale = 1.5;
  EXPECT_TRUE(run());
  system_.scale = 1.25;
  boxes_.expectAsked(screenText("800x500"), BoxAnswer::No);
  EXPECT_FALSE(run());
}

TEST_F(StartUpChecks, AScreenOf599PixelsHeightEndsTheProgramOnNo) {
  system_.width = 800;
  system_.height = 599;
  boxes_.expectAsked(screenText("800x599"), BoxAnswer::No);
  EXPECT_FALSE(run());
}

TEST_F(StartUpChecks, TheQuestionsComeInOneOrder) {
  processes_.running = {"gpsupp1.exe"};
  system_.bits = 4;
  system_.width = 640;
  system_.height = 480;
  system_.windows.clear();
  boxes_.expectAsked(kCompanion, BoxAnswer::Yes);
  boxes_.expectAsked(kColors, BoxAnswer::Yes);
  boxes_.expectAsked(screenText("640x480"), BoxAnswer::Yes);
  boxes_.expectTold("Unknown windows directory, cannot proceed", BoxIcon::None);
  EXPECT_FALSE(run());
}

TEST_F(StartUpChecks, AnUnknownSystemDirectoryEndsTheProgram) {
  system_.system.clear();
  boxes_.expectTold("Unknown windows system directory, cannot proceed", BoxIcon::None);
  EXPECT_FALSE(run());
  EXPECT_EQ(state_.process.gWindowsDir, "/usr");
}

TEST_F(StartUpChecks, AnUnknownTempDirectoryIsReplacedByTheProgramsFolder) {
  system_.temp.clear();
  EXPECT_TRUE(run());
  EXPECT_EQ(state_.process.gTempDir, "/opt/glimmerpane/");
  EXPECT_TRUE(runStartUpChecks(system_, processes_, boxes_, state_, "/opt/"));
  EXPECT_EQ(state_.process.gTempDir, "/opt/");
}

class FailingSystem : public test::FakeSystem {
 public:
  std::string systemDirectory() override { throw std::runtime_error("no such thing"); }
};

TEST_F(StartUpChecks, AnyOtherErrorIsReportedAndEndsTheProgram) {
  FailingSystem failing;
  boxes_.expectTold("Error encountered in main, cannot proceed", BoxIcon::None);
  EXPECT_FALSE(runStartUpChecks(failing, processes_, boxes_, state_, "/opt"));
}

}  // namespace
}  // namespace gp

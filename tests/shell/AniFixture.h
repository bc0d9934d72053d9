// The animated cursor session in the whole program.
#pragma once

#include "animation/FilmBuilder.h"
#include "animation/format/FilmWriting.h"
#include "document/PanelNumbers.h"
#include "files/IcoBuilder.h"
#include "support/ShellFixture.h"

#include <string>
#include <vector>

namespace gp::test {

// Names for the numbers of cmdANI.
enum AniButton {
  kClose = 0,
  kResizePane = 1,
  kMinimizePane = 2,
  kCreateAni = 3,
  kOpenAni = 4,
  kSaveAni = 5,
  kCloseSession = 6,
  kSetInterval = 7,
  kTestFilm = 8,
  kFrameProperty = 9,
  kFromArea = 10,
  kToArea = 11,
  kAddBelow = 12,
  kAddAbove = 13,
  kRemoveFrame = 14,
  kLoadIcon = 15,
  kShiftFrameUp = 16,
  kShiftFrameDown = 17,
  kGoUp = 18,
  kGoDown = 19
};

inline constexpr const char* kLossQuestion = "Without saving frames to file first?\n\n";
inline constexpr const char* kSaveIconQuestion = "Save current icon to file?";

// The question before a save, with hot spots such as "[0, 0]".
inline std::string saveQuestion(const std::string& chosen, const std::string& former) {
  return "To save:\n\n   Hot spot:  " + chosen +
         "\n\n-------------------------------\nThe following is existing data which will\nbe changed accordingly if "
         "required:\n   Hot spot:  " +
         former + "\n-------------------------------\n\n\nConfirm OK?\n\n";
}

template <class Fixture>
class AniProgram : public Fixture {
 protected:
  AniSession& session = this->shell.animation().session;

  AniProgram() { this->start(); }

  void press(int button) { session.cmdANI(button); }
  void enterSession() { this->click("mnuANIFileCreateOrEdit", kNoIndex); }
  std::string textOf(const std::vector<FilmFrame>& frames, int x = 0, int y = 0) const {
    const std::vector<std::uint8_t> bytes = composeFilm(frames, x, y);
    return {bytes.begin(), bytes.end()};
  }
  std::string writeFilm(const std::string& name, const std::vector<FilmFrame>& frames, int x = 0, int y = 0) {
    return this->folder.write(name, textOf(frames, x, y));
  }
  // A film in the visible pane, read from a file.
  std::string openFilm(const std::vector<FilmFrame>& frames, const std::string& name = "film.ani") {
    const std::string path = writeFilm(name, frames);
    session.openFile(path);
    EXPECT_EQ(session.frames().count(), static_cast<int>(frames.size()));
    return path;
  }
  std::string openFilm(int frames) { return openFilm(numberedFrames(frames)); }
  void change() { press(kShiftFrameDown); }
  std::vector<Color> colors() const { return colorsOf(session.frames().all()); }
  std::string path() const { return this->status(StatusPanel::Path); }
  bool isVisible() const { return this->state.screen.aniContainerVisible; }
  void expectSaveIconQuestion(BoxAnswer answer) {
    this->boxes.expect(kSaveIconQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, answer);
  }
};

// A test that expects each box.
class AniShellTest : public AniProgram<ShellFixture> {};

}  // namespace gp::test

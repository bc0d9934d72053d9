// The animated cursor session: a film of frames beside the Editing Area, exchanged with it and with files. The pane
// picANIContainer(0) shows it. A film survives the closing of the pane.
#pragma once

#include "animation/AniExchange.h"
#include "animation/AniFiles.h"
#include "animation/AniState.h"
#include "animation/AniTest.h"
#include "files/FilesContext.h"

#include <array>
#include <string>

namespace gp {

class Timer;

// The sizes of the pane: all controls; the film and the most used buttons, beside which the color panel can be used;
// the title alone.
enum class AniPaneSize { Normal, Compact, Minimized };

class AniSession {
 public:
  static constexpr int kButtonCount = 20;

  // The timer must outlive it.
  AniSession(const FilesContext& context, Timer& timer);
  AniSession(const AniSession&) = delete;
  AniSession& operator=(const AniSession&) = delete;

  // mnuANIFileCreateOrEdit: shows the pane at its normal size. Asks first about unsaved work on the Current Icon.
  void enter();
  // Shows the pane and opens a file in it, as from the command line. Asks about unsaved frames.
  void openFile(const std::string& path);
  // Other commands: ends the session without a question. The film is given up and the pane hidden.
  void end();
  // Before the program ends: asks about unsaved frames. False when the user refuses; otherwise stops the test.
  bool mayExit();
  // The pane was hidden by another command: stops the test.
  void paneHidden();

  // A click on cmdANI(button).
  void cmdANI(int button);
  bool isEnabled(int button) const;
  // The mouse on the film, in pixels of the film.
  void filmPress();
  void filmRelease(int x, int y);
  // Keys on the film: makes frame n current, if it exists, and scrolls it into view.
  void goTo(int n);
  // The user moved the scroll bar, or the pane changed its size.
  void scrollTo(int value);
  void setVisibleHeight(int height);
  // The title was double-clicked.
  void restorePane();

  AniPaneSize paneSize() const { return paneSize_; }
  const AniFrames& frames() const { return ani_.frames; }
  const AniFilm& film() const { return ani_.film; }
  const AniTest& test() const { return test_; }
  AniMode mode() const { return ani_.mAniMode; }
  bool isChanged() const { return ani_.mAniChanged; }
  const std::string& path() const { return ani_.mAniPath; }
  const AniChoices& choices() const { return ani_.choices; }
  // The lists and the tick box; these values take effect with buttons 3, 5 and 7.
  void setChoices(const AniChoices& choices) { ani_.choices = choices; }
  // lblANI(0): "Frame:  2 / 5"; lblANI(1): "Jiffies:  30"; empty without frames.
  std::string frameLabel() const;
  std::string jiffiesLabel() const;

 private:
  struct Button;
  static const std::array<Button, kButtonCount>& buttons();

  bool isAlways() const { return true; }
  bool hasFrames() const { return ani_.frames.count() > 0; }
  bool hasFrameAbove() const { return ani_.frames.current() > 1; }
  bool hasFrameBelow() const { return ani_.frames.current() < ani_.frames.count(); }

  void click(const Button& button);
  bool showPane();
  void setPaneVisible(bool isVisible);
  void setPaneSize(AniPaneSize size);
  void reset();
  void select(int n);
  void exchange(void (AniExchange::*act)());
  void add(void (AniFrames::*addFrame)());
  void shift(void (AniFrames::*shiftFrame)());

  // The bodies of the buttons.
  void closePane();
  void resizePane();
  void minimizePane();
  void create();
  void open();
  void save();
  void setInterval();
  void startOrStopTest();
  void showProperty();
  void takeFromEditingArea();
  void putToEditingArea();
  void addBelow();
  void addAbove();
  void removeFrame();
  void loadIcon();
  void shiftUp();
  void shiftDown();
  void goUp();
  void goDown();

  FilesContext context_;
  AniState ani_;
  AniTest test_;
  AniFiles files_;
  AniExchange exchange_;
  AniPaneSize paneSize_ = AniPaneSize::Normal;
  // A command of the session is running. A dialog or a question can let other events in.
  bool isBusy_ = false;
};

}  // namespace gp

// The animated cursor session: a film of frames beside the Editing Area, exchanged with it and with files. The pane
// picANIContainer(0) shows it. A film survives the closing of the pane.
#pragma once

#include "animation/AniFilm.h"
#include "animation/AniFrames.h"
#include "animation/AniTest.h"
#include "files/FilesContext.h"

#include <string>

namespace gp {

class IconSaver;
class Timer;

// The sizes of the pane: all controls; the film and the most used buttons, beside which the color panel can be used;
// the title alone.
enum class AniPaneSize { Normal, Compact, Minimized };
enum class AniMode { NoFrames = 0, Made = 1, Read = 2 };

// The entries chosen in the lists of the pane, and its tick box.
struct AniChoices {
  int jiffies = 30;     // cboANI(0)
  int hotspotX = 0;     // cboANI(1)
  int hotspotY = 0;     // cboANI(2)
  bool singly = false;  // ckbJIFSinglely
};

class AniSession {
 public:
  static constexpr int kButtonCount = 20;

  // Saver and timer must outlive it.
  AniSession(const FilesContext& context, IconSaver& saver, Timer& timer);

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
  const AniFrames& frames() const { return frames_; }
  const AniFilm& film() const { return film_; }
  const AniTest& test() const { return test_; }
  AniMode mode() const { return mAniMode_; }
  bool isChanged() const { return mAniChanged_; }
  const std::string& path() const { return mAniPath_; }
  const AniChoices& choices() const { return choices_; }
  // The lists and the tick box; these values take effect with buttons 3, 5 and 7.
  void setChoices(const AniChoices& choices) { choices_ = choices; }
  // lblANI(0): "Frame:  2 / 5"; lblANI(1): "Jiffies:  30"; empty without frames.
  std::string frameLabel() const;
  std::string jiffiesLabel() const;

 private:
  FilesContext context_;
  IconSaver& saver_;
  AniFrames frames_;
  AniFilm film_;
  AniTest test_;
  AniPaneSize paneSize_ = AniPaneSize::Normal;
  AniMode mAniMode_ = AniMode::NoFrames;
  bool mAniChanged_ = false;  // frames differ from the last save or load
  std::string mAniPath_;
  AniChoices choices_;
};

}  // namespace gp

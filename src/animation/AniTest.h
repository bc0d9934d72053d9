// Plays the film in picANITest by the timer. The frames are only read.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

class AniFrames;
class Display;
class Timer;

class AniTest {
 public:
  // All must outlive it.
  AniTest(const AniFrames& frames, Timer& timer, Display& display)
      : frames_(frames), timer_(timer), display_(display) {}
  ~AniTest();
  AniTest(const AniTest&) = delete;
  AniTest& operator=(const AniTest&) = delete;

  bool isRunning() const { return mAniTesting_; }
  // The frame now shown, from 1; 0 before the first tick.
  int frame() const { return mAniTestFrame_; }
  // The picture of that frame; white while no test runs.
  const Surface& picANITest() const { return picANITest_; }

  // The first frame comes after 300 milliseconds.
  void start();
  // Does nothing when no test runs.
  void stop();

 private:
  void tick();

  const AniFrames& frames_;
  Timer& timer_;
  Display& display_;
  bool mAniTesting_ = false;
  int mAniTestFrame_ = 0;
  Surface picANITest_{32, 32};
};

}  // namespace gp

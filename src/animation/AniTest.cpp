#include "animation/AniTest.h"

#include "animation/AniFrames.h"
#include "document/Display.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/Timer.h"

namespace gp {
namespace {

constexpr int kFirstMilliseconds = 300;
// Intended: not the sixtieth of a second that a jiffy is elsewhere.
constexpr int kMillisecondsOfJiffy = 10;
constexpr int kLeastMilliseconds = 1, kDefaultMilliseconds = 100;

int millisecondsOf(const FilmFrame& frame) {
  const int milliseconds = frame.jiffies * kMillisecondsOfJiffy;
  return milliseconds < kLeastMilliseconds ? kDefaultMilliseconds : milliseconds;
}

}  // namespace

// No tick may come to an object that is gone.
AniTest::~AniTest() {
  if (mAniTesting_) timer_.stop();
}

void AniTest::start() {
  mAniTesting_ = true;
  mAniTestFrame_ = 0;
  timer_.start(kFirstMilliseconds, [this] { tick(); });
  display_.changed(DisplayPart::AniPane);
}

void AniTest::stop() {
  if (!mAniTesting_) return;
  timer_.stop();
  mAniTesting_ = false;
  mAniTestFrame_ = 0;
  picANITest_.fill(kWhite);
  display_.changed(DisplayPart::AniPane);
  display_.changed(DisplayPart::AniTest);
}

void AniTest::tick() {
  if (frames_.count() == 0) return stop();
  mAniTestFrame_ = mAniTestFrame_ >= frames_.count() ? 1 : mAniTestFrame_ + 1;
  const FilmFrame& frame = frames_.frame(mAniTestFrame_);
  timer_.start(millisecondsOf(frame), [this] { tick(); });
  BitbltPic(frame.picture.image, picANITest_);
  display_.changed(DisplayPart::AniTest);
}

}  // namespace gp

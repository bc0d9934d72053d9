// The animated cursor session: the input is opened as a film and as the icon of a frame, and buttons are pressed as the
// input selects. Frames stay in their ranges, and a film that was saved is read back the same.
#include "FuzzUser.h"
#include "animation/AniSession.h"
#include "support/FakeTimer.h"

#include <algorithm>
#include <array>

namespace {

using gp::fuzz::Choices;
using gp::fuzz::require;

constexpr std::size_t kMostChoices = 48;
constexpr std::size_t kLargestFile = 1 << 15;  // a long file finds no more and takes long
constexpr int kSave = 5;

// The input under two names, which the user chooses or not; films are saved under a third.
class AniDialogs : public gp::fuzz::UserDialogs {
 public:
  AniDialogs(Choices& choices, const gp::fuzz::ScratchFolder& folder)
      : UserDialogs(choices, folder), choices_(choices), folder_(folder) {}
  bool openFile(const gp::FileDialogRequest&, std::string& path, int& error) override {
    return answer("film.ani", path, error);
  }
  bool saveFile(const gp::FileDialogRequest&, std::string& path, int& error) override {
    return answer("saved.ani", path, error);
  }

 private:
  bool answer(const char* name, std::string& path, int& error) {
    error = 0;
    path = choices_.below(4) == 0 ? std::string() : folder_.path(name);
    return !path.empty();
  }

  Choices& choices_;
  const gp::fuzz::ScratchFolder& folder_;
};

bool sameImage(const gp::FramePicture& a, const gp::FramePicture& b) {
  return std::ranges::equal(a.image.pixels(), b.image.pixels());
}

class Run {
 public:
  Run(Choices& choices, const gp::fuzz::ScratchFolder& folder)
      : choices_(choices), folder_(folder), user_(choices, folder), dialogs_(choices, folder) {
    user_.state.screen.aniContainerVisible = false;
    session_.openFile(folder.path("film.ani"));
    check();
  }

  void step() {
    const int choice = choices_.below(gp::AniSession::kButtonCount + 4);
    if (choice < gp::AniSession::kButtonCount) return press(choice);
    if (choice == gp::AniSession::kButtonCount) return session_.filmRelease(1, 16 * choices_.next());
    if (choice == gp::AniSession::kButtonCount + 1) return session_.goTo(choices_.next());
    if (choice == gp::AniSession::kButtonCount + 2) return timer_.tick();
    session_.setChoices({1 + choices_.below(90), choices_.below(32), choices_.below(32), choices_.below(2) == 1});
  }
  void check() const {
    const gp::AniFrames& frames = session_.frames();
    require(frames.count() <= gp::cMaxAniFrames);
    require(frames.count() == 0 ? frames.current() == 0 : frames.current() >= 1 && frames.current() <= frames.count());
    for (const gp::FilmFrame& frame : frames.all()) {
      require(frame.jiffies >= 1 && frame.jiffies <= 90);
      require(frame.hotspotX >= 0 && frame.hotspotX <= 31 && frame.hotspotY >= 0 && frame.hotspotY <= 31);
    }
    require(session_.film().picFilm().height() == 50 * std::max(1, frames.count()));
  }

 private:
  void press(int button) {
    const bool wasChanged = session_.isChanged();
    session_.cmdANI(button);
    if (button == kSave && wasChanged && !session_.isChanged()) checkSaved();
  }
  // A pixel that was neither white nor masked is painted afterwards, so only the images are the same.
  void checkSaved() const {
    const gp::fuzz::Bytes saved = gp::fuzz::contentOf(folder_.path("saved.ani"));
    const gp::ReadFilm read = gp::ReadANIFileFrames(saved);
    const auto frames = session_.frames().all();
    require(read.isRead() && read.frames.size() == frames.size() && read.losses.text().empty());
    for (std::size_t i = 0; i < frames.size(); ++i) {
      require(sameImage(read.frames[i].picture, frames[i].picture));
      require(read.frames[i].jiffies == frames[i].jiffies);
      require(read.frames[i].hotspotX == frames[i].hotspotX && read.frames[i].hotspotY == frames[i].hotspotY);
    }
  }

  Choices& choices_;
  const gp::fuzz::ScratchFolder& folder_;
  gp::fuzz::User user_;
  AniDialogs dialogs_;
  gp::clsGPDialog dialog_{dialogs_};
  gp::test::FakeTimer timer_;
  const gp::FilesContext context_{user_.rooms, user_.state.process, user_.document, user_.drawing,
                                  dialog_,     user_.exchange,      user_.forms};
  gp::AniSession session_{context_, timer_};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const gp::fuzz::ScratchFolder folder;
  const std::span<const std::uint8_t> input(data, std::min(size, kLargestFile));
  folder.holding("film.ani", input);
  Choices choices(input, kMostChoices);
  Run run(choices, folder);
  while (choices.more()) {
    run.step();
    run.check();
  }
  return 0;
}

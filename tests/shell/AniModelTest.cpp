// Random buttons, clicks, keys and choices, compared with a simple model of the session.
#include "shell/AniFixture.h"

#include <gmock/gmock.h>
#include <random>

namespace gp::test {
namespace {

// A frame is its colour and its jiffies.
struct ModelFrame {
  Color color;
  int jiffies;
  bool operator==(const ModelFrame&) const = default;
};

struct Model {
  std::vector<ModelFrame> frames;
  int current = 0;
  bool changed = false;
  bool isVisible = true;

  int count() const { return static_cast<int>(frames.size()); }
  void insert(int at) {
    if (count() == 0 || count() == 70) return;
    frames.insert(frames.begin() + at, ModelFrame{kWhite, frames[current - 1].jiffies});
    current = at + 1;
    changed = true;
  }
  void remove() {
    if (count() == 0) return;
    frames.erase(frames.begin() + current - 1);
    current = std::min(current, count());
    changed = count() > 0;
  }
  void swapWith(int other) {
    if (other < 1 || other > count() || current < 1) return;
    std::swap(frames[current - 1], frames[other - 1]);
    current = other;
    changed = true;
  }
  void select(int n) {
    if (n >= 1 && n <= count()) current = n;
  }
  void setJiffies(int jiffies, bool singly) {
    if (count() == 0) return;
    for (int i = 0; i < count(); ++i)
      if (!singly || i == current - 1) frames[i].jiffies = jiffies;
    changed = true;
  }
};

// Agrees to everything.
class AniModelTest : public AniProgram<ProgramFixture<AgreeingBoxes>> {
 protected:
  int random(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }

  void step() {
    const int kind = random(0, 24);
    if (kind == 20) return choose();
    if (kind == 21) return click(random(-10, 3600));
    if (kind == 22) return goTo(random(0, 72));
    if (kind == 23) return session.scrollTo(random(-10, 4000));
    if (kind == 24) return timer.tick();
    pressInBoth(kind);
  }
  void check() {
    ASSERT_EQ(session.frames().count(), model_.count());
    EXPECT_EQ(session.frames().current(), model_.current);
    EXPECT_EQ(session.isChanged(), model_.changed);
    EXPECT_EQ(isVisible(), model_.isVisible);
    for (int n = 1; n <= model_.count(); ++n) {
      const FilmFrame& frame = session.frames().frame(n);
      EXPECT_EQ((ModelFrame{frame.picture.image.GetPixel(0, 0), frame.jiffies}), model_.frames[n - 1]) << n;
    }
    EXPECT_EQ(session.film().picFilm().height(), 50 * std::max(1, model_.count()));
    EXPECT_GE(session.film().scroll(), 0);
    EXPECT_LE(session.film().scroll(), session.film().scrollMaximum());
    EXPECT_EQ(session.mode() == AniMode::NoFrames, model_.count() == 0);
  }

 private:
  void choose() {
    choices_ = {.jiffies = random(1, 90), .hotspotX = random(0, 31), .singly = random(0, 1) == 1};
    session.setChoices(choices_);
  }
  void click(int y) {
    session.filmPress();
    session.filmRelease(30, y);
    if (y >= 0 && y / 50 + 1 != 50) model_.select(y / 50 + 1);
  }
  void goTo(int n) {
    session.goTo(n);
    model_.select(n);
  }
  void pressInBoth(int button) {
    if (!model_.isVisible) return enterInBoth();
    if (button == kSaveAni || button == kLoadIcon || button == kFromArea || button == kToArea) return;
    if (button == kOpenAni) dialogs.paths = {random(0, 1) == 0 ? file_ : std::string()};
    const bool opens = button == kOpenAni && !dialogs.paths[0].empty();
    press(button);
    if (opens) model_ = opened_, choices_.hotspotX = 0;
    apply(button);
  }
  void enterInBoth() {
    enterSession();
    model_.isVisible = true;
  }
  void apply(int button) {
    if (button == kClose || button == kCloseSession) model_.isVisible = false;
    if (button == kCreateAni) model_ = {{{kWhite, choices_.jiffies}}, 1};
    if (button == kSetInterval) model_.setJiffies(choices_.jiffies, choices_.singly);
    if (button == kAddBelow) model_.insert(model_.current);
    if (button == kAddAbove) model_.insert(model_.current - 1);
    if (button == kRemoveFrame) model_.remove();
    if (button == kShiftFrameUp) model_.swapWith(model_.current - 1);
    if (button == kShiftFrameDown) model_.swapWith(model_.current + 1);
    if (button == kGoUp) model_.select(model_.current - 1);
    if (button == kGoDown) model_.select(model_.current + 1);
  }

  std::mt19937 random_{20261122};
  Model model_;
  const Model opened_ = modelOfFile();
  const std::string file_ = writeFilm("film.ani", numberedFrames(60));
  AniChoices choices_;

  static Model modelOfFile() {
    Model model;
    for (const FilmFrame& frame : numberedFrames(60))
      model.frames.push_back({frame.picture.image.GetPixel(0, 0), frame.jiffies});
    model.current = 1;
    return model;
  }
};

TEST_F(AniModelTest, RandomStepsGiveWhatTheModelHas) {
  enterSession();
  session.setVisibleHeight(175);
  for (int i = 0; i < 3000 && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    step();
    check();
  }
}

}  // namespace
}  // namespace gp::test

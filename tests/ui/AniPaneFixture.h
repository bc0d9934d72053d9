// The main form with the pane of the animated cursor session.
#pragma once

#include "animation/AniSession.h"
#include "ui/FormFixture.h"

namespace gp::test {

class AniPaneFixture : public FormFixture {
 protected:
  AniSession& session() { return shell.animation().session; }
  QWidget* pane() { return find("picANIContainer(0)"); }
  QWidget* film() { return find("picFilm"); }
  QWidget* button(int index) { return indexed("cmdANI", index); }
  void press(int index) { click(button(index)); }

  void enter() {
    find<QAction>("mnuANIFileCreateOrEdit")->trigger();
    settle();
  }
  void open() {
    start();
    enter();
  }
  // A film of that many blank frames; the last one is the current one.
  void makeFilm(int count) {
    press(3);
    for (int i = 1; i < count; ++i) press(12);
    settle();
  }
};

}  // namespace gp::test

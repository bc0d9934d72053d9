#include "document/ui/QtDisplay.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace gp {
namespace {

TEST(QtDisplay, DropsChangesThatNoViewListensTo) {
  QtDisplay display;
  display.changed(DisplayPart::EditingArea);
  int changes = 0;
  QObject view;
  display.listen(DisplayPart::EditingArea, &view, [&] { ++changes; });
  EXPECT_EQ(changes, 0);
}

TEST(QtDisplay, CallsEveryListenerOfAPartAndNoOther) {
  QtDisplay display;
  QObject first, second;
  int panels = 0, forms = 0;
  display.listen(DisplayPart::SidePanel, &first, [&] { panels += 1; });
  display.listen(DisplayPart::SidePanel, &second, [&] { panels += 10; });
  display.listen(DisplayPart::ModalForm, &first, [&] { ++forms; });
  display.changed(DisplayPart::SidePanel);
  EXPECT_EQ(panels, 11);
  EXPECT_EQ(forms, 0);
  display.changed(DisplayPart::ModalForm);
  EXPECT_EQ(panels, 11);
  EXPECT_EQ(forms, 1);
}

TEST(QtDisplay, AListenerEndsWithItsView) {
  QtDisplay display;
  int changes = 0;
  auto view = std::make_unique<QObject>();
  display.listen(DisplayPart::SidePanel, view.get(), [&] { ++changes; });
  display.changed(DisplayPart::SidePanel);
  view.reset();
  display.changed(DisplayPart::SidePanel);
  EXPECT_EQ(changes, 1);
}

TEST(QtDisplay, AnAnnouncementReachesTheFormAndIsDroppedWithoutOne) {
  QtDisplay display;
  std::vector<std::string> heard;
  display.announce("Saved");
  display.requests().announce = [&](const std::string& text) { heard.push_back(text); };
  display.announce("Copied");
  display.forgetAll();
  display.announce("Undone");
  EXPECT_EQ(heard, std::vector<std::string>{"Copied"});
}

TEST(QtDisplay, ForgettingAllEndsListenersAndRequests) {
  QtDisplay display;
  QObject view;
  int calls = 0;
  display.listen(DisplayPart::Tools, &view, [&] { ++calls; });
  display.requests().showPopUpMenu = [&] { ++calls; };
  display.changed(DisplayPart::Tools);
  display.showPopUpMenu();
  EXPECT_EQ(calls, 2);
  display.forgetAll();
  display.changed(DisplayPart::Tools);
  display.showPopUpMenu();
  EXPECT_EQ(calls, 2);
}

}  // namespace
}  // namespace gp

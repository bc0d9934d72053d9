#include "document/Containers.h"
#include "document/CurrentIconGuard.h"
#include "document/DocumentFixture.h"

namespace gp {
namespace {

using CurrentIconGuardTest = test::DocumentFixture;

TEST_F(CurrentIconGuardTest, AnEmptyContainerMayGoUnasked) {
  state.current().modified = state.current().neverSaved = true;
  EXPECT_TRUE(mayCurrentIconGo(context));
  EXPECT_TRUE(editor.calls.empty());
}

TEST_F(CurrentIconGuardTest, AnUnchangedIconMayGoUnasked) {
  arrival.arrive(plainIcon(16, 0x0000FF), NewRecord());
  editor.calls.clear();
  editor.askSaveProceeds = false;
  EXPECT_TRUE(mayCurrentIconGo(context));
  EXPECT_TRUE(editor.calls.empty());
}

TEST_F(CurrentIconGuardTest, AChangedIconIsAskedAboutOnceAndGoesByTheAnswer) {
  arrival.arrive(plainIcon(16, 0x0000FF), NewRecord());
  state.current().modified = true;
  for (const bool proceeds : {true, false}) {
    editor.calls.clear();
    editor.askSaveProceeds = proceeds;
    EXPECT_EQ(mayCurrentIconGo(context), proceeds);
    EXPECT_EQ(editor.calls, std::vector<std::string>{"AskSaveCurrent "});
  }
}

TEST_F(CurrentIconGuardTest, AnIconThatWasNeverSavedIsAskedAboutWithTheMessageOfTheCommand) {
  arrival.arrive(plainIcon(16, 0x0000FF), NewRecord());
  state.current().neverSaved = true;
  editor.calls.clear();
  EXPECT_TRUE(mayCurrentIconGo(context, "(a hint)"));
  EXPECT_EQ(editor.calls, std::vector<std::string>{"AskSaveCurrent (a hint)"});
}

TEST_F(CurrentIconGuardTest, OnlyTheCurrentContainerCounts) {
  arrival.arrive(plainIcon(16, 0x0000FF), NewRecord());
  state.current().modified = true;
  state.mCurContainer = 3;
  editor.askSaveProceeds = false;
  EXPECT_TRUE(mayCurrentIconGo(context));
  EXPECT_EQ(editor.count("AskSaveCurrent "), 0);
}

}  // namespace
}  // namespace gp

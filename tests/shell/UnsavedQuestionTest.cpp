#include "document/Containers.h"
#include "document/EditState.h"
#include "shell/UnsavedQuestion.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

void use(EditState& state, int container, const char* path, bool modified = false) {
  IconContainerRec& record = state.mIconRecs.at(container);
  record.used = true;
  record.present = true;
  record.path = path;
  record.modified = modified;
}

TEST(UnsavedQuestion, WithNoContainerUsedNothingIsAsked) {
  EditState state;
  EXPECT_EQ(unsavedQuestion(state), "");
  state.current().neverSaved = true;
  state.mIconRecs[3].modified = true;
  EXPECT_EQ(unsavedQuestion(state), "");
}

TEST(UnsavedQuestion, SavedContainersAreNotListed) {
  EditState state;
  use(state, 0, "/a.ico");
  EXPECT_EQ(unsavedQuestion(state), "");
}

TEST(UnsavedQuestion, OneModifiedContainerIsListed) {
  EditState state;
  use(state, 0, "/a.ico");
  use(state, 2, "/c.ico", true);
  EXPECT_EQ(unsavedQuestion(state),
            "The following is not saved yet: \n\nIcon Seq 3    /c.ico\n\nProceed to exit still?\n");
}

TEST(UnsavedQuestion, MoreThanOneAreReportedInThePlural) {
  EditState state;
  use(state, 0, "/a.ico", true);
  use(state, 5, "/f.ico", true);
  EXPECT_EQ(unsavedQuestion(state),
            "The following are not saved yet: \n\nIcon Seq 1    /a.ico\nIcon Seq 6    /f.ico\n\nProceed to exit "
            "still?\n");
}

TEST(UnsavedQuestion, ANeverSavedCurrentContainerMakesEveryUsedOneCount) {
  EditState state;
  use(state, 0, "/a.ico");
  use(state, 1, "Captured");
  state.mIconRecs[1].neverSaved = true;
  state.mCurContainer = 1;
  EXPECT_EQ(unsavedQuestion(state),
            "The following are not saved yet: \n\nIcon Seq 1    /a.ico\nIcon Seq 2    Captured\n\nProceed to exit "
            "still?\n");
}

TEST(UnsavedQuestion, AClearedCurrentContainerMakesNoOtherCount) {
  EditState state;
  use(state, 0, "/a.ico");
  use(state, 1, "Captured", true);
  state.mIconRecs[1].neverSaved = true;
  state.mCurContainer = 1;
  ClearContainer(state);
  ASSERT_TRUE(state.current().neverSaved && state.current().modified);
  EXPECT_EQ(unsavedQuestion(state), "");
  state.mIconRecs[0].modified = true;
  EXPECT_EQ(unsavedQuestion(state),
            "The following is not saved yet: \n\nIcon Seq 1    /a.ico\n\nProceed to exit still?\n");
}

TEST(UnsavedQuestion, ANeverSavedContainerThatIsNotCurrentDoesNotCount) {
  EditState state;
  use(state, 0, "/a.ico");
  use(state, 1, "Captured");
  state.mIconRecs[1].neverSaved = true;
  EXPECT_EQ(unsavedQuestion(state), "");
}

}  // namespace
}  // namespace gp

// Replacing an entry of a file of three icons by the Current Icon.
#pragma once

#include "files/MultiIconFixture.h"

namespace gp::test {

inline constexpr Rgb kMark{9, 8, 7, 2};

inline std::string question(int ref) {
  const std::string number = std::to_string(ref);
  return "The current icon is originated from Index Ref. " + number +
         " in the multi-icon file.\nThe file saved will have the current icon replacing its original one in\n"
         "the file, i.e. Ref " +
         number +
         ", while others remain unchanged.   (You can run\n\"Enquiry - Show Icons In Multi-Icon File\" to inspect the "
         "original icon)\n\nProceed?\n";
}

inline std::string sameIcon(const std::string& what) {
  return what +
         "\n\nIcon of same size and color palette already in original multi-file.\n"
         "Multi-icon file cannot have two icons of identical size and color depth.\n\n"
         "You may save to a single-icon file or change color-depth first (to see\n"
         "original color-depth, click Enquiry menu).\n";
}

inline constexpr const char* kChanged =
    "The original multi-icon file has been changed meanwhile.\nCannot proceed to save current icon back.";

class MultiIconReplaceTest : public MultiIconTest {
 protected:
  // 16 colours of 32x32, true colour of 16x16, 256 colours of 48x48.
  const IcoFile three = fileOf({entryOf(anyPicture(32, 4)), entryOf(anyPicture(16, 24)), entryOf(anyPicture(48, 8))});

  ~MultiIconReplaceTest() override { EXPECT_TRUE(scratchIsGone()); }
  // The file of `three` with another second entry.
  Bytes threeWith(const Entry& second) const {
    IcoFile file = three;
    file.entries[1] = second;
    return build(file);
  }
  std::string givenSecond() {
    const std::string path = givenEntry(three, 1);
    state.picImage.SetPixelV(1, 0, rgb(kMark.r, kMark.g, kMark.b));
    return path;
  }
  void mark() { state.picImage.SetPixelV(1, 0, rgb(kMark.r, kMark.g, kMark.b)); }
  void replace() { files.multiIcon.doMnuFileSaveMultiIconReplace(); }
  void replaceOnto(const std::string& path, int ref) {
    boxes.expectAsked(question(ref), BoxAnswer::Yes);
    dialogs.paths = {path};
    replace();
  }
  void expectFailure(const std::string& text) { boxes.expectTold(text, BoxIcon::Exclamation); }
};

}  // namespace gp::test

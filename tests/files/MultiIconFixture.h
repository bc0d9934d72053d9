// Commands on files of several icons, with a user who does in the browser what a test lists.
#pragma once

#include "files/FilesFixture.h"
#include "files/format/Rereading.h"

#include <deque>
#include <filesystem>

namespace gp::test {

inline IcoFile fileOf(std::vector<Entry> entries) { return IcoFile{std::move(entries), 0, 1, {}}; }

// The refusal of a file that a container holds an icon of; its Ref counts from 1.
inline std::string openedInPanel(const std::string& file, int ref) {
  return file + " is currently opened in Icons Panel ref " + std::to_string(ref) +
         ".\n\nPlease unload that icon first  (by using \"Clear Container\"\nsubmenu of \"Edit\" main menu).\n";
}

class MultiIconTest : public FilesTest {
 protected:
  const std::string scratch = folder.path("gptmp.ico");
  // What the user does each time the browser is shown; at the end the browser is closed.
  std::deque<std::function<void()>> user;

  MultiIconTest() {
    forms.onMultiIcon = [this] {
      if (user.empty()) return answers("", false);
      const auto step = user.front();
      user.pop_front();
      exchange.listedFile = FileBytes(bytesOf(exchange.gMultiIconFile));
      step();
    };
  }

  void answers(const std::string& text, bool comesBack = false) {
    exchange.gMultiIconResult = text;
    exchange.gLoadAndReturn = comesBack;
  }
  // An entry as the browser leaves it for loading.
  void leaves(const Bytes& file, int index) { exchange.chosenIcon = decode(file, index); }
  void userLoads(const Bytes& file, int index, const std::string& answer, bool comesBack = false) {
    user.push_back([=, this] { leaves(file, index), answers(answer, comesBack); });
  }
  void userAnswers(const std::string& answer) {
    user.push_back([=, this] { answers(answer); });
  }

  // The entry of a file becomes the Current Icon, as after a load through the browser. `path` holds the file.
  std::string givenEntry(const IcoFile& file, int index, const std::string& name = "multi.ico") {
    const std::string path = folder.write(name, build(file));
    holdEntry(path, file, index);
    return path;
  }
  void holdEntry(const std::string& path, const IcoFile& file, int index) {
    const Entry& entry = file.entries[static_cast<std::size_t>(index)];
    const std::string single = folder.write("alone.ico", build(entry));
    EXPECT_TRUE(openQuietly(single));
    std::filesystem::remove(single);
    record().path = path;
    record().fromMultiIconFile = true;
    record().multiIconIndex = static_cast<std::int16_t>(index);
    const IconFile opened = parseIconFile(FileBytes(bytesOf(path)));
    record().origin = originOf(opened, opened.entry(index));
    record().modified = true;
    editor.calls.clear();
  }
  // A region floats over the Current Icon, and a side panel is up.
  void leaveOpen() {
    rooms.clipboard.hold(Surface(4, 4, kWhite));
    rooms.drawing.clipboardCommands.doPaste(true);
    ASSERT_TRUE(state.mRegionExists && state.mPendingPaint);
    ASSERT_FALSE(panelIsUpToDate());
    state.screen.mActivePanel = kIconsListPanel;
  }
  void expectNothingOpen() {
    EXPECT_FALSE(state.mRegionExists || state.mPendingPaint);
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
    EXPECT_EQ(state.picImage.GetPixel(3, 3), kWhite) << "the region is part of the icon";
    EXPECT_TRUE(panelIsUpToDate());
  }
  // After a command nothing remains but what the user asked for.
  bool scratchIsGone() const { return !std::filesystem::exists(scratch); }
};

// A true colour picture with a different pixel.
inline Picture markedPicture(int size, int bits, const Rgb& mark) {
  Picture picture = anyPicture(size, bits);
  picture.color = [color = picture.color, mark](int x, int y) { return x == 1 && y == 0 ? mark : color(x, y); };
  return picture;
}

// The same with the alpha values that a file keeps: 0 where the picture is transparent.
inline Picture withSavedAlpha(Picture picture) {
  picture.color = [color = picture.color, transparent = picture.transparent](int x, int y) {
    Rgb c = color(x, y);
    if (transparent(x, y)) c.a = 0;
    return c;
  };
  return picture;
}

// White wherever it is opaque, and written like that.
inline Picture whitePicture(int size) {
  Picture picture = blackAndWhitePicture(size);
  picture.index = [](int, int) { return 1; };
  return picture;
}

}  // namespace gp::test

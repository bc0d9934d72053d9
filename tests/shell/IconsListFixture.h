// The Icons List in the whole program.
#pragma once

#include "animation/AniBytes.h"
#include "animation/FilmBytes.h"
#include "document/PanelNumbers.h"
#include "files/IcoBuilder.h"
#include "support/PeBytes.h"
#include "support/ShellFixture.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace gp::test {

inline constexpr const char* kSaveIconQuestion = "Save current icon to file?";
inline constexpr int kAniCommand = 0;
inline constexpr int kLargeCommand = 1;
inline constexpr int kSmallCommand = 2;
inline constexpr int kIclCommand = 3;
inline constexpr int kFileTypeCommand = 4;
inline constexpr int kDesktopCommand = 5;

inline Color colorOf(Rgb color) { return color.r | color.g << 8 | color.b << 16; }

template <class Fixture>
class ListProgram : public Fixture {
 protected:
  IconsList& list = this->shell.extraction().list;

  ListProgram() {
    this->start();
    list.setEventInterval(std::chrono::milliseconds(0));
    list.setGrid(ListGrid(300, 400, 10));
  }

  // A library with icons of one colour: icon n (from 0) is (10 + n, 20, 30) at 32 and (10 + n, 40, 50) at 16 pixels.
  Bytes library(int icons) const {
    std::vector<Resource> resources;
    for (int n = 0; n < icons; ++n) {
      const Picture large = plainPicture(32, {10 + n, 20, 30}), small = plainPicture(16, {10 + n, 40, 50});
      resources.push_back(iconOf(2 * n + 1, imageBytes(large)));
      resources.push_back(iconOf(2 * n + 2, imageBytes(small)));
      resources.push_back(groupOf(n + 1, {{32, 32, 0, 1, 24, 0, 2 * n + 1}, {16, 16, 0, 1, 24, 0, 2 * n + 2}}));
    }
    return peWith(resources);
  }
  std::string writeLibrary(int icons, const std::string& name = "tools.dll") {
    return this->folder.write(name, asText(library(icons)));
  }
  // A folder of files a00.ico, a01.ico ...: file n has the colour with the index n % 16.
  std::string writeFolder(int files, const std::string& name = "icons") {
    const std::string path = this->folder.makeFolder(name);
    for (int n = 0; n < files; ++n)
      this->folder.write(name + "/a" + std::to_string(n / 10) + std::to_string(n % 10) + ".ico",
                         plainIconFile(32, n % 16));
    return path;
  }
  // An animated cursor with frames of frameColor(0), frameColor(1) ...
  std::string writeAni(int frames, const std::string& name = "film.ani") {
    return this->folder.write(name, aniOf(headerOf(static_cast<std::uint32_t>(frames)) + frameList(frames)));
  }
  void openFolder(const std::string& path) {
    this->dialogs.paths.push_back(path);
    this->click("mnuFileSub", 8);
  }
  void extract(int command, const std::string& path) {
    this->dialogs.paths.push_back(path);
    this->click("mnuExtractSub", command);
  }
  void clickCell(int cell, ListButton button = ListButton::Left) {
    const CellPlace place = list.grid().cellPlace(cell);
    list.click(place.left + 5, place.top + 5, button);
  }
  void expectSaveQuestion(BoxAnswer answer) {
    this->boxes.expect(kSaveIconQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, answer);
  }
  bool isListUp() const { return this->state.screen.mActivePanel == kIconsListPanel; }
  int drawnCells() const {
    return static_cast<int>(std::ranges::count_if(list.cells(), [](const ListCell& cell) { return cell.isDrawn; }));
  }
  // The first pixel of a container's image, and of the Editing Area's.
  Color stored(int container) const {
    return this->state.picPanelImage[static_cast<std::size_t>(container)].GetPixel(0, 0);
  }
  Color shown() const { return this->state.picImage.GetPixel(0, 0); }
  std::string path() const { return this->state.current().path.trimmed(); }
};

using IconsListProgram = ListProgram<ShellFixture>;

}  // namespace gp::test

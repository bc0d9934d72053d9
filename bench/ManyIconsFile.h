// A file on disk with as many icons as the browser can reorder, and the context in which the browser works without the
// program.
#pragma once

#include "BenchRooms.h"
#include "files/Files.h"
#include "files/IcoBuilder.h"

#include <string>

namespace gp::bench {

inline constexpr int kManyIcons = 99;

// The kinds of icons in the file.
enum class Icons {
  Deep,   // 48x48, 32 bits
  Mixed,  // every icon size and three other sizes, each at every depth
};

inline test::Bytes manyIcons(Icons icons) {
  constexpr int kSides[] = {16, 24, 32, 48, 20, 64, 128};
  constexpr int kDepths[] = {1, 4, 8, 24, 32};
  test::IcoFile file;
  for (std::size_t i = 0; i < kManyIcons; ++i) {
    const bool isMixed = icons == Icons::Mixed;
    const int side = isMixed ? kSides[i % std::size(kSides)] : kIconSize;
    file.entries.push_back(test::entryOf(test::anyPicture(side, isMixed ? kDepths[i % std::size(kDepths)] : 32)));
  }
  return build(file);
}

class ManyIconsFile {
 public:
  explicit ManyIconsFile(Icons icons) : path_(folder_.write("many.ico", manyIcons(icons))) {}

  // The context of a browser of the file. `form` receives the changes; it must outlive the browser.
  const FilesContext& context(Display* form = nullptr) {
    rooms_.display.form = form;
    MultiIconExchange& exchange = files_.context().multiIcon;
    exchange.gMultiIconFile = path_;
    exchange.gMultiIconResult = "0";
    return files_.context();
  }

 private:
  test::IconFolder folder_;
  std::string path_;
  BenchRooms rooms_;
  Files files_{rooms_.context, rooms_.document, rooms_.drawing, rooms_.dialog, folder_.file("gptmp.ico")};
};

}  // namespace gp::bench

// A browser over files that a test builds, with scripted ports.
#pragma once

#include "files/FilesFixture.h"
#include "files/browser/MultiIconBrowser.h"

#include <filesystem>
#include <memory>

namespace gp::test {

inline IcoFile iconFile(std::vector<Entry> entries) { return {std::move(entries), 0, 1, {}}; }

// An image that begins like a PNG picture, which the editor cannot show.
inline Entry pngEntry(int size) {
  Entry entry = anyEntry(size, 32);
  const Bytes signature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  std::copy(signature.begin(), signature.end(), entry.image.begin());
  return entry;
}

inline void makeReadOnly(const std::string& path) {
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
}

// How a picture and its mask look on the program's ground.
inline Surface onGround(const Surface& image, const Surface& mask) {
  Surface icon(image.width(), image.height());
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) icon.SetPixelV(x, y, (kGround & mask.GetPixel(x, y)) ^ image.GetPixel(x, y));
  return icon;
}

class BrowserTest : public FilesTest {
 protected:
  using Items = std::vector<std::string>;

  std::unique_ptr<MultiIconBrowser> browser;
  std::string path;
  int changes = 0, unloads = 0;

  // Shows a file as if opened from container 3, on the edit face.
  MultiIconBrowser& browse(const Bytes& bytes, bool addFace = false) {
    path = folder.write("tools.ico", bytes);
    exchange.gMultiIconFile = path;
    exchange.gMultiIconResult = addFace ? "" : "2";
    exchange.gAddToFile = addFace;
    return show();
  }
  MultiIconBrowser& browse(std::vector<Entry> entries, bool addFace = false) {
    return browse(build(iconFile(std::move(entries))), addFace);
  }
  MultiIconBrowser& show() {
    browser = std::make_unique<MultiIconBrowser>(files.context());
    display.onChanged = [this](DisplayPart part) { changes += part == DisplayPart::ModalForm; };
    browser->onUnload = [this] { ++unloads; };
    browser->activate();
    return *browser;
  }
  bool listsNothingAndUnloaded() const { return unloads == 1 && browser->lisIcons().empty(); }
  // True if the preview shows entry `index` of a file.
  bool previews(const Bytes& file, int index) const {
    const Decoded entry = decode(file, index);
    return samePixels(browser->picIconInFile(), onGround(entry.image, entry.mask));
  }
};

}  // namespace gp::test

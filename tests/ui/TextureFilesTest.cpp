// The panel of textures with picture files and the program's own reader.
#include "document/Containers.h"
#include "effects/EffectCases.h"
#include "effects/Texture.h"
#include "effects/TexturePanel.h"
#include "platform/qt/QtPictureLoader.h"
#include "support/Rooms.h"
#include "support/TempFolder.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr const char* kNotLoaded = "Failed to load the image file";

QImage picture(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x * 5 % 256, y * 5 % 256, (x + y) % 256));
  return image;
}

std::string bytesOf(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, format)) << format;
  return bytes.toStdString();
}

class TextureFiles : public testing::Test, protected Rooms {
 protected:
  TempFolder folder;
  QtPictureLoader loader;
  EffectFrame frame{context, document, drawing.history};
  TexturePanel panel{frame, dialog, loader};

  TextureFiles() { state.screen.mActivePanel = TexturePanel::kNumber; }
  void open(const std::string& name, const std::string& bytes) {
    dialogs.paths.push_back(folder.write(name, bytes));
    panel.cmdTextureOpen();
  }
  bool hasCustom() const { return panel.choiceOf(TextureList::Pattern) == kStoredPatterns; }
};

TEST_F(TextureFiles, PicturesOfEachFormatArePatterns) {
  for (const char* format : {"bmp", "png", "jpg"}) {
    panel.pick(TextureList::Pattern, 0);
    open(std::string("a.") + format, bytesOf(picture(48, 48), format));
    EXPECT_TRUE(hasCustom()) << format;
    if (format == std::string("jpg")) continue;
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x) ASSERT_EQ(panel.picTexturize().GetPixel(x, y), rgb(x * 5, y * 5, x + y)) << format;
  }
}

TEST_F(TextureFiles, OtherSizesAreRefused) {
  for (const auto& [width, height] : {std::pair{47, 48}, {48, 47}, {49, 48}, {48, 49}, {1, 1}, {4000, 3000}})
    for (const char* format : {"bmp", "png", "jpg"}) {
      boxes.expectTold(
          "Incoming image is " + std::to_string(width) + " x " + std::to_string(height) + ", not of the size of 48x48.",
          BoxIcon::None);
      open("a.bmp", bytesOf(picture(width, height), format));
      EXPECT_FALSE(hasCustom());
    }
}

TEST_F(TextureFiles, BrokenFilesAreRefused) {
  for (const char* format : {"bmp", "png", "jpg"}) {
    const std::string whole = bytesOf(picture(48, 48), format);
    for (const std::size_t size : {std::size_t{0}, std::size_t{2}, whole.size() / 2, whole.size() - 2}) {
      boxes.expectTold(kNotLoaded, BoxIcon::None);
      open("a.bmp", whole.substr(0, size));
      EXPECT_FALSE(hasCustom()) << format << " " << size;
    }
  }
  boxes.expectTold(kNotLoaded, BoxIcon::None);
  open("a.wmf", "\xD7\xCD\xC6\x9A no picture");
  boxes.expectTold(kNotLoaded, BoxIcon::None);
  dialogs.paths.push_back(folder.path() + "/gone.bmp");
  panel.cmdTextureOpen();
  boxes.expectTold(kNotLoaded, BoxIcon::None);
  dialogs.paths.push_back(folder.path());
  panel.cmdTextureOpen();
  EXPECT_FALSE(hasCustom());
}

}  // namespace
}  // namespace gp::test

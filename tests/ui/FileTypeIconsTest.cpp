// The desktop's icons of files: found by name and content, of the size that was asked for, and pictures by their path.
#include "platform/qt/QtFileTypeIcons.h"
#include "support/TempFolder.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace gp {
namespace {

constexpr QRgb kRed = qRgba(200, 10, 20, 255), kGreen = qRgba(0, 255, 0, 128), kBlue = qRgba(0, 20, 220, 255);

std::string pngOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes.toStdString();
}

QImage filled(int width, int height, QRgb color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  return image;
}

class FileTypeIconsTest : public testing::Test {
 protected:
  // A theme with pictures of one colour each, in place of the desktop's.
  FileTypeIconsTest() {
    write("index.theme",
          "[Icon Theme]\nName=Test\nComment=-\nDirectories=16,32\n"
          "[16]\nSize=16\nType=Fixed\n[32]\nSize=32\nType=Fixed\n");
    for (const int size : {16, 32}) {
      QDir().mkpath(theme(QString::number(size)));
      give("text-plain", size, kRed);
      give("image-png", size, kGreen);
      give("folder", size, kBlue);
    }
    QIcon::setThemeSearchPaths({path("")});
    QIcon::setThemeName("test");
  }
  ~FileTypeIconsTest() override {
    QIcon::setThemeName(themeBefore_);
    QIcon::setThemeSearchPaths(pathsBefore_);
  }

  QString path(const QString& name) const { return QString::fromStdString(folder.path()) + "/" + name; }
  QString theme(const QString& name) const { return path("test/") + name; }
  void write(const QString& name, const QByteArray& content) {
    QDir().mkpath(theme(""));
    QFile file(theme(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
  }
  void give(const QString& icon, int size, QRgb color) {
    filled(size, size, color).save(theme(QString::number(size)) + "/" + icon + ".png");
  }
  // The colour of the pixel in the middle; 0 without an icon of that size.
  static QRgb middleOf(const std::optional<FileTypeIcon>& icon, int size) {
    if (!icon || icon->colors.width() != size || icon->colors.height() != size) return 0;
    if (icon->alpha.size() != static_cast<std::size_t>(size) * static_cast<std::size_t>(size)) return 0;
    return at(*icon, size / 2, size / 2);
  }
  static QRgb at(const FileTypeIcon& icon, int x, int y) {
    const Color color = icon.colors.GetPixel(x, y);
    return qRgba(redOf(color), greenOf(color), blueOf(color),
                 icon.alpha[static_cast<std::size_t>(y * icon.colors.width() + x)]);
  }

  test::TempFolder folder;
  QtFileTypeIcons icons;

 private:
  const QString themeBefore_ = QIcon::themeName();
  const QStringList pathsBefore_ = QIcon::themeSearchPaths();
};

TEST_F(FileTypeIconsTest, TheTypeFollowsFromTheName) {
  const std::string file = folder.write("notes.txt", "words");
  EXPECT_EQ(middleOf(icons.iconOfFile(file, 32), 32), kRed);
  EXPECT_EQ(middleOf(icons.iconOfFile(file, 16), 16), kRed);
}

TEST_F(FileTypeIconsTest, TheContentDecidesWhereTheNameDoesNot) {
  const std::string file = folder.write("picture", pngOf(filled(4, 4, kRed)));
  EXPECT_EQ(middleOf(icons.iconOfFile(file, 32), 32), kGreen) << "alpha is kept, and colours are not multiplied by it";
}

TEST_F(FileTypeIconsTest, AFolderHasItsOwnIcon) {
  QDir().mkpath(path("sub"));
  EXPECT_EQ(middleOf(icons.iconOfFile(folder.path() + "/sub", 16), 16), kBlue);
}

TEST_F(FileTypeIconsTest, ATypeWithoutAnIconHasThatOfADocument) {
  const std::string file = folder.write("sound.flac", "fLaC");
  const auto icon = icons.iconOfFile(file, 32);
  ASSERT_TRUE(icon.has_value());
  EXPECT_EQ(icon->colors.width(), 32);
  EXPECT_EQ(icon->alpha.size(), 1024u);
  EXPECT_NE(std::ranges::count(icon->alpha, 0), 1024);
}

// A pipe without a writer would hold its reader up for ever.
TEST_F(FileTypeIconsTest, APipeIsNotOpened) {
  const std::string pipe = folder.path() + "/pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_TRUE(icons.iconOfFile(pipe, 32).has_value());
  EXPECT_FALSE(icons.namedIcon(pipe, 32).has_value());
}

TEST_F(FileTypeIconsTest, AMissingFileHasTheIconOfItsName) {
  EXPECT_EQ(middleOf(icons.iconOfFile(folder.path() + "/gone.txt", 16), 16), kRed);
}

TEST_F(FileTypeIconsTest, ANameThatIsNoTextHasItsType) {
  EXPECT_EQ(middleOf(icons.iconOfFile(folder.write("a\xFF\n.txt", "words"), 16), 16), kRed);
}

TEST_F(FileTypeIconsTest, ANamedIconComesFromTheTheme) {
  EXPECT_EQ(middleOf(icons.namedIcon("folder", 32), 32), kBlue);
  EXPECT_EQ(middleOf(icons.namedIcon("folder.png", 16), 16), kBlue);
  EXPECT_FALSE(icons.namedIcon("no-such-icon", 32).has_value());
  EXPECT_FALSE(icons.namedIcon("", 32).has_value());
  EXPECT_FALSE(icons.namedIcon("16/folder", 16).has_value()) << "no path";
}

TEST_F(FileTypeIconsTest, ASmallPictureIsInTheMiddleAndALargeOneIsMadeSmaller) {
  const auto small = icons.namedIcon(folder.write("small.png", pngOf(filled(8, 4, kRed))), 16);
  ASSERT_TRUE(small.has_value());
  EXPECT_EQ(at(*small, 4, 6), kRed);
  EXPECT_EQ(at(*small, 11, 9), kRed);
  EXPECT_EQ(qAlpha(at(*small, 3, 6)), 0);
  EXPECT_EQ(qAlpha(at(*small, 4, 5)), 0);
  EXPECT_EQ(qAlpha(at(*small, 12, 9)), 0);
  EXPECT_EQ(qAlpha(at(*small, 11, 10)), 0);

  const auto large = icons.namedIcon(folder.write("large.png", pngOf(filled(64, 32, kBlue))), 16);
  ASSERT_TRUE(large.has_value());
  EXPECT_EQ(at(*large, 0, 4), kBlue);
  EXPECT_EQ(at(*large, 15, 11), kBlue);
  EXPECT_EQ(qAlpha(at(*large, 0, 3)), 0);
}

TEST_F(FileTypeIconsTest, TheFormatOfAPictureFollowsFromItsContent) {
  EXPECT_EQ(middleOf(icons.namedIcon(folder.write("picture.txt", pngOf(filled(16, 16, kRed))), 16), 16), kRed);
  EXPECT_FALSE(icons.namedIcon(folder.write("words.png", "no picture"), 16).has_value());
  EXPECT_FALSE(icons.namedIcon(folder.path() + "/gone.png", 16).has_value());
}

TEST_F(FileTypeIconsTest, APictureThatIsTooLargeIsRefused) {
  EXPECT_TRUE(icons.namedIcon(folder.write("a.png", pngOf(filled(1024, 16, kRed))), 16).has_value());
  EXPECT_FALSE(icons.namedIcon(folder.write("b.png", pngOf(filled(1025, 16, kRed))), 16).has_value());
  EXPECT_FALSE(icons.namedIcon(folder.write("c.png", pngOf(filled(16, 1025, kRed))), 16).has_value());
}

std::string drawing(const std::string& content) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"32\" height=\"32\" viewBox=\"0 0 32 32\">" + content +
         "</svg>";
}

TEST_F(FileTypeIconsTest, ADrawingIsDrawnInTheSizeThatWasAskedFor) {
  const std::string square = "<rect x=\"0\" y=\"0\" width=\"16\" height=\"32\" fill=\"#00ff00\"/>";
  const auto icon = icons.namedIcon(folder.write("a.svg", drawing(square)), 16);
  ASSERT_TRUE(icon.has_value());
  EXPECT_EQ(at(*icon, 4, 8), qRgba(0, 255, 0, 255));
  EXPECT_EQ(qAlpha(at(*icon, 12, 8)), 0);
}

TEST_F(FileTypeIconsTest, ADrawingThatRefersToOtherFilesIsRefused) {
  const std::string square = "<rect width=\"32\" height=\"32\" fill=\"#00ff00\"/>";
  const std::string other = folder.write("other.png", pngOf(filled(16, 16, kRed)));
  EXPECT_FALSE(icons.namedIcon(folder.write("a.svg", drawing(square + "<image xlink:href=\"" + other + "\"/>")), 16)
                   .has_value());
  EXPECT_FALSE(icons.namedIcon(folder.write("b.svg", drawing(square + "<USE xlink:href=\"#a\"/>")), 16).has_value());
  EXPECT_FALSE(
      icons.namedIcon(folder.write("c.svg", "<!DOCTYPE svg [<!ENTITY a \"b\">]>" + drawing(square)), 16).has_value());
}

}  // namespace
}  // namespace gp

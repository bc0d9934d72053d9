// Reads the programs and libraries of the corpus of real and generated files, if the corpus is beside the repository,
// and compares their icons with independent measurements.
#include "extraction/format/IconHandle.h"
#include "files/IcoBuilder.h"
#include "files/format/ImageDecoding.h"
#include "platform/gdi/Stretch.h"
#include "support/PictureHashes.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <sstream>

namespace gp::test {
namespace {

const std::string kCorpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";

// A row of the table: the file, the kind of the row, and its fields.
struct Measured {
  std::string file, kind;
  std::vector<std::string> fields;

  std::size_t number() const { return std::stoul(fields.at(0)); }
  std::string name() const { return file + " " + kind + " " + fields.at(0); }
};

std::vector<Measured> measurements() {
  std::ifstream stream(std::string(GP_TEST_DATA) + "/corpus-libraries.tsv");
  std::vector<Measured> all;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream fields(line);
    Measured m;
    fields >> m.file >> m.kind;
    for (std::string field; fields >> field;) m.fields.push_back(field);
    all.push_back(m);
  }
  return all;
}

class LibraryCorpus : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::is_directory(kCorpus)) GTEST_SKIP() << "no corpus in " << kCorpus << ": nothing was checked";
  }
  const IconLibrary& libraryOf(const std::string& file) {
    auto& library = libraries_[file];
    if (!library) library = IconLibrary::open(kCorpus + file);
    if (!library) throw std::runtime_error(file + " is no library");
    return *library;
  }
  const IconGroup& groupOf(const Measured& m) { return libraryOf(m.file).groups().at(m.number()); }

 private:
  std::map<std::string, std::unique_ptr<IconLibrary>> libraries_;
};

TEST_F(LibraryCorpus, EveryLibraryHasTheMeasuredNumberOfIcons) {
  int files = 0, icons = 0;
  for (const Measured& m : measurements()) {
    if (m.kind != "count") continue;
    EXPECT_EQ(libraryOf(m.file).groups().size(), m.number()) << m.name();
    EXPECT_EQ(libraryOf(m.file).format(), m.file.starts_with("ne/") ? LibraryFormat::Ne : LibraryFormat::Pe);
    ++files;
    icons += static_cast<int>(m.number());
  }
  std::cout << "corpus: " << files << " files with " << icons << " icons\n";
  EXPECT_GE(files, 14);
}

std::string imagesOf(const IconLibrary& library, const IconGroup& group) {
  std::string text;
  for (const GroupImage& image : library.imagesOf(group)) {
    const auto bytes = library.bytesAt(image.place);
    const std::string bits = isPng(bytes) ? "0" : std::to_string(image.bits);
    text += (text.empty() ? "" : ",") + std::to_string(image.width) + "x" + std::to_string(image.height) + "x" + bits;
  }
  return text;
}

TEST_F(LibraryCorpus, EveryGroupHasTheMeasuredNameLanguageAndImages) {
  int groups = 0;
  for (const Measured& m : measurements()) {
    if (m.kind != "group") continue;
    const IconGroup& group = groupOf(m);
    EXPECT_EQ(group.name.empty() ? std::to_string(group.id) : group.name, m.fields.at(1)) << m.name();
    EXPECT_EQ(m.fields.at(2) == "-" ? "-" : std::to_string(group.language), m.fields.at(2)) << m.name();
    EXPECT_EQ(imagesOf(libraryOf(m.file), group), m.fields.at(3)) << m.name();
    ++groups;
  }
  std::cout << "corpus: " << groups << " groups\n";
  EXPECT_GT(groups, 25);
}

TEST_F(LibraryCorpus, EveryLibraryCanBeCutAnywhere) {
  int icons = 0;
  for (const Measured& m : measurements()) {
    if (m.kind != "count") continue;
    const auto whole = bytesOf(kCorpus + m.file);
    for (std::size_t part = 0; part < 64; ++part) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() * part / 64));
      const MemorySource source(cut);
      const auto library = IconLibrary::parse(source);
      if (!library) continue;
      ASSERT_LE(library->groups().size(), m.number()) << m.name() << ' ' << part;
      for (const IconGroup& group : library->groups())
        if (const auto handle = libraryIcon(*library, group, kLargeIcon))
          icons += handle->width() == kLargeIcon ? 1 : 0;
    }
  }
  std::cout << "corpus: " << icons << " icons drawn of libraries that were cut\n";
  EXPECT_GT(icons, 30);
}

bool hasImageOf(const IconLibrary& library, const IconGroup& group, int size) {
  return std::ranges::any_of(library.imagesOf(group),
                             [&](const GroupImage& image) { return image.width == size && image.height == size; });
}

// Pictures of another size were scaled by AND where they were measured; here pixels are dropped.
Surface combined(const Surface& picture, int size) {
  Surface target(size, size);
  target.stretchMode = StretchMode::BlackOnWhite;
  StretchBlt(target, 0, 0, size, size, picture, 0, 0, picture.width(), picture.height(), RasterOp::SRCCOPY);
  return target;
}

void expectDrawings(const IconImage& handle, const Measured& m) {
  const IconImage plain = surfacesWithoutAlpha(handle);
  EXPECT_EQ(pictureHash(plain.image), m.fields.at(1)) << m.name();
  EXPECT_EQ(pictureHash(handle.hasAlphaValues() ? drawnOn(handle, kWhite) : handle.image), m.fields.at(2)) << m.name();
  EXPECT_EQ(pictureHash(plain.mask), m.fields.at(3)) << m.name();
  EXPECT_EQ(pictureHash(drawnOn(handle, kWhite)), m.fields.at(4)) << m.name();
}

TEST_F(LibraryCorpus, EveryIconIsDrawnAsMeasured) {
  int checked = 0, scaled = 0;
  for (const Measured& m : measurements()) {
    if (m.kind != "large" && m.kind != "small") continue;
    const IconLibrary& library = libraryOf(m.file);
    const int size = m.kind == "large" ? kLargeIcon : kSmallIcon;
    const auto handle = libraryIcon(library, groupOf(m), size);
    ASSERT_TRUE(handle) << m.name();
    if (hasImageOf(library, groupOf(m), size)) {
      expectDrawings(*handle, m);
      ++checked;
      continue;
    }
    // None of these has alpha values.
    const IconImage full = libraryIcon(library, groupOf(m), kLargeIcon).value();
    expectDrawings({combined(full.image, size), combined(full.mask, size), AlphaMatrix()}, m);
    EXPECT_EQ(pictureHash(handle->image), pictureHash(scaledTo(full.image, size))) << m.name();
    EXPECT_NE(pictureHash(handle->image), m.fields.at(1)) << m.name();
    ++scaled;
  }
  std::cout << "corpus: " << checked << " drawings equal to what was measured, " << scaled
            << " scaled in another way\n";
  EXPECT_GE(checked, 45);
  EXPECT_EQ(scaled, 9);
}

}  // namespace
}  // namespace gp::test

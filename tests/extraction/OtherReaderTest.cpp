// Compares the icons of generated libraries with those that wrestool finds in them, if it is installed: the same
// groups, the same images, the same bytes.
#include "extraction/LibraryBytes.h"
#include "files/format/IconFile.h"
#include "support/NeBytes.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <set>

namespace gp::test {
namespace {

class RandomLibrary {
 public:
  explicit RandomLibrary(unsigned seed) : random_(seed) {}

  // Good resources: icons first, as NE files list them, then groups in order.
  std::vector<Resource> resources() {
    std::vector<Resource> groups;
    for (const std::u16string& name : names()) groups.push_back({kGroupType, 0, name, kLanguage, group()});
    for (const int id : numbers()) groups.push_back({kGroupType, id, {}, kLanguage, group()});
    std::vector<Resource> all = icons_;
    all.push_back({kCursorGroupType, 5, {}, kLanguage, groupDirectory({})});
    all.insert(all.end(), groups.begin(), groups.end());
    return all;
  }
  int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

 private:
  static constexpr int kLanguage = 1033;

  std::set<int> numbers() {
    std::set<int> ids;
    for (int i = below(8) + 1; i > 0; --i) ids.insert(below(32767) + 1);
    return ids;
  }
  std::set<std::u16string> names() {
    std::set<std::u16string> all;
    for (int i = below(5); i > 0; --i) {
      std::u16string name(static_cast<std::size_t>(below(20) + 1), u'A');
      for (char16_t& unit : name) unit = static_cast<char16_t>(u'A' + below(26));
      all.insert(name);
    }
    return all;
  }

  Bytes group() {
    std::vector<GroupEntry> entries;
    for (int i = below(6) + 1; i > 0; --i) entries.push_back(icon());
    return groupDirectory(entries);
  }
  GroupEntry icon() {
    const int size = below(64) + 1, bits = std::array{1, 4, 8, 24, 32}[static_cast<std::size_t>(below(5))];
    const int id = static_cast<int>(icons_.size()) + 1;
    const Bytes image = below(6) == 0 ? pngImage(anyPng(size)).bytes : imageBytes(plainPicture(size, {id, 2, 3}, bits));
    icons_.push_back({kIconType, id, {}, kLanguage, image});
    return {size, size, bits == 4 ? 16 : bits == 1 ? 2 : 0, 1, bits, static_cast<std::uint32_t>(image.size()), id};
  }

  std::mt19937 random_;
  std::vector<Resource> icons_;
};

class OtherReader : public testing::Test {
 protected:
  void SetUp() override {
    if (std::system("command -v wrestool > /dev/null") != 0) GTEST_SKIP() << "no wrestool: nothing was compared";
  }

  // What it prints and writes is in files of the folder.
  void run(const std::string& arguments) const {
    ASSERT_EQ(std::system(("cd '" + folder_.path() + "' && wrestool " + arguments + " 2> complaints").c_str()), 0);
  }
  // The labels that it lists.
  std::set<std::string> listed() const {
    run("-l -t14 library > list");
    std::set<std::string> labels;
    std::ifstream lines(folder_.path() + "/list");
    for (std::string line; std::getline(lines, line);) {
      const std::string name = line.substr(line.find("--name=") + 7);
      const bool isNamed = name.starts_with('\'');
      labels.insert(isNamed ? name.substr(1, name.find('\'', 1) - 1) : "#" + name.substr(0, name.find(' ')));
    }
    return labels;
  }
  IconFile extracted(const IconGroup& group) const {
    const std::string name = group.name.empty() ? std::to_string(group.id) : group.name;
    return readWholeIconFile(folder_.path() + "/library_14_" + name + ".ico").value_or(IconFile());
  }

  void compare(const Bytes& file) {
    const std::string path = folder_.path() + "/library";
    for (const auto& old : std::filesystem::directory_iterator(folder_.path())) std::filesystem::remove(old);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    const auto library = IconLibrary::open(path);
    ASSERT_TRUE(library);
    std::set<std::string> labels;
    for (const IconGroup& group : library->groups()) labels.insert(group.label());
    EXPECT_EQ(labels, listed());
    run("-x -t14 -o . library");
    for (const IconGroup& group : library->groups()) compareImages(*library, group);
  }

  void compareImages(const IconLibrary& library, const IconGroup& group) {
    const IconFile file = extracted(group);
    const auto images = library.imagesOf(group);
    ASSERT_EQ(file.directory.count, static_cast<int>(images.size())) << group.label();
    for (std::size_t i = 0; i < images.size(); ++i) {
      const IconEntry entry = file.entry(static_cast<int>(i));
      EXPECT_EQ(images[i].width, entry.width);
      EXPECT_EQ(images[i].height, entry.height);
      EXPECT_EQ(images[i].colors, entry.colorCount);
      EXPECT_EQ(images[i].bits, entry.bitCount);
      const auto bytes = library.bytesAt(images[i].place);
      ASSERT_LE(std::uint64_t{entry.imageOffset} + bytes.size(), file.span().size());
      EXPECT_TRUE(std::ranges::equal(bytes, file.span().subspan(entry.imageOffset, bytes.size()))) << group.label();
      EXPECT_EQ(bytes.size(), entry.bytesInRes);
      ++images_;
    }
  }

  const TempFolder folder_;
  int images_ = 0;
};

TEST_F(OtherReader, FindsTheSameIconsInPrograms) {
  for (unsigned seed = 0; seed < 24; ++seed) {
    RandomLibrary random(seed);
    PeOptions options;
    options.is64 = seed % 2 == 1;
    if (seed % 3 == 0)
      options.before = {{".text", 0x1000, Bytes(static_cast<std::size_t>(random.below(4000)), 0xCC), {}, {}, {}}};
    compare(peWith(random.resources(), options));
  }
  std::cout << "wrestool: " << images_ << " images of 24 programs have the same bytes\n";
  EXPECT_GT(images_, 200);
}

TEST_F(OtherReader, FindsTheSameIconsInNeLibraries) {
  for (unsigned seed = 100; seed < 112; ++seed) {
    RandomLibrary random(seed);
    // It expects the table of names behind that of the resources.
    compare(neWith(random.resources(), {.shift = 4 + static_cast<int>(seed % 6), .nameTable = 0x7FFF}));
  }
  std::cout << "wrestool: " << images_ << " images of 12 NE libraries have the same bytes\n";
  EXPECT_GT(images_, 100);
}

}  // namespace
}  // namespace gp::test

#include "shell/CommandLine.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

class CommandLine : public testing::Test {
 protected:
  CommandLineKind kindOf(const std::string& name) { return readCommandLine(folder_.write(name)).kind; }
  test::TempFolder folder_;
};

TEST_F(CommandLine, AnEmptyCommandLineNamesNothing) {
  EXPECT_EQ(readCommandLine("").kind, CommandLineKind::None);
  EXPECT_EQ(readCommandLine("").path, "");
}

TEST_F(CommandLine, AFileOfTheCurrentDirectoryIsNamedInFull) {
  const auto before = std::filesystem::current_path();
  const std::string path = folder_.write("near.ico");
  std::filesystem::current_path(folder_.path());
  const CommandLineFile file = readCommandLine("near.ico");
  std::filesystem::current_path(before);
  EXPECT_EQ(file.path, path);
  EXPECT_EQ(file.kind, CommandLineKind::Ico);
}

TEST_F(CommandLine, QuotesAroundAPathWithBlanksAreRemoved) {
  const std::string path = folder_.write("my icon.ico");
  const CommandLineFile file = readCommandLine("\"" + path + "\"");
  EXPECT_EQ(file.path, path);
  EXPECT_EQ(file.kind, CommandLineKind::Ico);
}

TEST_F(CommandLine, AQuoteThatBelongsToAFileNameStays) {
  const std::string path = folder_.write("a\"b.ico");
  EXPECT_EQ(readCommandLine(path).path, path);
  EXPECT_EQ(readCommandLine(path).kind, CommandLineKind::Ico);
}

TEST_F(CommandLine, TheEndingDecidesInAnyMixOfCase) {
  EXPECT_EQ(kindOf("a.ico"), CommandLineKind::Ico);
  EXPECT_EQ(kindOf("a.ICO"), CommandLineKind::Ico);
  EXPECT_EQ(kindOf("a.iCo"), CommandLineKind::Ico);
  EXPECT_EQ(kindOf("a.Cur"), CommandLineKind::Cur);
  EXPECT_EQ(kindOf("a.aNI"), CommandLineKind::Ani);
}

TEST_F(CommandLine, AnyOtherEndingIsIgnored) {
  EXPECT_EQ(kindOf("a.bmp"), CommandLineKind::Ignored);
  EXPECT_EQ(kindOf("ico"), CommandLineKind::Ignored);
  EXPECT_EQ(kindOf("a.icon"), CommandLineKind::Ignored);
}

TEST_F(CommandLine, AMissingFileIsReportedWhateverItsEnding) {
  const CommandLineFile file = readCommandLine("\"" + folder_.file("none.ico") + "\"");
  EXPECT_EQ(file.kind, CommandLineKind::Missing);
  EXPECT_EQ(file.path, folder_.file("none.ico"));
  EXPECT_EQ(fileNotFoundText(file.path), folder_.file("none.ico") + "\nFile not found.");
  EXPECT_EQ(readCommandLine("x").kind, CommandLineKind::Missing);
  EXPECT_EQ(readCommandLine("\"\"").kind, CommandLineKind::Missing);
  EXPECT_EQ(readCommandLine(folder_.path()).kind, CommandLineKind::Missing);
}

// Changes the current directory of the process, and restores it at the end of the test.
class InFolder {
 public:
  explicit InFolder(const std::string& folder) : former_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder);
  }
  ~InFolder() { std::filesystem::current_path(former_); }

 private:
  std::filesystem::path former_;
};

TEST_F(CommandLine, APathOfFourCharactersDoesNothingAfterItWasFound) {
  const InFolder here(folder_.path());
  folder_.write(".ico");
  folder_.write("a.ico");
  EXPECT_EQ(readCommandLine(".ico").kind, CommandLineKind::Ignored);
  EXPECT_EQ(readCommandLine("a.ico").kind, CommandLineKind::Ico);
  EXPECT_EQ(readCommandLine("none").kind, CommandLineKind::Missing);
}

}  // namespace
}  // namespace gp

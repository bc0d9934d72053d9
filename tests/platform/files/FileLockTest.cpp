#include "platform/files/FileLock.h"
#include "platform/files/FileWriting.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace gp {
namespace {

using std::chrono::milliseconds;

class FileLocks : public testing::Test {
 protected:
  static bool isFree(const std::string& path) { return FileLock::take(path, milliseconds(0)).has_value(); }

  test::TempFolder folder_;
  const std::string path_ = folder_.write("a", "content");
};

TEST_F(FileLocks, OnlyOneHasIt) {
  {
    const auto lock = FileLock::take(path_, milliseconds(0));
    ASSERT_TRUE(lock);
    EXPECT_FALSE(isFree(path_));
    std::filesystem::create_symlink(path_, folder_.file("link"));
    EXPECT_FALSE(isFree(folder_.file("link"))) << "another name of the file";
    EXPECT_TRUE(isFree(folder_.write("b")));
  }
  EXPECT_TRUE(isFree(path_));
}

TEST_F(FileLocks, OneWhoWaitsGetsItWhenItIsGivenBack) {
  auto lock = FileLock::take(path_, milliseconds(0));
  bool taken = false;
  std::thread waiting([&] { taken = FileLock::take(path_, std::chrono::minutes(1)).has_value(); });
  std::this_thread::sleep_for(milliseconds(20));
  lock.reset();
  waiting.join();
  EXPECT_TRUE(taken);
}

// The holder has given the name to a new file: whoever waited for the former one must lock the new one.
TEST_F(FileLocks, OneWhoWaitsGetsTheLockOfTheFileThatHasTheName) {
  auto lock = FileLock::take(path_, milliseconds(0));
  std::optional<FileLock> taken;
  std::thread waiting([&] { taken = FileLock::take(path_, std::chrono::minutes(1)); });
  std::this_thread::sleep_for(milliseconds(20));
  EXPECT_TRUE(replaceFile(path_, {}));
  lock.reset();
  waiting.join();
  EXPECT_TRUE(taken);
  EXPECT_FALSE(isFree(path_));
}

TEST_F(FileLocks, AFileThatIsNotThereNeedsNone) { EXPECT_TRUE(isFree(folder_.file("none"))); }

}  // namespace
}  // namespace gp

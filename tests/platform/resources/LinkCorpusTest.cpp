// Reads the shell links of the corpus of real and generated files, if the corpus is beside the repository, and compares
// what they name with independent measurements.
#include "platform/files/Files.h"
#include "platform/resources/ShellLink.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>
#include <vector>

namespace gp::test {
namespace {

const std::string kCorpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";

std::vector<std::string> fieldsOf(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> fields;
  for (std::string field; std::getline(stream, field, '\t');) fields.push_back(field);
  return fields;
}

std::vector<std::string> readFields(const std::string& file) {
  const auto bytes = readFile(kCorpus + file);
  const auto link = bytes ? readShellLink(bytes->span()) : std::nullopt;
  if (!link) return {file, "none"};
  return {file, "link", link->target, link->iconFile, std::to_string(link->iconIndex)};
}

TEST(LinkCorpus, EveryLinkNamesTheMeasuredTargetAndIcon) {
  if (!std::filesystem::is_directory(kCorpus)) GTEST_SKIP() << "no corpus in " << kCorpus << ": nothing was checked";
  std::ifstream stream(std::string(GP_TEST_DATA) + "/corpus-links.tsv");
  int links = 0;
  for (std::string line; std::getline(stream, line); ++links) {
    const std::vector<std::string> measured = fieldsOf(line);
    EXPECT_EQ(readFields(measured.at(0)), measured);
  }
  EXPECT_EQ(links, 7);
  std::cout << links << " links checked\n";
}

}  // namespace
}  // namespace gp::test

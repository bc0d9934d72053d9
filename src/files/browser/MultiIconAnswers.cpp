#include "files/browser/MultiIconAnswers.h"

#include "document/IconContainerRec.h"

#include <charconv>
#include <cstdint>
#include <string_view>
#include <vector>

namespace gp {
namespace {

constexpr char kSeparator = '/';
constexpr int kSeveralEntries = 2;
constexpr int kSave = 1;
constexpr int kSaveAs = 2;
constexpr std::size_t kLoadFields = 8;
constexpr std::size_t kAddFields = 2;

// The fields fit into the 16 bits of a record's fields.
std::optional<std::int16_t> parseNumber(std::string_view text) {
  std::int16_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

// Returns exactly `count` numbers, or none.
std::vector<int> parseNumbers(std::string_view text, std::size_t count) {
  std::vector<int> numbers;
  while (numbers.size() < count) {
    const std::size_t length = text.find(kSeparator);
    const auto number = parseNumber(text.substr(0, length));
    if (!number) return {};
    numbers.push_back(*number);
    if (length == std::string_view::npos) break;
    text.remove_prefix(length + 1);
    if (numbers.size() == count) return {};
  }
  return numbers.size() == count ? numbers : std::vector<int>{};
}

}  // namespace

std::optional<LoadAnswer> parseLoadAnswer(const std::string& answer) {
  const std::vector<int> fields = parseNumbers(answer, kLoadFields);
  if (fields.empty()) return std::nullopt;
  LoadAnswer load{fields[0] - 1, {}};
  if (load.container < 0 || load.container >= kContainerCount || fields[1] < 0) return std::nullopt;
  load.facts.kind = kSeveralEntries;
  load.facts.chosen = fields[1];
  load.facts.width = fields[2];
  load.facts.height = fields[3];
  load.facts.directory = {fields[4], fields[5]};
  load.facts.header = {fields[6], fields[7]};
  return load;
}

std::optional<AddAnswer> parseAddAnswer(const std::string& answer) {
  const std::vector<int> fields = parseNumbers(answer, kAddFields);
  if (fields.empty() || (fields[0] != kSave && fields[0] != kSaveAs) || fields[1] < 1) return std::nullopt;
  return AddAnswer{fields[0] == kSaveAs, fields[1] - 1};
}

}  // namespace gp

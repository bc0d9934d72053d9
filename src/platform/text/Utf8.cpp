#include "platform/text/Utf8.h"

#include <algorithm>
#include <cstdint>

namespace gp {
namespace {

// The first bytes of well-formed sequences: the sequence's length, and the bounds of its second byte, which exclude
// overlong forms, surrogates and values beyond U+10FFFF.
struct Lead {
  std::uint8_t first, last;
  std::uint8_t size;
  std::uint8_t secondMin, secondMax;
};
constexpr Lead kLeads[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F},
    {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};
constexpr std::uint8_t kFirstLead = 0xC2;

std::uint8_t byteAt(std::string_view text, std::size_t i) { return static_cast<std::uint8_t>(text[i]); }

bool isContinuation(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

bool isWellFormed(std::string_view text, const Lead& lead) {
  if (text.size() < lead.size) return false;
  const std::uint8_t second = byteAt(text, 1);
  if (second < lead.secondMin || second > lead.secondMax) return false;
  for (std::size_t i = 2; i < lead.size; ++i)
    if (!isContinuation(byteAt(text, i))) return false;
  return true;
}

template <class Change>
std::string changed(std::string_view text, Change change) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), change);
  return result;
}

constexpr char kBlank = ' ';
constexpr int kCaseStep = 'a' - 'A';

}  // namespace

std::size_t characterSize(std::string_view text) {
  if (text.empty()) return 0;
  const std::uint8_t first = byteAt(text, 0);
  if (first < kFirstLead) return 1;
  for (const Lead& lead : kLeads)
    if (first >= lead.first && first <= lead.last) return isWellFormed(text, lead) ? lead.size : 1;
  return 1;
}

int countCharacters(std::string_view text) {
  int count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(characterSize(text));
  return count;
}

std::string firstCharacters(std::string_view text, int count) {
  std::size_t size = 0;
  for (int i = 0; i < count && size < text.size(); ++i) size += characterSize(text.substr(size));
  return std::string(text.substr(0, size));
}

std::string trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlank);
  return first == std::string_view::npos ? std::string() : trimRight(text.substr(first));
}

std::string trimRight(std::string_view text) { return std::string(text.substr(0, text.find_last_not_of(kBlank) + 1)); }

std::string upperCase(std::string_view text) {
  return changed(text, [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - kCaseStep) : c; });
}

std::string lowerCase(std::string_view text) {
  return changed(text, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + kCaseStep) : c; });
}

bool endsWithAnyCase(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && equalAnyCase(text.substr(text.size() - ending.size()), ending);
}

bool equalAnyCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && lowerCase(a) == lowerCase(b);
}

}  // namespace gp

#include "cli/Json.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace gp::cli {
namespace {

constexpr unsigned kSurrogateBase = 0xDC00;
constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;
constexpr unsigned char kFirstNonAscii = 0x80;

std::string escaped(unsigned code) {
  static constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[code >> shift & 0xF];
  return text;
}

unsigned char byteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The range of the second byte excludes overlong forms, surrogates and values above U+10FFFF.
struct LeadRange {
  unsigned char first, last;
  unsigned char secondMin, secondMax;
  std::size_t length;
};
constexpr std::array<LeadRange, 8> kLeads{{{0xC2, 0xDF, 0x80, 0xBF, 2},
                                           {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                           {0xE1, 0xEC, 0x80, 0xBF, 3},
                                           {0xED, 0xED, 0x80, 0x9F, 3},
                                           {0xEE, 0xEF, 0x80, 0xBF, 3},
                                           {0xF0, 0xF0, 0x90, 0xBF, 4},
                                           {0xF1, 0xF3, 0x80, 0xBF, 4},
                                           {0xF4, 0xF4, 0x80, 0x8F, 4}}};

// The number of bytes of the character that starts here; 0 for an invalid one.
std::size_t characterLength(std::string_view text, std::size_t at) {
  const unsigned char lead = byteAt(text, at), second = byteAt(text, at + 1);
  for (const LeadRange& range : kLeads) {
    if (lead < range.first || lead > range.last) continue;
    if (second < range.secondMin || second > range.secondMax) return 0;
    for (std::size_t i = 2; i < range.length; ++i)
      if (!isContinuation(byteAt(text, at + i))) return 0;
    return range.length;
  }
  return 0;
}

std::string asciiForm(unsigned char byte) {
  if (byte == '"' || byte == '\\') return {'\\', static_cast<char>(byte)};
  if (byte < kFirstPrintable || byte == kDelete) return escaped(byte);
  return {static_cast<char>(byte)};
}

}  // namespace

std::string jsonText(std::string_view text) {
  std::string out = "\"";
  for (std::size_t at = 0; at < text.size();) {
    const unsigned char byte = byteAt(text, at);
    const std::size_t length = byte < kFirstNonAscii ? 1 : characterLength(text, at);
    if (byte < kFirstNonAscii)
      out += asciiForm(byte);
    else if (length == 0)
      out += escaped(kSurrogateBase + byte);
    else
      out += text.substr(at, length);
    at += length == 0 ? 1 : length;
  }
  return out + '"';
}

void JsonArray::next() {
  std::fputs(isEmpty_ ? "[\n" : ",\n", stdout);
  isEmpty_ = false;
}

void JsonArray::end() { std::fputs(isEmpty_ ? "[]\n" : "\n]\n", stdout); }

}  // namespace gp::cli

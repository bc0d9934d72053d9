#include "platform/text/ProfileText.h"

#include "platform/text/Utf8.h"

#include <algorithm>

namespace gp {
namespace {

constexpr std::size_t kMaxValueBytes = 2047;  // a buffer of 2048 bytes with its terminator
constexpr std::string_view kWhite = " \t\v\f\r";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view trimWhite(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kWhite);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhite) + 1 - first);
}

std::string_view withoutQuotes(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// Returns the name of the section that a line starts, nullopt for other lines.
std::optional<std::string_view> sectionOf(std::string_view line) {
  if (line.empty() || line.front() != '[') return std::nullopt;
  return trimWhite(line.substr(1, line.find(']') - 1));
}

struct KeyAndValue {
  std::string_view key, value;
};

std::optional<KeyAndValue> keyAndValueOf(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || line.front() == ';') return std::nullopt;
  return KeyAndValue{trimWhite(line.substr(0, equals)), withoutQuotes(trimWhite(line.substr(equals + 1)))};
}

// One line of the text: its trimmed content, and the range of its bytes including the line end.
struct Line {
  std::string_view content;
  std::size_t start, end;
};

// Returns the line that starts at a position.
Line lineAt(std::string_view text, std::size_t start) {
  const std::size_t lineFeed = text.find('\n', start);
  const std::size_t end = lineFeed == std::string_view::npos ? text.size() : lineFeed + 1;
  const std::size_t contentEnd = lineFeed == std::string_view::npos ? end : lineFeed;
  return {trimWhite(text.substr(start, contentEnd - start)), start, end};
}

// The position of a section and a key in the text, as far as they exist.
struct Place {
  bool hasSection = false;
  std::size_t sectionEnd = 0;  // after the section's last line that is not blank
  std::optional<Line> line;    // the line of the key
  std::string_view value;
};

std::size_t textStart(std::string_view text) {
  return text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
}

// Only the first section with that name is searched, as in the platform's functions.
Place find(std::string_view text, std::string_view section, std::string_view key) {
  Place place;
  for (std::size_t start = textStart(text); start < text.size();) {
    const Line line = lineAt(text, start);
    start = line.end;
    if (const auto name = sectionOf(line.content)) {
      if (place.hasSection) break;
      place.hasSection = equalAnyCase(*name, section);
    }
    if (!place.hasSection || line.content.empty()) continue;
    place.sectionEnd = line.end;
    const auto pair = keyAndValueOf(line.content);
    if (!pair || !equalAnyCase(pair->key, key)) continue;
    place.line = line;
    place.value = pair->value;
    break;
  }
  return place;
}

// Returns the line end of the file's first line, which added lines use as well.
std::string_view lineEndOf(std::string_view text) {
  const std::size_t lineFeed = text.find('\n');
  return lineFeed != std::string_view::npos && lineFeed > 0 && text[lineFeed - 1] == '\r' ? "\r\n" : "\n";
}

void append(std::string& target, std::string_view part) { target.append(part.data(), part.size()); }

// Inserts a line at a position that is the start of a line or the end of the text.
void insertLine(std::string& text, std::size_t at, const std::string& line) {
  const std::string lineEnd(lineEndOf(text));
  const bool isOpen = at > textStart(text) && text[at - 1] != '\n';
  text.insert(at, (isOpen ? lineEnd : std::string()) + line + lineEnd);
}

void addSection(std::string& text, std::string_view section) {
  std::string line = "[";
  append(line, section);
  insertLine(text, text.size(), line + "]");
}

std::size_t contentEndOf(std::string_view text, const Line& line) {
  const std::size_t last = text.substr(line.start, line.end - line.start).find_last_not_of("\r\n");
  return last == std::string_view::npos ? line.start : line.start + last + 1;
}

}  // namespace

bool fitsInIni(std::string_view value) {
  return value.size() <= kMaxValueBytes && value.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

std::optional<std::string> findValue(std::string_view text, std::string_view section, std::string_view key) {
  const Place place = find(text, section, key);
  return place.line ? std::optional(std::string(place.value.substr(0, kMaxValueBytes))) : std::nullopt;
}

void setValue(std::string& text, std::string_view section, std::string_view key, std::string_view value) {
  std::string line(key);
  line += '=';
  append(line, value);
  Place place = find(text, section, key);
  if (place.line) {
    text.replace(place.line->start, contentEndOf(text, *place.line) - place.line->start, line);
    return;
  }
  if (!place.hasSection) {
    addSection(text, section);
    place.sectionEnd = text.size();
  }
  insertLine(text, place.sectionEnd, line);
}

void removeValue(std::string& text, std::string_view section, std::string_view key) {
  const Place place = find(text, section, key);
  if (place.line) text.erase(place.line->start, place.line->end - place.line->start);
}

}  // namespace gp

// Reads the pictures in tests/data/gdi; the README there describes their format.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace gp::test {

struct GoldenCase {
  std::string name;
  std::map<std::string, std::string> values;
  std::vector<std::string> rows;

  bool has(const std::string& key) const { return values.count(key) > 0; }
  const std::string& text(const std::string& key) const { return values.at(key); }
  int number(const std::string& key) const { return std::stoi(values.at(key)); }
  double real(const std::string& key) const { return std::stod(values.at(key)); }
  // A position written as x,y.
  std::pair<int, int> position(const std::string& key) const {
    const std::string& v = values.at(key);
    return {std::stoi(v), std::stoi(v.substr(v.find(',') + 1))};
  }
  int width() const { return number("w"); }
  int height() const { return number("h"); }
  bool startsWith(const std::string& prefix) const { return name.rfind(prefix, 0) == 0; }
};

inline std::vector<GoldenCase> readGoldenFile(const std::string& name) {
  std::ifstream file(std::string(GP_TEST_DATA) + "/gdi/" + name);
  if (!file) throw std::runtime_error("cannot read " + name);
  std::vector<GoldenCase> cases;
  for (std::string line; std::getline(file, line);) {
    if (line.rfind("case ", 0) != 0) {
      cases.back().rows.push_back(line);
      continue;
    }
    std::istringstream words(line.substr(5));
    GoldenCase c;
    words >> c.name;
    for (std::string word; words >> word;) {
      const auto equals = word.find('=');
      c.values[word.substr(0, equals)] = word.substr(equals + 1);
    }
    cases.push_back(c);
  }
  return cases;
}

inline const GoldenCase& findCase(const std::vector<GoldenCase>& cases, const std::string& name) {
  for (const GoldenCase& c : cases)
    if (c.name == name) return c;
  throw std::runtime_error("no case " + name);
}

inline std::uint32_t parseHex(const std::string& text) {
  return static_cast<std::uint32_t>(std::strtoul(text.c_str(), nullptr, 16));
}

// A picture of hexadecimal pixels.
inline Surface hexPicture(const GoldenCase& c) {
  Surface s(c.width(), c.height());
  for (int y = 0; y < s.height(); ++y) {
    std::istringstream cells(c.rows.at(static_cast<std::size_t>(y)));
    std::string cell;
    for (int x = 0; x < s.width() && cells >> cell; ++x) s.SetPixelV(x, y, static_cast<Color>(parseHex(cell)));
  }
  return s;
}

// The characters for the colours of the line drawings.
inline constexpr Color kPenCell = 0x0000FF;
inline constexpr Color kBrushCell = 0xFF0000;

// A Surface written like the line drawings.
inline std::vector<std::string> cellsOf(const Surface& s) {
  std::vector<std::string> rows;
  for (int y = 0; y < s.height(); ++y) {
    std::string row;
    for (int x = 0; x < s.width(); ++x) {
      const Color c = s.GetPixel(x, y);
      row += c == kWhite ? '.' : c == kPenCell ? '#' : c == kBrushCell ? 'o' : '?';
    }
    rows.push_back(row);
  }
  return rows;
}

inline std::string joined(const std::vector<std::string>& rows) {
  std::string all;
  for (const std::string& row : rows) all += row + '\n';
  return all;
}

inline bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() &&
         std::equal(a.pixels().begin(), a.pixels().end(), b.pixels().begin());
}

}  // namespace gp::test

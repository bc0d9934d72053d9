#include "cli/AniListing.h"

#include "animation/format/AniFile.h"
#include "animation/format/FilmReading.h"
#include "animation/format/FrameDrawing.h"
#include "cli/Console.h"
#include "cli/ImageFile.h"
#include "cli/Json.h"
#include "document/ColorDepth.h"

#include <cstdio>
#include <optional>
#include <vector>

namespace gp::cli {
namespace {

using Bytes = std::span<const std::uint8_t>;
using Numbers = std::vector<std::uint32_t>;

// How a value that is missing is printed, and lists of numbers.
struct Style {
  const char* missing;
  const char* begin;
  const char* end;
  std::string (*quoted)(std::string_view text);
};
const Style kText{"-", "", "", printable};
const Style kJson{"null", "[", "]", jsonText};

// What is stated about a film, as texts.
struct FilmTexts {
  std::string title, artist, frames, steps, rate, flags, rates, sequence, jiffies, hotspotX, hotspotY;
};

std::string joined(const Numbers& numbers, const Style& style) {
  std::string text = style.begin;
  for (std::size_t i = 0; i < numbers.size(); ++i) text += (i == 0 ? "" : ",") + std::to_string(numbers[i]);
  return text + style.end;
}

std::string textOf(const std::optional<Numbers>& numbers, const Style& style) {
  return numbers ? joined(*numbers, style) : style.missing;
}

std::string textOf(const std::optional<std::string>& text, const Style& style) {
  return text ? style.quoted(*text) : style.missing;
}

Numbers jiffiesOf(const ReadFilm& film) {
  Numbers jiffies;
  for (const FilmFrame& frame : film.frames) jiffies.push_back(static_cast<std::uint32_t>(frame.jiffies));
  return jiffies;
}

bool hasHeader(const AniReading& reading) {
  return reading.defect != AniDefect::NoHeader && reading.defect != AniDefect::StrangeHeader;
}

FilmTexts textsOf(const AniReading& reading, const ReadFilm& film, const Style& style) {
  const AniFile& file = reading.file;
  const auto stated = [&](std::uint32_t value) { return hasHeader(reading) ? std::to_string(value) : style.missing; };
  const auto opened = [&](int FilmFrame::*field) {
    return film.isRead() ? std::to_string(film.frames.front().*field) : style.missing;
  };
  return {textOf(file.title, style),
          textOf(file.artist, style),
          stated(file.header.frames),
          stated(file.header.steps),
          stated(file.header.rate),
          stated(file.header.flags),
          textOf(file.rates, style),
          textOf(file.sequence, style),
          film.isRead() ? joined(jiffiesOf(film), style) : style.missing,
          opened(&FilmFrame::hotspotX),
          opened(&FilmFrame::hotspotY)};
}

// An image as it is listed: that of its images which is drawn.
struct ImageRow {
  std::size_t index = 0;
  AniImage bytes;
  FrameImageFacts image;
  bool isUsable = false;

  ColorDepth depth() const { return image.bits == 0 ? ColorDepth{} : depthOfBits(image.bits); }
  const char* encoding() const { return image.isPng ? "png" : "bmp"; }
};

// What a frame states about its first image, which has no pixels.
FrameImageFacts statedFacts(Bytes frame) {
  const IconFile file = parseIconFile(FileBytes(frame));
  if (!file.isIcon() && !file.isCursor()) return {};
  const IconEntry entry = file.entry(0);
  FrameImageFacts facts;
  facts.width = sideOf(entry.width);
  facts.height = sideOf(entry.height);
  facts.bits = headerBitCount(file, entry);
  facts.hotspotX = file.isCursor() ? entry.hotspotX() : 0;
  facts.hotspotY = file.isCursor() ? entry.hotspotY() : 0;
  facts.isPng = isPngImage(file, entry);
  return facts;
}

ImageRow rowOf(Bytes file, const AniImage& image, std::size_t index) {
  const Bytes frame = file.subspan(image.offset, image.size);
  const auto drawn = drawFrame(frame);
  return {index, image, drawn ? drawn->image : statedFacts(frame), drawn.has_value()};
}

void printText(const std::string& path, const ImageRow& row) {
  std::printf("%s\t%zu\t%dx%d\t%d\t%d\t%zu\t%zu\t%s\t%s\t%d\t%d\n", printable(path).c_str(), row.index, row.image.width,
              row.image.height, row.depth().colors, row.depth().bits, row.bytes.size, row.bytes.offset, row.encoding(),
              row.isUsable ? "usable" : "unusable", row.image.hotspotX, row.image.hotspotY);
}

void printJson(const ImageRow& row) {
  std::printf(
      "{\"index\":%zu,\"width\":%d,\"height\":%d,\"colors\":%d,\"bits\":%d,\"hotspotX\":%d,\"hotspotY\":%d,"
      "\"bytes\":%zu,\"offset\":%zu,\"encoding\":\"%s\",\"usable\":%s}",
      row.index, row.image.width, row.image.height, row.depth().colors, row.depth().bits, row.image.hotspotX,
      row.image.hotspotY, row.bytes.size, row.bytes.offset, row.encoding(), row.isUsable ? "true" : "false");
}

}  // namespace

void printAniAsText(const std::string& path, Bytes file) {
  const AniReading reading = readAniFile(file);
  const FilmTexts t = textsOf(reading, ReadANIFileFrames(file), kText);
  std::printf("%s\tani", printable(path).c_str());
  for (const std::string* text : {&t.title, &t.artist, &t.frames, &t.steps, &t.rate, &t.flags, &t.rates, &t.sequence,
                                  &t.jiffies, &t.hotspotX, &t.hotspotY})
    std::printf("\t%s", text->c_str());
  std::putchar('\n');
  for (std::size_t i = 0; i < reading.file.images.size(); ++i) printText(path, rowOf(file, reading.file.images[i], i));
}

void printAniAsJson(const std::string& path, Bytes file) {
  const AniReading reading = readAniFile(file);
  const FilmTexts t = textsOf(reading, ReadANIFileFrames(file), kJson);
  std::printf(
      "{\"file\":%s,\"kind\":\"ani\",\"title\":%s,\"artist\":%s,\"frames\":%s,\"steps\":%s,\"rate\":%s,\"flags\":%s,"
      "\"rates\":%s,\"sequence\":%s,\"jiffies\":%s,\"hotspotX\":%s,\"hotspotY\":%s,\"images\":[",
      jsonText(path).c_str(), t.title.c_str(), t.artist.c_str(), t.frames.c_str(), t.steps.c_str(), t.rate.c_str(),
      t.flags.c_str(), t.rates.c_str(), t.sequence.c_str(), t.jiffies.c_str(), t.hotspotX.c_str(), t.hotspotY.c_str());
  for (std::size_t i = 0; i < reading.file.images.size(); ++i) {
    std::fputs(i == 0 ? "\n" : ",\n", stdout);
    printJson(rowOf(file, reading.file.images[i], i));
  }
  std::fputs("]}", stdout);
}

}  // namespace gp::cli

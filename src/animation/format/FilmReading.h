// Reads an animated cursor file as a film: the steps as they are played, each as a frame of 32 x 32 pixels. Steps
// follow the sequence if the flags announce one and it is there; otherwise all images of the file follow each other,
// whatever numbers the header states. The bytes are untrusted.
#pragma once

#include "animation/format/FilmFrame.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace gp {

enum class FilmDefect {
  None,
  NoFrames,       // not an animated cursor, or one without frames that can be counted
  TooManyFrames,  // more than cMaxAniFrames, or more than 127 steps
  FrameNotDrawn,  // its image is damaged, or the sequence names one that is not there
  NoJiffies       // not a RIFF file, or without a header
};

// What a film does not keep of the file it was read from.
struct FilmLosses {
  bool alpha = false;  // other values than opaque and transparent
  bool sequence = false;
  bool sizes = false;  // images of another size than 32 x 32, or several in a frame
  bool rates = false;  // above 90 jiffies

  // "alpha, sequence", in this order; empty without losses.
  std::string text() const;
  // "Will not be kept: alpha, sequence"; empty without losses.
  std::string notice() const;
};

struct ReadFilm {
  FilmDefect defect = FilmDefect::None;
  int failedFrame = 0;            // from 0, for FrameNotDrawn
  std::vector<FilmFrame> frames;  // empty with a defect
  FilmLosses losses;

  bool isRead() const { return defect == FilmDefect::None; }
};

// Returns the number of frames of a film, 1 for a cursor that does not move; 0 for a file that cannot be read.
int countAniFrames(std::span<const std::uint8_t> file);
// Reads all frames, with their times and the hot spot.
ReadFilm ReadANIFileFrames(std::span<const std::uint8_t> file);
// The reason why a film was not read, in one line without the file's path; empty for one that was.
std::string describe(const ReadFilm& film);
// The same as the message of the session, with the path.
std::string refusalOf(const ReadFilm& film, const std::string& path);

}  // namespace gp

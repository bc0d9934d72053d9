// The frames of an animated cursor: its steps as they are played, or the one picture of a cursor that does not move.
#pragma once

#include "extraction/IconSource.h"
#include "platform/files/Files.h"

#include <optional>
#include <span>
#include <vector>

namespace gp {

// Frames as they are saved: one for each step that can be drawn, with its number from 0.
struct NumberedFrame {
  int index = 0;
  IconImage handle;
};

class AniSource final : public IconSource {
 public:
  // Null when the file has no frames.
  static std::unique_ptr<AniSource> open(const std::string& path);

  int count() const override { return count_; }
  std::string fileOf(int) const override { return path_; }
  // Reads the file again, which can have changed.
  bool begin() override;
  bool isOneFile() const override { return true; }
  ListCell cell(int index) override;
  FetchedIcon fetch(int index) override;
  // Empty when it cannot be drawn.
  std::optional<IconImage> frame(int index) const;

 private:
  explicit AniSource(std::string path) : path_(std::move(path)) {}
  std::span<const std::uint8_t> bytesOf(int index) const;

  std::string path_;
  int count_ = 0;
  FileBytes file_;
  std::vector<std::span<const std::uint8_t>> steps_;  // in file_; empty for a step whose image is not there
};

}  // namespace gp

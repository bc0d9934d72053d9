// Builds files of the NE format byte by byte for the tests of readers; every field can be given a wrong value.
#pragma once

#include "support/IconResources.h"

#include <map>
#include <optional>

namespace gp::test {

struct NeOptions {
  int shift = 4;
  std::optional<int> statedShift = {};
  std::optional<std::uint32_t> resourceTable = {}, nameTable = {};  // offsets from the header
};

inline constexpr std::size_t kNeHeader = 0x40, kNeTable = 0x40;

// The resource table and the data behind it. Types and resources are in the order given.
class NeResources {
 public:
  NeResources(const std::vector<Resource>& resources, const NeOptions& options)
      : resources_(resources), options_(options) {}

  Bytes bytes() {
    out_.assign(kNeHeader + kNeTable, 0);
    put16(out_, static_cast<std::uint32_t>(options_.statedShift.value_or(options_.shift)));
    for (std::size_t i = 0; i < resources_.size();) i = addType(i);
    put16(out_, 0);
    for (const auto& [place, name] : names_) addName(place, name);
    out_.push_back(0);
    for (const auto& [place, data] : data_) addData(place, *data);
    return out_;
  }

 private:
  void set(std::size_t at, std::size_t value) {
    out_.at(at) = static_cast<std::uint8_t>(value);
    out_.at(at + 1) = static_cast<std::uint8_t>(value >> 8);
  }

  std::size_t addType(std::size_t first) {
    std::size_t end = first;
    while (end < resources_.size() && resources_[end].type == resources_[first].type) ++end;
    put16(out_, 0x8000U | static_cast<std::uint32_t>(resources_[first].type));
    put16(out_, static_cast<std::uint32_t>(end - first));
    put32(out_, 0);
    for (std::size_t i = first; i < end; ++i) addResource(resources_[i]);
    return end;
  }

  void addResource(const Resource& resource) {
    data_.emplace_back(out_.size(), &resource.data);
    put32(out_, 0);
    put16(out_, 0x1C10);
    if (!resource.name.empty()) names_.emplace_back(out_.size(), resource.name);
    put16(out_, 0x8000U | static_cast<std::uint32_t>(resource.id));
    put32(out_, 0);
  }

  void addName(std::size_t place, const std::u16string& name) {
    set(place, out_.size() - kNeHeader - kNeTable);
    out_.push_back(static_cast<std::uint8_t>(name.size()));
    for (const char16_t unit : name) out_.push_back(static_cast<std::uint8_t>(unit));
  }

  void addData(std::size_t place, const Bytes& data) {
    const std::size_t unit = std::size_t{1} << options_.shift;
    out_.resize((out_.size() + unit - 1) / unit * unit, 0);
    set(place, out_.size() / unit);
    set(place + 2, (data.size() + unit - 1) / unit);
    out_.insert(out_.end(), data.begin(), data.end());
    out_.resize((out_.size() + unit - 1) / unit * unit, 0);
  }

  const std::vector<Resource>& resources_;
  const NeOptions& options_;
  std::vector<std::pair<std::size_t, std::u16string>> names_;
  std::vector<std::pair<std::size_t, const Bytes*>> data_;
  Bytes out_;
};

// An NE file with these resources, and zero in every field that is not needed to find them.
inline Bytes neWith(const std::vector<Resource>& resources, const NeOptions& options = {}) {
  Bytes out = NeResources(resources, options).bytes();
  out[0] = 'M', out[1] = 'Z', out[0x3C] = kNeHeader;
  out[kNeHeader] = 'N', out[kNeHeader + 1] = 'E';
  const auto setOffset = [&](std::size_t at, std::uint32_t value) {
    out[kNeHeader + at] = static_cast<std::uint8_t>(value);
    out[kNeHeader + at + 1] = static_cast<std::uint8_t>(value >> 8);
  };
  setOffset(0x24, options.resourceTable.value_or(kNeTable));
  setOffset(0x26, options.nameTable.value_or(0));
  return out;
}

}  // namespace gp::test

// Finds the range that has an address. Ranges can overlap; the one that was added first has the addresses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace gp {

class AddressMap {
 public:
  // Add ranges, then build(), then find().
  void add(std::uint64_t first, std::uint64_t size, std::size_t owner);
  void build();
  // The owner of an address.
  std::optional<std::size_t> find(std::uint64_t address) const;

 private:
  struct Range {
    std::uint64_t first = 0, end = 0;
    std::size_t owner = 0;
    std::size_t order = 0;  // of addition
  };
  // From an address to the next piece, one owner or none.
  struct Piece {
    std::uint64_t first = 0;
    std::optional<std::size_t> owner;
  };

  std::vector<Range> ranges_;
  std::vector<Piece> pieces_;
};

}  // namespace gp

#include "platform/resources/SourceReader.h"

namespace gp {

std::uint8_t SourceReader::u8(std::uint64_t at) {
  if (at >= size_) return 0;
  const std::uint64_t number = at / kPageSize;
  Page& page = pages_[number % kPages];
  if (page.bytes.empty() || page.number != number) fill(page, number);
  return page.bytes[at % kPageSize];
}

void SourceReader::fill(Page& page, std::uint64_t number) {
  page.number = number;
  page.bytes.assign(kPageSize, 0);
  source_.read(number * kPageSize, page.bytes);
}

}  // namespace gp

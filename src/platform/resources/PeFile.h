// The headers of a file of the PE format: where the bytes at an address of the program are in its file, and where its
// resources begin.
#pragma once

#include "platform/resources/AddressMap.h"
#include "platform/resources/IconLibrary.h"
#include "platform/resources/SourceReader.h"

#include <cstdint>
#include <vector>

namespace gp {

class PeFile {
 public:
  // `header` is the position of the signature. The reader must outlive it.
  PeFile(SourceReader& reader, std::uint64_t header);

  // The part of [address, address + size) that is in the file. Size 0 for an address without bytes in it.
  ResourcePlace placeOf(std::uint32_t address, std::uint32_t size) const;
  // All bytes from the resource directory to the end of its section. Size 0 without resources.
  ResourcePlace resources() const;

 private:
  struct Section {
    bool isNamedResources = false;
    std::uint32_t address = 0;
    std::uint32_t memorySize = 0;
    std::uint32_t offset = 0;
    std::uint32_t fileSize = 0;
  };

  void readSections(std::uint64_t table, int count);
  // The address that the headers state; 0 if they state none.
  std::uint32_t statedResources(std::uint64_t optionalHeader, std::uint64_t size) const;
  // The bytes of a section can be more in the file than in memory; they come behind the memory of all sections.
  void mapSections();
  ResourcePlace partInFile(std::uint64_t offset, std::uint64_t size) const;

  SourceReader& reader_;
  std::vector<Section> sections_;
  AddressMap addresses_;  // of the sections
  std::uint32_t headersSize_ = 0;
  std::uint32_t resources_ = 0;
};

}  // namespace gp

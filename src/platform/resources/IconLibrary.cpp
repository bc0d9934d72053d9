#include "platform/resources/IconLibrary.h"

namespace gp {

std::string IconGroup::label() const { return name.empty() ? "#" + std::to_string(id) : name; }
std::unique_ptr<IconLibrary> IconLibrary::open(const std::string&) { return nullptr; }
std::unique_ptr<IconLibrary> IconLibrary::parse(const ByteSource&) { return nullptr; }
std::vector<std::uint8_t> IconLibrary::bytesAt(const ResourcePlace&) const { return {}; }

}  // namespace gp

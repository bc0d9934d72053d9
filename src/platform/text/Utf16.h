// Converts text in UTF-16, as files of Windows have it, to UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace gp {

// Half of a surrogate pair without its other half becomes U+FFFD.
std::string utf8Of(std::u16string_view text);

}  // namespace gp

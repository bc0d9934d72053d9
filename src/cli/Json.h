// Just enough JSON for writing.
#pragma once

#include <string>
#include <string_view>

namespace gp::cli {

// A text in quotes. Bytes that are no valid UTF-8 become lone surrogates "\udc80" to "\udcff", so that no two file
// names look alike and a reader can get the bytes back.
std::string jsonText(std::string_view text);

}  // namespace gp::cli

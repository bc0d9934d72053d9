// Finds the files that the icons in the six containers were loaded from. Two paths to the same file are equal.
#pragma once

#include "document/IconContainerRec.h"

#include <optional>
#include <string>

namespace gp {

struct EditState;

bool isFileOf(const IconContainerRec& record, const std::string& path);
inline constexpr int kNoContainer = -1;
// The first container, other than `except`, whose icon was loaded from the file.
std::optional<int> findContainerOf(const EditState& state, const std::string& path, int except = kNoContainer);

}  // namespace gp

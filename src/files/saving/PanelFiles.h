// Which files the icons in the six containers came from. A file counts as the same however its path is spelled.
#pragma once

#include "document/EditState.h"

#include <optional>
#include <string>

namespace gp {

bool isFileOf(const IconContainerRec& record, const std::string& path);
// The first container whose icon came from the file.
std::optional<int> findContainerOf(const EditState& state, const std::string& path);

}  // namespace gp

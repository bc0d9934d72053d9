// The checks before anything of the program shows: a second instance, the companion program, the screen, the system's
// folders. What they find out goes into the edit state; windows are the caller's.
#pragma once

#include "platform/files/Files.h"

#include <string>

namespace gp {

class MessageBoxes;
class Processes;
class SystemInfo;
struct EditState;

// Title of the about screen, by which a second instance finds and closes it.
inline constexpr const char* kAboutTitle = "Glimmerpane By Zorvex Lattice";
// The companion program, which handles icons of odd sizes.
inline constexpr const char* kCompanionProgram = "gpsupp1.exe";

// Runs the checks in their order. False when the process must end; the user has been told why. Fills the screen depth
// and the folders of `state.process` and makes gAlphaValues 1 x 1. `folder` is the program's folder.
[[nodiscard]] bool runStartUpChecks(SystemInfo& system, Processes& processes, MessageBoxes& boxes, EditState& state,
                                    const std::string& folder = programFolder());

}  // namespace gp

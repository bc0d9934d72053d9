#include "shell/PanelCommands.h"

#include "shell/CommandTable.h"

#include <algorithm>
#include <string_view>

namespace gp {
namespace {

constexpr int kAll = -2;  // indices of a control

struct PanelCommand {
  std::string_view control;
  int index;
};

constexpr PanelCommand kPanelCommands[] = {
    {"mnuFileSub", 18},       {"mnuPopUpSub", 5},          {"mnuRotateSubmenu", 4},
    {"mnuEffectsSub", kAll},  {"mnuEffectsSub1", kAll},    {"mnuEffectsSub2", kAll},
    {"mnuEffectsSub3", kAll}, {"mnuEnquiryCurrent", 7},    {"mnuEnquiryCurrent", 10},
    {"mnuExtractSub", 7},     {"mnuANIFileHistory", kAll}, {"mnuANIFileCreateOrEdit", kNoIndex},
};

}  // namespace

bool opensPanel(const Command& command) {
  return std::ranges::any_of(kPanelCommands, [&](const PanelCommand& row) {
    return row.control == command.control && (row.index == kAll || row.index == command.index);
  });
}

}  // namespace gp

#include "shell/UnsavedQuestion.h"

#include "document/EditState.h"
#include "extraction/format/ExtractedIcon.h"

namespace gp {
namespace {

// Intended: a never-saved icon in the current container makes every used container count as unsaved. Clearing a
// container leaves its flags, which mean nothing then.
bool isUnsaved(const IconContainerRec& record, const EditState& state) {
  const bool isCurrentNew = state.current().used && state.current().neverSaved;
  return record.used && (record.modified || isCurrentNew || isUnsavedExtraction(record));
}

std::string lineOf(int container, const IconContainerRec& record) {
  return "Icon Seq " + std::to_string(container + 1) + "    " + record.path.trimmed() + "\n";
}

}  // namespace

std::string unsavedQuestion(const EditState& state) {
  std::string lines;
  int count = 0;
  for (int i = 0; i < kContainerCount; ++i) {
    const IconContainerRec& record = state.mIconRecs.at(i);
    if (!isUnsaved(record, state)) continue;
    lines += lineOf(i, record);
    ++count;
  }
  if (count == 0) return {};
  const std::string verb = count == 1 ? "is" : "are";
  return "The following " + verb + " not saved yet: \n\n" + lines + "\nProceed to exit still?\n";
}

}  // namespace gp

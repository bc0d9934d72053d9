#include "document/Containers.h"

#include "document/AlphaGreys.h"
#include "document/EditState.h"
#include "document/IconImage.h"
#include "platform/gdi/SurfaceOps.h"

namespace gp {

namespace {

constexpr const char* kEmptyName = "empty";

bool isOfSize(const Surface& surface, int size) { return surface.width() == size && surface.height() == size; }

AlphaMatrix& currentAlphaRec(EditState& state) {
  return state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer));
}

}  // namespace

void ClearContainer(EditState& state) {
  const auto container = static_cast<std::size_t>(state.mCurContainer);
  state.picPanelIcon.at(container).clearPicture();
  state.picPanelImage.at(container).clearPicture();
  state.picPanelMask.at(container).clearPicture();

  IconContainerRec& record = state.current();
  record.used = false;
  record.sourceLabel = "";
  record.dirColors = 0;
  record.bitCount = 0;
  record.hasAlpha = false;
  record.bihColors = 0;
  record.bihBitCount = 0;
  record.present = false;
  record.size = kDefaultIconSize;
  record.path = "";
  record.origin = {};
  PrepareAlphaRec(state);
}

IconContainerRec NewRecord() {
  IconContainerRec record;
  record.used = true;
  record.sourceLabel = "New icon";
  record.present = true;
  record.path = "Untitled";
  return record;
}

std::string nameOf(const IconContainerRec& record) {
  const std::string path = record.path.trimmed();
  if (!record.used || path.empty()) return kEmptyName;
  // Below a root, the other separator is a letter of a name.
  const std::size_t folder = path.find_last_of(path.front() == '/' ? "/" : "/\\");
  return folder == std::string::npos ? path : path.substr(folder + 1);
}

void SetRecord(EditState& state, int container, const IconImage& icon, const IconContainerRec& record) {
  IconContainerRec& target = state.mIconRecs.at(static_cast<std::size_t>(container));
  const std::int16_t seq = target.seq;
  target = record;
  target.seq = seq;
  target.used = true;
  target.size = static_cast<std::int16_t>(icon.width());

  AlphaMatrix& alpha = state.mAlphaRecs.at(static_cast<std::size_t>(container));
  const bool keepsAlpha = target.isAlphaIcon() && icon.alpha.isOfSize(target.size);
  alpha = keepsAlpha ? icon.alpha : AlphaMatrix();
  if (keepsAlpha || !target.hasAlpha) return;
  target.hasAlpha = false;
  target.bitCount = kBitsWithoutAlpha;
}

bool PrepareAlphaRec(EditState& state) {
  if (state.mInLoad) return false;
  const IconContainerRec& record = state.current();
  AlphaMatrix& alpha = currentAlphaRec(state);
  alpha = AlphaMatrix();
  if (!record.isAlphaIcon() || !isOfSize(state.picAlpha, record.size)) return false;
  alpha = AlphaMatrix(record.size, record.size);
  return true;
}

bool AlphaRecIsReady(const EditState& state) {
  const AlphaMatrix& alpha = state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer));
  return state.current().isAlphaIcon() && alpha.isOfSize(state.current().size);
}

bool StoreAlphaToRec(EditState& state) {
  if (!isOfSize(state.picAlpha, state.current().size)) return false;
  currentAlphaRec(state) = alphaOf(state.picAlpha);
  return true;
}

bool LoadAlphaFromRec(EditState& state) {
  const int size = state.current().size;
  const AlphaMatrix& alpha = currentAlphaRec(state);
  if (!state.current().present || !alpha.isOfSize(size) || !isOfSize(state.picAlpha, size)) return false;
  BitbltPic(greysOf(alpha), state.picAlpha);
  state.picAlpha.makePersistent();
  return true;
}

}  // namespace gp

#include "effects/TexturePanel.h"

#include "document/EditState.h"
#include "document/ListTables.h"
#include "effects/Texture.h"
#include "files/FileQuestions.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/PictureLoader.h"

#include <array>
#include <utility>

namespace gp {
namespace {

constexpr const char* kFilter =
    "(*.bmp/*.gif/*.jpg/*.jpeg)|*.bmp;*.gif;*.jpg;*.jpeg|(*.bmp)|*.bmp|(*.gif)|*.gif|(*.jpg/*.jpeg)|*.jpg;*.jpeg|"
    "(*.wmf/*.emf)|*.wmf;*.emf|";
constexpr const char* kCustom = "Custom";

struct ListRow {
  const char* control;
  TextureSetting setting;
  int lowest;  // the value of the first entry
};
// In the order of TextureList.
constexpr std::array kLists{ListRow{"cboTexturize(0)", TextureSetting::Depth, kLeastDepth},
                            ListRow{"cboTexturize(1)", TextureSetting::Pattern, 0},
                            ListRow{"cboTexturize(2)", TextureSetting::Style, 0}};

const ListRow& rowOf(TextureList list) { return kLists.at(static_cast<std::size_t>(list)); }

}  // namespace

TexturePanel::TexturePanel(EffectFrame& frame, clsGPDialog& dialog, PictureLoader& pictures)
    : EffectPanel(frame, kNumber), dialog_(dialog), pictures_(pictures), values_(firstValues(kTexture.settings)) {
  drawPattern();
}

void TexturePanel::open(const EffectRow& effect) {
  if (frame().mayApply(effect, values_)) show();
}

FilledList TexturePanel::listOf(TextureList list) const {
  FilledList filled = fillList(rowOf(list).control);
  if (list == TextureList::Pattern && !values_.pictures().empty()) filled.entries.emplace_back(kCustom);
  return filled;
}

int TexturePanel::choiceOf(TextureList list) const {
  return values_.number(indexOf(rowOf(list).setting)) - rowOf(list).lowest;
}

void TexturePanel::pick(TextureList list, int index) {
  if (index < 0 || index >= static_cast<int>(listOf(list).entries.size())) return;
  values_.set(indexOf(rowOf(list).setting), rowOf(list).lowest + index);
  preview();
}

void TexturePanel::cmdTextureOpen() {
  const std::string path = askToOpen(frame().state().process, dialog_, kFilter);
  if (!path.empty()) load(path);
}

void TexturePanel::load(const std::string& path) {
  MessageBoxes& boxes = frame().context().boxes;
  LoadedPicture loaded = pictures_.loadPicture(path, kPatternSide, kPatternSide);
  if (loaded.problem == PictureProblem::Unreadable) return boxes.tell(kPatternNotLoaded);
  if (const std::string refusal = refusalOfPattern(loaded.width, loaded.height); !refusal.empty())
    return boxes.tell(refusal);
  values_.setPictures({{std::move(loaded.picture), Surface(), {}}});
  pick(TextureList::Pattern, kStoredPatterns);
}

IconImage TexturePanel::apply(const IconImage& icon) const { return kTexture.apply(icon, values_); }

void TexturePanel::drawPattern() { picTexturize_ = patternOf(values_); }

bool TexturePanel::mayProceed() { return frame().mayApply(kTexture, values_); }

}  // namespace gp

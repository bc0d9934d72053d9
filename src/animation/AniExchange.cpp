#include "animation/AniExchange.h"

#include "animation/AniState.h"
#include "animation/AniTexts.h"
#include "animation/FrameExchange.h"
#include "document/Announcements.h"
#include "document/Compositing.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Messages.h"
#include "files/FileQuestions.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {
void AniExchange::fromEditingArea() {
  const unsigned serial = ani_.filmSerial;
  context_.document.iconsPanel.CommitPendingPaint();
  // To commit can ask a question, during which another command can end the session.
  if (ani_.filmSerial != serial || isRefused()) return;
  const EditState& state = context_.state;
  ani_.frames.setPicture(pictureOfIcon(composedIcon(state.picImage, state.picMask), state.picMask));
  ani_.framesChanged();
  context_.display.announce(news::frameFromIcon(ani_.frames.current()));
}

bool AniExchange::isRefused() {
  const IconContainerRec& record = context_.state.current();
  const char* refusal = nullptr;
  if (record.depth().hasAlpha())
    refusal = kNoAlphaInFrames;
  else if (!record.present)
    refusal = kNoIconYet;
  else if (record.size != kFrameSide)
    refusal = kIconOfOtherSize;
  if (refusal) context_.boxes.tell(refusal);
  return refusal != nullptr;
}

void AniExchange::toEditingArea() {
  const unsigned film = ani_.filmSerial;
  context_.document.iconsPanel.CommitPendingPaint();
  if (ani_.filmSerial != film) return;
  // Another icon can be the Current Icon after the question.
  const unsigned icon = context_.state.iconSerial;
  if (!mayCurrentIconGo(context_) || ani_.filmSerial != film || context_.state.iconSerial != icon) return;
  const int number = ani_.frames.current();
  const IconOfFrame frame = iconOfFrame(ani_.frames.currentFrame().picture, number);
  context_.document.arrival.arrive(frame.icon, frame.record);
  context_.display.announce(news::iconFromFrame(number));
}

void AniExchange::LoadIconFileToFrame() {
  const unsigned serial = ani_.filmSerial;
  const std::string path = askToOpen(context_, kIconFilter);
  if (path.empty() || ani_.filmSerial != serial) return;
  const LoadedPicture loaded = loadIconFile(path);
  if (!loaded.isLoaded())
    return context_.boxes.tell(loaded.refusal, loaded.isHint ? BoxIcon::Information : BoxIcon::Exclamation);
  ani_.frames.loadPicture(loaded.picture);
  ani_.framesChanged();
}

}  // namespace gp

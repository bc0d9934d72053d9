// The face of the room: creates the animated cursor session. Contains no logic.
#pragma once

#include "animation/AniSession.h"

namespace gp {

struct Animation {
  Animation(const FilesContext& context, Timer& timer) : session(context, timer) {}
  Animation(const Animation&) = delete;
  Animation& operator=(const Animation&) = delete;

  AniSession session;
};

}  // namespace gp

#include "animation/AniTest.h"

namespace gp {

void AniTest::start() {}
void AniTest::stop() {}
void AniTest::tick() {}

}  // namespace gp

// Not watched yet: the routines keep their places in the load order and in the cycle.
#include "watchers/vertrauenswuerdige_seiten.h"

namespace kes {

void VertrauenswürdigeSeiten::LadeToolbar() {}
void VertrauenswürdigeSeiten::TesteToolBar() {}
void VertrauenswürdigeSeiten::TesteToolBar1() {}

}  // namespace kes

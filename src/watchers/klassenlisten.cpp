// Not watched yet: the routines keep their places in the load order and in the cycle.
#include "watchers/klassenlisten.h"

namespace kes {

void Klassenlisten::LadeBHO() {}
void Klassenlisten::LadeShellService() {}
void Klassenlisten::LadeSharedTaskScheduler() {}
void Klassenlisten::LadeURLSearchHook() {}
void Klassenlisten::TesteBHO() {}
void Klassenlisten::TesteShellService() {}
void Klassenlisten::TesteSharedTaskScheduler() {}
void Klassenlisten::TesteSonstiges2() {}

}  // namespace kes

// Not watched yet: the routines keep their places in the load order and in the cycle.
#include "watchers/activex.h"

namespace kes {

void ActiveX::LadeActiveX() {}
void ActiveX::Testeactivx() {}

}  // namespace kes

// The special folders of the shell by CSIDL number; empty when the shell refuses.
#pragma once

#include <string>

#include "platform/seam/plattform.h"

namespace kes {

std::string Sysfolder(Plattform& p, int csidl);

}  // namespace kes

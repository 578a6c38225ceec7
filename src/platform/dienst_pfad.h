// The file of a service, worked out from what the registry holds for it: the ServiceDll of
// a shared host before its ImagePath, quotes and the arguments behind them dropped, the
// forms "%SystemRoot%", "\SystemRoot" and "system32\..." made whole, a bare name looked
// up in the Windows and system folders, and the "\??\" prefix of the kernel's paths taken
// off where the file behind it exists. The service watcher and the first-run assistant
// read service files this way.
#pragma once

#include <string>

#include "platform/seam/plattform.h"

namespace kes {

// The eight steps in their order; the result is lowered except for the folders put in front.
std::string DienstPfad(Plattform& p, const std::string& imagePath, const std::string& serviceDll,
                       const std::string& windowsordner, const std::string& systemordner);

}  // namespace kes

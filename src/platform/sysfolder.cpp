#include "platform/sysfolder.h"

namespace kes {

std::string Sysfolder(Plattform& p, int csidl) {
    std::string pfad = p.shell.SpecialFolder(csidl).value_or("");
    // The shell fills a fixed buffer; the path ends at its first NUL.
    const auto nul = pfad.find('\0');
    if (nul != std::string::npos) pfad.resize(nul);
    return pfad;
}

}  // namespace kes

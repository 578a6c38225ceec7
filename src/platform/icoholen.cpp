#include "platform/icoholen.h"

namespace kes {

void IcoHolen(Plattform& p, const std::string& pfad, SymbolBild& bild) {
    try {
        const int index = p.details.SystemIconIndex(pfad);
        if (index >= 0) bild.SystemIcon = index;
    } catch (...) {
        // An error ends the routine silently.
    }
}

}  // namespace kes

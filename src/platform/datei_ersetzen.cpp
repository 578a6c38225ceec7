#include "platform/datei_ersetzen.h"

namespace kes {

std::string ErsatzName(const std::string& pfad) {
    return pfad + ".neu";
}

bool DateiErsetzen(FileApi& files, const std::string& pfad, const std::string& inhalt) {
    const std::string neu = ErsatzName(pfad);
    // One left by a crash may have been made read-only since; it is ours to write over.
    files.SetAttributes(neu, kAttrNormal);
    if (files.WriteAll(neu, inhalt) && files.MoveReplacing(neu, pfad)) return true;
    files.Delete(neu);
    return false;
}

}  // namespace kes

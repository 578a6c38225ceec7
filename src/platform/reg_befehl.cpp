#include "platform/reg_befehl.h"

namespace kes {

bool RegNameSicher(const std::string& name) {
    if (name.empty()) return false;
    for (const char c : name)
        if (c == '"' || c == '\\' || (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F) return false;
    return true;
}

std::string RegDelete(const std::string& pfad, const std::string& name, const std::string& schalter) {
    const bool zitieren = name.find_first_of(" \t") != std::string::npos;
    // Inside the quotes no backslash stands before the closing one: the name has none.
    const std::string schlüssel = zitieren ? "\"" + pfad + name + "\"" : pfad + name;
    return "REG DELETE " + schlüssel + " " + schalter;
}

std::string RegNameUnsicherText(const std::string& name) {
    return "Der Eintrag kann nicht gelöscht werden:\r\n" + name +
           "\r\nSein Name enthält Zeichen, mit denen der Befehl REG DELETE einen anderen Schlüssel löschen "
           "würde.\r\nEs wurde nichts gelöscht.";
}

}  // namespace kes

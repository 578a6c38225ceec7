#include "platform/dfue.h"

namespace kes {

namespace {
std::string BisNul(const std::string& s) {
    return s.substr(0, s.find('\0'));
}
}  // namespace

std::optional<std::vector<std::string>> DFUEintraege(Plattform& p) {
    std::vector<std::string> namen;
    if (p.dialup.EnumEntries(&namen) != 0) return std::nullopt;
    for (auto& n : namen) n = BisNul(n);
    return namen;
}

bool DFUEigenschaften(Plattform& p, const std::string& name, std::string& landeskennzahl, std::string& vorwahl,
                      std::string& nummer) {
    // The first call only asks for the size: anything but "buffer too small" means no entry.
    std::uint32_t grösse = 0;
    if (p.dialup.EntryPropertiesSize(name, &grösse) != kRasPufferZuKlein) return false;
    DfuEintrag e;
    if (p.dialup.EntryProperties(name, grösse, &e) != 0) return false;
    landeskennzahl = e.countryCode == 0 ? std::string() : std::to_string(e.countryCode);
    vorwahl = BisNul(e.areaCode);
    nummer = BisNul(e.localPhoneNumber);
    return true;
}

bool DFULoeschen(Plattform& p, const std::string& name) {
    return p.dialup.DeleteEntry(name) == 0;
}

void DFUBearbeiten(Plattform& p, const std::string& name, std::uintptr_t fenster) {
    p.dialup.EditEntry(fenster, name);
}

}  // namespace kes

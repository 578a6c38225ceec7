#include "platform/dienst_pfad.h"

#include "common/text.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"

namespace kes {

std::string DienstPfad(Plattform& p, const std::string& imagePath, const std::string& serviceDll,
                       const std::string& windowsordner, const std::string& systemordner) {
    // A shared host names the same file for all its services; the DLL tells them apart.
    std::string pfad = serviceDll.empty() ? imagePath : serviceDll;
    if (!pfad.empty() && pfad.front() == '"') pfad.erase(0, 1);
    if (!pfad.empty() && pfad.back() == '"') pfad.pop_back();
    // A quoted path with arguments behind it: the path alone. Unquoted ones keep theirs.
    if (const auto letztes = pfad.rfind('"'); letztes != std::string::npos) pfad.erase(letztes);
    pfad = PfadErweitern(pfad, windowsordner);
    if (Klein(pfad.substr(0, 8)) == "system32") pfad = windowsordner + "\\" + pfad;
    if (!DateiVorhanden(p, pfad) && Klein(pfad.substr(0, 3)) != Klein(windowsordner.substr(0, 3))) {
        if (DateiVorhanden(p, windowsordner + "\\" + pfad))
            pfad = windowsordner + "\\" + pfad;
        else if (DateiVorhanden(p, systemordner + "\\" + pfad))
            pfad = systemordner + "\\" + pfad;
    }
    if (pfad.compare(0, 4, "\\??\\") == 0 && DateiVorhanden(p, pfad.substr(4))) pfad.erase(0, 4);
    return pfad;
}

}  // namespace kes

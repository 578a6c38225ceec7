#include "platform/dateiliste.h"

#include <algorithm>

#include "common/text.h"

namespace kes {

namespace {
bool IstOrdner(Plattform& p, const std::string& pfad) {
    const std::uint32_t a = p.files.GetAttributes(pfad);
    return a != kInvalidAttributes && (a & kAttrDirectory);
}
}  // namespace

std::optional<std::vector<std::string>> DateienListen(Plattform& p, const std::string& ordnerIn) {
    std::string ordner = ordnerIn;
    while (ordner.size() > 3 && ordner.back() == '\\') ordner.pop_back();
    if (ordner.empty() || !IstOrdner(p, ordner)) return std::nullopt;
    const std::string muster = ordner.back() == '\\' ? ordner + "*.*" : ordner + "\\*.*";

    std::vector<std::string> namen;
    FindData fd;
    const FileFind h = p.files.FindFirst(muster, &fd);
    if (!h) return namen;
    do {
        if (fd.attributes & (kAttrDirectory | kAttrHidden | kAttrSystem)) continue;
        namen.push_back(fd.name.substr(0, fd.name.find('\0')));
    } while (p.files.FindNext(h.Get(), &fd));
    // The control sorts its names; the file system's own order differs between machines.
    std::stable_sort(namen.begin(), namen.end(),
                     [](const std::string& a, const std::string& b) { return Klein(a) < Klein(b); });
    return namen;
}

bool PfadSetzen(Plattform& p, FileListBox& liste, const std::string& ordner) {
    std::string o = ordner;
    while (o.size() > 3 && o.back() == '\\') o.pop_back();
    if (o.empty() || !IstOrdner(p, o)) return false;
    liste.Path = ordner;
    return true;
}

void Aktualisieren(Plattform& p, FileListBox& liste) {
    liste.Items = DateienListen(p, liste.Path).value_or(std::vector<std::string>{});
}

}  // namespace kes

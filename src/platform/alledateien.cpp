#include "platform/alledateien.h"

#include <algorithm>

#include "common/text.h"

namespace kes {

namespace {
constexpr std::uint32_t kOrdnerAttribut = 0x10;

// A name as the API gives it ends at its first NUL.
void BisNul(std::string& name) {
    if (const auto nul = name.find('\0'); nul != std::string::npos) name.resize(nul);
}

// The hits' buffer of the last pass, kept for the next: a folder of thousands of files
// would otherwise map fresh pages at every pass (under Wine 80 to 150 us a buffer of a few
// hundred KB). A pass takes it and gives it back; a pass started by a message during this
// one's yields finds it taken and allocates its own.
std::vector<FindRecord>& Vorrat() {
    static std::vector<FindRecord> vorrat;
    return vorrat;
}

// One pass over the folder. The first records files and notes subfolders; the second,
// made only when a filter hid the subfolders, notes subfolders alone. The hits are read
// whole and the walk closed before the window messages run between them.
void Durchgang(Plattform& p, const std::string& ordner, const std::string& filter, bool dateien, bool recurse,
               std::vector<DateiEintrag>& records, std::vector<std::string>& unterordner) {
    const std::string muster = ordner + "\\" + filter;
    std::vector<FindRecord> treffer = std::move(Vorrat());
    treffer.clear();
    struct Zurück {
        std::vector<FindRecord>& treffer;
        ~Zurück() {
            if (treffer.capacity() > Vorrat().capacity()) Vorrat() = std::move(treffer);
        }
    } zurück{treffer};
    {
        FindRecord fd;
        const DetailFind h = p.details.FindFirst(muster, &fd);
        if (!h) return;
        do treffer.push_back(std::move(fd));
        while (p.details.FindNext(h.Get(), &fd));
    }
    const std::string ordnerText = muster.substr(0, muster.find_last_of('\\') + 1);
    // Grown as push_back would grow it: a deep walk reserves once per folder.
    if (const std::size_t nötig = records.size() + treffer.size(); dateien && nötig > records.capacity())
        records.reserve(std::max(nötig, 2 * records.capacity()));
    for (FindRecord& fd : treffer) {
        std::string name = std::move(fd.name);
        BisNul(name);
        if (!(fd.attributes & kOrdnerAttribut)) {
            if (dateien) {
                records.emplace_back();
                p.timers.PumpMessages();
                DateiEintrag& e = records.back();
                e.Ordner = ordnerText;
                e.Kurzname = std::move(fd.shortName);
                BisNul(e.Kurzname);
                if (e.Kurzname.empty()) e.Kurzname = name;
                e.Name = std::move(name);
                e.Erstellt = fd.creationTime;
                e.Zugriff = fd.lastAccessTime;
                e.Geschrieben = fd.lastWriteTime;
                e.Grösse = fd.sizeLow;
                e.GrösseHoch = fd.sizeHigh;
                e.Attribute = fd.attributes;
            }
        } else if (recurse && name != "." && name != "..") {
            unterordner.push_back(std::move(name));
        }
        p.timers.PumpMessages();
    }
}
}  // namespace

void DateienSuchen(Plattform& p, const std::string& ordnerIn, bool recurse, const std::string& filter,
                   std::vector<DateiEintrag>& records) {
    p.timers.PumpMessages();
    std::string ordner = ordnerIn;
    if (!ordner.empty() && ordner.back() == '\\') ordner.pop_back();

    std::vector<std::string> unterordner;
    Durchgang(p, ordner, filter, true, recurse, records, unterordner);
    if (!recurse) return;
    // The filter hid the subfolders: a second look with "*.*" finds them. A folder that
    // matched the filter is noted in both passes and so walked twice.
    if (filter != "*.*") Durchgang(p, ordner, "*.*", false, recurse, records, unterordner);
    for (const auto& name : unterordner) {
        p.timers.PumpMessages();
        DateienSuchen(p, ordner + "\\" + name, recurse, filter, records);
    }
}

std::string PfadErweitern(std::string& pfad, const std::string& windowsordner) {
    pfad = Klein(pfad);
    if (pfad.compare(0, 12, "%systemroot%") == 0) return windowsordner + pfad.substr(12);
    if (pfad.compare(0, 11, "\\systemroot") == 0) return windowsordner + pfad.substr(11);
    if (pfad.compare(0, 8, "%windir%") == 0) return windowsordner + pfad.substr(8);
    return pfad;
}

void SpalteAnpassen(ListenFenster& liste, int spalte, int breite) {
    if (liste.View() != 3) return;
    if (spalte < 1 || spalte > liste.ColumnCount()) return;
    liste.SendMessage(kLvmSetColumnWidth, spalte - 1, breite);
}

void SpaltenAnpassen(ListenFenster& liste, int breite) {
    for (int spalte = 1; spalte <= liste.ColumnCount(); ++spalte) SpalteAnpassen(liste, spalte, breite);
}

}  // namespace kes

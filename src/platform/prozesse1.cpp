#include "platform/prozesse1.h"

#include <algorithm>

#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/sysfolder.h"

namespace kes {

namespace {
constexpr std::uint32_t kPfadPuffer = 500;

template <std::size_t N>
std::string BisNul(const std::array<char, N>& feld) {
    const auto ende = std::find(feld.begin(), feld.end(), '\0');
    return std::string(feld.begin(), ende);
}

std::string Trimmen(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

// Replace with text comparison: every place, found without regard to case.
std::string ErsetzenOhneFall(const std::string& text, const std::string& alt, const std::string& neu) {
    const std::string klein = Klein(text), altKlein = Klein(alt);
    std::string aus;
    std::size_t von = 0;
    for (auto pos = klein.find(altKlein); pos != std::string::npos; pos = klein.find(altKlein, von)) {
        aus += text.substr(von, pos - von) + neu;
        von = pos + alt.size();
    }
    return aus + text.substr(von);
}

// The processes of a snapshot, read whole; the snapshot is closed when this returns. Only
// the processes are asked for: the threads of every process and the program's own modules
// that a whole snapshot gathers besides are never read.
std::vector<ProzessDaten> ProzesseLesen(ProcessApi& api) {
    std::vector<ProzessDaten> liste;
    const ProzessEigner snap = api.CreateSnapshot(kSnapProcess, 0);
    ProzessDaten pe;
    for (bool ok = api.ProcessFirst(snap.Get(), &pe); ok; ok = api.ProcessNext(snap.Get(), &pe)) liste.push_back(pe);
    return liste;
}
}  // namespace

bool IstSystemProzess(const std::string& name) {
    return name == "[System Process]" || name == "System" || name == "System Idle Process";
}

void PfadSuchen(Plattform& p, ProcessRecord& r) {
    if (!r.Path.empty()) return;
    const std::string system = Sysfolder(p, kCsidlSystem);
    const std::string windows = Sysfolder(p, kCsidlWindows);
    for (const std::string& kandidat :
         {system + "\\" + r.Name, system + "\\wbem\\" + r.Name, windows + "\\" + r.Name}) {
        if (DateiVorhanden(p, kandidat)) {
            r.Path = kandidat;
            return;
        }
    }
}

std::string SystemVerzeichnis(Plattform& p) {
    char puffer[260] = {};
    const std::uint32_t n = p.processes.SystemDirectory(puffer, sizeof puffer);
    return std::string(puffer, std::min<std::uint32_t>(n, sizeof puffer));
}

std::string KurzerPfad(Plattform& p, const std::string& pfad) {
    char puffer[260] = {};
    const std::uint32_t n = p.processes.ShortPathName(pfad, puffer, sizeof puffer);
    // A result that does not fit gives the size it would need: nothing usable came back.
    if (n >= sizeof puffer) return "";
    return std::string(puffer, n);
}

bool ProzessBeenden(Plattform& p, std::uint32_t processId) {
    try {
        bool beendet = false;
        if (const ProzessEigner h = p.processes.OpenProcess(kProcessTerminate, processId))
            beendet = p.processes.TerminateProcess(h.Get(), 0);
        if (beendet) return true;
        const int antwort = p.dialogs.ShowMessage(
            "Diese Anwendung kann nicht geschlossen werden. Sie wird vielleicht gerade geschlossen, oder bearbeitet "
            "einen langwierigen Auftrag!\r\nSie können per Task-Manager (Prozeese) die Prozessstruktur "
            "beenden(Rechte Maustaste)?",
            "", kMbSystemModal | kMbYesNo);
        if (antwort == kIdYes) p.shell.RunCommand("taskmgr.exe cpl,,2", kSwShowNormal);
    } catch (...) {
        // Any error ends the routine with false.
    }
    return false;
}

// The walks read a snapshot whole and let the window messages run once it is closed, once
// for each round: a message handler never meets an open snapshot or process.
void Prozesse1::Nachholen(int pumpen) {
    while (pumpen-- > 0) p_.timers.PumpMessages();
}

void Prozesse1::ProzesseZaehlen() {
    const auto anzahl = static_cast<std::int32_t>(ProzesseLesen(p_.processes).size());
    Nachholen(anzahl);
    ProzessAnzahl = anzahl - 1;
}

void Prozesse1::ProzesseHolen() {
    ProzesseZaehlen();
    std::size_t i = 0;
    for (const ProzessDaten& pe : ProzesseLesen(p_.processes)) {
        p_.timers.PumpMessages();
        Prozesse.resize(i + 1);
        ProcessRecord& r = Prozesse[i];
        r.Name = BisNul(pe.szExeFile);
        r.ParentId = static_cast<std::int32_t>(pe.th32ParentProcessID);
        r.ProcessId = static_cast<std::int32_t>(pe.th32ProcessID);
        if (pe.cntThreads > 0) {
            r.Alive = true;
            r.ThreadCount = static_cast<std::int32_t>(pe.cntThreads);
        }
        int pumpen = 0;
        std::uint64_t erstellt = 0;
        {
            // One handle serves every module's path and the program's own: opened once, it
            // answers as one opened anew for each would, and spares two calls per module.
            const ProzessEigner h = p_.processes.OpenProcess(kProcessQueryRead, pe.th32ProcessID);
            if (h) erstellt = p_.processes.CreationTime(h.Get());
            r.Erstellt = erstellt;
            if (!Wiederholen(r, erstellt)) {
                const std::int32_t vorher = ModulZähler;
                ModuleHolen(pe.th32ProcessID, h.Get(), r.ModuleNames, r.ModulePaths, r.ModuleCount, pumpen);
                r.Path = Pfad(h.Get(), 0, r.Name);
                // A process caught while it starts may not have its program mapped yet.
                if (erstellt != 0 && !r.Path.empty()) gesehen_[r.ProcessId] = {erstellt, r, ModulZähler - vorher};
            }
        }
        Nachholen(pumpen);
        ++i;
    }
    ProzessAnzahl = static_cast<std::int32_t>(i) - 1;
    // Only what runs now is kept: an id used again later is walked as new.
    for (auto it = gesehen_.begin(); it != gesehen_.end();) {
        const bool läuft = std::any_of(Prozesse.begin(), Prozesse.end(),
                                       [&](const ProcessRecord& r) { return r.ProcessId == it->first; });
        it = läuft ? std::next(it) : gesehen_.erase(it);
    }
}

bool Prozesse1::Wiederholen(ProcessRecord& r, std::uint64_t erstellt) {
    const auto it = gesehen_.find(r.ProcessId);
    if (erstellt == 0 || it == gesehen_.end()) return false;
    const Gesehen& g = it->second;
    if (g.erstellt != erstellt || g.daten.Name != r.Name) {
        gesehen_.erase(it);
        return false;
    }
    r.ModuleNames = g.daten.ModuleNames;
    r.ModulePaths = g.daten.ModulePaths;
    r.ModuleCount = g.daten.ModuleCount;
    r.Path = g.daten.Path;
    ModulZähler += g.module;
    return true;
}

void Prozesse1::ModuleHolen(std::uint32_t processId, std::vector<std::string>& names, std::vector<std::string>& paths,
                            std::int32_t& count) {
    int pumpen = 0;
    {
        const ProzessEigner h =
            processId == 0 ? ProzessEigner() : p_.processes.OpenProcess(kProcessQueryRead, processId);
        ModuleHolen(processId, h.Get(), names, paths, count, pumpen);
    }
    Nachholen(pumpen);
}

void Prozesse1::ModuleHolen(std::uint32_t processId, ProzessHandle prozess, std::vector<std::string>& names,
                            std::vector<std::string>& paths, std::int32_t& count, int& pumpen) {
    if (processId == 0) {
        count = 0;
        return;
    }
    names.clear();
    paths.clear();
    count = 0;
    std::vector<ModulDaten> module;
    {
        const ProzessEigner snap = p_.processes.CreateSnapshot(kSnapModule, processId);
        ModulDaten me;
        for (bool ok = p_.processes.ModuleFirst(snap.Get(), &me); ok; ok = p_.processes.ModuleNext(snap.Get(), &me))
            module.push_back(me);
    }
    bool programmdatei = true;
    for (const ModulDaten& me : module) {
        ++pumpen;
        ++ModulZähler;
        if (programmdatei) {
            programmdatei = false;
            continue;
        }
        ++count;
        names.resize(count);
        paths.resize(count);
        names[count - 1] = BisNul(me.szModule);
        paths[count - 1] = Pfad(prozess, me.hModule, names[count - 1]);
    }
    --ModulZähler;
    --count;
}

std::string Prozesse1::ProzessPfad(std::uint32_t processId, std::uintptr_t module, const std::string& name) {
    // Errors carry on at the next step throughout.
    const ProzessEigner h = p_.processes.OpenProcess(kProcessQueryRead, processId);
    return Pfad(h.Get(), module, name);
}

std::string Prozesse1::Pfad(ProzessHandle h, std::uintptr_t module, const std::string& name) {
    std::string puffer(kPfadPuffer, ' ');
    std::uint32_t n = 0;
    if (h != kKeinHandle) n = p_.processes.ModuleFileName(h, module, puffer.data(), kPfadPuffer);
    std::string text = Trimmen(Gross(puffer.substr(0, std::min(n, kPfadPuffer))));

    if (text.find("\\SYSTEMROOT\\") != std::string::npos)
        text = ErsetzenOhneFall(text, "\\SYSTEMROOT\\System32", SystemVerzeichnis(p_));
    if (!text.empty()) {
        // A prefix such as "\??\" goes; a text with no drive, or one that starts with ":\",
        // stays as it is, since cutting there fails and is passed over.
        const auto pos = text.find(":\\");
        if (pos != std::string::npos && pos != 1 && pos != 0) text = text.substr(pos - 1);
    }
    if (text.empty()) {
        const std::string system = SystemVerzeichnis(p_);
        if (DateiVorhanden(p_, system + "\\" + name)) text = system + "\\" + name;
    }
    return text;
}

}  // namespace kes

// Every fake of the platform seam in one bundle, set up as a small German machine with
// the program in C:\Programme\Kestrella: a 32-bit one with one registry view, unless the
// test asks for a 64-bit one. When the bundle goes with handles of its seams still open,
// it tells the test harness's handler (a leak fails the test that made it).
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>
#include "fake_changes.h"
#include "fake_file_details.h"

#include "common/fehler.h"
#include "common/text.h"
#include "fake_files.h"
#include "fake_processes.h"
#include "fake_registry.h"
#include "fake_shell.h"
#include "fake_timers.h"
#include "platform/ini_datei.h"
#include "platform/seam/plattform.h"

namespace kes::fake {

class FakeSystem : public SystemApi {
public:
    std::string exe = "C:\\Programme\\Kestrella\\Kestrella.exe";
    std::string kommandozeile;
    std::string datum = "22.11.2026";
    std::string zeit = "14:05:09";
    Zahlenformat format{',', '.'};
    bool vorherigeInstanz = false;
    int geschlafen = 0;

    std::string ExecutablePath() override { return exe; }
    std::string CommandLine() override { return kommandozeile; }
    std::string ShortDate() override { return datum; }
    std::string ShortTime() override { return zeit; }
    Uhrzeit jetzt{2026, 11, 22, 14, 5, 9, 0, 60};
    Uhrzeit Jetzt() override { return jetzt; }
    bool formatFehlt = false;  // the locale cannot be read: the call fails
    Zahlenformat NumberFormat() override {
        if (formatFehlt) throw std::runtime_error("GetLocaleInfoA");
        return format;
    }
    bool PreviousInstance() override { return vorherigeInstanz; }
    void Sleep(int ms) override { geschlafen += ms; }
    int ScreenWidth() override { return 1024; }
    int ScreenHeight() override { return 768; }
    std::string wow64;  // empty: a 32-bit Windows
    std::string Wow64SystemDirectory() override { return wow64; }
};

// A phone book in memory, empty like that of Wine. Entries are found by name, without
// regard to case as the platform does; a deleted entry is gone. fehlt makes every phone-book
// call fail as a system without the dial-up interface does, with that runtime error number.
class FakeDialup : public DialupApi {
public:
    struct Eintrag {
        std::string name;
        DfuEintrag daten;
    };
    int verbindungen = 0;
    std::vector<Eintrag> einträge;
    long aufzählFehler = 0;  // RasEnumEntriesA's answer; 0 lists the entries
    std::optional<int> fehlt;
    std::vector<std::string> gelöscht;
    long löschFehler = 0;
    std::vector<std::pair<std::uintptr_t, std::string>> bearbeitet;

    int ConnectionCount() override { return verbindungen; }
    long DeleteEntry(const std::string& name) override {
        Prüfen();
        gelöscht.push_back(name);
        if (löschFehler) return löschFehler;
        if (auto* e = Finde(name)) {
            einträge.erase(einträge.begin() + (e - einträge.data()));
            return 0;
        }
        return 623;  // ERROR_CANNOT_FIND_PHONEBOOK_ENTRY
    }
    long EnumEntries(std::vector<std::string>* names) override {
        Prüfen();
        names->clear();
        if (aufzählFehler) return aufzählFehler;
        if (einträge.size() > 256) return kRasPufferZuKlein;
        for (const auto& e : einträge) names->push_back(e.name.substr(0, e.name.find('\0')));
        return 0;
    }
    long EntryPropertiesSize(const std::string& name, std::uint32_t* size) override {
        Prüfen();
        if (!Finde(name)) return 623;
        *size = kRecordSize;
        return kRasPufferZuKlein;
    }
    long EntryProperties(const std::string& name, std::uint32_t size, DfuEintrag* out) override {
        Prüfen();
        const Eintrag* e = Finde(name);
        if (!e) return 623;
        if (size < kRecordSize) return kRasPufferZuKlein;
        *out = e->daten;
        return 0;
    }
    long EditEntry(std::uintptr_t parent, const std::string& name) override {
        Prüfen();
        bearbeitet.emplace_back(parent, name);
        return Finde(name) ? 0 : 623;
    }

private:
    static constexpr std::uint32_t kRecordSize = 1768;
    void Prüfen() const {
        if (fehlt) throw Fehler(*fehlt, "Datei nicht gefunden: rasapi32.dll");
    }
    Eintrag* Finde(const std::string& name) {
        for (auto& e : einträge)
            if (GleichOhneFall(e.name, name)) return &e;
        return nullptr;
    }
};

// Set by the test harness; told what was left open when a bundle goes.
inline std::function<void(const std::string&)> beiOffenenHandles;

struct FakePlattform {
    FakeRegistry registry;
    FakeFiles files;
    FakeShell shell{registry};
    FakeDialogs dialogs;
    FakeSound sound;
    FakeTimers timers;
    FakeSystem system;
    FakeDialup dialup;
    FakeTray tray;
    FakeProcesses processes{files};
    FakeFileDetails details{files};
    IniDatei profiles{files};
    FakeChanges changes{registry, files};
    Plattform plattform{registry, files,  shell, dialogs,   sound,   timers,
                        system,   dialup, tray,  processes, details, profiles, changes};

    explicit FakePlattform(Maschine maschine = Maschine::Bit32) : registry(maschine) {
        shell.ordner[kCsidlWindows] = "C:\\WINDOWS";
        shell.ordner[kCsidlSystem] = "C:\\WINDOWS\\system32";
        shell.ordner[kCsidlStartup] = "C:\\Dokumente und Einstellungen\\Benutzer\\Startmenü\\Programme\\Autostart";
        shell.ordner[kCsidlCommonStartup] =
            "C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme\\Autostart";
        shell.ordner[kCsidlFavorites] = "C:\\Dokumente und Einstellungen\\Benutzer\\Favoriten";
        files.MakeDirs("C:\\Programme\\Kestrella\\daten");
        files.MakeDirs("C:\\WINDOWS\\system32\\drivers\\etc");
        if (maschine == Maschine::Bit64) {
            system.wow64 = "C:\\WINDOWS\\SysWOW64";
            files.MakeDirs(system.wow64);
        }
        // A message that runs meanwhile may delete what a handle points at, or end the
        // program: no walk keeps a handle open across a pump.
        timers.vorDerPumpe = [this] { HandlesPrüfen("across a message pump"); };
    }
    ~FakePlattform() { HandlesPrüfen("when the platform goes"); }
    FakePlattform(const FakePlattform&) = delete;
    FakePlattform& operator=(const FakePlattform&) = delete;

    // Keys, find walks (those of the detail seam included), snapshots and processes. Change
    // sources are armed for as long as their watcher lives and may stay across a pump.
    int OffeneHandles() const { return registry.OpenHandles() + files.OpenFinds() + processes.OffeneHandles(); }
    void HandlesPrüfen(const std::string& wann) const {
        if (OffeneHandles() == 0 || !beiOffenenHandles) return;
        beiOffenenHandles("handles open " + wann + ": " + std::to_string(registry.OpenHandles()) + " registry keys, " +
                          std::to_string(files.OpenFinds()) + " find walks, " +
                          std::to_string(processes.OffeneHandles()) + " snapshots or processes");
    }
};

}  // namespace kes::fake

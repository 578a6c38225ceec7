// Every fake of the platform seam in one bundle, set up as a small German machine with
// the program in C:\Programme\Kestrella.
#pragma once

#include <stdexcept>
#include <vector>
#include "fake_file_details.h"

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
    bool formatFehlt = false;  // the locale cannot be read: the call fails
    Zahlenformat NumberFormat() override {
        if (formatFehlt) throw std::runtime_error("GetLocaleInfoA");
        return format;
    }
    bool PreviousInstance() override { return vorherigeInstanz; }
    void Sleep(int ms) override { geschlafen += ms; }
    int ScreenWidth() override { return 1024; }
    int ScreenHeight() override { return 768; }
};

class FakeDialup : public DialupApi {
public:
    int verbindungen = 0;
    int ConnectionCount() override { return verbindungen; }
    std::vector<std::string> gelöscht;
    long löschFehler = 0;
    long DeleteEntry(const std::string& name) override {
        gelöscht.push_back(name);
        return löschFehler;
    }
};

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
    Plattform plattform{registry, files,  shell, dialogs,   sound,   timers,
                        system,   dialup, tray,  processes, details, profiles};

    FakePlattform() {
        shell.ordner[kCsidlWindows] = "C:\\WINDOWS";
        shell.ordner[kCsidlSystem] = "C:\\WINDOWS\\system32";
        shell.ordner[kCsidlStartup] = "C:\\Dokumente und Einstellungen\\Benutzer\\Startmenü\\Programme\\Autostart";
        shell.ordner[kCsidlCommonStartup] =
            "C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme\\Autostart";
        shell.ordner[kCsidlFavorites] = "C:\\Dokumente und Einstellungen\\Benutzer\\Favoriten";
        files.MakeDirs("C:\\Programme\\Kestrella\\daten");
        files.MakeDirs("C:\\WINDOWS\\system32\\drivers\\etc");
    }
};

}  // namespace kes::fake

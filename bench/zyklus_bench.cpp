// What a whole watch cycle costs against the enumeration it cannot avoid. Prepares a
// program folder as the assistant's "Alle Werte des Systems übernehmen" leaves it, with
// every watcher box on and every warning accepted; then runs, round by round and
// interleaved in one process, the real cycle on the real platform and a raw loop over the
// same keys, folders and snapshots, whole and per watcher. Afterwards it can start the
// real Kestrella.exe from that folder beside a minimal tray program and measure both
// from outside. Prints figures; asserts nothing.
//
// Usage: zyklus_bench [rounds] [--ordner DIR] [--exe Kestrella.exe] [--minimal minimal_tray.exe]
//                     [--sekunden S] [--basis MS]
//   --ordner   the program folder to prepare (made empty first; default C:\kestrella-bench)
//   --exe      the program to copy there and measure from outside (none: no outside run)
//   --sekunden the span of the outside measurement (default 60)
//   --basis    a whole-cycle median of another run, in ms: prints this run's ratio to it
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "aenderungsmessung.h"
#include "bench_programm.h"
#include "fremdmessung.h"
#include "messreihe.h"
#include "panel/alarm.h"
#include "rohe_schleife.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/alarm_daten.h"
#include "watchers/waechter.h"

namespace {
using namespace kes;

// The looks the program makes between two ticks of stage 5.
constexpr int kBlickeJeTick = 5000 / kSofortMs;
using namespace kes::bench;

struct Teil {
    const char* name;
    std::function<void()> zyklus;
    std::function<std::size_t()> roh;
    Reihe z, r;
    // The row's passes as an idle tick runs them: a row with places on its kept walk.
    std::function<void()> leer = {};
    Reihe l = {};
};

void OrdnerLeeren(const std::string& ordner) {
    ::CreateDirectoryA(ordner.c_str(), nullptr);
    ::CreateDirectoryA((ordner + "\\daten").c_str(), nullptr);
    for (const char* name : {"\\kestrella.dat", "\\Kestrella.log"}) ::DeleteFileA((ordner + name).c_str());
    WIN32_FIND_DATAA fd;
    const HANDLE h = ::FindFirstFileA((ordner + "\\daten\\*.*").c_str(), &fd);
    if (h == INVALID_HANDLE_VALUE) return;
    do {
        if (!(fd.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            ::DeleteFileA((ordner + "\\daten\\" + fd.cFileName).c_str());
    } while (::FindNextFileA(h, &fd));
    ::FindClose(h);
}

std::string Neben(const char* name) {
    char puffer[MAX_PATH];
    const DWORD n = ::GetModuleFileNameA(nullptr, puffer, sizeof puffer);
    std::string s(puffer, n);
    return s.substr(0, s.find_last_of('\\') + 1) + name;
}

void Zeile(const char* name, const Reihe& z, const Reihe& r, const Reihe& l) {
    std::printf("%-28.28s %9.2f %9.2f %9.2f %9.2f %7.2f %7.2f %9.3f %9.3f\n", name, z.Median(), z.Min(), r.Median(),
                r.Min(), r.Median() > 0 ? z.Median() / r.Median() : 0, r.Min() > 0 ? z.Min() / r.Min() : 0, l.Median(),
                l.Min());
}

// Kestrella.exe at its stage beside the minimal tray program, both seen from outside.
// The wineserver's share over the time, of what it does for every process of the prefix.
double Serveranteil(int sekunden) {
    const double s0 = LinuxProzessorzeit("wineserver");
    const auto start = std::chrono::steady_clock::now();
    ::Sleep(static_cast<DWORD>(sekunden) * 1000);
    return (LinuxProzessorzeit("wineserver") - s0) /
           std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Fremdmessen(const std::string& ordner, const std::string& exe, FremderProzess& minimal, int sekunden, int stufe) {
    // First the server's floor, with the minimal program and Wine's own processes alone: it
    // serves them whether Kestrella.exe runs or not.
    const double boden = Serveranteil(sekunden);
    FremderProzess kestrella("\"" + exe + "\" /s", ordner);
    if (!kestrella.Läuft() || !minimal.Läuft()) {
        std::printf("outside run: could not start the programs\n");
        return;
    }
    // The silent start loads its settings after 3 s and its folder baselines with them.
    ::Sleep(10000);
    const double k0 = kestrella.Prozessorzeit(), m0 = minimal.Prozessorzeit();
    const double kl0 = LinuxProzessorzeit("Kestrella.exe"), ml0 = LinuxProzessorzeit("minimal_tray.exe"),
                 s0 = LinuxProzessorzeit("wineserver");
    const auto start = std::chrono::steady_clock::now();
    ::Sleep(static_cast<DWORD>(sekunden) * 1000);
    const double dauer = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const double k = (kestrella.Prozessorzeit() - k0) / dauer, m = (minimal.Prozessorzeit() - m0) / dauer;
    const double kl = (LinuxProzessorzeit("Kestrella.exe") - kl0) / dauer,
                 ml = (LinuxProzessorzeit("minimal_tray.exe") - ml0) / dauer,
                 s = (LinuxProzessorzeit("wineserver") - s0) / dauer;
    const double kws = kestrella.SpitzeArbeitsspeicher() / 1048576.0, mws = minimal.SpitzeArbeitsspeicher() / 1048576.0;
    std::printf("\noutside, over %.1f s (GetProcessTimes, GetProcessMemoryInfo):\n", dauer);
    std::printf("  Kestrella.exe at stage %2d:   %6.2f %% of one core, peak working set %7.2f MB\n", stufe, 100 * k,
                kws);
    std::printf("  minimal tray program:       %6.2f %% of one core, peak working set %7.2f MB\n", 100 * m, mws);
    std::printf(
        "  the same from Linux (/proc): Kestrella.exe %.2f %%, minimal %.2f %%; the wineserver, which serves\n"
        "  their registry and file calls (and nothing else while the bench sleeps), %.2f %%\n",
        100 * kl, 100 * ml, 100 * s);
    std::printf("  Kestrella.exe with the wineserver's share: at most %.2f %% of one core\n", 100 * (kl + s));
    std::printf(
        "  the wineserver before, with the minimal program alone, over as long: %.2f %%; Kestrella.exe with what\n"
        "  the server spent beyond that: %.2f %% of one core\n",
        100 * boden, 100 * (kl + s - boden));
    std::printf("  peak working set above the minimal program: %.2f MB%s\n", kws - mws,
                kestrella.Läuft() ? "" : "  (Kestrella.exe had ended!)");
}
}  // namespace

int main(int argc, char** argv) {
    int runden = 20, sekunden = 60;
    double basis = 0;
    std::string ordner = "C:\\kestrella-bench", exe, minimalExe = Neben("minimal_tray.exe");
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        const bool wert = i + 1 < argc;
        if (a == "--ordner" && wert)
            ordner = argv[++i];
        else if (a == "--exe" && wert)
            exe = argv[++i];
        else if (a == "--minimal" && wert)
            minimalExe = argv[++i];
        else if (a == "--sekunden" && wert)
            sekunden = std::atoi(argv[++i]);
        else if (a == "--basis" && wert)
            basis = std::atof(argv[++i]);
        else
            runden = std::max(1, std::atoi(a.c_str()));
    }
    OrdnerLeeren(ordner);
    const std::string programm = ordner + "\\Kestrella.exe";
    // Both programs run while the baseline is taken, so that later runs of them are known.
    std::unique_ptr<FremderProzess> erster;
    if (!exe.empty()) {
        ::CopyFileA(exe.c_str(), programm.c_str(), FALSE);
        erster = std::make_unique<FremderProzess>("\"" + programm + "\" /s", ordner);
    }
    FremderProzess minimal("\"" + minimalExe + "\"", ordner);
    ::Sleep(1500);

    BenchPlattform bp(ordner);
    Programm prg(bp.plattform);
    Vorbereiten(prg, bp);
    erster.reset();
    AlarmFenster& a = prg.Alarm();
    Prozesswerte& w = prg;

    RohOrte orte{w.Windowsordner, w.Systemordner, a.Label2[0].Caption, a.Label2[2].Caption, a.Label2[3].Caption};
    // One part per row of the watcher table, each beside its own raw floor.
    std::vector<Teil> teile;
    std::vector<std::string> namen;
    for (const WächterZeile& zeile : Wächtertabelle())
        namen.push_back(std::string(zeile.name) + " (" + std::to_string(zeile.box) + ")");
    // The places of the rows the hand-written floor does not know, named once outside the
    // timing.
    std::vector<Änderungsorte> plätze;
    for (const WächterZeile& zeile : Wächtertabelle())
        plätze.push_back(zeile.orte && Roh(zeile.box, orte) == 0 ? zeile.orte(a, w) : Änderungsorte{});
    std::size_t n = 0;
    for (const WächterZeile& zeile : Wächtertabelle()) {
        const Änderungsorte& eigene = plätze[n];
        teile.push_back(
            Teil{namen[n++].c_str(),
                 [&a, &w, &zeile] {
                     for (Wächterroutine pass : zeile.zyklus)
                         if (pass) pass(a, w);
                 },
                 [&orte, &zeile, &eigene] { return eigene.empty() ? Roh(zeile.box, orte) : RohDerOrte(eigene); },
                 {},
                 {},
                 [&a, &w, &zeile] {
                     w.Unverändert = zeile.orte != nullptr;
                     for (Wächterroutine pass : zeile.zyklus)
                         if (pass) pass(a, w);
                     w.Unverändert = false;
                 }});
    }

    std::vector<Teil> extra;
    extra.push_back(
        Teil{"processes: + module paths, one open each, + version blocks", {}, RohProzesseMitPfaden, {}, {}});
    extra.push_back(Teil{"Windows folder: + the length of each file through a handle",
                         {},
                         [&] { return RohOrdnerMitLängen(orte.windows); },
                         {},
                         {}});
    extra.push_back(Teil{"system folder: + the length of each file through a handle",
                         {},
                         [&] { return RohOrdnerMitLängen(orte.system); },
                         {},
                         {}});
    auto zyklus = [&] {
        w.Beschäftigt = false;
        a.Timer1.SetEnabled(true);
        prg.TimerTick(kTimerAlarm1);
    };
    std::size_t rohAnzahl = 0;
    auto roh = [&] {
        rohAnzahl = 0;
        for (Teil& t : teile) rohAnzahl += t.roh();
    };
    int warnungen = 0;
    auto nachsehen = [&] {
        if (!prg.Form3Geladen()) return;
        ++warnungen;
        std::printf("  warning during the timed rounds: %s\n", KategorieName(w.Kategorieschlüssel));
        AllesÜbernehmen(prg);
    };
    for (int i = 0; i < 2; ++i) zyklus(), roh(), nachsehen();  // warm the caches of both

    Reihe ganz, rohGanz, blicke;
    for (int runde = 0; runde < runden; ++runde) {
        // Each pair in turn first and second, so neither gains from the other's warm caches.
        const bool zuerstRoh = runde % 2 == 0;
        if (zuerstRoh) rohGanz.ms.push_back(Zeit(roh));
        // The looks between two ticks of stage 5, as the program makes them; the one that
        // asks each source on its own spares the tick that ask.
        blicke.ms.push_back(Zeit([&] {
            for (int i = 0; i < kBlickeJeTick; ++i) a.Gefeuert();
        }));
        ganz.ms.push_back(Zeit(zyklus));
        nachsehen();
        if (!zuerstRoh) rohGanz.ms.push_back(Zeit(roh));
        for (Teil& t : extra) t.r.ms.push_back(Zeit(t.roh));
        for (Teil& t : teile) {
            if (zuerstRoh) t.r.ms.push_back(Zeit(t.roh));
            t.z.ms.push_back(Zeit(t.zyklus));
            nachsehen();
            if (!zuerstRoh) t.r.ms.push_back(Zeit(t.roh));
            t.l.ms.push_back(Zeit(t.leer));
            nachsehen();
        }
    }

    Zyklusbank bank{prg, runden, zyklus, nachsehen, [&](std::size_t zeile) { return teile[zeile].roh(); }};
    std::vector<NachÄnderung> änderungen;
    // A service that does not start by itself comes and goes.
    const char* kProbe = "SYSTEM\\CurrentControlSet\\Services\\KestrellaBenchProbe";
    änderungen.push_back(TickNachÄnderung(
        bank, "the services' key", kHkeyLocalMachine, "System\\CurrentControlSet\\Services", [&](bool hin) {
            if (!hin) {
                ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, kProbe);
                return;
            }
            HKEY h;
            if (::RegCreateKeyExA(HKEY_LOCAL_MACHINE, kProbe, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &h, nullptr) !=
                ERROR_SUCCESS)
                return;
            const DWORD start = 3;
            ::RegSetValueExA(h, "Start", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&start), sizeof start);
            ::RegCloseKey(h);
        }));
    // A file comes into the system folder and goes: the created-file search runs and finds it
    // on the deferred list, as a file the user put off.
    const std::string probeDatei = w.Systemordner + "\\kestrella-bench-probe.dll";
    a.List8.Items.push_back(probeDatei);
    änderungen.push_back(TickNachÄnderung(bank, "the system folder", 0, w.Systemordner, [&](bool hin) {
        if (!hin) {
            ::DeleteFileA(probeDatei.c_str());
            return;
        }
        const HANDLE h = ::CreateFileA(probeDatei.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        if (h != INVALID_HANDLE_VALUE) ::CloseHandle(h);
    }));

    std::vector<Verzögerung> verzögerungen;
    const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    verzögerungen.push_back(BisZurWarnung(bank, "a Run value", [&](int i, bool hin) {
        const std::string name = "KestrellaBenchProbe" + std::to_string(i);
        HKEY h;
        if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, kRun, 0, KEY_SET_VALUE, &h) != ERROR_SUCCESS) return;
        const char daten[] = "C:\\kestrella-bench-probe.exe";
        if (hin)
            ::RegSetValueExA(h, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(daten), sizeof daten);
        else
            ::RegDeleteValueA(h, name.c_str());
        ::RegCloseKey(h);
    }));
    verzögerungen.push_back(BisZurWarnung(bank, "a file in the system folder", [&](int i, bool hin) {
        const std::string datei = w.Systemordner + "\\kestrella-bench-probe" + std::to_string(i) + ".dll";
        if (!hin) {
            ::DeleteFileA(datei.c_str());
            return;
        }
        const HANDLE h = ::CreateFileA(datei.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        if (h != INVALID_HANDLE_VALUE) ::CloseHandle(h);
    }));

    // Idle ticks one after the other, each after the looks of its interval: more of them
    // than rounds, for a steadier figure of the tick alone.
    // Processor time beside it, of this process and the wineserver, which does the registry
    // and file work of both loops: wall times under Wine wait on the server's turns.
    Reihe leerlauf, leerBlicke;
    const double leerCpu0 = BenchProzessorzeit();
    for (int i = 0; i < 60; ++i) {
        leerBlicke.ms.push_back(Zeit([&] {
            for (int j = 0; j < kBlickeJeTick; ++j) a.Gefeuert();
        }));
        leerlauf.ms.push_back(Zeit(zyklus));
        nachsehen();
    }
    const double leerCpu = (BenchProzessorzeit() - leerCpu0) * 1000 / 60;
    const double rohCpu0 = BenchProzessorzeit();
    for (int i = 0; i < 10; ++i) roh();
    const double rohCpu = (BenchProzessorzeit() - rohCpu0) * 1000 / 10;
    // The idle tick alone, without the looks of its interval: about 3 s of them.
    const double tickCpu =
        ProzessorMs(std::max(60, static_cast<int>(3000 / std::max(1.0, leerlauf.Median()))), [&](int) { zyklus(); });

    // Rows that walk at every tick although they name places: right after a tick, a row whose
    // places are armed and quiet need not walk.
    zyklus();
    std::string immer;
    for (std::size_t i = 0; i < Wächtertabelle().size(); ++i) {
        const WächterZeile& zeile = Wächtertabelle()[i];
        if (zeile.orte && a.änderungen.MussLaufen(i, [&] { return zeile.orte(a, w); })) immer += " " + namen[i];
    }

    // The safety check of every row, due once a minute: the imprint of a row that has one,
    // else its walk (the forced walk timed above).
    double prüfung = 0, alleLäufe = 0;
    int mitAbdruck = 0;
    for (std::size_t i = 0; i < teile.size(); ++i) {
        if (!Wächtertabelle()[i].orte) continue;  // walks at every tick
        alleLäufe += teile[i].z.Median();
        if (!a.änderungen.HatAbdruck(i)) {
            prüfung += teile[i].z.Median();
            continue;
        }
        Reihe r;
        for (int k = 0; k < 5; ++k) r.ms.push_back(Zeit([&] { a.änderungen.AbdruckGleich(i); }));
        prüfung += r.Median();
        ++mitAbdruck;
    }

    std::printf(
        "\n%d rounds; %zu entries in the raw loop; %zu files in the system folder baseline, %zu in the "
        "Windows folder's, %zu known services, %zu known processes\n",
        runden, rohAnzahl, a.ListView7.Items.size(), a.ListView4.Items.size(), a.ListView11.Items.size(),
        a.ListView6.Items.size());
    std::printf("%-28s %9s %9s %9s %9s %7s %7s %9s %9s\n", "ms", "cycle med", "cycle min", "raw med", "raw min",
                "x med", "x min", "idle med", "idle min");
    for (const Teil& t : teile) Zeile(t.name, t.z, t.r, t.l);
    Zeile("whole cycle (timer tick)", ganz, rohGanz, ganz);
    std::printf("warnings during the timed rounds: %d\n", warnungen);
    std::printf("rows with places that walk at every tick:%s\n", immer.empty() ? " none" : immer.c_str());
    std::printf(
        "safety check of every row, due once a minute: %.2f ms (%d rows by their keys' imprint, the rest walk), "
        "against %.2f ms for a walk of every row;\n  %.3f %% against %.3f %% of a core\n",
        prüfung, mitAbdruck, alleLäufe, prüfung / 600, alleLäufe / 600);
    std::printf("\nidle tick (nothing changed): median %.2f ms, min %.2f ms = %.1f %% / %.1f %% of the raw loop\n",
                ganz.Median(), ganz.Min(), 100 * ganz.Median() / rohGanz.Median(), 100 * ganz.Min() / rohGanz.Min());
    std::printf(
        "the %d looks between two ticks at stage 5 (every %d-th look asks each of the %zu sources): median %.2f ms, "
        "mean %.2f ms\n",
        kBlickeJeTick, kBlickeJeFrage, a.änderungen.Anzahl(), blicke.Median(), blicke.Mittel());
    std::printf(
        "60 idle ticks in a row: median %.2f ms, min %.2f ms, mean %.2f ms; their looks: median %.2f ms, mean %.2f "
        "ms\n",
        leerlauf.Median(), leerlauf.Min(), leerlauf.Mittel(), leerBlicke.Median(), leerBlicke.Mittel());
    std::printf(
        "processor time (this process and the wineserver): %.2f ms an idle interval of stage 5 (its looks and its "
        "tick),\n  %.2f ms a raw loop; %.1f %% of it\n",
        leerCpu, rohCpu, rohCpu > 0 ? 100 * leerCpu / rohCpu : 0);
    std::printf("processor time of an idle tick alone: %.2f ms, %.1f %% of a raw loop's\n", tickCpu,
                rohCpu > 0 ? 100 * tickCpu / rohCpu : 0);
    Drucken(änderungen, ganz.Median());
    Drucken(verzögerungen);
    std::printf("\nwhat the watchers' own rules add, listed raw (ms, median / min over %d rounds):\n", runden);
    for (const Teil& t : extra) std::printf("  %-58s %8.2f %8.2f\n", t.name, t.r.Median(), t.r.Min());
    if (basis > 0) std::printf("whole cycle median against --basis %.2f ms: %.2fx\n", basis, ganz.Median() / basis);
    if (!exe.empty() && sekunden > 0) Fremdmessen(ordner, programm, minimal, sekunden, prg.Intervallstufe);
    return 0;
}

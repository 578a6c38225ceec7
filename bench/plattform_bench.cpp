// How long the listings of one watch cycle take on the real API: the run keys of the
// current user, the machine and every user hive, the services key, the system folder and
// the process table. Prints the figures of a first run and of the repeated ones; asserts
// nothing. Usage: plattform_bench [rounds]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "common/steuerelemente.h"
#include "platform/alledateien.h"
#include "platform/hive_ocx.h"
#include "platform/prozesse1.h"
#include "platform/registry.h"
#include "platform/win32/echte_plattform.h"

namespace {

using namespace kes;

const char* const kPlätze[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
};

template <typename F>
void Messen(const char* name, int runden, F schritt) {
    std::vector<double> ms;
    std::size_t anzahl = 0;
    for (int i = 0; i < runden; ++i) {
        const auto start = std::chrono::steady_clock::now();
        anzahl = schritt();
        ms.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    const double erste = ms.front();
    std::sort(ms.begin(), ms.end());
    std::printf("%-40s %6zu entries   first %8.2f ms   min %8.2f ms   median %8.2f ms\n", name, anzahl, erste,
                ms.front(), ms[ms.size() / 2]);
}

}  // namespace

int main(int argc, char** argv) {
    const int runden = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20;
    win32::EchtePlattform echt;
    Plattform& p = echt.plattform;
    Registry reg(p);
    HiveOCX hive(p.registry);

    std::printf("%d rounds each\n", runden);
    Messen("run keys of HKCU, HKLM and HKEY_USERS", runden, [&] {
        // The rows the autostart watcher lists, counted as they come.
        std::size_t zeilen = 0;
        const auto zählen = [&](const WertDaten&) { ++zeilen; };
        for (RegHandle root : {kHkeyCurrentUser, kHkeyLocalMachine})
            for (const char* platz : kPlätze) reg.GetValueList(root, platz, zählen);
        for (const std::string& nutzer : ListSubkeys(p, kHkeyUsers, "")) {
            if (nutzer.empty()) continue;
            for (const char* platz : kPlätze) {
                const std::string pfad = nutzer + "\\" + platz;
                if (hive.KeyExists(3, pfad)) reg.GetValueList(kHkeyUsers, pfad, zählen);
            }
        }
        return zeilen;
    });
    Messen("services key (GetSubkeys)", runden, [&] {
        const auto namen = reg.GetSubkeys(kHkeyLocalMachine, "SYSTEM\\CurrentControlSet\\Services", Kategorie::Dienste);
        return namen.empty() ? 0 : namen.size() - 1;  // less the entry of the failing call
    });
    const std::string system = SystemVerzeichnis(p);
    Messen("system folder (DateienSuchen *.*)", runden, [&] {
        std::vector<DateiEintrag> records;
        DateienSuchen(p, system, false, "*.*", records);
        return records.size();
    });
    Messen("process table (ProzesseHolen)", runden, [&] {
        Prozesse1 tabelle(p);
        tabelle.ProzesseHolen();
        return tabelle.Prozesse.size();
    });
    return 0;
}

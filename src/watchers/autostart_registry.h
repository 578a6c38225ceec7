// The registry values that start programs: the Run keys of the user, of the machine and of
// every user hive below HKEY_USERS. A value that is neither in the baseline (with its data)
// nor deferred (without them) raises a warning; a value that goes raises nothing.
#pragma once

#include <optional>
#include <vector>

#include "common/steuerelemente.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/bekannte_texte.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

inline constexpr const char* kAutostartREGDatei = "daten\\AutostartREG.txt";

// The watched places as the control panel lists them.
inline constexpr const char* kAutostartOrte[12] = {
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run",
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx",
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices",
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\RunServices",
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
    "HKEY_USERS\\<Benutzer>\\Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "HKEY_USERS\\<Benutzer>\\Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"};

class AutostartRegistry {
public:
    AutostartRegistry(WächterKontext& k, ListView& ListView1, ListView& ListView33)
        : ListView1(ListView1), ListView33(ListView33), basis(k, kAutostartREGDatei, ListView1), k_(k) {}

    void LadeAutostartregistry();
    void TesteAutostartRegistry();
    void TesteAutostartHkeyUser();
    // The keys both passes list, the user hives' included.
    Änderungsorte Orte();

    ListView& ListView1;   // the baseline: one text per known entry
    ListView& ListView33;  // the rows of the current listing
    Grundliste basis;      // ListView1

private:
    // Adds the values of one key to ListView33, with the second reading in column 5.
    void Auflisten(RegHandle root, const std::string& key);
    // The first row of ListView33 that is neither known nor deferred, or -1.
    int Unbekannt(const BekannteTexte& bekannt);
    // Raises the warning for that row; the user hives also search the system folders.
    void Warnen(int zeile, bool benutzerHives);
    // The rows of the last whole listing: of the user's and the machine's keys, and of each
    // hive below HKEY_USERS.
    std::optional<std::vector<ListItem>> zeilen_;
    std::optional<std::vector<std::vector<ListItem>>> benutzerZeilen_;
    WächterKontext& k_;
};

// The menu of the known entries (ListView1).
void löscheRegistry1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

// The nineteen browser values that decide start and search pages, compared with their saved
// texts (the saved start pages 1 to 19 of the settings). A changed value is put back alone
// when the user has asked for it, with a balloon and a log entry; otherwise the first
// changed value raises a warning.
#pragma once

#include <map>
#include <string>

#include <array>

#include "common/steuerelemente.h"
#include "common/werte.h"
#include "platform/seam/plattform.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/kontext.h"

namespace kes {

class StartSeite {
public:
    StartSeite(WächterKontext& k, ListView& ListView3) : ListView3(ListView3), k_(k) {}

    // ListView3 anew: one row per watched value, with its saved text, in the order whose
    // row number is the index into the saved start pages.
    void LadeStartPage();
    void TesteStartPage();

    ListView& ListView3;

    // The keys of the list's rows, each once.
    Änderungsorte Orte();

private:
    void Zurücksetzen(const ListItem& zeile, const std::string& aktuell, const std::string& gespeichert);
    void Warnen(int i, const ListItem& zeile, const std::string& aktuell, const std::string& gespeichert);
    WächterKontext& k_;
    // The values read by the last walk, by hive, key and name, kept while their keys are
    // quiet; a read that failed is not kept.
    std::map<std::string, std::string> gelesen_;
};

// The first saved start pages, when the assistant takes the machine as it stands: slots 1 to
// 19 read from the registry.
void Holestartpage(WächterKontext& k);
// The saved start pages of the 32-bit rows as the machine holds them now (nothing on a
// Windows with one view): what a settings file written before those rows had no slots for.
void Holestartpage32(Plattform& p, Prozesswerte& w);

// The hive code of HiveOCX for a row's root name: 2 for "HKEY_LOCAL_MACHINE", 1 for
// "HKEY_CURRENT_USER", -1 for anything else.
int StartSeitenHive(const std::string& root);
// The original text of a watched value back in the registry: the saved text, or one NUL
// character when it is empty, so that a value that was absent is set rather than removed.
void StartSeiteSchreiben(Plattform& p, int hive, const std::string& key, const std::string& name,
                         const std::string& gespeichert);

}  // namespace kes

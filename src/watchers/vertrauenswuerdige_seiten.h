// Domains entered into the browser's security zones: the subkeys of ZoneMap\Domains under
// HKEY_LOCAL_MACHINE and HKEY_CURRENT_USER. A domain that is neither in the one baseline of
// both hives (daten\V_seiten.txt, ListView12) nor deferred raises a warning. The compare
// heeds case, though the registry does not; a domain that goes raises nothing.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/steuerelemente.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

class VertrauenswürdigeSeiten {
public:
    VertrauenswürdigeSeiten(WächterKontext& k, ListView& ListView12);

    // ListView12 from daten\V_seiten.txt, read as fields: a comma splits a line.
    void LadeToolbar();
    // HKEY_LOCAL_MACHINE, key "ToolBar".
    void TesteToolBar();
    // HKEY_CURRENT_USER, key "ToolBar1".
    void TesteToolBar1();

    ListView& ListView12;
    Grundliste basis;  // ListView12

    // The domains' keys of both hives, with everything below them.
    static Änderungsorte Orte();

private:
    struct Hive;
    void Testen(const Hive& h);
    WächterKontext& k_;
    // Each hive's last listing, kept while its key is quiet. The listing depends on the
    // category key that stood when it was taken, so it is kept with it.
    struct Stand {
        Kategorie kategorie;
        std::vector<std::string> schlüssel;
    };
    std::optional<Stand> stände_[2];
};

// The key below which both hives keep a subkey per domain.
inline constexpr const char* kZoneMapDomains =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";

// The menu of the known sites (ListView12).
void Toolbarlöschen11_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

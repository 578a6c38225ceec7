// New processes: a running program whose path is not in the baseline and whose maker is not
// trusted. The baseline daten\prozesse.txt (name "#" path, written a line an entry, read
// field by field) fills ListView6, the trusted makers of daten\Firma.txt fill List1, and
// List2 holds what was allowed for this run only. A process whose path cannot be read is
// looked at again before it is reported: it may have been caught while it starts or ends.
#pragma once

#include <array>
#include <cstdint>
#include <map>

#include "common/steuerelemente.h"
#include "platform/versionsgedaechtnis.h"
#include "watchers/bekannte_texte.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

inline constexpr const char* kProzesseDatei = "daten\\prozesse.txt";
inline constexpr const char* kFirmaDatei = "daten\\Firma.txt";

class Prozesse {
public:
    Prozesse(WächterKontext& k, ListView& ListView6, ListBox& List1, ListBox& List2)
        : ListView6(ListView6),
          List1(List1),
          List2(List2),
          basis(k, kProzesseDatei, ListView6, "#"),
          firmen(k, kFirmaDatei, List1),
          k_(k) {}

    void LadeProzessFirmen();
    void LadeProzesse();
    // Takes a fresh snapshot into the process table and warns of the first entry that is
    // known neither by its path, nor by its maker, nor for this run. One without a name is
    // passed over; one without a path only at its fourth look in a row.
    void TesteProzesse();

    ListView& ListView6;
    ListBox& List1;
    ListBox& List2;
    Grundliste basis;   // ListView6: name "#" path, written a line an entry, read field by field
    Grundliste firmen;  // List1

private:
    // The three lists a process may be known by, each in a hash set for one pass.
    struct Listen {
        explicit Listen(const Prozesse& p);
        BekannteTexte pfade, firmen, namen;
    };
    static bool Bekannt(const Listen& l, const ProcessRecord& r, const std::string& hersteller);
    void Warnen(const ProcessRecord& r);
    // Counts one more look at a process whose path stayed empty; true at the fourth look in a
    // row at the same process. Until then its program file may not be mapped yet, or it
    // has ended between the snapshot and the question for its path.
    bool OhnePfadMelden(const ProcessRecord& r);
    // Forgets what was counted for processes that are not in the table any more.
    void OhnePfadAufräumen(const std::vector<ProcessRecord>& tabelle);

    // The looks so far at a process without a path, by its id. The creation time tells
    // whether the id still belongs to the same process: ids come back for new ones.
    struct OhnePfad {
        std::uint64_t erstellt = 0;
        int blicke = 0;
    };
    std::map<std::int32_t, OhnePfad> ohnePfad_;
    // The makers of the programs running, read again only for a program file written since.
    VersionsGedächtnis versionen_;
    // The version texts of each process by its id, with the creation time and path they
    // were read for.
    struct Laufend {
        std::uint64_t erstellt = 0;
        std::string pfad;
        DateiVersion version;
    };
    const DateiVersion& Version(const ProcessRecord& r);
    // Forgets the processes that are not in the table any more.
    void VersionenAufräumen(const std::vector<ProcessRecord>& tabelle);
    std::map<std::int32_t, Laufend> laufend_;
    WächterKontext& k_;
};

// The first process baseline, when the assistant takes the machine as it stands: writes
// daten\prozesse.txt anew from the process table, refilled for it. The three pseudo
// processes of the system are left out; a process whose path stays unknown gets a line
// ending in "#".
void ErstemalAnzeigen(WächterKontext& k);

// A number as Str turns it into text: a leading blank where a minus would stand.
std::string MitVorzeichenstelle(std::int32_t zahl);

// The menus of the panel's lists: Pro of the trusted makers (List1), Pro1 of the known
// processes (ListView6).
void Pro_Click(AlarmDaten& a, ListenPanel& panel, int index);
void Pro1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

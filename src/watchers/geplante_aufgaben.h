// Scheduled tasks: the .job files of the Windows folder's Tasks and the task files of the
// system folder's Tasks with every folder below it, each with the program it starts. An
// entry is new when its file and command together are not in the baseline, so a task whose
// command changed counts as new. Its box, its baseline file and its list sit on the panel
// page "Weitere Autostart-Orte".
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/steuerelemente.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

inline constexpr const char* kGeplanteAufgabenDatei = "daten\\GeplanteAufgaben.txt";
inline constexpr const char* kGeplanteAufgabenÜberschrift =
    "Eine geplante Aufgabe ist neu oder ihr Befehl wurde geändert.";
// A task file is a few kilobytes; a bigger one is not read, and names no program.
inline constexpr std::uint64_t kAufgabeHöchstens = 1 << 20;

// One task file found, with the program it starts and its arguments; "" when the file
// cannot be read or parsed.
struct AufgabenEintrag {
    std::string pfad;
    std::string befehl;

    // The baseline's line: the path, "|" (which no file name holds) and the command.
    std::string Zeile() const { return pfad + "|" + befehl; }
};

// The two folders: the Windows folder's Tasks (.job files only, no folders below) and the
// system folder's Tasks with everything under it.
std::string AufgabenordnerAlt(const Prozesswerte& w);
std::string AufgabenordnerNeu(const Prozesswerte& w);

// Every task file as it stands now, in the order of the folders and of the names; a missing
// folder gives none, a file gone during the walk is passed over. pumpen runs before each
// file and each folder.
std::vector<AufgabenEintrag> AufgabenAuflisten(Plattform& p, const Prozesswerte& w,
                                               const std::function<void()>& pumpen);

class GeplanteAufgaben {
public:
    GeplanteAufgaben(WächterKontext& k, ListView& liste)
        : liste(liste), basis(k, kGeplanteAufgabenDatei, liste), k_(k) {}

    // The baseline from its file; without a file the list stays empty and the next pass
    // takes the tasks as they stand.
    void Laden();
    // One pass: the first entry neither known nor deferred raises its warning. A pass with
    // no baseline file read or taken yet takes the present state instead, without a word.
    void Teste();
    // The present state written as the baseline file, for the first-run assistant.
    static void Erstaufnahme(WächterKontext& k);

    // The accept of a warning: the entry's line into the baseline.
    void Übernehmen(const std::string& zeile);
    // The panel's menu: the selected rows removed from the baseline.
    void MarkierteLöschen(ListenPanel& panel);
    // The two folders, the newer one with its subtree.
    Änderungsorte Orte();

    ListView& liste;  // the baseline: one line per known task
    Grundliste basis;

private:
    void Warnen(const AufgabenEintrag& e);
    WächterKontext& k_;
    bool grundstand_ = false;  // a baseline file was read or written in this run
    // The entries of the last walk, kept while the folders are quiet; the baseline and the
    // deferred list are still asked at every pass.
    std::optional<std::vector<AufgabenEintrag>> stand_;
};

}  // namespace kes

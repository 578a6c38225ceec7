// The places where a component class hooks into shell or browser: Browser Helper Objects,
// ShellServiceObjectDelayLoad, SharedTaskScheduler, URLSearchHooks. One watch in four
// shapes: the live entries are listed, and the first one that is neither known nor
// deferred and whose class has a server file raises a warning. A class without a server
// file passes in silence. The baselines are daten\bho.ini, daten\shellservice.ini,
// daten\taskscheduler.ini and daten\URLSearchHook.txt; the same lists are the exception
// lists of the control panel.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "common/kategorie.h"
#include "common/steuerelemente.h"
#include "platform/infos.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

inline constexpr const char* kShellServiceDatei = "daten\\shellservice.ini";
inline constexpr const char* kTaskSchedulerDatei = "daten\\taskscheduler.ini";
inline constexpr const char* kURLSearchHookDatei = "daten\\URLSearchHook.txt";

class Klassenlisten {
public:
    Klassenlisten(WächterKontext& k, ListView& ListView8, ListView& ListView9, ListView& ListView10, ListBox& List9,
                  std::array<Label, 35>& ww);

    void LadeBHO();
    void LadeShellService();
    void LadeSharedTaskScheduler();
    void LadeURLSearchHook();
    void TesteBHO();
    void TesteShellService();
    void TesteSharedTaskScheduler();
    void TesteSonstiges2();

    ListView& ListView8;   // daten\bho.ini
    ListView& ListView9;   // daten\shellservice.ini
    ListView& ListView10;  // daten\taskscheduler.ini
    ListBox& List9;        // daten\URLSearchHook.txt
    std::array<Label, 35>& ww;
    Grundliste bho;             // ListView8: a section per class
    Grundliste shellService;    // ListView9: a section per entry
    Grundliste taskScheduler;   // ListView10: a section per entry
    Grundliste urlSearchHooks;  // List9

    // The four shapes of the watch; the table of what each does differently is in the source.
    enum class Art { BHO, ShellService, TaskScheduler, URLSearchHooks };
    // The key the shape lists, in each view where it is read.
    Änderungsorte Orte(Art art);

private:
    // The shell service and task scheduler files: four keys a section, sections 1 to 50.
    void LadeVierSchlüssel(const Grundliste& datei, ListView& liste);
    // Adds the version fields of the server file and the section number to a row.
    void Dateifelder(ListItem& zeile, const std::string& pfad, int abschnitt);
    void Teste(Art art);
    // The paths of the shape's key the walk reads, in its order.
    std::vector<std::string> Pfade(Art art);

    WächterKontext& k_;
    DateiVersion infos_;  // one record, filled anew for each entry
    // The last listing of each shape's key in each view, taken again while the row's places
    // are quiet; with the category key it was read under, since a walk of a large key gives
    // nothing while that is "Dienste". Only the names are kept: what an entry not in the
    // baseline leads to is read at every tick.
    struct Listung {
        Kategorie kategorie;
        std::string ort;
        std::vector<std::string> namen;
    };
    std::array<std::array<std::optional<Listung>, 2>, 4> listungen_;
};

// What the baseline and the deferred list hold for an entry: its name, and for one seen only
// in the 32-bit view "Wow6432Node\\" before it, so that the twin of the other view stays apart.
std::string KlassenKennung(const std::string& name, bool bit32);

// The menus of the four lists: each selected row goes with its section (ListView8, 9,
// 10); the search hooks go whole, whichever line was chosen (List9).
void bho1_Click(AlarmDaten& a, ListenPanel& panel, int index);
void shellservice1_Click(AlarmDaten& a, ListenPanel& panel, int index);
void taskscheduler1_Click(AlarmDaten& a, ListenPanel& panel, int index);
void searchhook1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

// The window Alarm as the owner of every watcher: its option boxes Box1, read live by the
// cycle; its lists, which are at once the baselines and what the control panel shows; the
// deferred list; Timer1, whose tick is one watch cycle; and one object per watched
// category. The visible control panel builds on this one layer up.
#pragma once

#include <array>
#include <vector>

#include "common/box.h"
#include "common/steuerelemente.h"
#include "platform/dateiliste.h"
#include "watchers/activex.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/autostart_ordner.h"
#include "watchers/autostart_registry.h"
#include "watchers/dfue.h"
#include "watchers/dienste.h"
#include "watchers/dienstpfade.h"
#include "watchers/favoriten.h"
#include "watchers/geplante_aufgaben.h"
#include "watchers/hosts.h"
#include "watchers/klassenlisten.h"
#include "watchers/kontext.h"
#include "watchers/prozesse.h"
#include "watchers/shell_befehle.h"
#include "watchers/sperren.h"
#include "watchers/startseite.h"
#include "watchers/systemordner.h"
#include "watchers/vertrauenswuerdige_seiten.h"
#include "watchers/weitere_orte.h"

namespace kes {

struct WächterZeile;

// Timer ids of the window timers; the platform delivers ticks by these.
enum TimerId : int {
    kTimerAlarm1 = 1,   // Timer1 of Alarm: the watch cycle
    kTimerStart2 = 2,   // Timer2 of Start: the delayed second stage
    kTimerForm3_1 = 3,  // Timer1 of Form3: blinks the hidden-file box
    kTimerAufAb0 = 4,   // the arrows of AufAb1, one timer each
    kTimerAufAb1 = 5,
    kTimerSofort = 6,  // asks the change sources between two ticks of Timer1
};

// The option boxes of Alarm. Boxes 0 to 3 are the panel's own (autostart, sound, the log,
// deleting the log at start); every other box belongs to one watcher row or one of its
// options. A new box raises the count here; the watcher table's check fails the build
// until it does, and the array, the view and the settings follow it.
inline constexpr int kEigeneBoxen = 4;
inline constexpr int kBoxAnzahl = 47;

// How often the change sources are asked between two ticks of Timer1.
inline constexpr int kSofortMs = 250;

class AlarmDaten {
public:
    explicit AlarmDaten(WächterKontext& k);
    AlarmDaten(const AlarmDaten&) = delete;
    AlarmDaten& operator=(const AlarmDaten&) = delete;

    std::array<Box, kBoxAnzahl> Box1;
    Timer Timer1;
    ListBox List8;  // the deferred list, in memory only
    TextBox Text2;  // the log's master text

    // Baselines and exception lists, by the names the control panel gives them.
    ListView ListView1;            // known autostart registry entries
    ListView ListView2;            // known dial-up entries: name, number
    ListView ListView3;            // saved browser values
    ListView ListView4;            // files of the Windows folder: path, length
    ListView ListView5;            // the live snapshot of the folder being tested
    ListView ListView6;            // known processes: name, path
    ListView ListView7;            // files of the system folder: path, length
    ListView ListView8;            // known Browser Helper Objects
    ListView ListView9;            // known ShellServiceObjectDelayLoad entries
    ListView ListView10;           // known SharedTaskScheduler entries
    ListView ListView11;           // known services
    ListView ListView12;           // known trusted sites
    ListView ListView13;           // files of SysWOW64: path, length
    ListView ListView14;           // known Winlogon entries
    ListView ListView15;           // known AppInit_DLLs entries
    ListView ListView16;           // known debuggers of Image File Execution Options
    ListView ListView17;           // known entries of the policies' Run keys
    ListView ListView18;           // known Active Setup entries
    ListView ListView19;           // known boot and security providers
    ListView ListView20;           // known Winsock providers
    ListView ListView21;           // known execute hooks and overlay icons of the shell
    ListView ListView22;           // known toolbars of the browser
    ListView ListView23;           // known scheduled tasks
    ListView ListView24;           // known window title and proxy of the browser
    ListView ListView25;           // known policy locks beside the two of the tools
    ListView ListView26;           // known classes of the program file types
    ListView ListView27;           // known programs of the services
    ListView ListView33;           // the autostart registry rows of the current listing
    ListBox List1;                 // trusted makers of processes
    ListBox List2;                 // processes allowed for this run only
    ListBox List3;                 // known autostart folder entries
    ListBox List4;                 // known favourites
    ListBox List5;                 // exceptions of the Windows folder
    ListBox List6;                 // known ActiveX objects
    ListBox List7;                 // the live ActiveX folder
    ListBox List9;                 // known URL search hooks
    ListBox List10;                // trusted makers of services
    std::array<Label, 16> Label2;  // watched folders and keys
    FileListBox File1;             // the folder of the autostart or favourites pass at hand
    std::array<Label, 35> ww;      // counts and paths shown on the pages
    std::array<TextBox, 3> Text5;  // expected shell open commands

    // True when the key stands in the deferred list, compared whole and with case.
    bool Später(const std::string& schlüssel) const;

    // The watchers, one object per watched category, each with its own lists.
    Prozesse prozesse;
    Favoriten favoriten;
    StartSeite startSeite;
    DFÜ dfü;
    AutostartOrdner autostartOrdner;
    AutostartRegistry autostartRegistry;
    Hosts hosts;
    WindowsDateien windowsDateien;
    Klassenlisten klassenlisten;
    ActiveX activeX;
    Dienste dienste;
    Sperren sperren;
    ShellBefehle shellBefehle;
    VertrauenswürdigeSeiten vertrauenswürdigeSeiten;
    RegistryOrte winlogon;
    RegistryOrte appInit;
    RegistryOrte imageFileExecution;
    RegistryOrte policiesRun;
    RegistryOrte activeSetup;
    RegistryOrte bootSicherheit;
    RegistryOrte winsock;
    RegistryOrte shellErweiterungen;
    RegistryOrte ieToolbar;
    RegistryOrte browsereinstellungen;
    RegistryOrte weitereSperren;
    RegistryOrte dateitypen;
    RegistryOrte dienstpfade;
    GeplanteAufgaben geplanteAufgaben;

    // The watcher of further registry places whose warnings carry this key; null for the
    // keys of the other watchers.
    RegistryOrte* RegistryOrteVon(Kategorie kategorie);
    // Every watcher of further registry places.
    std::array<RegistryOrte*, 13> RegistryOrteAlle();

    // One tick of Timer1: the passes of the watcher table, each run only while the busy flag
    // is false and its box is 1, both tested anew for every pass.
    void Durchlauf();
    // Every watcher's loaders, in the order of the table.
    void Laden();
    // The change sources of the table's rows.
    Änderungsquellen änderungen;
    // Between two ticks: arms the rows whose box is on and that have not walked yet, and
    // asks every source; true when one fired since its row last walked.
    bool Gefeuert();

    // A baseline or exception list with its file, and the loader that fills the list from
    // the file alone (a file put back from a backup is read in again by it): the lists of
    // the watcher table's menus.
    struct ListeMitDatei {
        Grundliste* liste;
        void (*laden)(AlarmDaten& a);
    };
    std::vector<ListeMitDatei> ListenMitDatei();

private:
    bool Quellen(std::size_t zeile, const WächterZeile& z);
    WächterKontext& k_;
};

}  // namespace kes

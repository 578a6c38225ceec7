// Files created in or deleted from the Windows folder, the system folder and, on a 64-bit
// Windows, SysWOW64 (the 32-bit programs' system folder), compared with a snapshot taken
// when the program starts; the snapshot lives in memory for the run. A count test comes
// first, so a cycle with nothing new costs one folder walk per folder. The Windows folder
// has an exception list (daten\windows.txt); the two system folders have none.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "common/steuerelemente.h"
#include "platform/alledateien.h"
#include "platform/laengengedaechtnis.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

class WindowsDateien {
public:
    WindowsDateien(WächterKontext& k, ListView& ListView4, ListView& ListView7, ListView& ListView13,
                   ListView& ListView5, ListBox& List5)
        : ListView4(ListView4),
          ListView7(ListView7),
          ListView13(ListView13),
          ListView5(ListView5),
          List5(List5),
          ausnahmen(k, "daten\\windows.txt", List5),
          k_(k) {}

    void LadeWindowsausnahme();
    void LadeWindows();
    void LadeWindowsSys32();
    void TesteWindowsGelöscht();
    void TesteWindowsErstellt();
    void TesteWindowsSystem32Gelöscht();
    void TesteWindowsSystem32Erstellt();
    // SysWOW64 as the system folder; where there is none they do nothing.
    void LadeWindowsSysWow64();
    void TesteWindowsSysWow64Gelöscht();
    void TesteWindowsSysWow64Erstellt();

    // The baseline a file of a warning belongs to: SysWOW64's for a file at its top level,
    // else the Windows folder's, which the answers have always used.
    ListView& BasisVon(const std::string& pfad);

    // True when the path is a line of List5, compared whole and with case.
    bool AusnahmeTrue(const std::string& pfad) const;
    // Raises the warning: mode 1 created, 2 deleted, 3 changed (no caller yet).
    void GefundenWindows(const std::string& pfad, std::int16_t modus, std::int32_t anzahl1, std::int32_t anzahl2,
                         std::int32_t nummer);

    ListView& ListView4;   // baseline of the Windows folder: path, length
    ListView& ListView7;   // baseline of the system folder
    ListView& ListView13;  // baseline of SysWOW64
    ListView& ListView5;   // the live snapshot of the folder being tested
    ListBox& List5;        // exceptions of the Windows folder, one full path a line
    Grundliste ausnahmen;  // List5
    // The result of the last exception test of a Windows folder watcher.
    bool Ausnahmedatei = false;

private:
    // The folders by their place in the snapshots and memories kept below.
    enum Ordner { kWindows, kSystem, kSysWow64 };
    // The top level of the folder, path and length a row; a walk that fails leaves it.
    void Füllen(ListView& liste, Ordner welcher, const std::string& ordner);
    void Gelöscht(Ordner welcher, const std::string& ordner, const ListView& basis, bool ausnahmen);
    void Erstellt(Ordner welcher, const ListView& basis, bool ausnahmen);
    const std::unordered_set<std::string_view>& BekanntePfade(Ordner welcher, const ListView& basis);
    // Fills the rows with the folder's top level, path and length a row.
    void Walk(Ordner welcher, const std::string& ordner, std::vector<ListItem>& zeilen);
    // The last walk of each folder, which ListView5 gets back while nothing changed there.
    struct Stand {
        std::vector<ListItem> zeilen;
        bool gültig = false;  // false until a walk ends, and while one runs
    };
    std::array<Stand, 3> stand_;
    // Puts these rows into ListView5, with the storage of the rows it had.
    void Zeigen(const std::vector<ListItem>& zeilen);
    std::vector<ListItem> vorrat_;       // rows ListView5 gave up, kept for their storage
    std::vector<DateiEintrag> dateien_;  // the last walk's entries' buffer
    // The lengths each folder's walks read, for the baseline and the snapshot alike.
    std::array<LängenGedächtnis, 3> längen_;
    // Each folder's baseline texts as a set, kept while the baseline stays as it was. The
    // set views the texts: a copy would view the original's.
    struct Basismenge {
        Basismenge() = default;
        Basismenge(const Basismenge&) = delete;
        Basismenge& operator=(const Basismenge&) = delete;
        std::vector<std::string> texte;
        std::unordered_set<std::string_view> menge;
    };
    std::array<Basismenge, 3> basis_;
    WächterKontext& k_;
};

// The menu of the Windows folder's exceptions (List5).
void Löschewindows1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

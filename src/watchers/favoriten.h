// New favourites in the browser's favourites folder and its "Links" folder. A close
// relative of the autostart folder watcher, with its own rules: the first unknown file
// ends the loop even when it is deferred, the balloon follows the removal and only on
// request, and an empty line of the baseline file is a name like any other.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "common/steuerelemente.h"
#include "platform/dateiliste.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

inline constexpr const char* kFavoritenDatei = "daten\\favoriten.txt";

class Favoriten {
public:
    Favoriten(WächterKontext& k, ListBox& List4, std::array<Label, 16>& Label2, FileListBox& File1)
        : List4(List4), Label2(Label2), File1(File1), basis(k, kFavoritenDatei, List4), k_(k) {}

    void LadeFavoriten();
    void TesteFavoriten();

    ListBox& List4;                 // the known names
    std::array<Label, 16>& Label2;  // (0) the favourites folder, (1) its "Links" folder
    FileListBox& File1;
    Grundliste basis;  // List4

    // The two folders, whose change sources tell that a pass must walk again.
    Änderungsorte Orte() const;

private:
    WächterKontext& k_;
    // Each folder's last walk, kept while it is quiet; the known names and the deferred list
    // are still asked at every pass.
    std::array<std::optional<std::vector<std::string>>, 2> stand_;
};

// The menu of the known favourites (List4).
void LöscheFavoriten_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

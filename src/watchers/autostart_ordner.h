// New files in the Startup folders of the user and of all users. Both folders share one
// list of known names; the first unknown file of a folder is reported, or removed at once
// with a balloon when the user has chosen so. The cycle's category key picks the folder.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "platform/dateiliste.h"
#include "watchers/bekannte_texte.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

class AutostartOrdner {
public:
    AutostartOrdner(WächterKontext& k, ListBox& List3, std::array<Label, 16>& Label2, FileListBox& File1)
        : List3(List3), Label2(Label2), File1(File1), basis(k, "daten\\Autostart.txt", List3), k_(k) {}

    void LadeAutostart();
    void TesteAutostartOrdner();

    ListBox& List3;                 // the known names
    std::array<Label, 16>& Label2;  // (2) the user's Startup folder, (3) that of all users
    FileListBox& File1;
    Grundliste basis;  // List3

private:
    void Entfernen(const std::string& name, const std::string& pfad);
    void Warnen(const std::string& pfad);
    WächterKontext& k_;
};

// True when the name stands in the list, both sides in lower case; "desktop.ini" is always
// known. The favourites watcher knows its names the same way.
bool NameBekannt(const std::vector<std::string>& bekannt, const std::string& name);
// The same test on the names of a list gathered once for a pass.
BekannteTexte BekannteNamen(const std::vector<std::string>& bekannt);
bool NameBekannt(const BekannteTexte& bekannt, const std::string& name);

// The folder with one closing "\", then the file name.
std::string PfadIn(const std::string& ordner, const std::string& name);

// The menu of the known names (List3).
void LöscheAutostartordner1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

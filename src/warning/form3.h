// The warning window Form3. Its controls are the warning record (filled by a watcher, read
// back by the actions); this adds the window, its load handler, which arranges the buttons
// by the current category key, and the buttons' handlers. Each warning loads a fresh
// window, so all design values hold again.
#pragma once

#include <array>
#include <string>

#include "common/fenster.h"
#include "warning/warn_kontext.h"
#include "watchers/warnung.h"

namespace kes {

// A wish to pop a menu up, which the view carries out once and clears. The user's choice
// comes back as a click on the menu's entry.
struct PopupWunsch {
    std::string Menü;      // "Prozesse", "regedit", "killprozess", "dienst", "host", "dfü"; empty: none
    int Standard = 0;      // the entry shown in bold
    bool AmZeiger = true;  // at the mouse; otherwise below the bar of buttons
    int VersatzY = 0;      // in twips
};

class Antwort;

class Form3Fenster : public Fenster, public Warnung {
public:
    explicit Form3Fenster(WarnKontext& k);

    // The menus of the panes and of the buttons, and what their clicks need.
    std::array<MenuItem, 1> Prozesse1{MenuItem{"Ordner öffnen"}};
    std::array<MenuItem, 2> regedit1{};
    std::array<MenuItem, 3> killprozess1{MenuItem{"Prozess immer zulassen"}, MenuItem{"Hersteller immer zulassen"},
                                         MenuItem{"Nur 1x zulassen"}};
    std::array<MenuItem, 2> dienst1{MenuItem{"Hersteller immer zulassen"}, MenuItem{"Dienst immer zulassen"}};
    std::array<MenuItem, 2> host1{MenuItem{"Standard setzen"}, MenuItem{"Halvenik Hosts Datei verwenden"}};
    std::array<MenuItem, 2> dfü1{MenuItem{"Information"}, MenuItem{"DFÜ Ordner öffnen"}};
    PopupWunsch Popup;
    std::string Merktext;    // the folder that "Ordner öffnen" opens
    int ListView2Index = 0;  // 1-based rows last clicked
    int ListView4Index = 0;

    // The answer being carried out, for the journal and the backup of what it removes.
    Antwort* antwort = nullptr;
    // Set only by Image7: the window was left with monitoring switched off.
    bool ÜberwachungAus = false;
    // Asks the view to give the focus to picProcIcon; the view clears it.
    bool picProcIconFokus = false;

    void Show() override;
    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    // Every unload passes here, whatever closed the window.
    void Form_QueryUnload();
    void Timer1_Timer();

    // Saves the settings and unloads the window: the end of every action.
    void raus();
    // A click on picture button n (1..9).
    void Image_Click(int n);
    void Knopf(int n);
    // "Übernehmen": the warned-of state becomes the baseline of its category.
    void Image1_Click();
    // "Kill Prozess".
    void Image2_Click();
    // "Löschen": asks through Form1 unless told not to, then löschen.
    void Image3_Click();
    // "Ausnahmeliste" and "Na gut..": the file warnings' own answers.
    void Image4_Click();
    void Image5_Click();
    // "Später": the warned-of thing goes on the deferred list until the program ends.
    void Image6_Click();
    // "Kestrella sofort Deaktivieren".
    void Image7_Click();
    // "Freigeben" / "Original": puts the original back; for the hosts file through a menu.
    void Image8_Click();
    // "Mehr Infos" / "Öffnen": opens a tool and keeps the warning open.
    void Image9_Click();
    // Removes the warned-of thing from the system when ja; the baseline stays as it was.
    void löschen(bool ja);
    // Deletes a registry value by hive name; false when it could not be removed.
    bool RegistryLöschenValue(const std::string& hive, const std::string& schlüssel, const std::string& wert,
                              const std::string& daten);
    bool RegistryLöschenSubkey(const std::string& hive, const std::string& schlüssel);

    // The menus behind the buttons.
    void host1_Click(int index);
    void Hosts(int index);
    void killprozess1_Click(int index);
    void dienst1_Click(int index);
    void dfü1_Click(int index);

    // The panes' lists: an event with the clicked 1-based row, and the menus' entries.
    void ListView2_ItemClick(int index);
    void ListView3_ItemClick(int index);
    void ListView4_ItemClick(int index);
    void Prozesse1_Click(int index);
    void regedit1_Click(int index);

    // What the action branches reach.
    WarnKontext& K() { return k_; }

private:
    WarnKontext& k_;
};

// Text1(i) of the window: the field whose meaning the category gives, which the
// category's branches read and log.
inline const std::string& Feld(const Form3Fenster& f, int i) {
    return f.Text1[i].Text;
}

// Height in pixels that the title bar and frame add to the panes (555 twips at 96 dpi).
inline constexpr int kForm3Rahmen = 37;

}  // namespace kes

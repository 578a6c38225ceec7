// The warning window Form3. Its controls are the warning record: a watcher fills them, the
// action buttons read them back. Each warning loads a fresh window, so design values hold.
#pragma once

#include <array>
#include <string>

#include "core/fenster.h"
#include "core/steuerelemente.h"
#include "platform/icoholen.h"

namespace kes {

class Programm;

// A wish to pop a menu of the panes up, which the view carries out once and clears. The
// user's choice comes back as a click on the menu's entry.
struct PopupWunsch {
    std::string Menü;      // "Prozesse" or "regedit"; empty: none
    int Standard = 0;      // the entry shown in bold
    bool AmZeiger = true;  // at the mouse; otherwise at the left of ListView2, VersatzY above its top
    int VersatzY = 0;      // in twips
};

class Form3Fenster : public Fenster {
public:
    explicit Form3Fenster(Programm& prg);

    std::array<Label, 3> Label1;
    std::array<TextBox, 6> Text1;
    ListView ListView1;              // pane 1: file details
    ListView ListView2;              // pane 0: name and full path
    ListView ListView3;              // pane 4: loaded modules
    ListView ListView4;              // pane 3: registry row
    std::array<CheckBox, 8> Check1;  // pane 2: file attributes, disabled until a bit lights them
    std::array<PictureBox, 5> Picture3;
    PictureBox Picture2;               // the bar of buttons
    std::array<kes::Image, 10> Image;  // Image[1] .. Image[9]; Image[0] unused
    std::array<Label, 8> Label3;       // captions of the buttons
    Label lblModName;
    TextBox txtMdlSPath, txtMdlLPath, txtMdlDesc;
    Label Modulscaption;
    SymbolBild picProcIcon;
    Timer Timer1;

    // The menus of the panes and what their clicks need.
    std::array<MenuItem, 1> Prozesse1{MenuItem{"Ordner öffnen"}};
    std::array<MenuItem, 2> regedit1{};
    PopupWunsch Popup;
    // The menus of "Übernehmen" for processes and services; their handlers belong to the
    // other actions of the window.
    std::array<MenuItem, 3> killprozess1{MenuItem{"Prozess immer zulassen"}, MenuItem{"Hersteller immer zulassen"},
                                         MenuItem{"Nur 1x zulassen"}};
    std::array<MenuItem, 2> dienst1{MenuItem{"Hersteller immer zulassen"}, MenuItem{"Dienst immer zulassen"}};
    std::array<MenuItem, 2> host1{MenuItem{"Standard setzen"}, MenuItem{"Halvenik Hosts Datei verwenden"}};
    std::string Merktext;    // the folder that "Ordner öffnen" opens
    int ListView2Index = 0;  // 1-based rows last clicked
    int ListView4Index = 0;

    // Set only by Image7: the window was left with monitoring switched off.
    bool ÜberwachungAus = false;

    void Show() override;
    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    // Every unload passes here, whatever closed the window.
    void Form_QueryUnload();
    void Timer1_Timer();

    // Saves the settings and unloads the window: the end of every action.
    void raus();
    // "Später": the warned-of thing goes on the deferred list until the program ends.
    void Image6_Click();
    // "Kestrella sofort Deaktivieren".
    void Image7_Click();
    // "Freigeben" / "Original": puts the original back; for the hosts file through the menu host.
    void Image8_Click();
    // "Mehr Infos" / "Öffnen": opens a tool and keeps the warning open.
    void Image9_Click();
    // The menu of "Original" for the hosts file: 0 the standard file, 1 the program's own.
    void host1_Click(int index);
    // A click on picture button n (1..9).
    void Image_Click(int n);
    // "Übernehmen": the warned-of state becomes the baseline of its category.
    void Image1_Click();
    // "Löschen": asks through Form1 unless told not to, then löschen.
    void Image3_Click();
    // Removes the warned-of thing from the system when ja; the baseline stays as it was.
    void löschen(bool ja);
    // Deletes a registry value by hive name; false when it could not be removed.
    bool RegistryLöschenValue(const std::string& hive, const std::string& schlüssel, const std::string& wert,
                              const std::string& daten);
    bool RegistryLöschenSubkey(const std::string& hive, const std::string& schlüssel);

    // The panes' lists: an event with the clicked 1-based row, and the menus' entries.
    void ListView2_ItemClick(int index);
    void ListView3_ItemClick(int index);
    void ListView4_ItemClick(int index);
    void Prozesse1_Click(int index);
    void regedit1_Click(int index);

    // The caption label of a picture button (Image1 -> Label3(0), ..., Image9 -> Label3(7)).
    static int LabelVon(int image);

private:
    void Zeigen(int image);
    // The bodies of accept and delete, under the error exits of their handlers.
    void Übernehmen();
    void Entfernen();
    Programm& prg_;
};

// Height in pixels that the title bar and frame add to the panes (555 twips at 96 dpi).
inline constexpr int kForm3Rahmen = 37;

// Fills the file details (pane 1) and the attribute boxes (pane 2) of Form3 for a file. A
// routine of the window Alarm, which every watcher calls before it shows the warning.
void holedaten(Programm& prg, std::string& pfad);

}  // namespace kes

// The Win32 view of the control panel Alarm: the sidebar of eleven entries on the left
// (owner-drawn buttons in the two colours of their model), and to its right the
// pages, each a group box whose controls show and hide with it. Each control is bound to
// its model: option boxes, lists, labels and texts are brought in line after every event;
// clicks, menus and edits go back to the model's handlers. The pages are built in three
// files by group (alarm_seiten_*.cpp); closing the window is a way out of the program.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "panel/alarm.h"
#include "ui/win32/fenster_ansicht.h"
#include "ui/win32/steuerung.h"

namespace kes {
class Programm;
}

namespace kes::ui {

// The sidebar's entries and the pages, as many as the panel has.
inline constexpr int kLeisteEinträge = static_cast<int>(std::tuple_size_v<decltype(AlarmFenster::Label1)>);
inline constexpr int kSeiten = static_cast<int>(std::tuple_size_v<decltype(AlarmFenster::Frame1)>);

class AlarmAnsicht : public FensterAnsicht {
public:
    AlarmAnsicht(Programm& prg, AlarmFenster& modell);
    void Abgleichen() override;

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;
    // Brings every control in line with its model.
    void Inhalt();
    bool Befehl(int id, int code, HWND quelle);
    bool Benachrichtigung(LPARAM lp, LRESULT& ergebnis);
    void MenüZeigen();
    // The context menus of the exception lists: the selection of the real list goes to its
    // model, the model builds the caption, and the choice goes back to the model.
    void AusnahmeMausLos(HWND liste);
    // A list box tells its parent of no left button release: its own messages are watched
    // for that one.
    static LRESULT CALLBACK KastenProc(HWND h, UINT msg, WPARAM wp, LPARAM lp, UINT_PTR id, DWORD_PTR ansicht);
    void AusnahmeMenüZeigen();
    void LeisteMalen(const DRAWITEMSTRUCT& d);
    void LinkMalen(const DRAWITEMSTRUCT& d);

    // Building the pages; coordinates are relative to the page's corner.
    void Seitenleiste();
    void SeitenAllgemein();  // 0, 1, 9, 10, 15, 17
    void SeitenInternet();   // 2, 3, 4, 7, 8, 18
    void SeitenRegistry();   // 5, 6, 11, 12, 13, 14, 16, 19, 21
    // Stops the program when a box of Box1 or a list of the watcher table has no control.
    void AllesPlatziert() const;
    HWND Neu(int seite, const char* klasse, const std::string& text, DWORD stil, int id, int x, int y, int b, int h);
    HWND Überschrift(int seite, const std::string& text, int x, int y, int b = 300);
    HWND Hilfe(int seite, const std::string& text, int x, int y, int b, int h);
    void BoxNeu(int seite, int index, int x, int y);
    HWND ListeNeu(int seite, const ListView& modell, int x, int y, int b, int h);
    void ListBoxNeu(int seite, const ListBox& modell, int x, int y, int b, int h);
    void LabelNeu(int seite, const Label& modell, int x, int y, int b, int h = 16);

    Programm& prg_;
    AlarmFenster& f_;

    struct Teil {
        int seite;
        HWND h;
    };
    struct Liste {
        int seite;
        std::unique_ptr<ListenAnsicht> ansicht;
        const ListView* modell;
    };
    struct Kasten {
        HWND h;
        const ListBox* modell;
        std::vector<std::string> zuletzt;
    };
    struct Beschriftung {
        HWND h;
        const Label* modell;
    };
    std::vector<Teil> teile_;
    std::vector<Liste> listen_;
    std::vector<Kasten> kästen_;
    std::vector<Beschriftung> beschriftungen_;
    struct Ausnahme {
        HWND h;
        Ausnahmeliste liste;
        ListView* ansicht;  // the model of a list view, or null
        ListBox* kasten;    // the model of a list box, or null
    };
    std::vector<Ausnahme> ausnahmen_;
    // Binds a list the view shows to its menu, if the table gives it one.
    void AusnahmeMerken(HWND h, const ListView& modell);
    void AusnahmeMerken(HWND h, const ListBox& modell);
    std::array<HWND, kLeisteEinträge> leiste_{};
    std::array<long, 22> leisteFarben_{};
    std::array<HWND, kBoxAnzahl> box_{};
    std::array<HWND, 2> image_{};
    HWND aufab_ = nullptr;
    HWND text2_ = nullptr;
    std::string text2Zuletzt_;
    HWND text1_ = nullptr;
    HWND command1_ = nullptr;
    HWND listView2_ = nullptr;
    HWND listView3_ = nullptr;
    HWND sicherungen_ = nullptr;
    std::array<HWND, 3> text5_{};
    HWND tipps_ = nullptr;
    HWND sofort_ = nullptr;
};

// Ids of the panel's controls.
enum AlarmId : int {
    kIdLeiste = 100,  // + sidebar entry
    kIdBox = 200,     // + index of Box1
    kIdListe = 300,   // + running number
    kIdLogLöschen = 400,
    kIdLogÖffnen = 401,
    kIdSofort = 402,
    kIdÄndern = 410,
    kIdZonen = 411,
    kIdImage = 420,  // + 0 web site, 1 mail
    kIdText1 = 430,
    kIdText5 = 440,  // + 0..2
    kIdAufAb = 450,
    kIdSonst = 500,
};
static_assert(kIdBox + kBoxAnzahl <= kIdListe, "every box has an id of its own");

// The page's corner in the client area: 1800 and 120 twips, 8175 by 6375 twips in size.
inline constexpr int kSeiteLinks = 120, kSeiteOben = 8, kSeiteBreite = 545, kSeiteHöhe = 425;

}  // namespace kes::ui

// The pages of the control panel reached through the menus "Autostart" and "Hijacker":
// autostart folders and keys, the class lists, ActiveX, URL search hooks, the open
// commands of the program file types, and the further autostart places.
#include <span>

#include "ui/win32/alarm_ansicht.h"

namespace kes::ui {

namespace {
constexpr const char* kSsodlHilfe =
    "Unter ShellServiceObjectDelayLoad trägt sich ein, was der Explorer bei jedem Start mitladen soll. "
    "Neben Teilen von Windows nisten sich hier gern Programme ein, die unbemerkt mit dem Desktop "
    "starten wollen. Neue Einträge werden sofort gemeldet.";
constexpr const char* kTaskSchedulerHilfe =
    "SharedTaskScheduler-Einträge lädt der Explorer noch vor dem Desktop. Windows selbst braucht hier "
    "kaum etwas; ein neuer Eintrag stammt oft von unerwünschter Software, die so jeden Start überlebt.";
constexpr const char* kBhoHilfe =
    "Browser Helper Objects sind Erweiterungen, die der Internet Explorer bei jedem Start lädt. Sie "
    "sehen jede aufgerufene Seite und können den Browser steuern. Symbolleisten und nützliche Helfer "
    "arbeiten so, aber auch Spionage- und Werbeprogramme.";
constexpr const char* kActiveXHilfe =
    "ActiveX-Objekte (Downloaded Program Files) sind Programme, die Webseiten über den Internet "
    "Explorer auf den Rechner laden. Ein neues Objekt, das Sie nicht selbst bestätigt haben, ist "
    "verdächtig. Unten die bekannten Objekte, darunter der Inhalt des Ordners.";
constexpr const char* kAutostartHilfe =
    "Programme, die bei jedem Windows-Start laufen sollen, tragen sich in die Run-Schlüssel der "
    "Registry ein. Kestrella vergleicht diese Einträge laufend mit der Liste der bekannten Einträge "
    "und warnt vor jedem neuen.";
constexpr const char* kShellHilfe =
    "Die Öffnen-Befehle der Dateitypen exe, com, bat, pif und hta bestimmen, wie Windows ein Programm "
    "startet. Wer sie verbiegt, lässt vor jedem Programmstart sein eigenes laufen. Hier stehen die "
    "erwarteten Werte; Änderungen gelten bis zum Ende der Sitzung.";
}  // namespace

void AlarmAnsicht::SeitenRegistry() {
    const int innen = kSeiteBreite - 24;

    // 5: autostart folders.
    BoxNeu(5, 11, 12, 22);
    BoxNeu(5, 12, 28, 44);
    Überschrift(5, "Überwachte Ordner:", 12, 72);
    LabelNeu(5, f_.Label2[2], 24, 90, innen - 12);
    LabelNeu(5, f_.Label2[3], 24, 108, innen - 12);
    Überschrift(5, "Ausnahmen:", 12, 134);
    ListBoxNeu(5, f_.List3, 12, 150, innen, 262);

    // 6: autostart keys.
    BoxNeu(6, 13, 12, 22);
    Hilfe(6, kAutostartHilfe, 12, 44, innen, 48);
    for (int i = 4; i <= 15; ++i) LabelNeu(6, f_.Label2[i], 12, 96 + (i - 4) * 15, innen, 15);
    Überschrift(6, "Ausnahmen:", 12, 282);
    ListeNeu(6, f_.ListView1, 12, 298, innen, 114);

    // 11 to 14: the class lists and ActiveX.
    const struct {
        int seite, box;
        const char* hilfe;
        const ListView* liste;
    } klassen[] = {{11, 21, kBhoHilfe, &f_.ListView8},
                   {13, 23, kSsodlHilfe, &f_.ListView9},
                   {14, 24, kTaskSchedulerHilfe, &f_.ListView10}};
    for (const auto& k : klassen) {
        BoxNeu(k.seite, k.box, 12, 22);
        Hilfe(k.seite, k.hilfe, 12, 46, innen, 60);
        Überschrift(k.seite, "Ausnahmen:", 12, 112);
        ListeNeu(k.seite, *k.liste, 12, 128, innen, 284);
    }
    BoxNeu(12, 22, 12, 22);
    Hilfe(12, kActiveXHilfe, 12, 46, innen, 60);
    Überschrift(12, "Ausnahmen:", 12, 112);
    ListBoxNeu(12, f_.List6, 12, 128, innen, 150);
    Überschrift(12, "Downloaded Program Files:", 12, 284);
    ListBoxNeu(12, f_.List7, 12, 300, innen, 112);

    // 16: URL search hooks.
    BoxNeu(16, 27, 12, 22);
    Überschrift(16, "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks", 12, 48, innen);
    Überschrift(16, "Ausnahmen:", 12, 72);
    ListBoxNeu(16, f_.List9, 12, 88, innen, 324);

    // 19: open commands of the program file types.
    BoxNeu(19, 30, 12, 22);
    BoxNeu(19, 31, 28, 44);
    Hilfe(19, kShellHilfe, 12, 66, innen, 60);
    for (int i = 0; i < 10; ++i) {
        LabelNeu(19, f_.ww[22 + i], 12, 134 + i * 15, innen, 15);
    }
    for (int i = 0; i < 3; ++i) {
        LabelNeu(19, f_.ww[32 + i], 12, 296 + i * 28, 120, 16);
        text5_[i] = Neu(19, "EDIT", f_.Text5[i].Text, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, kIdText5 + i, 136,
                        293 + i * 28, innen - 124, 22);
    }

    // 21 and 22: the further places, two columns, each box above its baseline.
    struct Ort {
        int box;
        const ListView* liste;
    };
    const auto spalten = [&](int seite, std::span<const Ort> orte) {
        const int spalte = (innen - 8) / 2;
        constexpr int kZeile = 80;
        for (std::size_t i = 0; i < orte.size(); ++i) {
            const int x = 12 + static_cast<int>(i % 2) * (spalte + 8), y = 18 + static_cast<int>(i / 2) * kZeile;
            BoxNeu(seite, orte[i].box, x, y);
            ListeNeu(seite, *orte[i].liste, x, y + 20, spalte, kZeile - 24);
        }
    };
    const Ort autostart[] = {{33, &f_.ListView14}, {34, &f_.ListView15}, {35, &f_.ListView16}, {36, &f_.ListView17},
                             {37, &f_.ListView18}, {38, &f_.ListView19}, {39, &f_.ListView20}, {40, &f_.ListView21},
                             {42, &f_.ListView23}};
    spalten(21, autostart);
    const Ort browser[] = {{41, &f_.ListView22}, {43, &f_.ListView24}, {44, &f_.ListView25}, {45, &f_.ListView26}};
    spalten(22, browser);
}

}  // namespace kes::ui

// The pages of the control panel reached through the menu "Internet": favourites, start
// pages with their edit, dial-up, the messenger service, the hosts file, trusted sites.
#include "ui/win32/alarm_ansicht.h"

namespace kes::ui {

namespace {
constexpr const char* kNachrichtendienstHilfe =
    "Der Windows-Nachrichtendienst zeigt Mitteilungen an, die über das Netzwerk an Ihren Rechner "
    "geschickt werden. Im Internet wird er gern für Werbefenster missbraucht, die wie Meldungen des "
    "Systems aussehen.\r\n\r\nIst diese Option eingeschaltet, beendet Kestrella den Dienst, sobald eine "
    "Online-Verbindung besteht, und startet ihn wieder, wenn die Verbindung getrennt ist. Im lokalen "
    "Netzwerk bleibt er so nutzbar.";
}  // namespace

void AlarmAnsicht::SeitenInternet() {
    const int innen = kSeiteBreite - 24;

    // 2: favourites.
    BoxNeu(2, 5, 12, 22);
    BoxNeu(2, 6, 28, 44);
    Überschrift(2, "Überwachte Ordner:", 12, 72);
    LabelNeu(2, f_.Label2[0], 24, 90, innen - 12);
    LabelNeu(2, f_.Label2[1], 24, 108, innen - 12);
    Überschrift(2, "Ausnahmen URL's:", 12, 134);
    ListBoxNeu(2, f_.List4, 12, 150, innen, 262);

    // 3: start and search pages, and the edit of one saved value.
    BoxNeu(3, 8, 12, 22);
    BoxNeu(3, 9, 28, 44);
    listView3_ = ListeNeu(3, f_.ListView3, 12, 72, innen, 270);
    Überschrift(3, "Gespeicherter Wert (Eintrag in der Liste anklicken):", 12, 352, 400);
    text1_ = Neu(3, "EDIT", "", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, kIdText1, 12, 370, innen - 104, 22);
    command1_ = Neu(3, "BUTTON", f_.Command1.Caption, WS_TABSTOP | BS_PUSHBUTTON, kIdÄndern, innen - 84, 368, 96, 26);

    // 4: dial-up; a click on a column head sorts.
    BoxNeu(4, 10, 12, 22);
    Überschrift(4, "Ausnahmen :", 12, 50);
    listView2_ = ListeNeu(4, f_.ListView2, 12, 66, innen, 346);

    // 7: the messenger service.
    BoxNeu(7, 14, 12, 22);
    Hilfe(7, kNachrichtendienstHilfe, 12, 50, innen, 130);

    // 8: the hosts file; the labels are filled when the page is chosen.
    BoxNeu(8, 15, 12, 22);
    LabelNeu(8, f_.ww[7], 12, 56, innen, 18);
    LabelNeu(8, f_.ww[6], 12, 76, innen, 18);

    // 18: trusted sites.
    BoxNeu(18, 29, 12, 22);
    Neu(18, "BUTTON", "Sicherheitszone öffnen", WS_TABSTOP | BS_PUSHBUTTON, kIdZonen, 12, 48, 170, 26);
    Überschrift(18, "Ausnahmen:", 12, 86);
    ListeNeu(18, f_.ListView12, 12, 102, innen, 310);
}

}  // namespace kes::ui

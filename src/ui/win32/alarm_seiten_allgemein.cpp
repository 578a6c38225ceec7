// The pages of the control panel that stand for themselves: the current settings with the
// interval and the log, processes, folders, the deferred list, the two locks, services.
#include "ui/win32/alarm_ansicht.h"
#include "ui/win32/aufab_ansicht.h"
#include "ui/win32/box_ansicht.h"

namespace kes::ui {

namespace {
constexpr const char* kSpäterHilfe =
    "Hier stehen alle Einträge, die Sie in einer Warnung mit \"Später\" zurückgestellt haben. "
    "Kestrella meldet sie bis zum Ende dieser Sitzung nicht mehr. Beim nächsten Start ist die Liste "
    "wieder leer, und jeder Eintrag wird erneut gemeldet, solange er nicht übernommen wurde.";
constexpr const char* kSicherungenHilfe =
    "Bevor Kestrella etwas löscht oder überschreibt, wird es hier gesichert. Mit der rechten Maustaste "
    "auf einem Eintrag holen Sie es zurück oder löschen die Sicherung. Zurückgeholte Einträge, die "
    "noch nicht übernommen waren, werden wieder gemeldet.";
}  // namespace

void AlarmAnsicht::SeitenAllgemein() {
    const int innen = kSeiteBreite - 24;
    // 0: options, the interval and the log.
    int y = 22;
    for (int i : {0, 1, 2, 3, 7}) {
        BoxNeu(0, i, 12, y);
        y += 21;
    }
    sofort_ = BoxAnlegen(h_, f_.Sofort, kIdSofort, kSeiteLinks + 12, kSeiteOben + y, 0);
    teile_.push_back({0, sofort_});
    y += 21;
    y += 8;
    Überschrift(0, "Überwachungs-Interval Stufe 1 bis 30", 12, y);
    aufab_ = AufAbAnlegen(h_, f_.AufAb1, kIdAufAb, kSeiteLinks + 12, kSeiteOben + y + 20, 64, 22);
    teile_.push_back({0, aufab_});
    Überschrift(0, "Stufe -1-sehr schnell", 92, y + 18);
    Überschrift(0, "Stufe -5 -Standard", 92, y + 34);
    Überschrift(0, "Stufe -30 -sehr langsam wenn ihr PC nicht so schnell ist.", 92, y + 50, 420);
    y += 76;
    Überschrift(0, "Log-Datei:", 12, y);
    text2_ = Neu(0, "EDIT", "", ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_HSCROLL | WS_BORDER | WS_TABSTOP, kIdSonst,
                 12, y + 18, innen, kSeiteHöhe - y - 62);
    Neu(0, "BUTTON", "Log-öffnen", WS_TABSTOP | BS_PUSHBUTTON, kIdLogÖffnen, kSeiteBreite - 212, kSeiteHöhe - 36, 96,
        26);
    Neu(0, "BUTTON", "Log-löschen", WS_TABSTOP | BS_PUSHBUTTON, kIdLogLöschen, kSeiteBreite - 108, kSeiteHöhe - 36, 96,
        26);

    // 1: processes.
    BoxNeu(1, 4, 12, 22);
    Überschrift(1, "Ausnahmen:", 12, 50);
    ListeNeu(1, f_.ListView6, 12, 66, innen, 210);
    Überschrift(1, "Ausnahmen Hersteller:", 12, 286);
    ListBoxNeu(1, f_.List1, 12, 302, innen, 110);

    // 9: the Windows folder and the two system folders.
    Überschrift(9, "Folgende Ordner in die Überwachung mit einbeziehen.", 12, 22, 400);
    BoxNeu(9, 19, 24, 40);
    BoxNeu(9, 20, 24, 60);
    BoxNeu(9, 32, 24, 80);
    BoxNeu(9, 16, 12, 106);
    BoxNeu(9, 17, 12, 126);
    BoxNeu(9, 18, 12, 146);
    const int viertel = (innen - 24) / 4;
    int x = 12;
    for (ListView* liste : {&f_.ListView4, &f_.ListView7, &f_.ListView13, &f_.ListView5}) {
        ListeNeu(9, *liste, x, 170, viertel, 116);
        x += viertel + 8;
    }
    Überschrift(9, "Ausnahmen:", 12, 294);
    ListBoxNeu(9, f_.List5, 12, 310, innen, 102);

    // 10: the deferred list.
    Hilfe(10, kSpäterHilfe, 12, 22, innen, 64);
    Überschrift(10, "Später:", 12, 96);
    ListBoxNeu(10, f_.List8, 12, 112, innen, 300);

    // 20: the backups.
    Hilfe(20, kSicherungenHilfe, 12, 22, innen, 64);
    LabelNeu(20, f_.SicherungenGrösse, 12, 94, innen);
    sicherungen_ = ListeNeu(20, f_.Sicherungen, 12, 114, innen, 298);

    // 15: the two locks.
    BoxNeu(15, 25, 12, 22);
    BoxNeu(15, 26, 12, 44);

    // 17: services; below, the makers beside the known programs of every service.
    BoxNeu(17, 28, 12, 22);
    BoxNeu(17, kDienstpfadeBox, 12, 42);
    Überschrift(17, "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services", 12, 66, innen);
    LabelNeu(17, f_.ww[19], 12, 86, innen);
    ListeNeu(17, f_.ListView11, 12, 102, innen, 170);
    const int hälfte = (innen - 8) / 2;
    Überschrift(17, "Ausnahmen Hersteller:", 12, 280, hälfte);
    ListBoxNeu(17, f_.List10, 12, 296, hälfte, 116);
    Überschrift(17, "Bekannte Dienst-Programme:", 20 + hälfte, 280, hälfte);
    ListeNeu(17, f_.ListView27, 20 + hälfte, 296, hälfte, 116);
}

}  // namespace kes::ui

#include "warning/form3.h"

#include "core/einstellungen.h"
#include "core/programm.h"
#include "core/start.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"

namespace kes {

namespace {
constexpr int kPaneHöhe[5] = {126, 236, 72, 84, 180};
constexpr int kLeisteHöhe = 56;
}  // namespace

Form3Fenster::Form3Fenster(Programm& prg) : Timer1(prg.p.timers, kTimerForm3_1, 500), prg_(prg) {
    Caption = "Kestrella - Warnung";
    Width = 620;
    for (int i = 0; i < 5; ++i) Picture3[i].Height = kPaneHöhe[i];
    Picture2.Height = kLeisteHöhe;
    Form_Resize();

    Label3 = {Label{"Übernehmen"}, Label{"Kill Prozess"}, Label{"Löschen"}, Label{"Ausnahmeliste"},
              Label{"Na gut.."},   Label{"Freigeben"},    Label{"Später"},  Label{"Mehr Infos"}};
    for (int i = 1; i <= 9; ++i) Image[i].Visible = (i == 6 || i == 7);
    for (int k = 0; k < 8; ++k) Label3[k].Visible = (k == 6);
    Image[6].ToolTipText = "Später den Eintrag  auswerten.";
    Image[7].ToolTipText = "Kestrella sofort Deaktivieren";

    static const char* kSpalten[] = {"Name", "Subkey", "ValueKey", "Wert", "Folge CLISD", "Wert"};
    ListView4.Columns.assign(std::begin(kSpalten), std::end(kSpalten));
    ListView1.Columns = {"Eigenschaft", "Wert", "Eigenschaft", "Wert"};
    ListView1.ColumnWidths = {110, 0, 150, 0};
    ListView2.Columns = {"Eintrag"};
    ListView3.Columns = {"Modul", "Pfad"};
    static const char* kAttribute[] = {"Archiv", "Komprimiert", "Ordner", "Versteckt",
                                       "Normal", "Read Only",   "System", "Temp"};
    for (int i = 0; i < 8; ++i) {
        Check1[i].Caption = kAttribute[i];
        Check1[i].Enabled = false;
    }
    Check1[3].Visible = true;
}

int Form3Fenster::LabelVon(int image) {
    switch (image) {
        case 1:
            return 0;
        case 2:
            return 1;
        case 3:
            return 2;
        case 4:
            return 3;
        case 5:
            return 4;
        case 8:
            return 5;
        case 6:
            return 6;
        case 9:
            return 7;
        default:
            return -1;
    }
}

void Form3Fenster::Zeigen(int image) {
    Image[image].Visible = true;
    const int k = LabelVon(image);
    if (k >= 0) Label3[k].Visible = true;
}

void Form3Fenster::Form_Load() {
    const std::string& k = prg_.Kategorie;
    if (k == "Dienste") {
        Zeigen(1), Zeigen(3), Zeigen(9);
        Label3[7].Caption = "Service-Dienste";
    } else if (k == "TaskScheduler" || k == "URLSearchHooks" || k == "ShellService" || k == "ActiveX" || k == "BHO") {
        Zeigen(1), Zeigen(3);
    } else if (k == "Prozesse") {
        Zeigen(1), Zeigen(2);
    } else if (k == "StartPage") {
        Zeigen(1), Zeigen(8);
        Label3[5].Caption = "Original";
        Image[8].ToolTipText = "Original Wert setzen";
    } else if (k == "Favorit1" || k == "Favorit2" || k == "Favoriten") {
        Zeigen(1), Zeigen(3);
    } else if (k == "DFÜ") {
        Zeigen(1), Zeigen(3), Zeigen(9);
    } else if (k == "HostsDatei") {
        Zeigen(1), Zeigen(8), Zeigen(9);
        Label3[5].Caption = "Original";
        Image[8].ToolTipText = "Original Grösse setzen";
        Label3[7].Caption = "Öffnen";
    } else if (k == "AutostartOrdner") {
        Zeigen(1), Zeigen(3);
    } else if (k == "AutostartRegistry") {
        Zeigen(1), Zeigen(3);
        Label3[2].Caption = "Registry löschen";
    } else if (k == "HtaFile") {
        Zeigen(8);
        Label3[5].Caption = "Original";
        Image[8].ToolTipText = "Original Wert setzen";
    } else if (k == "ToolBar" || k == "ToolBar1") {
        Zeigen(1), Zeigen(3);
    }
}

void Form3Fenster::Show() {
    Fenster::Show();
    Form_Resize();
    Form_Activate();
}

void Form3Fenster::Form_Activate() {
    ImmerOben(*this, true);
}

void Form3Fenster::Form_Resize() {
    if (WindowState != 0) return;
    int höhe = Picture2.Height + kForm3Rahmen;
    for (const auto& p : Picture3)
        if (p.Visible) höhe += p.Height;
    Height = höhe;
}

void Form3Fenster::Form_QueryUnload() {
    if (ÜberwachungAus) return;
    prg_.Beschäftigt = false;
    prg_.Alarm().Timer1.SetEnabled(true);
}

void Form3Fenster::Timer1_Timer() {
    Check1[3].Visible = !Check1[3].Visible;
}

void Form3Fenster::raus() {
    Properties_Save(prg_);
    prg_.Form3Entladen();
}

void Form3Fenster::Image7_Click() {
    prg_.Beschäftigt = true;
    prg_.Alarm().Timer1.SetEnabled(false);
    prg_.Start().NichtAktiviert();
    ÜberwachungAus = true;
    prg_.Form3Entladen();
}

}  // namespace kes

namespace kes {

void Form3Fenster::Image_Click(int n) {
    switch (n) {
        case 1:
            Image1_Click();
            break;
        case 3:
            Image3_Click();
            break;
        case 6:
            Image6_Click();
            break;
        case 7:
            Image7_Click();
            break;
        case 8:
            Image8_Click();
            break;
        case 9:
            Image9_Click();
            break;
        default:
            break;  // the other actions arrive with their categories
    }
}

}  // namespace kes

#include "core/start.h"

#include "common/eigene_orte.h"
#include "core/einstellungen.h"
#include "core/programm.h"
#include "core/tryicon.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"

namespace kes {

namespace {}  // namespace

StartFenster::StartFenster(Programm& prg) : Timer2(prg.p.timers, kTimerStart2, 3000), prg_(prg) {
    Caption = "Kestrella";
    fox1[0].Caption = "Einstellungen";
    fox1[1].Separator = true;
    fox1[2].Caption = "Überwachung Aktiviert";
    fox1[2].Checked = true;
    fox1[3].Caption = "Log-Datei öffnen";
    fox1[4].Separator = true;
    fox1[5].Caption = "Autostart";
    fox1[6].Caption = "Beenden";
}

void StartFenster::Form_Load() {
    Hide();
}

void StartFenster::Form_Unload() {
    prg_.p.tray.Notify(kNimDelete, prg_.Tray);
}

void StartFenster::Timer2_Timer() {
    Timer2.SetEnabled(false);
    Properties_Load(prg_);
}

void StartFenster::SymbolSetzen(const std::string& tip, const std::string& text, const std::string& titel, int art,
                                const std::string& icon) {
    TrayRecord r;
    r.szTip = tip;
    r.szInfo = text;
    r.szInfoTitle = titel;
    r.dwInfoFlags = static_cast<std::uint32_t>(art);
    r.uTimeout = 1000;
    r.icon = icon;
    SymbolErsetzen(prg_, r);
}

void StartFenster::Aktiviert() {
    SymbolSetzen("Kestrella ist aktiv", "Überwachung ist aktiviert", "Kestrella-Info ", 1, "BLINKTRAY");
    prg_.Beschäftigt = false;
    prg_.Alarm().Timer1.SetEnabled(true);
    fox1[2].Checked = true;
    fox1[2].Caption = "Überwachung ist aktiv";
    prg_.Alarm().Hide();
}

void StartFenster::NichtAktiviert() {
    SymbolSetzen("Kestrella ist deaktiviert", "Überwachung ist deaktiviert!", "Kestrella-Info", 3, "AUS");
    fox1[2].Checked = false;
    fox1[2].Caption = "Überwachung ist deaktiviert";
    prg_.Alarm().Timer1.SetEnabled(false);
    prg_.Beschäftigt = true;
}

void StartFenster::TaskleisteNeu() {
    prg_.p.tray.Notify(kNimAdd, prg_.Tray);
}

void StartFenster::Form_MouseMove(int nachricht) {
    switch (nachricht) {
        case kLinksLos:
            Vordergrund = true;
            MenüÖffnen = true;
            break;
        case kRechtsLos:
            Vordergrund = true;
            MenüÖffnen = true;
            prg_.p.timers.PumpMessages();
            break;
        case kRechtsDoppel:
            Vordergrund = true;
            NichtAktiviert();
            prg_.Alarm().Show();
            break;
        default:
            break;  // a left double-click has no action of its own
    }
}

void StartFenster::fox1_Click(int index) {
    AlarmFenster& alarm = prg_.Alarm();
    switch (index) {
        case 0:
            NichtAktiviert();
            alarm.Show();
            alarm.Frame1[0].Visible = true;
            for (int i = 0; i <= 9; ++i) {
                Label& l = alarm.Label1[i];
                l.BackColor = 12648384;
                l.ForeColor = kSystemFensterText;
            }
            alarm.Label1[0].BackColor = 255;
            alarm.Label1[0].ForeColor = 16777215;
            break;
        case 2:
            if (fox1[2].Checked)
                NichtAktiviert();
            else
                Aktiviert();
            break;
        case 3: {
            const std::string log = prg_.Programmordner + kLogdatei;
            // Notepad gets the path without quotes; a failed start is passed over.
            if (DateiVorhanden(prg_.p, log)) prg_.p.shell.RunCommand("notepad.exe " + log, kSwShowNormal);
            break;
        }
        case 5: {
            HiveOCX hive(prg_.p.registry);
            if (!fox1[5].Checked) {
                // An existing value is left as it is, even when it points elsewhere.
                if (!hive.ValueExists(1, kRunSchlüssel, kRunWert))
                    hive.WriteValue(1, kRunSchlüssel, kRunWert, prg_.Programmordner + "Kestrella.exe /s");
                fox1[5].Checked = true;
                alarm.Box1[0].setValue(1);
            } else {
                if (hive.ValueExists(1, kRunSchlüssel, kRunWert)) hive.DeleteValue(1, kRunSchlüssel, kRunWert);
                alarm.Box1[0].setValue(0);
                fox1[5].Checked = false;
            }
            break;
        }
        case 6:
            prg_.AlarmEntladen(kEntladenNormal);
            break;
        default:
            break;
    }
}

}  // namespace kes

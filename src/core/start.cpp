#include "core/start.h"

#include "core/einstellungen.h"
#include "core/programm.h"
#include "panel/alarm.h"

namespace kes {

StartFenster::StartFenster(Programm& prg) : Timer2(prg.p.timers, kTimerStart2, 3000), prg_(prg) {
    fox1[0].Caption = "Einstellungen";
    fox1[1].Separator = true;
    fox1[2].Caption = "Überwachung Aktiviert";
    fox1[2].Checked = true;
    fox1[3].Caption = "Log-Datei öffnen";
    fox1[4].Separator = true;
    fox1[5].Caption = "Autostart";
    fox1[6].Caption = "Beenden";
}

void StartFenster::Form_Load() { Hide(); }

void StartFenster::Timer2_Timer() {
    Timer2.SetEnabled(false);
    Properties_Load(prg_);
}

void StartFenster::Aktiviert() {
    prg_.Beschäftigt = false;
    prg_.Alarm().Timer1.SetEnabled(true);
    fox1[2].Checked = true;
    fox1[2].Caption = "Überwachung ist aktiv";
    prg_.Alarm().Hide();
}

void StartFenster::NichtAktiviert() {
    fox1[2].Checked = false;
    fox1[2].Caption = "Überwachung ist deaktiviert";
    prg_.Alarm().Timer1.SetEnabled(false);
    prg_.Beschäftigt = true;
}

}  // namespace kes

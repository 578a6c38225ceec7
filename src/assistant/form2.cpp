#include "assistant/form2.h"

#include "common/eigene_orte.h"
#include "common/version.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "watchers/alarm_daten.h"
#include "watchers/hosts.h"
#include "watchers/waechter.h"

namespace kes {

namespace {
// The boxes "Fertig" sets after taking all values besides the watchers' own: sound, log,
// and the warning of created files in the watched folders.
constexpr int kStandardBoxen[] = {1, 2, 16};
constexpr int kJa = 6;
}  // namespace

std::string FertigFrage() {
    const std::string z = "\r\n";
    return z + std::string(33, '*') + " " + kHerstellerSeite + " " + std::string(32, '*') + z + z +
           "        Leider konnten nicht alle Werte und Einstellungen übernommen werden." + z +
           "       Diese können sie manuell in den Einstellungen von Kestrella vornehmen." + z + z + z +
           "              Wollen sie jetzt die Einstellungen vornehmen ?" + z + z + std::string(81, '*') + z;
}

Form2Fenster::Form2Fenster(AssistentKontext& k) : k_(k) {
    Label1[0].Caption = "Willkommen zum KestrellaAssistent";
    Label1[1].Caption = "Ihr System sollte Virenfrei sein";
    Label1[3].Caption = "Wenn sie denken, ihr System ist sauber clicken sie auf [ Alle Werte übernehmen].";
    Label1[4].Caption = "Assistent wurde abgeschlossen.";
    Frame1[1].Caption = "Werte:";
    Frame1[2].Caption = "Assistent";
    Command2[0].Caption = "Alle Werte des Systems übernehmen";
    Command2[1].Caption = "Ich möchte die Einstellung  selbst vornehmen!";
    Command3.Caption = "Fertig";
    Width = 480;
    Height = 300;
}

void Form2Fenster::Form_Load() {
    Caption = FensterTitel();
    Frame1[0].Visible = false;
    Frame1[1].Visible = true;
    Frame1[2].Visible = false;
    FensterMitte(k_.P(), *this);
}

void Form2Fenster::Command2_Click(int index) {
    Frame1[1].Visible = false;
    if (index == 0) {
        HiveOCX hive(k_.P().registry);
        // Taking all values also turns the autostart on; a value already there stays.
        if (!hive.ValueExists(1, kRunSchlüssel, kRunWert))
            hive.WriteValue(1, kRunSchlüssel, kRunWert, k_.W().Programmordner + "Kestrella.exe /s");
        for (const WächterZeile& z : Wächtertabelle())
            if (z.erstaufnahme) z.erstaufnahme(k_);
        alleÜbernehmen_ = true;
    } else {
        alleÜbernehmen_ = false;
    }
    Frame1[2].Visible = true;
}

void Form2Fenster::Command3_Click() {
    Prozesswerte& w = k_.W();
    try {
        w.Hostsgrösse = static_cast<std::int32_t>(k_.P().files.Length(HostsPfad(w)).value_or(0));
    } catch (...) {
    }
    AlarmDaten& alarm = k_.Alarm();
    alarm.Timer1.SetInterval(IntervallAusStufe(w.Intervallstufe));
    if (!alleÜbernehmen_) {
        k_.NichtAktiviert();
        alarm.Timer1.SetEnabled(false);
        k_.AlarmZeigen();
    } else {
        // Set from code: no click runs, so the sound flag stays and LadeWindows does not run.
        for (const WächterZeile& z : Wächtertabelle())
            if (z.assistent) alarm.Box1.at(static_cast<std::size_t>(z.box)).setValue(1);
        for (int i : kStandardBoxen) alarm.Box1[static_cast<std::size_t>(i)].setValue(1);
        if (w.Intervallstufe == 0) w.Intervallstufe = 5;
        k_.StufeZeigen(w.Intervallstufe);
        alarm.Timer1.SetInterval(IntervallAusStufe(w.Intervallstufe));
        const int antwort = k_.P().dialogs.ShowMessage(FertigFrage(), "Info Kestrella!", kMbYesNo);
        if (antwort == kJa) {
            k_.NichtAktiviert();
            alarm.Timer1.SetEnabled(false);
            k_.AlarmZeigen();
        } else {
            k_.Aktiviert();
            alarm.Timer1.SetEnabled(true);
        }
    }
    k_.OptionMarkieren();
    k_.EinstellungenSpeichern();
    k_.Form2Entladen();
}

}  // namespace kes

#include "assistant/form2.h"

#include "common/fehler.h"
#include "common/version.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "platform/hive_ocx.h"
#include "platform/registry.h"
#include "watchers/alarm_daten.h"
#include "watchers/startseiten_tabelle.h"

namespace kes {

namespace {
constexpr const char* kRunSchlüssel = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kRunWert = "Halvenik-Kestrella";
constexpr const char* kDienste = "System\\CurrentControlSet\\Services";
// The boxes "Fertig" sets after taking all values, in the order they are set: start
// pages, sound, log, processes, hosts, autostart folders, autostart registry, favourites,
// dial-up, messenger service, Windows folder, created files.
constexpr int kStandardBoxen[] = {8, 1, 2, 4, 15, 11, 13, 5, 10, 14, 19, 16};
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
        k_.ErstemalAnzeigen();
        Holestartpage();
        holedienste();
        alleÜbernehmen_ = true;
    } else {
        alleÜbernehmen_ = false;
    }
    Frame1[2].Visible = true;
}

void Form2Fenster::Holestartpage() {
    HiveOCX hive(k_.P().registry);
    auto& seiten = k_.W().StartSeiten;
    for (std::size_t i = 0; i < kStartSeitenTabelle.size(); ++i) {
        const StartSeitenZeile& z = kStartSeitenTabelle[i];
        // The assistant names the default value by one NUL character.
        const std::string wert = *z.Wert ? std::string(z.Wert) : std::string(1, '\0');
        seiten[i + 1] = hive.ReadValue(z.Hive, z.Schlüssel, wert);
    }
}

void Form2Fenster::holedienste() {
    Plattform& p = k_.P();
    std::vector<std::string> liste;
    try {
        liste = Registry(p).GetSubkeys(kHkeyLocalMachine, kDienste, k_.W().Kategorieschlüssel);
    } catch (...) {
        return;  // the error exit of the enumeration
    }
    const std::string datei = k_.W().Programmordner + "daten\\dienste.ini";
    // The sections are gathered in a scratch file that takes the old file's place at the
    // end, so that a crash in the walk leaves the old list.
    const std::string neu = ErsatzName(datei);
    Übergehen([&] { p.files.Delete(neu); });
    if (liste.empty() || liste.front().empty()) {
        Übergehen([&] { p.files.Delete(datei); });
        return;
    }

    HiveOCX hive(p.registry);
    int zähler = 0;
    for (const std::string& eintrag : liste) {
        // Errors are passed over: a service with an unreadable value still gets its section.
        try {
            const std::string name = eintrag.substr(0, eintrag.find(';'));
            k_.Pumpen();
            const std::string schlüssel = std::string(kDienste) + "\\" + name;
            if (!hive.ValueExists(2, schlüssel, "Start")) continue;
            if (hive.ReadValue(2, schlüssel, "Start") != "2") continue;
            const std::string objekt = hive.ReadValue(2, schlüssel, "ObjectName");
            const std::string anzeige = hive.ReadValue(2, schlüssel, "DisplayName");
            std::string pfad = hive.ReadValue(2, schlüssel, "ImagePath");
            const std::string dll = hive.ReadValue(2, schlüssel + "\\Parameters", "ServiceDll");
            if (!dll.empty()) pfad = dll;
            pfad = PfadErweitern(pfad, k_.W().Windowsordner);
            const std::string abschnitt = std::to_string(++zähler);
            // ObjectName and DisplayName cross: that is the file's layout.
            p.profiles.WriteString(abschnitt, std::string("Dienst"), name, neu);
            p.profiles.WriteString(abschnitt, std::string("ObjectName"), anzeige, neu);
            p.profiles.WriteString(abschnitt, std::string("DisplayName"), objekt, neu);
            p.profiles.WriteString(abschnitt, std::string("ImagePath"), pfad, neu);
        } catch (...) {
        }
    }
    // No service that starts by itself: no file, as before.
    Übergehen([&] {
        if (DateiVorhanden(p, neu))
            p.files.MoveReplacing(neu, datei);
        else
            p.files.Delete(datei);
    });
}

void Form2Fenster::Command3_Click() {
    Prozesswerte& w = k_.W();
    try {
        w.Hostsgrösse =
            static_cast<std::int32_t>(k_.P().files.Length(w.Systemordner + "\\drivers\\etc\\hosts").value_or(0));
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

#include "panel/alarm.h"

#include "common/eigene_orte.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/sysfolder.h"
#include "watchers/waechter.h"

namespace kes {

namespace {

// Captions of the option boxes that belong to no watcher; the watchers' own are in their
// rows, and 19 and 20 get the two system folders at load.
constexpr const char* kBoxTexte[] = {
    "Kestrella beim Start ins Systray (Autostart)",
    "Sound",
    "Log-Datei erstellen",
    "Log.Datei bei jeden Start löschen",
};
static_assert(std::size(kBoxTexte) == kEigeneBoxen, "a caption for each of the panel's own boxes");
}  // namespace

AlarmFenster::AlarmFenster(PanelKontext& k) : AlarmDaten(k), Ausnahmen(k, *this, *this), k_(k) {
    for (std::size_t i = 0; i < Box1.size(); ++i) {
        if (i < std::size(kBoxTexte)) Box1[i].Caption = kBoxTexte[i];
        Box1[i].Click = [this, i](std::int16_t&) { Box1_Click(static_cast<int>(i)); };
    }
    for (const WächterZeile& z : Wächtertabelle()) {
        Box1.at(static_cast<std::size_t>(z.box)).Caption = z.beschriftung;
        for (const Option& o : z.optionen)
            if (o.beschriftung) Box1.at(static_cast<std::size_t>(o.box)).Caption = o.beschriftung;
    }
    Sofort.Caption = "Sofort warnen, sobald sich etwas ändert (nicht erst nach dem Intervall)";
    Sofort.setValue(k.W().Sofort ? 1 : 0);
    Sofort.Click = [this](std::int16_t& neu) {
        k_.W().Sofort = neu == 1;
        k_.EinstellungenSpeichern();
    };
    AufAb1.Zahlen = true;
    AufAb1.Max = 30;
    AufAb1.TextValue = [this](std::int32_t& zahl) { AufAb1_TextValue(zahl); };
    AufAb1.Zeitgeber(k.P().timers, kTimerAufAb0, kTimerAufAb1);
    SeitenleisteAnlegen();
    Width = 700;
    Height = 480;
    FensterMitte(k.P(), *this);
}

void AlarmFenster::Form_Load() {
    Caption = FensterTitel();
    Plattform& p = k_.P();

    HiveOCX hive(p.registry);
    const bool autostart = hive.ValueExists(1, kRunSchlüssel, kRunWert);
    Box1[0].setValue(autostart ? 1 : 0);
    k_.AutostartHaken(autostart);

    Label2[2].Caption = Sysfolder(p, kCsidlStartup);
    Label2[3].Caption = Sysfolder(p, kCsidlCommonStartup);

    Box1[19].Caption = k_.W().Windowsordner;
    Box1[20].Caption = k_.W().Systemordner;
    Box1[32].Caption = k_.W().SysWow64ordner;
    Laden();
}

void AlarmFenster::Timer1_Timer() {
    Durchlauf();
}

void AlarmFenster::AufAb1_TextValue(std::int32_t& zahl) {
    // Errors in this handler are passed over.
    try {
        k_.W().Intervallstufe = static_cast<std::int16_t>(zahl);
        Timer1.SetInterval(IntervallAusStufe(k_.W().Intervallstufe));
        k_.EinstellungenSpeichern();
    } catch (...) {
    }
}

void AlarmFenster::Box1_Click(int index) {
    Plattform& p = k_.P();
    switch (index) {
        case 0: {
            HiveOCX hive(p.registry);
            if (Box1[0].value() == 0) {
                if (hive.ValueExists(1, kRunSchlüssel, kRunWert)) hive.DeleteValue(1, kRunSchlüssel, kRunWert);
                k_.AutostartHaken(false);
            } else {
                if (!hive.ValueExists(1, kRunSchlüssel, kRunWert))
                    hive.WriteValue(1, kRunSchlüssel, kRunWert, k_.W().Programmordner + "Kestrella.exe /s");
                k_.AutostartHaken(true);
            }
            break;
        }
        case 1:
            k_.W().Soundflag = Box1[1].value() > 0 ? 1 : 0;
            break;
        default:
            for (const WächterZeile& z : Wächtertabelle())
                if (z.box == index && z.beimKlick) {
                    z.beimKlick(*this, k_.W());
                    return;  // no save
                }
            break;
    }
    k_.EinstellungenSpeichern();
}

void AlarmFenster::Command2_Click(int index) {
    Plattform& p = k_.P();
    // The command line names the log in lower case; the file system does not mind.
    const std::string pfad = k_.W().Programmordner + "kestrella.log";
    if (index == 0) {
        // No question: the text goes, and the file with it, errors passed over.
        Text2.Text.clear();
        p.files.Delete(pfad);
    } else if (index == 1) {
        if (DateiVorhanden(p, pfad))
            p.shell.RunCommand("notepad.exe " + pfad, kSwShowNormal);
        else
            p.dialogs.ShowMessage("Die Log-Datei ist noch leer!", "Kestrella-Info", kMbOk);
    }
}

}  // namespace kes

#include "panel/alarm.h"

#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/sysfolder.h"

namespace kes {

namespace {
// Captions of the option boxes; 19 and 20 get the two system folders at load.
constexpr const char* kBoxTexte[32] = {
    "Kestrella beim Start ins Systray (Autostart)",
    "Sound",
    "Log-Datei erstellen",
    "Log.Datei bei jeden Start löschen",
    "Neue Prozesse im Speicher sofort melden !",
    "Wenn neue  Favoriten hinzugefügt werden [sofort melden]",
    "Automatisch löschen",
    "Automatisch löschen (Hinweise anzeigen)     ",
    "IExplorer Überwachung Registry",
    "Automatisch Original Einträge wiederherstellen",
    "Warnen wenn eine neue DFÜ-Verbindung erstellt wird.",
    "Autostart Ordner sollen  überwacht werden",
    "Automatisch löschen",
    "Sofort warnen wenn Registryeinträge geändert werden.",
    "Nachrichtendienst beenden wenn eine  Online-Verbindung besteht.",
    "Wenn die Hosts Datei geändert wird sofort melden!",
    "Warnen wenn eine neue Datei erstellt wird.",
    "Warnen wenn eine Datei  gelöscht wird.",
    "Warnen wenn eine Datei  geändert wird.",
    "",
    "",
    "BHO-Programmerweiterungen des IE (Browser Helper Objects) sofort melden.",
    " ActiveX-Objekte (auch bekannt als Downloaded Program Files)  sofort melden.",
    " ShellServiceObjectDelayLoad (SSODL)-Autostarteinträge in der Registry sofort melden.",
    " SharedTaskScheduler-Autostarteinträge in der Registry sofort melden.",
    "Zugang auf Regedit durch Administrator verhindert [sofort melden]",
    "Zugang auf den Taskmanager deaktiviert  [sofort melden]",
    "Default URLSearchHook ",
    "Sofort Melden, wenn ein Dienst hinzugefügt wird.",
    "Warnen wenn sich eine neue Url einträgt.",
    "Sofort melden wenn die Werte geändert werden.",
    "Automatisch löschen",
};
}  // namespace

AlarmFenster::AlarmFenster(PanelKontext& k) : AlarmDaten(k), k_(k) {
    for (std::size_t i = 0; i < Box1.size(); ++i) Box1[i].Caption = kBoxTexte[i];
    AufAb1.Zahlen = true;
    AufAb1.Max = 30;
    AufAb1.TextValue = [this](std::int32_t& zahl) { AufAb1_TextValue(zahl); };
    Width = 640;
    Height = 480;
    FensterMitte(k.P(), *this);
}

void AlarmFenster::Form_Load() {
    Caption = "Kestrella V" + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
              std::to_string(kVersionRevision) + " AddOn Halvenik";
    Plattform& p = k_.P();

    HiveOCX hive(p.registry);
    const bool autostart =
        hive.ValueExists(1, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella");
    Box1[0].setValue(autostart ? 1 : 0);
    k_.AutostartHaken(autostart);

    Label2[2].Caption = Sysfolder(p, kCsidlStartup);
    Label2[3].Caption = Sysfolder(p, kCsidlCommonStartup);

    prozesse.LadeProzessFirmen();
    prozesse.LadeProzesse();
    favoriten.LadeFavoriten();
    startSeite.LadeStartPage();
    dfü.LadeDFÜ();
    autostartOrdner.LadeAutostart();
    autostartRegistry.LadeAutostartregistry();

    Box1[19].Caption = k_.W().Windowsordner;
    Box1[20].Caption = k_.W().Systemordner;

    windowsDateien.LadeWindowsausnahme();
    // Runs before the stored values arrive, so both tests fail at every start;
    // Properties_Load repeats them with the real values.
    if (Box1[19].value() == 1) windowsDateien.LadeWindows();
    if (Box1[20].value() == 1) windowsDateien.LadeWindowsSys32();

    klassenlisten.LadeBHO();
    activeX.LadeActiveX();
    klassenlisten.LadeShellService();
    klassenlisten.LadeSharedTaskScheduler();
    klassenlisten.LadeURLSearchHook();
    dienste.LadeDienste();
    dienste.LadeDiensteHersteller();
    vertrauenswürdigeSeiten.LadeToolbar();
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

void AlarmFenster::Command2_Click(int index) {
    Plattform& p = k_.P();
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

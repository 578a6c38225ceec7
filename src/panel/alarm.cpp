#include "panel/alarm.h"

#include "core/programm.h"
#include "platform/allefunktionen.h"

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

AlarmFenster::AlarmFenster(Programm& prg) : Timer1(prg.p.timers, kTimerAlarm1, 5000), prg_(prg) {
    for (std::size_t i = 0; i < Box1.size(); ++i) Box1[i].Caption = kBoxTexte[i];
    ListView1.Columns = {"Wert"};
    AufAb1.Zahlen = true;
    AufAb1.Max = 30;
    AufAb1.TextValue = [this](std::int32_t& zahl) { AufAb1_TextValue(zahl); };
    Width = 640;
    Height = 480;
    FensterMitte(prg.p, *this);
}

bool AlarmFenster::Später(const std::string& schlüssel) const {
    for (const auto& eintrag : List8.Items)
        if (eintrag == schlüssel) return true;
    return false;
}

}  // namespace kes

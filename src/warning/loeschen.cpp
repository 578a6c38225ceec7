// "Löschen": the delete action of the warning window. It removes the warned-of thing from
// the system, by the registry control, by a REG DELETE command or by deleting a file; the
// baseline is not touched, so a thing that comes back is warned of again.
#include "core/einstellungen.h"
#include "core/fehler.h"
#include "core/logdatei.h"
#include "core/programm.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "warning/form1.h"
#include "warning/form3.h"

namespace kes {

namespace {
constexpr const char* kHives[] = {"HKEY_CLASSES_ROOT",     "HKEY_CURRENT_USER",   "HKEY_LOCAL_MACHINE", "HKEY_USERS",
                                  "HKEY_PERFORMANCE_DATA", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"};
constexpr const char* kZoneMap = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";

// The hive code of a root name, compared exactly; -1 outside the table.
int HiveCode(const std::string& name) {
    for (int i = 0; i < 7; ++i)
        if (name == kHives[i]) return i;
    return -1;
}

const char* kDiensteFrage =
    "Das Ändern der Standardeinstellungen für Dienste führt möglicherweise dazu,\r\n"
    "dass Schlüsseldienste nicht mehr korrekt ausgeführt werden.\r\n"
    "Beim Ändern der Einstellungen für Starttyp und Anmelden als für Dienste, die für den automatischen Start "
    "konfiguriert sind,\r\n"
    "müssen Sie besonders sorgfältig vorgehen.\r\n"
    "Nur wenn sie sich sicher sind, das es ein Hijacker, Trojaner oder Viren sind. Sollten sie den Dienst löschen.";
}  // namespace

bool Form3Fenster::RegistryLöschenValue(const std::string& hive, const std::string& schlüssel, const std::string& wert,
                                        const std::string&) {
    const int code = HiveCode(hive);
    if (code < 0) return true;
    HiveOCX ocx(prg_.p.registry);
    // The control reports no error for what is not there; a value that stays is a failure.
    ocx.DeleteValue(code, schlüssel, wert);
    return !ocx.ValueExists(code, schlüssel, wert);
}

bool Form3Fenster::RegistryLöschenSubkey(const std::string& hive, const std::string& schlüssel) {
    const int code = HiveCode(hive);
    if (code < 0) return true;
    HiveOCX ocx(prg_.p.registry);
    ocx.DeleteKey(code, schlüssel);
    return !ocx.KeyExists(code, schlüssel);
}

void Form3Fenster::Image3_Click() {
    if (prg_.AnzeigeLöschen) {
        löschen(true);
        return;
    }
    // Modal: the view shows it over everything until it is answered.
    prg_.Form1().Show();
}

void Form3Fenster::löschen(bool ja) {
    if (!ja) return;
    // The error exit: the number and the routine's name, no title, and the window stays.
    try {
        Entfernen();
    } catch (const Fehler& f) {
        prg_.p.dialogs.ShowMessage(std::to_string(f.Nummer()) + "Fehler Meldung [Form3 Löschen]", "", kMbOk);
    } catch (const std::exception&) {
        prg_.p.dialogs.ShowMessage("5Fehler Meldung [Form3 Löschen]", "", kMbOk);
    }
}

void Form3Fenster::Entfernen() {
    const std::string& k = prg_.Kategorie;
    HiveOCX ocx(prg_.p.registry);
    auto t = [this](int i) -> const std::string& { return Text1[i].Text; };
    auto shell = [this](const std::string& befehl) { prg_.p.shell.RunCommand(befehl, 2); };
    auto pfad = [this]() { return ListView2.Items.size() >= 2 ? ListView2.Items[1].Text : std::string(); };
    auto log = [this](const std::string& titel, const std::vector<std::string>& zeilen, const std::string& ergebnis) {
        LogEintrag(prg_, titel, zeilen, ergebnis);
    };
    bool zweimalRaus = false;

    if (k == "ToolBar" || k == "ToolBar1") {
        if (k == "ToolBar") {
            shell("REG DELETE HKLM\\" + std::string(kZoneMap) + t(0) + " /v/f");
            ocx.DeleteKeyTree(static_cast<std::int32_t>(0x80000002u), kZoneMap + t(0));
        } else {
            shell("REG DELETE HKCU\\" + std::string(kZoneMap) + t(0) + " /f");
            ocx.DeleteKeyTree(static_cast<std::int32_t>(0x80000001u), kZoneMap + t(0));
        }
        log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
            {"Registry: " + t(1) + "\\" + t(2) + "\\" + t(3), "Wert: " + t(0)}, "< gelöscht OK >\"");
        zweimalRaus = true;
    } else if (k == "Dienste") {
        if (prg_.p.dialogs.ShowMessage(kDiensteFrage, "Kestrella Info!", kMbYesNo) == kIdYes) {
            shell("REG DELETE HKLM\\SYSTEM\\CurrentControlSet\\Services\\" + t(0) + " /f");
            log("Neuer Dienst wurde erstellt.", {"Name: " + t(0), "Datei: " + t(3)}, "< Gelöscht OK >");
        }
    } else if (k == "URLSearchHooks") {
        ocx.DeleteValue(1, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", t(0));
        shell("REG DELETE HKCR\\CLSID\\" + t(0) + " /f");
        log("IExplorer URLSearchHooks geändert.", {"Name: " + t(0), "Wert: " + t(1)}, "< gelöscht OK >");
        zweimalRaus = true;
    } else if (k == "TaskScheduler") {
        ocx.DeleteValue(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler", t(0));
        shell("REG DELETE HKCR\\CLSID\\" + t(0) + " /f");
        log("Neuer SharedTaskScheduler-Autostarteintrag wurde erstellt.", {"Name: " + t(0)}, "< Gelöscht OK >");
    } else if (k == "ShellService") {
        shell("REG DELETE HKCR\\CLSID\\" + t(1) + " /f");
        ocx.DeleteValue(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad", t(0));
    } else if (k == "BHO") {
        shell("REG DELETE HKCR\\CLSID\\" + t(0) + " /f");
        // A value named after the class, not its subkey: so it stands.
        ocx.DeleteValue(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects", t(0));
        log("Neuer BHO Eintrag erstellt.", {"Name: " + t(0), "Datei: " + t(1)}, "< Gelöscht OK >");
    } else if (k == "ActiveX") {
        const bool ok = DateiLöschen(prg_.p, pfad());
        log("Neue ActiveX wurde erstellt.", {"Datei: " + pfad()}, ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
    } else if (k == "WindowsDatei") {
        const bool ok = DateiLöschen(prg_.p, pfad());
        log("Datei wurde erstellt oder geändert.", {"Datei: " + pfad()}, ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
    } else if (k == "AutostartRegistry") {
        const bool ok = RegistryLöschenValue(t(1), t(2), t(3), t(4));
        log("Neuer Eintrag in der Registry Autostart.",
            {"Registry: " + t(1) + "\\" + t(2) + "\\" + t(3), "Wert: " + t(4)},
            ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
    } else if (k == "AutostartOrdner") {
        const bool ok = DateiLöschen(prg_.p, pfad());
        log("Neuer Eintrag im Autostart Ordner.", {"Datei: " + pfad()}, ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
    } else if (k == "DFÜ") {
        const bool ok = prg_.p.dialup.DeleteEntry(t(0)) == 0;
        if (!ok)
            prg_.p.dialogs.ShowMessage("DFÜ-Verbindung konnte nicht gelöscht werden.\r\n" + t(0) + " Nummer: " + t(1),
                                       "Achtung!", kMbOk | kMbSystemModal);
        log("DFÜ-Verbindung wurde erstellt. ", {"DFÜ: " + t(0) + "   Nummer: " + t(1)},
            ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
    } else if (k == "Favorit1" || k == "Favorit2" || k == "Favoriten") {
        const bool ok = DateiLöschen(prg_.p, Label1[1].Caption);
        log("Neuer IExplorer Favorit gefunden.", {"Favorit: " + Label1[1].Caption},
            ok ? "< Favorit gelöscht OK >" : "< Favorit gelöscht NEIN >");
    }
    // raus unloads this window: nothing of it may be touched after the first call.
    Programm& prg = prg_;
    raus();
    if (zweimalRaus) Properties_Save(prg);  // the second raus finds no window left to close
}

}  // namespace kes

// "Löschen": the delete action of the warning window. It removes the warned-of thing from
// the system, by the registry control, by a REG DELETE command or by deleting a file; the
// baseline is not touched, so a thing that comes back is warned of again.
#include "warning/loeschen.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/reg_befehl.h"
#include "warning/aktionen.h"
#include "warning/antwort.h"
#include "warning/form1.h"
#include "warning/form3.h"
#include "warning/kategorien.h"

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

// The field whose text a category's branch puts on a REG DELETE command line; null for the
// branches that start no command.
const std::string* Befehlsname(const Form3Fenster& f, Kategorie k) {
    switch (k) {
        case Kategorie::ToolBar:
        case Kategorie::ToolBar1:
        case Kategorie::Dienste:
        case Kategorie::URLSearchHooks:
        case Kategorie::TaskScheduler:
        case Kategorie::BHO:
            return &f.Text1[0].Text;
        case Kategorie::ShellService:
            return &f.Text1[1].Text;
        default:
            return nullptr;
    }
}
}  // namespace

bool Form3Fenster::RegistryLöschenValue(const std::string& hive, const std::string& schlüssel, const std::string& wert,
                                        const std::string&) {
    const int code = HiveCode(hive);
    if (code < 0) return true;
    Sicherung s = SicherungFür(*this);
    s.Wert(HandleVonHive(code), schlüssel, wert == std::string(1, '\0') ? "" : wert);
    Sichern(*this, s);
    HiveOCX ocx(k_.P().registry);
    // The control reports no error for what is not there; a value that stays is a failure.
    ocx.DeleteValue(code, schlüssel, wert);
    return !ocx.ValueExists(code, schlüssel, wert);
}

bool Form3Fenster::RegistryLöschenSubkey(const std::string& hive, const std::string& schlüssel) {
    const int code = HiveCode(hive);
    if (code < 0) return true;
    Sicherung s = SicherungFür(*this);
    s.Schlüssel(HandleVonHive(code), schlüssel);
    Sichern(*this, s);
    HiveOCX ocx(k_.P().registry);
    ocx.DeleteKey(code, schlüssel);
    return !ocx.KeyExists(code, schlüssel);
}

void Form3Fenster::Image3_Click() {
    if (k_.W().AnzeigeLöschen) {
        löschen(true);
        return;
    }
    // Modal: the view shows it over everything until it is answered.
    k_.Form1().Show();
}

void Form3Fenster::löschen(bool ja) {
    if (!ja) return;
    // The error exit: the number and the routine's name, no title, and the window stays.
    try {
        Antwort antwort(*this, Label3[2].Caption);
        const KategorieZeile& z = Zeile(k_.W().Kategorieschlüssel);
        // A name that would make the command delete another key: nothing happens, the user
        // is told, and the window stays for another answer.
        if (const std::string* name = Befehlsname(*this, k_.W().Kategorieschlüssel); name && !RegNameSicher(*name)) {
            k_.P().dialogs.ShowMessage(RegNameUnsicherText(*name), "Achtung!", kMbOk | kMbIconExclamation);
            return;
        }
        if (z.löschen) z.löschen(*this);
        // raus unloads this window: nothing of it may be touched after the first call.
        WarnKontext& k = k_;
        raus();
        if (z.löschenZweimalRaus) k.EinstellungenSpeichern();  // the second raus finds no window left to close
    } catch (const SicherungFehlt&) {
        // The user has been told; nothing was removed, and the window stays.
    } catch (const Fehler& f) {
        k_.P().dialogs.ShowMessage(std::to_string(f.Nummer()) + "Fehler Meldung [Form3 Löschen]", "", kMbOk);
    } catch (const std::exception&) {
        k_.P().dialogs.ShowMessage("5Fehler Meldung [Form3 Löschen]", "", kMbOk);
    }
}

namespace entfernen {

void RegDeleteStarten(Form3Fenster& f, const std::string& pfad, const std::string& name, const char* schalter) {
    f.K().P().shell.RunCommand(RegDelete(pfad, name, schalter), 2);
}

void VorherSichern(Form3Fenster& f, std::initializer_list<std::pair<RegHandle, std::string>> bäume,
                   std::initializer_list<std::tuple<RegHandle, std::string, std::string>> werte) {
    Sicherung s = SicherungFür(f);
    for (const auto& [root, key] : bäume) s.Schlüssel(root, key);
    for (const auto& [root, key, name] : werte) s.Wert(root, key, name);
    Sichern(f, s);
}

bool DateiEntfernen(Form3Fenster& f, const std::string& pfad) {
    Plattform& p = f.K().P();
    if (UnlesbarGemeldet(p, pfad)) return false;
    Sicherung s = SicherungFür(f);
    s.Datei(pfad);
    Sichern(f, s);
    return DateiLöschen(p, pfad);
}

namespace {
constexpr const char* kClsid = "CLSID\\";
}  // namespace

void ToolBar(Form3Fenster& f) {
    // The command's /v also takes a value of the domain's name beside the keys.
    const std::string domains(kZoneMap, std::char_traits<char>::length(kZoneMap) - 1);
    VorherSichern(f, {{kHkeyLocalMachine, kZoneMap + Feld(f, 0)}}, {{kHkeyLocalMachine, domains, Feld(f, 0)}});
    RegDeleteStarten(f, "HKLM\\" + std::string(kZoneMap), Feld(f, 0), "/v/f");
    HiveOCX(f.K().P().registry).DeleteKeyTree(static_cast<std::int32_t>(0x80000002u), kZoneMap + Feld(f, 0));
    f.K().Log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 0)},
              "< gelöscht OK >\"");
}

void ToolBar1(Form3Fenster& f) {
    VorherSichern(f, {{kHkeyCurrentUser, kZoneMap + Feld(f, 0)}});
    RegDeleteStarten(f, "HKCU\\" + std::string(kZoneMap), Feld(f, 0));
    HiveOCX(f.K().P().registry).DeleteKeyTree(static_cast<std::int32_t>(0x80000001u), kZoneMap + Feld(f, 0));
    f.K().Log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 0)},
              "< gelöscht OK >\"");
}

void Dienste(Form3Fenster& f) {
    if (f.K().P().dialogs.ShowMessage(kDiensteFrage, "Kestrella Info!", kMbYesNo) != kIdYes) return;
    VorherSichern(f, {{kHkeyLocalMachine, "SYSTEM\\CurrentControlSet\\Services\\" + Feld(f, 0)}});
    RegDeleteStarten(f, "HKLM\\SYSTEM\\CurrentControlSet\\Services\\", Feld(f, 0));
    f.K().Log("Neuer Dienst wurde erstellt.", {"Name: " + Feld(f, 0), "Datei: " + Feld(f, 3)}, "< Gelöscht OK >");
}

void URLSearchHooks(Form3Fenster& f) {
    VorherSichern(f, {{kHkeyClassesRoot, kClsid + Feld(f, 0)}},
                  {{kHkeyCurrentUser, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", Feld(f, 0)}});
    HiveOCX(f.K().P().registry).DeleteValue(1, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", Feld(f, 0));
    RegDeleteStarten(f, "HKCR\\CLSID\\", Feld(f, 0));
    f.K().Log("IExplorer URLSearchHooks geändert.", {"Name: " + Feld(f, 0), "Wert: " + Feld(f, 1)}, "< gelöscht OK >");
}

void TaskScheduler(Form3Fenster& f) {
    VorherSichern(f, {{kHkeyClassesRoot, kClsid + Feld(f, 0)}},
                  {{kHkeyLocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler",
                    Feld(f, 0)}});
    HiveOCX(f.K().P().registry)
        .DeleteValue(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler", Feld(f, 0));
    RegDeleteStarten(f, "HKCR\\CLSID\\", Feld(f, 0));
    f.K().Log("Neuer SharedTaskScheduler-Autostarteintrag wurde erstellt.", {"Name: " + Feld(f, 0)}, "< Gelöscht OK >");
}

// No log entry at all for this one.
void ShellService(Form3Fenster& f) {
    VorherSichern(
        f, {{kHkeyClassesRoot, kClsid + Feld(f, 1)}},
        {{kHkeyLocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad", Feld(f, 0)}});
    RegDeleteStarten(f, "HKCR\\CLSID\\", Feld(f, 1));
    HiveOCX(f.K().P().registry)
        .DeleteValue(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad", Feld(f, 0));
}

void BHO(Form3Fenster& f) {
    VorherSichern(f, {{kHkeyClassesRoot, kClsid + Feld(f, 0)}},
                  {{kHkeyLocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects",
                    Feld(f, 0)}});
    RegDeleteStarten(f, "HKCR\\CLSID\\", Feld(f, 0));
    // A value named after the class, not its subkey: so it stands.
    HiveOCX(f.K().P().registry)
        .DeleteValue(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects", Feld(f, 0));
    f.K().Log("Neuer BHO Eintrag erstellt.", {"Name: " + Feld(f, 0), "Datei: " + Feld(f, 1)}, "< Gelöscht OK >");
}

void ActiveX(Form3Fenster& f) {
    const bool ok = DateiEntfernen(f, f.Zeile2());
    f.K().Log("Neue ActiveX wurde erstellt.", {"Datei: " + f.Zeile2()}, ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
}

void WindowsDatei(Form3Fenster& f) {
    const bool ok = DateiEntfernen(f, f.Zeile2());
    f.K().Log("Datei wurde erstellt oder geändert.", {"Datei: " + f.Zeile2()},
              ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}

void AutostartRegistry(Form3Fenster& f) {
    const bool ok = f.RegistryLöschenValue(Feld(f, 1), Feld(f, 2), Feld(f, 3), Feld(f, 4));
    f.K().Log("Neuer Eintrag in der Registry Autostart.",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 4)},
              ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}

void AutostartOrdner(Form3Fenster& f) {
    const bool ok = DateiEntfernen(f, f.Zeile2());
    f.K().Log("Neuer Eintrag im Autostart Ordner.", {"Datei: " + f.Zeile2()},
              ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
}

void DFÜ(Form3Fenster& f) {
    const bool ok = f.K().P().dialup.DeleteEntry(Feld(f, 0)) == 0;
    if (!ok)
        f.K().P().dialogs.ShowMessage(
            "DFÜ-Verbindung konnte nicht gelöscht werden.\r\n" + Feld(f, 0) + " Nummer: " + Feld(f, 1), "Achtung!",
            kMbOk | kMbSystemModal);
    f.K().Log("DFÜ-Verbindung wurde erstellt. ", {"DFÜ: " + Feld(f, 0) + "   Nummer: " + Feld(f, 1)},
              ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
}

// The file of the warning, not its folder: a folder never goes by a file delete, and the
// favourite would stay and warn again.
void Favoriten(Form3Fenster& f) {
    const std::string pfad = FavoritenPfad(f);
    const bool ok = DateiEntfernen(f, pfad);
    f.K().Log("Neuer IExplorer Favorit gefunden.", {"Favorit: " + pfad},
              ok ? "< Favorit gelöscht OK >" : "< Favorit gelöscht NEIN >");
}

}  // namespace entfernen

std::string FavoritenPfad(const Form3Fenster& f) {
    const std::string& ordner = f.Label1[1].Caption;
    return (ordner.empty() || ordner.back() == '\\' ? ordner : ordner + "\\") + f.Label1[2].Caption;
}

}  // namespace kes

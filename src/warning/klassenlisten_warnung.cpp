#include "warning/klassenlisten_warnung.h"

#include "platform/hive_ocx.h"
#include "platform/registry.h"
#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
// Whether the warned-of entry was seen in the 32-bit view: its row names the place so.
bool Aus32(const Form3Fenster& f) {
    return IstPfad32(übernehmen::ErsteRegistryzeile(f).SubItem(2));
}
}  // namespace

namespace übernehmen {

bool URLSearchHooks(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.List9.Items.push_back(Feld(f, 0));
    a.klassenlisten.urlSearchHooks.Speichern();
    f.K().Log("IExplorer URLSearchHooks geändert.", {"Name: " + Feld(f, 0), "Wert: " + Feld(f, 1)}, kOk);
    return true;
}

bool KlassenIni(Form3Fenster& f) {
    WarnKontext& k = f.K();
    const Kategorie kat = k.W().Kategorieschlüssel;
    AlarmDaten& a = k.Alarm();
    const Grundliste& datei = kat == Kategorie::BHO            ? a.klassenlisten.bho
                              : kat == Kategorie::ShellService ? a.klassenlisten.shellService
                                                               : a.klassenlisten.taskScheduler;
    auto schreiben = [&](const std::string& abschnitt, const char* schlüssel, const std::string& wert) {
        datei.Schreiben(abschnitt, schlüssel, wert);
    };
    if (kat == Kategorie::BHO) {
        const std::string s = std::to_string(datei.FreierAbschnitt("Clisd"));
        schreiben(s, "Pfad", Feld(f, 1));
        schreiben(s, "Clisd", KlassenKennung(Feld(f, 0), Aus32(f)));
        schreiben(s, "Name", Feld(f, 2));
        k.Log("Neuer BHO Eintrag erstellt.", {"Name: " + Feld(f, 0), "Datei: " + Feld(f, 1)}, kOk);
        a.klassenlisten.LadeBHO();
        return true;
    }
    // The two rows swap Text1(0) and Text1(1) on purpose: their watchers fill them so.
    const bool shell = kat == Kategorie::ShellService;
    const std::string s = std::to_string(datei.FreierAbschnitt("Name"));
    const std::string kennung = KlassenKennung(Feld(f, 0), Aus32(f));
    schreiben(s, "name", shell ? kennung : Feld(f, 1));
    schreiben(s, "wert", shell ? Feld(f, 1) : kennung);
    schreiben(s, "clisd", Feld(f, 2));
    schreiben(s, "clisdwert", Feld(f, 3));
    const ListItem& z = ErsteRegistryzeile(f);
    k.Log(shell ? "Neuer ShellServiceObjectDelayLoad wurde erstellt."
                : "Neuer SharedTaskScheduler-Autostarteintrag wurde erstellt.",
          {"Name: " + z.SubItem(2) + "\\" + z.SubItem(3) + "\\" + z.SubItem(4)}, kOk);
    if (shell)
        a.klassenlisten.LadeShellService();
    else
        a.klassenlisten.LadeSharedTaskScheduler();
    return true;
}

}  // namespace übernehmen

namespace später {
std::string Klasse0(const Form3Fenster& f) {
    return KlassenKennung(Feld(f, 0), Aus32(f));
}
std::string Klasse1(const Form3Fenster& f) {
    return KlassenKennung(Feld(f, 1), Aus32(f));
}
}  // namespace später

namespace entfernen {

namespace {
constexpr const char* kClsid = "CLSID\\";
}  // namespace

void URLSearchHooks(Form3Fenster& f) {
    VorherSichern(f, {{kHkeyClassesRoot, kClsid + Feld(f, 0)}},
                  {{kHkeyCurrentUser, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", Feld(f, 0)}});
    HiveOCX(f.K().P().registry).DeleteValue(1, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", Feld(f, 0));
    RegDeleteStarten(f, "HKCR\\CLSID\\", Feld(f, 0));
    f.K().Log("IExplorer URLSearchHooks geändert.", {"Name: " + Feld(f, 0), "Wert: " + Feld(f, 1)}, "< gelöscht OK >");
}

namespace {
constexpr const char* kSts = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
constexpr const char* kSsodl = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
constexpr const char* kBho = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";

// The place and the class key in the view the entry came from, as the watcher showed them.
struct Orte {
    std::string ort;
    std::string klasse;      // below HKEY_CLASSES_ROOT, ending in a backslash
    std::string regKlasse;   // the same for a REG DELETE line
};
Orte OrteVon(const Form3Fenster& f, const char* ort) {
    if (!Aus32(f)) return {ort, kClsid, std::string("HKCR\\") + kClsid};
    const std::string klasse = Pfad32(kHkeyClassesRoot, kClsid);
    return {Pfad32(kHkeyLocalMachine, ort), klasse, "HKCR\\" + klasse};
}
}  // namespace

void TaskScheduler(Form3Fenster& f) {
    const Orte o = OrteVon(f, kSts);
    VorherSichern(f, {{kHkeyClassesRoot, o.klasse + Feld(f, 0)}}, {{kHkeyLocalMachine, o.ort, Feld(f, 0)}});
    HiveOCX(f.K().P().registry).DeleteValue(2, o.ort, Feld(f, 0));
    RegDeleteStarten(f, o.regKlasse, Feld(f, 0));
    f.K().Log("Neuer SharedTaskScheduler-Autostarteintrag wurde erstellt.", {"Name: " + Feld(f, 0)}, "< Gelöscht OK >");
}

// No log entry at all for this one.
void ShellService(Form3Fenster& f) {
    const Orte o = OrteVon(f, kSsodl);
    VorherSichern(f, {{kHkeyClassesRoot, o.klasse + Feld(f, 1)}}, {{kHkeyLocalMachine, o.ort, Feld(f, 0)}});
    RegDeleteStarten(f, o.regKlasse, Feld(f, 1));
    HiveOCX(f.K().P().registry).DeleteValue(2, o.ort, Feld(f, 0));
}

void BHO(Form3Fenster& f) {
    const Orte o = OrteVon(f, kBho);
    VorherSichern(f, {{kHkeyClassesRoot, o.klasse + Feld(f, 0)}}, {{kHkeyLocalMachine, o.ort, Feld(f, 0)}});
    RegDeleteStarten(f, o.regKlasse, Feld(f, 0));
    // A value named after the class, not its subkey: so it stands.
    HiveOCX(f.K().P().registry).DeleteValue(2, o.ort, Feld(f, 0));
    f.K().Log("Neuer BHO Eintrag erstellt.", {"Name: " + Feld(f, 0), "Datei: " + Feld(f, 1)}, "< Gelöscht OK >");
}

}  // namespace entfernen

}  // namespace kes

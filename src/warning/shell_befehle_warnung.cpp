#include "warning/shell_befehle_warnung.h"

#include "platform/hive_ocx.h"
#include "warning/antwort.h"
#include "warning/fehlerausgang.h"
#include "warning/form3.h"

namespace kes {

namespace weitere {
void ShellBefehlOriginal(Form3Fenster& f) {
    WarnKontext& k = f.K();
    const std::string& hive = f.Text1[0].Text;
    const std::string& key = f.Text1[1].Text;
    const std::string& erwartet = f.Text1[2].Text;
    HiveOCX ocx(k.P().registry);
    const std::string standardwert(1, '\0');
    Sicherung s = SicherungFür(f);
    if (hive == "HKEY_CLASSES_ROOT") s.Wert(kHkeyClassesRoot, key, "");
    if (hive == "HKEY_LOCAL_MACHINE") s.Wert(kHkeyLocalMachine, key, "");
    Sichern(f, s);
    if (hive == "HKEY_CLASSES_ROOT") ocx.WriteValue(0, key, standardwert, erwartet);
    if (hive == "HKEY_LOCAL_MACHINE") ocx.WriteValue(2, key, standardwert, erwartet);
    // The start page's log entry, its index left at 0: the last line quotes saved start
    // page 0, whatever the command was.
    Loggen(
        k, "IExplorer " + f.Text1[2].Text + " wurde geändert.",
        {"Registry: " + f.Text1[0].Text + "\\" + f.Text1[1].Text + "\\" + f.Text1[2].Text, "Wert: " + f.Text1[3].Text},
        "< Zurückgesetzt OK > auf " + k.W().StartSeiten[0]);
    f.raus();
}
}  // namespace weitere

}  // namespace kes

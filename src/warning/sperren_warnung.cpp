#include "warning/sperren_warnung.h"

#include "platform/hive_ocx.h"
#include "warning/antwort.h"
#include "warning/fehlerausgang.h"
#include "warning/form3.h"
#include "watchers/sperren.h"

namespace kes {

namespace weitere {
void SperreFreigeben(Form3Fenster& f) {
    WarnKontext& k = f.K();
    const bool regedit = k.W().Kategorieschlüssel == Kategorie::RegeditDeaktiviert;
    Sicherung s = SicherungFür(f);
    s.Wert(kHkeyCurrentUser, kPoliciesSystem, regedit ? "DisableRegistryTools" : "DisableTaskMgr");
    Sichern(f, s);
    HiveOCX(k.P().registry).DeleteValue(1, kPoliciesSystem, regedit ? "DisableRegistryTools" : "DisableTaskMgr");
    Loggen(k, regedit ? "Zugang auf Regedit wurde Deaktiviert." : "Zugang auf den Taskmanager wurde Deaktiviert.",
           {"Name: " + f.Label1[1].Caption}, "< Freigegeben OK >");
    f.raus();
}
}  // namespace weitere

}  // namespace kes

#include "watchers/sperren.h"

#include "platform/hive_ocx.h"
#include "watchers/warnung.h"

namespace kes {

struct Sperren::Sperre {
    const char* wert;
    Kategorie kategorie;
    const char* überschrift;
    const char* schlüsselText;
    const char* zeile;
};

namespace {
// The task manager's label names HKEY_LOCAL_MACHINE although the value is read from the
// user's hive: the label is only text, and the program has always shown it so.
constexpr const char* kRegeditLabel =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System\\";
constexpr const char* kTaskmanagerLabel =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System\\";
}  // namespace

void Sperren::TesteSonstiges() {
    static const Sperre s{"DisableRegistryTools", Kategorie::RegeditDeaktiviert,
                          "Zugang auf Regedit wurde Deaktiviert.", kRegeditLabel, "DisableRegistryTools = 1"};
    Testen(s);
}

void Sperren::TesteSonstiges1() {
    static const Sperre s{"DisableTaskMgr", Kategorie::TaskmanagerDeaktiviert,
                          "Zugang des Taskmanager's wurde Deaktiviert. (Strg+Alt+Entf)", kTaskmanagerLabel,
                          "DisableTaskMgr = 1"};
    Testen(s);
}

void Sperren::Testen(const Sperre& s) {
    std::string wert;
    try {
        // Any type comes back as text: a number as its digits, so a string "1" counts alike.
        wert = HiveOCX(k_.P().registry).ReadValue(1, kPoliciesSystem, s.wert);
    } catch (...) {
        return;
    }
    if (wert != "1") return;
    // No deferral is asked: a lock cannot be put off.
    k_.Warnen(s.kategorie, [&](Warnung& f) {
        f.Image[6].Visible = false;
        f.Label3[6].Visible = false;
        f.Zeigen(8);  // "Freigeben", the action that removes the value
        f.Label1[0].Caption = s.überschrift;
        f.Label1[1].Caption = s.schlüsselText;
        f.Label1[2].Caption = s.zeile;
        f.ListView2.Visible = false;
        for (int i = 1; i <= 4; ++i) f.Picture3[i].Visible = false;
    });
}

}  // namespace kes

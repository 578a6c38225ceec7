// The other buttons of the warning window: end a process, the file warnings' own answers,
// put off until the end of the run, put an original back, open a tool. Each leads where the
// row of the current category says; the branches lie with their watcher's warning.
#include "warning/form3.h"
#include "warning/kategorien.h"
#include "watchers/alarm_daten.h"

namespace kes {

void Form3Fenster::Image2_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).töten) return a(*this);
    raus();
}

void Form3Fenster::Image4_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).ausnahme) return a(*this);
    raus();
}

void Form3Fenster::Image5_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).nagut) return a(*this);
    raus();
}

void Form3Fenster::Image6_Click() {
    if (const Aufschub text = Zeile(k_.W().Kategorieschlüssel).später) k_.Alarm().List8.Items.push_back(text(*this));
    raus();
}

void Form3Fenster::Image8_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).original) return a(*this);
    raus();
}

void Form3Fenster::Image9_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).infos) a(*this);
}

}  // namespace kes

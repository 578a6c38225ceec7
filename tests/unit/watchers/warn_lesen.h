// Reads of a warning and of a list as one vector, so that one comparison holds a whole row.
#pragma once

#include <string>
#include <vector>

#include "programm_test_basis.h"

namespace kes::test {

using Texte = std::vector<std::string>;

inline Texte TexteVon(const ListView& l) {
    Texte t;
    for (const auto& z : l.Items) t.push_back(z.Text);
    return t;
}
// The row's text, then its sub items 1 to n.
inline Texte Spalten(const ListItem& z, int n) {
    Texte t{z.Text};
    for (int i = 1; i <= n; ++i) t.push_back(z.SubItem(i));
    return t;
}
inline Texte Kopf(const Form3Fenster& f) {
    return {f.Label1[0].Caption, f.Label1[1].Caption, f.Label1[2].Caption};
}
// Text1(0) to Text1(n - 1).
inline Texte Felder(const Form3Fenster& f, int n) {
    Texte t;
    for (int i = 0; i < n; ++i) t.push_back(f.Text1[i].Text);
    return t;
}
// A field of the warning shown; "<keine>" without one.
inline std::string Gewarnt(Programm& p, int feld = 0) {
    return p.Form3Geladen() ? p.Form3().Text1[feld].Text : "<keine>";
}
// The warning closed without an answer; the cycle goes on.
inline void Zu(Programm& p) {
    p.Form3Entladen();
    p.Aufräumen();
}

// A program with Main's paths and the cycle's timer on, for the routines of one watcher.
class WaechterTest : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Alarm().Timer1.SetEnabled(true);
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    std::string Log() { return fp.files.Content(ordner + "Kestrella.log"); }
};

}  // namespace kes::test

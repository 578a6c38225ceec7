// A warning window open for an answer, with its fields filled as a watcher leaves them.
#pragma once

#include "programm_test_basis.h"

namespace kes::test {

class AntwortFenster : public WarnungsTest {
protected:
    // Text1(0), Text1(1), ... in this order.
    Form3Fenster& Mit(Kategorie k, const std::vector<std::string>& texte) {
        Form3Fenster& f = Warnung(k);
        for (std::size_t i = 0; i < texte.size(); ++i) f.Text1[i].Text = texte[i];
        return f;
    }
    // The file table's two rows: the name, then the full path.
    Form3Fenster& MitDatei(Kategorie k, const std::string& name, const std::string& pfad) {
        Form3Fenster& f = Warnung(k);
        f.ListView2.Add(name);
        f.ListView2.Add(pfad);
        return f;
    }
    std::vector<std::string> Meldungen() {
        std::vector<std::string> m;
        for (const auto& x : fp.dialogs.meldungen) m.push_back(x.text);
        return m;
    }
    std::vector<std::string> Befehle() {
        std::vector<std::string> b;
        for (const auto& k : fp.shell.kommandos) b.push_back(k.kommando);
        return b;
    }
    std::string Datei(const std::string& name) { return fp.files.Content(ordner + "daten\\" + name); }
    bool Geloggt(const std::string& text) { return Log().find(text) != std::string::npos; }
};

}  // namespace kes::test

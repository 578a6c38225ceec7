// New dial-up entries, known by their phone number and not by their name: a dialler
// settles as an entry with an expensive number. The first entry of the phone book whose
// number is neither known nor empty is reported; nothing is ever done alone.
#pragma once

#include "common/steuerelemente.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

inline constexpr const char* kDFÜDatei = "daten\\0190.txt";

class DFÜ {
public:
    DFÜ(WächterKontext& k, ListView& ListView2) : ListView2(ListView2), basis(k, kDFÜDatei, ListView2, "€"), k_(k) {}

    void LadeDFÜ();
    void TesteDFÜ();

    ListView& ListView2;  // known entries: name, number
    Grundliste basis;     // ListView2: name "€" number, written a line an entry, read field by field

private:
    void Prüfen();
    WächterKontext& k_;
};

// The "€" of code page 1252 between name and number in daten\0190.txt.
inline constexpr char kEuro = '\x80';

// The menu of the known entries (ListView2): 0 the phone book's own editor of the selected
// entry, over the panel, the list staying as it is; 1 the selected entry removed.
void löschedfü1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

// New files in the browser's "Downloaded Program Files" folder below the Windows folder.
// The baseline daten\Activex.txt holds full paths and is compared without regard to case;
// a desktop.ini there is removed at every cycle, so that it neither counts nor hides. An
// accepted object joins the list for this run only: the panel alone writes the file.
#pragma once

#include "common/steuerelemente.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

class ActiveX {
public:
    ActiveX(WächterKontext& k, ListBox& List6, ListBox& List7)
        : List6(List6), List7(List7), basis(k, "daten\\Activex.txt", List6), k_(k) {}

    void LadeActiveX();
    void Testeactivx();

    ListBox& List6;    // the baseline
    ListBox& List7;    // the folder as it is now
    Grundliste basis;  // List6

private:
    WächterKontext& k_;
};

// The menu of the known objects (List6).
void löscheactivex1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes

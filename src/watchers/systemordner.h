// Files created in or deleted from the Windows folder and the system folder, compared with a snapshot of the start.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class WindowsDateien {
public:
    WindowsDateien(WächterKontext& k, ListView& ListView4, ListView& ListView7, ListView& ListView5, ListBox& List5)
        : ListView4(ListView4), ListView7(ListView7), ListView5(ListView5), List5(List5), k_(k) {}

    void LadeWindowsausnahme();
    void LadeWindows();
    void LadeWindowsSys32();
    void TesteWindowsGelöscht();
    void TesteWindowsErstellt();
    void TesteWindowsSystem32Gelöscht();
    void TesteWindowsSystem32Erstellt();

    ListView& ListView4;
    ListView& ListView7;
    ListView& ListView5;
    ListBox& List5;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes

// The places where a component class hooks into shell or browser: Browser Helper Objects, ShellServiceObjectDelayLoad,
// SharedTaskScheduler, URLSearchHooks.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class Klassenlisten {
public:
    Klassenlisten(WächterKontext& k, ListView& ListView8, ListView& ListView9, ListView& ListView10, ListBox& List9,
                  std::array<Label, 35>& ww)
        : ListView8(ListView8), ListView9(ListView9), ListView10(ListView10), List9(List9), ww(ww), k_(k) {}

    void LadeBHO();
    void LadeShellService();
    void LadeSharedTaskScheduler();
    void LadeURLSearchHook();
    void TesteBHO();
    void TesteShellService();
    void TesteSharedTaskScheduler();
    void TesteSonstiges2();

    ListView& ListView8;
    ListView& ListView9;
    ListView& ListView10;
    ListBox& List9;
    std::array<Label, 35>& ww;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes

// The policy values that lock the registry editor and the task manager. Both read one value
// under the user's Policies\System key; the text "1" is a lock, anything else is none. There
// is no baseline, no exception list and no deferral: a lock warns at every cycle until it is
// released, and only "Freigeben" is offered.
#pragma once

#include "watchers/kontext.h"

namespace kes {

class Sperren {
public:
    explicit Sperren(WächterKontext& k) : k_(k) {}

    // DisableRegistryTools.
    void TesteSonstiges();
    // DisableTaskMgr.
    void TesteSonstiges1();

private:
    struct Sperre;
    void Testen(const Sperre& s);
    WächterKontext& k_;
};

// The key both locks live in, below HKEY_CURRENT_USER.
inline constexpr const char* kPoliciesSystem = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";

}  // namespace kes

// What the memories of a walk share: an entry not asked since the last tidying is one the
// last walk did not list, and goes.
#pragma once

namespace kes {

// Erases every entry whose gefragt is false and clears it on the others.
template <typename Einträge>
void UngefragteVergessen(Einträge& einträge) {
    for (auto it = einträge.begin(); it != einträge.end();) {
        if (!it->second.gefragt) {
            it = einträge.erase(it);
        } else {
            it->second.gefragt = false;
            ++it;
        }
    }
}

}  // namespace kes

#include "platform/laengengedaechtnis.h"

#include "platform/gedaechtnis.h"

namespace kes {

std::optional<std::int64_t> LängenGedächtnis::Länge(Plattform& p, const std::string& pfad, const DateiEintrag& datei) {
    const std::uint64_t grösse = (std::uint64_t{datei.GrösseHoch} << 32) | datei.Grösse;
    if (auto it = einträge_.find(pfad); it != einträge_.end()) {
        Eintrag& e = it->second;
        if (e.grösse == grösse && e.geschrieben == datei.Geschrieben) {
            e.gefragt = true;
            return e.länge;
        }
        einträge_.erase(it);
    }
    const std::optional<std::int64_t> länge = p.files.Length(pfad);
    if (länge) einträge_[pfad] = {grösse, datei.Geschrieben, *länge, true};
    return länge;
}

void LängenGedächtnis::Aufräumen() {
    UngefragteVergessen(einträge_);
}

}  // namespace kes

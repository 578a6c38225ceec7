#include "platform/versionsgedaechtnis.h"

#include <optional>

#include "platform/allefunktionen.h"
#include "platform/gedaechtnis.h"

namespace kes {

namespace {
struct Stempel {
    std::uint64_t länge;
    std::uint64_t geschrieben;
};

// The file's own directory entry; none for a name with wildcards, which would match others.
std::optional<Stempel> Stempeln(Plattform& p, const std::string& pfad) {
    if (pfad.empty() || pfad.find_first_of("*?") != std::string::npos) return std::nullopt;
    FindRecord r;
    const DetailFind f = p.details.FindFirst(pfad, &r);
    if (!f || (r.attributes & kAttrDirectory)) return std::nullopt;
    return Stempel{(std::uint64_t{r.sizeHigh} << 32) | r.sizeLow, r.lastWriteTime};
}
}  // namespace

void VersionsGedächtnis::Infos(Plattform& p, const std::string& pfad, DateiVersion& record) {
    const std::optional<Stempel> stempel = Stempeln(p, pfad);
    if (!stempel) return DateiInfos(p, pfad, record);
    if (auto it = einträge_.find(pfad); it != einträge_.end()) {
        Eintrag& e = it->second;
        if (e.länge == stempel->länge && e.geschrieben == stempel->geschrieben) {
            e.gefragt = true;
            record = e.version;
            return;
        }
        einträge_.erase(it);
    }
    // A file held open elsewhere reads as unknown now and as itself later: not kept.
    if (!DateiVorhanden(p, pfad)) return DateiInfos(p, pfad, record);
    DateiInfos(p, pfad, record);
    einträge_[pfad] = {stempel->länge, stempel->geschrieben, record, true};
}

void VersionsGedächtnis::Aufräumen() {
    UngefragteVergessen(einträge_);
}

}  // namespace kes

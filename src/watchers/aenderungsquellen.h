// The change sources of the watcher table's rows: each row names the registry keys and
// folders it reads, and this object keeps them armed while the row's box is on. It tells the
// cycle whether a row must walk again (something fired since its last walk, a place could
// not be armed, or the last walk is a minute old), and tells the program between ticks that
// something fired, so that the next tick can come at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

// A row that reads more than its places name (the classes an entry names, the merged
// classes' keys) must walk for its safety walk; only a key's imprint can spare it.
inline constexpr int kOhneAbdruck = -1;

// A registry key below root, or with root 0 a folder; with everything under it when
// unterschlüssel. tiefe: how many levels below the key the row reads, where the key holds
// everything the row reads there; a row whose keys all say so and keep their imprint is
// spared its safety walk.
struct Änderungsort {
    RegHandle root = 0;
    std::string pfad;
    bool unterschlüssel = false;
    int tiefe = kOhneAbdruck;
};
using Änderungsorte = std::vector<Änderungsort>;

// A walk older than this is done again whatever the sources say: the guard against a
// notification the system lost. A row whose keys all have imprints looks at them instead,
// and walks only when they differ from those taken as it was armed for its last walk.
inline constexpr std::int64_t kSicherheitsLaufMs = 60000;
// Of the looks between ticks, every this many asks each source on its own: once a minute
// at a look each 250 ms. The asks cost the server two calls a source, the look one for all.
inline constexpr int kBlickeJeFrage = 240;
// A row's sources are asked each on its own at a tick only when they were not so asked
// this long: a quiet row costs the tick one look. A key deleted under its source, which
// Wine does not signal, is seen by that ask, or by the imprint, as a lost notification is.
inline constexpr std::int64_t kFrageMs = kSicherheitsLaufMs;
// How deep below a folder place its folders are watched, and walked by its row: a loop of
// junctions ends there.
inline constexpr int kOrdnerTiefe = 16;

class Änderungsquellen {
public:
    Änderungsquellen(Plattform& p, std::size_t zeilen) : p_(p), zeilen_(zeilen) {}

    // Asked as the row's passes are about to run, with its places: arms them when they are
    // not armed, and says whether the row must walk. A row whose place cannot be armed
    // walks at every tick and is tried again at the next.
    bool MussLaufen(std::size_t zeile, const std::function<Änderungsorte()>& orte);
    // Arms a row whose box is on before its first walk, so that a change before the first
    // tick brings that tick at once; tried once until the row is disarmed.
    void Vorbereiten(std::size_t zeile, const std::function<Änderungsorte()>& orte);
    // A pass of the row did not run (a warning stopped the cycle, its box): it walks at its
    // next run. That run waits for the stage or a source, not for the answer: a warning
    // closed without an answer that silences it comes back at the next tick, and that
    // tick must not come at once.
    void Unvollständig(std::size_t zeile) { zeilen_.at(zeile).gelaufen = false; }
    // The row's box is off: its sources go, and it walks when they are armed again.
    void Entwaffnen(std::size_t zeile);
    // Around a tick's rows: one look at every armed source first, which finds the rows
    // whose sources fired and spares every row a look of its own. What fires during the
    // tick shows to the next look.
    void TickBeginnt();
    void TickEndet() { tickBlick_ = false; }
    // Whether a row has fired and not walked since: one look at all armed sources, and at
    // every kBlickeJeFrage-th call an ask of each.
    bool Gefeuert();
    // The sources armed now, over all rows.
    std::size_t Anzahl() const;
    // Whether the row took an imprint as its last walk began, and whether its keys hold it
    // still: what its safety walk costs, or is spared.
    bool HatAbdruck(std::size_t zeile) const { return zeilen_.at(zeile).abdruck.has_value(); }
    bool AbdruckGleich(std::size_t zeile);

private:
    struct Zeile {
        std::vector<ChangeSource> quellen;
        std::vector<int> tiefen;               // by source: its imprint's depth, or kOhneAbdruck
        std::optional<std::uint64_t> abdruck;  // of all its sources, as its last walk began
        bool scharf = false;
        bool gefeuert = false;
        bool gelaufen = false;  // walked since it was armed
        bool versucht = false;  // armed, or tried, ahead of its first walk
        std::int64_t zuletzt = 0;
        std::int64_t gefragt = 0;  // when each source was last asked, or armed
        bool gesehen = false;      // the tick's first look found one of its sources fired
    };
    bool Fragen(Zeile& z);
    bool Nachsehen(Zeile& z, std::int64_t jetzt);
    bool Blick();
    static void Griffe(const Zeile& z, std::vector<std::uintptr_t>& alle);
    // Every armed row's handles in table order, and by row where its handles end in alle.
    void AlleGriffe(std::vector<std::uintptr_t>& alle, std::vector<std::size_t>& bis) const;
    std::optional<std::uint64_t> Abdruck(const Zeile& z);
    bool Schärfen(const Änderungsort& ort, Zeile& z);
    void Unterordner(const std::string& ordner, int tiefe, std::vector<ChangeSource>& quellen);
    void Schärfen(Zeile& z, const std::function<Änderungsorte()>& orte);
    Plattform& p_;
    std::vector<Zeile> zeilen_;
    int blicke_ = 0;
    bool tickBlick_ = false;  // in a tick, after its first look: the rows' marks hold
};

}  // namespace kes

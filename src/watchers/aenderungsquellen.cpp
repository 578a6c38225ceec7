#include "watchers/aenderungsquellen.h"

#include <algorithm>
#include <span>

#include "common/mischen.h"

namespace kes {

namespace {
constexpr long kNichtGefunden = 2;  // ERROR_FILE_NOT_FOUND, as both sources answer it
constexpr long kPfadNichtGefunden = 3;

// The path one step up: "" above a key of the root, empty optional above a drive.
bool Hoch(std::string& pfad, bool ordner) {
    const auto teil = pfad.find_last_of('\\');
    if (teil == std::string::npos) {
        if (ordner || pfad.empty()) return false;
        pfad.clear();
        return true;
    }
    pfad.erase(teil);
    // "C:" is no folder to watch; "C:\" is.
    if (ordner && pfad.size() == 2 && pfad[1] == ':') pfad += '\\';
    return !pfad.empty();
}
}  // namespace

// A place that does not exist yet is watched at the nearest place above it that does, for
// its own names only: what comes into being there fires, and changes that key's imprint.
bool Änderungsquellen::Schärfen(const Änderungsort& ort, Zeile& z) {
    const bool ordner = ort.root == 0;
    std::string pfad = ort.pfad;
    bool unter = ort.unterschlüssel;
    int tiefe = ordner ? kOhneAbdruck : ort.tiefe;
    for (;;) {
        ChangeSource q;
        const long rc =
            ordner ? p_.changes.WatchFolder(pfad, &q) : p_.changes.WatchKey(ort.root, pfad, kKeyRead, unter, &q);
        if (rc == 0) {
            z.quellen.push_back(std::move(q));
            if (ordner && unter) Unterordner(pfad, 1, z.quellen);
            z.tiefen.resize(z.quellen.size(), tiefe);
            return true;
        }
        if ((rc != kNichtGefunden && rc != kPfadNichtGefunden) || !Hoch(pfad, ordner)) return false;
        unter = false;
        tiefe = std::min(tiefe, 0);
    }
}

// One number for what the row's keys hold now; none where one of its sources has none.
std::optional<std::uint64_t> Änderungsquellen::Abdruck(const Zeile& z) {
    if (z.quellen.empty() || std::find(z.tiefen.begin(), z.tiefen.end(), kOhneAbdruck) != z.tiefen.end())
        return std::nullopt;
    std::uint64_t alle = 0;
    for (std::size_t i = 0; i < z.quellen.size(); ++i) {
        const auto a = p_.changes.Imprint(z.quellen[i].Get(), z.tiefen[i]);
        if (!a) return std::nullopt;
        Mischen(alle, *a);
    }
    return alle;
}

// The folders below, each a source of its own: the system's folder sources see their own
// names only. One that cannot be armed (gone meanwhile, or closed to the program) is passed
// over: its parent fires for its coming and going, and its row cannot list it either.
void Änderungsquellen::Unterordner(const std::string& ordner, int tiefe, std::vector<ChangeSource>& quellen) {
    if (tiefe > kOrdnerTiefe) return;
    const std::string vorne = ordner.empty() || ordner.back() == '\\' ? ordner : ordner + "\\";
    std::vector<std::string> namen;
    {
        FindData fd;
        const FileFind h = p_.files.FindFirst(vorne + "*", &fd);
        for (bool weiter = static_cast<bool>(h); weiter; weiter = p_.files.FindNext(h.Get(), &fd))
            if ((fd.attributes & kAttrDirectory) && fd.name != "." && fd.name != "..") namen.push_back(fd.name);
    }
    for (const std::string& name : namen) {
        ChangeSource q;
        if (p_.changes.WatchFolder(vorne + name, &q) != 0) continue;
        quellen.push_back(std::move(q));
        Unterordner(vorne + name, tiefe + 1, quellen);
    }
}

bool Änderungsquellen::Fragen(Zeile& z) {
    // Every source is asked, so that each is armed again before the walk.
    for (const ChangeSource& q : z.quellen)
        if (p_.changes.Fired(q.Get())) z.gefeuert = true;
    z.gefragt = p_.timers.Uhr();
    return z.gefeuert;
}

// At a tick: one look at the row's sources, and the asks only when it saw something or
// they are due.
bool Änderungsquellen::Nachsehen(Zeile& z, std::int64_t jetzt) {
    if (z.gefeuert) return true;
    if (jetzt - z.gefragt >= kFrageMs) return Fragen(z);
    if (tickBlick_) return z.gesehen && Fragen(z);
    std::vector<std::uintptr_t> alle;
    Griffe(z, alle);
    return !alle.empty() && p_.changes.FirstFired(alle) && Fragen(z);
}

void Änderungsquellen::Griffe(const Zeile& z, std::vector<std::uintptr_t>& alle) {
    for (const ChangeSource& q : z.quellen) alle.push_back(q.Get());
}

// One look at every armed row: one that fired and has not walked, or one wait over all
// their sources.
bool Änderungsquellen::Blick() {
    if (std::any_of(zeilen_.begin(), zeilen_.end(), [](const Zeile& z) { return z.scharf && z.gefeuert; })) return true;
    std::vector<std::uintptr_t> alle;
    std::vector<std::size_t> bis;
    AlleGriffe(alle, bis);
    return !alle.empty() && p_.changes.FirstFired(alle);
}

void Änderungsquellen::AlleGriffe(std::vector<std::uintptr_t>& alle, std::vector<std::size_t>& bis) const {
    bis.reserve(zeilen_.size());
    for (const Zeile& z : zeilen_) {
        if (z.scharf) Griffe(z, alle);
        bis.push_back(alle.size());
    }
}

bool Änderungsquellen::AbdruckGleich(std::size_t zeile) {
    const Zeile& z = zeilen_.at(zeile);
    return z.abdruck && Abdruck(z) == z.abdruck;
}

bool Änderungsquellen::MussLaufen(std::size_t zeile, const std::function<Änderungsorte()>& orte) {
    Zeile& z = zeilen_.at(zeile);
    const std::int64_t jetzt = p_.timers.Uhr();
    const bool gefeuert = z.scharf && Nachsehen(z, jetzt);
    bool laufen = !z.scharf || !z.gelaufen || gefeuert || jetzt - z.zuletzt >= kSicherheitsLaufMs;
    // Due for its safety walk alone: what it reads is as its last walk found it when its
    // keys hold the imprint taken then, lost notification or not.
    if (laufen && z.scharf && z.gelaufen && !gefeuert && AbdruckGleich(zeile)) {
        z.zuletzt = jetzt;
        laufen = false;
    }
    // Armed anew at every walk: a place watched above itself may have come into being
    // (its notification lost, too), and a deleted key's source cannot be armed again. The
    // imprint after the arming: a change after it fires, or shows in the next imprint.
    if (laufen) {
        Schärfen(z, orte);
        z.abdruck = Abdruck(z);
        z.zuletzt = jetzt;
        z.gelaufen = true;
    }
    z.gefeuert = false;
    return laufen;
}

void Änderungsquellen::Schärfen(Zeile& z, const std::function<Änderungsorte()>& orte) {
    z.quellen.clear();
    z.tiefen.clear();
    z.abdruck.reset();
    z.scharf = true;
    z.gefragt = p_.timers.Uhr();
    for (const Änderungsort& ort : orte()) z.scharf = Schärfen(ort, z) && z.scharf;
    if (!z.scharf) {
        z.quellen.clear();
        z.tiefen.clear();
    }
}

void Änderungsquellen::Vorbereiten(std::size_t zeile, const std::function<Änderungsorte()>& orte) {
    Zeile& z = zeilen_.at(zeile);
    if (z.scharf || z.versucht) return;
    z.versucht = true;
    Schärfen(z, orte);
}

void Änderungsquellen::Entwaffnen(std::size_t zeile) {
    Zeile& z = zeilen_.at(zeile);
    z.quellen.clear();
    z.tiefen.clear();
    z.abdruck.reset();
    z.scharf = z.gefeuert = z.gelaufen = z.versucht = false;
}

std::size_t Änderungsquellen::Anzahl() const {
    std::size_t n = 0;
    for (const Zeile& z : zeilen_) n += z.quellen.size();
    return n;
}

void Änderungsquellen::TickBeginnt() {
    // One look over every armed row's sources; where it finds one that fired, that row is
    // marked and the look goes on behind the row's sources. A change costs the tick a look
    // more, not a look of every row of its own.
    for (Zeile& z : zeilen_) z.gesehen = z.scharf && z.gefeuert;
    std::vector<std::uintptr_t> alle;
    std::vector<std::size_t> bis;
    AlleGriffe(alle, bis);
    for (std::size_t ab = 0; ab < alle.size();) {
        const auto stelle = p_.changes.FirstFired(std::span(alle).subspan(ab));
        if (!stelle) break;
        const std::size_t zeile = std::upper_bound(bis.begin(), bis.end(), ab + *stelle) - bis.begin();
        zeilen_.at(zeile).gesehen = true;
        ab = bis[zeile];
    }
    tickBlick_ = true;
}

bool Änderungsquellen::Gefeuert() {
    // Mostly one look at all sources at once; each is asked on its own only at every
    // kBlickeJeFrage-th time, since a key deleted under its source shows only to that ask.
    if (++blicke_ % kBlickeJeFrage != 0) return Blick();
    bool irgendeine = false;
    for (Zeile& z : zeilen_)
        if (z.scharf && Fragen(z)) irgendeine = true;
    return irgendeine;
}

}  // namespace kes

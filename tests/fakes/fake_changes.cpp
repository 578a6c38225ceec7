#include "fake_changes.h"

namespace kes::fake {

long FakeChanges::Anlegen(std::function<std::optional<std::uint64_t>()> stand,
                          std::function<std::optional<std::uint64_t>(int)> abdruck, long fehlt, ChangeSource* out) {
    if (verweigert) return verweigert;
    if (!stand) return fehlt;
    const auto jetzt = stand();
    const std::uintptr_t id = nächste_++;
    quellen_[id] = Quelle{std::move(stand), std::move(abdruck), jetzt.value_or(0), !jetzt};
    *out = ChangeSource(*this, id);
    return 0;
}

long FakeChanges::WatchKey(RegHandle root, const std::string& subkey, std::uint32_t sam, bool subtree,
                           ChangeSource* out) {
    return Anlegen(registry_.Änderungen(root, subkey, sam, subtree), registry_.Abdruck(root, subkey, sam),
                   kErrorFileNotFound, out);
}

long FakeChanges::WatchFolder(const std::string& path, ChangeSource* out) {
    return Anlegen(files_.Änderungen(path), {}, 2, out);  // ERROR_FILE_NOT_FOUND
}

bool FakeChanges::Fired(std::uintptr_t source) {
    ++gefragt_;
    Quelle& q = quellen_.at(source);
    if (q.kaputt) return true;
    const auto jetzt = q.stand();
    // A deleted key cannot be armed again: from now on it always fires, as on Windows.
    if (!jetzt) return q.kaputt = true;
    if (*jetzt == q.zuletzt) return false;
    q.zuletzt = *jetzt;
    return true;
}

void FakeChanges::Verlieren() {
    for (auto& [id, q] : quellen_)
        if (const auto jetzt = q.stand()) q.zuletzt = *jetzt;
}

// As Wine: a key deleted under its source shows only to Fired.
std::optional<std::size_t> FakeChanges::FirstFired(std::span<const std::uintptr_t> sources) {
    ++geschaut_;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const Quelle& q = quellen_.at(sources[i]);
        if (q.kaputt) return i;
        const auto jetzt = q.stand();
        if (jetzt && *jetzt != q.zuletzt) return i;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> FakeChanges::Imprint(std::uintptr_t source, int depth) {
    const Quelle& q = quellen_.at(source);
    if (q.kaputt || !q.abdruck) return std::nullopt;
    return q.abdruck(depth);
}

long FakeChanges::CloseSource(std::uintptr_t source) {
    return quellen_.erase(source) ? 0 : kErrorInvalidHandle;
}

}  // namespace kes::fake

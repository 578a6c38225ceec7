// Change sources on the fake registry and file system: a source fires when anything was
// changed through the fakes at its place since it was last asked, the tests' own set-up
// included. verweigert makes every arming fail, as a place without a source.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "fake_files.h"
#include "fake_registry.h"
#include "platform/seam/change_api.h"

namespace kes::fake {

class FakeChanges : public ChangeApi {
public:
    FakeChanges(FakeRegistry& registry, FakeFiles& files) : registry_(registry), files_(files) {}

    long WatchKey(RegHandle root, const std::string& subkey, std::uint32_t sam, bool subtree,
                  ChangeSource* out) override;
    long WatchFolder(const std::string& path, ChangeSource* out) override;
    bool Fired(std::uintptr_t source) override;
    std::optional<std::size_t> FirstFired(std::span<const std::uintptr_t> sources) override;
    std::optional<std::uint64_t> Imprint(std::uintptr_t source, int depth) override;

    long verweigert = 0;  // the error every arming answers; 0 arms
    // What changed so far fires nowhere: every notification pending now is lost.
    void Verlieren();
    int OpenSources() const { return static_cast<int>(quellen_.size()); }
    int Asked() const { return gefragt_; }
    int Looked() const { return geschaut_; }

protected:
    long CloseSource(std::uintptr_t source) override;

private:
    struct Quelle {
        std::function<std::optional<std::uint64_t>()> stand;
        std::function<std::optional<std::uint64_t>(int)> abdruck;  // a key's; a folder has none
        std::uint64_t zuletzt = 0;
        bool kaputt = false;
    };
    long Anlegen(std::function<std::optional<std::uint64_t>()> stand,
                 std::function<std::optional<std::uint64_t>(int)> abdruck, long fehlt, ChangeSource* out);
    FakeRegistry& registry_;
    FakeFiles& files_;
    std::map<std::uintptr_t, Quelle> quellen_;
    std::uintptr_t nächste_ = 1;
    int gefragt_ = 0;
    int geschaut_ = 0;
};

}  // namespace kes::fake

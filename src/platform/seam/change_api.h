// Change sources: a registry key or a folder that says whether anything in it changed since
// it was last asked, so that a place nobody touched need not be walked again. A source is
// armed once and asked at every tick; asking re-arms it before it answers, so a change that
// comes while the caller walks fires the next time. A place whose source cannot be armed
// has none, and its caller walks it at every tick.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/seam/registry_api.h"
#include "platform/seam/seam_handle.h"

namespace kes {

class ChangeApi;
// An armed change source, disarmed and closed when its owner goes.
using ChangeSource = SeamHandle<ChangeApi>;

class ChangeApi {
public:
    virtual ~ChangeApi() = default;

    // RegNotifyChangeKeyValue, asynchronous with an event, for subkeys coming or going and
    // values set or deleted; with subtree, anywhere below the key too. The key is opened in
    // the view that sam names. 0 with *out armed, else the Win32 error (2 for a missing key)
    // and *out unchanged.
    virtual long WatchKey(RegHandle root, const std::string& subkey, std::uint32_t sam, bool subtree,
                          ChangeSource* out) = 0;
    // FindFirstChangeNotificationA for file and folder names, sizes and last-write times in
    // the folder itself (the folders below are not watched: Wine does not report them). 0
    // with *out armed, else the Win32 error.
    virtual long WatchFolder(const std::string& path, ChangeSource* out) = 0;
    // Whether the source fired since it was armed or last asked. A source that cannot be
    // armed again (its key was deleted) answers true from then on.
    virtual bool Fired(std::uintptr_t source) = 0;
    // The position of the first of the sources that fired, none when none did: one look for
    // all of them, without taking anything back (what it sees, Fired still answers). For a
    // caller that looks often between ticks, and for finding which of many fired by
    // looking again behind the one it found. A source whose key was deleted need not show
    // here (Wine signals nothing then); Fired sees it.
    virtual std::optional<std::size_t> FirstFired(std::span<const std::uintptr_t> sources) = 0;
    // What a key source's key holds down to depth levels below it, folded into one number:
    // the last-write times and counts of the key and of its subkeys to that depth, and their
    // names. A value set or deleted, or a key made or deleted, anywhere there changes it.
    // None for a folder's source, a key gone or not readable, and a key written so lately
    // that a change in the same step of the system's clock could leave the number as it is.
    virtual std::optional<std::uint64_t> Imprint(std::uintptr_t source, int depth) = 0;

protected:
    virtual long CloseSource(std::uintptr_t source) = 0;

private:
    friend ChangeSource;
    long CloseOwned(std::uintptr_t source) { return CloseSource(source); }
};

}  // namespace kes

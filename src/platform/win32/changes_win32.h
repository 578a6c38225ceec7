// The change sources on the Win32 API: a registry key with its event, or a folder's change
// notification handle.
#pragma once

#include <windows.h>

#include "platform/seam/change_api.h"

namespace kes::win32 {

class Win32Changes : public ChangeApi {
public:
    long WatchKey(RegHandle root, const std::string& subkey, std::uint32_t sam, bool subtree,
                  ChangeSource* out) override;
    long WatchFolder(const std::string& path, ChangeSource* out) override;
    bool Fired(std::uintptr_t source) override;
    std::optional<std::size_t> FirstFired(std::span<const std::uintptr_t> sources) override;
    std::optional<std::uint64_t> Imprint(std::uintptr_t source, int depth) override;

protected:
    long CloseSource(std::uintptr_t source) override;

private:
    struct Quelle {
        HKEY key = nullptr;         // a registry source: its key, and its event below
        HANDLE ereignis = nullptr;  // the key's event, or the folder's notification handle
        bool subtree = false;
        REGSAM sicht = 0;     // the view the key was opened in, for its subkeys
        bool lesbar = false;  // opened for reading too, so that it has an imprint
        bool kaputt = false;  // could not be armed again: fires at every ask
    };
    static long Schärfen(Quelle& q);
};

}  // namespace kes::win32

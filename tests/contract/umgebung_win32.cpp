// The contract suite's environment on the real API: a folder below %TEMP% and a key below
// HKEY_CURRENT_USER of the (throwaway) Wine prefix the suite runs in.
#include <windows.h>

#include <map>
#include <memory>

#include "platform/win32/echte_plattform.h"
#include "platform/win32/files_win32.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/unique_handle.h"
#include "umgebung.h"

namespace kes::vertrag {

namespace {
void OrdnerLeeren(const std::string& ordner) {
    WIN32_FIND_DATAA w;
    const HANDLE h = ::FindFirstFileA((ordner + "\\*").c_str(), &w);
    if (h == INVALID_HANDLE_VALUE) return;
    do {
        const std::string name = w.cFileName;
        if (name == "." || name == "..") continue;
        const std::string pfad = ordner + "\\" + name;
        ::SetFileAttributesA(pfad.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (w.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            OrdnerLeeren(pfad);
            ::RemoveDirectoryA(pfad.c_str());
        } else {
            ::DeleteFileA(pfad.c_str());
        }
    } while (::FindNextFileA(h, &w));
    ::FindClose(h);
}

class Win32Umgebung : public Umgebung {
public:
    Win32Umgebung() {
        char temp[MAX_PATH] = {};
        ::GetTempPathA(sizeof temp, temp);
        ordner_ = std::string(temp) + "kestrella-vertrag";
        ::CreateDirectoryA(ordner_.c_str(), nullptr);
    }
    RegistryApi& Registry() override { return registry_; }
    FileApi& Files() override { return files_; }
    std::string Ordner() override { return ordner_; }
    void Sperren(const std::string& pfad) override {
        sperren_[pfad].Reset(::CreateFileA(pfad.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    void Freigeben(const std::string& pfad) override { sperren_.erase(pfad); }
    void Neu() override {
        sperren_.clear();
        OrdnerLeeren(ordner_);
    }

    Plattform& Alles() override {
        if (!alles_) alles_ = std::make_unique<win32::EchtePlattform>();
        return alles_->plattform;
    }
    // The test DLLs lie beside the suite's program.
    std::string PeDatei(const std::string& name) override {
        char pfad[MAX_PATH] = {};
        const DWORD n = ::GetModuleFileNameA(nullptr, pfad, sizeof pfad);
        std::string ordner(pfad, n);
        return ordner.substr(0, ordner.find_last_of('\\') + 1) + name;
    }

private:
    std::unique_ptr<win32::EchtePlattform> alles_;
    win32::Win32Registry registry_;
    win32::Win32Files files_;
    std::string ordner_;
    std::map<std::string, win32::UniqueFile> sperren_;
};
}  // namespace

Umgebung& DieUmgebung() {
    static Win32Umgebung u;
    return u;
}

}  // namespace kes::vertrag

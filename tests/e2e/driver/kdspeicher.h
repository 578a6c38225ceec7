// Memory in another process, for the messages of common controls that carry a pointer:
// the system copies no structure across processes for them, so structure and buffer must
// lie in the control's process. kdriver is 64-bit like the program, so the layouts agree.
#pragma once

#include <windows.h>

namespace kdspeicher {

// Freed again at the end of the scope.
class FremderSpeicher {
public:
    FremderSpeicher(DWORD pid, SIZE_T größe) {
        prozess_ = OpenProcess(PROCESS_CREATE_THREAD | PROCESS_QUERY_INFORMATION | PROCESS_VM_OPERATION |
                                   PROCESS_VM_READ | PROCESS_VM_WRITE,
                               FALSE, pid);
        if (prozess_) adresse_ = VirtualAllocEx(prozess_, nullptr, größe, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    ~FremderSpeicher() {
        if (adresse_) VirtualFreeEx(prozess_, adresse_, 0, MEM_RELEASE);
        if (prozess_) CloseHandle(prozess_);
    }
    FremderSpeicher(const FremderSpeicher&) = delete;
    FremderSpeicher& operator=(const FremderSpeicher&) = delete;

    bool Gut() const { return adresse_ != nullptr; }
    HANDLE Prozess() const { return prozess_; }
    char* Adresse(SIZE_T versatz = 0) const { return static_cast<char*>(adresse_) + versatz; }
    bool Schreiben(SIZE_T versatz, const void* daten, SIZE_T n) const {
        return WriteProcessMemory(prozess_, Adresse(versatz), daten, n, nullptr);
    }
    bool Lesen(SIZE_T versatz, void* daten, SIZE_T n) const {
        return ReadProcessMemory(prozess_, Adresse(versatz), daten, n, nullptr);
    }

private:
    HANDLE prozess_ = nullptr;
    void* adresse_ = nullptr;
};

}  // namespace kdspeicher

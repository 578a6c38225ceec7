#include "platform/win32/processes_win32.h"

#include <windows.h>
// The tool-help and process-status declarations need <windows.h> first.
#include <psapi.h>
#include <tlhelp32.h>

#include <cstring>

namespace kes::win32 {

namespace {
HANDLE Handle(ProzessHandle h) {
    return reinterpret_cast<HANDLE>(h);
}

// The records are sized for this build: 296 and 548 bytes in a 32-bit one, more in a
// 64-bit one, and the calls refuse a record announced smaller than their own.
void Übernehmen(const PROCESSENTRY32& pe, ProzessDaten* out) {
    std::memcpy(out->szExeFile.data(), pe.szExeFile, out->szExeFile.size());
    out->th32ProcessID = pe.th32ProcessID;
    out->th32ParentProcessID = pe.th32ParentProcessID;
    out->cntThreads = pe.cntThreads;
}

void Übernehmen(const MODULEENTRY32& me, ModulDaten* out) {
    std::memcpy(out->szModule.data(), me.szModule, out->szModule.size());
    std::memcpy(out->szExePath.data(), me.szExePath, out->szExePath.size());
    out->hModule = reinterpret_cast<std::uintptr_t>(me.hModule);
}
}  // namespace

ProzessEigner Win32Processes::CreateSnapshot(std::uint32_t flags, std::uint32_t processId) {
    const HANDLE h = ::CreateToolhelp32Snapshot(flags, processId);
    return ProzessEigner(*this, h == INVALID_HANDLE_VALUE ? kKeinHandle : reinterpret_cast<ProzessHandle>(h));
}

bool Win32Processes::ProcessFirst(ProzessHandle snapshot, ProzessDaten* out) {
    PROCESSENTRY32 pe{};
    pe.dwSize = sizeof pe;
    if (snapshot == kKeinHandle || !::Process32First(Handle(snapshot), &pe)) return false;
    Übernehmen(pe, out);
    return true;
}

bool Win32Processes::ProcessNext(ProzessHandle snapshot, ProzessDaten* out) {
    PROCESSENTRY32 pe{};
    pe.dwSize = sizeof pe;
    if (snapshot == kKeinHandle || !::Process32Next(Handle(snapshot), &pe)) return false;
    Übernehmen(pe, out);
    return true;
}

bool Win32Processes::ModuleFirst(ProzessHandle snapshot, ModulDaten* out) {
    MODULEENTRY32 me{};
    me.dwSize = sizeof me;
    if (snapshot == kKeinHandle || !::Module32First(Handle(snapshot), &me)) return false;
    Übernehmen(me, out);
    return true;
}

bool Win32Processes::ModuleNext(ProzessHandle snapshot, ModulDaten* out) {
    MODULEENTRY32 me{};
    me.dwSize = sizeof me;
    if (snapshot == kKeinHandle || !::Module32Next(Handle(snapshot), &me)) return false;
    Übernehmen(me, out);
    return true;
}

void Win32Processes::CloseHandle(ProzessHandle h) {
    if (h != kKeinHandle) ::CloseHandle(Handle(h));
}

ProzessEigner Win32Processes::OpenProcess(std::uint32_t access, std::uint32_t processId) {
    return ProzessEigner(*this, reinterpret_cast<ProzessHandle>(::OpenProcess(access, FALSE, processId)));
}

std::uint32_t Win32Processes::ModuleFileName(ProzessHandle process, std::uintptr_t module, char* buf,
                                             std::uint32_t size) {
    if (process == kKeinHandle || size == 0) return 0;
    return ::GetModuleFileNameExA(Handle(process), reinterpret_cast<HMODULE>(module), buf, size);
}

std::uint64_t Win32Processes::CreationTime(ProzessHandle process) {
    FILETIME erstellt{}, ende{}, kern{}, nutzer{};
    if (process == kKeinHandle || !::GetProcessTimes(Handle(process), &erstellt, &ende, &kern, &nutzer)) return 0;
    return (static_cast<std::uint64_t>(erstellt.dwHighDateTime) << 32) | erstellt.dwLowDateTime;
}

bool Win32Processes::TerminateProcess(ProzessHandle process, std::uint32_t exitCode) {
    return process != kKeinHandle && ::TerminateProcess(Handle(process), exitCode) != 0;
}

std::uint32_t Win32Processes::SystemDirectory(char* buf, std::uint32_t size) {
    return ::GetSystemDirectoryA(buf, size);
}

std::uint32_t Win32Processes::ShortPathName(const std::string& path, char* buf, std::uint32_t size) {
    return ::GetShortPathNameA(path.c_str(), buf, size);
}

}  // namespace kes::win32

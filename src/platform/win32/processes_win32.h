// The process seam on the tool-help and process-status calls of the Win32 API.
#pragma once

#include "platform/seam/process_api.h"

namespace kes::win32 {

class Win32Processes : public ProcessApi {
public:
    ProzessEigner CreateSnapshot(std::uint32_t flags, std::uint32_t processId) override;
    bool ProcessFirst(ProzessHandle snapshot, ProzessDaten* out) override;
    bool ProcessNext(ProzessHandle snapshot, ProzessDaten* out) override;
    bool ModuleFirst(ProzessHandle snapshot, ModulDaten* out) override;
    bool ModuleNext(ProzessHandle snapshot, ModulDaten* out) override;
    ProzessEigner OpenProcess(std::uint32_t access, std::uint32_t processId) override;
    std::uint32_t ModuleFileName(ProzessHandle process, std::uintptr_t module, char* buf, std::uint32_t size) override;
    std::uint64_t CreationTime(ProzessHandle process) override;
    bool TerminateProcess(ProzessHandle process, std::uint32_t exitCode) override;
    std::uint32_t SystemDirectory(char* buf, std::uint32_t size) override;
    std::uint32_t ShortPathName(const std::string& path, char* buf, std::uint32_t size) override;

protected:
    void CloseHandle(ProzessHandle h) override;
};

}  // namespace kes::win32

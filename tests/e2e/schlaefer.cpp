// schlaefer: a program of the tests' own that does nothing but stay running, so that the
// process watcher has a new process to find. It has no version block, so no maker.
// Started with "/kurz" it ends at once: a process the watcher can only catch while it
// starts or ends. "/starte N" starts N such copies of itself, each once the one before has
// ended, and ends with 0 when all of them did.
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR cmdLine, int) {
    if (!cmdLine) cmdLine = const_cast<char*>("");
    if (std::strstr(cmdLine, "/kurz")) return 0;
    if (const char* starte = std::strstr(cmdLine, "/starte ")) {
        const int n = std::atoi(starte + 8);
        char self[MAX_PATH] = {};
        GetModuleFileNameA(nullptr, self, MAX_PATH);
        const std::string line = std::string("\"") + self + "\" /kurz";
        for (int i = 0; i < n; ++i) {
            std::string cmd = line;
            STARTUPINFOA si = {};
            si.cb = sizeof si;
            PROCESS_INFORMATION pi = {};
            if (!CreateProcessA(nullptr, cmd.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &si, &pi)) return 1;
            DWORD code = 1;
            WaitForSingleObject(pi.hProcess, INFINITE);
            GetExitCodeProcess(pi.hProcess, &code);
            CloseHandle(pi.hThread);
            CloseHandle(pi.hProcess);
            if (code != 0) return 2;
        }
        return 0;
    }
    for (;;) Sleep(1000);
}

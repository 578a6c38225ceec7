// The shell, dialogue, sound, timer, system and dial-up seams on the real Win32 API.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>

#include "platform/seam/shell_api.h"
#include "platform/seam/system_api.h"
#include "platform/seam/timer_api.h"
#include "platform/win32/unique_handle.h"

namespace kes::win32 {

class Win32Shell : public ShellApi {
public:
    bool RunCommand(const std::string& commandLine, int show) override;
    long OpenWithShell(const std::string& verb, const std::string& file, const std::string& params, int show) override;
    std::optional<std::string> SpecialFolder(int csidl) override;
};

class Win32Dialogs : public DialogApi {
public:
    int ShowMessage(const std::string& text, const std::string& title, int flags) override;
};

class Win32Sound : public SoundApi {
public:
    bool PlayResource(const std::string& name, unsigned flags) override;
};

// Window timers on a message-only window of their own; ticks arrive through the thread's
// message loop like any other window message.
class Win32Timers : public TimerApi {
public:
    Win32Timers();
    ~Win32Timers() override;
    void SetHandler(std::function<void(int id)> handler) override { handler_ = std::move(handler); }
    void Set(int id, int intervalMs) override;
    void Kill(int id) override;
    void PumpMessages() override;
    std::int64_t Uhr() override { return static_cast<std::int64_t>(::GetTickCount64()); }
    // Runs after every pumped message, so the views can follow what the logic changed.
    std::function<void()> nachNachricht;

private:
    static LRESULT CALLBACK Proc(HWND, UINT, WPARAM, LPARAM);
    UniqueWindow fenster_;
    std::function<void(int)> handler_;
    std::uint64_t zuletzt_ = 0;  // GetTickCount64 at the end of the last look
};

class Win32System : public SystemApi {
public:
    Win32System();
    std::string ExecutablePath() override;
    std::string CommandLine() override;
    std::string ShortDate() override;
    std::string ShortTime() override;
    Uhrzeit Jetzt() override;
    Zahlenformat NumberFormat() override;
    bool PreviousInstance() override { return vorherige_; }
    void Sleep(int ms) override { ::Sleep(static_cast<DWORD>(ms)); }
    int ScreenWidth() override { return ::GetSystemMetrics(SM_CXSCREEN); }
    int ScreenHeight() override { return ::GetSystemMetrics(SM_CYSCREEN); }
    std::string Wow64SystemDirectory() override;

private:
    // Every instance holds the mutex for its whole run, silent ones included, so a later
    // ordinary start sees them.
    UniqueKernel instanz_;
    bool vorherige_ = false;
};

class Win32Dialup : public DialupApi {
public:
    int ConnectionCount() override;
    long DeleteEntry(const std::string& name) override;
    long EnumEntries(std::vector<std::string>* names) override;
    long EntryPropertiesSize(const std::string& name, std::uint32_t* size) override;
    long EntryProperties(const std::string& name, std::uint32_t size, DfuEintrag* out) override;
    long EditEntry(std::uintptr_t parent, const std::string& name) override;
};

}  // namespace kes::win32

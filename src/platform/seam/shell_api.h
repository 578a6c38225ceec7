// What the program hands to the shell and to the user: command lines, documents and URLs,
// special folders, message boxes and the two stored sounds.
#pragma once

#include <optional>
#include <string>

namespace kes {

inline constexpr int kSwHide = 0;
inline constexpr int kSwShowNormal = 1;

inline constexpr int kMbOk = 0;
inline constexpr int kMbYesNo = 4;
inline constexpr int kMbIconQuestion = 32;
inline constexpr int kMbIconExclamation = 48;
inline constexpr int kMbIconInformation = 64;
inline constexpr int kMbSystemModal = 4096;
inline constexpr int kIdOk = 1;
inline constexpr int kIdYes = 6;
inline constexpr int kIdNo = 7;

inline constexpr int kCsidlFavorites = 6;
inline constexpr int kCsidlStartup = 7;
inline constexpr int kCsidlCommonStartup = 24;
inline constexpr int kCsidlWindows = 36;
inline constexpr int kCsidlSystem = 37;

class ShellApi {
public:
    virtual ~ShellApi() = default;

    // Starts a command line with the given window style and does not wait. False when the
    // program could not be started.
    virtual bool RunCommand(const std::string& commandLine, int show) = 0;
    // ShellExecuteA; the result is the platform's (above 32 means success).
    virtual long OpenWithShell(const std::string& verb, const std::string& file, const std::string& params,
                               int show) = 0;
    // SHGetSpecialFolderLocation + SHGetPathFromIDListA; nullopt when the shell refuses.
    virtual std::optional<std::string> SpecialFolder(int csidl) = 0;
};

class DialogApi {
public:
    virtual ~DialogApi() = default;
    // MessageBoxA without owner; an empty title means the program's default title.
    // Returns the button as the platform numbers it (OK 1, Yes 6, No 7).
    virtual int ShowMessage(const std::string& text, const std::string& title, int flags) = 0;
};

class SoundApi {
public:
    virtual ~SoundApi() = default;
    // Plays the program's resource of kind "WAVE" with that name; flags are sndPlaySound's,
    // combined with play-from-memory. False when there is no such resource.
    virtual bool PlayResource(const std::string& name, unsigned flags) = 0;
};

}  // namespace kes

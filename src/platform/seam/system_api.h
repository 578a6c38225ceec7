// Facts about the process and the machine: who we are, when we started, how the user's
// locale writes dates and numbers, whether we run twice, and how many dial-up links are up.
#pragma once

#include <string>

namespace kes {

struct Zahlenformat {
    char decimal = ',';
    char thousands = '.';
};

class SystemApi {
public:
    virtual ~SystemApi() = default;
    // Full path of the running executable.
    virtual std::string ExecutablePath() = 0;
    // The command line's arguments, without the program name.
    virtual std::string CommandLine() = 0;
    // Today's date and the current time in the user's default short forms.
    virtual std::string ShortDate() = 0;
    virtual std::string ShortTime() = 0;
    virtual Zahlenformat NumberFormat() = 0;
    // True when another process of this program started before this one.
    virtual bool PreviousInstance() = 0;
    virtual void Sleep(int ms) = 0;
    virtual int ScreenWidth() = 0;
    virtual int ScreenHeight() = 0;
};

class DialupApi {
public:
    virtual ~DialupApi() = default;
    // RasEnumConnectionsA into 256 records of 412 bytes: the count it leaves, whatever it returned.
    virtual int ConnectionCount() = 0;
    // RasDeleteEntryA without a phone book: 0 on success, else the platform's error.
    virtual long DeleteEntry(const std::string& name) = 0;
};

}  // namespace kes

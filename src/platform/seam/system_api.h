// Facts about the process and the machine: who we are, when we started, how the user's
// locale writes dates and numbers, whether we run twice, and how many dial-up links are up.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kes {

struct Zahlenformat {
    char decimal = ',';
    char thousands = '.';
};

// The local time of the clock, with the local time's distance from UTC.
struct Uhrzeit {
    int jahr = 0, monat = 0, tag = 0, stunde = 0, minute = 0, sekunde = 0, millisekunde = 0;
    int utcAbstandMinuten = 0;  // east of UTC positive: +60 in Berlin's winter
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
    virtual Uhrzeit Jetzt() = 0;
    virtual Zahlenformat NumberFormat() = 0;
    // True when another process of this program started before this one.
    virtual bool PreviousInstance() = 0;
    virtual void Sleep(int ms) = 0;
    virtual int ScreenWidth() = 0;
    virtual int ScreenHeight() = 0;
    // The folder where 32-bit programs of a 64-bit Windows keep their system files, as
    // GetSystemWow64DirectoryA names it, without a trailing "\"; empty where there is none.
    virtual std::string Wow64SystemDirectory() = 0;
};

// The fields of a phone-book entry (RASENTRY) that the program reads.
struct DfuEintrag {
    std::uint32_t countryCode = 0;  // dwCountryCode
    std::string areaCode;           // szAreaCode, as the fixed field holds it
    std::string localPhoneNumber;   // szLocalPhoneNumber
};

inline constexpr long kRasPufferZuKlein = 603;  // ERROR_BUFFER_TOO_SMALL

class DialupApi {
public:
    virtual ~DialupApi() = default;
    // RasEnumConnectionsA into 256 records of 412 bytes: the count it leaves, whatever it returned.
    virtual int ConnectionCount() = 0;
    // RasDeleteEntryA without a phone book: 0 on success, else the platform's error.
    virtual long DeleteEntry(const std::string& name) = 0;
    // RasEnumEntriesA of the default phone book into a buffer of 256 records: 0 and the
    // entry names (each name field up to its NUL), else the platform's error and no names.
    virtual long EnumEntries(std::vector<std::string>* names) = 0;
    // RasGetEntryPropertiesA without a buffer: 603 and the size the entry needs in *size
    // when there is such an entry, else what the platform returned.
    virtual long EntryPropertiesSize(const std::string& name, std::uint32_t* size) = 0;
    // RasGetEntryPropertiesA into a buffer of that size: 0 and the fields, else the error.
    virtual long EntryProperties(const std::string& name, std::uint32_t size, DfuEintrag* out) = 0;
    // RasEditPhonebookEntryA without a phone book, over the given parent window (0: none).
    virtual long EditEntry(std::uintptr_t parent, const std::string& name) = 0;
};

}  // namespace kes

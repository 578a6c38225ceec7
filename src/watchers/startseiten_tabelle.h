// The nineteen browser values that decide start and search pages: root, key and value name
// of each, in the order of the saved start pages (row n is slot n). The start-page watcher
// lists them, the assistant reads them once to make the first baseline. On a Windows with
// two registry views the machine's rows come again as the 32-bit browser reads them, below
// Wow6432Node, in rows 20 to 30 and slots 21 to 31: slot 20 was always written empty, so a
// settings file of before knows no slot of theirs.
#pragma once

#include <array>
#include <cstddef>

#include "common/werte.h"

namespace kes {

struct StartSeitenZeile {
    const char* Wurzel;  // root name as the list shows it
    int Hive;            // hive code of HiveOCX: 1 current user, 2 local machine
    const char* Schlüssel;
    const char* Wert;  // "" names the key's default value, as the assistant's one NUL does
};

namespace startseiten_detail {
inline constexpr const char* kMain = "Software\\Microsoft\\Internet Explorer\\Main";
inline constexpr const char* kSearch = "Software\\Microsoft\\Internet Explorer\\Search";
inline constexpr const char* kHkcu = "HKEY_CURRENT_USER";
inline constexpr const char* kHklm = "HKEY_LOCAL_MACHINE";
}  // namespace startseiten_detail

// Index 0 is row 1.
inline constexpr std::array<StartSeitenZeile, 19> kStartSeitenTabelle = [] {
    using namespace startseiten_detail;
    return std::array<StartSeitenZeile, 19>{{
        {kHkcu, 1, kMain, "Start Page"},
        {kHkcu, 1, kMain, "Search Page"},
        {kHkcu, 1, kMain, "Local Page"},
        {kHklm, 2, kMain, "Start Page"},
        {kHklm, 2, kMain, "Search Page"},
        {kHklm, 2, kMain, "Local Page"},
        {kHklm, 2, kMain, "Default_Page_URL"},
        {kHklm, 2, kMain, "Default_Search_URL"},
        {kHklm, 2, kMain, "Search Bar"},
        {kHkcu, 1, kMain, "Default_Search_URL"},
        {kHkcu, 1, kMain, "Search Bar"},
        {kHkcu, 1, kSearch, "CustomizeSearch"},
        {kHkcu, 1, kSearch, "SearchAssistant"},
        {kHklm, 2, kSearch, "CustomizeSearch"},
        {kHklm, 2, kSearch, "SearchAssistant"},
        // Named after the search host of the browser's maker: the browser is Internet
        // Explorer, so it is Microsoft's own search.
        {kHklm, 2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\SafeSites", "search.msn.com"},
        {kHklm, 2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\URL\\Prefixes", "www"},
        {kHklm, 2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix", ""},
        {kHkcu, 1, kMain, "Default_Page_URL"},
    }};
}();

// The machine's rows of the table in the same order, by the path the program's own view
// reaches the 32-bit browser's values.
inline constexpr std::array<StartSeitenZeile, 11> kStartSeitenTabelle32 = [] {
    using namespace startseiten_detail;
    constexpr const char* kMain32 = "Software\\Wow6432Node\\Microsoft\\Internet Explorer\\Main";
    constexpr const char* kSearch32 = "Software\\Wow6432Node\\Microsoft\\Internet Explorer\\Search";
    return std::array<StartSeitenZeile, 11>{{
        {kHklm, 2, kMain32, "Start Page"},
        {kHklm, 2, kMain32, "Search Page"},
        {kHklm, 2, kMain32, "Local Page"},
        {kHklm, 2, kMain32, "Default_Page_URL"},
        {kHklm, 2, kMain32, "Default_Search_URL"},
        {kHklm, 2, kMain32, "Search Bar"},
        {kHklm, 2, kSearch32, "CustomizeSearch"},
        {kHklm, 2, kSearch32, "SearchAssistant"},
        {kHklm, 2, "SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\SafeSites",
         "search.msn.com"},
        {kHklm, 2, "SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\URL\\Prefixes", "www"},
        {kHklm, 2, "SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix", ""},
    }};
}();

// Rows are counted from 1; the 32-bit rows follow the nineteen.
inline constexpr std::size_t kStartSeitenZeilen = kStartSeitenTabelle.size() + kStartSeitenTabelle32.size();
inline constexpr std::size_t kErsterSlot32 = 21;
static_assert(kErsterSlot32 + kStartSeitenTabelle32.size() == std::tuple_size_v<decltype(Prozesswerte::StartSeiten)>);

inline const StartSeitenZeile& StartSeitenZeileNr(std::size_t n) {
    return n <= kStartSeitenTabelle.size() ? kStartSeitenTabelle[n - 1]
                                           : kStartSeitenTabelle32[n - kStartSeitenTabelle.size() - 1];
}

// The saved start page of row n.
inline constexpr std::size_t SlotVonZeile(std::size_t n) {
    return n <= kStartSeitenTabelle.size() ? n : n - kStartSeitenTabelle.size() - 1 + kErsterSlot32;
}

}  // namespace kes

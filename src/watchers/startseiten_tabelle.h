// The nineteen browser values that decide start and search pages: root, key and value name
// of each, in the order of the saved start pages (row n is slot n). The start-page watcher
// lists them, the assistant reads them once to make the first baseline.
#pragma once

#include <array>

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

}  // namespace kes

// The block through which kdriver and its helper library kdmenu.dll exchange the items of
// a popup menu. Wine keeps a menu inside the process that made it, so another process
// cannot read it; kdriver loads kdmenu.dll into that process and lets it read the menu
// there. Both sides are 64-bit builds of this one layout.
#pragma once

#include <cstdint>

namespace kdmenu {

constexpr int kMaxEinträge = 64;
constexpr int kTextLänge = 256;

struct Eintrag {
    std::uint32_t id;
    std::uint32_t typ;      // MFT_... flags
    std::uint32_t zustand;  // MFS_... flags, MFS_HILITE for the selected item
    std::int32_t hatUntermenü;
    char text[kTextLänge];
};

struct Block {
    std::uint64_t menü;   // in: the HMENU from MN_GETHMENU
    std::int32_t anzahl;  // out: item count, -1 when the menu is unknown in this process
    std::int32_t reserviert;
    Eintrag einträge[kMaxEinträge];
};

// Name of the function that kdmenu.dll exports; it runs as a thread start routine with a
// Block* in the menu's process and returns 0 on success.
constexpr const char* kLeser = "KdMenuLesen";

}  // namespace kdmenu

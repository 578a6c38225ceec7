// The lengths of the files a folder walk lists, kept while a file's directory entry shows
// the size and last write time it showed at the read: a length read through the file costs
// an open of it, while the entry comes with the walk. A walk of a folder where nothing
// changed then opens no file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/alledateien.h"

namespace kes {

class LängenGedächtnis {
public:
    // The length of the file the walk found at pfad (its folder and name), as
    // FileApi::Length reads it; the length of the last read while the entry is as it was
    // then. A file that could not be measured is not kept: it is tried again at the next walk.
    std::optional<std::int64_t> Länge(Plattform& p, const std::string& pfad, const DateiEintrag& datei);
    // Forgets every file not asked since the last call, so that the memory holds what the
    // last walk listed and no more.
    void Aufräumen();

private:
    struct Eintrag {
        std::uint64_t grösse = 0;
        std::uint64_t geschrieben = 0;
        std::int64_t länge = 0;
        bool gefragt = false;
    };
    std::unordered_map<std::string, Eintrag> einträge_;
};

}  // namespace kes

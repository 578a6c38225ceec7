// The version records of the files a walk looks at, kept while a file's size and last
// write time stay as they were: a version block does not change without a write, and
// reading one costs an open and a read of the file where the stamp costs one directory
// entry.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "platform/infos.h"

namespace kes {

class VersionsGedächtnis {
public:
    // As DateiInfos. A file whose stamp is that of its last read gives the record of that
    // read; a file that cannot be stamped or read is read as DateiInfos reads it and not kept.
    void Infos(Plattform& p, const std::string& pfad, DateiVersion& record);
    // Forgets every file not asked since the last call, so that the memory holds what one
    // walk needs and no more.
    void Aufräumen();

private:
    struct Eintrag {
        std::uint64_t länge = 0;
        std::uint64_t geschrieben = 0;
        DateiVersion version;
        bool gefragt = false;
    };
    std::unordered_map<std::string, Eintrag> einträge_;
};

}  // namespace kes

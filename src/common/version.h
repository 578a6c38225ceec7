// The version this release shows in the titles of the panel and the assistant.
#pragma once

#include <string>

namespace kes {

inline constexpr int kVersionMajor = 2;
inline constexpr int kVersionMinor = 2;
inline constexpr int kVersionRevision = 0;

// "Kestrella V" major "." minor "." revision " AddOn Halvenik".
inline std::string FensterTitel() {
    return "Kestrella V" + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision) + " AddOn Halvenik";
}

}  // namespace kes

#include "platform/mehrfachwert.h"

#include <algorithm>
#include <cstdint>

namespace kes {

std::optional<std::vector<std::string>> MehrfachLesen(RegistryApi& reg, RegHandle root, const std::string& key,
                                                      const std::string& name) {
    RegKey k;
    if (reg.OpenKeyEx(root, key, kKeyQueryValue, &k) != kErrorSuccess || !k) return std::nullopt;
    std::uint32_t typ = 0, grösse = 0;
    if (reg.QueryValueEx(k.Get(), name.c_str(), &typ, nullptr, &grösse) != kErrorSuccess || typ != kRegMultiSz)
        return std::nullopt;
    std::vector<std::uint8_t> daten(grösse + 2, 0);
    if (reg.QueryValueEx(k.Get(), name.c_str(), &typ, daten.data(), &grösse) != kErrorSuccess || typ != kRegMultiSz)
        return std::nullopt;
    // The size may have grown between the two calls; what does not fit is cut, never overrun.
    daten.resize(std::min<std::size_t>(grösse, daten.size()));
    std::vector<std::string> teile;
    std::string teil;
    for (std::uint8_t b : daten) {
        if (b != 0) {
            teil += static_cast<char>(b);
            continue;
        }
        if (!teil.empty()) teile.push_back(teil);
        teil.clear();
    }
    // A value not ended by its NULs still has its last part.
    if (!teil.empty()) teile.push_back(teil);
    return teile;
}

bool MehrfachSchreiben(RegistryApi& reg, RegHandle root, const std::string& key, const std::string& name,
                       const std::vector<std::string>& teile) {
    RegKey k;
    if (reg.OpenKeyEx(root, key, kKeyAllAccess, &k) != kErrorSuccess || !k) return false;
    std::string daten;
    for (const std::string& t : teile) daten += t + '\0';
    daten += '\0';
    return reg.SetValueEx(k.Get(), name.c_str(), kRegMultiSz, reinterpret_cast<const std::uint8_t*>(daten.data()),
                          static_cast<std::uint32_t>(daten.size())) == kErrorSuccess;
}

std::vector<std::string> AlleWertnamen(RegistryApi& reg, RegHandle root, const std::string& key) {
    std::vector<std::string> namen;
    RegKey k;
    if (reg.OpenKeyEx(root, key, kKeyQueryValue, &k) != kErrorSuccess || !k) return namen;
    // 16383 characters is the longest value name the registry allows.
    std::vector<char> puffer(16384);
    for (std::uint32_t i = 0; i < 100000; ++i) {
        std::uint32_t länge = static_cast<std::uint32_t>(puffer.size());
        if (reg.EnumValue(k.Get(), i, puffer.data(), &länge, nullptr, nullptr, nullptr) != kErrorSuccess) break;
        namen.emplace_back(puffer.data(), std::min<std::size_t>(länge, puffer.size()));
    }
    return namen;
}

}  // namespace kes

// A bag of named, typed values, stored whole as one block of bytes. Names compare without
// regard to case ("Box1" and "box1" are one key); the last write of a name wins.
//
// Byte layout of a block (all numbers little-endian):
//   "KPB1"                       4 bytes, marks the block
//   count                        uint32, number of entries
//   per entry:
//     type                       uint8: 2 int16, 3 int32, 8 string, 11 boolean
//     name length, name          uint16, then that many ANSI bytes
//     value                      int16: 2 bytes; int32: 4 bytes; boolean: 2 bytes (0 or 0xFFFF);
//                                string: uint32 length, then that many ANSI bytes
// Nothing may follow the last entry.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kes {

enum class BagTyp : std::uint8_t { Int16 = 2, Int32 = 3, Text = 8, Bool = 11 };

using BagWert = std::variant<std::int16_t, std::int32_t, std::string, bool>;

class PropertyBag {
public:
    PropertyBag() = default;
    // Builds a bag from a stored block; throws Fehler (321 bad format, 62 cut short).
    static PropertyBag AusInhalt(const std::string& inhalt);
    std::string Contents() const;

    // Writes the value unless it equals the default, which the reader stands in for.
    void WriteProperty(const std::string& name, const BagWert& wert, const BagWert& standard);
    void WriteProperty(const std::string& name, const BagWert& wert);
    // The stored value converted to the default's type, or the default when absent.
    // Throws Fehler 13 when the stored value cannot be converted.
    BagWert ReadProperty(const std::string& name, const BagWert& standard) const;
    bool Remove(const std::string& name);

    struct Eintrag {
        std::string name;
        BagWert wert;
    };
    const std::vector<Eintrag>& Einträge() const { return einträge_; }
    const Eintrag* Finde(const std::string& name) const;

private:
    std::vector<Eintrag> einträge_;
};

std::string WertAlsText(const BagWert& wert);
BagTyp TypVon(const BagWert& wert);

}  // namespace kes

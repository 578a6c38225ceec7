#include "core/property_bag.h"

#include <cstdlib>

#include "common/fehler.h"
#include "common/text.h"

namespace kes {

namespace {
constexpr char kKennung[] = "KPB1";

class Leser {
public:
    explicit Leser(const std::string& d) : d_(d) {}
    std::uint32_t Zahl(int bytes) {
        if (pos_ + bytes > d_.size()) throw Fehler(kFehlerDateiende, "Eigenschaften abgeschnitten");
        std::uint32_t v = 0;
        for (int i = 0; i < bytes; ++i)
            v |= static_cast<std::uint32_t>(static_cast<unsigned char>(d_[pos_ + i])) << (8 * i);
        pos_ += bytes;
        return v;
    }
    std::string Bytes(std::size_t n) {
        if (n > d_.size() - pos_) throw Fehler(kFehlerDateiende, "Eigenschaften abgeschnitten");
        std::string s = d_.substr(pos_, n);
        pos_ += n;
        return s;
    }
    bool Ende() const { return pos_ == d_.size(); }

private:
    const std::string& d_;
    std::size_t pos_ = 0;
};

void Schreibe(std::string& aus, std::uint32_t v, int bytes) {
    for (int i = 0; i < bytes; ++i) aus += static_cast<char>((v >> (8 * i)) & 0xFF);
}

bool IstZahlText(const std::string& s, long long& zahl) {
    if (s.empty()) return false;
    char* ende = nullptr;
    zahl = std::strtoll(s.c_str(), &ende, 10);
    return ende && *ende == '\0';
}

long long AlsGanzzahl(const BagWert& w) {
    if (auto* v = std::get_if<std::int16_t>(&w)) return *v;
    if (auto* v = std::get_if<std::int32_t>(&w)) return *v;
    if (auto* v = std::get_if<bool>(&w)) return *v ? -1 : 0;
    long long zahl = 0;
    const std::string& s = std::get<std::string>(w);
    if (IstZahlText(s, zahl)) return zahl;
    if (GleichOhneFall(s, "True")) return -1;
    if (GleichOhneFall(s, "False")) return 0;
    throw Fehler(kFehlerTypUnverträglich, "Typen unverträglich");
}

BagWert Umwandeln(const BagWert& gespeichert, const BagWert& standard) {
    switch (TypVon(standard)) {
        case BagTyp::Text:
            return WertAlsText(gespeichert);
        case BagTyp::Bool:
            return AlsGanzzahl(gespeichert) != 0;
        case BagTyp::Int16: {
            const long long z = AlsGanzzahl(gespeichert);
            if (z < -32768 || z > 32767) throw Fehler(6, "Überlauf");
            return static_cast<std::int16_t>(z);
        }
        case BagTyp::Int32: {
            const long long z = AlsGanzzahl(gespeichert);
            if (z < INT32_MIN || z > INT32_MAX) throw Fehler(6, "Überlauf");
            return static_cast<std::int32_t>(z);
        }
    }
    return standard;
}
}  // namespace

BagTyp TypVon(const BagWert& wert) {
    switch (wert.index()) {
        case 0:
            return BagTyp::Int16;
        case 1:
            return BagTyp::Int32;
        case 2:
            return BagTyp::Text;
        default:
            return BagTyp::Bool;
    }
}

std::string WertAlsText(const BagWert& wert) {
    if (auto* v = std::get_if<std::int16_t>(&wert)) return std::to_string(*v);
    if (auto* v = std::get_if<std::int32_t>(&wert)) return std::to_string(*v);
    if (auto* v = std::get_if<bool>(&wert)) return *v ? "True" : "False";
    return std::get<std::string>(wert);
}

PropertyBag PropertyBag::AusInhalt(const std::string& inhalt) {
    Leser l(inhalt);
    if (l.Bytes(4) != kKennung) throw Fehler(kFehlerDateiformat, "Kein Eigenschaftenblock");
    PropertyBag bag;
    const std::uint32_t anzahl = l.Zahl(4);
    for (std::uint32_t i = 0; i < anzahl; ++i) {
        const auto typ = static_cast<BagTyp>(l.Zahl(1));
        std::string name = l.Bytes(l.Zahl(2));
        BagWert wert;
        switch (typ) {
            case BagTyp::Int16:
                wert = static_cast<std::int16_t>(l.Zahl(2));
                break;
            case BagTyp::Int32:
                wert = static_cast<std::int32_t>(l.Zahl(4));
                break;
            case BagTyp::Bool:
                wert = l.Zahl(2) != 0;
                break;
            case BagTyp::Text:
                wert = l.Bytes(l.Zahl(4));
                break;
            default:
                throw Fehler(kFehlerDateiformat, "Unbekannter Werttyp");
        }
        bag.WriteProperty(name, wert);
    }
    if (!l.Ende()) throw Fehler(kFehlerDateiformat, "Daten hinter dem letzten Eintrag");
    return bag;
}

std::string PropertyBag::Contents() const {
    std::string aus = kKennung;
    Schreibe(aus, static_cast<std::uint32_t>(einträge_.size()), 4);
    for (const auto& e : einträge_) {
        Schreibe(aus, static_cast<std::uint8_t>(TypVon(e.wert)), 1);
        Schreibe(aus, static_cast<std::uint32_t>(e.name.size()), 2);
        aus += e.name;
        if (auto* v = std::get_if<std::int16_t>(&e.wert)) Schreibe(aus, static_cast<std::uint16_t>(*v), 2);
        if (auto* v = std::get_if<std::int32_t>(&e.wert)) Schreibe(aus, static_cast<std::uint32_t>(*v), 4);
        if (auto* v = std::get_if<bool>(&e.wert)) Schreibe(aus, *v ? 0xFFFF : 0, 2);
        if (auto* v = std::get_if<std::string>(&e.wert)) {
            Schreibe(aus, static_cast<std::uint32_t>(v->size()), 4);
            aus += *v;
        }
    }
    return aus;
}

const PropertyBag::Eintrag* PropertyBag::Finde(const std::string& name) const {
    for (const auto& e : einträge_)
        if (GleichOhneFall(e.name, name)) return &e;
    return nullptr;
}

void PropertyBag::WriteProperty(const std::string& name, const BagWert& wert) {
    for (auto& e : einträge_)
        if (GleichOhneFall(e.name, name)) {
            e.wert = wert;
            return;
        }
    einträge_.push_back({name, wert});
}

void PropertyBag::WriteProperty(const std::string& name, const BagWert& wert, const BagWert& standard) {
    if (wert == standard) {
        Remove(name);
        return;
    }
    WriteProperty(name, wert);
}

BagWert PropertyBag::ReadProperty(const std::string& name, const BagWert& standard) const {
    const Eintrag* e = Finde(name);
    return e ? Umwandeln(e->wert, standard) : standard;
}

bool PropertyBag::Remove(const std::string& name) {
    for (auto it = einträge_.begin(); it != einträge_.end(); ++it)
        if (GleichOhneFall(it->name, name)) {
            einträge_.erase(it);
            return true;
        }
    return false;
}

}  // namespace kes

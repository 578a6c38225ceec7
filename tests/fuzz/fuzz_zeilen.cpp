// The two readers of the data files over any bytes: whole lines (up to the end, or up to
// the first empty line) and comma-separated fields. No line holds a line end, no field is
// empty, and plain entries written one a line read back as they were written.
#include "feindlich.h"
#include "platform/allefunktionen.h"
#include "pruefen.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
// An entry the field reader keeps whole: no comma, quote or line end, no blank at its ends.
bool Feldfest(const std::string& s) {
    if (s.empty() || s.front() == ' ' || s.front() == '\t' || s.back() == ' ' || s.back() == '\t') return false;
    return s.find_first_of(",\"\r\n") == std::string::npos;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string inhalt(reinterpret_cast<const char*>(data), size);

    const auto zeilen = ZeilenLesen(inhalt);
    for (const auto& z : zeilen) Prüfen(z.find('\r') == std::string::npos, "a line holds a CR");
    const auto bisLeer = ZeilenBisLeer(inhalt);
    Prüfen(bisLeer.size() <= zeilen.size(), "more lines up to the empty one than in all");
    for (std::size_t i = 0; i < bisLeer.size(); ++i) {
        Prüfen(!bisLeer[i].empty(), "an empty line before the end");
        Prüfen(bisLeer[i] == zeilen[i], "the lines up to the empty one differ from the first lines");
    }
    if (bisLeer.size() < zeilen.size()) Prüfen(zeilen[bisLeer.size()].empty(), "stopped at a line that is not empty");

    const auto felder = FelderLesen(inhalt);
    for (const auto& f : felder) Prüfen(!f.empty(), "an empty field");

    // Plain lines written as a writer writes them come back as they were.
    std::vector<std::string> fest;
    std::string geschrieben;
    for (const auto& z : zeilen)
        if (Feldfest(z) && z.find('\n') == std::string::npos) {
            fest.push_back(z);
            geschrieben += z + "\r\n";
        }
    Prüfen(FelderLesen(geschrieben) == fest, "plain entries read back as fields otherwise");
    Prüfen(ZeilenBisLeer(geschrieben) == fest, "plain entries read back as lines otherwise");
    return 0;
}

// The watchers' compare paths fed from hostile places: registry names and data of every
// length and type in all watched keys, and baselines and exception lists of any bytes.
// Every watcher is on; each warning gets one of its answers, which rewrites the lists and
// reads them back. Nothing may crash, and no command the program starts may name a key
// other than the one of its warning.
#include "feindlich.h"
#include "pruefen.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
const char* const kListen[] = {"prozesse.txt",     "Firma.txt",         "favoriten.txt",     "0190.txt",
                               "Autostart.txt",    "AutostartREG.txt",  "windows.txt",       "bho.ini",
                               "shellservice.ini", "taskscheduler.ini", "URLSearchHook.txt", "Activex.txt",
                               "dienste.ini",      "dienstefirmen.txt", "V_seiten.txt"};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider d(data, size);
    // Every box on but the automatic deletes, which the input may switch on too.
    std::uint32_t boxen =
        0xFFFFFFFEu & ~((1u << 6) | (1u << 12) | (1u << 31) | (1u << 9) | (1u << 4) | (1u << 19) | (1u << 20));
    boxen |= d.ConsumeIntegral<std::uint32_t>() & ((1u << 6) | (1u << 12) | (1u << 31) | (1u << 9));
    fuzz::FuzzProgramm f(boxen, {}, [&](fuzz::FuzzProgramm& f) {
        const int listen = d.ConsumeIntegralInRange(0, 4);
        for (int i = 0; i < listen; ++i) {
            const char* name = kListen[d.ConsumeIntegralInRange<std::size_t>(0, std::size(kListen) - 1)];
            f.dateien.Put(f.Daten(name), d.ConsumeRandomLengthString(600));
        }
        fuzz::RegistryFüllen(f.fp.registry, d, 12);
    });

    for (int runde = 0; runde < 6; ++runde) {
        f.Tick();
        if (f.prg.Form3Geladen()) f.Antworten(d.ConsumeIntegralInRange(0, 7));
        if (d.ConsumeIntegralInRange(0, 3) == 0) fuzz::RegistryFüllen(f.fp.registry, d, 2);
    }
    Prüfen(f.fp.registry.OpenHandles() == 0, "a key left open");
    Prüfen(f.dateien.OpenFinds() == 0, "a file walk left open");
    return 0;
}

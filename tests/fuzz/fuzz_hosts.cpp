// The hosts size path: any saved size, a hosts file of any length (gigabytes included, as
// a length without the bytes), missing or locked, and the warning's answers. The warning
// shows both sizes, and once the size is accepted the same file raises nothing more.
#include "feindlich.h"
#include "panel/alarm.h"
#include "pruefen.h"
#include "warning/form3.h"

using namespace kes;
using kes::fuzz::Prüfen;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider d(data, size);
    const std::string hosts = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";
    PropertyBag bag;
    bag.WriteProperty("hostsgrösse", d.ConsumeIntegral<std::int32_t>());
    const int art = d.ConsumeIntegralInRange(0, 3);
    const std::int64_t länge = d.ConsumeBool() ? d.ConsumeIntegral<std::int64_t>() & 0x7FFFFFFFFFFFFFFF
                                               : d.ConsumeIntegralInRange<std::int64_t>(0, 70000);
    fuzz::FuzzProgramm f(1u << 15, bag, [&](fuzz::FuzzProgramm& f) {
        if (art == 0) return;  // no hosts file at all
        f.dateien.Put(hosts, d.ConsumeRandomLengthString(64));
        if (art >= 2) f.dateien.PretendLength(hosts, länge);
        if (art == 3) f.dateien.Lock(hosts);
    });

    for (int runde = 0; runde < 3 && d.remaining_bytes() > 0; ++runde) {
        f.Tick();
        if (!f.prg.Form3Geladen()) continue;
        const auto& zeile = f.prg.Form3().Label1[2].Caption;
        Prüfen(zeile.rfind(" [Neue Grösse ", 0) == 0, "the sizes line of the warning is missing");
        const int wahl = d.ConsumeIntegralInRange(0, 7);
        const bool erledigt = f.Antworten(wahl);
        if (wahl == 0 && erledigt) {
            // Accepted (a missing file cannot be: its length is an error of the action, and
            // the warning stays): the same file is known from now on.
            f.Tick();
            Prüfen(!f.prg.Form3Geladen(), "an accepted hosts size warns again");
        }
    }
    return 0;
}

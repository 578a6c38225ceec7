#include "aenderungsmessung.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "panel/alarm.h"
#include "warning/form3.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/waechter.h"

namespace kes::bench {

NachÄnderung TickNachÄnderung(Zyklusbank& b, const char* name, RegHandle root, const std::string& ort,
                              const std::function<void(bool)>& ändern) {
    NachÄnderung n{name, {}, {}};
    std::vector<std::size_t> walken;
    for (std::size_t i = 0; i < Wächtertabelle().size(); ++i) {
        const WächterZeile& zeile = Wächtertabelle()[i];
        if (!zeile.orte) continue;
        for (const Änderungsort& o : zeile.orte(b.prg.Alarm(), b.prg))
            if (o.root == root && _stricmp(o.pfad.c_str(), ort.c_str()) == 0) {
                walken.push_back(i);
                break;
            }
    }
    n.zeilen = walken.size();
    const auto roh = [&] {
        for (std::size_t i : walken) b.roh(i);
    };
    for (int runde = 0; runde < b.runden; ++runde) {
        ändern(runde % 2 == 0);
        n.tick.ms.push_back(Zeit(b.tick));
        (runde % 2 == 0 ? n.hin : n.zurück).ms.push_back(n.tick.ms.back());
        b.nachsehen();
        n.roh.ms.push_back(Zeit(roh));
    }
    ändern(false);
    b.tick();
    // Blocks of about 4 s; an even number of calls, so that each ends with the change taken back.
    const int m = 2 * std::max(2 * b.runden, static_cast<int>(2000 / std::max(1.0, n.tick.Median())));
    const double mitTick = ProzessorMs(m, [&](int i) {
        ändern(i % 2 == 0);
        b.tick();
    });
    const double ohneTick = ProzessorMs(m, [&](int i) { ändern(i % 2 == 0); });
    b.tick();
    const double leer = ProzessorMs(m, [&](int) { b.tick(); });
    n.tickCpu = mitTick - ohneTick - leer;
    n.rohCpu = ProzessorMs(m, [&](int) { roh(); });
    return n;
}

Verzögerung BisZurWarnung(Zyklusbank& b, const char* name, const std::function<void(int, bool)>& ändern) {
    using Uhr = std::chrono::steady_clock;
    Verzögerung v{name, {}};
    const auto takt = std::chrono::milliseconds(kSofortMs);
    auto blick = Uhr::now() + takt;
    // Waits for the next look that falls due, and makes it; true when it found a change.
    const auto schauen = [&] {
        while (blick < Uhr::now()) blick += takt;
        ::Sleep(static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(blick - Uhr::now()).count()));
        blick += takt;
        return b.prg.Alarm().Gefeuert();
    };
    for (int i = 0; i < 2 * b.runden; ++i) {
        ::Sleep(static_cast<DWORD>(97 * i % kSofortMs));
        const auto start = Uhr::now();
        ändern(i, true);
        bool gewarnt = false;
        // At most 20 s: the ask of each source at every 20th look sees what a look missed.
        for (int k = 0; k < 80 && !gewarnt; ++k)
            if (schauen()) {
                b.tick();
                gewarnt = b.prg.Form3Geladen();
            }
        if (gewarnt) {
            v.ms.ms.push_back(std::chrono::duration<double, std::milli>(Uhr::now() - start).count());
            b.prg.Form3().Image_Click(6);
            b.prg.Aufräumen();
        } else {
            ++v.ohne;
        }
        ändern(i, false);
        for (int k = 0; k < 8; ++k)
            if (schauen()) {
                b.tick();
                b.nachsehen();
                break;
            }
    }
    return v;
}

void Drucken(const std::vector<NachÄnderung>& änderungen, double leerMedian) {
    for (const NachÄnderung& n : änderungen)
        std::printf(
            "tick after one change (%s): median %.2f ms, min %.2f ms; the raw listing of that place\n"
            "  by the %zu rows that name it %.2f ms median; the tick %.0f %% of it; the tick less the idle tick:\n"
            "  %.2f ms = %.0f %% of it (the change %.2f ms, taking it back %.2f ms median)\n",
            n.name, n.tick.Median(), n.tick.Min(), n.zeilen, n.roh.Median(), 100 * n.tick.Median() / n.roh.Median(),
            n.tick.Median() - leerMedian, 100 * (n.tick.Median() - leerMedian) / n.roh.Median(), n.hin.Median(),
            n.zurück.Median());
    for (const NachÄnderung& n : änderungen)
        std::printf(
            "processor time of the tick after one change (%s), less an idle tick's: %.2f ms against %.2f ms\n"
            "  of the raw listing of that place = %.0f %%\n",
            n.name, n.tickCpu, n.rohCpu, n.rohCpu > 0 ? 100 * n.tickCpu / n.rohCpu : 0);
}

void Drucken(const std::vector<Verzögerung>& verzögerungen) {
    for (const Verzögerung& v : verzögerungen)
        std::printf(
            "delay from a change (%s) to its warning, looks every %d ms: median %.0f ms, min %.0f ms,\n"
            "  max %.0f ms over %zu changes; %d changes not warned of within 20 s\n",
            v.name, kSofortMs, v.ms.Median(), v.ms.Min(),
            v.ms.ms.empty() ? 0 : *std::max_element(v.ms.ms.begin(), v.ms.ms.end()), v.ms.ms.size(), v.ohne);
}

}  // namespace kes::bench

// Window timers on a clock the test moves by hand, and a message pump that runs what the
// test queued for it, so a user action can fall between two steps of a tick. With
// msProPumpe set, every pump also lets that much time pass and delivers the ticks that fall
// due meanwhile, inside the pump, as the platform's message loop does. A pump while the
// code holds a Pumpenfrei fails: the unit tests count it as a failure of the running test.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>

#include "common/pumpenfrei.h"
#include "platform/seam/timer_api.h"

namespace kes::fake {

// Where no test framework can be told (the fuzz targets, a test binary that does not set
// its own), the process stops with the reason.
inline void PumpeImFreienAbbrechen() {
    std::fputs("message pump inside a stretch declared free of pumps\n", stderr);
    std::abort();
}
inline void (*beiPumpeImFreien)() = &PumpeImFreienAbbrechen;

class FakeTimers : public TimerApi {
public:
    void SetHandler(std::function<void(int)> handler) override { handler_ = std::move(handler); }
    void Set(int id, int intervalMs) override {
        if (intervalMs <= 0) {
            Kill(id);
            return;
        }
        laufend_[id] = {intervalMs, jetzt_ + intervalMs};
    }
    void Kill(int id) override { laufend_.erase(id); }
    void PumpMessages() override {
        if (Pumpenfrei::Gehalten()) beiPumpeImFreien();
        if (vorDerPumpe) vorDerPumpe();
        ++pumpen;
        std::deque<std::function<void()>> jetzt;
        jetzt.swap(beimPumpen);
        for (auto& f : jetzt) f();
        if (msProPumpe > 0) Advance(msProPumpe);
    }

    std::int64_t Uhr() override { return jetzt_; }

    // Asked before every pump: the platform bundle checks that no handle stays open across it.
    std::function<void()> vorDerPumpe;

    // Moves the clock on and delivers every tick that falls due, in time order. A tick's
    // handler may pump and so move the clock further on from inside.
    void Advance(long ms) {
        const long ende = jetzt_ + ms;
        for (;;) {
            int fällig = 0;
            long wann = ende + 1;
            for (const auto& [id, t] : laufend_)
                if (t.nächster < wann) wann = t.nächster, fällig = id;
            if (!fällig) break;
            if (wann > jetzt_) jetzt_ = wann;
            laufend_[fällig].nächster = wann + laufend_[fällig].intervall;
            if (handler_) handler_(fällig);
        }
        if (jetzt_ < ende) jetzt_ = ende;
    }
    bool Running(int id) const { return laufend_.count(id) != 0; }
    int IntervalOf(int id) const {
        auto it = laufend_.find(id);
        return it == laufend_.end() ? 0 : it->second.intervall;
    }

    std::deque<std::function<void()>> beimPumpen;
    int pumpen = 0;
    long msProPumpe = 0;

private:
    struct Lauf {
        int intervall;
        long nächster;
    };
    std::function<void(int)> handler_;
    std::map<int, Lauf> laufend_;
    long jetzt_ = 0;
};

}  // namespace kes::fake

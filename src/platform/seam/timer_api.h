// Window timers and the message pump. One thread runs everything: a timer's handler and
// any pumped event run on it, never at the same time as other program code.
#pragma once

#include <cstdint>
#include <functional>

namespace kes {

class TimerApi {
public:
    virtual ~TimerApi() = default;
    // The handler every timer tick is delivered to, with the id the timer was set with.
    virtual void SetHandler(std::function<void(int id)> handler) = 0;
    // Starts or restarts timer id: its first tick comes a whole interval from now.
    // An interval of 0 or below stops it, as such a timer never ticks.
    virtual void Set(int id, int intervalMs) = 0;
    virtual void Kill(int id) = 0;
    // Lets pending window messages run (user clicks, other timers) and returns.
    virtual void PumpMessages() = 0;
    // Milliseconds of a clock that only goes forward, for how long ago something was done.
    virtual std::int64_t Uhr() = 0;
};

}  // namespace kes

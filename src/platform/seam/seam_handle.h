// One move-only owner for every handle a seam hands out: registry keys, find handles,
// snapshots and processes. It closes through the seam that gave it, in its destructor, so
// the portable code holds no raw handle it could forget. 0 is "no handle" for every seam.
#pragma once

#include <cstdint>
#include <utility>

namespace kes {

inline constexpr long kKeinHandleZuSchliessen = 6;  // ERROR_INVALID_HANDLE

template <typename Api>
class SeamHandle {
public:
    SeamHandle() = default;
    // For the seam's implementations: takes over H, which API closes.
    SeamHandle(Api& api, std::uintptr_t h) : api_(h != 0 ? &api : nullptr), h_(api_ ? h : 0) {}
    ~SeamHandle() { Close(); }
    SeamHandle(SeamHandle&& o) noexcept : api_(std::exchange(o.api_, nullptr)), h_(std::exchange(o.h_, 0)) {}
    SeamHandle& operator=(SeamHandle&& o) noexcept {
        if (this != &o) {
            Close();
            api_ = std::exchange(o.api_, nullptr);
            h_ = std::exchange(o.h_, 0);
        }
        return *this;
    }
    SeamHandle(const SeamHandle&) = delete;
    SeamHandle& operator=(const SeamHandle&) = delete;

    std::uintptr_t Get() const { return h_; }
    explicit operator bool() const { return h_ != 0; }
    // Closes now, leaving the owner empty: the seam's answer, 0 for success, and 6 when
    // there was nothing to close.
    long Close() {
        if (h_ == 0) return kKeinHandleZuSchliessen;
        const long rc = api_->CloseOwned(std::exchange(h_, 0));
        api_ = nullptr;
        return rc;
    }

private:
    Api* api_ = nullptr;
    std::uintptr_t h_ = 0;
};

}  // namespace kes

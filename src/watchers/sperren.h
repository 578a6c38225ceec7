// The policy values that lock the registry editor and the task manager.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class Sperren {
public:
    explicit Sperren(WächterKontext& k) : k_(k) {}

    void TesteSonstiges();
    void TesteSonstiges1();

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes

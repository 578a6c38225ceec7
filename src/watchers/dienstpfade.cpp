#include "watchers/dienstpfade.h"

#include "platform/hive_ocx.h"
#include "platform/registry.h"

namespace kes {

namespace {
// The services watcher's box.
constexpr int kDiensteBox = 28;
}  // namespace

bool AutomatischerDienstGemeldet(WächterKontext& k, const OrtEintrag& e) {
    if (k.Box(kDiensteBox) != 1) return false;
    try {
        return HiveOCX(k.P().registry).ReadValue(HiveVonHandle(kHkeyLocalMachine), e.schlüssel, "Start") == "2";
    } catch (...) {
        return false;  // a key gone meanwhile: the warning tells what is there
    }
}

}  // namespace kes

#include "common/kategorie.h"

namespace kes {

const char* KategorieName(Kategorie k) {
    static constexpr const char* kNamen[] = {
#define KES_KATEGORIE_NAME(name) #name,
        KES_KATEGORIEN(KES_KATEGORIE_NAME)
#undef KES_KATEGORIE_NAME
    };
    if (k == Kategorie::Keine) return "";
    return kNamen[static_cast<int>(k)];
}

}  // namespace kes

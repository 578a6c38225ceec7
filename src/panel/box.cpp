#include "panel/box.h"

namespace kes {

void Box::KlickVomBenutzer() {
    if (value_ == 2) return;
    std::int16_t neu = value_ == 0 ? 1 : 0;
    if (value_ != 0 && value_ != 1) return;
    value_ = neu;
    if (Click) Click(neu);
}

}  // namespace kes

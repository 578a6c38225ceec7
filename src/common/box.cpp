#include "common/box.h"

namespace kes {

void Box::KlickVomBenutzer() {
    // Grey and any unknown value stay as they are, and the owner hears nothing.
    if (value_ != 0 && value_ != 1) return;
    value_ = value_ == 0 ? 1 : 0;
    std::int16_t neu = value_;
    if (Click) Click(neu);
}

}  // namespace kes

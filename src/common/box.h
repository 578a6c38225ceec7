// The program's own three-state check box, used as the option array of the control panel.
// Setting the value from code never raises Click; only a user's click does.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace kes {

class Box {
public:
    std::int16_t value() const { return value_; }
    // Stores any number; only 0, 1 and 2 have a picture, an unknown value keeps the old one.
    void setValue(std::int16_t v) { value_ = v; }
    std::string Caption;
    long ForeColor = 0;
    bool Visible = true;

    // The user clicked face or caption: 0 and 1 swap and the owner hears the new value,
    // grey stays grey and raises nothing.
    void KlickVomBenutzer();
    std::function<void(std::int16_t& neu)> Click;

private:
    std::int16_t value_ = 0;
};

}  // namespace kes

#include "common/steuerelemente.h"

#include <algorithm>

#include "common/text.h"

namespace kes {

namespace {
const std::string kLeer;
}

const std::string& ListItem::SubItem(std::size_t column) const {
    if (column == 0) return Text;
    return column <= SubItems.size() ? SubItems[column - 1] : kLeer;
}

void ListItem::SetSubItem(std::size_t column, const std::string& text) {
    if (column == 0) {
        Text = text;
        return;
    }
    if (SubItems.size() < column) SubItems.resize(column);
    SubItems[column - 1] = text;
}

ListItem& ListView::Add(const std::string& text) {
    ListItem& z = Items.emplace_back();
    z.Text = text;
    return z;
}

void ListView::Sortieren() {
    if (!Sorted || SortKey < 0) return;
    const auto key = static_cast<std::size_t>(SortKey);
    std::stable_sort(Items.begin(), Items.end(), [key](const ListItem& a, const ListItem& b) {
        return Klein(a.SubItem(key)) < Klein(b.SubItem(key));
    });
}

Timer::~Timer() {
    if (enabled_) api_.Kill(id_);
}

void Timer::SetEnabled(bool on) {
    enabled_ = on;
    Apply();
}

void Timer::SetInterval(int ms) {
    interval_ = ms;
    Apply();
}

void Timer::Apply() {
    if (enabled_ && interval_ > 0)
        api_.Set(id_, interval_);
    else
        api_.Kill(id_);
}

std::int16_t IntervallAusStufe(std::int16_t stufe) {
    // The product wraps in 16 bits; a stage above 32 would turn negative and stop the timer.
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(stufe * 1000));
}

std::string ListBox::Text() const {
    if (ListIndex < 0 || ListIndex >= static_cast<int>(Items.size())) return "";
    return Items[static_cast<std::size_t>(ListIndex)];
}

}  // namespace kes

// A baseline's texts in a hash set beside the ordered list, built for one pass of a
// watcher: whether a live row is known then costs the same for the thousandth row as for
// the first, so a pass grows with the entries and not with their square. The answer is
// the one a walk through the list gives, since the same text decides after the same
// folding (none, Klein or Gross, as the watcher compares). The set is the pass's own: built
// as the row starts, it answers for the list as it stood then, whatever a pumped click does
// to the list meanwhile; such a change counts from the next row on.
#pragma once

#include <string>
#include <unordered_set>
#include <utility>

#include "common/pumpenfrei.h"

namespace kes {

class BekannteTexte {
public:
    // falten turns a row of the list into the text that is compared.
    template <typename Zeilen, typename Falten>
    BekannteTexte(const Zeilen& zeilen, Falten falten) {
        const Pumpenfrei frei;
        menge_.reserve(zeilen.size());
        for (const auto& z : zeilen) menge_.insert(falten(z));
    }
    // text is folded already, as the rows were.
    bool Enthält(const std::string& text) const { return menge_.count(text) != 0; }
    std::size_t Anzahl() const { return menge_.size(); }

private:
    std::unordered_set<std::string> menge_;
};

}  // namespace kes

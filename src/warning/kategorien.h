// The category table: one row for each category key, with what the warning window shows
// for it at load and where each of its buttons leads. The window and its actions dispatch
// through this table alone.
#pragma once

#include <array>
#include <string>

#include "common/kategorie.h"

namespace kes {

class Form3Fenster;

// An accept branch: true when the action is done and the window goes (raus); false when it
// waits for a menu.
using Übernahme = bool (*)(Form3Fenster& f);
// A branch of another action.
using Aktion = void (*)(Form3Fenster& f);
// What "Später" puts on the deferred list.
using Aufschub = std::string (*)(const Form3Fenster& f);

struct KategorieZeile {
    Kategorie kategorie;
    std::array<int, 3> knöpfe{};         // the picture buttons the load handler shows; 0 none
    const char* löschenText = nullptr;   // caption of Label3(2) when it differs
    const char* originalText = nullptr;  // caption of Label3(5) when it differs
    const char* originalTipp = nullptr;  // tool tip of Image8
    const char* infosText = nullptr;     // caption of Label3(7) when it differs
    Übernahme übernehmen = nullptr;      // Image1; none: only raus
    Aktion löschen = nullptr;            // Image3 after the question; none: only raus
    bool löschenZweimalRaus = false;     // the branch closes the window and saves once more
    int regDeleteFeld = -1;              // Text1 field the branch puts on a REG DELETE line; -1 none
    Aufschub später = nullptr;           // Image6; none: nothing added, raus all the same
    Aktion töten = nullptr;              // Image2
    Aktion ausnahme = nullptr;           // Image4
    Aktion nagut = nullptr;              // Image5
    Aktion original = nullptr;           // Image8; none: only raus
    Aktion infos = nullptr;              // Image9; none: nothing, the window stays
};

// The row of a key. Every key has exactly one.
const KategorieZeile& Zeile(Kategorie k);

}  // namespace kes

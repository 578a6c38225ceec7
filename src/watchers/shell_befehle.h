// The open commands of executable file types: the default values of ten keys under
// HKEY_CLASSES_ROOT and HKEY_LOCAL_MACHINE, compared with the expected texts Text5 of the
// page. A foreign command there would run before every program. A difference is repaired
// at once (Box1(31)) or raised as a warning whose "Original" writes the expected text back;
// either way one key per cycle, and a deferred key lets the rest be tested.
#pragma once

#include <array>
#include <string>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class ShellBefehle {
public:
    // Gives Text5 its design texts: Text5(0) the expected value of the key under test,
    // Text5(1) that of exe, com, bat and pif, Text5(2) that of hta.
    ShellBefehle(WächterKontext& k, std::array<TextBox, 3>& Text5);

    void TesteHTafile();

    std::array<TextBox, 3>& Text5;

    // The watched keys by their whole names, in the order in which they are tested, as the
    // control panel lists them.
    static std::array<std::string, 10> Orte();

private:
    // A key whose default value differs: true when the routine ends here (a repair or a
    // warning), false when the key is deferred and the next one is to be tested.
    bool Behandeln(const std::string& hive, const std::string& key, const std::string& gefunden);
    WächterKontext& k_;
};

}  // namespace kes

// The first-run assistant Form2: one question, take the machine as it stands or set
// everything by hand. Taking all writes the Run value, the process baseline, the saved
// start pages and the service baseline; "Fertig" switches the standard watchers on, starts
// monitoring or opens the panel, and writes the settings, which ends the first run.
#pragma once

#include <array>

#include "assistant/assistent_kontext.h"
#include "common/fenster.h"
#include "common/steuerelemente.h"

namespace kes {

class Form2Fenster : public Fenster {
public:
    explicit Form2Fenster(AssistentKontext& k);

    std::array<Label, 5> Label1;  // 0 heading, 1 and 3 page 1, 4 page 2
    std::array<Label, 3> Frame1;  // the pages 1 and 2, by caption and visibility
    std::array<CommandButton, 2> Command2;
    CommandButton Command3;

    void Form_Load();
    void Command2_Click(int index);
    void Command3_Click();

    // The choice of page 1: true after "Alle Werte des Systems übernehmen".
    bool AlleÜbernehmen() const { return alleÜbernehmen_; }

private:
    AssistentKontext& k_;
    bool alleÜbernehmen_ = false;
};

// The question at the end of taking all values, with the maker's web address in its frame.
std::string FertigFrage();

inline constexpr const char* kHerstellerSeite = "www.halvenik-software.de";

}  // namespace kes

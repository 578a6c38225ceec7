// The delete question Form1: asked before the warning window deletes anything, unless the
// user has told it not to ask again.
#pragma once

#include <array>

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "warning/warn_kontext.h"

namespace kes {

class Form1Fenster : public Fenster {
public:
    explicit Form1Fenster(WarnKontext& k);

    Label Label1;
    CheckBox Check1;
    std::array<Label, 2> Command1;  // the two buttons, by their captions

    void Form_Load();
    // The box alone decides the delete-question flag, at once.
    void Check1_Click();
    // 0 "Ja löschen", 1 "Nein": the answer goes to löschen, then the question goes.
    void Command1_Click(int index);

private:
    WarnKontext& k_;
};

}  // namespace kes

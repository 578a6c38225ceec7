// The warning record: the controls of the warning window Form3 that a watcher fills before
// the window shows, and that the actions read back. There is no message object; a control
// is at once display and data field. The window itself, its buttons and its actions build
// on this record one layer up.
#pragma once

#include <array>
#include <string>

#include "common/steuerelemente.h"
#include "platform/icoholen.h"

namespace kes {

struct Warnung {
    explicit Warnung(TimerApi& timers, int blinkTimerId);

    std::array<Label, 3> Label1;     // headline, the object's name or path, the detail line
    std::array<TextBox, 6> Text1;    // the machine-readable fields, meaning by category
    ListView ListView1;              // pane 1: file details
    ListView ListView2;              // pane 0: name and full path
    ListView ListView3;              // pane 4: loaded modules
    ListView ListView4;              // pane 3: registry row
    std::array<CheckBox, 8> Check1;  // pane 2: file attributes, disabled until a bit lights them
    std::array<PictureBox, 5> Picture3;
    PictureBox Picture2;               // the bar of buttons
    std::array<kes::Image, 10> Image;  // Image[1] .. Image[9]; Image[0] unused
    std::array<Label, 8> Label3;       // captions of the buttons
    Label lblModName;
    TextBox txtMdlSPath, txtMdlLPath, txtMdlDesc;
    Label Modulscaption;
    SymbolBild picProcIcon;
    Timer Timer1;  // blinks the box "Versteckt" of a hidden file

    // Shows picture button n (1..9) with its caption label.
    void Zeigen(int image);
    // The caption label of a picture button (Image1 -> Label3(0), ..., Image9 -> Label3(7)).
    static int LabelVon(int image);
    // Row 2 of pane 0, the full path that every action on a file reads; "" without it.
    std::string Zeile2() const;
};

// Fills the file details (pane 1) and the attribute boxes (pane 2) for a file. Every
// watcher that warns of a file calls it before the window shows.
void holedaten(Plattform& p, Warnung& f, std::string& pfad);

}  // namespace kes

// The warning window Form3. Its controls are the warning record: a watcher fills them, the
// action buttons read them back. Each warning loads a fresh window, so design values hold.
#pragma once

#include <array>
#include <string>

#include "core/fenster.h"
#include "core/steuerelemente.h"

namespace kes {

class Programm;

class Form3Fenster : public Fenster {
public:
    explicit Form3Fenster(Programm& prg);

    std::array<Label, 3> Label1;
    std::array<TextBox, 6> Text1;
    ListView ListView1;  // pane 1: file details
    ListView ListView2;  // pane 0: name and full path
    ListView ListView3;  // pane 4: loaded modules
    ListView ListView4;  // pane 3: registry row
    std::array<CheckBox, 8> Check1;  // pane 2: file attributes
    std::array<PictureBox, 5> Picture3;
    PictureBox Picture2;  // the bar of buttons
    std::array<kes::Image, 10> Image;  // Image[1] .. Image[9]; Image[0] unused
    std::array<Label, 8> Label3;  // captions of the buttons
    Label lblModName;
    TextBox txtMdlSPath, txtMdlLPath, txtMdlDesc;
    Label Modulscaption;
    Timer Timer1;

    // Set only by Image7: the window was left with monitoring switched off.
    bool ÜberwachungAus = false;

    void Show() override;
    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    // Every unload passes here, whatever closed the window.
    void Form_QueryUnload();
    void Timer1_Timer();

    // Saves the settings and unloads the window: the end of every action.
    void raus();
    // "Kestrella sofort Deaktivieren".
    void Image7_Click();

    // The caption label of a picture button (Image1 -> Label3(0), ..., Image9 -> Label3(7)).
    static int LabelVon(int image);

private:
    void Zeigen(int image);
    Programm& prg_;
};

// Height in pixels that the title bar and frame add to the panes (555 twips at 96 dpi).
inline constexpr int kForm3Rahmen = 37;

}  // namespace kes

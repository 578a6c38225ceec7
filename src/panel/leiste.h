// A sidebar of five picture buttons with a caption each: hovering lights an entry, a release
// on it tells the owner where a menu could open below it. Built and ready, but no window
// holds one: the panel's sidebar is made of its own labels.
#pragma once

#include <array>
#include <functional>
#include <string>

namespace kes {

class Leiste {
public:
    enum class Bild { Normal, Hover, Gedrückt };
    struct Eintrag {
        std::string Caption;
        bool Visible = true;
        bool Enabled = true;
        Bild Anzeige = Bild::Normal;                   // the picture shown
        long Farbe = 0;                                // colour of the caption
        int Left = 0, Top = 0, Width = 0, Height = 0;  // twips
    };
    std::array<Eintrag, 5> Einträge;
    // Whether the bar holds the mouse capture.
    bool Gefangen = false;

    // Five groups of caption, visible and enabled; 1 means yes, any other value no.
    void Laden(const std::string& c0, int v0, int e0, const std::string& c1, int v1, int e1, const std::string& c2,
               int v2, int e2, const std::string& c3, int v3, int e3, const std::string& c4, int v4, int e4);
    // The pointer moved over entry i (also over its caption); drinnen tells whether it is
    // still inside the entry.
    void MausBewegung(int i, bool drinnen);
    // A button was released on entry i.
    void MausLos(int i, int knopf);
    // Spreads the width over the five entries, side by side.
    void Resize(int breite, int höhe);

    // Index, button, and the place for a menu: the entry's left edge, and its foot less
    // 40 twips.
    std::function<void(int& index, int& knopf, int& x, int& y)> Klick;

private:
    void AllesNormal();
};

}  // namespace kes

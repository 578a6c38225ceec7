#include "panel/leiste.h"

namespace kes {

namespace {
constexpr long kHover = 255;
}

void Leiste::Laden(const std::string& c0, int v0, int e0, const std::string& c1, int v1, int e1, const std::string& c2,
                   int v2, int e2, const std::string& c3, int v3, int e3, const std::string& c4, int v4, int e4) {
    const std::string* c[5] = {&c0, &c1, &c2, &c3, &c4};
    const int v[5] = {v0, v1, v2, v3, v4};
    const int e[5] = {e0, e1, e2, e3, e4};
    for (std::size_t i = 0; i < 5; ++i) {
        Einträge[i].Caption = *c[i];
        Einträge[i].Visible = v[i] == 1;
        Einträge[i].Enabled = e[i] == 1;
    }
}

void Leiste::AllesNormal() {
    for (Eintrag& e : Einträge) {
        e.Anzeige = Bild::Normal;
        e.Farbe = 0;
    }
}

void Leiste::MausBewegung(int i, bool drinnen) {
    AllesNormal();
    if (drinnen) {
        Gefangen = true;
        Einträge.at(static_cast<std::size_t>(i)).Anzeige = Bild::Hover;
        Einträge[static_cast<std::size_t>(i)].Farbe = kHover;
    } else {
        Gefangen = false;
    }
}

void Leiste::MausLos(int i, int knopf) {
    Eintrag& e = Einträge.at(static_cast<std::size_t>(i));
    e.Anzeige = Bild::Gedrückt;
    e.Farbe = kHover;
    int index = i, x = e.Left, y = e.Top + e.Height - 40;
    if (Klick) Klick(index, knopf, x, y);
}

void Leiste::Resize(int breite, int höhe) {
    const int teil = breite / 5;
    for (std::size_t i = 0; i < 5; ++i) {
        Einträge[i].Left = static_cast<int>(i) * teil;
        Einträge[i].Top = 0;
        Einträge[i].Width = teil;
        Einträge[i].Height = höhe;
        Einträge[i].Anzeige = Bild::Normal;
    }
}

}  // namespace kes

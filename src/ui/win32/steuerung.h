// Small pieces every view uses: child controls with the dialog font, setting a text or a
// visibility only when it changed, and filling a list view from its model.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "common/steuerelemente.h"

namespace kes::ui {

HFONT Dialogschrift();
HFONT Fettschrift();

HWND Kind(HWND eltern, const char* klasse, const std::string& text, DWORD stil, int id, int x, int y, int b, int h);
void TextSetzen(HWND h, const std::string& text);
void Sichtbar(HWND h, bool ja);
void Platz(HWND h, int x, int y, int b, int hoch);

// A list view and the model it last showed; Abgleichen redraws only on a change. Each row
// shows the picture its SmallIcon names.
class ListenAnsicht {
public:
    void Anlegen(HWND eltern, int id, int x, int y, int b, int h, bool kopf = true);
    // Columns as wide as header and content ask for (LVSCW_AUTOSIZE_USEHEADER), fitted anew
    // whenever rows or columns change, in place of the model's widths.
    void NachInhalt() { nachInhalt_ = true; }
    void Abgleichen(const ListView& modell);
    HWND Fenster() const { return h_; }
    // NM_CUSTOMDRAW of this list: draws the model's colours of items and sub-items.
    bool Zeichnen(LPARAM lp, LRESULT& ergebnis) const;

private:
    HWND h_ = nullptr;
    void Spaltenbreiten(const ListView& modell);
    void NachInhaltBreiten(const ListView& modell);
    bool nachInhalt_ = false;
    bool bilder_ = false;  // the shared pictures are set
    std::vector<std::string> spalten_;
    std::vector<ListItem> zeilen_;
};

}  // namespace kes::ui

#include "assistant/form2.h"

#include "platform/allefunktionen.h"

namespace kes {

Form2Fenster::Form2Fenster(WächterKontext& k) : k_(k) {
    Caption = "Kestrella - Assistent";
    Hinweis.Caption =
        "Kestrella startet zum ersten Mal.\r\n\r\nDer Assistent, der den jetzigen Zustand des Systems "
        "als Ausgangspunkt übernimmt, ist in dieser Version noch nicht enthalten.";
    Width = 420;
    Height = 200;
    FensterMitte(k.P(), *this);
}

}  // namespace kes

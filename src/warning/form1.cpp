#include "warning/form1.h"

#include "platform/allefunktionen.h"
#include "warning/form3.h"

namespace kes {

Form1Fenster::Form1Fenster(WarnKontext& k) : k_(k) {
    Caption = "Achtung!";
    Label1.Caption = "Sind sie sich sich das der Eintrag gelöscht werden soll ?";
    Check1.Caption = "keine Nachfrage mehr beim löschen anzeigen";
    Command1[0].Caption = "Ja löschen";
    Command1[1].Caption = "Nein";
    Width = 400;
    Height = 160;
}

void Form1Fenster::Form_Load() {
    ImmerOben(*this, true);
    FensterMitte(k_.P(), *this);
}

void Form1Fenster::Check1_Click() {
    k_.W().AnzeigeLöschen = Check1.Value == 1;
}

void Form1Fenster::Command1_Click(int index) {
    // The question stays until löschen has run, so that its own questions come on top of it.
    if (k_.Form3Geladen()) k_.Form3().löschen(index == 0);
    k_.Form1Entladen();
}

}  // namespace kes

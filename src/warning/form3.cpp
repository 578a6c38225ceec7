#include "warning/form3.h"

#include "platform/allefunktionen.h"
#include "warning/antwort.h"
#include "warning/form1.h"
#include "warning/kategorien.h"
#include "watchers/alarm_daten.h"

namespace kes {

Form3Fenster::Form3Fenster(WarnKontext& k) : Warnung(k.P().timers, kTimerForm3_1), k_(k) {
    Caption = "Kestrella - Warnung";
    Width = 620;
    Form_Resize();
}

void Form3Fenster::Form_Load() {
    const KategorieZeile& z = Zeile(k_.W().Kategorieschlüssel);
    for (int knopf : z.knöpfe)
        if (knopf) Zeigen(knopf);
    if (z.löschenText) Label3[2].Caption = z.löschenText;
    if (z.originalText) Label3[5].Caption = z.originalText;
    if (z.originalTipp) Image[8].ToolTipText = z.originalTipp;
    if (z.infosText) Label3[7].Caption = z.infosText;
}

void Form3Fenster::Show() {
    Fenster::Show();
    Form_Resize();
    Form_Activate();
}

void Form3Fenster::Form_Activate() {
    ImmerOben(*this, true);
    // The focus rests on the picture, not on a button a stray key could press.
    picProcIconFokus = true;
}

void Form3Fenster::Form_Resize() {
    if (WindowState != 0) return;
    int höhe = Picture2.Height + kForm3Rahmen;
    for (const auto& p : Picture3)
        if (p.Visible) höhe += p.Height;
    Height = höhe;
}

void Form3Fenster::Form_QueryUnload() {
    if (ÜberwachungAus) return;
    k_.W().Beschäftigt = false;
    k_.Alarm().Timer1.SetEnabled(true);
}

void Form3Fenster::Timer1_Timer() {
    Check1[3].Visible = !Check1[3].Visible;
}

void Form3Fenster::raus() {
    k_.EinstellungenSpeichern();
    k_.Form3Entladen();
}

void Form3Fenster::Image_Click(int n) {
    // The delete writes its journal line where it runs, after its question.
    if (n == 3) return Image3_Click();
    try {
        Antwort antwort(*this, Label3[static_cast<std::size_t>(LabelVon(n))].Caption);
        Knopf(n);
    } catch (const SicherungFehlt&) {
        // The user has been told; nothing was removed, and the window stays.
    }
}

void Form3Fenster::Knopf(int n) {
    switch (n) {
        case 1:
            Image1_Click();
            break;
        case 2:
            Image2_Click();
            break;
        case 4:
            Image4_Click();
            break;
        case 5:
            Image5_Click();
            break;
        case 6:
            Image6_Click();
            break;
        case 7:
            Image7_Click();
            break;
        case 8:
            Image8_Click();
            break;
        case 9:
            Image9_Click();
            break;
        default:
            break;
    }
}

void Form3Fenster::Image7_Click() {
    k_.W().Beschäftigt = true;
    k_.Alarm().Timer1.SetEnabled(false);
    k_.NichtAktiviert();
    ÜberwachungAus = true;
    k_.Form3Entladen();
}

void Warnen(WarnKontext& k, Kategorie kategorie, const std::function<void(Warnung&)>& füllen, Ton ton) {
    Prozesswerte& w = k.W();
    auto klingeln = [&] {
        if (ton != Ton::Keiner && w.Soundflag == 1) SoundSpielen(k.P(), "ALARM");
    };
    if (ton == Ton::Vorher) klingeln();
    w.Beschäftigt = true;
    k.Alarm().Timer1.SetEnabled(false);
    if (ton == Ton::Nachher) klingeln();
    // Before the first touch of the window: its load handler reads the key.
    w.Kategorieschlüssel = kategorie;
    Form3Fenster& f = k.Form3();
    try {
        füllen(f);
    } catch (...) {
        // A watcher's own steps are passed over where they fail; the window shows regardless.
    }
    // The journal's line of the warning, as the user sees it; one that cannot be written
    // keeps no warning from showing.
    Journal(k.P().files, k.P().system, w.Programmordner).Schreiben(Journalzeile(f, "warning", ""));
    f.Show();
    FensterMitte(k.P(), f);
}

}  // namespace kes

// What the warning window and its actions reach besides the record: the lists of Alarm,
// the two windows of this layer, the settings, and the switch that turns monitoring off.
// The program above implements it.
#pragma once

#include "watchers/kontext.h"

namespace kes {

class AlarmDaten;
class Form1Fenster;
class Form3Fenster;

class WarnKontext : public virtual WächterKontext {
public:
    // Touching a window loads it, and its load handler runs at that moment.
    virtual AlarmDaten& Alarm() = 0;
    virtual Form3Fenster& Form3() = 0;
    virtual bool Form3Geladen() const = 0;
    virtual void Form3Entladen() = 0;
    virtual Form1Fenster& Form1() = 0;
    virtual void Form1Entladen() = 0;
    // Properties_Save.
    virtual void EinstellungenSpeichern() = 0;
    // NichtAktiviert of the tray host: icon, balloon, cycle off.
    virtual void NichtAktiviert() = 0;
};

// The raise sequence of every watcher: busy flag, Timer1 of Alarm off, the sound, the key,
// the record filled, Show and centre. The window shows even if filling throws.
void Warnen(WarnKontext& k, Kategorie kategorie, const std::function<void(Warnung&)>& füllen, Ton ton);

}  // namespace kes

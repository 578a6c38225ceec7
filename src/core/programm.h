// The running program: the process-wide values that Main and the settings fill and every
// unit reads, and the five windows, each a single instance that comes into being (and runs
// its load handler) the first time anything touches it. It is the context every layer
// below reaches the rest of the program through.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "assistant/assistent_kontext.h"
#include "common/werte.h"
#include "panel/alarm.h"
#include "panel/panel_kontext.h"
#include "platform/seam/plattform.h"
#include "warning/warn_kontext.h"

namespace kes {

class StartFenster;
class Form1Fenster;
class Form2Fenster;
class Form3Fenster;
class Fenster;

// Unload reasons: a session that ends, the task manager, and every other close.
inline constexpr int kEntladenNormal = 0;
inline constexpr int kEntladenSitzungsende = 2;
inline constexpr int kEntladenTaskmanager = 3;

class Programm : public Prozesswerte, public WarnKontext, public PanelKontext, public AssistentKontext {
public:
    explicit Programm(Plattform& plattform);
    ~Programm() override;
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    Plattform& p;

    // The windows. Touching one loads it.
    StartFenster& Start();
    AlarmFenster& Alarm() override;
    Form1Fenster& Form1() override;
    Form2Fenster& Form2();
    Form3Fenster& Form3() override;

    bool StartGeladen() const { return start_ != nullptr; }
    bool AlarmGeladen() const { return alarm_ != nullptr; }
    bool Form1Geladen() const { return form1_ != nullptr; }
    bool Form2Geladen() const { return form2_ != nullptr; }
    bool Form3Geladen() const override { return form3_ != nullptr; }
    // The loaded window or null, without loading it: for the views.
    StartFenster* StartZeiger() const { return start_.get(); }
    AlarmFenster* AlarmZeiger() const { return alarm_.get(); }
    Form1Fenster* Form1Zeiger() const { return form1_.get(); }
    Form2Fenster* Form2Zeiger() const { return form2_.get(); }
    Form3Fenster* Form3Zeiger() const { return form3_.get(); }

    // Unload: the window is gone for the logic at once; its memory is freed by Aufräumen,
    // after the event that unloaded it, since that event may still be running on it.
    void Form1Entladen() override;
    void Form2Entladen() override;
    void Form3Entladen() override;
    // Every way out of the program passes here; grund is the platform's unload reason.
    void AlarmEntladen(int grund);

    // Runs after every event the platform delivers.
    void Aufräumen();

    // A timer tick from the platform. Never throws.
    void TimerTick(int id);

    // Set by Main when the process must end at once (a second instance).
    bool Beenden = false;

    // The context of the layers below.
    Plattform& P() override { return p; }
    Prozesswerte& W() override { return *this; }
    std::int16_t Box(int index) override;
    bool Später(const std::string& schlüssel) override;
    void Warnen(Kategorie kategorie, const std::function<void(Warnung&)>& füllen, Ton ton) override;
    void Sprechblase(const std::string& titel, const std::string& text, const std::string& tip,
                     const std::string& icon) override;
    void Log(const std::string& titel, const std::vector<std::string>& zeilen, const std::string& ergebnis) override;
    void EinstellungenSpeichern() override;
    void NichtAktiviert() override;
    void AutostartHaken(bool an) override;
    Prozesse1& Prozesstabelle() override { return prozesstabelle_; }
    void Aktiviert() override;
    void AlarmSchliessen() override;
    void AlarmZeigen() override;
    void OptionMarkieren() override;
    void StufeZeigen(std::int16_t stufe) override;

private:
    std::unique_ptr<StartFenster> start_;
    std::unique_ptr<AlarmFenster> alarm_;
    std::unique_ptr<Form1Fenster> form1_;
    std::unique_ptr<Form2Fenster> form2_;
    std::unique_ptr<Form3Fenster> form3_;
    std::vector<std::unique_ptr<Fenster>> entladen_;
    // Which timer handlers are running now, by timer id.
    std::array<bool, 8> timerLäuft_{};
    Prozesse1 prozesstabelle_{p};
};

}  // namespace kes

// The running program: the process-wide values that Main and the settings fill and every
// unit reads, and the five windows, each a single instance that comes into being (and runs
// its load handler) the first time anything touches it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

class StartFenster;
class AlarmFenster;
class Form1Fenster;
class Form2Fenster;
class Form3Fenster;
class Fenster;

// Unload reasons: a session that ends, the task manager, and every other close.
inline constexpr int kEntladenNormal = 0;
inline constexpr int kEntladenSitzungsende = 2;
inline constexpr int kEntladenTaskmanager = 3;

// Timer ids of the window timers; the platform delivers ticks by these.
enum TimerId : int {
    kTimerAlarm1 = 1,   // Timer1 of Alarm: the watch cycle
    kTimerStart2 = 2,   // Timer2 of Start: the delayed second stage
    kTimerForm3_1 = 3,  // Timer1 of Form3: blinks the hidden-file box
};

class Programm {
public:
    explicit Programm(Plattform& plattform);
    ~Programm();
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    Plattform& p;

    // Process-wide values.
    std::string Programmordner;  // always ends in "\"
    std::string Windowsordner;   // no trailing "\"
    std::string Systemordner;    // no trailing "\"
    std::string Logkopf;
    std::int16_t Intervallstufe = 0;
    std::int16_t Soundflag = 0;
    bool Beschäftigt = false;  // the busy flag: true stops the watch cycle
    std::string Kategorie;     // the current category key
    std::int32_t Hostsgrösse = 0;
    std::array<std::string, 21> StartSeiten;
    bool AnzeigeLöschen = false;
    bool Zurücksetzen = false;
    // The tray record, reused for every call of the notification area.
    TrayRecord Tray;

    // The windows. Touching one loads it.
    StartFenster& Start();
    AlarmFenster& Alarm();
    Form1Fenster& Form1();
    Form2Fenster& Form2();
    Form3Fenster& Form3();

    bool StartGeladen() const { return start_ != nullptr; }
    bool AlarmGeladen() const { return alarm_ != nullptr; }
    bool Form1Geladen() const { return form1_ != nullptr; }
    bool Form2Geladen() const { return form2_ != nullptr; }
    bool Form3Geladen() const { return form3_ != nullptr; }
    // The loaded window or null, without loading it: for the views.
    StartFenster* StartZeiger() const { return start_.get(); }
    AlarmFenster* AlarmZeiger() const { return alarm_.get(); }
    Form1Fenster* Form1Zeiger() const { return form1_.get(); }
    Form2Fenster* Form2Zeiger() const { return form2_.get(); }
    Form3Fenster* Form3Zeiger() const { return form3_.get(); }

    // Unload: the window is gone for the logic at once; its memory is freed by Aufräumen,
    // after the event that unloaded it, since that event may still be running on it.
    void Form1Entladen();
    void Form2Entladen();
    void Form3Entladen();
    // Every way out of the program passes here; grund is the platform's unload reason.
    void AlarmEntladen(int grund);

    // Runs after every event the platform delivers.
    void Aufräumen();

    // A timer tick from the platform. Never throws.
    void TimerTick(int id);

    // Set by Main when the process must end at once (a second instance).
    bool Beenden = false;

private:
    std::unique_ptr<StartFenster> start_;
    std::unique_ptr<AlarmFenster> alarm_;
    std::unique_ptr<Form1Fenster> form1_;
    std::unique_ptr<Form2Fenster> form2_;
    std::unique_ptr<Form3Fenster> form3_;
    std::vector<std::unique_ptr<Fenster>> entladen_;
    // Which timer handlers are running now, by timer id.
    std::array<bool, 8> timerLäuft_{};
};

}  // namespace kes

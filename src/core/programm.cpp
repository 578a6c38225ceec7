#include "core/programm.h"

#include "assistant/form2.h"
#include "core/einstellungen.h"
#include "core/logdatei.h"
#include "core/start.h"
#include "core/tryicon.h"
#include "warning/form1.h"
#include "warning/form3.h"

namespace kes {

Programm::Programm(Plattform& plattform) : p(plattform) {
    p.timers.SetHandler([this](int id) { TimerTick(id); });
}

Programm::~Programm() {
    p.timers.SetHandler(nullptr);
}

// The pointer is set before the load handler runs, so a handler that touches its own
// window (or one that touches it back) finds it loaded instead of loading it twice.
StartFenster& Programm::Start() {
    if (!start_) {
        start_ = std::make_unique<StartFenster>(*this);
        start_->Form_Load();
    }
    return *start_;
}

AlarmFenster& Programm::Alarm() {
    if (!alarm_) {
        alarm_ = std::make_unique<AlarmFenster>(static_cast<PanelKontext&>(*this));
        alarm_->Form_Load();
        p.timers.Set(kTimerSofort, kSofortMs);
    }
    return *alarm_;
}

Form1Fenster& Programm::Form1() {
    if (!form1_) {
        form1_ = std::make_unique<Form1Fenster>(static_cast<WarnKontext&>(*this));
        form1_->Form_Load();
    }
    return *form1_;
}

Form2Fenster& Programm::Form2() {
    if (!form2_) {
        form2_ = std::make_unique<Form2Fenster>(static_cast<AssistentKontext&>(*this));
        form2_->Form_Load();
    }
    return *form2_;
}

Form3Fenster& Programm::Form3() {
    if (!form3_) {
        form3_ = std::make_unique<Form3Fenster>(static_cast<WarnKontext&>(*this));
        form3_->Form_Load();
    }
    return *form3_;
}

void Programm::Form1Entladen() {
    if (form1_) entladen_.push_back(std::move(form1_));
}

void Programm::Form2Entladen() {
    if (form2_) entladen_.push_back(std::move(form2_));
}

void Programm::Form3Entladen() {
    if (!form3_) return;
    form3_->Form_QueryUnload();
    form3_->Timer1.SetEnabled(false);
    entladen_.push_back(std::move(form3_));
}

void Programm::Aufräumen() {
    entladen_.clear();
}

void Programm::TimerTick(int id) {
    // Window timers never re-enter their own handler on the platform this program was built
    // for; here the walks pump messages, so a tick that falls due inside its own cycle is
    // dropped, as a late WM_TIMER is.
    if (id < 0 || id >= static_cast<int>(timerLäuft_.size()) || timerLäuft_[id]) return;
    timerLäuft_[id] = true;
    struct Ende {
        bool& läuft;
        ~Ende() { läuft = false; }
    } ende{timerLäuft_[id]};
    // Nothing may leave a timer callback; each routine handles its own errors.
    try {
        switch (id) {
            case kTimerAlarm1:
                if (alarm_ && alarm_->Timer1.Enabled()) alarm_->Timer1_Timer();
                break;
            case kTimerStart2:
                if (start_ && start_->Timer2.Enabled()) start_->Timer2_Timer();
                break;
            case kTimerAufAb0:
            case kTimerAufAb1:
                if (alarm_) alarm_->AufAb1.Tick(id == kTimerAufAb0 ? 0 : 1);
                break;
            case kTimerSofort:
                // A change source fired: the cycle's tick comes now, not at the end of its
                // interval, which stays as the clock of the places without a source. Inside
                // a running cycle nothing is asked: its later rows ask themselves, and what
                // fired for an earlier row still fires at the next ask.
                if (alarm_ && alarm_->Timer1.Enabled() && Sofort && !Beschäftigt && !timerLäuft_[kTimerAlarm1] &&
                    alarm_->Gefeuert())
                    TimerTick(kTimerAlarm1);
                break;
            case kTimerForm3_1:
                if (form3_ && form3_->Timer1.Enabled()) form3_->Timer1_Timer();
                break;
            default:
                break;
        }
    } catch (...) {
    }
}

std::int16_t Programm::Box(int index) {
    return Alarm().Box1.at(static_cast<std::size_t>(index)).value();
}

bool Programm::Später(const std::string& schlüssel) {
    return Alarm().Später(schlüssel);
}

void Programm::Warnen(Kategorie kategorie, const std::function<void(Warnung&)>& füllen, Ton ton) {
    kes::Warnen(*this, kategorie, füllen, ton);
}

void Programm::Sprechblase(const std::string& titel, const std::string& text, const std::string& tip,
                           const std::string& icon) {
    kes::Sprechblase(*this, titel, text, tip, 2, 3, icon);
}

void Programm::Log(const std::string& titel, const std::vector<std::string>& zeilen, const std::string& ergebnis) {
    LogEintrag(*this, titel, zeilen, ergebnis);
}

void Programm::EinstellungenSpeichern() {
    Properties_Save(*this);
}

void Programm::NichtAktiviert() {
    Start().NichtAktiviert();
}

void Programm::AutostartHaken(bool an) {
    Start().fox1[5].Checked = an;
}

void Programm::Aktiviert() {
    Start().Aktiviert();
}

void Programm::AlarmSchliessen() {
    AlarmEntladen(kEntladenNormal);
}

void Programm::AlarmZeigen() {
    Alarm().Show();
}

void Programm::OptionMarkieren() {
    Label& option = Alarm().Label1[0];
    option.BackColor = kLeisteGewählt;
    option.ForeColor = kLeisteGewähltText;
}

void Programm::StufeZeigen(std::int16_t stufe) {
    Alarm().AufAb1.SetText(std::to_string(stufe));
}

}  // namespace kes

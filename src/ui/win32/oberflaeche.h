// All views of the program: after every event it makes a view for each loaded window model,
// brings each in line with its model, and drops the views of unloaded windows.
#pragma once

#include <memory>

#include "ui/win32/alarm_ansicht.h"
#include "ui/win32/form1_ansicht.h"
#include "ui/win32/form2_ansicht.h"
#include "ui/win32/form3_ansicht.h"
#include "ui/win32/start_ansicht.h"

namespace kes::ui {

class Oberfläche {
public:
    explicit Oberfläche(Programm& prg) : prg_(prg) {}
    void Abgleichen();
    // Keyboard use of the panel and the assistant (Tab, Space, arrows): true when the
    // message was handled that way.
    bool Dialognachricht(MSG& m);

private:
    template <typename Ansicht, typename Modell>
    void Folgen(std::unique_ptr<Ansicht>& ansicht, Modell* modell);

    Programm& prg_;
    std::unique_ptr<StartAnsicht> start_;
    std::unique_ptr<AlarmAnsicht> alarm_;
    std::unique_ptr<Form2Ansicht> form2_;
    std::unique_ptr<Form3Ansicht> form3_;
    std::unique_ptr<Form1Ansicht> form1_;
    bool läuft_ = false;
};

}  // namespace kes::ui

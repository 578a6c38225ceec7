// The hosts file, watched by its size alone, and the online state, which switches the
// messenger service off while a dial-up connection is up.
#include "core/programm.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "platform/sysfolder.h"
#include "warning/form3.h"

namespace kes {

namespace {
std::string HostsPfad(Programm& prg) {
    return prg.Systemordner + "\\drivers\\etc\\hosts";
}
}  // namespace

void AlarmFenster::TesteHosts() {
    prg_.Kategorie = "HostsDatei";
    // A failing step is passed over and the next one runs, as everywhere in this routine.
    std::int64_t länge = 0;
    try {
        länge = prg_.p.files.Length(HostsPfad(prg_)).value_or(0);
    } catch (...) {
    }
    if (länge == prg_.Hostsgrösse) return;

    prg_.Beschäftigt = true;
    Timer1.SetEnabled(false);
    if (prg_.Soundflag == 1) SoundSpielen(prg_.p, "ALARM");
    try {
        Form3Fenster& f = prg_.Form3();
        for (int i = 1; i <= 4; ++i) f.Picture3[i].Visible = false;
        f.ListView2.Visible = false;
        f.Label1[0].Caption = "Ihre Hosts Datei wurde geändert.";
        f.Label1[1].Caption = HostsPfad(prg_);
        const Zahlenformat zf = prg_.p.system.NumberFormat();
        f.Label1[2].Caption = " [Neue Grösse " + GrösseFormat(static_cast<double>(länge), false, zf) +
                              "       Alte Grösse war: " + GrösseFormat(prg_.Hostsgrösse, false, zf) + " ]";
        f.Text1[0].Text = HostsPfad(prg_);
        f.Show();
        FensterMitte(prg_.p, f);
    } catch (...) {
    }
}

void AlarmFenster::TesteOnline() {
    try {
        const int anzahl = prg_.p.dialup.ConnectionCount();
        if (anzahl >= 1 && !NachrichtendienstGestoppt) {
            NachrichtendienstGestoppt = true;
            prg_.p.shell.RunCommand("Net stop Nachrichtendienst", kSwShowNormal);
        } else if (anzahl < 1 && NachrichtendienstGestoppt) {
            NachrichtendienstGestoppt = false;
            prg_.p.shell.RunCommand("Net start Nachrichtendienst", kSwShowNormal);
        }
    } catch (...) {
        // An unexpected error ends the routine without a message.
    }
}

}  // namespace kes

#include "watchers/hosts.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "watchers/warnung.h"

namespace kes {

std::string HostsOrdner(const Prozesswerte& w) {
    return w.Systemordner + "\\drivers\\etc";
}

std::string HostsPfad(const Prozesswerte& w) {
    return HostsOrdner(w) + "\\hosts";
}

void Hosts::TesteHosts() {
    Prozesswerte& w = k_.W();
    // The key is stored at every run, before anything is compared.
    w.Kategorieschlüssel = Kategorie::HostsDatei;
    // A missing or locked file counts as 0 bytes. The length is taken as the 32 bits the
    // saved size holds, as the accept action stores it: a file beyond 4 GB compares equal
    // again once its size is accepted.
    if (!w.Unverändert || !länge_) {
        länge_ = 0;
        try {
            länge_ = static_cast<std::int32_t>(k_.P().files.Length(HostsPfad(w)).value_or(0));
        } catch (...) {
        }
    }
    const std::int32_t länge = *länge_;
    if (länge == w.Hostsgrösse) return;

    // Each step is passed over on its own when it fails, so a partly filled window can
    // appear; the window itself always shows.
    k_.Warnen(Kategorie::HostsDatei, [&](Warnung& f) {
        Übergehen([&] {
            for (int i = 1; i <= 4; ++i) f.Picture3[i].Visible = false;
        });
        Übergehen([&] { f.ListView2.Visible = false; });
        Übergehen([&] { f.Label1[0].Caption = "Ihre Hosts Datei wurde geändert."; });
        Übergehen([&] { f.Label1[1].Caption = HostsPfad(w); });
        Übergehen([&] {
            const Zahlenformat zf = k_.P().system.NumberFormat();
            f.Label1[2].Caption = " [Neue Grösse " + GrösseFormat(static_cast<double>(länge), false, zf) +
                                  "       Alte Grösse war: " + GrösseFormat(w.Hostsgrösse, false, zf) + " ]";
        });
        Übergehen([&] { f.Text1[0].Text = HostsPfad(w); });
    });
}

void Hosts::TesteOnline() {
    try {
        const int anzahl = k_.P().dialup.ConnectionCount();
        if (anzahl >= 1 && !NachrichtendienstGestoppt) {
            NachrichtendienstGestoppt = true;
            k_.P().shell.RunCommand("Net stop Nachrichtendienst", kSwShowNormal);
        } else if (anzahl < 1 && NachrichtendienstGestoppt) {
            NachrichtendienstGestoppt = false;
            k_.P().shell.RunCommand("Net start Nachrichtendienst", kSwShowNormal);
        }
    } catch (...) {
        // An unexpected error ends the routine without a message.
    }
}

}  // namespace kes

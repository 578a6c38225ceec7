// The other buttons of the warning window: end a process, the file warnings' own answers,
// put off until the end of the run, put an original back, open a tool; and the menus
// behind them.
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "warning/aktionen.h"
#include "warning/antwort.h"
#include "warning/form3.h"
#include "warning/kategorien.h"
#include "watchers/alarm_daten.h"
#include "watchers/hosts.h"

namespace kes {

namespace weitere {
void HostsMenü(Form3Fenster& f) {
    f.Popup = PopupWunsch{"host", 0, false, 0};  // the menu finishes the job
}
void HostsÖffnen(Form3Fenster& f) {
    f.K().P().shell.RunCommand("notepad.exe " + HostsPfad(f.K().W()), kSwShowNormal);
}
void DiensteÖffnen(Form3Fenster& f) {
    ImmerOben(f, false);
    f.K().P().shell.RunCommand("mmc.exe " + f.K().W().Windowsordner + "\\system32\\services.msc", kSwShowNormal);
}
}  // namespace weitere

void Form3Fenster::Image2_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).töten) return a(*this);
    raus();
}

void Form3Fenster::Image4_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).ausnahme) return a(*this);
    raus();
}

void Form3Fenster::Image5_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).nagut) return a(*this);
    raus();
}

void Form3Fenster::Image6_Click() {
    if (const Aufschub text = Zeile(k_.W().Kategorieschlüssel).später) k_.Alarm().List8.Items.push_back(text(*this));
    raus();
}

void Form3Fenster::Image8_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).original) return a(*this);
    raus();
}

void Form3Fenster::Image9_Click() {
    if (const Aktion a = Zeile(k_.W().Kategorieschlüssel).infos) a(*this);
}

void Form3Fenster::host1_Click(int index) {
    try {
        Antwort antwort(*this, host1[static_cast<std::size_t>(index == 1)].Caption);
        Hosts(index);
    } catch (const SicherungFehlt&) {
        // The user has been told; the hosts file stands as it was, and the window stays.
    }
}

void Form3Fenster::Hosts(int index) {
    const std::string hosts = HostsPfad(k_.W());
    Plattform& p = k_.P();
    if (index == 0 || index == 1) {
        Sicherung s = SicherungFür(*this);
        s.Datei(hosts);
        Sichern(*this, s);
    }
    // Errors are passed over: the size is taken of whatever stands there afterwards, and a
    // length that cannot be read leaves the saved size as it was. The program's own file is
    // read before the old one goes, so that a lost copy of it never costs the user theirs.
    if (index == 0) {
        DateiErsetzen(p.files, hosts, "127.0.0.1  localhost\r\n#Orginal Host Datei\r\n");
    } else if (index == 1) {
        if (const auto eigene = p.files.ReadAll(k_.W().Programmordner + "daten\\hosts"))
            DateiErsetzen(p.files, hosts, *eigene);
    }
    if (const auto länge = p.files.Length(hosts)) k_.W().Hostsgrösse = static_cast<std::int32_t>(*länge);
    raus();
}

void Form3Fenster::killprozess1_Click(int index) {
    Antwort antwort(*this, killprozess1[static_cast<std::size_t>(index < 0 || index > 2 ? 0 : index)].Caption);
    weitere::ProzessZulassen(*this, index);
}

}  // namespace kes

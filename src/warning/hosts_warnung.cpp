// The answers of a hosts file warning: its new size accepted, the file put back through a
// menu, or opened in the editor.
#include "warning/hosts_warnung.h"

#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "warning/antwort.h"
#include "warning/form3.h"
#include "warning/uebernehmen.h"
#include "watchers/hosts.h"

namespace kes {

namespace übernehmen {
bool HostsDatei(Form3Fenster& f) {
    // No list and no log entry: raus stores the new size with the settings.
    f.K().W().Hostsgrösse = static_cast<std::int32_t>(DateiLänge(f, HostsPfad(f.K().W())));
    return true;
}
}  // namespace übernehmen

namespace weitere {
void HostsMenü(Form3Fenster& f) {
    f.Popup = PopupWunsch{"host", 0, false, 0};  // the menu finishes the job
}
void HostsÖffnen(Form3Fenster& f) {
    f.K().P().shell.RunCommand("notepad.exe " + HostsPfad(f.K().W()), kSwShowNormal);
}
}  // namespace weitere

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

}  // namespace kes

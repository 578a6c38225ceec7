// The other buttons of the warning window that the categories watched so far use: put off
// until the end of the run, put the hosts file back, and open it in the editor.
#include "core/programm.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "platform/sysfolder.h"
#include "warning/form3.h"

namespace kes {

void Form3Fenster::Image6_Click() {
    const std::string& k = prg_.Kategorie;
    auto zeile2 = [this]() { return ListView2.Items.size() >= 2 ? ListView2.Items[1].Text : std::string(); };
    std::string text;
    bool hinzu = true;
    if (k == "ToolBar" || k == "URLSearchHooks" || k == "WindowsDatei" || k == "BHO" || k == "ShellService") {
        text = Text1[0].Text;
    } else if (k == "Dienste" || k == "HtaFile") {
        text = Text1[3].Text;
    } else if (k == "TaskScheduler") {
        text = Text1[1].Text;
    } else if (k == "Prozesse" || k == "AutostartOrdner" || k == "ActiveX") {
        text = zeile2();
    } else if (k == "StartPage" || k == "Favorit1" || k == "Favorit2" || k == "Favoriten" || k == "DFÜ" ||
               k == "HostsDatei") {
        text = Label1[1].Caption;
    } else if (k == "AutostartRegistry") {
        const ListItem leer;
        const ListItem& z = ListView4.Items.empty() ? leer : ListView4.Items[0];
        // Without the data: a deferred value that changes stays deferred.
        text = z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3);
    } else {
        hinzu = false;  // "ToolBar1" among them: no deferral, the warning comes again
    }
    if (hinzu) prg_.Alarm().List8.Items.push_back(text);
    raus();
}

void Form3Fenster::Image8_Click() {
    if (prg_.Kategorie == "HostsDatei") {
        Popup = PopupWunsch{"host", 0, false, 0};
        return;  // the menu finishes the job
    }
    raus();
}

void Form3Fenster::host1_Click(int index) {
    const std::string hosts = Sysfolder(prg_.p, kCsidlSystem) + "\\drivers\\etc\\hosts";
    // Errors are passed over: the size is taken of whatever stands there afterwards.
    if (DateiVorhanden(prg_.p, hosts)) prg_.p.files.Delete(hosts);
    if (index == 0) {
        prg_.p.files.WriteAll(hosts, "127.0.0.1  localhost\r\n#Orginal Host Datei\r\n");
    } else if (index == 1) {
        if (const auto eigene = prg_.p.files.ReadAll(prg_.Programmordner + "daten\\hosts"))
            prg_.p.files.WriteAll(hosts, *eigene);
    }
    prg_.Hostsgrösse = static_cast<std::int32_t>(prg_.p.files.Length(hosts).value_or(0));
    raus();
}

void Form3Fenster::Image9_Click() {
    const std::string& k = prg_.Kategorie;
    if (k == "Dienste") {
        ImmerOben(*this, false);
        prg_.p.shell.RunCommand("mmc.exe " + prg_.Windowsordner + "\\system32\\services.msc", kSwShowNormal);
    } else if (k == "HostsDatei") {
        prg_.p.shell.RunCommand("notepad.exe " + prg_.Systemordner + "\\drivers\\etc\\hosts", kSwShowNormal);
    }
}

}  // namespace kes

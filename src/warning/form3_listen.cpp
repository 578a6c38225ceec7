// The clicks into the panes of the warning window: a folder opened, a module shown, the
// registry editor opened at the warned-of key.
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/infos.h"
#include "platform/prozesse1.h"
#include "warning/form3.h"

namespace kes {

void Form3Fenster::ListView2_ItemClick(int index) {
    if (ListView2.Items.empty() || index < 1 || index > static_cast<int>(ListView2.Items.size())) return;
    ListView2Index = index;
    Merktext = DateiOrdner(ListView2.Items[index - 1].Text);
    if (index == 2) Popup = PopupWunsch{"Prozesse", 0, false, -355};
}

void Form3Fenster::Prozesse1_Click(int) {
    // The folder comes from what the warning found, registry data among it. Explorer reads
    // a comma as the end of an argument and a leading "/" as a switch, and opens (runs) a
    // file that stands alone as an argument: such a folder is not handed over.
    const bool schalter = !Merktext.empty() && (Merktext.front() == '/' || Merktext.front() == '-');
    bool steuerzeichen = false;
    for (const char c : Merktext) steuerzeichen = steuerzeichen || static_cast<unsigned char>(c) < 0x20;
    if (schalter || steuerzeichen || Merktext.find_first_of(",\"") != std::string::npos) {
        k_.P().dialogs.ShowMessage("Der Ordner kann nicht geöffnet werden:\r\n" + Merktext +
                                       "\r\nSein Name enthält Zeichen, die der Explorer als Befehl lesen würde.",
                                   "Achtung!", kMbOk | kMbIconExclamation);
        return;
    }
    k_.P().shell.RunCommand("explorer.exe " + Merktext, 3);
}

void Form3Fenster::ListView3_ItemClick(int index) {
    if (index < 1 || index > static_cast<int>(ListView3.Items.size())) return;
    try {
        const ListItem& item = ListView3.Items[index - 1];
        const std::string pfad = item.SubItem(1);
        lblModName.Caption = item.Text;
        txtMdlSPath.Text = KurzerPfad(k_.P(), pfad);
        txtMdlLPath.Text = pfad;
        DateiVersion v;
        DateiInfos(k_.P(), pfad, v);
        txtMdlDesc.Text = v.FileDescription;
    } catch (...) {
        // No error leaves a click: what was filled stays.
    }
}

void Form3Fenster::ListView4_ItemClick(int index) {
    if (ListView4.Items.empty() || index < 1 || index > static_cast<int>(ListView4.Items.size())) return;
    ListView4Index = index;
    const ListItem& item = ListView4.Items[index - 1];
    regedit1[0].Caption = "\"" + item.SubItem(3) + "\" --> mit Regedit öffnen";
    if (item.SubItem(6).empty())
        regedit1[1].Enabled = false;
    else
        regedit1[1].Caption =
            "Folge CLISD: \"" + item.SubItem(6) + "\\" + item.SubItem(7) + "\" --> mit Regedit öffnen";
    Popup = PopupWunsch{"regedit", 0, true, 0};
}

void Form3Fenster::regedit1_Click(int index) {
    ImmerOben(*this, false);
    if (ListView4Index < 1 || ListView4Index > static_cast<int>(ListView4.Items.size())) return;
    const ListItem& item = ListView4.Items[ListView4Index - 1];
    const std::string schlüssel =
        index == 0 ? item.SubItem(1) + "\\" + item.SubItem(2) : item.SubItem(6) + "\\" + item.SubItem(7);
    HiveOCX(k_.P().registry)
        .WriteValue(1, "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit", "LastKey", schlüssel);
    k_.P().shell.RunCommand("regedit.exe", kSwShowNormal);
}

}  // namespace kes

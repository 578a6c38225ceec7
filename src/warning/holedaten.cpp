// The detail panes of the warning window: a file's version texts, times, size and
// attributes, and the clicks into the lists that open a folder, show a module, or open the
// registry editor at the warned-of key.
#include "core/programm.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/infos.h"
#include "platform/prozesse1.h"
#include "warning/form3.h"

namespace kes {

namespace {
constexpr long kGrau = 0xC0C0C0;
constexpr long kBlau = 0xFF0000;  // blue-green-red order
constexpr long kRot = 255;

struct Zeile {
    const char* links;
    const char* rechts;  // nullptr: the row has no right half
};
constexpr Zeile kZeilen[12] = {
    {"Hersteller:", "Erstellt:"},
    {"Produktname:", "Letzter Zugriff:"},
    {"Produkt Version:", "Letzter Schreibvorgang:"},
    {"Description:", " "},
    {"Datei Version:", "ProzessID:"},
    {"Interner Name:", "Threads:"},
    {"Copyright:", "Typ:"},
    {"Original Name:", "Grösse:"},
    {"Infos:", nullptr},
    {"LegalTradeMarks:", nullptr},
    {"PrivateBuild:", nullptr},
    {"SpecialBuild:", nullptr},
};

// The bits in the order they are tested, with the box each one lights.
struct Bit {
    std::uint32_t maske;
    int box;
};
constexpr Bit kBits[] = {{1, 5}, {32, 0}, {2048, 1}, {2, 3}, {128, 4}, {4, 6}, {4, 7}};
}  // namespace

void holedaten(Programm& prg, std::string& pfad) {
    Plattform& p = prg.p;
    Form3Fenster& f = prg.Form3();
    ListView& liste = f.ListView1;

    for (const auto& z : kZeilen) {
        ListItem& item = liste.Add(z.links);
        item.SetSubItem(1, "");
        if (z.rechts) {
            item.SetSubItem(2, z.rechts);
            item.SetSubItem(3, "");
        }
    }
    const std::size_t erste = liste.Items.size() - 12;
    auto zeile = [&](int n) -> ListItem& { return liste.Items[erste + n - 1]; };

    DateiVersion v;
    DateiInfos(p, pfad, v);
    const DateiKurz kurz = DateiKurzinfo(p, pfad);
    const std::string* werte[12] = {&v.CompanyName, &v.ProductName,     &v.ProductVersion, &v.FileDescription,
                                    &v.FileVersion, &v.InternalName,    &v.LegalCopyright, &v.OriginalFileName,
                                    &v.Comments,    &v.LegalTrademarks, &v.PrivateBuild,   &v.SpecialBuild};
    for (int n = 1; n <= 12; ++n) zeile(n).SetSubItem(1, *werte[n - 1]);
    const bool unbekannt = zeile(1).SubItem(1) == "Unbekannt";
    if (unbekannt) ListeFärben(liste, kGrau, 0, static_cast<int>(erste) + 1);

    zeile(7).SetSubItem(3, kurz.Typ);
    // A file that is gone has no length: the size stays empty.
    if (const auto länge = p.files.Length(pfad))
        zeile(8).SetSubItem(3, GrösseFormat(static_cast<double>(*länge), true, p.system.NumberFormat()));

    if (DateiVorhanden(p, pfad)) {
        Zeitpunkt erstellt, zugriff, geschrieben;
        if (DateiZeiten(p, pfad, erstellt, zugriff, geschrieben)) {
            zeile(1).SetSubItem(3, erstellt.Text());
            zeile(2).SetSubItem(3, zugriff.Text());
            zeile(3).SetSubItem(3, geschrieben.Text());
        }
    }

    // One question to the file system per bit. A missing path answers with every bit set,
    // as the platform does.
    for (const auto& bit : kBits) {
        if (!(p.files.GetAttributes(pfad) & bit.maske)) continue;
        f.Check1[bit.box].Enabled = true;
        f.Check1[bit.box].Value = 1;
        if (bit.box == 3) f.Timer1.SetEnabled(true);
    }

    // Labels blue, values red, right labels blue; the grey of an unknown maker stays.
    for (std::size_t i = erste; i < liste.Items.size(); ++i) {
        if (unbekannt && i == erste) continue;
        const int n = static_cast<int>(i) + 1;
        ListeFärben(liste, kBlau, 1, n);
        ListeFärben(liste, kRot, 2, n);
        ListeFärben(liste, kBlau, 3, n);
    }
    // The view draws these colours and gives the columns the widths the list asks for.
}

void Form3Fenster::ListView2_ItemClick(int index) {
    if (ListView2.Items.empty() || index < 1 || index > static_cast<int>(ListView2.Items.size())) return;
    ListView2Index = index;
    Merktext = DateiOrdner(ListView2.Items[index - 1].Text);
    if (index == 2) Popup = PopupWunsch{"Prozesse", 0, false, -355};
}

void Form3Fenster::Prozesse1_Click(int) {
    prg_.p.shell.RunCommand("explorer.exe " + Merktext, 3);
}

void Form3Fenster::ListView3_ItemClick(int index) {
    if (index < 1 || index > static_cast<int>(ListView3.Items.size())) return;
    try {
        const ListItem& item = ListView3.Items[index - 1];
        const std::string pfad = item.SubItem(1);
        lblModName.Caption = item.Text;
        txtMdlSPath.Text = KurzerPfad(prg_.p, pfad);
        txtMdlLPath.Text = pfad;
        DateiVersion v;
        DateiInfos(prg_.p, pfad, v);
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
    HiveOCX(prg_.p.registry)
        .WriteValue(1, "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit", "LastKey", schlüssel);
    prg_.p.shell.RunCommand("regedit.exe", kSwShowNormal);
}

}  // namespace kes

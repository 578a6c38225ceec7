#include "watchers/warnung.h"

#include "platform/allefunktionen.h"
#include "platform/infos.h"

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

// Heights of the five panes and of the bar of buttons, in pixels.
constexpr int kPaneHöhe[5] = {126, 236, 72, 84, 180};
constexpr int kLeisteHöhe = 56;
}  // namespace

Warnung::Warnung(TimerApi& timers, int blinkTimerId) : Timer1(timers, blinkTimerId, 500) {
    for (int i = 0; i < 5; ++i) Picture3[i].Height = kPaneHöhe[i];
    Picture2.Height = kLeisteHöhe;
    Label3 = {Label{"Übernehmen"}, Label{"Kill Prozess"}, Label{"Löschen"}, Label{"Ausnahmeliste"},
              Label{"Na gut.."},   Label{"Freigeben"},    Label{"Später"},  Label{"Mehr Infos"}};
    // Only "Später" and the switch-off button show from the start.
    for (int i = 1; i <= 9; ++i) Image[i].Visible = (i == 6 || i == 7);
    for (int k = 0; k < 8; ++k) Label3[k].Visible = (k == 6);
    Image[6].ToolTipText = "Später den Eintrag  auswerten.";
    Image[7].ToolTipText = "Kestrella sofort Deaktivieren";

    static const char* kSpalten[] = {"Name", "Subkey", "ValueKey", "Wert", "Folge CLISD", "Wert"};
    ListView4.Columns.assign(std::begin(kSpalten), std::end(kSpalten));
    ListView1.Columns = {"Eigenschaft", "Wert", "Eigenschaft", "Wert"};
    ListView1.ColumnWidths = {110, 0, 150, 0};
    ListView2.Columns = {"Eintrag"};
    ListView3.Columns = {"Modul", "Pfad"};
    static const char* kAttribute[] = {"Archiv", "Komprimiert", "Ordner", "Versteckt",
                                       "Normal", "Read Only",   "System", "Temp"};
    for (int i = 0; i < 8; ++i) {
        Check1[i].Caption = kAttribute[i];
        Check1[i].Enabled = false;
    }
}

int Warnung::LabelVon(int image) {
    switch (image) {
        case 1:
            return 0;
        case 2:
            return 1;
        case 3:
            return 2;
        case 4:
            return 3;
        case 5:
            return 4;
        case 8:
            return 5;
        case 6:
            return 6;
        case 9:
            return 7;
        default:
            return -1;
    }
}

void Warnung::Zeigen(int image) {
    Image[image].Visible = true;
    const int k = LabelVon(image);
    if (k >= 0) Label3[k].Visible = true;
}

std::string Warnung::Zeile2() const {
    return ListView2.Items.size() >= 2 ? ListView2.Items[1].Text : std::string();
}

void holedaten(Plattform& p, Warnung& f, std::string& pfad) {
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

}  // namespace kes

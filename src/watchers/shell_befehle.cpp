#include "watchers/shell_befehle.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "watchers/selbsttaetig.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
constexpr const char* kHkcr = "HKEY_CLASSES_ROOT";
constexpr const char* kHklm = "HKEY_LOCAL_MACHINE";

struct Befehlsschlüssel {
    const char* hive;
    const char* key;
};
// The order is the program's own: com before bat in the first hive, bat before com in the
// second. The last two take the expected text of hta.
constexpr Befehlsschlüssel kSchlüssel[10] = {
    {kHkcr, "exefile\\shell\\open\\command"},
    {kHkcr, "comfile\\shell\\open\\command"},
    {kHkcr, "batfile\\shell\\open\\command"},
    {kHkcr, "piffile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\exefile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\batfile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\comfile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\piffile\\shell\\open\\command"},
    {kHkcr, "htafile\\Shell\\Open\\Command"},
    {kHklm, "Software\\CLASSES\\htafile\\Shell\\Open\\Command"},
};
constexpr int kErsterHta = 8;

// The default value is named by one NUL character.
const std::string kStandardwert(1, '\0');

int HiveCode(const std::string& hive) {
    return hive == kHkcr ? 0 : 2;
}

// A failing step is passed over and the next one runs.
}  // namespace

ShellBefehle::ShellBefehle(WächterKontext& k, std::array<TextBox, 3>& Text5) : Text5(Text5), k_(k) {
    Text5[0].Text = "\"%1\" %*";
    Text5[1].Text = "\"%1\" %*";
    Text5[2].Text = "mshta.exe \"%1\" %*";
}

void ShellBefehle::TesteHTafile() {
    // Renewed at every call: an edit of Text5(0) never counts, one of Text5(1) does.
    Text5[0].Text = Text5[1].Text;
    for (int i = 0; i < 10; ++i) {
        if (i == kErsterHta) Text5[0].Text = Text5[2].Text;
        const Befehlsschlüssel& s = kSchlüssel[i];
        // A missing class or value reads as empty, which differs from any expected text.
        std::string gefunden;
        Übergehen([&] { gefunden = HiveOCX(k_.P().registry).ReadValue(HiveCode(s.hive), s.key, kStandardwert); });
        if (Text5[0].Text == gefunden) continue;
        if (Behandeln(s.hive, s.key, gefunden)) return;
    }
}

bool ShellBefehle::Behandeln(const std::string& hive, const std::string& key, const std::string& gefunden) {
    const std::string aufschub = hive + "\\" + key;
    if (k_.Später(aufschub)) return false;
    const std::string erwartet = Text5[0].Text;
    // "Alter Wert" is the expected text, "Neuer Wert" the one found; the words stand so.
    const std::string werte = "Alter Wert: " + erwartet + "      Neuer Wert: " + gefunden;

    if (k_.Box(31) == 1) {
        if (k_.W().Soundflag == 1) Übergehen([&] { SoundSpielen(k_.P(), "AUTO"); });
        // A key that cannot be written, or saved first, keeps its value and comes up again
        // next cycle.
        Sicherung s = SelbstSicherung(k_);
        s.Wert(HandleVonHive(HiveCode(hive)), key, "");
        const std::optional<std::string> name = SelbstSichern(k_, s);
        if (!name) return true;
        Übergehen([&] { HiveOCX(k_.P().registry).WriteValue(HiveCode(hive), key, kStandardwert, erwartet); });
        SelbstJournal(k_, Kategorie::HtaFile, aufschub, "Original", *name,
                      {"Registryschlüssel wurde geändert.", werte});
        // The tip is the one the program has always left on the icon here.
        if (k_.Box(7) == 1)
            Übergehen([&] { k_.Sprechblase("Geändert: " + aufschub, werte, "IExplorer Favorit", "BLINKTRAY"); });
        return true;  // the keys behind this one wait for the next cycle
    }

    if (k_.Später(aufschub)) return false;
    k_.Warnen(Kategorie::HtaFile, [&](Warnung& f) {
        Übergehen([&] {
            f.Label1[0].Caption = "Registryschlüssel wurde geändert.";
            f.Label1[1].Caption = aufschub;
            f.Label1[2].Caption = werte;
        });
        Übergehen([&] { f.ListView2.Visible = false; });
        Übergehen([&] {
            ListItem& reihe = f.ListView4.Add("Autostart");
            reihe.SmallIcon = 1;
            reihe.SetSubItem(1, hive);
            reihe.SetSubItem(2, key);
            reihe.SetSubItem(3, "(Standart)");
            reihe.SetSubItem(4, erwartet);
        });
        Übergehen([&] {
            for (int p : {2, 4, 1}) f.Picture3[p].Visible = false;
        });
        // Hive, key and expected text for "Original"; the deferred key for "Später".
        Übergehen([&] {
            f.Text1[0].Text = hive;
            f.Text1[1].Text = key;
            f.Text1[2].Text = erwartet;
            f.Text1[3].Text = aufschub;
        });
        // Picture 4 of the window's own image list; the view fits the columns.
        Übergehen([&] { f.picProcIcon.Bild = 4; });
    });
    return true;
}

std::array<std::string, 10> ShellBefehle::Orte() {
    std::array<std::string, 10> orte;
    for (std::size_t i = 0; i < orte.size(); ++i) orte[i] = std::string(kSchlüssel[i].hive) + "\\" + kSchlüssel[i].key;
    return orte;
}

}  // namespace kes

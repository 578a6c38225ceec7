// The picture numbers the watchers give: the rows of each warning's name list (ListView2)
// and registry row (ListView4) and the picture of its picture box, and the rows of the
// panel's baseline lists after loading. Each case on a fresh program.
#include <functional>
#include <memory>

#include "warn_lesen.h"

namespace kes::test {
namespace {

using Bilder = std::vector<int>;
const std::string kHklm = "HKEY_LOCAL_MACHINE\\";

Bilder BilderVon(const ListView& l) {
    Bilder b;
    for (const auto& z : l.Items) b.push_back(z.SmallIcon);
    return b;
}

TEST(Bildnummern, EachWarning_GivesItsRowsAndItsPictureBoxTheirPictures) {
    const std::string autostart = "C:\\Dokumente und Einstellungen\\Benutzer\\Startmenü\\Programme\\Autostart";
    const std::string favoriten = "C:\\Dokumente und Einstellungen\\Benutzer\\Favoriten";
    // picProcIcon: the picture of the window's own list; 0 where the file's icon shows.
    const auto fall = [&](const char* name, Bilder listView2, Bilder listView4, int picProcIcon,
                          const std::function<void(Lauf&)>& auslösen) {
        SCOPED_TRACE(name);
        auto l = std::make_unique<Lauf>();
        l->fp.files.MakeDirs(autostart);
        l->fp.files.MakeDirs(favoriten + "\\Links");
        l->a().Timer1.SetEnabled(true);
        auslösen(*l);
        ASSERT_TRUE(l->prg.Form3Geladen());
        const Form3Fenster& f = l->prg.Form3();
        EXPECT_EQ(BilderVon(f.ListView2), listView2);
        EXPECT_EQ(BilderVon(f.ListView4), listView4);
        EXPECT_EQ(f.picProcIcon.Bild, picProcIcon);
    };
    fall("Favoriten", {}, {}, 2, [&](Lauf& l) {
        l.fp.files.Put(favoriten + "\\neu.url", "x");
        l.prg.Kategorieschlüssel = Kategorie::Favorit1;
        l.a().favoriten.TesteFavoriten();
    });
    fall("StartPage", {}, {}, 1, [](Lauf& l) {
        l.fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                                "http://fremd.example/");
        l.a().startSeite.TesteStartPage();
    });
    fall("DFÜ", {}, {}, 3, [](Lauf& l) {
        l.fp.dialup.einträge.push_back({"Neu", DfuEintrag{49, "", "0190123"}});
        l.a().dfü.TesteDFÜ();
    });
    fall("AutostartOrdner", {4, 5}, {}, 0, [&](Lauf& l) {
        l.fp.files.Put(autostart + "\\neu.lnk", "x");
        l.prg.Kategorieschlüssel = Kategorie::Ordnermeister;
        l.a().autostartOrdner.TesteAutostartOrdner();
    });
    fall("AutostartRegistry", {4, 5}, {0}, 0, [](Lauf& l) {
        l.fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool",
                                "C:\\Tool\\tool.exe");
        l.a().autostartRegistry.TesteAutostartRegistry();
    });
    fall("WindowsDatei", {4, 5}, {}, 0, [](Lauf& l) {
        l.a().Box1[16].setValue(1);
        l.a().windowsDateien.LadeWindows();
        l.fp.files.Put("C:\\WINDOWS\\neu.exe", "MZ");
        l.a().windowsDateien.TesteWindowsGelöscht();  // lists the folder for the next
        l.a().windowsDateien.TesteWindowsErstellt();
    });
    fall("BHO", {4, 5}, {1}, 0, [](Lauf& l) {
        l.fp.registry.SetString(
            kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\{B1}", "",
            "Hilfe");
        l.Server("{B1}", "C:\\WINDOWS\\hilfe.dll");
        l.a().klassenlisten.TesteBHO();
    });
    fall("ActiveX", {4, 5}, {}, 0, [](Lauf& l) {
        l.fp.files.Put("C:\\WINDOWS\\Downloaded Program Files\\flash.ocx", "MZ");
        l.a().activeX.Testeactivx();
    });
    fall("Dienste", {4, 5, 1}, {1}, 0, [](Lauf& l) {
        const std::string k = kHklm + "System\\CurrentControlSet\\Services\\Neu";
        l.fp.registry.SetDword(k, "Start", 2);
        l.fp.registry.SetString(k, "ImagePath", "C:\\neu.exe");
        l.a().dienste.TesteDienste();
    });
    fall("HtaFile", {}, {1}, 4, [](Lauf& l) {
        l.fp.registry.SetString(kHklm + "Software\\Classes\\exefile\\shell\\open\\command", "", "boese.exe");
        l.a().shellBefehle.TesteHTafile();
    });
    fall("ToolBar", {1}, {1}, 0, [](Lauf& l) {
        l.fp.registry.SetDword(
            kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\b.example",
            "http", 2);
        l.a().vertrauenswürdigeSeiten.TesteToolBar();
    });
}

TEST(Bildnummern, PanelBaselines_GiveEveryLoadedRowTheListsPicture) {
    const struct {
        const char* datei;
        const char* inhalt;
        ListView AlarmDaten::*liste;
        int bild;
    } fälle[] = {
        {"AutostartREG.txt", "HKEY_CURRENT_USER\\Run\\a\\a.exe\r\nHKEY_CURRENT_USER\\Run\\b\\b.exe\r\n",
         &AlarmDaten::ListView1, 26},
        {"bho.ini", "[1]\r\nPfad=C:\\a.dll\r\nClisd={A}\r\n[3]\r\nPfad=C:\\b.dll\r\nClisd={B}\r\n",
         &AlarmDaten::ListView8, 14},
        {"shellservice.ini", "[1]\r\nName=a\r\nClisdwert=C:\\a.dll\r\n[2]\r\nName=b\r\n", &AlarmDaten::ListView9, 13},
        {"taskscheduler.ini", "[1]\r\nName=a\r\n", &AlarmDaten::ListView10, 13},
        {"dienste.ini", "[1]\r\nDienst=A\r\nImagePath=C:\\a.exe\r\n[2]\r\nDienst=B\r\n", &AlarmDaten::ListView11, 13},
        {"V_seiten.txt", "a.example\r\nb.example\r\n", &AlarmDaten::ListView12, 1},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.datei);
        Lauf l;
        l.fp.files.Put(l.prg.Programmordner + "daten\\" + fall.datei, fall.inhalt);
        const ListView& liste = l.a().*fall.liste;  // the first touch loads every list
        ASSERT_FALSE(liste.Items.empty());
        EXPECT_EQ(BilderVon(liste), Bilder(liste.Items.size(), fall.bild));
    }
}

}  // namespace
}  // namespace kes::test

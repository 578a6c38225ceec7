// "Später" by category, and the hosts file's "Original" menu and "Öffnen".
#include "warnung_test.h"

namespace kes::test {
namespace {

class WeitereAktionen : public AntwortFenster {};

TEST_F(WeitereAktionen, Spaeter_AddsTheTextOfItsCategoryAndCloses) {
    Form3Fenster& r = Warnung(Kategorie::AutostartRegistry);
    ListItem& z = r.ListView4.Add("Autostart");
    for (const auto& [i, text] : {std::pair{1, "HKEY_CURRENT_USER"}, {2, "Software\\Run"}, {3, "Tool"}, {4, "t.exe"}})
        z.SetSubItem(i, text);
    r.Image_Click(6);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);

    Mit(Kategorie::TaskScheduler, {"", "{T}"}).Image_Click(6);
    Form3Fenster& h = Warnung(Kategorie::HostsDatei);
    h.Label1[1].Caption = hostsPfad;
    h.Image_Click(6);
    Mit(Kategorie::ToolBar1, {"nicht.example"}).Image_Click(6);
    // The keys the watchers ask by: a process by its name, a favourite by its file.
    MitDatei(Kategorie::Prozesse, "neu.exe", "C:\\NEU\\NEU.EXE").Image_Click(6);
    Form3Fenster& f = Warnung(Kategorie::Favoriten);
    f.Label1[1].Caption = "C:\\Fav\\";
    f.Label1[2].Caption = "x.url";
    f.Image_Click(6);
    EXPECT_EQ(prg.Alarm().List8.Items, (std::vector<std::string>{"HKEY_CURRENT_USER\\Software\\Run\\Tool", "{T}",
                                                                 hostsPfad, "neu.exe", "C:\\Fav\\x.url"}))
        << "ToolBar1 defers nothing";
    EXPECT_TRUE(prg.Alarm().Später("HKEY_CURRENT_USER\\Software\\Run\\Tool"));
    EXPECT_FALSE(prg.Alarm().Später("hkey_current_user\\Software\\Run\\Tool")) << "the deferred list heeds case";
}

TEST_F(WeitereAktionen, HostsOriginal_OpensItsMenuAndWritesTheChosenFile) {
    fp.files.Put(hostsPfad, "127.0.0.1 boese.example\r\n");
    fp.files.Put(ordner + "daten\\hosts", "# eigene\r\n127.0.0.1 localhost\r\n");
    Form3Fenster& f = Warnung(Kategorie::HostsDatei);
    f.Image_Click(8);
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(f.Popup.Menü, "host");
    f.host1_Click(0);
    EXPECT_EQ(fp.files.Content(hostsPfad), "127.0.0.1  localhost\r\n#Orginal Host Datei\r\n");
    EXPECT_EQ(prg.Hostsgrösse, 43);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(std::get<std::int32_t>(GespeicherteEinstellungen().ReadProperty("hostsgrösse", std::int32_t{0})), 43);

    Warnung(Kategorie::HostsDatei).host1_Click(1);
    EXPECT_EQ(fp.files.Content(hostsPfad), "# eigene\r\n127.0.0.1 localhost\r\n");
    EXPECT_EQ(prg.Hostsgrösse, 31);
}

TEST_F(WeitereAktionen, HalvenikHostsWithoutTheProgramsOwnFile_KeepsSizeAndHostsFile) {
    fp.files.Put(hostsPfad, "127.0.0.1 localhost\r\n");
    prg.Hostsgrösse = 21;
    Warnung(Kategorie::HostsDatei).host1_Click(1);
    EXPECT_EQ(prg.Hostsgrösse, 21) << "a length that cannot be read leaves the saved size";
    EXPECT_EQ(fp.files.Content(hostsPfad), "127.0.0.1 localhost\r\n") << "nothing replaces it, so it stays";
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(WeitereAktionen, OpenButton_StartsItsToolAndKeepsTheWarning) {
    const std::tuple<Kategorie, std::string, bool> kFälle[] = {
        {Kategorie::HostsDatei, "notepad.exe " + hostsPfad, true},
        // The console must not open behind the warning.
        {Kategorie::Dienste, "mmc.exe C:\\WINDOWS\\system32\\services.msc", false}};
    for (const auto& [kategorie, kommando, obenBleiben] : kFälle) {
        prg.Form3Entladen();
        fp.shell.kommandos.clear();
        Form3Fenster& w = Warnung(kategorie);
        w.Show();
        w.Image_Click(9);
        ASSERT_EQ(Befehle(), std::vector<std::string>{kommando}) << KategorieName(kategorie);
        EXPECT_EQ(fp.shell.kommandos[0].show, 1) << "normal focus";
        EXPECT_EQ(w.Topmost, obenBleiben);
        EXPECT_TRUE(prg.Form3Geladen());
    }
}

}  // namespace
}  // namespace kes::test

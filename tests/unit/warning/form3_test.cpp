// The warning window: buttons by category, its height, and how closing it moves the cycle.
#include "warning/form3.h"
#include "core/start.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"

namespace kes::test {
namespace {

class Warnfenster : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    // The visible buttons, with their captions, for a category key.
    std::vector<std::string> Knöpfe(Kategorie kategorie) {
        prg.Kategorieschlüssel = kategorie;
        Form3Fenster& f = prg.Form3();
        std::vector<std::string> sichtbar;
        for (int i = 1; i <= 9; ++i) {
            if (!f.Image[i].Visible) continue;
            const int k = Warnung::LabelVon(i);
            EXPECT_EQ(k < 0 || f.Label3[k].Visible, true) << KategorieName(kategorie) << " Image" << i;
            sichtbar.push_back(k < 0 ? "Image7" : f.Label3[k].Caption);
        }
        prg.Form3Entladen();
        prg.Aufräumen();
        return sichtbar;
    }
    using V = std::vector<std::string>;
};

TEST_F(Warnfenster, EachCategoryShowsItsRowOfButtons) {
    using K = Kategorie;
    const V kVier = {"Übernehmen", "Löschen", "Später", "Image7"};
    const std::pair<V, std::vector<K>> kReihen[] = {
        {{"Übernehmen", "Löschen", "Später", "Image7", "Service-Dienste"}, {K::Dienste}},
        {kVier,
         {K::TaskScheduler, K::URLSearchHooks, K::ShellService, K::ActiveX, K::BHO, K::AutostartOrdner, K::Favorit1,
          K::Favorit2, K::Favoriten, K::ToolBar, K::ToolBar1}},
        {{"Übernehmen", "Kill Prozess", "Später", "Image7"}, {K::Prozesse}},
        {{"Übernehmen", "Später", "Image7", "Original"}, {K::StartPage}},
        {{"Übernehmen", "Löschen", "Später", "Image7", "Mehr Infos"}, {K::DFÜ}},
        {{"Übernehmen", "Später", "Image7", "Original", "Öffnen"}, {K::HostsDatei}},
        {{"Übernehmen", "Registry löschen", "Später", "Image7"}, {K::AutostartRegistry}},
        {{"Später", "Image7", "Original"}, {K::HtaFile}},
        {{"Später", "Image7"},
         {K::WindowsDatei, K::RegeditDeaktiviert, K::TaskmanagerDeaktiviert, K::Ordnermeister, K::Keine}},
    };
    for (const auto& [knöpfe, kategorien] : kReihen)
        for (K k : kategorien) EXPECT_EQ(Knöpfe(k), knöpfe) << KategorieName(k);
}

TEST_F(Warnfenster, ShrinksToTheVisiblePanes_ActivatedOnTopWithTheFocusOnThePicture) {
    Form3Fenster& f = prg.Form3();
    const int voll = f.Height;
    f.Picture3[1].Visible = false;
    f.Show();
    EXPECT_EQ(f.Height, voll - f.Picture3[1].Height);
    EXPECT_TRUE(f.Topmost);
    EXPECT_TRUE(f.picProcIconFokus);
    f.Topmost = f.picProcIconFokus = false;
    f.Form_Activate();  // a click back into the window
    EXPECT_TRUE(f.Topmost && f.picProcIconFokus);
}

TEST_F(Warnfenster, CloseBoxRestartsTheCycle_SwitchOffLeavesItStopped) {
    prg.Beschäftigt = true;
    prg.Form3();
    prg.Form3Entladen();
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_TRUE(fp.timers.Running(kTimerAlarm1));
    EXPECT_FALSE(fp.files.Exists(ordner + "kestrella.dat")) << "the close box saves nothing";

    prg.Beschäftigt = true;
    prg.Form3().Image7_Click();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_FALSE(prg.Start().fox1[2].Checked);
}

TEST_F(Warnfenster, Raus_SavesTheSettingsAndRestarts) {
    prg.Beschäftigt = true;
    prg.Hostsgrösse = 4;
    prg.Form3().raus();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_EQ(std::get<std::int32_t>(GespeicherteEinstellungen().ReadProperty("hostsgrösse", std::int32_t{0})), 4);
}

TEST_F(Warnfenster, AcceptOfTheHostsFile_TakesTheNewSizeSavesItAndWritesNoLog) {
    prg.Alarm().Box1[2].setValue(1);
    fp.files.Put(hostsPfad, "127.0.0.1 localhost\r\n");
    prg.Hostsgrösse = 3;
    prg.Kategorieschlüssel = Kategorie::HostsDatei;
    prg.Beschäftigt = true;
    prg.Form3().Image_Click(1);
    EXPECT_EQ(prg.Hostsgrösse, 21);
    EXPECT_EQ(std::get<std::int32_t>(GespeicherteEinstellungen().ReadProperty("hostsgrösse", std::int32_t{0})), 21);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

}  // namespace
}  // namespace kes::test

// The autostart folder and favourites watchers, side by side: what each knows, where each
// leaves its loop, what a deferred file does, when the balloon comes, what the log says,
// how an empty line of the baseline file reads, and which panes the warning shows.
#include "panel/alarm.h"
#include "platform/journal.h"
#include "platform/sicherung.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kAutostart = "C:\\Dokumente und Einstellungen\\Benutzer\\Startmenü\\Programme\\Autostart";
const std::string kAlleAutostart = "C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme\\Autostart";
const std::string kFavoriten = "C:\\Dokumente und Einstellungen\\Benutzer\\Favoriten";
using V = std::vector<std::string>;

class Ordner : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        fp.files.MakeDirs(kAutostart);
        fp.files.MakeDirs(kAlleAutostart);
        fp.files.MakeDirs(kFavoriten + "\\Links");
        alarm().Box1[2].setValue(1);
        alarm().Timer1.SetEnabled(true);
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Autostart(Kategorie ordner = Kategorie::Ordnermeister) {
        prg.Kategorieschlüssel = ordner;
        alarm().autostartOrdner.TesteAutostartOrdner();
    }
    void Favorit(Kategorie ordner = Kategorie::Favorit1) {
        prg.Kategorieschlüssel = ordner;
        alarm().favoriten.TesteFavoriten();
    }
    std::string Log() { return fp.files.Content(ordner + "Kestrella.log"); }
    // The balloons shown so far: their titles.
    std::vector<std::string> Sprechblasen() {
        std::vector<std::string> titel;
        for (const auto& a : fp.tray.aufrufe)
            if (a.message == kNimAdd && !a.record.szInfoTitle.empty()) titel.push_back(a.record.szInfoTitle);
        return titel;
    }
};

TEST_F(Ordner, FileListing_LeavesOutHiddenSystemFilesAndFolders_AndSorts) {
    fp.files.Put(kAutostart + "\\b.lnk", "x");
    fp.files.Put(kAutostart + "\\A.lnk", "x");
    fp.files.Put(kAutostart + "\\versteckt.lnk", "x", kAttrHidden | kAttrArchive);
    fp.files.Put(kAutostart + "\\system.lnk", "x", kAttrSystem);
    fp.files.MakeDirs(kAutostart + "\\Unterordner");
    EXPECT_EQ(DateienListen(fp.plattform, kAutostart), (V{"A.lnk", "b.lnk"}));
    EXPECT_EQ(DateienListen(fp.plattform, kAutostart + "\\"), (V{"A.lnk", "b.lnk"}));
    EXPECT_FALSE(DateienListen(fp.plattform, kAutostart + "\\fehlt").has_value());
    EXPECT_FALSE(DateienListen(fp.plattform, kAutostart + "\\b.lnk").has_value()) << "a file is no folder";
}

TEST_F(Ordner, Autostart_NewFile_WarnsWithNamePathAndDetails) {
    fp.files.Put(kAutostart + "\\Tool.lnk", "x");
    Autostart();
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::AutostartOrdner);
    EXPECT_EQ(f.Label1[0].Caption, "Neuer Eintrag in der Autostart Ordner gefunden.");
    ASSERT_EQ(f.ListView2.Items.size(), 2u);
    EXPECT_EQ((V{f.ListView2.Items[0].Text, f.ListView2.Items[1].Text}), (V{"Tool.lnk", kAutostart + "\\Tool.lnk"}));
    EXPECT_TRUE(f.ListView2.Visible);
    EXPECT_EQ(f.ListView1.Items.size(), 12u) << "file details by holedaten";
    EXPECT_TRUE(f.Picture3[1].Visible && f.Picture3[2].Visible);
    EXPECT_FALSE(f.Picture3[3].Visible || f.Picture3[4].Visible);
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible);
    EXPECT_TRUE(prg.Beschäftigt);
}

TEST_F(Ordner, Autostart_FolderMissingOrEmpty_KnownInAnyCaseDesktopIniHiddenFiles_StaySilent) {
    alarm().Label2[2].Caption = "C:\\gibt es nicht";
    Autostart();
    alarm().Label2[2].Caption = kAutostart;
    Autostart();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    fp.files.Put(kAutostart + "\\tool.LNK", "x");
    fp.files.Put(kAutostart + "\\Desktop.INI", "x");
    fp.files.Put(kAutostart + "\\versteckt.lnk", "x", kAttrHidden);
    alarm().List3.Items = {"Tool.lnk"};
    Autostart();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Ordner, Autostart_CategoryKeyPicksTheFolder_BothShareOneList) {
    fp.files.Put(kAlleAutostart + "\\Alle.lnk", "x");
    Autostart(Kategorie::Ordnermeister);
    EXPECT_FALSE(prg.Form3Geladen());
    Autostart(Kategorie::OrdnerAllUser);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Zeile2(), kAlleAutostart + "\\Alle.lnk");
}

TEST_F(Ordner, Autostart_FolderEndingInBackslash_GetsNoSecondOne) {
    fp.files.Put(kAutostart + "\\Tool.lnk", "x");
    alarm().Label2[2].Caption = kAutostart + "\\";
    Autostart();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Zeile2(), kAutostart + "\\Tool.lnk");
}

// A deferred file: the favourites loop stops at the first unknown file, deferred or not,
// while the autostart loop goes on past it.
TEST_F(Ordner, DeferredFile_FavouritesLaterFileWaits_AutostartLaterFileIsStillReported) {
    for (const std::string& d :
         {kFavoriten + "\\a.url", kFavoriten + "\\b.url", kAutostart + "\\a.lnk", kAutostart + "\\b.lnk"})
        fp.files.Put(d, "x");
    alarm().List8.Items = {kFavoriten + "\\a.url", kAutostart + "\\a.lnk"};
    Favorit();
    EXPECT_FALSE(prg.Form3Geladen());
    Autostart();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Zeile2(), kAutostart + "\\b.lnk");
}

// Automatic removal: the autostart watcher removes even a deferred file, one per folder
// and cycle, with the balloon before the removal.
TEST_F(Ordner, Autostart_AutomaticRemoval_BalloonFirstThenDeleteThenLog) {
    alarm().Box1[12].setValue(1);
    prg.Soundflag = 1;
    fp.files.Put(kAutostart + "\\a.lnk", "x");
    fp.files.Put(kAutostart + "\\b.lnk", "x");
    alarm().List8.Items.push_back(kAutostart + "\\a.lnk");
    Autostart();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_FALSE(fp.files.Exists(kAutostart + "\\a.lnk"));
    EXPECT_TRUE(fp.files.Exists(kAutostart + "\\b.lnk")) << "one file per folder and cycle";
    EXPECT_EQ(fp.sound.gespielt, V{"AUTO"});
    EXPECT_EQ(Sprechblasen(), V{"a.lnk"});
    EXPECT_EQ((V{fp.tray.Last().szInfo, fp.tray.Last().szTip}), (V{"Autostarteintrag wurde gelöscht!", "Kestrella"}));
    EXPECT_NE(Log().find("Neuer Eintrag im Autostart Ordner.\r\nDatei: a.lnk\r\n< Gelöscht OK >"), std::string::npos);
}

TEST_F(Ordner, Autostart_LockedFile_BalloonAllTheSame_MessageAndNeinLog) {
    alarm().Box1[12].setValue(1);
    fp.files.Put(kAutostart + "\\a.lnk", "x");
    fp.files.Lock(kAutostart + "\\a.lnk");
    std::size_t blasenBeiMeldung = 99;
    fp.dialogs.beimZeigen = [&] { blasenBeiMeldung = Sprechblasen().size(); };
    Autostart();
    EXPECT_EQ(blasenBeiMeldung, 1u) << "the balloon comes before the removal";
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_NE(fp.dialogs.meldungen[0].text.find("konnte nicht gelöscht werden."), std::string::npos);
    EXPECT_NE(Log().find("Datei: a.lnk\r\n< Gelöscht NEIN >"), std::string::npos);
}

TEST_F(Ordner, Autostart_SameFileInBothFolders_GoesFromBothInOneCycle) {
    alarm().Box1[11].setValue(1);
    alarm().Box1[12].setValue(1);
    fp.files.Put(kAutostart + "\\Tool.lnk", "x");
    fp.files.Put(kAlleAutostart + "\\Tool.lnk", "x");
    alarm().Durchlauf();
    EXPECT_FALSE(fp.files.Exists(kAutostart + "\\Tool.lnk"));
    EXPECT_FALSE(fp.files.Exists(kAlleAutostart + "\\Tool.lnk"));
    EXPECT_EQ(Sprechblasen(), (V{"Tool.lnk", "Tool.lnk"}));
}

// The favourites' removal: balloon only with box 7, and after the removal.
TEST_F(Ordner, Favorit_AutomaticRemoval_NoBalloonWithoutBox7_OwnLogText) {
    alarm().Box1[6].setValue(1);
    fp.files.Put(kFavoriten + "\\Werbung.url", "x");
    Favorit();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(fp.files.Exists(kFavoriten + "\\Werbung.url"));
    EXPECT_TRUE(Sprechblasen().empty());
    EXPECT_NE(Log().find("Neuer IExplorer Favorit gefunden.\r\nFavorit: Werbung.url\r\n"
                         "< Favorit Automatisch gelöscht OK >"),
              std::string::npos);
}

TEST_F(Ordner, Favorit_AutomaticRemovalWithBox7_BalloonAfterTheRemoval) {
    alarm().Box1[6].setValue(1);
    alarm().Box1[7].setValue(1);
    fp.files.Put(kFavoriten + "\\Links\\Werbung.url", "x");
    fp.files.Lock(kFavoriten + "\\Links\\Werbung.url");
    std::size_t blasenBeiMeldung = 99;
    fp.dialogs.beimZeigen = [&] { blasenBeiMeldung = Sprechblasen().size(); };
    Favorit(Kategorie::Favorit2);
    EXPECT_EQ(blasenBeiMeldung, 0u);
    EXPECT_EQ(Sprechblasen(), V{"Werbung.url"});
    EXPECT_EQ((V{fp.tray.Last().szInfo, fp.tray.Last().szTip}),
              (V{"IExplorer Favorit wurde gelöscht ", "IExplorer Favorit"}));
    EXPECT_NE(Log().find("< Favorit Automatisch gelöscht NEIN >"), std::string::npos);
}

TEST_F(Ordner, Favorit_Warning_HidesTheListAndPanes_NamesInLabels) {
    fp.files.Put(kFavoriten + "\\Links\\Neue Seite.url", "x");
    Favorit(Kategorie::Favorit2);
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::Favoriten);
    EXPECT_EQ((V{f.Label1[0].Caption, f.Label1[1].Caption, f.Label1[2].Caption}),
              (V{"Neuer IExplorer Favorit wurde hinzugefügt.", kFavoriten + "\\Links\\", "Neue Seite.url"}));
    EXPECT_FALSE(f.ListView2.Visible);
    for (int i = 1; i <= 4; ++i) EXPECT_FALSE(f.Picture3[i].Visible) << i;
    EXPECT_TRUE(f.ListView1.Items.empty()) << "no details";
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible);
}

TEST_F(Ordner, Favorit_BothFoldersNewInOneCycle_SecondPassFillsTheOpenWindowAgain) {
    alarm().Box1[5].setValue(1);
    fp.files.Put(kFavoriten + "\\a.url", "x");
    fp.files.Put(kFavoriten + "\\Links\\b.url", "x");
    alarm().Durchlauf();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ((V{prg.Form3().Label1[1].Caption, prg.Form3().Label1[2].Caption}),
              (V{kFavoriten + "\\Links\\", "b.url"}));
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::Favoriten);
}

TEST_F(Ordner, Favorit_KnownInAnyCase_DesktopIni_MissingLinksFolder_StaySilent) {
    fp.files.Put(kFavoriten + "\\Neue Seite.URL", "x");
    fp.files.Put(kFavoriten + "\\DESKTOP.ini", "x");
    alarm().List4.Items = {"neue seite.url"};
    Favorit();
    fp.files.Delete(kFavoriten + "\\Links");
    Favorit(Kategorie::Favorit2);
    EXPECT_FALSE(prg.Form3Geladen());
}

// Empty lines of the baseline file: the end of the autostart list, a name for favourites.
TEST_F(Ordner, EmptyLineInTheBaselineFile_EndsAutostartButNotFavourites) {
    fp.files.Put(ordner + "daten\\Autostart.txt", "a.lnk\r\n\r\nb.lnk\r\n");
    fp.files.Put(ordner + "daten\\favoriten.txt", "a.url\r\n\r\nb.url\r\n");
    alarm().autostartOrdner.LadeAutostart();
    alarm().favoriten.LadeFavoriten();
    EXPECT_EQ(alarm().List3.Items, V{"a.lnk"});
    EXPECT_EQ(alarm().List4.Items, (V{"a.url", "", "b.url"}));

    fp.files.Put(kFavoriten + "\\b.url", "x");
    Favorit();
    EXPECT_FALSE(prg.Form3Geladen()) << "the line after the empty one is still known";
}

// Older installations stored an accepted file with its folder: it is known by its name.
TEST_F(Ordner, AutostartBaselineLineWithAFolder_IsReadAsItsName) {
    fp.files.Put(ordner + "daten\\Autostart.txt", kAlleAutostart + "\\Alt.lnk\r\nC:Neu.lnk\r\nName.lnk\r\n");
    alarm().autostartOrdner.LadeAutostart();
    EXPECT_EQ(alarm().List3.Items, (V{"Alt.lnk", "Neu.lnk", "Name.lnk"}));
    fp.files.Put(kAutostart + "\\alt.LNK", "x");
    Autostart();
    EXPECT_FALSE(prg.Form3Geladen()) << "known in the other folder and in any case, as every name";
}

TEST_F(Ordner, MissingBaselineFile_AutostartKeepsItsList_FavouritesEmpty) {
    alarm().List3.Items = {"alt.lnk"};
    alarm().List4.Items = {"alt.url"};
    alarm().autostartOrdner.LadeAutostart();
    alarm().favoriten.LadeFavoriten();
    EXPECT_EQ(alarm().List3.Items, V{"alt.lnk"});
    EXPECT_TRUE(alarm().List4.Items.empty());
    EXPECT_EQ((V{alarm().Label2[0].Caption, alarm().Label2[1].Caption}), (V{kFavoriten, kFavoriten + "\\Links"}));
}

// The removal the program makes on its own: the file's copy first, the journal's "auto"
// line after; with no backup possible the file stays and the balloon says why.
TEST_F(Ordner, Autostart_AutomaticRemoval_SavesTheFileFirstAndJournalsIt) {
    alarm().Box1[12].setValue(1);
    fp.files.Put(kAutostart + "\\a.lnk", "Verknüpfung");
    Autostart();
    ASSERT_FALSE(fp.files.Exists(kAutostart + "\\a.lnk"));
    const auto journal = Journal(fp.files, fp.system, prg.Programmordner).Lesen().einträge;
    ASSERT_EQ(journal.size(), 1u);
    EXPECT_EQ((V{journal[0].ereignis, journal[0].ziel}), (V{"auto", kAutostart + "\\a.lnk"}));
    EXPECT_EQ(Wiederherstellen(fp.plattform, prg.Programmordner, journal[0].sicherung, "", false), "");
    EXPECT_EQ(fp.files.Content(kAutostart + "\\a.lnk"), "Verknüpfung");

    fp.files.Put(prg.Programmordner + "daten\\Sicherung", "kein Ordner");
    fp.files.Put(kAutostart + "\\b.lnk", "x");
    Autostart();
    Autostart();
    EXPECT_TRUE(fp.files.Exists(kAutostart + "\\b.lnk"));
    EXPECT_NE(fp.tray.Last().szInfo.find("Sicherung konnte nicht geschrieben werden"), std::string::npos);
}

}  // namespace
}  // namespace kes::test

// The dial-up watcher and its warning: entries known by number, not by name; the baseline
// file read by fields around the "€" of code page 1252; the platform module's texts; and
// the answers of the warning: accept, delete and the menu behind "Mehr Infos".
#include "platform/dfue.h"
#include "warn_lesen.h"

namespace kes::test {
namespace {

class Dfue : public WaechterTest {
protected:
    void SetUp() override {
        WaechterTest::SetUp();
        alarm().Box1[2].setValue(1);
    }
    void Eintrag(const std::string& name, const std::string& nummer, std::uint32_t land = 49,
                 const std::string& vorwahl = "") {
        fp.dialup.einträge.push_back({name, DfuEintrag{land, vorwahl, nummer}});
    }
    void Kennen(const std::string& name, const std::string& nummer) {
        alarm().ListView2.Add(name).SetSubItem(1, nummer);
    }
    void Testen() { alarm().dfü.TesteDFÜ(); }
};

TEST_F(Dfue, Module_TextsOfAnEntry) {
    Eintrag("Mit", "0190123", 49, "089");
    Eintrag("Ohne", "123", 0);
    std::string land, vorwahl, nummer;
    ASSERT_TRUE(DFUEigenschaften(fp.plattform, "Mit", land, vorwahl, nummer));
    EXPECT_EQ((Texte{land, vorwahl, nummer}), (Texte{"49", "089", "0190123"}));
    ASSERT_TRUE(DFUEigenschaften(fp.plattform, "Ohne", land, vorwahl, nummer));
    EXPECT_EQ((Texte{land, vorwahl}), (Texte{"", ""})) << "country code 0 gives no text";
    EXPECT_EQ(DFUEintraege(fp.plattform), (Texte{"Mit", "Ohne"}));
    fp.dialup.aufzählFehler = 632;
    EXPECT_FALSE(DFUEintraege(fp.plattform).has_value());
}

TEST_F(Dfue, Load_SplitsAtTheFirstEuroByte_CommaEndsAnEntry_EmptyEntryEndsTheReading) {
    const std::string e = "\x80";  // the euro sign of code page 1252
    fp.files.Put(ordner + "daten\\0190.txt", "Heim" + e + "0190123\r\n\"Zitiert" + e + "456\"\r\nKomma, Teil" + e +
                                                 "789\r\nDoppelt" + e + "1" + e + "2\r\n\r\nDanach" + e + "0\r\n");
    alarm().dfü.LadeDFÜ();
    Texte namen, nummern;
    for (const auto& z : alarm().ListView2.Items) {
        namen.push_back(z.Text);
        nummern.push_back(z.SubItem(1));
    }
    // "Komma" has no "€": all of it is a number, and the name of the entry before it stays.
    EXPECT_EQ(namen, (Texte{"Heim", "Zitiert", "Zitiert", "Teil", "Doppelt"}));
    EXPECT_EQ(nummern, (Texte{"0190123", "456", "Komma", "789", "1" + e + "2"}));
}

TEST_F(Dfue, NewNumber_WarnsWithNameAndNumber) {
    Eintrag("Billig", "0190abc");
    prg.Soundflag = 1;
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::DFÜ);
    EXPECT_EQ(Kopf(f), (Texte{"Es wurde eine neue DFÜ-Verbindung erstellt.", "Billig", "Nummer: 0190abc"}));
    EXPECT_EQ(Felder(f, 2), (Texte{"Billig", "0190abc"})) << "an empty baseline compares nothing, so the case stays";
    EXPECT_FALSE(f.ListView2.Visible);
    EXPECT_FALSE(f.Picture3[1].Visible || f.Picture3[2].Visible || f.Picture3[3].Visible || f.Picture3[4].Visible);
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible && f.Image[9].Visible);
    EXPECT_EQ(fp.sound.gespielt, Texte{"ALARM"});
}

TEST_F(Dfue, KnownNumber_AnyNameAnyCase_EmptyNumber_Deferred_AndFailedEnumeration_StaySilent) {
    Kennen("Alt", "0190abc");
    Eintrag("Neuer Name", "0190ABC");
    Eintrag("ISDN Test", "");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    Eintrag("Billig", "0190");
    alarm().List8.Items.push_back("Billig");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    alarm().List8.Items.clear();
    fp.dialup.aufzählFehler = 603;
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_TRUE(fp.dialogs.meldungen.empty()) << "a failed enumeration ends without a word";
    // Another number under a known name warns, with the number in upper case.
    fp.dialup.aufzählFehler = 0;
    fp.dialup.einträge.clear();
    alarm().ListView2.Items.clear();
    Kennen("Heim", "0201");
    Eintrag("Heim", "0190abc");
    Testen();
    EXPECT_EQ(Gewarnt(prg, 1), "0190ABC");
}

TEST_F(Dfue, NoDialupInterface_MessageAtEveryTick) {
    alarm().Box1[10].setValue(1);
    fp.dialup.fehlt = 53;
    alarm().Durchlauf();
    alarm().Durchlauf();
    ASSERT_EQ(fp.dialogs.meldungen.size(), 2u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "Fehler DFÜ (TesteDFÜ) FehlerNr: 53");
    EXPECT_FALSE(prg.Beschäftigt);
}

TEST_F(Dfue, Accept_WritesNameEuroByteNumber_AndTheEntryIsKnown) {
    Kennen("Alt", "1");
    Eintrag("Billig", "0190abc");
    Testen();
    prg.Form3().Image_Click(1);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(fp.files.Content(ordner + "daten\\0190.txt"), "Alt\x80" + std::string("1\r\nBillig\x80") + "0190ABC\r\n");
    EXPECT_NE(Log().find("DFÜ-Verbindung wurde erstellt. \r\nDFÜ: Billig   Nummer: 0190ABC\r\n< Übernommen OK >"),
              std::string::npos);
    alarm().dfü.LadeDFÜ();
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    // The entry vanishes from the system: the compare runs one way only.
    fp.dialup.einträge.clear();
    Eintrag("Anders", "1");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(alarm().ListView2.Items.size(), 2u) << "its line stays";
}

TEST_F(Dfue, Delete_RemovesTheEntry_OrSaysWhyNot) {
    prg.AnzeigeLöschen = true;  // no question first
    Eintrag("Billig", "0190");
    Testen();
    prg.Form3().Image_Click(3);
    EXPECT_TRUE(fp.dialup.einträge.empty());
    EXPECT_NE(Log().find("< Gelöscht OK >"), std::string::npos);
    Eintrag("Zäh", "0900");
    fp.dialup.löschFehler = 5;
    Testen();
    prg.Form3().Image_Click(3);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "DFÜ-Verbindung konnte nicht gelöscht werden.\r\nZäh Nummer: 0900");
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Achtung!");
    EXPECT_NE(Log().find("< Gelöscht NEIN >"), std::string::npos);
}

TEST_F(Dfue, MehrInfos_MenuWithEditDialogAndFolder_WindowStaysOpen) {
    Eintrag("Billig", "0190");
    Testen();
    Form3Fenster& f = prg.Form3();
    f.Image_Click(9);
    EXPECT_EQ(f.Popup.Menü, "dfü");
    EXPECT_EQ(f.Popup.Standard, 1);
    f.hWnd = 0x4711;  // as the view gives it
    f.dfü1_Click(0);
    ASSERT_EQ(fp.dialup.bearbeitet.size(), 1u);
    EXPECT_EQ(fp.dialup.bearbeitet[0], (std::pair<std::uintptr_t, std::string>{0x4711, "Billig"}))
        << "the editor opens over the warning";
    EXPECT_FALSE(f.Topmost);
    f.dfü1_Click(1);
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "rundll32.exe shell32.dll,Control_RunDLL ncpa.cpl");
    EXPECT_EQ(fp.shell.kommandos[0].show, kSwShowNormal);
    EXPECT_TRUE(prg.Form3Geladen());
}

}  // namespace
}  // namespace kes::test

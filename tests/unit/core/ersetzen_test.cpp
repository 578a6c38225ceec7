// Whole-file rewrites after a crash: a scratch file left beside a file is neither read as
// settings nor as a list, and a new file that cannot be completed leaves the old one.
#include "core/einstellungen.h"
#include "core/logdatei.h"
#include "core/starten.h"
#include "panel/alarm.h"
#include "platform/datei_ersetzen.h"
#include "platform/liste_schreiben.h"
#include "programm_test_basis.h"

namespace kes::test {
namespace {

class Ersetzen : public ProgrammTest {
protected:
    void Bag(std::initializer_list<std::pair<const char*, std::int16_t>> werte) {
        PropertyBag bag;
        for (const auto& [name, wert] : werte) bag.WriteProperty(name, wert);
        Einstellungen(bag);
    }
};

TEST_F(Ersetzen, OnlyAScratchSettingsFileLeft_IsAFirstRun) {
    PropertyBag bag;
    bag.WriteProperty("Box15", std::int16_t{1});
    fp.files.Put(ErsatzName(ordner + "Kestrella.dat"), bag.Contents());
    ASSERT_TRUE(Main(prg));
    EXPECT_TRUE(prg.Form2Geladen()) << "the scratch file is no settings file";
}

TEST_F(Ersetzen, ScratchFilesBesideSettingsAndList_AreNotReadAndGoAtTheNextWrite) {
    Bag({{"Box13", 1}});
    fp.files.Put(ErsatzName(datPfad), "KPB1 halb");
    fp.files.Put(ordner + "daten\\AutostartREG.txt", "alt\r\n");
    fp.files.Put(ErsatzName(ordner + "daten\\AutostartREG.txt"), "alt\r\nhalb\r\n");
    ASSERT_TRUE(Main(prg));
    EXPECT_FALSE(prg.Form2Geladen());
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    EXPECT_EQ(prg.Alarm().Box1[13].value(), 1);
    ASSERT_EQ(prg.Alarm().ListView1.Items.size(), 1u);
    EXPECT_EQ(prg.Alarm().ListView1.Items[0].Text, "alt");
    // The start saved the settings anew, over the scratch file.
    EXPECT_FALSE(fp.files.Exists(ErsatzName(datPfad)));
    EXPECT_EQ(GespeicherteEinstellungen().ReadProperty("box13", BagWert(std::int16_t{0})), BagWert(std::int16_t{1}));

    ListeSchreiben(fp.plattform, ordner, "daten\\AutostartREG.txt", {"alt", "neu"});
    EXPECT_EQ(fp.files.Content(ordner + "daten\\AutostartREG.txt"), "alt\r\nneu\r\n");
    EXPECT_FALSE(fp.files.Exists(ErsatzName(ordner + "daten\\AutostartREG.txt")));
}

// A new file that cannot be completed stands for a crash while it is written.
TEST_F(Ersetzen, NewFilesThatCannotBeCompleted_LeaveSettingsListAndLogAsTheyWere) {
    Bag({{"Box2", 1}, {"Aufab1", 2}});
    ASSERT_TRUE(Main(prg));
    const std::string dat = fp.files.Content(datPfad);
    const std::string liste = ordner + "daten\\AutostartREG.txt", log = ordner + "Kestrella.log";
    fp.files.Put(liste, "alt\r\n");
    fp.files.Put(log, "alter Eintrag\r\n");
    for (const std::string& pfad : {datPfad, liste, log}) {
        fp.files.Put(ErsatzName(pfad), "");
        fp.files.Lock(ErsatzName(pfad));
    }

    prg.Intervallstufe = 7;
    Properties_Save(prg);
    EXPECT_EQ(fp.files.Content(datPfad), dat);
    EXPECT_THROW(ListeSchreiben(fp.plattform, ordner, "daten\\AutostartREG.txt", {"alt", "neu"}), Fehler);
    EXPECT_EQ(fp.files.Content(liste), "alt\r\n");
    EXPECT_THROW(LogEintrag(prg, "Titel", {"Zeile"}, "< OK >"), Fehler);
    EXPECT_EQ(fp.files.Content(log), "alter Eintrag\r\n");
}

}  // namespace
}  // namespace kes::test

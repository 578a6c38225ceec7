// The journal file: ids that grow from the last whole line, UTF-8 on disk for the program's
// code page texts, and lines cut short or garbled passed over with a note, never lost among
// the whole ones.
#include <gtest/gtest.h>

#include "fake_plattform.h"
#include "platform/journal.h"

namespace kes::test {
namespace {

class JournalDatei : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    const std::string ordner = "C:\\Programme\\Kestrella\\";
    Journal j{fp.files, fp.system, ordner};

    JournalEintrag Eintrag(const std::string& ziel) {
        JournalEintrag e;
        e.ereignis = "answer";
        e.kategorie = "DFÜ";
        e.ziel = ziel;
        e.aktion = "Löschen";
        e.texte = {"Neue DFÜ-Verbindung", "Nummer: 0190 €"};
        return e;
    }
};

TEST_F(JournalDatei, IdsGrowFromTheLastWholeLineAndTextsComeBackAsTheyWent) {
    fp.files.MakeDirs(ordner);
    EXPECT_EQ(j.Schreiben(Eintrag("a")), 1);
    EXPECT_EQ(j.Schreiben(Eintrag("b")), 2);
    const std::string datei = fp.files.Content(j.Pfad());
    EXPECT_NE(datei.find("DF\xC3\x9C"), std::string::npos) << "UTF-8 on disk";
    EXPECT_NE(datei.find("\"time\":\"2026-11-22T14:05:09+01:00\""), std::string::npos);
    EXPECT_EQ(datei.find("backup"), std::string::npos) << "no backup, no field";
    const auto inhalt = j.Lesen();
    ASSERT_EQ(inhalt.einträge.size(), 2u);
    EXPECT_TRUE(inhalt.hinweise.empty());
    const JournalEintrag& b = inhalt.einträge[1];
    EXPECT_EQ(std::tie(b.ziel, b.texte, b.kategorie), std::make_tuple("b", Eintrag("b").texte, "DFÜ"));
}

TEST_F(JournalDatei, ALineCutShortStaysAloneAndTheNextIdFollowsTheLastWholeOne) {
    fp.files.Put(j.Pfad(), "{\"id\":7,\"time\":\"x\",\"event\":\"auto\",\"texts\":[]}\r\nkein json\r\n{\"id\":8,\"ti");
    EXPECT_EQ(j.Schreiben(Eintrag("neu")), 8);
    const auto inhalt = j.Lesen();
    ASSERT_EQ(inhalt.einträge.size(), 2u);
    EXPECT_EQ(std::tie(inhalt.einträge[1].id, inhalt.einträge[1].ziel), std::make_tuple(8, "neu"));
    ASSERT_EQ(inhalt.hinweise.size(), 2u);
    EXPECT_NE(inhalt.hinweise[0].find("Zeile 2"), std::string::npos);
    EXPECT_NE(inhalt.hinweise[1].find("Zeile 3"), std::string::npos);
}

TEST_F(JournalDatei, OffsetsWestOfUtcAndAMissingFolder) {
    fp.system.jetzt = {2026, 1, 2, 3, 4, 5, 0, -330};
    EXPECT_EQ(IsoZeit(fp.system.jetzt), "2026-01-02T03:04:05-05:30");
    Journal ohneOrdner(fp.files, fp.system, "D:\\Fehlt\\");
    EXPECT_EQ(ohneOrdner.Schreiben(Eintrag("x")), 0) << "no program folder: nothing written, nothing thrown";
}

}  // namespace
}  // namespace kes::test

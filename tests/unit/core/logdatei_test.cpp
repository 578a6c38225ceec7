// The log's framing: Text2 is the master and the file is rewritten whole from it.
#include "core/logdatei.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"

namespace kes::test {
namespace {

class Log : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    const std::string logPfad = ordner + "Kestrella.log";
    const std::string kopf = "\r\n========== 22.11.2026 ===== 14:05:09 ================\r\n";
};

TEST_F(Log, BoxTwoOff_WritesNothing_On_TwoEntriesOfOneRunShareTheHeaderAndTheFileEqualsText2) {
    LogEintrag(prg, "Titel", {}, "< x >");
    EXPECT_FALSE(fp.files.Exists(logPfad));
    EXPECT_EQ(prg.Alarm().Text2.Text, "");

    prg.Alarm().Box1[2].setValue(1);
    LogEintrag(prg, "Neuer IExplorer Favorit gefunden.", {"Favorit: a.url"}, "< Gelöscht OK >");
    LogEintrag(prg, "Datei wurde erstellt.", {"Datei: b", "Wert: c"}, "< Übernommen OK >");
    const std::string erwartet = "\r\n" + kopf +
                                 "Neuer IExplorer Favorit gefunden.\r\nFavorit: a.url\r\n< Gelöscht OK >" + "\r\n" +
                                 kopf + "Datei wurde erstellt.\r\nDatei: b\r\nWert: c\r\n< Übernommen OK >";
    EXPECT_EQ(prg.Alarm().Text2.Text, erwartet);
    EXPECT_EQ(fp.files.Content(logPfad), erwartet + "\r\n");
}

TEST_F(Log, AtStart_OldLogIsLoadedOrDeletedWithBoxThree) {
    fp.files.Put(logPfad, "alt 1\r\nalt 2\r\n");
    LogVorbereiten(prg);
    EXPECT_EQ(prg.Alarm().Text2.Text, "alt 1\r\nalt 2\r\n");

    prg.Alarm().Text2.Text.clear();
    prg.Alarm().Box1[3].setValue(1);
    LogVorbereiten(prg);
    EXPECT_FALSE(fp.files.Exists(logPfad));
    EXPECT_EQ(prg.Alarm().Text2.Text, "");
}

TEST_F(Log, DeleteButtonClearsText2_AndAnEntryAfterItLeavesAFileWithThatEntryAlone) {
    AlarmFenster& a = prg.Alarm();
    a.Box1[2].setValue(1);
    LogEintrag(prg, "Erster", {}, "< 1 >");
    a.Command2_Click(0);
    EXPECT_EQ(a.Text2.Text, "");
    EXPECT_FALSE(fp.files.Exists(logPfad));
    LogEintrag(prg, "Zweiter", {}, "< 2 >");
    const std::string inhalt = fp.files.Content(logPfad);
    EXPECT_EQ(inhalt.find("Erster"), std::string::npos);
    EXPECT_NE(inhalt.find("Zweiter"), std::string::npos);
}

TEST_F(Log, OpenButtonWithoutAFile_SaysTheLogIsEmpty_WithOneOpensNotepad) {
    prg.Alarm().Command2_Click(1);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "Die Log-Datei ist noch leer!");
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Kestrella-Info");
    fp.files.Put(logPfad, "x");
    prg.Alarm().Command2_Click(1);
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "notepad.exe C:\\Programme\\Kestrella\\kestrella.log");
}

}  // namespace
}  // namespace kes::test

// Whole-file rewrites through a scratch file, run against the fake natively and against
// Win32 under Wine: the move that puts the new file in place, and the writer built on it.
#include <gtest/gtest.h>

#include "platform/datei_ersetzen.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Ersetzen : public ImOrdner {
protected:
    FileApi& f = DieUmgebung().Files();
    std::string Inhalt(const std::string& name) { return f.ReadAll(Pfad(name)).value_or("<fehlt>"); }
};

TEST_F(Ersetzen, Move_TakesThePlaceOfTheOldFile_AndTheSourceIsGone) {
    ASSERT_TRUE(f.WriteAll(Pfad("liste.txt"), "alt\r\n"));
    ASSERT_TRUE(f.WriteAll(Pfad("liste.txt.neu"), "alt\r\nneu\r\n"));
    ASSERT_TRUE(f.MoveReplacing(Pfad("liste.txt.neu"), Pfad("LISTE.TXT")));
    EXPECT_EQ(Inhalt("liste.txt"), "alt\r\nneu\r\n");
    EXPECT_FALSE(f.CanRead(Pfad("liste.txt.neu")));
}

TEST_F(Ersetzen, Move_ToAMissingFile_CreatesIt) {
    ASSERT_TRUE(f.WriteAll(Pfad("a.neu"), "x"));
    ASSERT_TRUE(f.MoveReplacing(Pfad("a.neu"), Pfad("a.txt")));
    EXPECT_EQ(Inhalt("a.txt"), "x");
}

TEST_F(Ersetzen, Move_OntoALockedOrReadOnlyFile_FailsAndLeavesBoth) {
    ASSERT_TRUE(f.WriteAll(Pfad("gesperrt.txt"), "alt"));
    ASSERT_TRUE(f.WriteAll(Pfad("gesperrt.neu"), "neu"));
    DieUmgebung().Sperren(Pfad("gesperrt.txt"));
    EXPECT_FALSE(f.MoveReplacing(Pfad("gesperrt.neu"), Pfad("gesperrt.txt")));
    DieUmgebung().Freigeben(Pfad("gesperrt.txt"));
    EXPECT_EQ(Inhalt("gesperrt.txt"), "alt");
    EXPECT_EQ(Inhalt("gesperrt.neu"), "neu");

    ASSERT_TRUE(f.WriteAll(Pfad("nurlesen.txt"), "alt"));
    ASSERT_TRUE(f.SetAttributes(Pfad("nurlesen.txt"), kAttrReadOnly));
    EXPECT_FALSE(f.MoveReplacing(Pfad("gesperrt.neu"), Pfad("nurlesen.txt")));
    EXPECT_EQ(Inhalt("nurlesen.txt"), "alt");
    EXPECT_EQ(Inhalt("gesperrt.neu"), "neu");
}

TEST_F(Ersetzen, Move_OfAMissingFile_FailsAndLeavesTheTarget) {
    ASSERT_TRUE(f.WriteAll(Pfad("ziel.txt"), "alt"));
    EXPECT_FALSE(f.MoveReplacing(Pfad("fehlt.neu"), Pfad("ziel.txt")));
    EXPECT_EQ(Inhalt("ziel.txt"), "alt");
}

TEST_F(Ersetzen, Rewrite_LeavesOnlyTheNewFile_NoScratchFileBeside) {
    ASSERT_TRUE(f.WriteAll(Pfad("Kestrella.dat"), std::string(300, 'a')));
    ASSERT_TRUE(DateiErsetzen(f, Pfad("Kestrella.dat"), "kurz"));
    EXPECT_EQ(Inhalt("kestrella.dat"), "kurz") << "nothing of the longer old file is left";
    EXPECT_FALSE(f.CanRead(ErsatzName(Pfad("Kestrella.dat"))));
    FindData fd;
    EXPECT_FALSE(f.FindFirst(Pfad("*.neu"), &fd)) << "left: " << fd.name;
}

TEST_F(Ersetzen, Rewrite_OverAScratchFileLeftByACrash_StillWrites) {
    ASSERT_TRUE(f.WriteAll(Pfad("liste.txt"), "alt\r\n"));
    ASSERT_TRUE(f.WriteAll(ErsatzName(Pfad("liste.txt")), "halb geschr"));
    ASSERT_TRUE(f.SetAttributes(ErsatzName(Pfad("liste.txt")), kAttrReadOnly));
    ASSERT_TRUE(DateiErsetzen(f, Pfad("liste.txt"), "alt\r\nneu\r\n"));
    EXPECT_EQ(Inhalt("liste.txt"), "alt\r\nneu\r\n");
    EXPECT_FALSE(f.CanRead(ErsatzName(Pfad("liste.txt"))));
}

TEST_F(Ersetzen, Rewrite_OfALockedFile_FailsKeepsTheOldAndLeavesNoScratch) {
    ASSERT_TRUE(f.WriteAll(Pfad("liste.txt"), "alt\r\n"));
    DieUmgebung().Sperren(Pfad("liste.txt"));
    EXPECT_FALSE(DateiErsetzen(f, Pfad("liste.txt"), "neu\r\n"));
    DieUmgebung().Freigeben(Pfad("liste.txt"));
    EXPECT_EQ(Inhalt("liste.txt"), "alt\r\n");
    EXPECT_FALSE(f.CanRead(ErsatzName(Pfad("liste.txt"))));
}

TEST_F(Ersetzen, Rewrite_IntoAMissingFolder_Fails) {
    EXPECT_FALSE(DateiErsetzen(f, Pfad("fehlt\\liste.txt"), "x"));
}

}  // namespace
}  // namespace kes::vertrag

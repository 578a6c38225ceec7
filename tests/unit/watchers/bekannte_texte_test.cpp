// The hash set a watcher builds beside a baseline for one pass: it must answer exactly as
// the walk through the list it replaces, for the foldings the watchers use, and keep the
// first unknown entry in the live order the one that is reported.
#include "watchers/bekannte_texte.h"

#include "common/text.h"
#include "programm_test_basis.h"
#include "watchers/autostart_ordner.h"

namespace kes::test {
namespace {

TEST(BekannteTexte, Unfolded_ComparesWholeTextsWithCase) {
    ListView liste;
    liste.Add("Dienst");
    liste.Add("Dienst");  // a doubled row changes nothing
    liste.Add("");
    const BekannteTexte b(liste.Items, [](const ListItem& z) { return z.Text; });
    EXPECT_TRUE(b.Enthält("Dienst"));
    EXPECT_FALSE(b.Enthält("dienst")) << "with case";
    EXPECT_FALSE(b.Enthält("Diens")) << "whole texts only";
    EXPECT_FALSE(b.Enthält("Dienst ")) << "no trimming";
    EXPECT_TRUE(b.Enthält("")) << "an empty row is a row";
    EXPECT_EQ(b.Anzahl(), 2u);
}

TEST(BekannteTexte, FoldedWithKlein_FindsEveryCaseOfTheCodePage_AsTheWalkDid) {
    const std::vector<std::string> zeilen = {"SETUP.EXE", "\xC4rger.dll",
                                             "Stra\xDF"
                                             "e.ocx"};  // Ärger, Straße
    const BekannteTexte b(zeilen, [](const std::string& z) { return Klein(z); });
    for (const std::string& gefragt : {std::string("setup.exe"), std::string("\xE4RGER.DLL"),
                                       std::string("STRA\xDF"
                                                   "E.OCX"),
                                       std::string("Setup.Exe")}) {
        bool imGang = false;
        for (const auto& z : zeilen) imGang = imGang || Klein(z) == Klein(gefragt);
        EXPECT_EQ(b.Enthält(Klein(gefragt)), imGang) << gefragt;
    }
    EXPECT_FALSE(b.Enthält("SETUP.EXE")) << "the question is folded by the caller, as the rows were";
}

class GrosseListe : public ProgrammTest {};

TEST_F(GrosseListe, ThousandKnownNames_InAnyCase_TheFirstUnknownInFolderOrderIsReported) {
    const std::string kOrdner = "C:\\Dokumente und Einstellungen\\Benutzer\\Startmen\xFC\\Programme\\Autostart";
    Pfade();
    fp.files.MakeDirs(kOrdner);
    AlarmFenster& a = prg.Alarm();
    a.Label2[2].Caption = kOrdner;
    for (int i = 0; i < 1000; ++i) {
        const std::string name = "Eintrag" + std::to_string(i) + ".lnk";
        fp.files.Put(kOrdner + "\\" + name, "x");
        a.List3.Items.push_back(i % 2 ? Gross(name) : name);
    }
    fp.files.Put(kOrdner + "\\zweiter.lnk", "x");
    fp.files.Put(kOrdner + "\\Erster.lnk", "x");
    fp.files.Put(kOrdner + "\\desktop.ini", "x");
    prg.Kategorieschlüssel = Kategorie::Ordnermeister;
    a.autostartOrdner.TesteAutostartOrdner();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Zeile2(), kOrdner + "\\Erster.lnk") << "sorted without case, before \"zweiter\"";
    EXPECT_TRUE(NameBekannt(BekannteNamen(a.List3.Items), "EINTRAG7.LNK"));
    EXPECT_TRUE(NameBekannt(BekannteNamen({}), "Desktop.INI")) << "always known";
    EXPECT_FALSE(NameBekannt(BekannteNamen(a.List3.Items), "Eintrag1000.lnk"));
}

}  // namespace
}  // namespace kes::test

// The folder walk, path expansion, version block, file times and the process table over
// the seam, run against the fakes natively and against Win32 under Wine.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/fehler.h"
#include "platform/alledateien.h"
#include "platform/icoholen.h"
#include "platform/infos.h"
#include "platform/prozesse1.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

class DateiInfo : public ImOrdner {
protected:
    Plattform& p = DieUmgebung().Alles();
    void Datei(const std::string& name, const std::string& inhalt, std::uint32_t attribute = 0) {
        ASSERT_TRUE(p.files.WriteAll(Pfad(name), inhalt));
        if (attribute) {
            ASSERT_TRUE(p.files.SetAttributes(Pfad(name), attribute));
        }
    }
    static const DateiEintrag* Finde(const std::vector<DateiEintrag>& r, const std::string& name) {
        auto it = std::find_if(r.begin(), r.end(), [&](const DateiEintrag& e) { return e.Name == name; });
        return it == r.end() ? nullptr : &*it;
    }
};

TEST_F(DateiInfo, DateienSuchen_FolderWithHiddenAndSystemFile_RecordsEveryFileWithItsAttributes) {
    Datei("normal.txt", "12345");
    Datei("versteckt.txt", "v", kAttrHidden);
    Datei("system.sys", "s", kAttrSystem | kAttrHidden);
    ASSERT_TRUE(p.files.MakeDirectory(Pfad("unter")));
    Datei("unter\\tief.txt", "t");

    std::vector<DateiEintrag> records;
    DateienSuchen(p, ordner + "\\", false, "*.*", records);
    ASSERT_EQ(records.size(), 3u) << "folders and the dots are no records";
    const DateiEintrag* normal = Finde(records, "normal.txt");
    const DateiEintrag* versteckt = Finde(records, "versteckt.txt");
    const DateiEintrag* system = Finde(records, "system.sys");
    ASSERT_TRUE(normal && versteckt && system);
    EXPECT_EQ(normal->Ordner, ordner + "\\");
    EXPECT_EQ(normal->Grösse, 5u);
    EXPECT_EQ(normal->Kurzname, "normal.txt") << "an 8.3 name is its own short name";
    EXPECT_NE(normal->Geschrieben, 0u);
    EXPECT_EQ(versteckt->Attribute & kAttrHidden, kAttrHidden);
    EXPECT_EQ(system->Attribute & (kAttrSystem | kAttrHidden), kAttrSystem | kAttrHidden);
    EXPECT_NE(versteckt->Kurzname, "versteckt.txt");
    EXPECT_NE(versteckt->Kurzname.find('~'), std::string::npos);
    EXPECT_LE(versteckt->Kurzname.size(), 12u);

    DateienSuchen(p, ordner, false, "*.*", records);
    EXPECT_EQ(records.size(), 6u) << "a second walk adds to the array";
}

TEST_F(DateiInfo, DateienSuchen_RecursiveWithFilter_FindsTheFilesBelowTheHiddenSubfolders) {
    Datei("oben.txt", "o");
    Datei("oben.dat", "o");
    ASSERT_TRUE(p.files.MakeDirectory(Pfad("unter")));
    Datei("unter\\tief.txt", "t");
    Datei("unter\\tief.dat", "t");

    std::vector<DateiEintrag> records;
    DateienSuchen(p, ordner, true, "*.txt", records);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].Name, "oben.txt") << "the folder's own files come before those below";
    EXPECT_EQ(records[1].Name, "tief.txt");
    EXPECT_EQ(records[1].Ordner, Pfad("unter") + "\\");

    std::vector<DateiEintrag> nichts;
    DateienSuchen(p, Pfad("fehlt"), true, "*.*", nichts);
    EXPECT_TRUE(nichts.empty());
}

TEST_F(DateiInfo, PfadErweitern_KnownVariablesAtTheStart_OthersStayLowered) {
    const std::string win = "C:\\WINDOWS";
    std::string a = "%SystemRoot%\\System32\\Drivers\\X.SYS";
    EXPECT_EQ(PfadErweitern(a, win), "C:\\WINDOWS\\system32\\drivers\\x.sys");
    EXPECT_EQ(a, "%systemroot%\\system32\\drivers\\x.sys") << "the caller's text is lowered in place";
    std::string b = "\\SystemRoot\\System32\\SMSS.EXE";
    EXPECT_EQ(PfadErweitern(b, win), "C:\\WINDOWS\\system32\\smss.exe");
    std::string c = "%WinDir%\\Explorer.exe";
    EXPECT_EQ(PfadErweitern(c, win), "C:\\WINDOWS\\explorer.exe");
    std::string d = "%ProgramFiles%\\Tool.exe";
    EXPECT_EQ(PfadErweitern(d, win), "%programfiles%\\tool.exe");
    std::string e = "C:\\Programme\\%SystemRoot%\\Tool.exe";
    EXPECT_EQ(PfadErweitern(e, win), "c:\\programme\\%systemroot%\\tool.exe");
}

TEST_F(DateiInfo, DateiInfos_GermanFirstTranslation_FillsWhatItHasAndUnbekanntElsewhere) {
    DateiVersion v;
    DateiInfos(p, DieUmgebung().PeDatei("deutsch.dll"), v);
    EXPECT_EQ(v.CompanyName, "Kestrella Pruefstand GmbH");
    EXPECT_EQ(v.FileDescription, "Vertragsdatei");
    EXPECT_EQ(v.FileVersion, "5.1.40000.2");
    EXPECT_EQ(v.InternalName, "deutsch");
    EXPECT_EQ(v.LegalCopyright, "(C) Kestrella");
    EXPECT_EQ(v.OriginalFileName, "deutsch.dll") << "the name is asked for without regard to case";
    EXPECT_EQ(v.ProductName, "Kestrella Vertrag");
    EXPECT_EQ(v.ProductVersion, "2.2");
    EXPECT_EQ(v.Comments, "Unbekannt") << "a field of blanks counts as missing";
    EXPECT_EQ(v.LegalTrademarks, "Unbekannt") << "only the first translation is read";
    EXPECT_EQ(v.PrivateBuild, "Unbekannt");
    EXPECT_EQ(v.SpecialBuild, "Unbekannt");
}

TEST_F(DateiInfo, DateiInfos_CodePageAbove32767_EndsInOverflowWithTheRecordUntouched) {
    DateiVersion v;
    v.CompanyName = "vorher";
    try {
        DateiInfos(p, DieUmgebung().PeDatei("hoch.dll"), v);
        ADD_FAILURE() << "no overflow";
    } catch (const Fehler& f) {
        EXPECT_EQ(f.Nummer(), 6);
    }
    EXPECT_EQ(v.CompanyName, "vorher");
}

TEST_F(DateiInfo, DateiInfos_NoVersionBlockOrNoFile_GiveUnbekanntEverywhere) {
    Datei("text.txt", "kein Programm");
    DateiVersion ohne, fehlt;
    DateiInfos(p, Pfad("text.txt"), ohne);
    DateiInfos(p, Pfad("fehlt.dll"), fehlt);
    for (const DateiVersion* v : {&ohne, &fehlt}) {
        EXPECT_EQ(v->CompanyName, "Unbekannt");
        EXPECT_EQ(v->SpecialBuild, "Unbekannt");
    }
}

TEST_F(DateiInfo, DateiKurzinfo_TypeAndVersionWithSignedParts) {
    const std::string pe = DieUmgebung().PeDatei("deutsch.dll");
    const DateiKurz k = DateiKurzinfo(p, pe);
    EXPECT_EQ(k.Dateiname, "deutsch.dll");
    EXPECT_EQ(k.Typ, "Dynamic Link Library (DLL)");
    EXPECT_EQ(k.Version, "5.1.-25536.2");
    EXPECT_EQ(k.Pfad, pe);

    Datei("text.txt", "x");
    const DateiKurz ohne = DateiKurzinfo(p, Pfad("text.txt"));
    EXPECT_EQ(ohne.Typ, "Unbekannt");
    EXPECT_EQ(ohne.Version, "0.0.0.0");
}

TEST_F(DateiInfo, DateiZeiten_ReadableFileGivesLocalTimes_LockedOrMissingGivesFalse) {
    Datei("zeit.txt", "x");
    Zeitpunkt e, z, g;
    ASSERT_TRUE(DateiZeiten(p, Pfad("zeit.txt"), e, z, g));
    EXPECT_GE(g.Jahr, 2000);
    EXPECT_LE(g.Jahr, 2100);
    EXPECT_TRUE(g.Monat >= 1 && g.Monat <= 12 && g.Tag >= 1 && g.Tag <= 31);
    EXPECT_EQ(g.Text().size(), 20u);

    Zeitpunkt unberührt;
    unberührt.Jahr = 1999;
    Zeitpunkt a = unberührt, b = unberührt, c = unberührt;
    DieUmgebung().Sperren(Pfad("zeit.txt"));
    EXPECT_FALSE(DateiZeiten(p, Pfad("zeit.txt"), a, b, c));
    DieUmgebung().Freigeben(Pfad("zeit.txt"));
    EXPECT_FALSE(DateiZeiten(p, Pfad("fehlt.txt"), a, b, c));
    EXPECT_EQ(a, unberührt);
}

TEST_F(DateiInfo, KurzerPfad_LongNameGetsAShortForm_MissingPathGivesNothing) {
    Datei("ein langer name.txt", "x");
    const std::string kurz = KurzerPfad(p, Pfad("ein langer name.txt"));
    ASSERT_FALSE(kurz.empty());
    const std::string letzter = kurz.substr(kurz.find_last_of('\\') + 1);
    EXPECT_NE(letzter.find('~'), std::string::npos);
    EXPECT_EQ(letzter.find(' '), std::string::npos);
    EXPECT_EQ(KurzerPfad(p, Pfad("fehlt.txt")), "");
}

TEST_F(DateiInfo, SystemVerzeichnis_IsAFolderWithoutClosingBackslash) {
    const std::string system = SystemVerzeichnis(p);
    ASSERT_GE(system.size(), 3u);
    EXPECT_EQ(system.substr(1, 2), ":\\");
    EXPECT_NE(system.back(), '\\');
    EXPECT_NE(p.files.GetAttributes(system) & kAttrDirectory, 0u);
}

TEST_F(DateiInfo, ProzesseHolen_TableOfTheRunningSystem_WithNormalisedPaths) {
    Prozesse1 tabelle(p);
    tabelle.ProzesseHolen();
    ASSERT_FALSE(tabelle.Prozesse.empty());
    EXPECT_EQ(tabelle.ProzessAnzahl, static_cast<std::int32_t>(tabelle.Prozesse.size()) - 1);
    for (const ProcessRecord& r : tabelle.Prozesse) {
        EXPECT_FALSE(r.Name.empty());
        EXPECT_GE(r.ModuleCount, -1);
        if (!r.Path.empty()) {
            EXPECT_EQ(r.Path.substr(1, 2), ":\\") << r.Path;
        }
    }
}

TEST_F(DateiInfo, IcoHolen_KnownFileGivesAnIcon_MissingFileLeavesThePicture) {
    Datei("bild.txt", "x");
    SymbolBild bild;
    IcoHolen(p, Pfad("bild.txt"), bild);
    EXPECT_GE(bild.SystemIcon, 0);
    SymbolBild leer;
    IcoHolen(p, Pfad("fehlt.txt"), leer);
    EXPECT_EQ(leer.SystemIcon, -1);
}

}  // namespace
}  // namespace kes::vertrag

// The shared helpers: sizes as text, path parts, file presence and deletion, the readers.
#include <gtest/gtest.h>

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "fake_plattform.h"
#include "platform/allefunktionen.h"

namespace kes::test {
namespace {

TEST(GrösseFormat, EveryBranchWithTheSystemsSeparators) {
    const Zahlenformat de{',', '.'};
    struct Fall {
        double n;
        bool mitBytes;
        const char* text;
    };
    const Fall fälle[] = {
        {0, false, "0 Bytes"},
        {1, false, "1 Byte"},
        {734, false, "734 Bytes"},
        {1023, true, "1.023 Bytes"},
        {1024, false, "1,00 KB"},
        {1024, true, "1,00 KB (1.024 Bytes)"},
        {10239, false, "10,00 KB"},
        {10240, false, "10,0 KB"},
        {102400, false, "100 KB"},
        {1048576, false, "1,00 MB"},
        {10485760, false, "10,0 MB"},
        {104857600, false, "100 MB"},
        {1024.0 * 999999, false, "977 MB"},
        {1024.0 * 1000000, false, ""},
        {1024.0 * 10000000, true, " (10.240.000.000 Bytes)"},
        {1024.0 * 10000001, false, "9,54 GB"},
    };
    for (const Fall& f : fälle) EXPECT_EQ(GrösseFormat(f.n, f.mitBytes, de), f.text) << f.n;
    EXPECT_EQ(GrösseFormat(1536, true, Zahlenformat{'.', ','}), "1.50 KB (1,536 Bytes)");
}

TEST(Pfadteile, NameAndFolder) {
    EXPECT_EQ(DateiName("C:\\WINDOWS\\system32\\drivers\\etc\\hosts"), "hosts");
    EXPECT_EQ(DateiName("C:tool.exe"), "tool.exe");
    EXPECT_EQ(DateiName("tool.exe"), "tool.exe");
    EXPECT_EQ(DateiOrdner("tool.exe"), "");
    EXPECT_EQ(DateiOrdner("C:\\Programme\\Kestrella.exe"), "C:\\Programme\\");
    EXPECT_EQ(DateiOrdner("http://x/y.htm"), "http://x/");
    EXPECT_EQ(DateiName("http://x/y.htm"), "//x/y.htm") << "a slash is no separator for the name, a colon is";
}

class Dateihilfen : public ::testing::Test {
protected:
    fake::FakePlattform fp;
};

TEST_F(Dateihilfen, LockedFileCountsAsAbsent) {
    fp.files.Put("C:\\a.txt", "x");
    EXPECT_TRUE(DateiVorhanden(fp.plattform, "C:\\A.TXT"));
    fp.files.Lock("C:\\a.txt");
    EXPECT_FALSE(DateiVorhanden(fp.plattform, "C:\\a.txt"));
}

TEST_F(Dateihilfen, DeleteClearsReadOnly) {
    fp.files.Put("C:\\schreibgeschützt.txt", "x", kAttrReadOnly | kAttrHidden);
    EXPECT_TRUE(DateiLöschen(fp.plattform, "C:\\schreibgeschützt.txt"));
    EXPECT_FALSE(fp.files.Exists("C:\\schreibgeschützt.txt"));
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
}

TEST_F(Dateihilfen, DeleteFailure_ReportsTheRuntimesNumberNotTheSystemsCode) {
    fp.files.Put("C:\\offen.txt", "x");
    fp.files.Lock("C:\\offen.txt");
    fp.files.MakeDirs("C:\\Ordner");
    struct Fall {
        const char* datei;
        const char* nummer;
    };
    for (const Fall& f : {Fall{"C:\\fehlt.txt", "53"}, Fall{"C:\\offen.txt", "70"}, Fall{"C:\\Ordner", "70"},
                          Fall{"C:\\Kein Ordner\\x.txt", "75"}}) {
        fp.dialogs.meldungen.clear();
        EXPECT_FALSE(DateiLöschen(fp.plattform, f.datei));
        ASSERT_EQ(fp.dialogs.meldungen.size(), 1u) << f.datei;
        EXPECT_EQ(fp.dialogs.meldungen[0].text,
                  std::string("Datei :") + f.datei + "\r\nkonnte nicht gelöscht werden.\r\nFehler Nr: " + f.nummer);
    }
}

TEST_F(Dateihilfen, CentresOnScreenOrOnOwner) {
    Fenster f;
    f.Width = 200;
    f.Height = 100;
    FensterMitte(fp.plattform, f);
    EXPECT_EQ(f.Left, 412);
    EXPECT_EQ(f.Top, 334);
    Fenster besitzer;
    besitzer.Left = 100, besitzer.Top = 50, besitzer.Width = 400, besitzer.Height = 300;
    FensterMitte(fp.plattform, f, &besitzer);
    EXPECT_EQ(f.Left, 200);
    EXPECT_EQ(f.Top, 150);
}

TEST_F(Dateihilfen, SoundsAndShellCalls) {
    EXPECT_TRUE(SoundSpielen(fp.plattform, "ALARM"));
    EXPECT_FALSE(SoundSpielen(fp.plattform, "GIBTESNICHT"));
    MailSchreiben(fp.plattform, "a@b", "Betreff", "Text");
    SeiteÖffnen(fp.plattform, "http://x/");
    ASSERT_EQ(fp.shell.geöffnet.size(), 2u);
    EXPECT_EQ(fp.shell.geöffnet[0], "Open|mailto:a@b?Subject=Betreff&Body=Text|");
    EXPECT_EQ(fp.shell.geöffnet[1], "|http://x/|");
}

TEST(Leser, Lines) {
    EXPECT_EQ(ZeilenLesen("a\r\n\r\nb\rc"), (std::vector<std::string>{"a", "", "b", "c"}));
    EXPECT_EQ(ZeilenLesen("a\r\n"), (std::vector<std::string>{"a"}));
}

using Felder = std::vector<std::string>;

TEST(Feldleser, CommaAndLineEnd_BothEndAnEntry_QuotesGo) {
    EXPECT_EQ(FelderLesen("eins,zwei\r\n\"mit, Komma\",drei\r\n"), (Felder{"eins", "zwei", "mit, Komma", "drei"}));
    EXPECT_EQ(FelderLesen("\"a#C:\\X.EXE\"\r\nb#C:\\Y.EXE"), (Felder{"a#C:\\X.EXE", "b#C:\\Y.EXE"}))
        << "a last line without its end still counts";
    EXPECT_EQ(FelderLesen("  a  ,\tb\nc"), (Felder{"a", "b", "c"})) << "blanks around an entry go";
}

TEST(Feldleser, PathWithAComma_IsReadAsTwoBrokenEntries) {
    EXPECT_EQ(FelderLesen("tool.exe#C:\\A,B\\TOOL.EXE\r\nx.exe#C:\\X.EXE\r\n"),
              (Felder{"tool.exe#C:\\A", "B\\TOOL.EXE", "x.exe#C:\\X.EXE"}));
    EXPECT_EQ(FelderLesen("a#C:\\1#2.EXE"), (Felder{"a#C:\\1#2.EXE"})) << "further # stay in the entry";
}

TEST(Feldleser, FirstEmptyEntry_EndsTheReading) {
    EXPECT_EQ(FelderLesen("a\r\n\r\nb\r\n"), (Felder{"a"})) << "an empty line";
    EXPECT_EQ(FelderLesen("a,,b"), (Felder{"a"})) << "two commas";
    EXPECT_EQ(FelderLesen("a,\"\",b"), (Felder{"a"})) << "empty quotes";
    EXPECT_EQ(FelderLesen("   \r\na"), (Felder{})) << "blanks only";
    EXPECT_EQ(FelderLesen(""), (Felder{}));
}

TEST(ListeFärben, ColumnsAndRows) {
    ListView l;
    l.Add("a").SetSubItem(1, "x");
    l.Add("b").SetSubItem(1, "y");
    ListeFärben(l, 255, 2, 2);
    EXPECT_EQ(l.Items[1].ForeColors.at(1), 255);
    EXPECT_EQ(l.Items[1].ForeColors.at(0), -1);
    EXPECT_TRUE(l.Items[0].ForeColors.empty());
    ListeFärben(l, 7, 0, 0);
    EXPECT_EQ(l.Items[0].ForeColors, (std::vector<long>{7, 7}));
    ListeFärben(l, 9, 1, 3);  // beyond the list: nothing
    EXPECT_EQ(l.Items[1].ForeColors.at(0), 7);
}

}  // namespace
}  // namespace kes::test

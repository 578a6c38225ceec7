// The shared helpers: sizes as text, path parts, file presence and deletion, the readers.
#include <gtest/gtest.h>

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "fake_plattform.h"
#include "platform/allefunktionen.h"

namespace kes::test {
namespace {

using Texte = std::vector<std::string>;

TEST(GrösseFormat, EveryBranchWithTheSystemsSeparators) {
    const Zahlenformat de{',', '.'};
    struct Fall {
        double n;
        bool mitBytes;
        const char* text;
    };
    const Fall fälle[] = {{0, false, "0 Bytes"}, {1, false, "1 Byte"}, {734, false, "734 Bytes"},
                          {1023, true, "1.023 Bytes"}, {1024, false, "1,00 KB"}, {1024, true, "1,00 KB (1.024 Bytes)"},
                          {10239, false, "10,00 KB"}, {10240, false, "10,0 KB"}, {102400, false, "100 KB"},
                          {1048576, false, "1,00 MB"}, {10485760, false, "10,0 MB"}, {104857600, false, "100 MB"},
                          {1024.0 * 999999, false, "977 MB"}, {1024.0 * 1000000, false, ""},
                          {1024.0 * 10000000, true, " (10.240.000.000 Bytes)"}, {1024.0 * 10000001, false, "9,54 GB"}};
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

TEST_F(Dateihilfen, LockedFileCountsAsAbsent_DeleteClearsReadOnly) {
    fp.files.Put("C:\\a.txt", "x");
    EXPECT_TRUE(DateiVorhanden(fp.plattform, "C:\\A.TXT"));
    fp.files.Lock("C:\\a.txt");
    EXPECT_FALSE(DateiVorhanden(fp.plattform, "C:\\a.txt"));

    fp.files.Put("C:\\schreibgeschützt.txt", "x", kAttrReadOnly | kAttrHidden);
    EXPECT_TRUE(DateiLöschen(fp.plattform, "C:\\schreibgeschützt.txt"));
    EXPECT_FALSE(fp.files.Exists("C:\\schreibgeschützt.txt"));
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
}

TEST_F(Dateihilfen, DeleteFailure_ReportsTheRuntimesNumberNotTheSystemsCode) {
    fp.files.Put("C:\\offen.txt", "x");
    fp.files.Lock("C:\\offen.txt");
    fp.files.MakeDirs("C:\\Ordner");
    for (const auto& [datei, nummer] : {std::pair{"C:\\fehlt.txt", "53"}, std::pair{"C:\\offen.txt", "70"},
                                        std::pair{"C:\\Ordner", "70"}, std::pair{"C:\\Kein Ordner\\x.txt", "75"}}) {
        fp.dialogs.meldungen.clear();
        EXPECT_FALSE(DateiLöschen(fp.plattform, datei));
        ASSERT_EQ(fp.dialogs.meldungen.size(), 1u) << datei;
        EXPECT_EQ(fp.dialogs.meldungen[0].text,
                  std::string("Datei :") + datei + "\r\nkonnte nicht gelöscht werden.\r\nFehler Nr: " + nummer);
    }
}

TEST_F(Dateihilfen, CentresOnScreenOrOnOwner_SoundsAndShellCalls) {
    Fenster f;
    f.Width = 200;
    f.Height = 100;
    FensterMitte(fp.plattform, f);
    EXPECT_EQ(std::make_pair(f.Left, f.Top), std::make_pair(412, 334));
    Fenster besitzer;
    besitzer.Left = 100, besitzer.Top = 50, besitzer.Width = 400, besitzer.Height = 300;
    FensterMitte(fp.plattform, f, &besitzer);
    EXPECT_EQ(std::make_pair(f.Left, f.Top), std::make_pair(200, 150));

    EXPECT_TRUE(SoundSpielen(fp.plattform, "ALARM"));
    EXPECT_FALSE(SoundSpielen(fp.plattform, "GIBTESNICHT"));
    MailSchreiben(fp.plattform, "a@b", "Betreff", "Text");
    SeiteÖffnen(fp.plattform, "http://x/");
    EXPECT_EQ(fp.shell.geöffnet, (Texte{"Open|mailto:a@b?Subject=Betreff&Body=Text|", "|http://x/|"}));
}

// Lines; and fields, where a comma and a line end both end an entry, quotes go, and the
// first empty entry ends the reading.
TEST(Leser, LinesAndFields) {
    EXPECT_EQ(ZeilenLesen("a\r\n\r\nb\rc"), (Texte{"a", "", "b", "c"}));
    EXPECT_EQ(ZeilenLesen("a\r\n"), (Texte{"a"}));
    const std::pair<const char*, Texte> felder[] = {
        {"eins,zwei\r\n\"mit, Komma\",drei\r\n", {"eins", "zwei", "mit, Komma", "drei"}},
        {"\"a#C:\\X.EXE\"\r\nb#C:\\Y.EXE", {"a#C:\\X.EXE", "b#C:\\Y.EXE"}},  // a last line without its end
        {"  a  ,\tb\nc", {"a", "b", "c"}},                                       // blanks around an entry go
        // A path with a comma is read as two broken entries; further # stay in the entry.
        {"tool.exe#C:\\A,B\\TOOL.EXE\r\nx.exe#C:\\X.EXE\r\n", {"tool.exe#C:\\A", "B\\TOOL.EXE", "x.exe#C:\\X.EXE"}},
        {"a#C:\\1#2.EXE", {"a#C:\\1#2.EXE"}},
        {"a\r\n\r\nb\r\n", {"a"}},
        {"a,,b", {"a"}},
        {"a,\"\",b", {"a"}},
        {"   \r\na", {}},
        {"", {}}};
    for (const auto& [text, erwartet] : felder) EXPECT_EQ(FelderLesen(text), erwartet) << text;
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

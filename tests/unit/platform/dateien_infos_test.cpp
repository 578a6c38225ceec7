// The folder walk's records, column auto-size, the version texts and the file summary on
// the fake file system, for the cases that a real machine does not offer on demand.
#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "fake_plattform.h"
#include "platform/alledateien.h"
#include "platform/infos.h"

namespace kes::test {
namespace {

class DateienUndInfos : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    Plattform& p = fp.plattform;

    fake::FakeVersion Version(std::map<std::string, std::string> texte) {
        fake::FakeVersion v;
        v.dateiversion = {1, 2, 3, 4};
        v.übersetzungen = {{0x0407, 0x04E4, std::move(texte)}};
        return v;
    }
};

TEST_F(DateienUndInfos, FileOf4GiBOrMore_KeepsOnlyTheLowWordOfItsLength_AFolderMatchingTheFilterIsWalkedTwice) {
    fp.files.Put("C:\\gross\\image.iso", "x");
    fp.details.SetLength("C:\\gross\\image.iso", 0x100000010ULL);
    std::vector<DateiEintrag> gross;
    DateienSuchen(p, "C:\\gross", false, "*.*", gross);
    ASSERT_EQ(gross.size(), 1u);
    EXPECT_EQ(gross[0].Grösse, 0x10u);

    fp.files.Put("C:\\baum\\alt.txt\\innen.txt", "i");
    std::vector<DateiEintrag> records;
    DateienSuchen(p, "C:\\baum", true, "*.txt", records);
    EXPECT_EQ(records.size(), 2u) << "noted once by the filtered pass and once by the second look";
    std::vector<DateiEintrag> alle;
    DateienSuchen(p, "C:\\baum", true, "*.*", alle);
    EXPECT_EQ(alle.size(), 1u);
}

class Aufzeichner : public ListenFenster {
public:
    int view = 3;
    int spalten = 3;
    std::vector<std::tuple<unsigned, std::intptr_t, std::intptr_t>> nachrichten;
    int View() const override { return view; }
    int ColumnCount() const override { return spalten; }
    long SendMessage(unsigned m, std::intptr_t w, std::intptr_t l) override {
        nachrichten.emplace_back(m, w, l);
        return 1;
    }
};

TEST_F(DateienUndInfos, SpaltenAnpassen_SetsEveryColumnOfAReportOnly) {
    Aufzeichner liste;
    SpaltenAnpassen(liste, kBreiteNachInhalt);
    ASSERT_EQ(liste.nachrichten.size(), 3u);
    EXPECT_EQ(liste.nachrichten[0], std::make_tuple(4126u, std::intptr_t{0}, std::intptr_t{-2}));
    EXPECT_EQ(std::get<1>(liste.nachrichten[2]), 2);
    SpalteAnpassen(liste, 4, -2);
    SpalteAnpassen(liste, 0, -2);
    EXPECT_EQ(liste.nachrichten.size(), 3u) << "no column outside 1..count";
    liste.view = 1;
    SpaltenAnpassen(liste, -2);
    EXPECT_EQ(liste.nachrichten.size(), 3u) << "a list that is not a report is left alone";
}

TEST_F(DateienUndInfos, DateiInfos_FirstTranslationDecides_BlankLongNulAndLockedTexts) {
    fp.files.Put("C:\\app.exe", "MZ");
    auto v = Version({{"CompanyName", "Firma"}, {"ProductName", "  "}});
    v.übersetzungen.push_back({0x0409, 0x04B0, {{"FileVersion", "9.9"}}});
    fp.details.SetVersion("C:\\app.exe", v);
    DateiVersion d;
    DateiInfos(p, "C:\\app.exe", d);
    EXPECT_EQ(d.CompanyName, "Firma");
    EXPECT_EQ(d.FileVersion, "Unbekannt");
    EXPECT_EQ(d.ProductName, "Unbekannt") << "blanks count as missing";

    // A long text is cut at 255, a text ends at its first NUL.
    fp.details.SetVersion("C:\\app.exe",
                          Version({{"Comments", std::string(300, 'k')}, {"CompanyName", std::string("vor\0nach", 8)}}));
    DateiVersion lang;
    DateiInfos(p, "C:\\app.exe", lang);
    EXPECT_EQ(lang.Comments, std::string(255, 'k'));
    EXPECT_EQ(lang.CompanyName, "vor");

    fp.details.SetVersion("C:\\app.exe", Version({{"CompanyName", "Firma"}}));
    fp.files.Lock("C:\\app.exe");
    DateiVersion gesperrt;
    DateiInfos(p, "C:\\app.exe", gesperrt);
    EXPECT_EQ(gesperrt.CompanyName, "Unbekannt") << "a locked file counts as missing";
}

TEST_F(DateienUndInfos, DateiKurzinfo_TypeNamesByFileType) {
    const std::pair<std::uint32_t, const char*> typen[] = {{1, "Anwendung"},      {3, "Geräte Trieber"},
                                                           {4, "Schriftart"},     {5, "Virtueller Geräte Treiber"},
                                                           {7, "Static Library"}, {6, ""}};
    fp.files.Put("C:\\x\\datei.bin", "MZ");
    for (const auto& [typ, text] : typen) {
        auto v = Version({});
        v.dateityp = typ;
        fp.details.SetVersion("C:\\x\\datei.bin", v);
        const DateiKurz k = DateiKurzinfo(p, "C:\\x\\datei.bin");
        EXPECT_EQ(std::make_tuple(k.Typ, k.Version, k.Dateiname), std::make_tuple(text, "1.2.3.4", "datei.bin")) << typ;
    }
}

TEST_F(DateienUndInfos, DateiZeiten_AreLocalTimeToTheSecond) {
    EXPECT_EQ(AusFiletime(0).Text(), "01.01.1601  00:00:00");
    // 22.11.2026 13:05:09 UTC and 7 ticks.
    const std::uint64_t ft = 134398263090000007ULL;
    EXPECT_EQ(AusFiletime(ft).Text(), "22.11.2026  13:05:09");
    fp.files.Put("C:\\zeit.txt", "x");
    Zeitpunkt e, z, g, e2, z2, g2;
    ASSERT_TRUE(DateiZeiten(p, "C:\\zeit.txt", e, z, g));
    fp.details.ortszeitMinuten = 120;
    ASSERT_TRUE(DateiZeiten(p, "C:\\zeit.txt", e2, z2, g2));
    EXPECT_EQ((g2.Stunde - g.Stunde + 24) % 24, 1);
}

}  // namespace
}  // namespace kes::test

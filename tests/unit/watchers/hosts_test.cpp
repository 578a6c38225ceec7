// The hosts watcher (size only) and the online watcher (messenger service per change).
#include <functional>

#include "warn_lesen.h"

namespace kes::test {
namespace {

using Hosts = WaechterTest;

// The size line of the warning by the saved size and the file; empty: no warning. The
// category key is set on every run, and a warning comes only muted here.
TEST(HostsGroessen, TheSizeLine) {
    const std::string pfad = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";
    const auto fall = [&](const char* name, std::int32_t grösse, const std::string& zeile,
                          const std::function<void(fake::FakeFiles&)>& datei) {
        SCOPED_TRACE(name);
        Lauf l;
        l.a().Timer1.SetEnabled(true);
        l.prg.Hostsgrösse = grösse;
        datei(l.fp.files);
        l.a().hosts.TesteHosts();
        EXPECT_EQ(l.prg.Kategorieschlüssel, Kategorie::HostsDatei);
        EXPECT_EQ(l.prg.Beschäftigt, !zeile.empty());
        EXPECT_EQ(l.prg.Form3Geladen() ? l.prg.Form3().Label1[2].Caption : "<keine>",
                  zeile.empty() ? "<keine>" : zeile);
        EXPECT_TRUE(l.fp.sound.gespielt.empty());
    };
    fall("no baseline, no file", 0, "", [](auto&) {});
    fall("no baseline, an empty file", 0, "", [&](auto& f) { f.Put(pfad, ""); });
    fall("same size, other content", 21, "", [&](auto& f) { f.Put(pfad, "127.0.0.1 localhosX\r\n"); });
    fall("kilobytes without the byte count", 1536, " [Neue Grösse 2,00 KB       Alte Grösse war: 1,50 KB ]",
         [&](auto& f) { f.Put(pfad, std::string(2048, 'x')); });
    fall("a missing file against a baseline", 2048, " [Neue Grösse 0 Bytes       Alte Grösse war: 2,00 KB ]",
         [](auto&) {});
    fall("a locked file counts as zero bytes", 5, " [Neue Grösse 0 Bytes       Alte Grösse war: 5 Bytes ]",
         [&](auto& f) {
             f.Put(pfad, "12345");
             f.Lock(pfad);
         });
}

// A length beyond 32 bits reads as the saved size holds it, so that an accepted size
// settles the warning; before, the truncated size never matched the file again.
TEST_F(Hosts, FileOfMoreThanFourGigabytes_AcceptedOnceThenSilent) {
    fp.files.Put(hostsPfad, "x");
    fp.files.PretendLength(hostsPfad, 0x100000005LL);
    prg.Hostsgrösse = 734;
    prg.Alarm().hosts.TesteHosts();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Label1[2].Caption, " [Neue Grösse 5 Bytes       Alte Grösse war: 734 Bytes ]");
    prg.Form3().Image_Click(1);
    prg.Aufräumen();
    EXPECT_EQ(prg.Hostsgrösse, 5);
    ASSERT_FALSE(prg.Form3Geladen());
    prg.Alarm().hosts.TesteHosts();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Hosts, ChangedSize_RaisesTheWarningAndStopsTheCycle) {
    prg.Hostsgrösse = 734;
    prg.Soundflag = 1;
    fp.files.Put(hostsPfad, "x");
    prg.Alarm().hosts.TesteHosts();
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(prg.Alarm().Timer1.Enabled());
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_EQ(fp.sound.gespielt, Texte{"ALARM"});
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(Kopf(f), (Texte{"Ihre Hosts Datei wurde geändert.", hostsPfad,
                              " [Neue Grösse 1 Byte       Alte Grösse war: 734 Bytes ]"}));
    EXPECT_EQ(f.Text1[0].Text, hostsPfad);
    for (int i = 1; i <= 4; ++i) EXPECT_FALSE(f.Picture3[i].Visible);
    EXPECT_TRUE(f.Picture3[0].Visible);
    EXPECT_FALSE(f.ListView2.Visible);
    EXPECT_TRUE(f.Visible);
    EXPECT_EQ(f.Left, (1024 - f.Width) / 2) << "centred on the screen";
    EXPECT_EQ(f.Top, (768 - f.Height) / 2);
    EXPECT_EQ(prg.Hostsgrösse, 734) << "the baseline moves only by the user's action";
}

TEST_F(Hosts, StepFailingHalfway_IsPassedOverAndTheWindowStillShows) {
    prg.Hostsgrösse = 734;
    fp.files.Put(hostsPfad, "x");
    fp.system.formatFehlt = true;
    prg.Alarm().hosts.TesteHosts();
    ASSERT_TRUE(prg.Form3Geladen());
    const Form3Fenster& f = prg.Form3();
    EXPECT_TRUE(f.Visible) << "a warning that never shows would stop the watch for the rest of the run";
    EXPECT_EQ(f.Label1[1].Caption, hostsPfad);
    EXPECT_EQ(f.Label1[2].Caption, "") << "the size line failed";
    EXPECT_EQ(f.Text1[0].Text, hostsPfad) << "the steps after the failing one still run";
    prg.Form3Entladen();
    EXPECT_FALSE(prg.Beschäftigt) << "closing it restarts the cycle";
}

class Online : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    Texte Kommandos() const {
        Texte k;
        for (const auto& a : fp.shell.kommandos) k.push_back(a.kommando);
        return k;
    }
};

TEST_F(Online, EachChangeOfStateRunsItsCommandOnce) {
    AlarmFenster& a = prg.Alarm();
    a.hosts.TesteOnline();
    EXPECT_TRUE(Kommandos().empty()) << "no connection at start: no start command";
    fp.dialup.verbindungen = 1;
    a.hosts.TesteOnline();
    a.hosts.TesteOnline();
    fp.dialup.verbindungen = 2;
    a.hosts.TesteOnline();
    EXPECT_EQ(Kommandos(), Texte{"Net stop Nachrichtendienst"});
    EXPECT_EQ(fp.shell.kommandos[0].show, kSwShowNormal);
    fp.dialup.verbindungen = 0;
    a.hosts.TesteOnline();
    a.hosts.TesteOnline();
    EXPECT_EQ(Kommandos(), (Texte{"Net stop Nachrichtendienst", "Net start Nachrichtendienst"}));
}

}  // namespace
}  // namespace kes::test

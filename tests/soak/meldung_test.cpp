// How soon a change is reported, over a long run with the change sources: every watcher with
// places on at stage 30, a seeded stream of new entries in those places, and now and then
// a notification lost. A heard change must warn at the next look between ticks; a lost one
// no later than the first tick after the safety walk is due. Each change warns once: after
// its answer ("Übernehmen", or deleting it) the place stays quiet.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "core/programm.h"
#include "core/property_bag.h"
#include "core/starten.h"
#include "fake_plattform.h"
#include "panel/alarm.h"
#include "warning/form3.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/alarm_daten.h"

namespace kes::test {
namespace {

constexpr int kÄnderungen = 300;
constexpr int kStufeMs = 30000;
constexpr const char* kOrdner = "C:\\Programme\\Kestrella\\";
constexpr const char* kHosts = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";
constexpr const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kDienste = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\";
constexpr const char* kDomains =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
constexpr const char* kWinlogon = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
constexpr const char* kIfeo =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options\\";

struct Ort {
    const char* name;
    Kategorie kategorie;  // of its warning, which need not show the entry's name
    std::function<void(fake::FakePlattform&, const std::string& neu)> ändern;
    // The answer that silences it: "Übernehmen", but for a file new in the system folder,
    // whose accept goes to the Windows folder's list and so warns again: "Datei löschen".
    int knopf = 1;
    // A value of the user is seen below HKEY_USERS first and then, at the next tick of the
    // stage, below HKEY_CURRENT_USER: two warnings by design.
    bool zweimal = false;
};

const Ort kOrte[] = {
    {"Run of the user", Kategorie::AutostartRegistry,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetString(std::string("HKEY_CURRENT_USER\\") + kRun, n, "C:\\Tools\\" + n + ".exe");
     },
     1, true},
    {"Run of the machine", Kategorie::AutostartRegistry,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetString(std::string("HKEY_LOCAL_MACHINE\\") + kRun, n, "C:\\Tools\\" + n + ".exe");
     }},
    {"hosts", Kategorie::HostsDatei,
     [](fake::FakePlattform& fp, const std::string& n) { fp.files.Append(kHosts, "127.0.0.1 " + n + "\r\n"); }},
    {"Windows folder", Kategorie::WindowsDatei,
     [](fake::FakePlattform& fp, const std::string& n) { fp.files.Put("C:\\WINDOWS\\" + n + ".exe", "MZ"); }},
    {"system folder", Kategorie::WindowsDatei,
     [](fake::FakePlattform& fp, const std::string& n) { fp.files.Put("C:\\WINDOWS\\system32\\" + n + ".dll", "MZ"); },
     3},
    {"services", Kategorie::Dienste,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetString(kDienste + n, "ImagePath", "C:\\Tools\\" + n + ".exe");
         fp.registry.SetDword(kDienste + n, "Start", 2);
     }},
    {"a service's program", Kategorie::Dienstpfade,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetString(kDienste + std::string("Alt"), "ImagePath", "C:\\Tools\\" + n + ".exe");
     }},
    {"trusted sites", Kategorie::ToolBar,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetDword(std::string(kDomains) + "\\" + n + ".example", "http", 2);
     }},
    {"start page", Kategorie::StartPage,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                               "http://" + n + ".example/");
     }},
    {"Winlogon", Kategorie::Winlogon,
     [](fake::FakePlattform& fp, const std::string& n) { fp.registry.SetString(kWinlogon, "Shell", n + ".exe"); }},
    {"Image File Execution Options", Kategorie::ImageFileExecution,
     [](fake::FakePlattform& fp, const std::string& n) {
         fp.registry.SetString(kIfeo + n + ".exe", "Debugger", "C:\\Tools\\" + n + ".exe");
     }},
};

class Meldung : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    Programm prg{fp.plattform};
    std::mt19937 zufall{25};

    int Zahl(int n) { return std::uniform_int_distribution<int>(0, n - 1)(zufall); }

    void SetUp() override {
        PropertyBag bag;
        bag.WriteProperty("Aufab1", std::int16_t{kStufeMs / 1000});
        bag.WriteProperty("hostsgrösse", std::int32_t{23});
        bag.WriteProperty("AnzeigeLöschen", true);  // "Löschen" without the question
        for (int box : {8, 13, 15, 16, 19, 20, 28, 29, 33, 35, 46})
            bag.WriteProperty("Box" + std::to_string(box), std::int16_t{1});
        fp.files.Put(std::string(kOrdner) + "kestrella.dat", bag.Contents());
        fp.files.Put(kHosts, "127.0.0.1 localhost\r\n\r\n");
        fp.files.Put("C:\\WINDOWS\\explorer.exe", "MZ");
        fp.files.Put("C:\\WINDOWS\\system32\\kernel32.dll", "MZ");
        for (const char* h : {"HKEY_CURRENT_USER\\", "HKEY_LOCAL_MACHINE\\"})
            fp.registry.MakeKey(h + std::string(kRun));
        fp.registry.SetDword(std::string(kDienste) + "Alt", "Start", 3);
        fp.registry.MakeKey(kDomains);
        fp.registry.SetString(kWinlogon, "Shell", "Explorer.exe");
        fp.registry.MakeKey(kIfeo);
        ASSERT_TRUE(Main(prg));
        prg.Alarm().windowsDateien.LadeWindows();
        prg.Alarm().windowsDateien.LadeWindowsSys32();
        // What stood there at the start is taken as it is.
        for (int i = 0; i < 20 && Warten(2 * kSicherheitsLaufMs) >= 0; ++i) Antworten("the start");
        ASSERT_LT(Warten(2 * kSicherheitsLaufMs), 0) << "the start's warnings did not end";
    }

    // Looks between ticks as the clock runs, until a warning is open or the time is up:
    // the time it took, or -1.
    int Warten(int bisMs) {
        for (int ms = 0; ms <= bisMs; ms += kSofortMs) {
            if (prg.Form3Geladen()) return ms;
            fp.timers.Advance(kSofortMs);
        }
        return prg.Form3Geladen() ? bisMs : -1;
    }
    // What the open warning shows, for a failure's message.
    std::string Gezeigt() {
        if (!prg.Form3Geladen()) return "no warning";
        std::string t = "warning " + std::to_string(static_cast<int>(prg.Kategorieschlüssel)) + ":";
        for (const ListItem& z : prg.Form3().ListView4.Items) {
            t += " [" + z.Text;
            for (std::size_t i = 1; i < 4; ++i) t += " | " + z.SubItem(i);
            t += "]";
        }
        t += " " + prg.Form3().Text1[0].Text;
        return t;
    }
    void Antworten(const std::string& was, int knopf = 1) {
        Form3Fenster& f = prg.Form3();
        ASSERT_TRUE(f.Image[static_cast<std::size_t>(knopf)].Visible)
            << was << ": no button " << knopf << " on " << Gezeigt();
        f.Image_Click(knopf);
        // A service's accept asks in a menu: this service, or every one of its maker.
        if (prg.Form3Geladen() && prg.Form3().Popup.Menü == "dienst") {
            prg.Form3().Popup = {};
            prg.Form3().dienst1_Click(1);
        }
        prg.Aufräumen();
        ASSERT_FALSE(prg.Form3Geladen()) << was << ": the warning stayed";
    }
};

TEST_F(Meldung, EveryChangeWarnsOnce_AtOnceWhenHeard_BySafetyWalkWhenLost) {
    struct Offen {
        const Ort* ort;
        std::string name;
        int sichtungen;
    };
    int gehört = 0, verloren = 0, paare = 0, längsteGehört = 0, längsteVerloren = 0;
    for (int i = 0; i < kÄnderungen; ++i) {
        // One change, or two at once in two places.
        std::vector<Offen> offen;
        const int anzahl = Zahl(4) == 0 ? 2 : 1;
        for (int n = 0; n < anzahl; ++n) {
            const Ort& ort = kOrte[static_cast<std::size_t>(Zahl(static_cast<int>(std::size(kOrte))))];
            const std::string name = "neu" + std::to_string(i) + "x" + std::to_string(n);
            // Two places: a value changed twice is one change.
            if (!offen.empty() && offen[0].ort == &ort) continue;
            ort.ändern(fp, name);
            offen.push_back({&ort, name, ort.zweimal ? 2 : 1});
        }
        paare += offen.size() == 2;
        const bool weg = offen.size() == 1 && Zahl(5) == 0;
        if (weg) fp.changes.Verlieren();
        std::string was = "change " + std::to_string(i) + ":";
        for (const Offen& o : offen) was += std::string(" ") + o.ort->name + " " + o.name;
        if (weg) was += ", notification lost";
        for (bool erste = true; !offen.empty(); erste = false) {
            // The first warning of a step comes at the next look, or by the safety walk when
            // its notification was lost. What waits behind it comes at the next look when
            // its row was not reached, else at the stage's tick: the answer itself brings
            // no tick.
            const int ms = Warten(erste ? (weg ? kSicherheitsLaufMs + kStufeMs : kSofortMs) : kStufeMs + kSofortMs);
            ASSERT_GE(ms, 0) << was << ": no warning";
            // The change it names, or else the one of its kind.
            const std::string gezeigt = Gezeigt();
            auto o = std::find_if(offen.begin(), offen.end(),
                                  [&](const Offen& x) { return gezeigt.find(x.name) != std::string::npos; });
            if (o == offen.end())
                o = std::find_if(offen.begin(), offen.end(),
                                 [&](const Offen& x) { return x.ort->kategorie == prg.Kategorieschlüssel; });
            ASSERT_NE(o, offen.end()) << was << ": another warning: " << gezeigt;
            if (erste) {
                (weg ? verloren : gehört)++;
                int& längste = weg ? längsteVerloren : längsteGehört;
                längste = std::max(längste, ms);
            }
            Antworten(was, o->ort->knopf);
            if (--o->sichtungen == 0) offen.erase(o);
        }
        // Quiet for a while: the answered changes do not come back.
        ASSERT_LT(Warten(Zahl(3 * kStufeMs)), 0) << was << ": warned again after its answer: " << Gezeigt();
    }
    std::printf(
        "     %d steps heard (%d with two changes at once), longest %d ms to a warning; %d lost, longest %d ms\n",
        gehört, paare, längsteGehört, verloren, längsteVerloren);
}

}  // namespace
}  // namespace kes::test

// Every list of the control panel removed from, added to and cleared from inside every
// pump of a watcher's row. The row compares with the lists as they stood at its start, so
// it raises the warning it raises without the change, and no change frees memory the row
// still reads (the sanitizer run sees to the second). One body, a row per watcher.
#include <gtest/gtest-spi.h>

#include <functional>
#include <memory>

#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"
#include "watchers/waechter.h"

namespace kes::test {

// A pump inside a stretch declared free of pumps fails the running test.
const bool kPumpeImFreienMelden = (
    fake::beiPumpeImFreien = [] { ADD_FAILURE() << "message pump inside a stretch declared free of pumps"; }, true);

namespace {

using L = Ausnahmeliste;

const std::string kOrdner = "C:\\Programme\\Kestrella\\";
const std::string kHkcu = "HKEY_CURRENT_USER\\";
const std::string kHklm = "HKEY_LOCAL_MACHINE\\";
const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string kDpf = "C:\\WINDOWS\\Downloaded Program Files\\";
const std::string kDienste = "System\\CurrentControlSet\\Services\\";

ListItem& Zeile(ListView& l, const std::string& text, std::size_t spalte = 0, const std::string& wert = "") {
    ListItem& z = l.Add(text);
    if (spalte) z.SetSubItem(spalte, wert);
    return z;
}

struct Wächterzeile {
    const char* name;
    std::function<void(Lauf&)> einrichten;  // the live system, and the lists as the row starts
    std::function<void(AlarmFenster&)> testen;
};

const Wächterzeile kZeilen[] = {
    {"TesteProzesse",
     [](Lauf& l) {
         int pid = 10;
         for (const char* n : {"a.exe", "b.exe", "neu.exe"}) {
             fake::FakeProzess p;
             p.name = n;
             p.pid = static_cast<std::uint32_t>(pid++);
             p.pfad = std::string("C:\\") + n;
             l.fp.processes.prozesse.push_back(p);
             l.fp.files.Put(p.pfad, "MZ");
         }
         Zeile(l.a().ListView6, "a.exe", 1, "C:\\A.EXE");
         Zeile(l.a().ListView6, "b.exe", 1, "C:\\B.EXE");
         l.a().List1.Items = {"Firma Eins", "Firma Zwei"};
     },
     [](AlarmFenster& a) { a.prozesse.TesteProzesse(); }},
    {"TesteAutostartHkeyUser",
     [](Lauf& l) {
         const std::string key = "HKEY_USERS\\S-1-5-21\\" + kRun;
         for (const char* n : {"A", "B", "Z"}) l.fp.registry.SetString(key, n, std::string("C:\\") + n + ".exe");
         for (const char* n : {"A", "B"}) Zeile(l.a().ListView1, key + "\\" + n + "\\C:\\" + n + ".exe");
     },
     [](AlarmFenster& a) { a.autostartRegistry.TesteAutostartHkeyUser(); }},
    {"TesteWindowsGeloescht",
     [](Lauf& l) {
         for (const char* n : {"a.exe", "b.exe", "c.exe"}) l.fp.files.Put(std::string("C:\\WINDOWS\\") + n, "MZ");
         l.a().Box1[17].setValue(1);
         l.a().windowsDateien.LadeWindows();
         l.fp.files.Delete("C:\\WINDOWS\\a.exe");
         l.a().List5.Items = {"C:\\WINDOWS\\x.exe", "C:\\WINDOWS\\y.exe"};
     },
     [](AlarmFenster& a) { a.windowsDateien.TesteWindowsGelöscht(); }},
    {"TesteWindowsErstellt",
     [](Lauf& l) {
         for (const char* n : {"a.exe", "b.exe"}) l.fp.files.Put(std::string("C:\\WINDOWS\\") + n, "MZ");
         l.a().Box1[16].setValue(1);
         l.a().windowsDateien.LadeWindows();
         l.fp.files.Put("C:\\WINDOWS\\neu.exe", "MZ");
         l.a().List5.Items = {"C:\\WINDOWS\\x.exe", "C:\\WINDOWS\\y.exe"};
     },
     // As the cycle runs them: the created-file test works on the deleted-file test's snapshot.
     [](AlarmFenster& a) {
         a.windowsDateien.TesteWindowsGelöscht();
         a.windowsDateien.TesteWindowsErstellt();
     }},
    {"Testeactivx",
     [](Lauf& l) {
         for (const char* n : {"a.ocx", "b.ocx", "neu.ocx"}) l.fp.files.Put(kDpf + n, "MZ");
         l.a().List6.Items = {kDpf + "a.ocx", kDpf + "B.OCX"};
     },
     [](AlarmFenster& a) { a.activeX.Testeactivx(); }},
    {"TesteBHO",
     [](Lauf& l) {
         const std::string bho =
             kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\";
         for (const char* c : {"{B1}", "{B2}", "{B9}"}) {
             l.fp.registry.SetString(bho + c, "", std::string("Objekt ") + c);
             l.Server(c, std::string("C:\\") + c + ".dll");
         }
         for (const char* c : {"{B1}", "{B2}"}) Zeile(l.a().ListView8, std::string("C:\\") + c + ".dll", 1, c);
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteBHO(); }},
    {"TesteShellService",
     [](Lauf& l) {
         const std::string key = kHklm + "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
         for (const char* n : {"A1", "A2", "Z9"}) {
             l.fp.registry.SetString(key, n, std::string("{S") + n + "}");
             l.Server(std::string("{S") + n + "}", std::string("C:\\") + n + ".dll");
         }
         for (const char* n : {"A1", "A2"}) Zeile(l.a().ListView9, n, 1, std::string("{S") + n + "}");
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteShellService(); }},
    {"TesteSharedTaskScheduler",
     [](Lauf& l) {
         const std::string key = kHklm + "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
         for (const char* c : {"{T1}", "{T2}", "{T9}"}) {
             l.fp.registry.SetString(key, c, std::string("Planer ") + c);
             l.Server(c, std::string("C:\\") + c + ".dll");
         }
         for (const char* c : {"{T1}", "{T2}"}) Zeile(l.a().ListView10, std::string("Planer ") + c, 1, c);
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteSharedTaskScheduler(); }},
    {"TesteSonstiges2",
     [](Lauf& l) {
         for (const char* c : {"{U1}", "{U2}", "{U9}"}) {
             l.fp.registry.SetString(kHkcu + "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", c, "");
             l.Server(c, std::string("C:\\") + c + ".dll");
         }
         l.a().List9.Items = {"{U1}", "{U2}"};
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteSonstiges2(); }},
    {"TesteDienste",
     [](Lauf& l) {
         for (const char* n : {"A1", "A2", "Z9"}) {
             l.fp.registry.SetDword(kHklm + kDienste + n, "Start", 2);
             l.fp.registry.SetString(kHklm + kDienste + n, "ImagePath", std::string("C:\\") + n + ".exe");
             l.fp.files.Put(std::string("C:\\") + n + ".exe", "MZ");
         }
         for (const char* n : {"A1", "A2"}) Zeile(l.a().ListView11, n);
         l.a().List10.Items = {"Firma Eins", "Firma Zwei"};
     },
     [](AlarmFenster& a) { a.dienste.TesteDienste(); }},
    {"TesteToolBar",
     [](Lauf& l) {
         for (const char* d : {"a.de", "b.de", "z.de"}) l.fp.registry.MakeKey(kHklm + kZoneMapDomains + "\\" + d);
         for (const char* d : {"a.de", "b.de"}) Zeile(l.a().ListView12, d);
     },
     [](AlarmFenster& a) { a.vertrauenswürdigeSeiten.TesteToolBar(); }},
    {"TesteToolBar1",
     [](Lauf& l) {
         for (const char* d : {"a.de", "b.de", "z.de"}) l.fp.registry.MakeKey(kHkcu + kZoneMapDomains + "\\" + d);
         for (const char* d : {"a.de", "b.de"}) Zeile(l.a().ListView12, d);
     },
     [](AlarmFenster& a) { a.vertrauenswürdigeSeiten.TesteToolBar1(); }},
    {"ImageFileExecution",
     [](Lauf& l) {
         const std::string ifeo =
             kHklm + "Software\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options\\";
         for (const char* n : {"a.exe", "b.exe"}) l.fp.registry.SetString(ifeo + n, "Debugger", "d.exe");
         l.a().imageFileExecution.Teste();  // the baseline: a and b
         l.fp.registry.SetString(ifeo + "z.exe", "Debugger", "d.exe");
     },
     [](AlarmFenster& a) { a.imageFileExecution.Teste(); }},
    {"GeplanteAufgaben",
     [](Lauf& l) {
         const std::string tasks = "C:\\WINDOWS\\system32\\Tasks\\";
         for (const char* n : {"a", "b"}) l.fp.files.Put(tasks + n, "<Exec><Command>a.exe</Command></Exec>");
         l.a().geplanteAufgaben.Teste();  // the baseline: a and b
         l.fp.files.Put(tasks + "z", "<Exec><Command>z.exe</Command></Exec>");
     },
     [](AlarmFenster& a) { a.geplanteAufgaben.Teste(); }},
};

enum class Änderung { Entfernen, Hinzufügen, Leeren };

void Ändern(AlarmFenster& a, L l, Änderung ä) {
    const Listensteuerelement liste = SteuerelementVon(a, l);
    switch (ä) {
        case Änderung::Entfernen: {
            // The first row, through the panel's own menu entry that deletes one row (the
            // search hooks have only the one that deletes them all).
            if (liste.kasten && !liste.kasten->Items.empty()) liste.kasten->ListIndex = 0;
            if (liste.ansicht && !liste.ansicht->Items.empty()) liste.ansicht->Items[0].Selected = true;
            const int eintrag = l == L::ListView2 || l == L::List10 ? 1 : 0;
            a.Ausnahmen.MenüKlick(l, eintrag);
            break;
        }
        case Änderung::Hinzufügen:
            // As the accept actions add: enough rows that the list must grow its memory.
            for (int i = 0; i < 40; ++i) {
                const std::string text = "zugefügt " + std::to_string(i);
                if (liste.kasten) liste.kasten->Items.push_back(text);
                if (liste.ansicht) liste.ansicht->Add(text);
            }
            break;
        case Änderung::Leeren:
            if (liste.kasten) liste.kasten->Items = {};
            if (liste.ansicht) liste.ansicht->Items = {};
            break;
    }
}

// What the warning shows, or "-" for none.
std::string Gewarnt(Programm& prg) {
    if (!prg.Form3Geladen()) return "-";
    Form3Fenster& f = prg.Form3();
    std::string t = std::to_string(static_cast<int>(prg.Kategorieschlüssel)) + "|" + f.Label1[0].Caption;
    for (int i = 0; i < 4; ++i) t += "|" + f.Text1[i].Text;
    for (const auto& z : f.ListView2.Items) t += "|" + z.Text;
    return t;
}

TEST(Pumpenfrei, PumpWhileHeld_FailsTheTest_OnceReleasedNot) {
    fake::FakeTimers t;
    EXPECT_NONFATAL_FAILURE(
        {
            const Pumpenfrei frei;
            t.PumpMessages();
        },
        "free of pumps");
    t.PumpMessages();
    EXPECT_EQ(t.pumpen, 2);
}

class PumpenImWächter : public ::testing::TestWithParam<Wächterzeile> {};

TEST_P(PumpenImWächter, EveryPanelListChangedInEveryPump_SameWarningAsWithoutTheChange) {
    const Wächterzeile& zeile = GetParam();
    std::string erwartet;
    int pumpen = 0;
    {
        Lauf lauf;
        zeile.einrichten(lauf);
        const int vorher = lauf.fp.timers.pumpen;
        zeile.testen(lauf.a());
        pumpen = lauf.fp.timers.pumpen - vorher;
        erwartet = Gewarnt(lauf.prg);
    }
    ASSERT_NE(erwartet, "-") << "the row must find something to warn of";
    ASSERT_GT(pumpen, 0) << "a row without a pump needs no row here";

    for (int bei = 0; bei < pumpen; ++bei)
        for (int l = 0; l < kAusnahmelistenAnzahl; ++l)
            for (Änderung ä : {Änderung::Entfernen, Änderung::Hinzufügen, Änderung::Leeren}) {
                auto lauf = std::make_unique<Lauf>();
                zeile.einrichten(*lauf);
                int gezählt = 0;
                std::function<void()> zählen = [&] {
                    if (gezählt++ == bei)
                        Ändern(lauf->a(), static_cast<L>(l), ä);
                    else
                        lauf->fp.timers.beimPumpen.push_back(zählen);
                };
                lauf->fp.timers.beimPumpen.push_back(zählen);
                zeile.testen(lauf->a());
                ASSERT_EQ(Gewarnt(lauf->prg), erwartet)
                    << "pump " << bei << " of " << pumpen << ", list " << l << ", change " << static_cast<int>(ä);
            }
}

INSTANTIATE_TEST_SUITE_P(Wächter, PumpenImWächter, ::testing::ValuesIn(kZeilen),
                         [](const auto& i) { return std::string(i.param.name); });

}  // namespace
}  // namespace kes::test

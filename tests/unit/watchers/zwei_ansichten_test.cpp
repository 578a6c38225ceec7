// The watchers of the machine's redirected places on a 64-bit Windows: an entry that a
// 32-bit program wrote is listed by its Wow6432Node path, has a baseline line of its own,
// and is deleted in its own view, while the twin of the same name in the 64-bit view stays.
// On a 32-bit Windows the Wow6432Node paths are not read.
#include <functional>

#include "common/eigene_orte.h"
#include "core/einstellungen.h"
#include "core/property_bag.h"
#include "panel/alarm.h"
#include "platform/hive_ocx.h"
#include "programm_test_basis.h"
#include "warning/form3.h"
#include "watchers/startseite.h"

namespace kes::test {
namespace {

const std::string kHklm = "HKEY_LOCAL_MACHINE\\";
const std::string kKlassen64 = "HKEY_CLASSES_ROOT\\CLSID\\";
const std::string kKlassen32 = "HKEY_LOCAL_MACHINE\\Software\\Classes\\Wow6432Node\\CLSID\\";

// A machine's path below HKLM in the 64-bit view or, written there, in the 32-bit one.
std::string In(bool bit32, const std::string& software, const std::string& rest) {
    return kHklm + software + (bit32 ? "\\Wow6432Node\\" : "\\") + rest;
}

struct Maschine {
    fake::FakePlattform fp;
    Programm prg{fp.plattform};
    explicit Maschine(fake::Maschine m) : fp(m) {
        prg.Programmordner = "C:\\Programme\\Kestrella\\";
        prg.Windowsordner = "C:\\WINDOWS";
        prg.Systemordner = "C:\\WINDOWS\\system32";
        prg.Alarm().Timer1.SetEnabled(true);
        prg.AnzeigeLöschen = true;  // no question before a delete
    }
    void Klasse(bool bit32, const std::string& clsid, const std::string& server) {
        fp.registry.SetString((bit32 ? kKlassen32 : kKlassen64) + clsid + "\\InprocServer32", "", server);
        fp.files.Put(server, "MZ");
    }
    bool KlasseDa(bool bit32, const std::string& clsid) {
        return fp.registry.HasKey((bit32 ? kKlassen32 : kKlassen64) + clsid);
    }
};

// One watched place: how an entry is made in either view, the watch that lists it, the
// key path its warning row shows for the 32-bit one, and whether the entry is there.
struct Ort {
    const char* name;
    std::function<void(Maschine&, bool bit32)> anlegen;
    std::function<void(AlarmFenster&)> teste;
    std::string pfad32;
    std::function<bool(Maschine&, bool bit32)> da;
};

Ort Autostart(const char* schlüssel) {
    const std::string rest = std::string("Microsoft\\Windows\\CurrentVersion\\") + schlüssel;
    return {schlüssel,
            [rest](Maschine& m, bool b) { m.fp.registry.SetString(In(b, "Software", rest), "Tool", "C:\\tool.exe"); },
            [](AlarmFenster& a) { a.autostartRegistry.TesteAutostartRegistry(); }, "Software\\Wow6432Node\\" + rest,
            [rest](Maschine& m, bool b) { return m.fp.registry.HasValue(In(b, "Software", rest), "Tool"); }};
}

const std::string kNT = "Microsoft\\Windows NT\\CurrentVersion\\Windows";
const std::string kBho = "Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string kSsodl = "Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
const std::string kSts = "Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";

const std::string kWinlogon = "Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
const std::string kActiveSetup = "Microsoft\\Active Setup\\Installed Components\\{A1}";

// A watcher of further places takes its first baseline silently: taken before the entry.
Ort WeitererOrt(const char* name, RegistryOrte AlarmDaten::*w, const std::string& rest, const char* wert) {
    return {name,
            [=](Maschine& m, bool b) {
                (m.prg.Alarm().*w).Teste();
                m.fp.registry.SetString(In(b, "Software", rest), wert, "C:\\tool.exe");
            },
            [=](AlarmFenster& a) { (a.*w).Teste(); }, "Software\\Wow6432Node\\" + rest,
            [=](Maschine& m, bool b) { return m.fp.registry.HasValue(In(b, "Software", rest), wert); }};
}

const std::string kHooks = "Microsoft\\Windows\\CurrentVersion\\Explorer\\ShellExecuteHooks";
const std::string kToolbar = "Microsoft\\Internet Explorer\\Toolbar";

// A place whose values are named by their class; the class is registered in the entry's view.
Ort KlassenOrt(const char* name, RegistryOrte AlarmDaten::*w, const std::string& rest) {
    return {name,
            [=](Maschine& m, bool b) {
                (m.prg.Alarm().*w).Teste();
                m.Klasse(b, "{K1}", b ? "C:\\k32.dll" : "C:\\k64.dll");
                m.fp.registry.SetString(In(b, "Software", rest), "{K1}", "");
            },
            [=](AlarmFenster& a) { (a.*w).Teste(); }, "Software\\Wow6432Node\\" + rest,
            [=](Maschine& m, bool b) { return m.fp.registry.HasValue(In(b, "Software", rest), "{K1}"); }};
}

const Ort kOrte[] = {
    WeitererOrt("Winlogon", &AlarmDaten::winlogon, kWinlogon, "Taskman"),
    KlassenOrt("ShellExecuteHooks", &AlarmDaten::shellErweiterungen, kHooks),
    KlassenOrt("Toolbar", &AlarmDaten::ieToolbar, kToolbar),
    WeitererOrt("Active Setup", &AlarmDaten::activeSetup, kActiveSetup, "StubPath"),
    Autostart("Run"),
    Autostart("RunOnce"),
    Autostart("RunOnceEx"),
    Autostart("RunServices"),
    Autostart("RunServicesOnce"),
    {"Windows NT run",
     [](Maschine& m, bool b) { m.fp.registry.SetString(In(b, "Software", kNT), "run", "C:\\tool.exe"); },
     [](AlarmFenster& a) { a.autostartRegistry.TesteAutostartRegistry(); }, "Software\\Wow6432Node\\" + kNT,
     [](Maschine& m, bool b) { return m.fp.registry.HasValue(In(b, "Software", kNT), "run"); }},
    // The helper object's delete leaves its key and removes its class: the class is the entry.
    {"Browser Helper Objects",
     [](Maschine& m, bool b) {
         m.fp.registry.SetString(In(b, "SOFTWARE", kBho + "\\{B1}"), "", "Hilfe");
         m.Klasse(b, "{B1}", b ? "C:\\b32.dll" : "C:\\b64.dll");
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteBHO(); }, "SOFTWARE\\Wow6432Node\\" + kBho,
     [](Maschine& m, bool b) { return m.KlasseDa(b, "{B1}"); }},
    {"ShellServiceObjectDelayLoad",
     [](Maschine& m, bool b) {
         m.fp.registry.SetString(In(b, "Software", kSsodl), "Brenner", "{S1}");
         m.Klasse(b, "{S1}", b ? "C:\\s32.dll" : "C:\\s64.dll");
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteShellService(); }, "Software\\Wow6432Node\\" + kSsodl,
     [](Maschine& m, bool b) {
         return m.fp.registry.HasValue(In(b, "Software", kSsodl), "Brenner") && m.KlasseDa(b, "{S1}");
     }},
    {"SharedTaskScheduler",
     [](Maschine& m, bool b) {
         m.fp.registry.SetString(In(b, "SOFTWARE", kSts), "{T1}", "Planer");
         m.Klasse(b, "{T1}", b ? "C:\\t32.dll" : "C:\\t64.dll");
     },
     [](AlarmFenster& a) { a.klassenlisten.TesteSharedTaskScheduler(); }, "SOFTWARE\\Wow6432Node\\" + kSts,
     [](Maschine& m, bool b) {
         return m.fp.registry.HasValue(In(b, "SOFTWARE", kSts), "{T1}") && m.KlasseDa(b, "{T1}");
     }},
};

// The 64-bit twin made, warned of and accepted: what follows sees only the 32-bit entry.
void ZwillingAngenommen(Maschine& m, const Ort& o) {
    o.anlegen(m, false);
    o.teste(m.prg.Alarm());
    ASSERT_TRUE(m.prg.Form3Geladen()) << "the 64-bit entry warns as before";
    EXPECT_EQ(m.prg.Form3().ListView4.Items.at(0).SubItem(2).find("Wow6432Node"), std::string::npos);
    m.prg.Form3().Image_Click(1);
    ASSERT_FALSE(m.prg.Form3Geladen());
    m.prg.Aufräumen();
}

// Warns of the 32-bit entry and checks the warning names its Wow6432Node path.
void Gewarnt32(Maschine& m, const Ort& o) {
    o.teste(m.prg.Alarm());
    ASSERT_TRUE(m.prg.Form3Geladen());
    const ListItem& reihe = m.prg.Form3().ListView4.Items.at(0);
    EXPECT_EQ(reihe.SubItem(1), "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(reihe.SubItem(2), o.pfad32);
}

// Warned of once by its path, then accepted (silent from then on) or deleted in its own view.
TEST(ZweiAnsichten, EntryOfThe32BitView_WarnsOnceByItsPath_AcceptedIsSilent_DeletedInItsViewOnly) {
    for (const Ort& o : kOrte)
        for (const int knopf : {1, 3}) {
            SCOPED_TRACE(std::string(o.name) + (knopf == 1 ? ", accepted" : ", deleted"));
            Maschine m(fake::Maschine::Bit64);
            ZwillingAngenommen(m, o);
            o.anlegen(m, true);
            Gewarnt32(m, o);
            m.prg.Form3().Image_Click(knopf);
            ASSERT_FALSE(m.prg.Form3Geladen());
            if (knopf == 3) {
                EXPECT_FALSE(o.da(m, true));
                EXPECT_TRUE(o.da(m, false)) << "the 64-bit twin stays";
                continue;
            }
            m.prg.Aufräumen();
            o.teste(m.prg.Alarm());
            EXPECT_FALSE(m.prg.Form3Geladen()) << "both views' entries are known now";
        }
}

// A 32-bit program's class is registered among the 32-bit classes only: the entry that names
// it is read with the server file found there.
TEST(ZweiAnsichten, ClassNamedInThe32BitView_HasItsServerAmongThe32BitClasses) {
    Maschine m(fake::Maschine::Bit64);
    const Ort o = KlassenOrt("ShellExecuteHooks", &AlarmDaten::shellErweiterungen, kHooks);
    o.anlegen(m, true);
    Gewarnt32(m, o);
    EXPECT_EQ(m.prg.Form3().Text1[4].Text, "C:\\k32.dll");
    EXPECT_EQ(m.prg.Form3().ListView2.Items.at(1).Text, "c:\\k32.dll") << "the server file's details";
}

TEST(ZweiAnsichten, DeferredTwin_DoesNotDeferThe32BitEntry) {
    for (const Ort& o : kOrte) {
        SCOPED_TRACE(o.name);
        Maschine m(fake::Maschine::Bit64);
        o.anlegen(m, false);
        o.teste(m.prg.Alarm());
        ASSERT_TRUE(m.prg.Form3Geladen());
        m.prg.Form3().Image_Click(6);
        ASSERT_FALSE(m.prg.Form3Geladen());
        m.prg.Aufräumen();
        o.anlegen(m, true);
        Gewarnt32(m, o);
    }
}

TEST(ZweiAnsichten, OneViewMachine_ReadsNoWow6432NodePath) {
    for (const Ort& o : kOrte) {
        SCOPED_TRACE(o.name);
        Maschine m(fake::Maschine::Bit32);
        ZwillingAngenommen(m, o);
        o.anlegen(m, true);  // on this machine just another key of that name
        o.teste(m.prg.Alarm());
        EXPECT_FALSE(m.prg.Form3Geladen());
    }
}

// The start pages: the machine's rows come again for the 32-bit browser, with saved texts
// of their own, and "Original" writes into the view the row names.
const std::string kMain64 = kHklm + "Software\\Microsoft\\Internet Explorer\\Main";
const std::string kMain32 = kHklm + "Software\\Wow6432Node\\Microsoft\\Internet Explorer\\Main";

TEST(ZweiAnsichten, StartPageOfThe32BitBrowser_WarnsByItsPath_OriginalPutsItsOwnTextBack) {
    for (const auto maschine : {fake::Maschine::Bit64, fake::Maschine::Bit32}) {
        const bool zwei = maschine == fake::Maschine::Bit64;
        SCOPED_TRACE(zwei ? "64-bit" : "32-bit");
        Maschine m(maschine);
        m.fp.registry.SetString(kMain64, "Start Page", "http://64.example/");
        m.fp.registry.SetString(kMain32, "Start Page", "http://32.example/");
        Holestartpage(m.prg);
        StartSeite& w = m.prg.Alarm().startSeite;
        w.LadeStartPage();
        ASSERT_EQ(w.ListView3.Items.size(), zwei ? 30u : 19u);
        m.fp.registry.SetString(kMain32, "Start Page", "http://boese.example/");
        w.TesteStartPage();
        ASSERT_EQ(m.prg.Form3Geladen(), zwei) << "one view: the Wow6432Node key is nobody's";
        if (!zwei) continue;
        Form3Fenster& f = m.prg.Form3();
        EXPECT_EQ(f.Label1[1].Caption, kMain32 + "\\Start Page");
        EXPECT_EQ(f.Label1[2].Caption, "Neuer Wert : http://boese.example/        Original war: http://32.example/");
        f.Image_Click(8);
        EXPECT_FALSE(m.prg.Form3Geladen());
        EXPECT_EQ(HiveOCX(m.fp.registry).ReadValue(2, kMain32.substr(kHklm.size()), "Start Page"),
                  "http://32.example/");
        EXPECT_EQ(HiveOCX(m.fp.registry).ReadValue(2, kMain64.substr(kHklm.size()), "Start Page"),
                  "http://64.example/");
    }
}

// A settings file of before the 32-bit rows has no texts for them: they are taken from the
// machine as it stands, not warned of, and saved from then on.
TEST(ZweiAnsichten, SettingsOfBeforeThe32BitStartPages_TakeThemFromTheMachine) {
    Maschine m(fake::Maschine::Bit64);
    m.fp.registry.SetString(kMain32, "Start Page", "http://32.example/");
    PropertyBag alt;
    for (int i = 0; i <= 20; ++i) alt.WriteProperty("InternetStartPage" + std::to_string(i), std::string());
    alt.WriteProperty("Box8", std::int16_t{1});
    const std::string dat = m.prg.Programmordner + kEinstellungsdatei;
    m.fp.files.Put(dat, alt.Contents());
    Properties_Load(m.prg);
    EXPECT_EQ(m.prg.StartSeiten[21], "http://32.example/");
    m.prg.Alarm().startSeite.TesteStartPage();
    EXPECT_FALSE(m.prg.Form3Geladen());
    Properties_Save(m.prg);
    const PropertyBag neu = PropertyBag::AusInhalt(m.fp.files.Content(dat));
    EXPECT_EQ(std::get<std::string>(neu.ReadProperty("InternetStartPage21", std::string())), "http://32.example/");
}

}  // namespace
}  // namespace kes::test

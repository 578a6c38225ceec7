// The control panel's own behaviour: what a click on each option box does, the colours of
// the sidebar, which page each entry and menu item shows, and the edit of a start page.
#include "panel/alarm.h"

#include "core/start.h"
#include "platform/hive_ocx.h"
#include "programm_test_basis.h"

namespace kes::test {
namespace {

const std::string kRun = "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

class Panel : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Intervallstufe = 5;
    }
    AlarmFenster& a() { return prg.Alarm(); }
    bool Gespeichert() { return fp.files.Exists(datPfad); }
    void Wählen(int label) {
        a().Label1_MouseDown(label);
        a().Label1_MouseUp(label);
    }
};

// The captions come from the panel and from the watcher rows; each box has exactly its own.
TEST_F(Panel, EveryBoxHasItsCaption) {
    const char* const erwartet[32] = {
        "Kestrella beim Start ins Systray (Autostart)", "Sound", "Log-Datei erstellen",
        "Log.Datei bei jeden Start löschen", "Neue Prozesse im Speicher sofort melden !",
        "Wenn neue  Favoriten hinzugefügt werden [sofort melden]", "Automatisch löschen",
        "Automatisch löschen (Hinweise anzeigen)     ", "IExplorer Überwachung Registry",
        "Automatisch Original Einträge wiederherstellen", "Warnen wenn eine neue DFÜ-Verbindung erstellt wird.",
        "Autostart Ordner sollen  überwacht werden", "Automatisch löschen",
        "Sofort warnen wenn Registryeinträge geändert werden.",
        "Nachrichtendienst beenden wenn eine  Online-Verbindung besteht.",
        "Wenn die Hosts Datei geändert wird sofort melden!", "Warnen wenn eine neue Datei erstellt wird.",
        "Warnen wenn eine Datei  gelöscht wird.", "Warnen wenn eine Datei  geändert wird.", "C:\\WINDOWS",
        "C:\\WINDOWS\\system32", "BHO-Programmerweiterungen des IE (Browser Helper Objects) sofort melden.",
        " ActiveX-Objekte (auch bekannt als Downloaded Program Files)  sofort melden.",
        " ShellServiceObjectDelayLoad (SSODL)-Autostarteinträge in der Registry sofort melden.",
        " SharedTaskScheduler-Autostarteinträge in der Registry sofort melden.",
        "Zugang auf Regedit durch Administrator verhindert [sofort melden]",
        "Zugang auf den Taskmanager deaktiviert  [sofort melden]", "Default URLSearchHook ",
        "Sofort Melden, wenn ein Dienst hinzugefügt wird.", "Warnen wenn sich eine neue Url einträgt.",
        "Sofort melden wenn die Werte geändert werden.", "Automatisch löschen"};
    for (int i = 0; i < 32; ++i) EXPECT_EQ(a().Box1[static_cast<std::size_t>(i)].Caption, erwartet[i]) << "box " << i;
}

// Each save is checked on a removed file, so that an earlier save cannot stand in for it.
TEST_F(Panel, Boxes_AutostartSoundAndOthersSave_FolderBoxesLoadAnEmptyBaseline_GreyIgnoresClicks) {
    fp.files.Put("C:\\WINDOWS\\a.exe", "MZ");
    fp.files.Put("C:\\WINDOWS\\system32\\k.dll", "MZ");
    a().Box1[19].setValue(1);
    a().Box1[19].KlickVomBenutzer();  // turned off: the baseline is loaded all the same
    ASSERT_EQ(a().ListView4.Items.size(), 1u);
    EXPECT_EQ(a().ListView4.Items[0].Text, "C:\\WINDOWS\\a.exe");
    fp.files.Put("C:\\WINDOWS\\b.exe", "MZ");
    a().Box1[19].KlickVomBenutzer();
    EXPECT_EQ(a().ListView4.Items.size(), 1u) << "a baseline that is there stays";
    a().Box1[20].KlickVomBenutzer();
    EXPECT_EQ(a().ListView7.Items.size(), 1u);
    EXPECT_FALSE(Gespeichert());

    auto autostart = [&] {
        return std::make_tuple(fp.registry.HasValue(kRun, "Halvenik-Kestrella"), prg.Start().fox1[5].Checked);
    };
    a().Box1[0].KlickVomBenutzer();
    EXPECT_EQ(autostart(), std::make_tuple(true, true));
    EXPECT_TRUE(Gespeichert());
    a().Box1[0].KlickVomBenutzer();
    EXPECT_EQ(autostart(), std::make_tuple(false, false));

    fp.files.Delete(datPfad);
    a().Box1[1].KlickVomBenutzer();
    EXPECT_EQ(prg.Soundflag, 1);
    EXPECT_TRUE(Gespeichert());
    a().Box1[1].KlickVomBenutzer();
    EXPECT_EQ(prg.Soundflag, 0);

    fp.files.Delete(datPfad);
    a().Box1[15].KlickVomBenutzer();
    EXPECT_EQ(GespeicherteEinstellungen().ReadProperty("box15", std::int16_t{0}), BagWert(std::int16_t{1}));
    fp.files.Delete(datPfad);
    a().Box1[22].setValue(2);
    a().Box1[22].KlickVomBenutzer();
    EXPECT_FALSE(Gespeichert());
    EXPECT_EQ(a().Box1[22].value(), 2);
}

TEST_F(Panel, Sidebar_DownResetsTenEntries_UpPaintsTheChosenOne_ResetEntryKeepsItsColour) {
    auto farben = [&](int i) { return std::make_pair(a().Label1[i].BackColor, a().Label1[i].ForeColor); };
    a().Label1[10].BackColor = 42;
    Wählen(1);
    EXPECT_EQ(farben(1), std::make_pair(kLeisteGewählt, kLeisteGewähltText));
    a().Label1_MouseDown(4);
    for (int i = 0; i <= 9; ++i) EXPECT_EQ(farben(i), std::make_pair(kLeisteRuhe, kSystemFensterText)) << i;
    EXPECT_EQ(a().Label1[10].BackColor, 42) << "mouse down does not touch Zurücksetzen";
}

TEST_F(Panel, EachSidebarEntryShowsItsPage_MenuEntriesOpenTheirMenuWhoseEntriesShowTheirs) {
    const std::pair<int, int> direkt[] = {{0, 0}, {1, 1}, {4, 9}, {6, 15}, {8, 17}, {9, 10}};
    for (auto [label, seite] : direkt) {
        Wählen(label);
        EXPECT_EQ(a().SichtbareSeite(), seite) << "entry " << label;
        EXPECT_TRUE(a().Menü.Name.empty());
    }
    struct Menü {
        int label;
        const char* name;
        void (AlarmFenster::*klick)(int);
        std::vector<int> seiten;
    };
    for (const Menü& m : {Menü{2, "Internet", &AlarmFenster::Internet1_Click, {2, 3, 4, 7, 8, 18}},
                          Menü{3, "autostart", &AlarmFenster::autostart1_Click, {5, 6, 19, 21}},
                          Menü{5, "hijacker", &AlarmFenster::hijacker1_Click, {11, 12, 13, 14, 16, 22}}}) {
        a().Menü = {};
        Wählen(m.label);
        EXPECT_EQ(a().SichtbareSeite(), -1) << "a dismissed menu leaves no page";
        EXPECT_EQ(a().Menü.Name, m.name);
        EXPECT_EQ(a().Menü.Label, m.label);
        for (std::size_t i = 0; i < m.seiten.size(); ++i) {
            Wählen(m.label);
            (a().*m.klick)(static_cast<int>(i));
            EXPECT_EQ(a().SichtbareSeite(), m.seiten[i]) << m.name << " " << i;
        }
    }
    EXPECT_EQ(a().Internet1[5].Caption, "IExplorer Vertrauenswürtige Seiten");
}

TEST_F(Panel, Internet_DisablesChange_HostsEntryFillsTheSizeLabels_OptionRefreshesTheAutostartBox) {
    a().Command1.Enabled = true;
    Wählen(2);
    EXPECT_FALSE(a().Command1.Enabled);
    prg.Hostsgrösse = 734;
    a().Internet1_Click(4);
    EXPECT_EQ(a().ww[6].Caption, "Grösse: 734 Bytes");
    EXPECT_EQ(a().ww[7].Caption, "C:\\WINDOWS\\system32\\drivers\\etc\\hosts");

    a().Box1[0].setValue(0);
    fp.registry.SetString(kRun, "Halvenik-Kestrella", "x");
    Wählen(0);
    EXPECT_EQ(a().Box1[0].value(), 1);
}

TEST_F(Panel, Watch_SwitchesMonitoringOnAndHides) {
    prg.Start();
    a().Show();
    prg.Beschäftigt = true;
    Wählen(7);
    EXPECT_EQ(std::make_tuple(a().Visible, prg.Beschäftigt, a().Timer1.Enabled(), fp.tray.Last().szTip),
              std::make_tuple(false, false, true, "Kestrella ist aktiv"));
}

TEST_F(Panel, Reset_PaintsItsEntryRedBeforeTheQuestion_NoKeepsTheProgram) {
    a().Show();
    long farbeBeiFrage = 0;
    fp.dialogs.beimZeigen = [&] { farbeBeiFrage = a().Label1[10].BackColor; };
    fp.dialogs.antworten.push_back(kIdNo);
    Wählen(10);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Achtung!!");
    EXPECT_EQ(farbeBeiFrage, kLeisteGewählt);
    EXPECT_EQ(std::make_tuple(prg.Zurücksetzen, prg.Beenden, a().Visible), std::make_tuple(true, false, true));
}

TEST_F(Panel, StartPageEdit_EmptyListOpensNoMenu_ARowIsWrittenToRowAndSlotK_AndSaved) {
    a().ListView3.Items.clear();  // rows of our own in place of the loaded ones
    a().ListView3Auswahl = 0;
    a().ListView3_MouseUp();
    EXPECT_TRUE(a().Menü.Name.empty());
    for (int i = 1; i <= 19; ++i) a().ListView3.Add("HKEY_CURRENT_USER").SetSubItem(3, "alt" + std::to_string(i));
    a().Command1.Enabled = true;
    a().ListView3Auswahl = 2;
    a().ListView3_MouseUp();
    auto feld = [&] { return std::make_pair(a().Command1.Enabled, a().Text1.Text); };
    EXPECT_EQ(feld(), std::make_pair(false, std::string("alt3")));
    EXPECT_EQ(a().PageÄndern1[0].Caption, "\"alt3\" --> Eintrag ändern");
    EXPECT_EQ(a().Menü.Name, "PageÄndern");
    a().PageÄndern1_Click(0);
    EXPECT_TRUE(a().Command1.Enabled);
    EXPECT_TRUE(a().Text1Fokus);
    a().Text1.Text = "http://neu";
    a().Command1_Click();
    EXPECT_EQ(std::make_pair(a().ListView3.Items[2].SubItem(3), prg.StartSeiten[3]),
              std::make_pair(std::string("http://neu"), std::string("http://neu")));
    EXPECT_EQ(feld(), std::make_pair(false, std::string()));
    EXPECT_EQ(GespeicherteEinstellungen().ReadProperty("InternetStartPage3", std::string()),
              BagWert(std::string("http://neu")));
}

TEST_F(Panel, DialUpList_SortsAscendingByTheClickedColumn_AndStaysSortedForLaterRows) {
    auto namen = [&] {
        std::string t;
        for (const ListItem& z : a().ListView2.Items) t += z.Text + " ";
        return t;
    };
    const std::string datei = ordner + "daten\\0190.txt";
    fp.files.Put(datei, "b\x80" "1\r\na\x80" "3\r\nC\x80" "2\r\n");
    a().dfü.LadeDFÜ();
    EXPECT_EQ(namen(), "b a C ") << "unsorted until a column head is clicked";
    a().ListView2_ColumnClick(2);
    EXPECT_EQ(namen(), "b C a ");
    a().ListView2_ColumnClick(1);
    EXPECT_EQ(namen(), "a b C ");

    // An accepted entry takes its place in the list and in the file written from it.
    prg.Kategorieschlüssel = Kategorie::DFÜ;
    prg.Form3().Text1[0].Text = "B2";
    prg.Form3().Text1[1].Text = "4";
    prg.Form3().Image_Click(1);
    EXPECT_EQ(namen(), "a b B2 C ");
    EXPECT_EQ(fp.files.Content(datei).substr(0, 10), "a\x80" "3\r\nb\x80" "1\r\n");

    fp.files.Put(datei, "z\x80" "9\r\nA0\x80" "8\r\n");
    a().dfü.LadeDFÜ();
    EXPECT_EQ(namen(), "A0 z ") << "the reload keeps the order";
}

TEST_F(Panel, Links_OpenTheSiteAndAMailWithVersion_SecurityZonesMinimised) {
    a().Image1_Click(0);
    a().Image1_Click(1);
    a().Command3_Click();
    ASSERT_GE(fp.shell.geöffnet.size(), 2u);
    EXPECT_EQ(fp.shell.geöffnet[0], std::string("|") + kHerstellerWeb + "|");
    EXPECT_NE(fp.shell.geöffnet[1].find("Frage zum Kestrella"), std::string::npos);
    EXPECT_NE(fp.shell.geöffnet[1].find("Version 2.2.0 und"), std::string::npos);
    EXPECT_NE(fp.shell.geöffnet[1].find("mailto:" + std::string(kHerstellerMail)), std::string::npos);
    ASSERT_FALSE(fp.shell.kommandos.empty());
    EXPECT_EQ(std::make_pair(fp.shell.kommandos.back().kommando, fp.shell.kommandos.back().show),
              std::make_pair(std::string("rundll32.exe shell32.dll,Control_RunDLL inetcpl.cpl,,1"), 2));
}

}  // namespace
}  // namespace kes::test

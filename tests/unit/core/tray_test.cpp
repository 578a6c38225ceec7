// The tray icon and the monitoring state: the records of on and off and of a free balloon,
// the menu, the autostart entry, and the ways out.
#include "core/start.h"
#include "core/tryicon.h"
#include "panel/alarm.h"
#include "platform/hive_ocx.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

using std::make_tuple;

class Tray : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    StartFenster& start() { return prg.Start(); }
    const std::string runSchlüssel = "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
    // Tip, info, info title, info flags, timeout and icon of the last record.
    auto Satz() {
        const TrayRecord& r = fp.tray.Last();
        return make_tuple(r.szTip, r.szInfo, r.szInfoTitle, r.dwInfoFlags, r.uTimeout, r.icon);
    }
    // Busy flag, cycle timer, and the check and caption of the menu's switch.
    auto Zustand() {
        return make_tuple(prg.Beschäftigt, fp.timers.Running(kTimerAlarm1), start().fox1[2].Checked,
                          start().fox1[2].Caption);
    }
    std::string RunWert() {
        return HiveOCX(fp.registry)
            .ReadValue(1, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella");
    }
    void Meldung(std::size_t i, const std::string& text, const std::string& titel) {
        ASSERT_GT(fp.dialogs.meldungen.size(), i);
        EXPECT_EQ(make_tuple(fp.dialogs.meldungen[i].text, fp.dialogs.meldungen[i].titel), make_tuple(text, titel));
    }
};

TEST_F(Tray, Aktiviert_ReplacesTheIconWithTheOnRecordAndStartsTheCycle_NichtAktiviertTheOffRecordAndStopsIt) {
    prg.Beschäftigt = true;
    prg.Alarm().Show();
    start().Aktiviert();
    ASSERT_EQ(fp.tray.aufrufe.size(), 2u);
    EXPECT_EQ(make_tuple(fp.tray.aufrufe[0].message, fp.tray.aufrufe[1].message), make_tuple(kNimDelete, kNimAdd));
    const TrayRecord& r = fp.tray.Last();
    EXPECT_EQ(make_tuple(r.cbSize, r.uFlags, r.uCallbackMessage), make_tuple(488u, 23u, 512u));
    // The title with its trailing blank.
    EXPECT_EQ(Satz(), make_tuple("Kestrella ist aktiv", "Überwachung ist aktiviert", "Kestrella-Info ", 1u, 1000u,
                                 "BLINKTRAY"));
    EXPECT_EQ(Zustand(), make_tuple(false, true, true, "Überwachung ist aktiv"));
    EXPECT_FALSE(prg.Alarm().Visible);

    start().NichtAktiviert();
    EXPECT_EQ(Satz(), make_tuple("Kestrella ist deaktiviert", "Überwachung ist deaktiviert!", "Kestrella-Info", 3u,
                                 1000u, "AUS"));
    EXPECT_EQ(Zustand(), make_tuple(true, false, false, "Überwachung ist deaktiviert"));
}

TEST_F(Tray, Sprechblase_KeepsTheCallersTipWithFixedFlagAndTimeout) {
    Sprechblase(prg, "Kestrella-Info", "Favorit gelöscht", "Kestrella ist aktiv", 3, 1000);
    // Without an icon the tray shows none.
    EXPECT_EQ(Satz(), make_tuple("Kestrella ist aktiv", "Favorit gelöscht", "Kestrella-Info", 2u, 1u, ""));
    EXPECT_TRUE(fp.tray.Shown());
    start().TaskleisteNeu();
    EXPECT_EQ(fp.tray.aufrufe.back().message, kNimAdd) << "a restarted taskbar gets the icon back";
    EXPECT_EQ(fp.tray.Last().szInfo, "Favorit gelöscht");
}

TEST_F(Tray, MouseMessagesAndMenu_OpenTheMenu_SwitchOffAndShowThePanel_ToggleMonitoring_OpenTheLog) {
    start().Form_MouseMove(kLinksLos);
    EXPECT_TRUE(start().MenüÖffnen);
    start().MenüÖffnen = false;
    start().Form_MouseMove(515);  // left double-click: nothing of its own
    EXPECT_FALSE(start().MenüÖffnen);
    start().Form_MouseMove(kRechtsLos);
    EXPECT_TRUE(start().MenüÖffnen);
    EXPECT_EQ(fp.timers.pumpen, 1);

    start().Aktiviert();
    start().Form_MouseMove(kRechtsDoppel);
    EXPECT_EQ(make_tuple(prg.Alarm().Visible, prg.Beschäftigt, fp.tray.Last().icon), make_tuple(true, true, "AUS"));

    // "Einstellungen" opens the panel on its first page.
    start().Aktiviert();
    start().fox1_Click(0);
    EXPECT_TRUE(prg.Alarm().Visible);
    EXPECT_TRUE(prg.Alarm().Frame1[0].Visible);
    EXPECT_EQ(fp.tray.Last().szInfo, "Überwachung ist deaktiviert!");
    EXPECT_FALSE(start().fox1[2].Checked);
    EXPECT_EQ(make_tuple(prg.Alarm().Label1[0].BackColor, prg.Alarm().Label1[3].BackColor), make_tuple(255, 12648384));

    start().Aktiviert();
    start().fox1_Click(2);
    EXPECT_TRUE(prg.Beschäftigt);
    start().fox1_Click(2);
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_TRUE(fp.timers.Running(kTimerAlarm1));

    // The log entry opens notepad, without quotes, only when there is a log.
    fp.shell.kommandos.clear();
    start().fox1_Click(3);
    EXPECT_TRUE(fp.shell.kommandos.empty());
    fp.files.Put(ordner + "Kestrella.log", "x");
    start().fox1_Click(3);
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "notepad.exe C:\\Programme\\Kestrella\\Kestrella.log");
}

TEST_F(Tray, AutostartTwice_LeavesTheRunValueAsItWasAndTheBoxEqualToTheMenu_AForeignValueStays) {
    auto autostart = [&] {
        return make_tuple(fp.registry.HasValue(runSchlüssel, "Halvenik-Kestrella"), start().fox1[5].Checked,
                          prg.Alarm().Box1[0].value());
    };
    start().fox1_Click(5);
    EXPECT_EQ(autostart(), make_tuple(true, true, 1));
    start().fox1_Click(5);
    EXPECT_EQ(autostart(), make_tuple(false, false, 0));
    fp.registry.SetString(runSchlüssel, "Halvenik-Kestrella", "D:\\alt\\Kestrella.exe /s");
    start().fox1_Click(5);
    EXPECT_EQ(RunWert(), "D:\\alt\\Kestrella.exe /s");
    EXPECT_EQ(prg.Alarm().Box1[0].value(), 1);
}

class Beenden : public Tray {};

TEST_F(Beenden, NoToTheQuestion_OpensThePanelAndKeepsRunning_YesRemovesTheIconAndEnds) {
    start().Aktiviert();
    fp.dialogs.antworten = {kIdNo};
    start().fox1_Click(6);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    Meldung(0, "Wollen sie die Überwachung beenden?", "Kestrella-Info!");
    auto zustand = [&] { return make_tuple(prg.Alarm().Visible, prg.Beenden, fp.tray.Shown()); };
    EXPECT_EQ(zustand(), make_tuple(true, false, true));
    fp.dialogs.antworten = {kIdYes};
    start().fox1_Click(6);
    EXPECT_EQ(std::make_pair(prg.Beenden, fp.tray.Shown()), std::make_pair(true, false));
}

TEST_F(Beenden, SessionEndDuringAWarningOrTaskManagerClose_EndWithoutAQuestion) {
    prg.Kategorieschlüssel = Kategorie::HostsDatei;
    prg.Form3().Show();
    prg.AlarmEntladen(kEntladenSitzungsende);
    EXPECT_EQ(make_tuple(fp.dialogs.meldungen.empty(), prg.Beenden, prg.Form3Geladen()), make_tuple(true, true, false));

    prg.Beenden = false;
    start().Aktiviert();
    prg.AlarmEntladen(kEntladenTaskmanager);
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    EXPECT_TRUE(prg.Beenden);
    EXPECT_FALSE(fp.tray.Shown()) << "the task manager's close takes the icon";
    EXPECT_TRUE(fp.shell.kommandos.empty()) << "no restart";
}

// The files of a reset, and what must survive it.
const char* const kResetDateien[] = {
    "daten\\toolbar.ini",       "daten\\prozesse.txt",      "daten\\dienste.ini",       "daten\\dienstefirmen.txt",
    "daten\\0190.txt",          "daten\\AutostartREG.txt",  "daten\\favoriten.txt",     "daten\\shellservice.ini",
    "daten\\taskscheduler.ini", "daten\\URLSearchHook.txt", "daten\\kestrella.log",     "kestrella.dat",
    "daten\\Firma.txt",         "daten\\Winlogon.txt",      "daten\\AppInit.txt",       "daten\\ImageFileExecution.txt",
    "daten\\PoliciesRun.txt",   "daten\\ActiveSetup.txt",   "daten\\BootSicherheit.txt", "daten\\Winsock.txt",
    "daten\\IEToolbar.txt",     "daten\\ShellErweiterungen.txt", "daten\\Browsereinstellungen.txt",
    "daten\\WeitereSperren.txt", "daten\\Dateitypen.txt", "daten\\Dienstpfade.txt", "daten\\GeplanteAufgaben.txt"};
const char* const kBleibende[] = {"daten\\bho.ini",     "daten\\Autostart.txt", "daten\\activex.txt",
                                  "daten\\windows.txt", "daten\\V_seiten.txt",  "Kestrella.log"};

TEST_F(Beenden, ResetAnsweredNo_StaysWanted_TheTraysBeendenAsksTheResetQuestion_YesResetsAndRestarts) {
    start().Aktiviert();
    for (const char* d : kResetDateien) fp.files.Put(ordner + d, "x");
    for (const char* d : kBleibende) fp.files.Put(ordner + d, "bleibt");
    fp.registry.SetString(runSchlüssel, "Halvenik-Kestrella", ordner + "Kestrella.exe /s");
    const std::string frage =
        "Wollen sie alle Einstellungen und Werte zurücksetzen ?\r\nDer Kestrella wird dann neugestartet.";
    fp.dialogs.antworten = {kIdNo, kIdYes};
    prg.Alarm().Label1_MouseDown(10);
    prg.Alarm().Label1_MouseUp(10);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    Meldung(0, frage, "Achtung!!");
    // No leaves the reset wanted, the program running and its files.
    EXPECT_EQ(make_tuple(prg.Beenden, prg.Zurücksetzen, prg.Alarm().Visible, fp.files.Exists(ordner + "kestrella.dat")),
              make_tuple(false, true, true, true));

    start().fox1_Click(6);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 2u);
    EXPECT_EQ(fp.dialogs.meldungen[1].text, frage) << "the reset question, not the question to end";
    for (const char* d : kResetDateien) EXPECT_FALSE(fp.files.Exists(ordner + d)) << d;
    for (const char* d : kBleibende) EXPECT_EQ(fp.files.Content(ordner + d), "bleibt") << d;
    EXPECT_EQ(RunWert(), ordner + "Kestrella.exe /s");
    EXPECT_FALSE(fp.tray.Shown());
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    // Quoted, so that a folder with blanks starts too.
    EXPECT_EQ(make_tuple(fp.shell.kommandos[0].kommando, fp.shell.kommandos[0].show),
              make_tuple("\"C:\\Programme\\Kestrella\\kestrella.exe\" /s", 2));
    EXPECT_TRUE(prg.Beenden);
}

TEST_F(Beenden, Reset_AFileThatCannotBeOpenedCountsAsAbsent_SurvivesWithoutAWord) {
    prg.Zurücksetzen = true;
    fp.files.Put(ordner + "kestrella.dat", "x");
    fp.files.Put(ordner + "daten\\Firma.txt", "Microsoft Corporation\r\n");
    fp.files.Put(ordner + "daten\\prozesse.txt", "a#b\r\n");
    fp.files.Lock(ordner + "daten\\prozesse.txt");
    fp.dialogs.antworten = {kIdYes};
    prg.AlarmEntladen(kEntladenNormal);
    EXPECT_EQ(fp.dialogs.meldungen.size(), 1u) << "only the question";
    EXPECT_TRUE(fp.files.Exists(ordner + "daten\\prozesse.txt"));
    EXPECT_FALSE(fp.files.Exists(ordner + "kestrella.dat"));
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\Firma.txt")) << "the files after it go on";
    EXPECT_TRUE(prg.Beenden);
}

}  // namespace
}  // namespace kes::test

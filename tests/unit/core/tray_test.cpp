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

class Tray : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    StartFenster& start() { return prg.Start(); }
    const std::string runSchlüssel = "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
};

TEST_F(Tray, Aktiviert_ReplacesTheIconWithTheOnRecordAndStartsTheCycle) {
    prg.Beschäftigt = true;
    prg.Alarm().Show();
    start().Aktiviert();
    ASSERT_EQ(fp.tray.aufrufe.size(), 2u);
    EXPECT_EQ(fp.tray.aufrufe[0].message, kNimDelete);
    EXPECT_EQ(fp.tray.aufrufe[1].message, kNimAdd);
    const TrayRecord& r = fp.tray.Last();
    EXPECT_EQ(r.cbSize, 488u);
    EXPECT_EQ(r.uFlags, 23u);
    EXPECT_EQ(r.uCallbackMessage, 512u);
    EXPECT_EQ(r.szTip, "Kestrella ist aktiv");
    EXPECT_EQ(r.szInfo, "Überwachung ist aktiviert");
    EXPECT_EQ(r.szInfoTitle, "Kestrella-Info ") << "with its trailing blank";
    EXPECT_EQ(r.dwInfoFlags, 1u);
    EXPECT_EQ(r.uTimeout, 1000u);
    EXPECT_EQ(r.icon, "BLINKTRAY");
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_TRUE(fp.timers.Running(kTimerAlarm1));
    EXPECT_TRUE(start().fox1[2].Checked);
    EXPECT_EQ(start().fox1[2].Caption, "Überwachung ist aktiv");
    EXPECT_FALSE(prg.Alarm().Visible);
}

TEST_F(Tray, NichtAktiviert_ShowsTheOffRecordAndStopsTheCycle) {
    start().Aktiviert();
    start().NichtAktiviert();
    const TrayRecord& r = fp.tray.Last();
    EXPECT_EQ(r.szTip, "Kestrella ist deaktiviert");
    EXPECT_EQ(r.szInfo, "Überwachung ist deaktiviert!");
    EXPECT_EQ(r.szInfoTitle, "Kestrella-Info") << "no trailing blank here";
    EXPECT_EQ(r.dwInfoFlags, 3u);
    EXPECT_EQ(r.icon, "AUS");
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_FALSE(start().fox1[2].Checked);
    EXPECT_EQ(start().fox1[2].Caption, "Überwachung ist deaktiviert");
}

TEST_F(Tray, Sprechblase_KeepsTheCallersTipWithFixedFlagAndTimeout) {
    Sprechblase(prg, "Kestrella-Info", "Favorit gelöscht", "Kestrella ist aktiv", 3, 1000);
    const TrayRecord& r = fp.tray.Last();
    EXPECT_EQ(r.szTip, "Kestrella ist aktiv");
    EXPECT_EQ(r.szInfo, "Favorit gelöscht");
    EXPECT_EQ(r.dwInfoFlags, 2u);
    EXPECT_EQ(r.uTimeout, 1u);
    EXPECT_EQ(r.icon, "") << "without an icon the tray shows none";
    EXPECT_TRUE(fp.tray.Shown());
    start().TaskleisteNeu();
    EXPECT_EQ(fp.tray.aufrufe.back().message, kNimAdd) << "a restarted taskbar gets the icon back";
    EXPECT_EQ(fp.tray.Last().szInfo, "Favorit gelöscht");
}

TEST_F(Tray, MouseMessages_OpenTheMenuOrSwitchOffAndShowThePanel) {
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
    EXPECT_TRUE(prg.Alarm().Visible);
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_EQ(fp.tray.Last().icon, "AUS");
}

TEST_F(Tray, Einstellungen_SwitchesOffAndOpensThePanelOnItsFirstPage) {
    start().Aktiviert();
    start().fox1_Click(0);
    EXPECT_TRUE(prg.Alarm().Visible);
    EXPECT_TRUE(prg.Alarm().Frame1[0].Visible);
    EXPECT_EQ(fp.tray.Last().szInfo, "Überwachung ist deaktiviert!");
    EXPECT_FALSE(start().fox1[2].Checked);
    EXPECT_EQ(prg.Alarm().Label1[0].BackColor, 255);
    EXPECT_EQ(prg.Alarm().Label1[3].BackColor, 12648384);
}

TEST_F(Tray, MenuSwitch_TogglesMonitoring) {
    start().Aktiviert();
    start().fox1_Click(2);
    EXPECT_TRUE(prg.Beschäftigt);
    start().fox1_Click(2);
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_TRUE(fp.timers.Running(kTimerAlarm1));
}

TEST_F(Tray, AutostartTwice_LeavesTheRunValueAsItWasAndTheBoxEqualToTheMenu) {
    start().fox1_Click(5);
    EXPECT_TRUE(fp.registry.HasValue(runSchlüssel, "Halvenik-Kestrella"));
    EXPECT_TRUE(start().fox1[5].Checked);
    EXPECT_EQ(prg.Alarm().Box1[0].value(), 1);
    start().fox1_Click(5);
    EXPECT_FALSE(fp.registry.HasValue(runSchlüssel, "Halvenik-Kestrella"));
    EXPECT_FALSE(start().fox1[5].Checked);
    EXPECT_EQ(prg.Alarm().Box1[0].value(), 0);
}

TEST_F(Tray, AutostartOn_DoesNotRewriteAValueThatPointsElsewhere) {
    prg.Alarm();  // loaded without the value: the menu entry is unchecked
    fp.registry.SetString(runSchlüssel, "Halvenik-Kestrella", "D:\\alt\\Kestrella.exe /s");
    start().fox1_Click(5);
    EXPECT_EQ(
        HiveOCX(fp.registry).ReadValue(1, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella"),
        "D:\\alt\\Kestrella.exe /s");
    EXPECT_EQ(prg.Alarm().Box1[0].value(), 1);
}

TEST_F(Tray, LogMenu_OpensNotepadWithoutQuotesOnlyWhenThereIsALog) {
    start().fox1_Click(3);
    EXPECT_TRUE(fp.shell.kommandos.empty());
    fp.files.Put(ordner + "Kestrella.log", "x");
    start().fox1_Click(3);
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "notepad.exe C:\\Programme\\Kestrella\\Kestrella.log");
}

class Beenden : public Tray {};

TEST_F(Beenden, NoToTheQuestion_OpensThePanelAndKeepsRunning) {
    fp.dialogs.antworten = {kIdNo};
    start().fox1_Click(6);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "Wollen sie die Überwachung beenden?");
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Kestrella-Info!");
    EXPECT_TRUE(prg.Alarm().Visible);
    EXPECT_FALSE(prg.Beenden);
}

TEST_F(Beenden, YesToTheQuestion_RemovesTheIconAndEnds) {
    start().Aktiviert();
    fp.dialogs.antworten = {kIdYes};
    start().fox1_Click(6);
    EXPECT_TRUE(prg.Beenden);
    EXPECT_FALSE(fp.tray.Shown());
}

TEST_F(Beenden, SessionEndDuringAWarning_EndsWithoutAQuestion) {
    prg.Kategorieschlüssel = Kategorie::HostsDatei;
    prg.Form3().Show();
    prg.AlarmEntladen(kEntladenSitzungsende);
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    EXPECT_TRUE(prg.Beenden);
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Beenden, TaskManagerClose_EndsWithoutAQuestionAndTakesTheIcon) {
    start().Aktiviert();
    prg.AlarmEntladen(kEntladenTaskmanager);
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    EXPECT_TRUE(prg.Beenden);
    EXPECT_FALSE(fp.tray.Shown());
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
    EXPECT_EQ(fp.dialogs.meldungen[0].text, frage);
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Achtung!!");
    EXPECT_FALSE(prg.Beenden);
    EXPECT_TRUE(prg.Zurücksetzen) << "No leaves the reset wanted";
    EXPECT_TRUE(prg.Alarm().Visible);
    EXPECT_TRUE(fp.files.Exists(ordner + "kestrella.dat"));

    start().fox1_Click(6);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 2u);
    EXPECT_EQ(fp.dialogs.meldungen[1].text, frage) << "the reset question, not the question to end";
    for (const char* d : kResetDateien) EXPECT_FALSE(fp.files.Exists(ordner + d)) << d;
    for (const char* d : kBleibende) EXPECT_EQ(fp.files.Content(ordner + d), "bleibt") << d;
    EXPECT_EQ(
        HiveOCX(fp.registry).ReadValue(1, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella"),
        ordner + "Kestrella.exe /s");
    EXPECT_FALSE(fp.tray.Shown());
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "\"C:\\Programme\\Kestrella\\kestrella.exe\" /s")
        << "quoted, so that a folder with blanks starts too";
    EXPECT_EQ(fp.shell.kommandos[0].show, 2);
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

// The policy locks: what counts as a lock, the warning with "Freigeben" alone, and two
// locks coming up one after the other as the first is released.
#include "core/starten.h"
#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kSystem = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
const std::string kSystemLm = "HKEY_LOCAL_MACHINE" + kSystem.substr(17);

using Sperren = WaechterTest;

TEST_F(Sperren, RegeditLockedByTheNumber1_RaisesWithFreigebenAloneAndNoDeferral) {
    fp.registry.SetDword(kSystem, "DisableRegistryTools", 1);
    prg.Soundflag = 1;
    alarm().List8.Items.push_back("RegeditDeaktiviert");
    alarm().sperren.TesteSonstiges();
    ASSERT_TRUE(prg.Form3Geladen()) << "the deferred list is not asked";
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_EQ(fp.sound.gespielt, Texte{"ALARM"});
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::RegeditDeaktiviert);
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(Kopf(f), (Texte{"Zugang auf Regedit wurde Deaktiviert.", kSystem + "\\", "DisableRegistryTools = 1"}));
    for (int i = 1; i <= 9; ++i) EXPECT_EQ(f.Image[i].Visible, i == 7 || i == 8) << "Image" << i;
    EXPECT_FALSE(f.Label3[6].Visible);
    EXPECT_TRUE(f.Label3[5].Visible);
    EXPECT_EQ(f.Label3[5].Caption, "Freigeben");
    EXPECT_FALSE(f.ListView2.Visible);
    for (int i = 1; i <= 4; ++i) EXPECT_FALSE(f.Picture3[i].Visible);
    EXPECT_TRUE(f.Visible);
}

TEST_F(Sperren, TaskManagerLockAsTheString1_RaisesWithTheMachinesNameInTheLabel) {
    fp.registry.SetString(kSystem, "DisableTaskMgr", "1");
    alarm().sperren.TesteSonstiges1();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::TaskmanagerDeaktiviert);
    EXPECT_EQ(Kopf(prg.Form3()), (Texte{"Zugang des Taskmanager's wurde Deaktiviert. (Strg+Alt+Entf)", kSystemLm + "\\",
                                        "DisableTaskMgr = 1"}));
    EXPECT_FALSE(prg.Form3().Image[6].Visible);
}

TEST_F(Sperren, NoValueOrValuesOtherThan1_OrALockOfTheMachine_RaiseNothing) {
    alarm().sperren.TesteSonstiges();
    alarm().sperren.TesteSonstiges1();
    fp.registry.SetDword(kSystem, "DisableRegistryTools", 2);
    fp.registry.SetDword(kSystem, "DisableTaskMgr", 0);
    alarm().sperren.TesteSonstiges();
    alarm().sperren.TesteSonstiges1();
    fp.registry.SetString(kSystem, "DisableRegistryTools", "1 ");
    alarm().sperren.TesteSonstiges();
    fp.registry.SetDword(kSystemLm, "DisableTaskMgr", 1);
    fp.registry.SetDword(kSystem, "DisableTaskMgr", 11);
    alarm().sperren.TesteSonstiges1();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
}

class SperrenImZyklus : public ProgrammTest {
protected:
    void SetUp() override {
        Einstellungen(PropertyBag{});
        ASSERT_TRUE(Main(prg));
        prg.Alarm().Box1[2].setValue(1);
        prg.Alarm().Box1[25].setValue(1);
        prg.Alarm().Box1[26].setValue(1);
    }
};

TEST_F(SperrenImZyklus, BothLocks_TheSecondComesInTheCycleAfterTheFirstIsReleased) {
    fp.registry.SetDword(kSystem, "DisableRegistryTools", 1);
    fp.registry.SetDword(kSystem, "DisableTaskMgr", 1);
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::RegeditDeaktiviert) << "the busy flag keeps the second back";
    prg.Form3().Image_Click(8);
    prg.Aufräumen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(fp.registry.HasValue(kSystem, "DisableRegistryTools"));
    EXPECT_TRUE(fp.registry.HasValue(kSystem, "DisableTaskMgr"));
    const auto log = [&] { return fp.files.Content(ordner + "Kestrella.log"); };
    EXPECT_NE(log().find("Zugang auf Regedit wurde Deaktiviert.\r\nName: " + kSystem + "\\\r\n< Freigegeben OK >"),
              std::string::npos);
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::TaskmanagerDeaktiviert);
    prg.Form3().Image_Click(8);
    prg.Aufräumen();
    EXPECT_FALSE(fp.registry.HasValue(kSystem, "DisableTaskMgr"));
    EXPECT_NE(log().find("Zugang auf den Taskmanager wurde Deaktiviert.\r\nName: HKEY_LOCAL_MACHINE\\"),
              std::string::npos);
    fp.timers.Advance(5000);
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(SperrenImZyklus, LockLeftStanding_ComesBackAtEveryCycle) {
    fp.registry.SetDword(kSystem, "DisableTaskMgr", 1);
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    Zu(prg);
    fp.timers.Advance(5000);
    EXPECT_TRUE(prg.Form3Geladen());
}

}  // namespace
}  // namespace kes::test

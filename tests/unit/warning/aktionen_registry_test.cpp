// "Original" of a changed shell open command and "Freigeben" of a policy lock.
#include "warnung_test.h"

namespace kes::test {
namespace {

const std::string kSystem = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";

class RegistryAktionen : public AntwortFenster {
protected:
    std::string Standardwert(RegHandle root, const std::string& key) {
        RegKey k;
        if (fp.registry.OpenKeyEx(root, key, kKeyAllAccess, &k) != kErrorSuccess) return "<kein Schlüssel>";
        char puffer[256]{};
        std::uint32_t typ = 0, länge = sizeof puffer;
        const long r = fp.registry.QueryValueEx(k.Get(), "", &typ, reinterpret_cast<std::uint8_t*>(puffer), &länge);
        return r == kErrorSuccess ? std::string(puffer) : "<kein Wert>";
    }
    Form3Fenster& HtaWarnung(const std::string& hive, const std::string& key, const std::string& erwartet) {
        return Mit(Kategorie::HtaFile, {hive, key, erwartet, hive + "\\" + key});
    }
};

TEST_F(RegistryAktionen, Original_WritesTheExpectedCommandByHiveAndLogsSavedStartPage0) {
    prg.StartSeiten[0] = "http://start.example/";
    prg.StartSeiten[3] = "http://andere.example/";
    fp.registry.SetString("HKEY_LOCAL_MACHINE\\Software\\Classes\\exefile\\shell\\open\\command", "", "boese.exe");
    HtaWarnung("HKEY_CLASSES_ROOT", "exefile\\shell\\open\\command", "\"%1\" %*").Image_Click(8);

    EXPECT_EQ(Standardwert(kHkeyClassesRoot, "exefile\\shell\\open\\command"), "\"%1\" %*");
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_TRUE(
        Geloggt("IExplorer \"%1\" %* wurde geändert.\r\n"
                "Registry: HKEY_CLASSES_ROOT\\exefile\\shell\\open\\command\\\"%1\" %*\r\n"
                "Wert: HKEY_CLASSES_ROOT\\exefile\\shell\\open\\command\r\n"
                "< Zurückgesetzt OK > auf http://start.example/"))
        << Log();

    HtaWarnung("HKEY_LOCAL_MACHINE", "Software\\CLASSES\\piffile\\shell\\open\\command", "\"%1\" %*").Image_Click(8);
    EXPECT_EQ(Standardwert(kHkeyLocalMachine, "Software\\Classes\\piffile\\shell\\open\\command"), "\"%1\" %*")
        << "a class that was missing is created";
}

TEST_F(RegistryAktionen, Original_AnotherHiveNameWritesNothing_ALockedLogStopsNothing_BothClose) {
    HtaWarnung("HKEY_CURRENT_USER", "exefile\\shell\\open\\command", "x").Image_Click(8);
    EXPECT_FALSE(fp.registry.HasKey("HKEY_CURRENT_USER\\exefile"));
    EXPECT_FALSE(prg.Form3Geladen());

    fp.files.Put(ordner + "Kestrella.log", "");
    fp.files.Lock(ordner + "Kestrella.log");
    HtaWarnung("HKEY_CLASSES_ROOT", "comfile\\shell\\open\\command", "\"%1\" %*").Image_Click(8);
    EXPECT_EQ(Standardwert(kHkeyClassesRoot, "comfile\\shell\\open\\command"), "\"%1\" %*");
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(RegistryAktionen, Freigeben_RemovesOnlyItsOwnLockAndLogs) {
    fp.registry.SetDword(kSystem, "DisableRegistryTools", 1);
    fp.registry.SetDword(kSystem, "DisableTaskMgr", 1);
    Form3Fenster& f = Warnung(Kategorie::TaskmanagerDeaktiviert);
    f.Label1[1].Caption = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System\\";
    f.Image_Click(8);
    EXPECT_FALSE(fp.registry.HasValue(kSystem, "DisableTaskMgr"));
    EXPECT_TRUE(fp.registry.HasValue(kSystem, "DisableRegistryTools"));
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_TRUE(
        Geloggt("Zugang auf den Taskmanager wurde Deaktiviert.\r\n"
                "Name: HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System\\"
                "\r\n< Freigegeben OK >"))
        << Log();
}

TEST_F(RegistryAktionen, Freigeben_WithLoggingOff_StillRemovesTheValue) {
    prg.Alarm().Box1[2].setValue(0);
    fp.registry.SetString(kSystem, "DisableRegistryTools", "1");
    Warnung(Kategorie::RegeditDeaktiviert).Image_Click(8);
    EXPECT_FALSE(fp.registry.HasValue(kSystem, "DisableRegistryTools"));
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

}  // namespace
}  // namespace kes::test

// Hostile names on the REG DELETE lines of the delete action, run by the fake reg.exe,
// which splits the line as the C runtime does: a name with blanks deletes its own key and
// no neighbour; a name that would end the argument, name the parent or a key below it is
// refused with a message, and nothing changes.
#include "panel/alarm.h"
#include "warning/form3.h"
#include "warnung_test.h"

namespace kes::test {
namespace {

const std::string kDienste = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\";
const std::string kDomains =
    "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
const std::string kHooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";

class RegDeleteNamen : public AntwortFenster {
protected:
    void SetUp() override {
        AntwortFenster::SetUp();
        prg.AnzeigeLöschen = true;
    }
    void Dienst(const std::string& name) {
        fp.registry.SetString(kDienste + name, "ImagePath", "C:\\x.exe");
        fp.registry.SetDword(kDienste + name, "Start", 2);
    }
    // Deletes through the warning of the category, with Text1(0) as the name.
    void Löschen(Kategorie k, const std::string& name) {
        fp.dialogs.antworten = {kIdYes};  // the services' question
        Mit(k, {name}).Image_Click(3);
    }
    std::string LetzterBefehl() { return Befehle().empty() ? "" : Befehle().back(); }
};

TEST_F(RegDeleteNamen, OddServiceNames_DeleteTheirOwnKeyAndNoNeighbour) {
    Dienst("a");
    const std::pair<std::string, std::string> kFälle[] = {
        {"a b", "REG DELETE \"HKLM\\SYSTEM\\CurrentControlSet\\Services\\a b\" /f"},
        {"a /va", ""},  // unquoted, /va would empty the key a
        // No shell reads the line: neither % nor & nor | mean anything.
        {"%SystemRoot%&calc|x", "REG DELETE HKLM\\SYSTEM\\CurrentControlSet\\Services\\%SystemRoot%&calc|x /f"},
        {"/f", ""},
    };
    for (const auto& [name, befehl] : kFälle) {
        Dienst(name);
        Löschen(Kategorie::Dienste, name);
        if (!befehl.empty()) {
            EXPECT_EQ(LetzterBefehl(), befehl);
        }
        EXPECT_FALSE(fp.registry.HasKey(kDienste + name)) << name;
        EXPECT_TRUE(fp.registry.HasValue(kDienste + "a", "ImagePath")) << name;
        EXPECT_TRUE(fp.registry.HasValue(kDienste + "a", "Start")) << name;
        EXPECT_FALSE(prg.Form3Geladen()) << name;
    }
}

TEST_F(RegDeleteNamen, NamesThatWouldReachAnotherKey_AreRefusedAndNothingChanges) {
    fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Opfer", "wert", "bleibt");
    Dienst("x");
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\{K}\\InprocServer32", "", "C:\\k.dll");
    fp.registry.SetString(kHooks, "{K}\\InprocServer32", "");
    const std::string kNamen[] = {
        "x\" /f \"HKCU\\Software\\Opfer",  // a quote ends the argument: a second key
        "",                                // the parent key itself
        "{K}\\InprocServer32",             // a key below another
        std::string("x\0 /va", 6),         // the line would end at the NUL, before /f
        "x\r\n/va",
    };
    for (const auto& name : kNamen) {
        for (Kategorie k : {Kategorie::Dienste, Kategorie::BHO, Kategorie::URLSearchHooks, Kategorie::TaskScheduler,
                            Kategorie::ToolBar, Kategorie::ToolBar1}) {
            fp.dialogs.meldungen.clear();
            Löschen(k, name);
            EXPECT_TRUE(fp.shell.kommandos.empty()) << LetzterBefehl();
            ASSERT_EQ(fp.dialogs.meldungen.size(), 1u) << "no services question either";
            EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Achtung!");
            EXPECT_NE(fp.dialogs.meldungen[0].text.find("Es wurde nichts gelöscht."), std::string::npos);
            EXPECT_TRUE(prg.Form3Geladen()) << "the window stays for another answer";
            prg.Form3Entladen();
            prg.Aufräumen();
        }
    }
    EXPECT_TRUE(fp.registry.HasValue("HKEY_CURRENT_USER\\Software\\Opfer", "wert"));
    EXPECT_TRUE(fp.registry.HasValue(kDienste + "x", "ImagePath"));
    EXPECT_TRUE(fp.registry.HasValue("HKEY_CLASSES_ROOT\\CLSID\\{K}\\InprocServer32", ""));
    EXPECT_TRUE(fp.registry.HasValue(kHooks, "{K}\\InprocServer32")) << "the value before the command stays too";
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

TEST_F(RegDeleteNamen, ShellServiceWithoutItsClass_DoesNotDeleteAllClasses) {
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\{A}\\InprocServer32", "", "C:\\a.dll");
    Mit(Kategorie::ShellService, {"Dienst", ""}).Image_Click(3);
    EXPECT_TRUE(fp.shell.kommandos.empty());
    EXPECT_TRUE(fp.registry.HasKey("HKEY_CLASSES_ROOT\\CLSID\\{A}"));
}

TEST_F(RegDeleteNamen, DomainWithBlanks_IsQuotedAndGoesAloneWithItsSubkeys) {
    fp.registry.SetDword(kDomains + "a b.example\\www", "http", 2);
    fp.registry.SetDword(kDomains + "a", "http", 2);
    Löschen(Kategorie::ToolBar1, "a b.example");
    EXPECT_EQ(LetzterBefehl(),
              "REG DELETE \"HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet "
              "Settings\\ZoneMap\\Domains\\a b.example\" /f");
    EXPECT_FALSE(fp.registry.HasKey(kDomains + "a b.example"));
    EXPECT_TRUE(fp.registry.HasKey(kDomains + "a"));
}

}  // namespace
}  // namespace kes::test

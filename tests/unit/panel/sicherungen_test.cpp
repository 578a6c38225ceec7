// The panel's page of backups: a value deleted through the warning window is listed, put
// back from the page exactly, and its restore journalled; a restore that would overwrite
// asks first; a deleted backup leaves the page and its size.
#include "platform/journal.h"
#include "platform/reg_datei.h"
#include "programm_test_basis.h"
#include "watchers/waechter.h"

namespace kes::test {
namespace {

const std::string kRun = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class SicherungenSeite : public WarnungsTest {
protected:
    void RunWertGelöscht() {
        fp.registry.SetString(kRun, "Tool", "\"C:\\tool.exe\" /q");
        prg.AnzeigeLöschen = true;
        Form3Fenster& f = Warnung(Kategorie::AutostartRegistry);
        f.Text1[1].Text = "HKEY_CURRENT_USER";
        f.Text1[2].Text = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
        f.Text1[3].Text = "Tool";
        ListItem& z = f.ListView4.Add("Tool");  // the registry row, as the watcher fills it
        for (int i = 1; i <= 3; ++i) z.SetSubItem(i, f.Text1[i].Text);
        f.Image_Click(3);
        ASSERT_FALSE(fp.registry.HasValue(kRun, "Tool"));
    }
    std::string Wert() {
        return RegDateiText(
            RegWertLesen(fp.registry, kHkeyCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool"));
    }
    AlarmFenster& a() { return prg.Alarm(); }
};

TEST_F(SicherungenSeite, ADeletedValueIsListedAndComesBackFromThePage) {
    fp.registry.SetString(kRun, "Tool", "\"C:\\tool.exe\" /q");
    const std::string vorher = Wert();
    RunWertGelöscht();
    a().Label1_MouseDown(11);
    a().Label1_MouseUp(11);
    EXPECT_EQ(a().SichtbareSeite(), kSeiteSicherungen);
    ASSERT_EQ(a().Sicherungen.Items.size(), 1u);
    EXPECT_EQ(std::make_tuple(a().Sicherungen.Items[0].Text, a().Sicherungen.Items[0].SubItem(3)),
              std::make_tuple("22.11.2026 14:05:09", kRun + "\\Tool"));
    EXPECT_NE(a().SicherungenGrösse.Caption.find("Sicherungen: 1"), std::string::npos);

    a().SicherungenAuswahl = 0;
    a().Sicherungen_MouseUp();
    EXPECT_EQ(a().Menü.Name, "sicherung");
    a().sicherung1_Click(0);
    EXPECT_EQ(Wert(), vorher);
    const auto journal = Journal(fp.files, fp.system, ordner).Lesen().einträge;
    ASSERT_FALSE(journal.empty());
    EXPECT_EQ(std::tie(journal.back().ereignis, journal.back().ziel), std::make_tuple("restore", kRun + "\\Tool"));

    // The value stands again: a second restore asks, and "Nein" leaves it as it is.
    fp.registry.SetString(kRun, "Tool", "neu");
    fp.dialogs.antworten = {kIdNo};
    a().sicherung1_Click(0);
    EXPECT_NE(Wert(), vorher);
    EXPECT_NE(fp.dialogs.meldungen.back().text.find("Nicht alles"), std::string::npos);
    fp.dialogs.antworten = {kIdYes};
    a().sicherung1_Click(0);
    EXPECT_EQ(Wert(), vorher);
}

TEST_F(SicherungenSeite, ADeletedBackupLeavesThePageAndNothingElse) {
    RunWertGelöscht();
    a().SicherungenLaden();
    ASSERT_EQ(a().Sicherungen.Items.size(), 1u);
    a().SicherungenAuswahl = 0;
    fp.dialogs.antworten = {kIdYes};
    a().sicherung1_Click(1);
    EXPECT_TRUE(a().Sicherungen.Items.empty());
    EXPECT_NE(a().SicherungenGrösse.Caption.find("Sicherungen: 0"), std::string::npos);
    EXPECT_FALSE(fp.registry.HasValue(kRun, "Tool")) << "deleting a backup restores nothing";
    EXPECT_FALSE(Journal(fp.files, fp.system, ordner).Lesen().einträge.empty()) << "the journal stays";
}

// Every menu's file is the file of the list it is bound to, and its loader fills that list,
// so that a delete from the list is saved and a restored file is read in again.
TEST_F(SicherungenSeite, EveryPanelListsFileAndLoaderBelongToIt) {
    for (const WächterZeile& z : Wächtertabelle())
        for (const Listenmenü& m : z.listen) {
            if (!m.menü) continue;
            ListBox* kasten = m.kasten ? &(a().*m.kasten) : nullptr;
            ListView* ansicht = m.ansicht ? &(a().*m.ansicht) : nullptr;
            const Grundliste& datei = m.datei(a());
            EXPECT_TRUE(datei.Zeigt(kasten ? static_cast<const void*>(kasten) : ansicht)) << m.menü;
            // A row left from before, and an empty file: the list's own loader empties it.
            if (kasten) kasten->Items = {"Eintrag"};
            if (ansicht) ansicht->Add("Eintrag");
            fp.files.Put(datei.Pfad(), "");
            m.laden(a());
            EXPECT_EQ(kasten ? kasten->Items.size() : ansicht->Items.size(), 0u) << m.menü << " does not load its list";
        }
}

// A choice that changes no file leaves no backup; an entry deleted from a list comes back
// into list and file.
TEST_F(SicherungenSeite, OnlyAChangedListFileIsBackedUp_AndComesBackIntoListAndFile) {
    fp.files.Put(ordner + "daten\\0190.txt", std::string("Netz\x80") + "0190123\r\n");
    a().dfü.LadeDFÜ();
    ASSERT_FALSE(a().ListView2.Items.empty());
    a().ListView2.Items[0].Selected = true;
    a().Ausnahmen.MausLos(Ausnahmeliste::ListView2);
    a().Ausnahmen.MenüKlick(Ausnahmeliste::ListView2, 0);  // "Info zur DFÜ-Verbindung"
    a().SicherungenLaden();
    EXPECT_TRUE(a().Sicherungen.Items.empty());
    FindData d;
    int dateien = 0;
    for (FileFind f = fp.files.FindFirst(ordner + "daten\\Sicherung\\*.*", &d); f;) {
        dateien += !(d.attributes & kAttrDirectory);
        if (!fp.files.FindNext(f.Get(), &d)) break;
    }
    EXPECT_EQ(dateien, 0);

    const std::string datei = ordner + "daten\\AutostartREG.txt";
    fp.files.Put(datei, "HKEY_CURRENT_USER\\Run\\A\r\nHKEY_CURRENT_USER\\Run\\B\r\n");
    a().autostartRegistry.LadeAutostartregistry();
    ASSERT_EQ(a().ListView1.Items.size(), 2u);
    const std::string vorher = fp.files.Content(datei);
    a().ListView1.Items[0].Selected = true;
    a().Ausnahmen.MausLos(Ausnahmeliste::ListView1);
    a().Ausnahmen.MenüKlick(Ausnahmeliste::ListView1, 0);
    ASSERT_EQ(a().ListView1.Items.size(), 1u);

    a().SicherungenLaden();
    ASSERT_EQ(a().Sicherungen.Items.size(), 1u);
    EXPECT_EQ(a().Sicherungen.Items[0].SubItem(3), datei);
    a().SicherungenAuswahl = 0;
    fp.dialogs.antworten = {kIdYes};  // the file stands: overwrite it
    a().sicherung1_Click(0);
    EXPECT_EQ(fp.files.Content(datei), vorher);
    EXPECT_EQ(a().ListView1.Items.size(), 2u) << "the list reads its file again";
}

}  // namespace
}  // namespace kes::test

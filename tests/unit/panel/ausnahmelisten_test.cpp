// The lists of the control panel: the caption of the context menu as each list builds it,
// and the three ways a deletion reaches the file: the line lists written anew, the ini
// sections removed one by one, the list that goes whole; and the deferred list in memory.
#include "panel/ausnahmelisten.h"
#include "programm_test_basis.h"
#include "watchers/waechter.h"

#include <set>

namespace kes::test {
namespace {

using L = Ausnahmeliste;
using Zeilen = std::vector<std::string>;

class Ausnahmen : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    AlarmDaten& a() { return prg.Alarm(); }
    Ausnahmelisten listen{prg, prg.Alarm(), prg.Alarm()};
    std::string Datei(const std::string& name) { return fp.files.Content(ordner + "daten\\" + name); }
    void Put(const std::string& name, const std::string& inhalt) { fp.files.Put(ordner + "daten\\" + name, inhalt); }
    ListItem& Zeile(ListView& l, const std::string& text, const std::string& sub1 = "") {
        ListItem& z = l.Add(text);
        if (!sub1.empty()) z.SetSubItem(1, sub1);
        return z;
    }
    void Kasten(ListBox& k, Zeilen items, int index) {
        k.Items = std::move(items);
        k.ListIndex = index;
    }
    std::string Beschriftung(L l, int eintrag = 0) { return listen.Menü(l).Einträge[eintrag].Caption; }
    Zeilen Beide(L l) { return {Beschriftung(l, 0), Beschriftung(l, 1)}; }
};

// The view binds each list it shows to its menu through the list itself: every menu of the
// table, and the deferred list's, is found by its own list, and a list without one by none.
TEST_F(Ausnahmen, EveryMenu_IsFoundByItsOwnList_AListWithoutOneFindsNone) {
    std::set<L> gefunden;
    for (const WächterZeile& z : Wächtertabelle())
        for (const Listenmenü& m : z.listen) {
            if (!m.menü) continue;
            const auto l = m.kasten ? listen.ListeVon(a().*m.kasten) : listen.ListeVon(a().*m.ansicht);
            EXPECT_EQ(l, m.liste) << m.menü;
            if (l) gefunden.insert(*l);
        }
    EXPECT_EQ(listen.ListeVon(a().List8), L::List8);
    gefunden.insert(L::List8);
    EXPECT_EQ(gefunden.size(), static_cast<std::size_t>(kAusnahmelistenAnzahl));

    for (const ListView* v : {&a().ListView3, &a().ListView4, &a().ListView5, &a().ListView7, &a().ListView33})
        EXPECT_FALSE(listen.ListeVon(*v).has_value());
    for (const ListBox* k : {&a().List2, &a().List7}) EXPECT_FALSE(listen.ListeVon(*k).has_value());
}

TEST_F(Ausnahmen, Captions_QuoteTheSelectionWithEachListsTail_OnTheDeletingEntry_AnEmptyListOpensNoMenu) {
    for (int i = 0; i < kAusnahmelistenAnzahl; ++i) {
        listen.MausLos(static_cast<L>(i));
        EXPECT_FALSE(listen.Popup.has_value()) << "list " << i;
    }
    Kasten(a().List4, {"Eins.url", "Zwei.url"}, 1);
    listen.MausLos(L::List4);
    EXPECT_EQ(listen.Popup, L::List4);
    EXPECT_EQ(Beschriftung(L::List4), "\"Zwei.url\" Eintrag löschen");

    Zeile(a().ListView6, "a.exe", "C:\\a.exe");
    Zeile(a().ListView6, "b.exe", "C:\\b.exe").Selected = true;
    Zeile(a().ListView6, "c.exe", "C:\\c.exe").Selected = true;
    listen.MausLos(L::ListView6);
    EXPECT_EQ(Beschriftung(L::ListView6), "\"b.exe\" Eintrag löschen") << "the first selected, from the top";

    Zeile(a().ListView2, "Anbieter", "0190123").Selected = true;
    listen.MausLos(L::ListView2);
    EXPECT_EQ(Beide(L::ListView2),
              (Zeilen{"Info zur DFÜ-Verbindung", "\"Anbieter\" Nummer: 0190123\" --> Eintrag aus der Liste löschen"}));

    Zeile(a().ListView1, "HKEY_CURRENT_USER\\Run\\A\\a.exe");
    Zeile(a().ListView1, "HKEY_CURRENT_USER\\Run\\B\\b.exe").Selected = true;
    listen.MausLos(L::ListView1);
    EXPECT_EQ(Beschriftung(L::ListView1), "\"2\" --> Eintrag löschen") << "a row number, not the entry";

    EXPECT_EQ(Beschriftung(L::ListView8), "bholöschen") << "the design caption until the first opening";
    Zeile(a().ListView8, "c:\\bho.dll").Selected = true;
    listen.MausLos(L::ListView8);
    EXPECT_EQ(Beschriftung(L::ListView8), "\"c:\\bho.dll\" --> Eintrag aus der Liste löschen");

    Kasten(a().List10, {"Firma"}, 0);
    listen.MausLos(L::List10);
    EXPECT_EQ(Beide(L::List10), (Zeilen{"Alle Einträge aus der liste entfernen", "\"Firma\" ---> Eintrag löschen"}));

    // The other entry keeps its design caption.
    Zeile(a().ListView11, "Dienst").Selected = true;
    listen.MausLos(L::ListView11);
    EXPECT_EQ(Beide(L::ListView11),
              (Zeilen{"\"Dienst\" --> Eintrag aus der Liste löschen", "Alle Dienste aus der Liste entfernen"}));
    Kasten(a().List8, {"schluessel"}, 0);
    listen.MausLos(L::List8);
    EXPECT_EQ(Beide(L::List8), (Zeilen{"\"schluessel\" ---> Eintrag löschen", "Alle aus der Liste löschen"}));
}

// The dial-up info opens the editor of the selected entry over the panel, list and file stay.
TEST_F(Ausnahmen, DialupInfo_OpensTheEditor_LineListsAreWrittenAnewFromTheList_ProcessesReloadFromIt) {
    prg.Alarm().hWnd = 0x4711;
    fp.dialup.einträge.push_back({"Zwei", {}});
    Zeile(a().ListView2, "Eins", "0190111");
    Zeile(a().ListView2, "Zwei", "0190222").Selected = true;
    listen.MenüKlick(L::ListView2, 0);
    ASSERT_EQ(fp.dialup.bearbeitet.size(), 1u);
    EXPECT_EQ(fp.dialup.bearbeitet[0], std::make_pair(std::uintptr_t{0x4711}, std::string("Zwei")));
    EXPECT_EQ(a().ListView2.Items.size(), 2u);
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\0190.txt"));

    a().ListView2.Items[1].Selected = false;
    listen.MenüKlick(L::ListView2, 0);
    EXPECT_EQ(fp.dialup.bearbeitet.size(), 1u) << "no row selected, no editor";

    Zeile(a().ListView6, "a.exe", "C:\\a.exe");
    Zeile(a().ListView6, "b.exe", "C:\\b.exe").Selected = true;
    Zeile(a().ListView6, "c.exe", "C:\\c,d.exe").Selected = true;
    Zeile(a().ListView6, "e.exe", "C:\\e.exe");
    listen.MenüKlick(L::ListView6, 0);
    EXPECT_EQ(Datei("prozesse.txt"), "a.exe#C:\\a.exe\r\ne.exe#C:\\e.exe\r\n");

    a().ListView6.Items.clear();
    Zeile(a().ListView6, "a.exe", "C:\\a.exe").Selected = true;
    Zeile(a().ListView6, "c.exe", "C:\\c,d.exe");
    listen.MenüKlick(L::ListView6, 0);
    EXPECT_EQ(Datei("prozesse.txt"), "c.exe#C:\\c,d.exe\r\n");
    // The loader reads by fields: the comma splits the path, and the list shows it so.
    ASSERT_EQ(a().ListView6.Items.size(), 2u);
    const auto& zeilen = a().ListView6.Items;
    EXPECT_EQ((Zeilen{zeilen[0].SubItem(1), zeilen[1].SubItem(1)}), (Zeilen{"C:\\c", "d.exe"}));

    a().ListView2.Items[1].Selected = true;
    listen.MenüKlick(L::ListView2, 1);
    EXPECT_EQ(Datei("0190.txt"), "Eins\x80" "0190111\r\n") << "the euro sign as its one byte of code page 1252";
}

TEST_F(Ausnahmen, ListBoxes_LastRowLeavesAnEmptyFile_NoSelectionChangesNothing_WholeListsGo_DeferredInMemory) {
    Kasten(a().List8, {"a", "b", "c"}, 1);
    listen.MenüKlick(L::List8, 0);
    EXPECT_EQ(a().List8.Items, (Zeilen{"a", "c"}));
    listen.MenüKlick(L::List8, 1);
    EXPECT_TRUE(a().List8.Items.empty());
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    Put("Autostart.txt", "tool.lnk\r\n");
    Kasten(a().List3, {"tool.lnk"}, 0);
    listen.MenüKlick(L::List3, 0);
    EXPECT_TRUE(a().List3.Items.empty());
    EXPECT_TRUE(fp.files.Exists(ordner + "daten\\Autostart.txt")) << "an empty file, not a missing one";
    EXPECT_EQ(Datei("Autostart.txt"), "");

    Put("Firma.txt", "Microsoft Corporation\r\n");
    a().List1.Items = {"Microsoft Corporation"};
    listen.MenüKlick(L::List1, 0);
    EXPECT_EQ(a().List1.Items.size(), 1u);
    EXPECT_EQ(Datei("Firma.txt"), "Microsoft Corporation\r\n");

    Put("dienstefirmen.txt", "A\r\nB\r\nC\r\n");
    Kasten(a().List10, {"A", "B", "C"}, 1);
    listen.MenüKlick(L::List10, 1);
    EXPECT_EQ(Datei("dienstefirmen.txt"), "A\r\nC\r\n");
    EXPECT_EQ(a().List10.Items, (Zeilen{"A", "C"}));
    listen.MenüKlick(L::List10, 0);
    EXPECT_TRUE(a().List10.Items.empty());
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\dienstefirmen.txt"));

    // The search hooks go whole whichever line was chosen.
    Put("URLSearchHook.txt", "{1}\r\n{2}\r\n{3}\r\n{4}\r\n{5}\r\n");
    Kasten(a().List9, {"{1}", "{2}", "{3}", "{4}", "{5}"}, 2);
    listen.MenüKlick(L::List9, 0);
    EXPECT_TRUE(a().List9.Items.empty());
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\URLSearchHook.txt"));

}

TEST_F(Ausnahmen, SectionLists_RemoveTheWholeSection_OtherNumbersStay_ServicesRecountTheLabel) {
    const std::string ini = ordner + "daten\\bho.ini";
    fp.files.Put(ini, "[1]\r\nPfad=c:\\a.dll\r\nClisd={A}\r\n[2]\r\nPfad=c:\\b.dll\r\nClisd={B}\r\n[3]\r\n"
                      "Pfad=c:\\c.dll\r\nClisd={C}\r\n");
    for (const char* n : {"1", "2", "3"}) Zeile(a().ListView8, n).SetSubItem(12, n);
    a().ListView8.Items[1].Selected = true;
    listen.MenüKlick(L::ListView8, 0);
    EXPECT_EQ(a().ListView8.Items.size(), 2u);
    // The second section is gone, the others keep their numbers.
    Zeilen clisd;
    for (const char* n : {"1", "2", "3"}) clisd.push_back(fp.profiles.GetString(n, "Clisd", "", ini));
    EXPECT_EQ(clisd, (Zeilen{"{A}", "", "{C}"}));

    const std::string dienste = ordner + "daten\\dienste.ini";
    fp.files.Put(dienste, "[1]\r\nDienst=A\r\n[2]\r\nDienst=B\r\n");
    Zeile(a().ListView11, "A").SetSubItem(14, "1");
    Zeile(a().ListView11, "B").SetSubItem(14, "2");
    a().ListView11.Items[0].Selected = true;
    listen.MenüKlick(L::ListView11, 0);
    EXPECT_EQ(fp.profiles.GetString("1", "Dienst", "", dienste), "");
    EXPECT_EQ(fp.profiles.GetString("2", "Dienst", "", dienste), "B");
    EXPECT_EQ(a().ww[19].Caption, "Ausnahmen:   [Einträge: 1]");
    listen.MenüKlick(L::ListView11, 1);
    EXPECT_FALSE(fp.files.Exists(dienste));
    EXPECT_EQ(a().ww[19].Caption, "Ausnahmen:   [Einträge: 0]");
}

TEST_F(Ausnahmen, DeletedHelperObject_IsWarnedOfAgainByTheNextCycle) {
    const std::string klasse = "{B1}";
    fp.files.Put("C:\\WINDOWS\\system32\\hilfe.dll", "MZ");
    fp.registry.SetString(
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\" + klasse,
        "", "Hilfsobjekt");
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + klasse + "\\InprocServer32", "",
                          "C:\\WINDOWS\\system32\\hilfe.dll");
    Put("bho.ini", "[1]\r\nPfad=C:\\WINDOWS\\system32\\hilfe.dll\r\nClisd=" + klasse + "\r\n");
    prg.Alarm().klassenlisten.LadeBHO();
    prg.Alarm().klassenlisten.TesteBHO();
    ASSERT_FALSE(prg.Form3Geladen()) << "known before the delete";

    ASSERT_EQ(a().ListView8.Items.size(), 1u);
    a().ListView8.Items[0].Selected = true;
    listen.MenüKlick(L::ListView8, 0);
    EXPECT_EQ(fp.profiles.GetString("1", "Pfad", "", ordner + "daten\\bho.ini"), "");
    prg.Alarm().klassenlisten.TesteBHO();
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::BHO);
}

TEST_F(Ausnahmen, FileThatCannotBeWritten_StopsWithAMessageOnlyWhereErrorsAreNotCaught) {
    Put("favoriten.txt", "a.url\r\nb.url\r\n");
    fp.files.Lock(ordner + "daten\\favoriten.txt");
    Kasten(a().List4, {"a.url", "b.url"}, 0);
    listen.MenüKlick(L::List4, 0);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "(Alarm, LöscheFavoriten_Click) Fehler: 75");

    Put("windows.txt", "C:\\WINDOWS\\a.dll\r\n");
    fp.files.Lock(ordner + "daten\\windows.txt");
    Kasten(a().List5, {"C:\\WINDOWS\\a.dll"}, 0);
    listen.MenüKlick(L::List5, 0);
    EXPECT_EQ(fp.dialogs.meldungen.size(), 1u) << "the exception list passes the error over";
    EXPECT_TRUE(a().List5.Items.empty());
}

}  // namespace
}  // namespace kes::test

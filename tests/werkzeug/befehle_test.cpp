// kestrella-dat's journal and restore: the calls it takes, the journal it shows, and the
// backups it puts back, on the fake platform; the native build's own disk reader on a
// real folder.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "common/zeichensatz.h"
#include "fake_plattform.h"
#include "kestrella_dat/befehle.h"
#include "platform/sicherung.h"
#include "platform/journal.h"
#include "platform/sicherung.h"

namespace kes::werkzeug {
namespace {

const std::string kOrdner = "C:\\Programme\\Kestrella\\";
const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string kRunPfad = "HKEY_CURRENT_USER\\" + kRun;

// --- the calls ------------------------------------------------------------------------------

TEST(Aufruf, JournalAndRestoreWithTheirOptionsAnywhereAfterTheCommand) {
    struct Fall {
        std::vector<std::string> argumente;
        std::string ordner, seit;
        bool json;
        std::int64_t id;
        bool erzwingen;
    };
    const Fall fälle[] = {
        {{"journal", "C:\\K"}, "C:\\K\\", "", false, 0, false},
        {{"journal", "C:\\K\\", "--json"}, "C:\\K\\", "", true, 0, false},
        {{"journal", "--since", "2026-11-24", "C:/K/"}, "C:/K/", "2026-11-24", false, 0, false},
        {{"journal", "--json", "C:\\K", "--since", "2026-11-24T10:00"}, "C:\\K\\", "2026-11-24T10:00", true, 0, false},
        {{"journal", "C:\\K", "--since", "2026"}, "C:\\K\\", "2026", false, 0, false},
        {{"journal", "C:\\K", "--since", "2026-11"}, "C:\\K\\", "2026-11", false, 0, false},
        {{"journal", "C:\\K", "--since", "2026-11-24T10"}, "C:\\K\\", "2026-11-24T10", false, 0, false},
        {{"journal", "C:\\K", "--since", "2026-11-24T10:00:05"}, "C:\\K\\", "2026-11-24T10:00:05", false, 0, false},
        {{"restore", "C:\\K", "7"}, "C:\\K\\", "", false, 7, false},
        {{"restore", "C:\\K", "12", "--force"}, "C:\\K\\", "", false, 12, true},
        {{"restore", "--force", "C:\\K\\", "9223372036854775807"}, "C:\\K\\", "", false, 9223372036854775807, true},
    };
    for (const Fall& f : fälle) {
        const auto v = AufrufLesen(f.argumente);
        ASSERT_TRUE(v && std::holds_alternative<Aufruf>(*v)) << ::testing::PrintToString(f.argumente);
        const Aufruf& a = std::get<Aufruf>(*v);
        if (f.argumente[0] == "journal") {
            ASSERT_TRUE(std::holds_alternative<JournalAufruf>(a));
            const auto& j = std::get<JournalAufruf>(a);
            EXPECT_EQ(j.ordner, f.ordner);
            EXPECT_EQ(j.seit, f.seit);
            EXPECT_EQ(j.json, f.json) << ::testing::PrintToString(f.argumente);
        } else {
            ASSERT_TRUE(std::holds_alternative<RestoreAufruf>(a));
            const auto& r = std::get<RestoreAufruf>(a);
            EXPECT_EQ(r.ordner, f.ordner);
            EXPECT_EQ(r.id, f.id);
            EXPECT_EQ(r.erzwingen, f.erzwingen) << ::testing::PrintToString(f.argumente);
        }
    }
}

TEST(Aufruf, WrongCallsAreNamedInGerman) {
    struct Fall {
        std::vector<std::string> argumente;
        const char* grund;  // a part of the message
    };
    const Fall fälle[] = {
        {{"journal"}, "Programmordner fehlt"},
        {{"journal", ""}, "Programmordner fehlt"},
        {{"journal", "C:\\K", "C:\\L"}, "nicht auch: C:\\L"},
        {{"journal", "C:\\K", "--since"}, "fehlt die Zeit"},
        {{"journal", "C:\\K", "--since", "24.11.2026"}, "nicht: 24.11.2026"},
        {{"journal", "C:\\K", "--since", "2026-11-24 10:00"}, "nicht: 2026-11-24 10:00"},
        {{"journal", "C:\\K", "--since", "2026-1"}, "nicht: 2026-1"},
        {{"journal", "C:\\K", "--since", "2026-11-24T1"}, "nicht: 2026-11-24T1"},
        {{"journal", "C:\\K", "--since", "2026-11-24T10:00:00+01:00"}, "nicht: "},
        {{"journal", "C:\\K", "--force"}, "Unbekannte Option für journal: --force"},
        {{"restore", "C:\\K"}, "Nummer des Eintrags im Journal fehlt"},
        {{"restore", "C:\\K", "0"}, "nicht: 0"},
        {{"restore", "C:\\K", "-3"}, "nicht: -3"},
        {{"restore", "C:\\K", "7a"}, "nicht: 7a"},
        {{"restore", "C:\\K", "+7"}, "nicht: +7"},
        {{"restore", "C:\\K", "99999999999999999999"}, "nicht: 99999999999999999999"},
        {{"restore", "C:\\K", "7", "8"}, "nicht auch: 8"},
        {{"restore", "C:\\K", "7", "--json"}, "Unbekannte Option für restore: --json"},
        {{"restore", "C:\\K", "7", "--since", "2026"}, "Unbekannte Option für restore: --since"},
    };
    for (const Fall& f : fälle) {
        const auto v = AufrufLesen(f.argumente);
        ASSERT_TRUE(v && std::holds_alternative<Fehlaufruf>(*v)) << ::testing::PrintToString(f.argumente);
        EXPECT_NE(std::get<Fehlaufruf>(*v).grund.find(f.grund), std::string::npos)
            << std::get<Fehlaufruf>(*v).grund;
    }
}

TEST(Aufruf, OtherCommandsAreLeftToTheSettingsPart) {
    for (const std::vector<std::string>& a :
         {std::vector<std::string>{}, {"show", "kestrella.dat"}, {"set", "k.dat", "box1", "1"}, {"Journal", "C:\\K"}})
        EXPECT_FALSE(AufrufLesen(a)) << ::testing::PrintToString(a);
}

TEST(SicherungenTeilen, SplitsOnlyWhereTheNextNameBegins) {
    struct Fall {
        const char* feld;
        std::vector<std::string> namen;
    };
    const Fall fälle[] = {
        {"", {}},
        {"20261124-100003-1.reg", {"20261124-100003-1.reg"}},
        {"20261124-100003-1.reg;20261124-100003-2.reg", {"20261124-100003-1.reg", "20261124-100003-2.reg"}},
        {"20261124-100003-1-a;b.dll", {"20261124-100003-1-a;b.dll"}},
        {"20261124-100003-1-a;20261124.dll", {"20261124-100003-1-a;20261124.dll"}},
        {"20261124-100003-1-x;y.dll;20261124-100004-1.reg", {"20261124-100003-1-x;y.dll", "20261124-100004-1.reg"}},
    };
    for (const Fall& f : fälle) EXPECT_EQ(SicherungenTeilen(f.feld), f.namen) << f.feld;
}

// --- the journal ----------------------------------------------------------------------------

struct Umgebung {
    fake::FakePlattform fp;
    std::ostringstream aus, fehler;
    Ausgaben o{aus, fehler, false};

    std::int64_t Zeile(const Uhrzeit& t, JournalEintrag e) {
        fp.system.jetzt = t;
        return Journal(fp.files, fp.system, kOrdner).Schreiben(std::move(e));
    }
    std::string Datei() { return fp.files.Content(kOrdner + kJournaldatei); }
    std::vector<std::string> Ausgabezeilen() const {
        std::vector<std::string> z;
        std::istringstream ein(aus.str());
        for (std::string s; std::getline(ein, s);) z.push_back(s);
        return z;
    }
};

JournalEintrag Eintrag(const std::string& ereignis, const std::string& ziel, const std::string& aktion = "",
                       const std::string& sicherung = "") {
    JournalEintrag e;
    e.ereignis = ereignis;
    e.kategorie = "AutostartRegistry";
    e.ziel = ziel;
    e.aktion = aktion;
    e.sicherung = sicherung;
    e.texte = {"Neuer Eintrag in der Registry Autostart-Funktion gefunden."};
    return e;
}

// Four entries over three days, a damaged line between the second and the third.
void VierTage(Umgebung& u) {
    u.Zeile({2026, 11, 23, 23, 59, 59, 0, 60}, Eintrag("warning", "C:\\a.exe"));
    u.Zeile({2026, 11, 24, 10, 0, 0, 0, 60}, Eintrag("answer", "C:\\a.exe", "Löschen", "20261124-100000-1.reg"));
    u.fp.files.Append(kOrdner + kJournaldatei, "{\"id\": 3, \"time\": \r\n");
    u.Zeile({2026, 11, 24, 10, 0, 1, 0, 60}, Eintrag("auto", "C:\\b.exe", "Entfernt"));
    // Another writer's line, its time a bare date.
    u.fp.files.Append(kOrdner + kJournaldatei,
                      R"({"id":4,"time":"2026-11-25","event":"restore","category":"","target":"","action":"","texts":[]})"
                      "\r\n");
}

TEST(JournalZeigen, SinceKeepsTheEntriesFromThatTimeOn) {
    struct Fall {
        const char* seit;
        std::vector<std::int64_t> ids;
    };
    // The damaged line took no id: the entry after it has 3.
    const Fall fälle[] = {
        {"", {1, 2, 3, 4}},
        {"2026", {1, 2, 3, 4}},
        {"2026-11-24", {2, 3, 4}},
        {"2026-11-24T10", {2, 3, 4}},
        {"2026-11-24T10:00", {2, 3, 4}},
        {"2026-11-24T10:00:01", {3, 4}},
        {"2026-11-24T10:01", {4}},
        {"2026-11-24T23", {4}},
        {"2026-11-25", {4}},
        {"2026-11-25T00", {}},
        {"2027", {}},
    };
    for (const Fall& f : fälle) {
        Umgebung u;
        VierTage(u);
        EXPECT_EQ(JournalZeigen(u.fp.files, {kOrdner, f.seit, true}, u.o), kErledigt) << f.seit;
        std::vector<std::int64_t> ids;
        for (const std::string& z : u.Ausgabezeilen()) ids.push_back(nlohmann::json::parse(z).at("id").get<std::int64_t>());
        EXPECT_EQ(ids, f.ids) << "--since " << f.seit;
    }
}

TEST(JournalZeigen, JsonGivesTheValidLinesAsStoredAndNamesTheDamagedOne) {
    Umgebung u;
    VierTage(u);
    EXPECT_EQ(JournalZeigen(u.fp.files, {kOrdner, "", true}, u.o), kErledigt);
    std::vector<std::string> gültig;
    std::istringstream datei(u.Datei());
    for (std::string z; std::getline(datei, z);) {
        ASSERT_EQ(z.back(), '\r');
        z.pop_back();
        if (z.find("\"time\": ") == std::string::npos) gültig.push_back(z);
    }
    ASSERT_EQ(gültig.size(), 4u);
    EXPECT_EQ(u.Ausgabezeilen(), gültig);
    EXPECT_EQ(u.fehler.str(), "kestrella-dat: Zeile 3 des Journals ist beschädigt und wurde übergangen.\n");
}

TEST(JournalZeigen, TextGivesOneGermanLinePerEntry) {
    Umgebung u;
    u.Zeile({2026, 11, 24, 10, 0, 0, 0, 60}, Eintrag("warning", "HKEY_CURRENT_USER\\Run\\Zwei\r\nZeilen"));
    u.Zeile({2026, 11, 24, 10, 0, 3, 0, -300},
            Eintrag("answer", "C:\\Datei.dll", "Datei löschen", "20261124-100003-1-Datei.dll"));
    u.Zeile({2026, 11, 24, 10, 0, 4, 0, 0}, Eintrag("anderes", ""));
    u.o.utf8 = true;
    EXPECT_EQ(JournalZeigen(u.fp.files, {kOrdner, "", false}, u.o), kErledigt);
    EXPECT_EQ(u.Ausgabezeilen(),
              (std::vector<std::string>{
                  "Nr. 1 | 2026-11-24T10:00:00+01:00 | Warnung | Kategorie: AutostartRegistry | Ziel: "
                  "HKEY_CURRENT_USER\\Run\\Zwei  Zeilen",
                  "Nr. 2 | 2026-11-24T10:00:03-05:00 | Antwort | Kategorie: AutostartRegistry | Aktion: Datei "
                  "l\xC3\xB6schen | Ziel: C:\\Datei.dll | Sicherung: 20261124-100003-1-Datei.dll",
                  "Nr. 3 | 2026-11-24T10:00:04+00:00 | anderes | Kategorie: AutostartRegistry",
              }));
    EXPECT_EQ(u.fehler.str(), "");
}

TEST(JournalZeigen, MissingFolderMissingJournalAndLockedJournal) {
    struct Fall {
        const char* name;
        std::string ordner;
        bool sperren;
        int ergebnis;
        const char* meldung;
    };
    const Fall fälle[] = {
        {"no such folder", "C:\\Nirgends\\", false, kFehlgeschlagen, "Der Programmordner ist nicht da: C:\\Nirgends\n"},
        {"a file, no folder", kOrdner + "daten\\Alarm.ini\\", false, kFehlgeschlagen, "Der Programmordner ist nicht da"},
        {"no journal yet", "C:\\Programme\\", false, kErledigt, "Noch kein Journal: C:\\Programme\\daten\\journal.jsonl"},
        {"locked", kOrdner, true, kFehlgeschlagen, "Das Journal kann nicht gelesen werden"},
    };
    for (const Fall& f : fälle) {
        Umgebung u;
        u.fp.files.Put(kOrdner + "daten\\Alarm.ini", "[x]\r\n");
        VierTage(u);
        if (f.sperren) u.fp.files.Lock(kOrdner + kJournaldatei);
        EXPECT_EQ(JournalZeigen(u.fp.files, {f.ordner, "", false}, u.o), f.ergebnis) << f.name;
        EXPECT_EQ(u.aus.str(), "") << f.name;
        EXPECT_NE(u.fehler.str().find(f.meldung), std::string::npos) << f.name << ": " << u.fehler.str();
    }
}

// --- restore --------------------------------------------------------------------------------

struct Wiederherstellung : Umgebung {
    // A Run value removed by an answer, its backup written first; gives the answer's id.
    std::int64_t WertGelöscht(const std::vector<std::string>& namen) {
        std::string sicherungen;
        for (const std::string& name : namen) {
            Sicherung s(fp.plattform, kOrdner);
            s.Wert(kHkeyCurrentUser, kRun, name);
            const auto gesichert = s.Schreiben();
            EXPECT_TRUE(gesichert && !gesichert->empty());
            sicherungen += (sicherungen.empty() ? "" : ";") + gesichert.value_or("");
            Löschen(name);
        }
        return Zeile(fp.system.jetzt, Eintrag("answer", kRunPfad + "\\" + namen.front(), "Registry löschen", sicherungen));
    }
    void Löschen(const std::string& name) {
        RegKey k;
        ASSERT_EQ(fp.registry.OpenKeyEx(kHkeyCurrentUser, kRun, kKeyAllAccess, &k), kErrorSuccess);
        ASSERT_EQ(fp.registry.DeleteValue(k.Get(), name.c_str()), kErrorSuccess);
    }
    std::optional<std::string> Daten(const std::string& name) {
        const auto a = RegWertLesen(fp.registry, kHkeyCurrentUser, kRun, name);
        if (a.empty()) return std::nullopt;
        return a.front().werte.front().daten;
    }
    std::vector<JournalEintrag> Wiederherstellungen() {
        std::vector<JournalEintrag> r;
        for (JournalEintrag& e : Journal::Lesen(fp.files, kOrdner).einträge)
            if (e.ereignis == "restore") r.push_back(std::move(e));
        return r;
    }
};

TEST(Zurückholen, ARemovedValueComesBackAndTheJournalSaysSo) {
    struct Fall {
        const char* name;
        std::function<void(Wiederherstellung&)> vorher;
        std::string ordner;
        std::int64_t id;  // 2 is the answer's; 1 a warning without a backup
        bool erzwingen;
        int ergebnis;
        std::string meldung;  // a part of stderr; "" for none at all
        std::optional<std::string> danach;
    };
    const std::string alt("C:\\x.exe /q\0", 12), neu("neu\0", 4);
    const auto neuDa = [](Wiederherstellung& w) { w.fp.registry.SetString(kRunPfad, "Testwert", "neu"); };
    const std::string sicherung = kOrdner + kSicherungsordner + "20261122-140509-1.reg";
    const Fall fälle[] = {
        {"put back", nullptr, kOrdner, 2, false, kErledigt, "", alt},
        {"put back past a damaged line",
         [](Wiederherstellung& w) { w.fp.files.Append(kOrdner + kJournaldatei, "kaputt\r\n"); }, kOrdner, 2, false,
         kErledigt, "Zeile 3 des Journals ist beschädigt", alt},
        {"unknown id", nullptr, kOrdner, 3, false, kFehlgeschlagen, "keinen Eintrag Nr. 3", std::nullopt},
        {"entry without a backup", nullptr, kOrdner, 1, false, kFehlgeschlagen, "Eintrag Nr. 1 hat keine Sicherung",
         std::nullopt},
        {"the value stands again", neuDa, kOrdner, 2, false, kFehlgeschlagen,
         "Schon vorhanden, nichts wurde geändert: " + kRunPfad + "\\Testwert (--force", neu},
        {"the value stands again, forced", neuDa, kOrdner, 2, true, kErledigt, "", alt},
        {"the backup is gone", [&](Wiederherstellung& w) { w.fp.files.Delete(sicherung); }, kOrdner, 2, false,
         kFehlgeschlagen, "Die Sicherung 20261122-140509-1.reg ist nicht mehr da", std::nullopt},
        {"the backup is damaged", [&](Wiederherstellung& w) { w.fp.files.WriteAll(sicherung, "REGEDIT4\r\n[x"); },
         kOrdner, 2, false, kFehlgeschlagen, "ist beschädigt", std::nullopt},
        {"no such folder", nullptr, "C:\\Nirgends\\", 2, false, kFehlgeschlagen, "Der Programmordner ist nicht da",
         std::nullopt},
    };
    for (const Fall& f : fälle) {
        Wiederherstellung w;
        w.Zeile(w.fp.system.jetzt, Eintrag("warning", kRunPfad + "\\Testwert"));
        w.fp.registry.SetString(kRunPfad, "Testwert", "C:\\x.exe /q");
        ASSERT_EQ(w.WertGelöscht({"Testwert"}), 2) << f.name;
        if (f.vorher) f.vorher(w);
        const std::string journalVorher = w.Datei();

        EXPECT_EQ(Zurückholen(w.fp.plattform, {f.ordner, f.id, f.erzwingen}, w.o), f.ergebnis) << f.name;
        EXPECT_EQ(w.Daten("Testwert"), f.danach) << f.name;
        if (!f.meldung.empty())
            EXPECT_NE(w.fehler.str().find(f.meldung), std::string::npos) << f.name << ": " << w.fehler.str();
        else
            EXPECT_EQ(w.fehler.str(), "") << f.name;
        const auto zurück = w.Wiederherstellungen();
        if (f.ergebnis != kErledigt) {
            EXPECT_EQ(w.Datei(), journalVorher) << f.name << ": a refused restore writes no line";
            continue;
        }
        EXPECT_EQ(w.aus.str(), "Sicherung 20261122-140509-1.reg wiederhergestellt.\n") << f.name;
        ASSERT_EQ(zurück.size(), 1u) << f.name;
        EXPECT_EQ(zurück[0].kategorie, "AutostartRegistry");
        EXPECT_EQ(zurück[0].ziel, kRunPfad + "\\Testwert");
        EXPECT_EQ(zurück[0].aktion, "Wiederherstellen");
        EXPECT_EQ(zurück[0].sicherung, "20261122-140509-1.reg");
        ASSERT_EQ(zurück[0].texte.size(), 1u);
        EXPECT_NE(zurück[0].texte[0].find("Eintrag Nr. 2"), std::string::npos) << zurück[0].texte[0];
        EXPECT_EQ(zurück[0].texte[0].find("überschrieben") != std::string::npos, f.erzwingen) << zurück[0].texte[0];
    }
}

TEST(Zurückholen, OfTwoBackupsTheOneThatMayGoBackDoesAndOnlyItIsJournalled) {
    Wiederherstellung w;
    w.fp.registry.SetString(kRunPfad, "Eins", "1");
    w.fp.registry.SetString(kRunPfad, "Zwei", "2");
    ASSERT_EQ(w.WertGelöscht({"Eins", "Zwei"}), 1);
    w.fp.registry.SetString(kRunPfad, "Zwei", "wieder da");

    EXPECT_EQ(Zurückholen(w.fp.plattform, {kOrdner, 1, false}, w.o), kFehlgeschlagen);
    EXPECT_EQ(w.Daten("Eins"), std::string("1\0", 2));
    EXPECT_EQ(w.Daten("Zwei"), std::string("wieder da\0", 10));
    EXPECT_EQ(w.aus.str(), "Sicherung 20261122-140509-1.reg wiederhergestellt.\n");
    EXPECT_NE(w.fehler.str().find("Sicherung 20261122-140509-2.reg nicht wiederhergestellt"), std::string::npos)
        << w.fehler.str();
    const auto zurück = w.Wiederherstellungen();
    ASSERT_EQ(zurück.size(), 1u);
    EXPECT_EQ(zurück[0].sicherung, "20261122-140509-1.reg");
}

// The copy names its path in a note beside it; with the note lost, the entry's target
// is the only place the file is known to have come from.
TEST(Zurückholen, ADeletedFileComesBackByteForByteAlsoWithItsNoteLost) {
    for (const bool notizWeg : {false, true}) {
        Wiederherstellung w;
        const std::string pfad = "C:\\WINDOWS\\system32\\Neu;Datei.dll";
        const std::string daten("MZ\0\x90\r\n\xFF;x", 9);
        w.fp.files.Put(pfad, daten);
        Sicherung s(w.fp.plattform, kOrdner);
        s.Datei(pfad);
        const auto name = s.Schreiben();
        ASSERT_EQ(name, "20261122-140509-1-Neu;Datei.dll");
        ASSERT_EQ(w.fp.files.Delete(pfad), 0);
        if (notizWeg) {
            ASSERT_EQ(w.fp.files.Delete(kOrdner + kSicherungsordner + *name + kHerkunftEndung), 0);
        }
        JournalEintrag e = Eintrag("auto", pfad, "Automatisch gelöscht", *name);
        e.kategorie = "AutostartOrdner";
        ASSERT_EQ(w.Zeile(w.fp.system.jetzt, e), 1);

        EXPECT_EQ(Zurückholen(w.fp.plattform, {kOrdner, 1, false}, w.o), kErledigt) << w.fehler.str();
        EXPECT_EQ(w.fp.files.Content(pfad), daten) << "note lost: " << notizWeg;
        const auto zurück = w.Wiederherstellungen();
        ASSERT_EQ(zurück.size(), 1u);
        EXPECT_EQ(zurück[0].ziel, pfad);
        EXPECT_EQ(zurück[0].kategorie, "AutostartOrdner");
        EXPECT_EQ(zurück[0].sicherung, *name);
    }
}

// --- the native build's machine -------------------------------------------------------------

TEST(AufDiesemSystem, LinuxReadsTheJournalFromDiskAndHasNoRestore) {
    namespace fs = std::filesystem;
    // A folder name with an umlaut: the call holds it in the program's code page.
    const fs::path ordner = fs::path(::testing::TempDir()) / "Kestrell\xC3\xA4-werkzeug";
    fs::remove_all(ordner);
    fs::create_directories(ordner / "daten");
    const std::string zeile = R"({"action":"L)"
                              "\xC3\xB6"
                              R"(schen","category":"Hosts","event":"answer","id":7,"target":"C:\\h","texts":[],"time":"2026-11-24T10:00:00+01:00"})";
    std::ofstream(ordner / "daten" / "journal.jsonl", std::ios::binary) << zeile << "\r\nkaputt\r\n";
    const std::string imProgramm = zeichensatz::NachCp1252(ordner.string()) + "/";

    std::ostringstream aus, fehler;
    Ausgaben o{aus, fehler, true};
    EXPECT_EQ(AufDiesemSystem(JournalAufruf{imProgramm, "", true}, o), kErledigt);
    EXPECT_EQ(aus.str(), zeile + "\n");
    EXPECT_EQ(fehler.str(), zeichensatz::NachUtf8("kestrella-dat: Zeile 2 des Journals ist beschädigt und wurde übergangen.\n"));

    aus.str("");
    fehler.str("");
    EXPECT_EQ(AufDiesemSystem(RestoreAufruf{imProgramm, 7, false}, o), kFalscherAufruf);
    EXPECT_EQ(aus.str(), "");
    EXPECT_NE(fehler.str().find("restore braucht die Registry von Windows"), std::string::npos) << fehler.str();
    fs::remove_all(ordner);
}

}  // namespace
}  // namespace kes::werkzeug

// The change sources, run against the fakes natively and against Win32 under Wine: a source
// fires for a change at its place, once, and not for a change beside it.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "umgebung.h"

namespace kes::vertrag {
namespace {

// A folder's notification may come a moment after the change (Wine hears of it from the
// file system); the registry's comes at once.
constexpr int kWarteMs = 2000;

class Änderungen : public ImOrdner {
protected:
    Plattform& p = DieUmgebung().Alles();
    RegistryApi& r = p.registry;
    ChangeApi& c = p.changes;

    void SetUp() override { Löschen(kTestSchlüssel); }
    void TearDown() override { Löschen(kTestSchlüssel); }
    void Löschen(const std::string& pfad) {
        for (const char* kind : {"\\Kind\\Enkel", "\\Kind\\Neu", "\\Kind", "\\Zweites"})
            r.DeleteKey(kHkeyCurrentUser, pfad + kind, 0);
        r.DeleteKey(kHkeyCurrentUser, pfad, 0);
    }
    void Wert(const std::string& pfad, const char* name, std::uint8_t zeichen = 'x') {
        RegKey k;
        ASSERT_EQ(r.CreateKeyEx(kHkeyCurrentUser, pfad, kKeyAllAccess, &k), kErrorSuccess);
        const std::uint8_t daten[] = {zeichen, 0};
        ASSERT_EQ(r.SetValueEx(k.Get(), name, kRegSz, daten, 2), kErrorSuccess);
    }
    ChangeSource Schlüssel(bool subtree) {
        ChangeSource q;
        EXPECT_EQ(c.WatchKey(kHkeyCurrentUser, kTestSchlüssel, kKeyRead, subtree, &q), kErrorSuccess);
        return q;
    }
    ChangeSource Ordner(const std::string& pfad) {
        ChangeSource q;
        EXPECT_EQ(c.WatchFolder(pfad, &q), 0);
        return q;
    }
    // Whether the source fires within the wait, asked as a tick would ask it.
    bool Feuert(const ChangeSource& q) {
        for (int ms = 0; ms <= kWarteMs; ms += 20) {
            if (c.Fired(q.Get())) return true;
            p.system.Sleep(20);
        }
        return false;
    }
    // The imprint once the key's last change is old enough to have one.
    std::optional<std::uint64_t> Abdruck(const ChangeSource& q, int tiefe) {
        for (int ms = 0; ms <= kWarteMs; ms += 20) {
            if (const auto a = c.Imprint(q.Get(), tiefe)) return a;
            p.system.Sleep(20);
        }
        return std::nullopt;
    }
    // Whether it stays quiet for a while.
    bool Still(const ChangeSource& q) {
        p.system.Sleep(300);
        return !c.Fired(q.Get());
    }
};

TEST_F(Änderungen, AKeyFiresOnceForEachChangeOfItsValuesAndSubkeys) {
    Wert(kTestSchlüssel, "vorher");
    ChangeSource q = Schlüssel(false);
    ASSERT_TRUE(q);
    EXPECT_TRUE(Still(q)) << "nothing changed yet";

    const struct {
        const char* was;
        std::function<void()> ändern;
    } fälle[] = {
        {"a value added", [&] { Wert(kTestSchlüssel, "neu"); }},
        {"a value's data changed", [&] { Wert(kTestSchlüssel, "neu", 'y'); }},
        {"a value deleted",
         [&] {
             RegKey k;
             ASSERT_EQ(r.OpenKeyEx(kHkeyCurrentUser, kTestSchlüssel, kKeyAllAccess, &k), kErrorSuccess);
             ASSERT_EQ(r.DeleteValue(k.Get(), "neu"), kErrorSuccess);
         }},
        {"a subkey made", [&] { Wert(std::string(kTestSchlüssel) + "\\Kind", "a"); }},
        {"a subkey deleted",
         [&] { ASSERT_EQ(r.DeleteKey(kHkeyCurrentUser, std::string(kTestSchlüssel) + "\\Kind", 0), kErrorSuccess); }},
    };
    for (const auto& f : fälle) {
        f.ändern();
        EXPECT_TRUE(Feuert(q)) << f.was;
        EXPECT_TRUE(Still(q)) << f.was << ": fired a second time for one change";
    }
}

TEST_F(Änderungen, AChangeBelowTheKeyFiresOnlyASourceOfTheSubtree) {
    Wert(std::string(kTestSchlüssel) + "\\Kind", "a");
    ChangeSource nurDer = Schlüssel(false), alles = Schlüssel(true);
    ASSERT_TRUE(nurDer && alles);
    Wert(std::string(kTestSchlüssel) + "\\Kind", "b");
    EXPECT_TRUE(Feuert(alles));
    EXPECT_TRUE(Still(nurDer)) << "a value of a subkey is no change of the key itself";
    Wert(std::string(kTestSchlüssel) + "\\Kind\\Enkel", "c");
    EXPECT_TRUE(Feuert(alles)) << "a key made two levels down";
}

// What a row that is due for its safety walk looks at instead: equal while nothing changed,
// and changed by each change as deep as it reaches, by none below.
TEST_F(Änderungen, AKeysImprint_ChangesWithEveryChangeDownToItsDepth_NotBelow) {
    const std::string kind = std::string(kTestSchlüssel) + "\\Kind";
    Wert(kTestSchlüssel, "a");
    Wert(kind, "b");
    Wert(kind + "\\Enkel", "c");
    ChangeSource q = Schlüssel(false);
    ASSERT_TRUE(q);
    const auto löschen = [&](const std::string& pfad, const char* name) {
        RegKey k;
        ASSERT_EQ(r.OpenKeyEx(kHkeyCurrentUser, pfad, kKeyAllAccess, &k), kErrorSuccess);
        ASSERT_EQ(r.DeleteValue(k.Get(), name), kErrorSuccess);
    };
    const struct {
        const char* was;
        std::function<void()> ändern;
        int tiefe;  // the least depth that sees it
    } fälle[] = {
        {"nothing", [] {}, 3},
        {"a value of the key set", [&] { Wert(kTestSchlüssel, "a", 'y'); }, 0},
        {"a value of the key deleted", [&] { löschen(kTestSchlüssel, "a"); }, 0},
        {"a subkey made", [&] { Wert(std::string(kTestSchlüssel) + "\\Zweites", "z"); }, 0},
        {"a subkey deleted",
         [&] { ASSERT_EQ(r.DeleteKey(kHkeyCurrentUser, std::string(kTestSchlüssel) + "\\Zweites", 0), kErrorSuccess); },
         0},
        {"a value of a subkey set", [&] { Wert(kind, "b", 'y'); }, 1},
        {"a key made two levels down", [&] { Wert(kind + "\\Neu", "n"); }, 1},
        {"a value two levels down set", [&] { Wert(kind + "\\Enkel", "c", 'y'); }, 2},
        {"a value two levels down deleted", [&] { löschen(kind + "\\Enkel", "c"); }, 2},
    };
    for (const auto& f : fälle) {
        std::optional<std::uint64_t> vorher[3], nachher[3];
        for (int t = 0; t < 3; ++t) ASSERT_TRUE(vorher[t] = Abdruck(q, t)) << f.was << ": no imprint at depth " << t;
        f.ändern();
        for (int t = 0; t < 3; ++t) nachher[t] = Abdruck(q, t);
        for (int t = 0; t < 3; ++t) EXPECT_EQ(nachher[t] != vorher[t], t >= f.tiefe) << f.was << ", depth " << t;
    }
    ChangeSource ordnerQuelle = Ordner(ordner);
    EXPECT_FALSE(c.Imprint(ordnerQuelle.Get(), 0)) << "a folder has none";
}

TEST_F(Änderungen, AMissingKeyOrFolderGivesNoSource) {
    ChangeSource q;
    EXPECT_EQ(c.WatchKey(kHkeyCurrentUser, std::string(kTestSchlüssel) + "\\Fehlt", kKeyRead, false, &q),
              kErrorFileNotFound);
    EXPECT_FALSE(q);
    EXPECT_NE(c.WatchFolder(Pfad("fehlt"), &q), 0);
    EXPECT_FALSE(q);
}

TEST_F(Änderungen, AFolderFiresForAFileComingChangingSizeAndGoing) {
    ChangeSource q = Ordner(ordner);
    ASSERT_TRUE(q);
    EXPECT_TRUE(Still(q)) << "nothing changed yet";
    const struct {
        const char* was;
        std::function<void()> ändern;
    } fälle[] = {
        {"a file made", [&] { ASSERT_TRUE(p.files.WriteAll(Pfad("neu.exe"), "MZ")); }},
        {"its size changed", [&] { ASSERT_TRUE(p.files.Append(Pfad("neu.exe"), "mehr")); }},
        {"a folder made", [&] { ASSERT_TRUE(p.files.MakeDirectory(Pfad("unter"))); }},
        {"the file deleted", [&] { ASSERT_EQ(p.files.Delete(Pfad("neu.exe")), 0); }},
    };
    for (const auto& f : fälle) {
        f.ändern();
        EXPECT_TRUE(Feuert(q)) << f.was;
        // One change of a file may come as more than one notification (made, then
        // written): what trails it is taken, and then the source must be quiet.
        p.system.Sleep(300);
        c.Fired(q.Get());
        EXPECT_TRUE(Still(q)) << f.was << ": went on firing";
    }
}

// The look between ticks: many sources at once (more than one wait can take), the position
// of the one that fired, and what it sees is still there for the ask.
TEST_F(Änderungen, OneLookAtManySources_NamesTheFirstThatFired_AndTakesNothingBack) {
    Wert(kTestSchlüssel + std::string("\\Kind"), "a");
    std::vector<ChangeSource> quellen;
    std::vector<std::uintptr_t> alle;
    for (int i = 0; i < 70; ++i) {
        ChangeSource q;
        ASSERT_EQ(c.WatchKey(kHkeyCurrentUser, kTestSchlüssel + std::string("\\Kind"), kKeyRead, false, &q),
                  kErrorSuccess);
        alle.push_back(q.Get());
        quellen.push_back(std::move(q));
    }
    ChangeSource ordnerQuelle = Ordner(ordner);
    ASSERT_TRUE(ordnerQuelle);
    alle.push_back(ordnerQuelle.Get());
    ChangeSource letzte = Schlüssel(false);  // the 72nd, past the first wait's 64
    alle.push_back(letzte.Get());
    using Stelle = std::optional<std::size_t>;
    EXPECT_EQ(c.FirstFired(alle), Stelle());
    Wert(kTestSchlüssel, "b");
    EXPECT_EQ(c.FirstFired(alle), Stelle(71)) << "the position in the whole list, past the first wait's";
    EXPECT_EQ(c.FirstFired(std::span(alle).subspan(60)), Stelle(11)) << "the look took the notification back";
    EXPECT_TRUE(c.Fired(letzte.Get()));
    EXPECT_EQ(c.FirstFired(alle), Stelle()) << "the ask took it";

    ASSERT_TRUE(p.files.WriteAll(Pfad("neu.exe"), "MZ"));
    bool gesehen = false;
    for (int ms = 0; ms <= kWarteMs && !gesehen; ms += 20) {
        gesehen = c.FirstFired(alle).has_value();
        if (!gesehen) p.system.Sleep(20);
    }
    EXPECT_TRUE(gesehen) << "a folder's notification";
    EXPECT_EQ(c.FirstFired(alle), Stelle(70)) << "the look took the folder's notification back";
    EXPECT_TRUE(c.Fired(ordnerQuelle.Get()));
}

TEST_F(Änderungen, ASourceWhoseKeyWasDeletedFiresAtEveryAsk) {
    Wert(kTestSchlüssel, "a");
    ChangeSource q = Schlüssel(false);
    ASSERT_TRUE(q);
    Löschen(kTestSchlüssel);
    EXPECT_TRUE(Feuert(q));
    // Its place must be walked from now on: nothing can tell of a key made anew there.
    EXPECT_TRUE(c.Fired(q.Get()));
    EXPECT_TRUE(c.Fired(q.Get()));
    EXPECT_FALSE(c.Imprint(q.Get(), 0));
}

}  // namespace
}  // namespace kes::vertrag

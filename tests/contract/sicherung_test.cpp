// A backup of registry data and of files, and its restore, give back the same bytes: run
// against the fake natively and against the real registry and disk under Wine.
#include <gtest/gtest.h>

#include "platform/reg_datei.h"
#include "platform/sicherung.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

using namespace std::string_literals;

const std::string kWurzel = std::string("HKEY_CURRENT_USER\\") + kTestSchlüssel;

class Sicherungen : public ImOrdner {
protected:
    Plattform& p = DieUmgebung().Alles();
    RegistryApi& r = p.registry;

    void SetUp() override {
        Weg(kTestSchlüssel);
        ASSERT_TRUE(p.files.MakeDirectory(ordner + "\\daten"));
    }
    void TearDown() override { Weg(kTestSchlüssel); }
    void Weg(const std::string& pfad) {
        {
            RegKey k;
            if (r.OpenKeyEx(kHkeyCurrentUser, pfad, kKeyAllAccess, &k) != kErrorSuccess) return;
            char name[256];
            for (std::uint32_t l = sizeof name; r.EnumKeyEx(k.Get(), 0, name, &l) == kErrorSuccess; l = sizeof name)
                Weg(pfad + "\\" + std::string(name, l));
        }
        r.DeleteKey(kHkeyCurrentUser, pfad, kAnsichtNativ);
    }
    void Setzen(const std::string& unter, const std::string& name, std::uint32_t typ, const std::string& daten) {
        const std::string pfad = unter.empty() ? kTestSchlüssel : std::string(kTestSchlüssel) + "\\" + unter;
        RegKey k;
        ASSERT_EQ(r.CreateKeyEx(kHkeyCurrentUser, pfad, kKeyAllAccess, &k), kErrorSuccess);
        ASSERT_EQ(r.SetValueEx(k.Get(), name.c_str(), typ, reinterpret_cast<const std::uint8_t*>(daten.data()),
                               static_cast<std::uint32_t>(daten.size())),
                  kErrorSuccess);
    }
    std::string Programmordner() const { return ordner + "\\"; }
};

// Every kind of value the program may remove, in a tree, saved, removed and put back.
TEST_F(Sicherungen, AKeyTreeComesBackByteForByte) {
    const std::string lang(700, 'x');  // past the first buffer of the walk
    Setzen("", "", kRegSz, "Vorgabe\0"s);
    Setzen("", "Zitat \"x\" C:\\y", kRegSz, "C:\\Pfad mit \"Zeichen\" und ä\0"s);
    Setzen("", "ohne Null", kRegSz, "kein Ende");
    Setzen("", "zeilen", kRegSz, "a\r\nb\0"s);
    Setzen("", "expand", kRegExpandSz, "%SystemRoot%\\x.dll\0"s);
    Setzen("", "zahl", kRegDword, "\x01\x02\x03\x04"s);
    Setzen("", "bytes", kRegBinary, std::string("\x00\xff\x10", 3));
    Setzen("", "multi", kRegMultiSz, "a\0b\0\0"s);
    Setzen("", "lang", kRegSz, lang + '\0');
    Setzen("Unter\\Tief", "t", kRegSz, "tief\0"s);
    Setzen("Leer", "", kRegNone, "");
    const auto vorher = RegBaumLesen(r, kHkeyCurrentUser, kTestSchlüssel);
    ASSERT_EQ(vorher.size(), 4u);

    Sicherung s(p, Programmordner());
    s.Schlüssel(kHkeyCurrentUser, kTestSchlüssel);
    const auto name = s.Schreiben();
    ASSERT_TRUE(name && !name->empty());
    EXPECT_NE(Wiederherstellen(p, Programmordner(), *name, "", false), "") << "the key stands: no overwrite";

    Weg(kTestSchlüssel);
    EXPECT_EQ(Wiederherstellen(p, Programmordner(), *name, "", false), "");
    const auto nachher = RegBaumLesen(r, kHkeyCurrentUser, kTestSchlüssel);
    ASSERT_EQ(nachher.size(), vorher.size());
    for (std::size_t i = 0; i < vorher.size(); ++i) {
        EXPECT_EQ(nachher[i].pfad, vorher[i].pfad);
        ASSERT_EQ(nachher[i].werte.size(), vorher[i].werte.size()) << vorher[i].pfad;
        for (std::size_t j = 0; j < vorher[i].werte.size(); ++j) {
            EXPECT_EQ(nachher[i].werte[j].name, vorher[i].werte[j].name);
            EXPECT_EQ(nachher[i].werte[j].typ, vorher[i].werte[j].typ) << vorher[i].werte[j].name;
            EXPECT_EQ(nachher[i].werte[j].daten, vorher[i].werte[j].daten) << vorher[i].werte[j].name;
        }
    }
}

TEST_F(Sicherungen, OneValueIsSavedAloneAndAMissingOneNeedsNoBackup) {
    Setzen("", "Run", kRegSz, "C:\\a.exe /x\0"s);
    Setzen("", "Nachbar", kRegSz, "bleibt\0"s);
    Sicherung s(p, Programmordner());
    s.Wert(kHkeyCurrentUser, kTestSchlüssel, "Run");
    const auto name = s.Schreiben();
    ASSERT_TRUE(name && !name->empty());
    const auto text = p.files.ReadAll(s.Ordner() + *name);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find("Nachbar"), std::string::npos);
    EXPECT_NE(text->find("\"Run\"=\"C:\\\\a.exe /x\""), std::string::npos) << *text;

    Sicherung leer(p, Programmordner());
    leer.Wert(kHkeyCurrentUser, kTestSchlüssel, "fehlt");
    leer.Schlüssel(kHkeyCurrentUser, std::string(kTestSchlüssel) + "\\fehlt");
    EXPECT_EQ(leer.Schreiben(), std::string());
}

TEST_F(Sicherungen, AFileComesBackExactAndTwoBackupsNeverShareAName) {
    const std::string datei = Pfad("böse.exe");
    const std::string inhalt("MZ\0\x90\r\n\x1a", 7);
    ASSERT_TRUE(p.files.WriteAll(datei, inhalt));
    std::string namen[2];
    for (std::string& n : namen) {
        Sicherung s(p, Programmordner());
        s.Datei(datei);
        const auto name = s.Schreiben();
        ASSERT_TRUE(name && !name->empty());
        n = *name;
    }
    EXPECT_NE(namen[0], namen[1]);
    ASSERT_EQ(p.files.Delete(datei), 0);
    EXPECT_EQ(Wiederherstellen(p, Programmordner(), namen[0], datei, false), "");
    EXPECT_EQ(p.files.ReadAll(datei), inhalt);
    EXPECT_NE(Wiederherstellen(p, Programmordner(), namen[1], datei, false), "") << "the file stands again";
    EXPECT_EQ(Wiederherstellen(p, Programmordner(), namen[1], datei, true), "");
}

// A backup folder that cannot be made: the backup fails and leaves nothing behind.
TEST_F(Sicherungen, ABackupThatCannotBeWrittenFails) {
    ASSERT_TRUE(p.files.WriteAll(ordner + "\\daten\\Sicherung", "eine Datei, kein Ordner"));
    Setzen("", "Run", kRegSz, "x\0"s);
    Sicherung s(p, Programmordner());
    s.Wert(kHkeyCurrentUser, kTestSchlüssel, "Run");
    EXPECT_EQ(s.Schreiben(), std::nullopt);
    const std::string datei = Pfad("gesperrt.exe");
    ASSERT_TRUE(p.files.WriteAll(datei, "MZ"));
    DieUmgebung().Sperren(datei);
    Sicherung f(p, Programmordner());
    f.Datei(datei);
    EXPECT_EQ(f.Schreiben(), std::nullopt);
    DieUmgebung().Freigeben(datei);
}

}  // namespace
}  // namespace kes::vertrag

// The file seam's contract, run against the fake natively and against Win32 under Wine.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Dateien : public ImOrdner {
protected:
    FileApi& f = DieUmgebung().Files();

    std::map<std::string, std::uint32_t> Suche(const std::string& muster) {
        std::map<std::string, std::uint32_t> treffer;
        FindData fd;
        const FileFind h = f.FindFirst(ordner + "\\" + muster, &fd);
        if (!h) return treffer;
        do {
            treffer[fd.name] = fd.attributes;
        } while (f.FindNext(h.Get(), &fd));
        return treffer;
    }
};

TEST_F(Dateien, MissingFile_CannotBeReadAndHasNoLengthOrAttributes) {
    EXPECT_FALSE(f.CanRead(Pfad("fehlt.txt")));
    EXPECT_FALSE(f.ReadAll(Pfad("fehlt.txt")).has_value());
    EXPECT_FALSE(f.Length(Pfad("fehlt.txt")).has_value());
    EXPECT_EQ(f.GetAttributes(Pfad("fehlt.txt")), kInvalidAttributes);
    EXPECT_EQ(f.Delete(Pfad("fehlt.txt")), 2);
    EXPECT_EQ(f.Delete(Pfad("fehlt\\fehlt.txt")), 3) << "the folder is missing too";
}

TEST_F(Dateien, WrittenBytes_ComeBackUnchangedUnderAnyCaseOfTheName) {
    const std::string daten =
        "Zeile 1\r\nGr\xF6\xDF"
        "e \xC4\r\n\r\nEnde ohne Zeilenende";
    ASSERT_TRUE(f.WriteAll(Pfad("Liste.txt"), daten));
    EXPECT_EQ(f.ReadAll(Pfad("LISTE.TXT")).value_or(""), daten);
    EXPECT_EQ(f.Length(Pfad("liste.txt")).value_or(-1), static_cast<std::int64_t>(daten.size()));
    ASSERT_TRUE(f.WriteAll(Pfad("liste.txt"), "kurz"));
    EXPECT_EQ(f.ReadAll(Pfad("Liste.txt")).value_or(""), "kurz");
}

TEST_F(Dateien, Append_CreatesThenExtends) {
    ASSERT_TRUE(f.Append(Pfad("log.txt"), "a\r\n"));
    ASSERT_TRUE(f.Append(Pfad("log.txt"), "b\r\n"));
    EXPECT_EQ(f.ReadAll(Pfad("log.txt")).value_or(""), "a\r\nb\r\n");
}

TEST_F(Dateien, WriteIntoMissingFolder_Fails) {
    EXPECT_FALSE(f.WriteAll(Pfad("nicht\\da.txt"), "x"));
    EXPECT_TRUE(f.MakeDirectory(Pfad("nicht")));
    EXPECT_TRUE(f.WriteAll(Pfad("nicht\\da.txt"), "x"));
    EXPECT_EQ(f.GetAttributes(Pfad("nicht")) & kAttrDirectory, kAttrDirectory);
    EXPECT_FALSE(f.Length(Pfad("nicht")).has_value());
}

TEST_F(Dateien, LockedFile_CountsAsUnreadableAndCannotBeDeletedOrWritten) {
    ASSERT_TRUE(f.WriteAll(Pfad("gesperrt.txt"), "123"));
    DieUmgebung().Sperren(Pfad("gesperrt.txt"));
    EXPECT_FALSE(f.CanRead(Pfad("gesperrt.txt")));
    EXPECT_FALSE(f.ReadAll(Pfad("gesperrt.txt")).has_value());
    EXPECT_FALSE(f.WriteAll(Pfad("gesperrt.txt"), "neu"));
    EXPECT_EQ(f.Delete(Pfad("gesperrt.txt")), 32);
    DieUmgebung().Freigeben(Pfad("gesperrt.txt"));
    EXPECT_EQ(f.ReadAll(Pfad("gesperrt.txt")).value_or(""), "123");
}

// The hosts watcher measures through this call: a hosts file held open without sharing by
// another program must count as missing (size 0), not give its size behind the lock.
TEST_F(Dateien, LockedFile_HasNoLengthUntilTheOtherHandleCloses) {
    ASSERT_TRUE(f.WriteAll(Pfad("hosts"), std::string(734, 'h')));
    DieUmgebung().Sperren(Pfad("hosts"));
    EXPECT_FALSE(f.Length(Pfad("hosts")).has_value());
    EXPECT_EQ(f.GetAttributes(Pfad("hosts")) & kAttrDirectory, 0u) << "the file itself is still there";
    DieUmgebung().Freigeben(Pfad("hosts"));
    EXPECT_EQ(f.Length(Pfad("hosts")).value_or(-1), 734);
}

TEST_F(Dateien, ReadOnlyFile_RefusesDeleteUntilAttributesAreCleared) {
    ASSERT_TRUE(f.WriteAll(Pfad("nurlesen.txt"), "x"));
    ASSERT_TRUE(f.SetAttributes(Pfad("nurlesen.txt"), kAttrReadOnly));
    EXPECT_EQ(f.GetAttributes(Pfad("nurlesen.txt")) & kAttrReadOnly, kAttrReadOnly);
    EXPECT_EQ(f.Delete(Pfad("nurlesen.txt")), 5);
    EXPECT_TRUE(f.SetAttributes(Pfad("nurlesen.txt"), kAttrNormal));
    EXPECT_EQ(f.Delete(Pfad("nurlesen.txt")), 0);
    EXPECT_FALSE(f.CanRead(Pfad("nurlesen.txt")));
}

TEST_F(Dateien, FindWalk_ListsDotsHiddenAndSystemFilesAndSubfolders) {
    ASSERT_TRUE(f.WriteAll(Pfad("normal.txt"), "n"));
    ASSERT_TRUE(f.WriteAll(Pfad("versteckt.txt"), "v"));
    ASSERT_TRUE(f.SetAttributes(Pfad("versteckt.txt"), kAttrHidden));
    ASSERT_TRUE(f.WriteAll(Pfad("system.sys"), "s"));
    ASSERT_TRUE(f.SetAttributes(Pfad("system.sys"), kAttrSystem | kAttrHidden));
    ASSERT_TRUE(f.MakeDirectory(Pfad("unter")));

    const auto alle = Suche("*.*");
    ASSERT_EQ(alle.size(), 6u);
    EXPECT_TRUE(alle.count(".") && alle.count(".."));
    EXPECT_EQ(alle.at("versteckt.txt") & kAttrHidden, kAttrHidden);
    EXPECT_EQ(alle.at("system.sys") & (kAttrSystem | kAttrHidden), kAttrSystem | kAttrHidden);
    EXPECT_EQ(alle.at("unter") & kAttrDirectory, kAttrDirectory);
    EXPECT_EQ(alle.at("normal.txt") & (kAttrHidden | kAttrSystem | kAttrDirectory), 0u);

    const auto txt = Suche("*.txt");
    EXPECT_EQ(txt.size(), 2u);
    EXPECT_TRUE(txt.count("normal.txt") && txt.count("versteckt.txt"));
    EXPECT_EQ(Suche("NORMAL.TXT").size(), 1u);
    EXPECT_TRUE(Suche("*.dll").empty());
}

TEST_F(Dateien, FindInMissingFolder_GivesNoHandle) {
    FindData fd;
    EXPECT_FALSE(f.FindFirst(Pfad("fehlt\\*.*"), &fd));
}

TEST_F(Dateien, FindData_CarriesSizeAndTimes) {
    ASSERT_TRUE(f.WriteAll(Pfad("gross.bin"), std::string(5000, 'x')));
    FindData fd;
    ASSERT_TRUE(f.FindFirst(Pfad("gross.bin"), &fd));
    EXPECT_EQ(fd.name, "gross.bin");
    EXPECT_EQ(fd.size, 5000u);
    EXPECT_NE(fd.lastWriteTime, 0u);
}

}  // namespace
}  // namespace kes::vertrag

// The folder of a 64-bit Windows where 32-bit programs keep their system files, run against
// the fake natively and against Win32 under Wine (a 64-bit prefix): its name, and that this
// 64-bit process sees it as it is, not redirected to the system folder.
#include <gtest/gtest.h>

#include <string>

#include "common/text.h"
#include "platform/alledateien.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

class SysWow64 : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());
    const std::string ordner = p.system.Wow64SystemDirectory();
    const std::string datei = ordner + "\\KestrellaVertrag.dll";
    void TearDown() override { p.files.Delete(datei); }
};

TEST_F(SysWow64, NamedWithoutTrailingBackslash) {
    EXPECT_TRUE(GleichOhneFall(ordner, "C:\\windows\\syswow64")) << ordner;
}

TEST_F(SysWow64, FileWrittenThere_FoundThereByTheWalk_AndNotInTheSystemFolder) {
    ASSERT_FALSE(ordner.empty());
    // A Wine without its 32-bit part names the folder but does not make it.
    p.files.MakeDirectory(ordner);
    const std::uint32_t attribute = p.files.GetAttributes(ordner);
    ASSERT_TRUE(attribute != kInvalidAttributes && (attribute & kAttrDirectory));
    ASSERT_TRUE(p.files.WriteAll(datei, "MZ"));
    std::vector<DateiEintrag> dateien;
    DateienSuchen(p, ordner, false, "*.*", dateien);
    bool gefunden = false;
    for (const DateiEintrag& d : dateien) gefunden = gefunden || d.Name == "KestrellaVertrag.dll";
    EXPECT_TRUE(gefunden);
    EXPECT_EQ(p.files.GetAttributes("C:\\windows\\system32\\KestrellaVertrag.dll"), kInvalidAttributes);
}

}  // namespace
}  // namespace kes::vertrag

// Every test that runs on the fake platform ends with none of its handles open: a key, a
// find walk, a snapshot or a process left open when the bundle goes fails that test.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "fake_plattform.h"

namespace kes::test {
namespace {

const bool kWacheGesetzt = [] {
    fake::beiOffenenHandles = [](const std::string& text) { ADD_FAILURE() << text; };
    return true;
}();

TEST(OffeneHandles, OpenOwnersAreCounted_TheCheckFailsWhileTheyAreOpen_AndTheirEndClosesThem) {
    fake::FakePlattform fp;
    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\Offen");
    {
        RegKey k;
        ASSERT_EQ(fp.registry.OpenKeyEx(kHkeyCurrentUser, "Software\\Offen", kKeyRead, &k), kErrorSuccess);
        FindData fd;
        FindRecord fr;
        const FileFind f = fp.files.FindFirst("C:\\WINDOWS\\*.*", &fd);
        const DetailFind d = fp.details.FindFirst("C:\\WINDOWS\\*.*", &fr);
        const ProzessEigner s = fp.processes.CreateSnapshot(kSnapAll, 0);
        EXPECT_NONFATAL_FAILURE(fp.HandlesPrüfen("at the end"),
                                "handles open at the end: 1 registry keys, 2 find walks, 1 snapshots or processes");
        EXPECT_EQ(k.Close(), kErrorSuccess);
        EXPECT_EQ(k.Close(), kKeinHandleZuSchliessen) << "closed once";
        EXPECT_EQ(fp.OffeneHandles(), 3);
    }
    EXPECT_EQ(fp.OffeneHandles(), 0);
}

}  // namespace
}  // namespace kes::test

// When a process was created, over the seam: the process watcher tells a process from a
// later one under the same id by it. Run against the fakes natively and against Win32
// under Wine.
#include <gtest/gtest.h>

#include "platform/prozesse1.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

class ProzessZeit : public ImOrdner {
protected:
    Plattform& p = DieUmgebung().Alles();
    std::uint64_t Erstellt(std::int32_t processId, std::uint32_t recht) {
        const ProzessEigner h = p.processes.OpenProcess(recht, static_cast<std::uint32_t>(processId));
        return h ? p.processes.CreationTime(h.Get()) : 0;
    }
};

TEST_F(ProzessZeit, CreationTime_OneAProcessAtEveryOpening_NoneWithoutAQueryRight) {
    Prozesse1 tabelle(p);
    tabelle.ProzesseHolen();
    constexpr std::uint64_t k2000 = 125911584000000000, k2100 = 157469184000000000;
    int gelesen = 0;
    for (const ProcessRecord& r : tabelle.Prozesse) {
        const std::uint64_t zeit = Erstellt(r.ProcessId, kProcessQueryInformation);
        if (zeit == 0) continue;
        ++gelesen;
        EXPECT_TRUE(zeit > k2000 && zeit < k2100) << r.Name << ": " << zeit;
        EXPECT_EQ(Erstellt(r.ProcessId, kProcessQueryInformation), zeit) << r.Name;
        EXPECT_EQ(Erstellt(r.ProcessId, kProcessTerminate), 0u) << r.Name << ": a handle without a query right";
    }
    EXPECT_GT(gelesen, 0);
    EXPECT_EQ(p.processes.CreationTime(kKeinHandle), 0u);
}

}  // namespace
}  // namespace kes::vertrag

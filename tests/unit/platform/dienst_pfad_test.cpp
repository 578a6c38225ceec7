// The file of a service from the forms its ImagePath takes on real machines.
#include <gtest/gtest.h>

#include "fake_plattform.h"
#include "platform/dienst_pfad.h"

namespace kes::test {
namespace {

class DienstPfadTest : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    std::string Pfad(const std::string& imagePath, const std::string& serviceDll = "") {
        return DienstPfad(fp.plattform, imagePath, serviceDll, "C:\\WINDOWS", "C:\\WINDOWS\\system32");
    }
};

TEST_F(DienstPfadTest, RegistryForms_BecomeTheFileTheServiceRuns) {
    fp.files.Put("C:\\WINDOWS\\system32\\drivers\\da.sys", "MZ");
    fp.files.Put("C:\\WINDOWS\\system32\\nurhier.exe", "MZ");
    fp.files.Put("C:\\WINDOWS\\imwin.exe", "MZ");
    const struct {
        const char* imagePath;
        const char* serviceDll;
        const char* erwartet;
    } fälle[] = {
        {"\"C:\\Programme\\Tool\\Tool.exe\" /service", "", "c:\\programme\\tool\\tool.exe"},
        {"\"C:\\Programme\\Tool\\Tool.exe\"", "", "c:\\programme\\tool\\tool.exe"},
        {"C:\\Programme\\Tool\\Tool.exe /service", "", "c:\\programme\\tool\\tool.exe /service"},
        {"%SystemRoot%\\System32\\Dienst.exe", "", "C:\\WINDOWS\\system32\\dienst.exe"},
        {"\\SystemRoot\\System32\\drivers\\x.sys", "", "C:\\WINDOWS\\system32\\drivers\\x.sys"},
        {"System32\\drivers\\x.sys", "", "C:\\WINDOWS\\system32\\drivers\\x.sys"},
        {"\\??\\C:\\WINDOWS\\system32\\drivers\\da.sys", "", "c:\\windows\\system32\\drivers\\da.sys"},
        {"\\??\\C:\\WINDOWS\\system32\\drivers\\weg.sys", "", "\\??\\c:\\windows\\system32\\drivers\\weg.sys"},
        {"C:\\WINDOWS\\system32\\svchost.exe -k netsvcs", "%SystemRoot%\\System32\\wuauserv.dll",
         "C:\\WINDOWS\\system32\\wuauserv.dll"},
        {"nurhier.exe", "", "C:\\WINDOWS\\system32\\nurhier.exe"},
        {"ImWin.exe", "", "C:\\WINDOWS\\imwin.exe"},
        {"fehlt.exe", "", "fehlt.exe"},
    };
    for (const auto& f : fälle) EXPECT_EQ(Pfad(f.imagePath, f.serviceDll), f.erwartet) << f.imagePath;
}

}  // namespace
}  // namespace kes::test

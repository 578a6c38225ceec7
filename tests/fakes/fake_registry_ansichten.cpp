// The 32-bit view of a 64-bit machine as a fresh Wine 8.0 prefix lays it out: the 32-bit
// keys below HKLM\Software\Wow6432Node, the 32-bit COM registrations below
// HKLM\Software\Classes\Wow6432Node, and links there for the keys both views share.
// HKEY_CURRENT_USER, HKEY_USERS and HKLM\System have no Wow6432Node: both views are one.
#include "fake_registry.h"

namespace kes::fake {

namespace {
// Below HKLM\Software: the keys a 32-bit program shares with the 64-bit ones.
constexpr const char* kGeteilt[] = {
    "Policies",
    "Registered Applications",
    "Microsoft\\Clients",
    "Microsoft\\Cryptography\\Calais\\Current",
    "Microsoft\\Cryptography\\Calais\\Readers",
    "Microsoft\\Cryptography\\Services",
    "Microsoft\\CTF\\SystemShared",
    "Microsoft\\CTF\\TIP",
    "Microsoft\\DFS",
    "Microsoft\\Driver Signing",
    "Microsoft\\EnterpriseCertificates",
    "Microsoft\\EventSystem",
    "Microsoft\\MSMQ",
    "Microsoft\\Non-Driver Signing",
    "Microsoft\\Notepad\\DefaultFonts",
    "Microsoft\\OLE",
    "Microsoft\\RAS",
    "Microsoft\\RPC",
    "Microsoft\\SystemCertificates",
    "Microsoft\\TermServLicensing",
    "Microsoft\\Transaction Server",
    "Microsoft\\Windows\\CurrentVersion\\App Paths",
    "Microsoft\\Windows\\CurrentVersion\\Control Panel\\Cursors\\Schemes",
    "Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers",
    "Microsoft\\Windows\\CurrentVersion\\Explorer\\DriveIcons",
    "Microsoft\\Windows\\CurrentVersion\\Explorer\\KindMap",
    "Microsoft\\Windows\\CurrentVersion\\Group Policy",
    "Microsoft\\Windows\\CurrentVersion\\Policies",
    "Microsoft\\Windows\\CurrentVersion\\PreviewHandlers",
    "Microsoft\\Windows\\CurrentVersion\\Setup",
    "Microsoft\\Windows\\CurrentVersion\\Telephony\\Locations",
    "Microsoft\\Windows NT\\CurrentVersion\\Console",
    "Microsoft\\Windows NT\\CurrentVersion\\FontDpi",
    "Microsoft\\Windows NT\\CurrentVersion\\FontLink",
    "Microsoft\\Windows NT\\CurrentVersion\\FontMapper",
    "Microsoft\\Windows NT\\CurrentVersion\\Fonts",
    "Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes",
    "Microsoft\\Windows NT\\CurrentVersion\\Gre_Initialize",
    "Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options",
    "Microsoft\\Windows NT\\CurrentVersion\\LanguagePack",
    "Microsoft\\Windows NT\\CurrentVersion\\NetworkCards",
    "Microsoft\\Windows NT\\CurrentVersion\\Perflib",
    "Microsoft\\Windows NT\\CurrentVersion\\Ports",
    "Microsoft\\Windows NT\\CurrentVersion\\Print",
    "Microsoft\\Windows NT\\CurrentVersion\\ProfileList",
    "Microsoft\\Windows NT\\CurrentVersion\\Time Zones",
};
// Below HKLM\Software\Classes: the 32-bit classes hold these keys of their own, and share
// the second list; a 32-bit program sees no other class (Windows shares the rest).
constexpr const char* kEigeneKlassen[] = {"CLSID", "DirectShow", "Interface", "Media Type", "MediaFoundation"};
constexpr const char* kGeteilteKlassen[] = {"AppId", "Protocols", "TypeLib"};
}  // namespace

void FakeRegistry::Verweis(const std::string& pfad, const std::string& ziel) {
    const auto hklm = wurzeln_[kHkeyLocalMachine];
    Gehe(hklm, ziel, false, true);
    Gehe(hklm, pfad, false, true)->verweis = ziel;
}

void FakeRegistry::ZweiteAnsichtAnlegen() {
    const std::string software = "Software\\", wow = "Software\\Wow6432Node\\";
    const std::string klassen = "Software\\Classes\\", wowKlassen = "Software\\Classes\\Wow6432Node\\";
    for (const char* k : kEigeneKlassen) Gehe(wurzeln_[kHkeyLocalMachine], wowKlassen + k, false, true);
    for (const char* k : kGeteilteKlassen) Verweis(wowKlassen + k, klassen + k);
    Verweis(wow + "Classes", "Software\\Classes\\Wow6432Node");
    for (const char* k : kGeteilt) Verweis(wow + k, software + k);
}

}  // namespace kes::fake

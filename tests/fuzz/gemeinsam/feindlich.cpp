#include "feindlich.h"

#include "common/text.h"
#include "core/property_bag.h"
#include "core/starten.h"
#include "panel/alarm.h"
#include "warning/form3.h"
#include "watchers/startseiten_tabelle.h"

namespace kes::fuzz {

namespace {
const char* const kOrte[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
};
const char* const kWurzeln[] = {"HKEY_CURRENT_USER\\", "HKEY_LOCAL_MACHINE\\", "HKEY_USERS\\.DEFAULT\\",
                                "HKEY_USERS\\S-1-5-21-9-9-9-1001\\"};
const std::string kHklm = "HKEY_LOCAL_MACHINE\\";
const std::string kHkcu = "HKEY_CURRENT_USER\\";
const std::string kBho = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string kSsodl = "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
const std::string kSts = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
const std::string kHooks = "Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
const std::string kDienste = "SYSTEM\\CurrentControlSet\\Services";
const std::string kDomains = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
const std::string kSperren = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
const char* const kBefehle[] = {"HKEY_CLASSES_ROOT\\exefile\\shell\\open\\command",
                                "HKEY_CLASSES_ROOT\\batfile\\shell\\open\\command",
                                "HKEY_LOCAL_MACHINE\\Software\\CLASSES\\piffile\\shell\\open\\command",
                                "HKEY_CLASSES_ROOT\\htafile\\Shell\\Open\\Command"};
constexpr std::uint32_t kRegQword = 11;

std::size_t Länge(FuzzedDataProvider& d) {
    switch (d.ConsumeIntegralInRange(0, 12)) {
        case 0:
            return 0;
        case 1:
            return 254;
        case 2:
            return 255;
        case 3:
            return 256;
        case 4:
            return 257;
        case 5:
            return 2000;
        case 6:
            return 2001;
        default:
            return d.ConsumeIntegralInRange<std::size_t>(1, 40);
    }
}

std::string Auffüllen(FuzzedDataProvider& d, std::string s, std::size_t länge) {
    const char füller = s.empty() ? 'A' : s.back();
    s.resize(länge, füller);
    return s;
}

std::uint32_t Typ(FuzzedDataProvider& d) {
    static const std::uint32_t kTypen[] = {kRegSz,   kRegSz, kRegExpandSz, kRegMultiSz, kRegBinary, kRegDword, 11,
                                           kRegNone, 5 /* big endian */};
    if (d.ConsumeIntegralInRange(0, 20) == 0) return d.ConsumeIntegral<std::uint32_t>();
    return kTypen[d.ConsumeIntegralInRange<std::size_t>(0, std::size(kTypen) - 1)];
}

// Data of a value of that type: strings end in NUL mostly, numbers have their size mostly.
std::string Daten(FuzzedDataProvider& d, std::uint32_t typ) {
    if ((typ == kRegDword || typ == kRegQword) && d.ConsumeBool())
        return Auffüllen(d, d.ConsumeBytesAsString(typ == kRegDword ? 4 : 8), typ == kRegDword ? 4 : 8);
    std::string s = d.ConsumeBool() ? FeindlicherName(d) : FeindlicheBytes(d);
    if ((typ == kRegSz || typ == kRegExpandSz || typ == kRegMultiSz) && d.ConsumeBool()) s.push_back('\0');
    if (typ == kRegMultiSz && d.ConsumeBool()) s.push_back('\0');
    return s;
}

void Wert(fake::FakeRegistry& reg, FuzzedDataProvider& d, const std::string& schlüssel, const std::string& name) {
    const std::uint32_t typ = Typ(d);
    reg.SetRaw(schlüssel, name, typ, Daten(d, typ));
}

void Server(fake::FakeRegistry& reg, FuzzedDataProvider& d, const std::string& klasse) {
    if (d.ConsumeIntegralInRange(0, 3) == 0) return;  // a class without a server is passed over
    const std::string pfad = d.ConsumeBool() ? "C:\\WINDOWS\\system32\\x.dll" : FeindlicherName(d);
    reg.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + klasse + "\\InprocServer32", "", pfad);
}
}  // namespace

std::string FeindlicheBytes(FuzzedDataProvider& d) {
    const std::size_t länge = Länge(d);
    return Auffüllen(d, d.ConsumeBytesAsString(länge), länge);
}

std::string FeindlicherName(FuzzedDataProvider& d) {
    static const char kZeichen[] = "abcXYZ019 ,;\"'\\/{}-=[]#%.:\t\x80\xe4\xdf";
    const std::size_t länge = Länge(d);
    std::string s;
    for (std::size_t i = 0; i < länge && d.remaining_bytes() > 0; ++i) {
        const auto b = d.ConsumeIntegral<std::uint8_t>();
        s += b < 200 ? kZeichen[b % (sizeof kZeichen - 1)] : static_cast<char>(b == 255 ? 0 : b);
    }
    return Auffüllen(d, s, länge);
}

void RegistryFüllen(fake::FakeRegistry& reg, FuzzedDataProvider& d, int anzahl) {
    for (int i = 0; i < anzahl && d.remaining_bytes() > 0; ++i) {
        const std::string name = FeindlicherName(d);
        switch (d.ConsumeIntegralInRange(0, 10)) {
            case 0: {
                const char* wurzel = kWurzeln[d.ConsumeIntegralInRange(0, 3)];
                Wert(reg, d, wurzel + std::string(kOrte[d.ConsumeIntegralInRange(0, 4)]), name);
                break;
            }
            case 1:
                reg.SetRaw(kHklm + kBho + "\\" + name, "", kRegSz, Daten(d, kRegSz));
                Server(reg, d, name);
                break;
            case 2: {
                const std::string klasse = FeindlicherName(d);
                reg.SetString(kHklm + kSsodl, name, klasse);
                Server(reg, d, klasse);
                break;
            }
            case 3:
                Wert(reg, d, kHklm + kSts, name);
                Server(reg, d, name);
                break;
            case 4:
                Wert(reg, d, kHkcu + kHooks, name);
                Server(reg, d, name);
                break;
            case 5: {
                const std::string k = kHklm + kDienste + "\\" + name;
                Wert(reg, d, k, "ImagePath");
                if (d.ConsumeBool())
                    reg.SetDword(k, "Start", d.ConsumeIntegralInRange(0, 4));
                else
                    Wert(reg, d, k, "Start");
                for (const char* feld : {"DisplayName", "ObjectName", "Description"})
                    if (d.ConsumeBool()) Wert(reg, d, k, feld);
                if (d.ConsumeBool()) Wert(reg, d, k + "\\Parameters", "ServiceDll");
                break;
            }
            case 6:
                reg.MakeKey((d.ConsumeBool() ? kHklm : kHkcu) + kDomains + "\\" + name);
                break;
            case 7:
                Wert(reg, d, kHkcu + kSperren, d.ConsumeBool() ? "DisableRegistryTools" : "DisableTaskMgr");
                break;
            case 8:
                Wert(reg, d, kBefehle[d.ConsumeIntegralInRange(0, 3)], "");
                break;
            case 9: {
                const auto& z = kStartSeitenTabelle[d.ConsumeIntegralInRange<std::size_t>(0, 18)];
                Wert(reg, d, std::string(z.Wurzel) + "\\" + z.Schlüssel, z.Wert);
                break;
            }
            default:
                Wert(reg, d, kHkcu + "Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows", "run");
                break;
        }
    }
}

FuzzProgramm::FuzzProgramm(std::uint64_t boxAn, PropertyBag bag, const std::function<void(FuzzProgramm&)>& vorher) {
    // One bit of the mask a box: a box past the mask would never be switched on here.
    static_assert(kBoxAnzahl <= 64, "widen the fuzzers' box mask for the new box");
    for (int i = 1; i < kBoxAnzahl; ++i) bag.WriteProperty("Box" + std::to_string(i), std::int16_t((boxAn >> i) & 1));
    bag.WriteProperty("AnzeigeLöschen", true);
    dateien.Put(ordner + "kestrella.dat", bag.Contents());
    if (vorher) vorher(*this);
    Main(prg);
}

void FuzzProgramm::Tick() {
    fp.timers.Advance(5000);
    prg.Aufräumen();
}

bool FuzzProgramm::Antworten(int wahl) {
    if (!prg.Form3Geladen()) return false;
    Form3Fenster& f = prg.Form3();
    // The services' question is answered Yes, so that the command really starts.
    fp.dialogs.antworten = {kIdYes};
    const int knöpfe[] = {1, 3, 6, 4, 5, 8, 2, 9};
    f.Image_Click(knöpfe[wahl % 8]);
    prg.Aufräumen();
    fp.dialogs.antworten.clear();
    if (!prg.Form3Geladen()) return true;
    prg.Form3().Form_QueryUnload();
    prg.Form3Entladen();
    prg.Aufräumen();
    return false;
}

}  // namespace kes::fuzz

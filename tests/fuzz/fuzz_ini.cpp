// Ini files as GetPrivateProfileStringA reads them: any bytes as the file, any section and
// key asked for. A value never outgrows the buffer; a plain value written under a plain
// section and key reads back as written; and the
// loaders of the class lists and services take any such file.
#include <fuzzer/FuzzedDataProvider.h>

#include "feindlich.h"
#include "pruefen.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
const std::string kDatei = "C:\\Programme\\Kestrella\\daten\\bho.ini";

// What the platform keeps as it is: no line end, no NUL, no brackets or "=" in names, no
// blanks at the ends, no quotes around a value.
bool Schlicht(const std::string& s, bool name) {
    if (s.empty() && name) return false;
    for (char c : s) {
        if (c == '\r' || c == '\n' || c == '\0') return false;
        if (name && (c == '[' || c == ']' || c == '=' || c == ';')) return false;
    }
    if (!s.empty() && (s.front() == ' ' || s.front() == '\t' || s.back() == ' ' || s.back() == '\t')) return false;
    if (!s.empty() && (s.front() == '"' || s.front() == '\'')) return false;
    return true;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider d(data, size);
    const std::string abschnitt =
        d.ConsumeBool() ? std::to_string(d.ConsumeIntegralInRange(1, 300)) : d.ConsumeRandomLengthString(24);
    const std::string schlüssel = d.ConsumeBool() ? "Clisd" : d.ConsumeRandomLengthString(24);
    const std::string wert = d.ConsumeRandomLengthString(300);
    const int puffer = d.ConsumeIntegralInRange(0, 300);
    const std::string inhalt = d.ConsumeRemainingBytesAsString();

    fake::FakeFiles files;
    files.MakeDirs("C:\\Programme\\Kestrella\\daten");
    files.Put(kDatei, inhalt);
    IniDatei ini(files);
    const std::string gelesen = ini.GetString(abschnitt, schlüssel, "", kDatei, puffer);
    if (puffer > 0) Prüfen(static_cast<int>(gelesen.size()) <= puffer - 1, "a value longer than the buffer");
    for (int n = 1; n <= 3; ++n)
        for (const char* k : {"Pfad", "Clisd", "Name", "Dienst", "ImagePath"})
            Prüfen(ini.GetString(std::to_string(n), k, "", kDatei, 255).size() <= 254, "a value over 254 bytes");

    if (Schlicht(abschnitt, true) && Schlicht(schlüssel, true) && Schlicht(wert, false)) {
        ini.WriteString(abschnitt, schlüssel, wert, kDatei);
        Prüfen(ini.GetString(abschnitt, schlüssel, "", kDatei, 1000) == wert, "a written value reads back otherwise");
        ini.WriteString(abschnitt, schlüssel, std::nullopt, kDatei);
    }

    // The loaders of the class lists and of the services over the same bytes.
    fuzz::FuzzProgramm fp(0, {}, [&](fuzz::FuzzProgramm& f) {
        for (const char* name : {"bho.ini", "shellservice.ini", "taskscheduler.ini", "dienste.ini"})
            f.dateien.Put(f.Daten(name), inhalt);
    });
    return 0;
}

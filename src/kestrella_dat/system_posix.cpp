// The commands on Linux: there is a disk to read the journal from, but no registry to put
// a backup back into, so "restore" says where it can run.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "common/zeichensatz.h"
#include "kestrella_dat/befehle.h"

namespace kes::werkzeug {

namespace {

// The disk, read only. Paths come in the program's form (code page 1252, "\" between the
// parts) and go to the file system as UTF-8 with "/".
class Lesedateien : public FileApi {
public:
    std::optional<std::string> ReadAll(const std::string& path) override {
        if (!std::filesystem::is_regular_file(Pfad(path))) return std::nullopt;
        std::ifstream ein(Pfad(path), std::ios::binary);
        if (!ein) return std::nullopt;
        std::stringstream inhalt;
        inhalt << ein.rdbuf();
        if (ein.bad()) return std::nullopt;
        return inhalt.str();
    }
    bool CanRead(const std::string& path) override {
        return std::filesystem::is_regular_file(Pfad(path)) && std::ifstream(Pfad(path), std::ios::binary).good();
    }
    std::uint32_t GetAttributes(const std::string& path) override {
        std::error_code f;
        const auto s = std::filesystem::status(Pfad(path), f);
        if (f || !std::filesystem::exists(s)) return kInvalidAttributes;
        return std::filesystem::is_directory(s) ? kAttrDirectory : kAttrArchive;
    }
    std::optional<std::int64_t> Length(const std::string& path) override {
        std::error_code f;
        const auto n = std::filesystem::file_size(Pfad(path), f);
        if (f) return std::nullopt;
        return static_cast<std::int64_t>(n);
    }
    bool WriteAll(const std::string&, const std::string&) override { return false; }
    bool Append(const std::string&, const std::string&) override { return false; }
    bool MoveReplacing(const std::string&, const std::string&) override { return false; }
    long Delete(const std::string&) override { return 5; }  // ERROR_ACCESS_DENIED
    bool SetAttributes(const std::string&, std::uint32_t) override { return false; }
    bool MakeDirectory(const std::string&) override { return false; }
    FileFind FindFirst(const std::string&, FindData*) override { return {}; }
    bool FindNext(FindHandle, FindData*) override { return false; }

protected:
    void FindClose(FindHandle) override {}

private:
    static std::string Pfad(const std::string& path) {
        std::string p = zeichensatz::NachUtf8(path);
        for (char& c : p)
            if (c == '\\') c = '/';
        return p;
    }
};

}  // namespace

int AufDiesemSystem(const Aufruf& a, Ausgaben& o) {
    if (const auto* j = std::get_if<JournalAufruf>(&a)) {
        Lesedateien files;
        return JournalZeigen(files, *j, o);
    }
    const std::string text =
        "restore braucht die Registry von Windows, und dieser Build für Linux hat keine. Unter Windows "
        "oder Wine: kestrella-dat.exe restore ORDNER NR";
    o.fehler << "kestrella-dat: " << (o.utf8 ? zeichensatz::NachUtf8(text) : text) << '\n';
    return kFalscherAufruf;
}

}  // namespace kes::werkzeug

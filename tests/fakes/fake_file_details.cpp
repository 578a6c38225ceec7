#include "fake_file_details.h"

#include <cstdio>
#include <cstring>

#include "common/text.h"
#include "fake_processes.h"

namespace kes::fake {

namespace {
const std::string kKennung("FAKEVER", 8);  // with its NUL

std::string Schlüssel(const std::string& path) {
    return Klein(path);
}

std::string Dword(std::uint32_t v) {
    std::string b(4, '\0');
    for (int i = 0; i < 4; ++i) b[i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    return b;
}
}  // namespace

void FakeFileDetails::SetVersion(const std::string& path, FakeVersion version) {
    versionen_[Schlüssel(path)] = std::move(version);
    // A version resource changes only with a write of its file.
    files_.Berühren(path);
}

void FakeFileDetails::SetLength(const std::string& path, std::uint64_t länge) {
    längen_[Schlüssel(path)] = länge;
}

void FakeFileDetails::SetIcon(const std::string& path, int index) {
    icons_[Schlüssel(path)] = index;
}

FindRecord FakeFileDetails::Voll(const FindData& fd, const std::string& ordner) const {
    FindRecord r;
    r.name = fd.name;
    r.shortName = KurzForm(fd.name);
    r.attributes = fd.attributes;
    r.creationTime = fd.creationTime;
    r.lastAccessTime = fd.lastWriteTime;
    r.lastWriteTime = fd.lastWriteTime;
    std::uint64_t länge = fd.size;
    if (auto it = längen_.find(Schlüssel(ordner + "\\" + fd.name)); it != längen_.end()) länge = it->second;
    r.sizeLow = static_cast<std::uint32_t>(länge & 0xFFFFFFFFu);
    r.sizeHigh = static_cast<std::uint32_t>(länge >> 32);
    return r;
}

DetailFind FakeFileDetails::FindFirst(const std::string& pattern, FindRecord* out) {
    FindData fd;
    FileFind find = files_.FindFirst(pattern, &fd);
    if (!find) return {};
    const FindHandle h = find.Get();
    const std::string ordner = pattern.substr(0, pattern.find_last_of('\\'));
    walks_[h] = {std::move(find), ordner};
    *out = Voll(fd, ordner);
    return DetailFind(*this, h);
}

bool FakeFileDetails::FindNext(FindHandle h, FindRecord* out) {
    FindData fd;
    if (!files_.FindNext(h, &fd)) return false;
    *out = Voll(fd, walks_[h].ordner);
    return true;
}

void FakeFileDetails::FindClose(FindHandle h) {
    walks_.erase(h);
}

bool FakeFileDetails::IstDatei(const std::string& path) {
    return files_.Exists(path) && !(files_.GetAttributes(path) & kAttrDirectory);
}

std::uint32_t FakeFileDetails::VersionInfoSize(const std::string& path) {
    // The resource is read through a read-sharing open: a file held by someone else has none.
    if (!files_.CanRead(path) || !versionen_.count(Schlüssel(path))) return 0;
    return static_cast<std::uint32_t>(kKennung.size() + Schlüssel(path).size());
}

bool FakeFileDetails::VersionInfo(const std::string& path, std::uint32_t size, std::vector<std::uint8_t>* block) {
    const std::uint32_t nötig = VersionInfoSize(path);
    if (nötig == 0 || size < nötig) return false;
    ++versionsLesungen;
    const std::string inhalt = kKennung + Schlüssel(path);
    block->assign(inhalt.begin(), inhalt.end());
    block->resize(size, 0);
    return true;
}

bool FakeFileDetails::QueryValue(std::vector<std::uint8_t>& block, const std::string& subBlock, std::string* value) {
    const std::string inhalt(block.begin(), block.end());
    if (inhalt.compare(0, kKennung.size(), kKennung) != 0) return false;
    const std::string pfad = inhalt.substr(kKennung.size(), inhalt.find('\0', kKennung.size()) - kKennung.size());
    auto it = versionen_.find(pfad);
    if (it == versionen_.end()) return false;
    const FakeVersion& v = it->second;
    const std::string frage = Klein(subBlock);

    if (frage == "\\") {
        const std::uint32_t ms = (v.dateiversion[0] << 16) | v.dateiversion[1];
        const std::uint32_t ls = (v.dateiversion[2] << 16) | v.dateiversion[3];
        *value = Dword(0xFEEF04BD) + Dword(0x00010000) + Dword(ms) + Dword(ls) + Dword(ms) + Dword(ls) + Dword(0x3F) +
                 Dword(0) + Dword(0x40004) + Dword(v.dateityp) + Dword(0) + Dword(0) + Dword(0);
        return true;
    }
    if (frage == "\\varfileinfo\\translation") {
        if (v.übersetzungen.empty()) return false;
        value->clear();
        for (const auto& ü : v.übersetzungen)
            *value += Dword(ü.sprache | (static_cast<std::uint32_t>(ü.codepage) << 16));
        return true;
    }
    const std::string präfix = "\\stringfileinfo\\";
    if (frage.compare(0, präfix.size(), präfix) != 0) return false;
    const std::string rest = frage.substr(präfix.size());
    const auto trenner = rest.find('\\');
    if (trenner == std::string::npos) return false;
    for (const auto& ü : v.übersetzungen) {
        char hex[9];
        std::snprintf(hex, sizeof hex, "%04x%04x", ü.sprache, ü.codepage);
        if (rest.substr(0, trenner) != hex) continue;
        for (const auto& [name, text] : ü.texte)
            if (Klein(name) == rest.substr(trenner + 1)) {
                *value = text + std::string(1, '\0');
                return true;
            }
    }
    return false;
}

bool FakeFileDetails::FileTimes(const std::string& path, std::uint64_t* created, std::uint64_t* accessed,
                                std::uint64_t* written) {
    // No sharing: a file that someone holds open cannot be opened, and a folder never.
    if (!IstDatei(path) || !files_.CanRead(path)) return false;
    FindData fd;
    if (!files_.FindFirst(path, &fd)) return false;
    *created = fd.creationTime;
    *accessed = fd.lastWriteTime;
    *written = fd.lastWriteTime;
    return true;
}

std::uint64_t FakeFileDetails::ToLocalFileTime(std::uint64_t utc) {
    return utc + static_cast<std::int64_t>(ortszeitMinuten) * 60 * 10000000LL;
}

int FakeFileDetails::SystemIconIndex(const std::string& path) {
    if (!files_.Exists(path)) return -1;
    auto it = icons_.find(Schlüssel(path));
    return it == icons_.end() ? 3 : it->second;
}

}  // namespace kes::fake

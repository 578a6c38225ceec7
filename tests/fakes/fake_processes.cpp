#include "fake_processes.h"

#include <algorithm>
#include <cstring>

#include "common/text.h"

namespace kes::fake {

namespace {
template <std::size_t N>
void Feld(std::array<char, N>& feld, const std::string& text) {
    feld.fill('\0');
    std::memcpy(feld.data(), text.data(), std::min(text.size(), N));
}

std::uint32_t Kopieren(const std::string& text, char* buf, std::uint32_t size) {
    if (size == 0) return 0;
    const std::uint32_t n = std::min<std::uint32_t>(static_cast<std::uint32_t>(text.size()), size - 1);
    std::memcpy(buf, text.data(), n);
    buf[n] = '\0';
    return n;
}
}  // namespace

std::string KurzForm(const std::string& name) {
    if (name == "." || name == "..") return "";
    const auto punkt = name.find_last_of('.');
    const std::string basis = punkt == std::string::npos ? name : name.substr(0, punkt);
    const std::string endung = punkt == std::string::npos ? "" : name.substr(punkt + 1);
    const bool erlaubt =
        std::none_of(name.begin(), name.end(), [](char c) { return c == ' ' || c == '+' || c == ','; });
    if (erlaubt && !basis.empty() && basis.size() <= 8 && endung.size() <= 3 &&
        std::count(name.begin(), name.end(), '.') <= 1)
        return "";
    std::string b, e;
    for (char c : basis)
        if (c != ' ' && c != '.') b += c;
    for (char c : endung)
        if (c != ' ') e += c;
    std::string kurz = Gross(b.substr(0, 6)) + "~1";
    if (!e.empty()) kurz += "." + Gross(e.substr(0, 3));
    return kurz;
}

const FakeProzess* FakeProcesses::Finde(std::uint32_t pid) const {
    for (const auto& p : prozesse)
        if (p.pid == pid) return &p;
    return nullptr;
}

ProzessEigner FakeProcesses::CreateSnapshot(std::uint32_t flags, std::uint32_t processId) {
    ++snapshots;
    Schnapp s;
    if (flags & kSnapAll & ~kSnapModule) {
        s.prozesse = true;
        s.liste = prozesse;
    } else if (flags & kSnapModule) {
        const FakeProzess* p = Finde(processId);
        if (!p || p->modulWalkVerweigert) return {};
        s.module.push_back({p->name, p->pfad});
        s.module.insert(s.module.end(), p->module.begin(), p->module.end());
    }
    const ProzessHandle h = nächster_;
    nächster_ += 4;
    snaps_[h] = std::move(s);
    return ProzessEigner(*this, h);
}

bool FakeProcesses::ProcessFirst(ProzessHandle snapshot, ProzessDaten* out) {
    auto it = snaps_.find(snapshot);
    if (it == snaps_.end() || !it->second.prozesse) return false;
    it->second.pos = 0;
    return ProcessNext(snapshot, out);
}

bool FakeProcesses::ProcessNext(ProzessHandle snapshot, ProzessDaten* out) {
    auto it = snaps_.find(snapshot);
    if (it == snaps_.end() || it->second.pos >= it->second.liste.size()) return false;
    const FakeProzess& p = it->second.liste[it->second.pos++];
    Feld(out->szExeFile, p.name);
    out->th32ProcessID = p.pid;
    out->th32ParentProcessID = p.eltern;
    out->cntThreads = p.threads;
    return true;
}

bool FakeProcesses::ModuleFirst(ProzessHandle snapshot, ModulDaten* out) {
    auto it = snaps_.find(snapshot);
    if (it == snaps_.end() || it->second.prozesse) return false;
    it->second.pos = 0;
    return ModuleNext(snapshot, out);
}

bool FakeProcesses::ModuleNext(ProzessHandle snapshot, ModulDaten* out) {
    auto it = snaps_.find(snapshot);
    if (it == snaps_.end() || it->second.prozesse || it->second.pos >= it->second.module.size()) return false;
    const std::size_t k = it->second.pos++;
    const FakeModul& m = it->second.module[k];
    Feld(out->szModule, m.name);
    Feld(out->szExePath, m.pfad);
    out->hModule = k == 0 ? 0x400000 : ModulHandle(k - 1);
    return true;
}

void FakeProcesses::CloseHandle(ProzessHandle h) {
    snaps_.erase(h);
    offen_.erase(h);
}

ProzessEigner FakeProcesses::OpenProcess(std::uint32_t access, std::uint32_t processId) {
    const FakeProzess* p = Finde(processId);
    if (processId == 0 || !p || p->öffnenVerweigert) return {};
    const ProzessHandle h = nächster_;
    nächster_ += 4;
    offen_[h] = {processId, access};
    ++öffnungen;
    return ProzessEigner(*this, h);
}

std::uint32_t FakeProcesses::ModuleFileName(ProzessHandle process, std::uintptr_t module, char* buf,
                                            std::uint32_t size) {
    auto it = offen_.find(process);
    if (it == offen_.end() || (it->second.recht & kProcessQueryRead) != kProcessQueryRead) return 0;
    const FakeProzess* p = Finde(it->second.pid);
    if (!p) return 0;
    std::string pfad;
    if (module == 0 || module == 0x400000) {
        pfad = p->pfad;
    } else {
        for (std::size_t k = 0; k < p->module.size(); ++k)
            if (ModulHandle(k) == module) pfad = p->module[k].pfad;
    }
    return pfad.empty() ? 0 : Kopieren(pfad, buf, size);
}

std::uint64_t FakeProcesses::CreationTime(ProzessHandle process) {
    auto it = offen_.find(process);
    if (it == offen_.end() || !(it->second.recht & (kProcessQueryInformation | kProcessQueryLimited))) return 0;
    const FakeProzess* p = Finde(it->second.pid);
    return p ? p->erstellt : 0;
}

bool FakeProcesses::TerminateProcess(ProzessHandle process, std::uint32_t) {
    auto it = offen_.find(process);
    if (it == offen_.end() || !(it->second.recht & kProcessTerminate)) return false;
    const std::uint32_t pid = it->second.pid;
    auto p = std::find_if(prozesse.begin(), prozesse.end(), [&](const FakeProzess& x) { return x.pid == pid; });
    if (p == prozesse.end() || p->beendenVerweigert) return false;
    prozesse.erase(p);
    beendet.push_back(pid);
    return true;
}

std::uint32_t FakeProcesses::SystemDirectory(char* buf, std::uint32_t size) {
    if (size <= systemordner.size()) return static_cast<std::uint32_t>(systemordner.size() + 1);
    return Kopieren(systemordner, buf, size);
}

std::uint32_t FakeProcesses::ShortPathName(const std::string& path, char* buf, std::uint32_t size) {
    if (!files_.Exists(path)) return 0;
    std::string kurz, teil;
    auto anhängen = [&] {
        const std::string k = KurzForm(teil);
        kurz += k.empty() ? teil : k;
        teil.clear();
    };
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] == '\\') {
            // The drive ("C:") is no name of its own and stays as written.
            if (kurz.empty() && teil.size() == 2 && teil[1] == ':') {
                kurz = teil;
                teil.clear();
            } else {
                anhängen();
            }
            kurz += '\\';
        } else {
            teil += path[i];
        }
    }
    anhängen();
    if (size <= kurz.size()) return static_cast<std::uint32_t>(kurz.size() + 1);
    return Kopieren(kurz, buf, size);
}

}  // namespace kes::fake

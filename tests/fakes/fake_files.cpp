#include "fake_files.h"

#include "common/text.h"

namespace kes::fake {

namespace {
// Wildcard match as the find calls do it: "*" any run, "?" one character, "*.*" everything.
bool Passt(const std::string& muster, const std::string& name) {
    if (muster == "*.*" || muster == "*") return true;
    const std::string m = Klein(muster), n = Klein(name);
    std::size_t mi = 0, ni = 0, stern = std::string::npos, merk = 0;
    while (ni < n.size()) {
        if (mi < m.size() && (m[mi] == '?' || m[mi] == n[ni])) {
            ++mi, ++ni;
        } else if (mi < m.size() && m[mi] == '*') {
            stern = mi++;
            merk = ni;
        } else if (stern != std::string::npos) {
            mi = stern + 1;
            ni = ++merk;
        } else {
            return false;
        }
    }
    while (mi < m.size() && (m[mi] == '*' || m[mi] == '.')) ++mi;
    return mi == m.size();
}
}  // namespace

std::string FakeFiles::Schlüssel(const std::string& path) {
    std::string s = Klein(path);
    for (char& c : s)
        if (c == '/') c = '\\';
    while (s.size() > 3 && s.back() == '\\') s.pop_back();
    return s;
}

std::string FakeFiles::Eltern(const std::string& schlüssel) {
    const auto pos = schlüssel.find_last_of('\\');
    if (pos == std::string::npos) return "";
    return pos == 2 ? schlüssel.substr(0, 3) : schlüssel.substr(0, pos);
}

FakeFiles::Eintrag* FakeFiles::Finde(const std::string& path) {
    auto it = einträge_.find(Schlüssel(path));
    return it == einträge_.end() ? nullptr : &it->second;
}

bool FakeFiles::CanRead(const std::string& path) {
    const Eintrag* e = Finde(path);
    return e && !e->ordner && !e->gesperrt;
}

std::optional<std::string> FakeFiles::ReadAll(const std::string& path) {
    if (!CanRead(path)) return std::nullopt;
    return Finde(path)->daten;
}

bool FakeFiles::DarfSchreiben(const std::string& path) {
    const std::string k = Schlüssel(path);
    const Eintrag* eltern = Finde(Eltern(k));
    if (!eltern || !eltern->ordner) return false;
    const Eintrag* e = Finde(path);
    return !e || (!e->ordner && !e->gesperrt && !(e->attribute & kAttrReadOnly));
}

bool FakeFiles::WriteAll(const std::string& path, const std::string& data) {
    if (!DarfSchreiben(path)) return false;
    Eintrag& e = einträge_[Schlüssel(path)];
    if (e.name.empty()) {
        e.name = path.substr(path.find_last_of("\\/") + 1);
        e.attribute = kAttrArchive;
    }
    e.daten = data;
    e.länge.reset();
    e.zeit = ++uhr_;
    Geändert(Schlüssel(path));
    return true;
}

bool FakeFiles::Append(const std::string& path, const std::string& data) {
    const Eintrag* e = Finde(path);
    return WriteAll(path, (e ? e->daten : std::string()) + data);
}

bool FakeFiles::MoveReplacing(const std::string& from, const std::string& to) {
    const Eintrag* quelle = Finde(from);
    if (!quelle || quelle->ordner || quelle->gesperrt || !DarfSchreiben(to)) return false;
    Eintrag neu = *quelle;
    neu.name = to.substr(to.find_last_of("\\/") + 1);
    einträge_.erase(Schlüssel(from));
    einträge_[Schlüssel(to)] = neu;
    Geändert(Schlüssel(from));
    Geändert(Schlüssel(to));
    return true;
}

long FakeFiles::Delete(const std::string& path) {
    Eintrag* e = Finde(path);
    if (!e) {
        const Eintrag* eltern = Finde(Eltern(Schlüssel(path)));
        return eltern && eltern->ordner ? 2 : 3;
    }
    if (e->ordner || (e->attribute & kAttrReadOnly)) return 5;
    if (e->gesperrt) return 32;
    einträge_.erase(Schlüssel(path));
    Geändert(Schlüssel(path));
    return 0;
}

std::uint32_t FakeFiles::GetAttributes(const std::string& path) {
    const Eintrag* e = Finde(path);
    if (!e) return kInvalidAttributes;
    return e->ordner ? kAttrDirectory : e->attribute;
}

bool FakeFiles::SetAttributes(const std::string& path, std::uint32_t attributes) {
    Eintrag* e = Finde(path);
    if (!e) return false;
    if (!e->ordner) e->attribute = attributes == kAttrNormal ? kAttrNormal : (attributes & ~kAttrNormal);
    return true;
}

std::optional<std::int64_t> FakeFiles::Length(const std::string& path) {
    ++längenLesungen;
    if (!CanRead(path)) return std::nullopt;
    const Eintrag* e = Finde(path);
    return e->länge ? *e->länge : static_cast<std::int64_t>(e->daten.size());
}

void FakeFiles::PretendLength(const std::string& path, std::int64_t length) {
    if (Eintrag* e = Finde(path)) {
        e->länge = length;
        Geändert(Schlüssel(path));
    }
}

bool FakeFiles::MakeDirectory(const std::string& path) {
    const std::string k = Schlüssel(path);
    if (Finde(k)) return false;
    const Eintrag* eltern = Finde(Eltern(k));
    if (!eltern || !eltern->ordner) return false;
    Eintrag& e = einträge_[k];
    e.name = path.substr(path.find_last_of('\\') + 1);
    e.ordner = true;
    Geändert(k);
    return true;
}

FileFind FakeFiles::FindFirst(const std::string& pattern, FindData* out) {
    const std::string k = Schlüssel(pattern);
    const auto pos = k.find_last_of('\\');
    if (pos == std::string::npos) return {};
    const std::string ordner = pos == 2 ? k.substr(0, 3) : k.substr(0, pos);
    const std::string muster = pattern.substr(pattern.find_last_of('\\') + 1);
    const Eintrag* o = Finde(ordner);
    if (!o || !o->ordner) return {};

    std::vector<FindData> treffer;
    auto hinzu = [&](const std::string& name, const Eintrag& e) {
        FindData fd;
        fd.name = name;
        fd.attributes = e.ordner ? kAttrDirectory : e.attribute;
        fd.size = e.länge ? static_cast<std::uint64_t>(*e.länge) : e.daten.size();
        fd.creationTime = fd.lastWriteTime = e.zeit;
        treffer.push_back(fd);
    };
    const bool wurzel = ordner.size() == 3;
    if (!wurzel && Passt(muster, ".")) hinzu(".", *o);
    if (!wurzel && Passt(muster, "..")) hinzu("..", *o);
    const std::string präfix = wurzel ? ordner : ordner + "\\";
    for (const auto& [schlüssel, e] : einträge_) {
        if (schlüssel.size() <= präfix.size() || schlüssel.compare(0, präfix.size(), präfix) != 0) continue;
        if (schlüssel.find('\\', präfix.size()) != std::string::npos) continue;
        if (Passt(muster, e.name)) hinzu(e.name, e);
    }
    if (treffer.empty()) return {};
    *out = treffer.front();
    treffer.erase(treffer.begin());
    const FindHandle h = nächster_++;
    finds_[h] = std::move(treffer);
    return FileFind(*this, h);
}

bool FakeFiles::FindNext(FindHandle h, FindData* out) {
    auto it = finds_.find(h);
    if (it == finds_.end() || it->second.empty()) return false;
    *out = it->second.front();
    it->second.erase(it->second.begin());
    return true;
}

void FakeFiles::FindClose(FindHandle h) {
    finds_.erase(h);
}

void FakeFiles::MakeDirs(const std::string& path) {
    std::string k = Schlüssel(path);
    std::vector<std::string> kette;
    for (std::string s = k; !s.empty() && !Finde(s); s = Eltern(s)) {
        kette.push_back(s);
        if (s.size() <= 3) break;
    }
    for (auto it = kette.rbegin(); it != kette.rend(); ++it) {
        Eintrag& e = einträge_[*it];
        e.ordner = true;
        e.name = it->size() <= 3 ? *it : it->substr(it->find_last_of('\\') + 1);
        Geändert(*it);
    }
}

void FakeFiles::Put(const std::string& path, const std::string& data, std::uint32_t attributes) {
    MakeDirs(Eltern(Schlüssel(path)));
    Eintrag& e = einträge_[Schlüssel(path)];
    e.name = path.substr(path.find_last_of('\\') + 1);
    e.ordner = false;
    e.daten = data;
    e.länge.reset();
    e.attribute = attributes;
    e.zeit = ++uhr_;
    Geändert(Schlüssel(path));
}

void FakeFiles::Berühren(const std::string& path) {
    if (Eintrag* e = Finde(path)) {
        e->zeit = ++uhr_;
        Geändert(Schlüssel(path));
    }
}

void FakeFiles::Geändert(const std::string& schlüssel) {
    ++änderungen_[Eltern(schlüssel)];
}

std::function<std::optional<std::uint64_t>()> FakeFiles::Änderungen(const std::string& ordner) {
    const Eintrag* e = Finde(ordner);
    if (!e || !e->ordner) return {};
    const std::string k = Schlüssel(ordner);
    return [this, k]() -> std::optional<std::uint64_t> {
        const Eintrag* da = Finde(k);
        if (!da || !da->ordner) return std::nullopt;
        return änderungen_[k];
    };
}

void FakeFiles::Lock(const std::string& path, bool locked) {
    if (Eintrag* e = Finde(path)) e->gesperrt = locked;
}

bool FakeFiles::Exists(const std::string& path) const {
    return einträge_.count(Schlüssel(path)) != 0;
}

std::string FakeFiles::Content(const std::string& path) const {
    auto it = einträge_.find(Schlüssel(path));
    return it == einträge_.end() ? std::string() : it->second.daten;
}

}  // namespace kes::fake

// An in-memory file system with Windows manners: paths compare without regard to case,
// folders must exist before files go in, a locked file can be neither read, measured,
// written nor deleted, a read-only one not deleted or written, and find walks give "." and
// ".." first.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/seam/file_api.h"

namespace kes::fake {

class FakeFiles : public FileApi {
public:
    bool CanRead(const std::string& path) override;
    std::optional<std::string> ReadAll(const std::string& path) override;
    bool WriteAll(const std::string& path, const std::string& data) override;
    bool Append(const std::string& path, const std::string& data) override;
    bool MoveReplacing(const std::string& from, const std::string& to) override;
    long Delete(const std::string& path) override;
    std::uint32_t GetAttributes(const std::string& path) override;
    bool SetAttributes(const std::string& path, std::uint32_t attributes) override;
    std::optional<std::int64_t> Length(const std::string& path) override;
    bool MakeDirectory(const std::string& path) override;
    FileFind FindFirst(const std::string& pattern, FindData* out) override;
    bool FindNext(FindHandle h, FindData* out) override;

    // Test set-up: makes the folders on the way.
    void Put(const std::string& path, const std::string& data, std::uint32_t attributes = kAttrArchive);
    void MakeDirs(const std::string& path);
    void Lock(const std::string& path, bool locked = true);
    // The length the file reports from now on, without holding that many bytes: how a file
    // of gigabytes looks to the program. Writing the file ends it.
    void PretendLength(const std::string& path, std::int64_t length);
    // A write that leaves the content as it is: a new write time, as a tool that patches
    // the file in place gives it.
    void Berühren(const std::string& path);
    bool Exists(const std::string& path) const;
    std::string Content(const std::string& path) const;  // "" when missing
    int OpenFinds() const { return static_cast<int>(finds_.size()); }
    int längenLesungen = 0;  // calls of Length: each opens the file on the real platform
    // A change source's reading: how often a name, a size or a write time changed in the
    // folder itself; none once the folder is gone. Empty when there is no such folder.
    std::function<std::optional<std::uint64_t>()> Änderungen(const std::string& ordner);

protected:
    void FindClose(FindHandle h) override;

private:
    struct Eintrag {
        std::string name;  // as created
        bool ordner = false;
        std::string daten;
        std::uint32_t attribute = kAttrArchive;
        bool gesperrt = false;
        std::uint64_t zeit = 0;
        std::optional<std::int64_t> länge;
    };
    static std::string Schlüssel(const std::string& path);
    static std::string Eltern(const std::string& schlüssel);
    Eintrag* Finde(const std::string& path);
    bool DarfSchreiben(const std::string& path);

    // Counts a change of the entry at the key for its folder.
    void Geändert(const std::string& schlüssel);
    std::map<std::string, Eintrag> einträge_;          // by lower-case path without trailing "\"
    std::map<std::string, std::uint64_t> änderungen_;  // by folder key
    std::map<FindHandle, std::vector<FindData>> finds_;
    FindHandle nächster_ = 1;
    std::uint64_t uhr_ = 130000000000000000ULL;
};

}  // namespace kes::fake

// File details over the fake file system, with the platform's manners: a walk reports the
// 8.3 name only where it differs, version blocks are answered by name without regard to
// case with strings counted with their NUL, a file held by someone else cannot be opened
// for its times, and local time is UTC moved by a fixed offset. Version data comes from
// the test, as a version resource would hold it.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "fake_files.h"
#include "platform/seam/file_detail_api.h"

namespace kes::fake {

struct FakeVersion {
    struct Übersetzung {
        std::uint16_t sprache = 0x0407;
        std::uint16_t codepage = 0x04E4;
        std::map<std::string, std::string> texte;  // name -> value
    };
    std::array<std::uint16_t, 4> dateiversion{};
    std::uint32_t dateityp = 1;
    std::vector<Übersetzung> übersetzungen;  // the translation list, first one first
};

class FakeFileDetails : public FileDetailApi {
public:
    explicit FakeFileDetails(FakeFiles& files) : files_(files) {}

    long ortszeitMinuten = 60;  // local time minus UTC
    int versionsLesungen = 0;   // version blocks read whole

    void SetVersion(const std::string& path, FakeVersion version);
    // A length beyond what the fake keeps in memory, for one file.
    void SetLength(const std::string& path, std::uint64_t länge);
    void SetIcon(const std::string& path, int index);

    DetailFind FindFirst(const std::string& pattern, FindRecord* out) override;
    bool FindNext(FindHandle h, FindRecord* out) override;
    std::uint32_t VersionInfoSize(const std::string& path) override;
    bool VersionInfo(const std::string& path, std::uint32_t size, std::vector<std::uint8_t>* block) override;
    bool QueryValue(std::vector<std::uint8_t>& block, const std::string& subBlock, std::string* value) override;
    bool FileTimes(const std::string& path, std::uint64_t* created, std::uint64_t* accessed,
                   std::uint64_t* written) override;
    std::uint64_t ToLocalFileTime(std::uint64_t utc) override;
    int SystemIconIndex(const std::string& path) override;

protected:
    void FindClose(FindHandle h) override;

private:
    FindRecord Voll(const FindData& fd, const std::string& ordner) const;
    bool IstDatei(const std::string& path);

    FakeFiles& files_;
    std::map<std::string, FakeVersion> versionen_;  // by lower-case path
    std::map<std::string, std::uint64_t> längen_;
    std::map<std::string, int> icons_;
    struct Walk {
        FileFind find;
        std::string ordner;
    };
    std::map<FindHandle, Walk> walks_;  // each open walk on the file fake, with its folder
};

}  // namespace kes::fake

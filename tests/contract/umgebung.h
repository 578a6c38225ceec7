// What the contract suite runs against: a registry and a file system, real or fake, an
// empty folder to work in, and a registry key below HKEY_CURRENT_USER that belongs to the
// suite. Locking is the one set-up step that the seam has no call for.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "platform/seam/file_api.h"
#include "platform/seam/plattform.h"
#include "platform/seam/registry_api.h"

namespace kes::vertrag {

class Umgebung {
public:
    virtual ~Umgebung() = default;
    virtual RegistryApi& Registry() = 0;
    virtual FileApi& Files() = 0;
    // A folder that exists and is empty at the start of each test; no trailing "\".
    virtual std::string Ordner() = 0;
    // Holds the file open so that nobody else can read, write or delete it, until Freigeben.
    virtual void Sperren(const std::string& pfad) = 0;
    virtual void Freigeben(const std::string& pfad) = 0;
    // Called before each test.
    virtual void Neu() = 0;
    // The whole platform of this environment, for the system's own modules over the seam.
    virtual Plattform& Alles() = 0;
    // A file with a version resource of its own: "deutsch.dll" (first translation German
    // 0407/04E4, a second one English 0409/04B0) or "hoch.dll" (code page 65001).
    virtual std::string PeDatei(const std::string& name) = 0;
};

Umgebung& DieUmgebung();

// A test in a fresh environment that works with files in its empty folder.
class ImOrdner : public ::testing::Test {
protected:
    // Made fresh before anything else of the test is taken from it.
    const bool frisch_ = (DieUmgebung().Neu(), true);
    std::string ordner = DieUmgebung().Ordner();
    std::string Pfad(const std::string& name) const { return ordner + "\\" + name; }
};

// The suite's own key below HKEY_CURRENT_USER.
inline const char* const kTestSchlüssel = "Software\\KestrellaVertrag";

}  // namespace kes::vertrag

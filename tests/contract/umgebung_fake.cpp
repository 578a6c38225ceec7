#include <memory>

#include "fake_plattform.h"
#include "umgebung.h"

namespace kes::vertrag {

namespace {
class FakeUmgebung : public Umgebung {
public:
    RegistryApi& Registry() override { return p_->registry; }
    FileApi& Files() override { return p_->files; }
    std::string Ordner() override { return "C:\\vertrag"; }
    void Sperren(const std::string& pfad) override { p_->files.Lock(pfad, true); }
    void Freigeben(const std::string& pfad) override { p_->files.Lock(pfad, false); }
    void Neu() override {
        p_ = std::make_unique<fake::FakePlattform>();
        p_->files.MakeDirs(Ordner());
    }

private:
    std::unique_ptr<fake::FakePlattform> p_ = std::make_unique<fake::FakePlattform>();
};
}  // namespace

Umgebung& DieUmgebung() {
    static FakeUmgebung u;
    return u;
}

}  // namespace kes::vertrag

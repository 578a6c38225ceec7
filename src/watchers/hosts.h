// The hosts file, watched by its size alone, and the online state, which switches the
// messenger service off while a dial-up connection is up. Neither has a list, and neither
// asks the deferred list.
#pragma once

#include <cstdint>
#include <optional>

#include "watchers/kontext.h"

namespace kes {

class Hosts {
public:
    explicit Hosts(WächterKontext& k) : k_(k) {}

    void TesteHosts();
    void TesteOnline();

    // This run has stopped the messenger service.
    bool NachrichtendienstGestoppt = false;

private:
    std::optional<std::int32_t> länge_;  // the length the last measure found
    WächterKontext& k_;
};

// The hosts file: the system folder plus "\drivers\etc\hosts", worked out anew at each use.
std::string HostsPfad(const Prozesswerte& w);
// The folder that holds it, whose change source tells when it must be measured again.
std::string HostsOrdner(const Prozesswerte& w);

}  // namespace kes

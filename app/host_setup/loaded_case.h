// A case in the embedded host, where the routines of the library read it.
#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "app/case/case_model.h"
#include "app/host_setup/message_places.h"
#include "minihost/embedded_host.h"

namespace app {

// There is one host in a process: cases take turns, and a case that is loaded holds its turn.
class LoadedCase {
public:
    // Makes a host with the components of the case and hands the polymer paragraph and the catalyst scaling
    // to the library's checks. The case must be free of errors. Throws minihost::Error for what the host
    // refuses.
    explicit LoadedCase(const Case& input);

    // Puts the streams into the host, except values that do not fit the paragraph as checked: the answer
    // names them.
    Diagnostics add_streams(const Case& input);

    minihost::Host& host() const { return *host_; }
    const std::vector<InputMessage>& messages() const { return messages_; }

private:
    std::unique_lock<std::mutex> turn_;
    std::unique_ptr<minihost::Host> host_;
    std::vector<InputMessage> messages_;
};

}  // namespace app

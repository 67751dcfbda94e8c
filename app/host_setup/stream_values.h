// Attribute values of streams, checked against the attributes that components carry after the paragraph
// check.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "minihost/embedded_host.h"

namespace app {

class StreamValues {
public:
    // `consequence` ends every line that says what is wrong with a value.
    StreamValues(minihost::Host& host, std::string consequence, Diagnostics& diagnostics);

    // The stream without the values that do not fit.
    minihost::Stream accepted(const Stream& stream);

private:
    void check_given(const Stream& stream, const Flow& flow);

    minihost::Host& host_;
    std::vector<std::string> segments_;
    std::vector<std::string> end_segments_;
    std::string consequence_;
    Diagnostics& diagnostics_;
};

}  // namespace app

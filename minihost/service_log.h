#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

// One call of a service. `subject` is the block id or the component index that the call is about.
struct ServiceCall {
    std::string service;
    Int subject = 0;
    std::string attribute = {};
    Int selector = 0;
    bool operator==(const ServiceCall&) const = default;
};

// Keeps the services that the library calls while it exists, for tests of how often it asks. Logs do not
// nest.
class ServiceLog {
public:
    ServiceLog();
    ~ServiceLog();
    ServiceLog(const ServiceLog&) = delete;
    ServiceLog& operator=(const ServiceLog&) = delete;

    const std::vector<ServiceCall>& calls() const { return calls_; }
    Int count(std::string_view service) const;
    Int count() const { return static_cast<Int>(calls_.size()); }

    // Makes the service of this call, counted from 1, throw an Error; 0: none does.
    void fail_at(Int call) { failing_ = call; }

    // Calls that were made more than once with the same subject, attribute and selector, each named once.
    std::vector<ServiceCall> repeated(std::string_view service) const;

    // For services.cpp: a call is recorded only while a log exists.
    static bool wanted() { return current_ != nullptr; }
    static void record(ServiceCall call);

private:
    static ServiceLog* current_;
    std::vector<ServiceCall> calls_;
    Int failing_ = 0;
};

}  // namespace minihost

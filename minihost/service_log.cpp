#include "minihost/service_log.h"

#include <algorithm>

#include "minihost/error.h"

namespace minihost {

ServiceLog* ServiceLog::current_ = nullptr;

ServiceLog::ServiceLog()
{
    if (current_) throw Error("a service log already exists");
    current_ = this;
}

ServiceLog::~ServiceLog()
{
    current_ = nullptr;
}

void ServiceLog::record(ServiceCall call)
{
    current_->calls_.push_back(std::move(call));
    if (current_->count() == current_->failing_) throw Error(current_->calls_.back().service + " fails");
}

Int ServiceLog::count(std::string_view service) const
{
    return std::count_if(calls_.begin(), calls_.end(),
                         [service](const auto& call) { return call.service == service; });
}

std::vector<ServiceCall> ServiceLog::repeated(std::string_view service) const
{
    std::vector<ServiceCall> result;
    for (auto call = calls_.begin(); call != calls_.end(); ++call) {
        const bool again = call->service == service && std::find(calls_.begin(), call, *call) != call;
        if (again && std::find(result.begin(), result.end(), *call) == result.end()) result.push_back(*call);
    }
    return result;
}

}  // namespace minihost

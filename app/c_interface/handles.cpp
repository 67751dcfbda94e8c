#include "app/c_interface/handles.h"

#include <polyprops/case.h>

#include <algorithm>
#include <exception>
#include <new>

#include "app/evaluation/evaluation.h"
#include "app/report/format.h"
#include "app/report/output_files.h"

namespace app {

void CaseHandle::check()
{
    Diagnostics found;
    auto input = failure_.empty() ? document_.read(found) : Case{};
    if (!failure_.empty()) found.add({}, failure_);
    auto sorted = found.sorted();
    input.file = document_.file();
    input_ = std::move(input);
    diagnostics_ = std::move(sorted);
}

void CaseHandle::set_number(const std::string& key, double value)
{
    const double before = document_.number(key);
    document_.set_number(key, value);
    try {
        check();
    } catch (...) {
        document_.set_number(key, before);
        throw;
    }
}

bool CaseHandle::compare(const std::string& path, const std::string& distribution)
{
    ComparisonRequest request{distribution, {}, {}};
    try {
        request.curve = read_measured_curve(path);
    } catch (const std::runtime_error& error) {
        request.failure = error.what();
    }
    comparison_ = std::move(request);
    return comparison_->failure.empty();
}

RunHandle::RunHandle(const CaseHandle& source) : input_(source.input())
{
    report_.title = input_.title;
    report_.file = source.file();
    report_.diagnostics = source.diagnostics();
    if (!report_.diagnostics.empty()) return;
    EvaluationOptions options;
    if (const auto& comparison = source.comparison()) {
        if (!comparison->curve) {
            fail(comparison->failure);
            return;
        }
        options.measured = &*comparison->curve;
        options.measured_distribution = comparison->distribution;
    }
    try {
        results_ = evaluate(input_, options);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        fail(error.what());
        return;
    }
    is_complete_ = results_.is_complete;
    report_ = make_report(input_, results_);
    arrays_ = result_arrays(results_);
    index_numbers();
}

// Without a place in the case.
void RunHandle::fail(const std::string& why)
{
    Diagnostics found;
    found.add({}, why);
    report_.diagnostics = found.sorted();
}

void RunHandle::index_numbers()
{
    const auto all = result_numbers(report_);
    number_keys_.reserve(all.size());
    numbers_.reserve(all.size());
    for (const auto& n : all) {
        if (n.table->is_long || !is_number(n.value)) continue;
        number_keys_.push_back(n.key());
        const auto as_real = [](const auto& value) -> double {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>)
                return static_cast<double>(value);
            return 0;
        };
        numbers_.emplace(number_keys_.back(), std::visit(as_real, n.value));
    }
}

const double* RunHandle::number(std::string_view key) const
{
    const auto found = numbers_.find(key);
    return found == numbers_.end() ? nullptr : &found->second;
}

const ResultArray* RunHandle::array(std::string_view key) const
{
    const auto found = std::ranges::find(arrays_, key, &ResultArray::key);
    return found == arrays_.end() ? nullptr : &*found;
}

const std::string* RunHandle::text(int format)
{
    const auto made = [&]() -> std::string {
        switch (format) {
            case POLYPROPS_JSON:
                return format_json(report_);
            case POLYPROPS_TEXT:
                return format_text(report_);
            case POLYPROPS_CSV:
                return format_csv(report_);
            case POLYPROPS_HTML:
                return format_html(report_);
            case POLYPROPS_REPORT_FILE:
                return report_file(input_, report_, results_.library_output);
            default:
                return results_.library_output.summary;
        }
    };
    if (format < POLYPROPS_JSON || format > POLYPROPS_SUMMARY_FILE) return nullptr;
    const auto known = texts_.find(format);
    return known != texts_.end() ? &known->second : &texts_.emplace(format, made()).first->second;
}

}  // namespace app

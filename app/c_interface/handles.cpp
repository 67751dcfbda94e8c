#include "app/c_interface/handles.h"

#include <polyprops/case.h>

#include <algorithm>
#include <exception>
#include <new>

#include "app/case/measured_options.h"
#include "app/evaluation/evaluation.h"
#include "app/io/file_contents.h"
#include "app/report/format.h"
#include "app/report/output_files.h"

namespace app {

void CaseHandle::check()
{
    Diagnostics found;
    auto input = unreadable_.empty() ? document_.read(found) : Case{};
    if (!unreadable_.empty()) found.add(no_position(), unreadable_);
    auto errors = found.sorted();
    auto diagnostics = errors;
    input.file = document_.file();
    input_ = std::move(input);
    errors_ = std::move(errors);
    diagnostics_ = std::move(diagnostics);
}

std::optional<double> CaseHandle::number(const std::string& key)
{
    begin_call();
    try {
        return document_.number(key);
    } catch (const std::invalid_argument& error) {
        fail({no_position(key), error.what()});
        return {};
    }
}

bool CaseHandle::set_number(const std::string& key, double value)
{
    begin_call();
    try {
        change(key, value);
        return true;
    } catch (const std::invalid_argument& error) {
        fail({no_position(key), error.what()});
        return false;
    }
}

void CaseHandle::change(const std::string& key, double value)
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
    begin_call();
    try {
        if (errors_.empty()) find_distribution(input_, distribution);
        comparison_ = ComparisonRequest{distribution, read_measured_curve(path, measured_options_)};
        return true;
    } catch (const FileError& error) {
        fail({no_position(), error.why(), Severity::error, path});
    } catch (const std::runtime_error& error) {
        fail({no_position(), error.what()});
    }
    return false;
}

void CaseHandle::end_comparison()
{
    begin_call();
    comparison_.reset();
}

int CaseHandle::set_measured_option(const std::string& key, const std::string& value)
{
    begin_call();
    const auto all = measured_options();
    const auto option = std::ranges::find(all, std::string_view{key}, &MeasuredOption::key);
    if (option == all.end()) {
        std::vector<std::string_view> keys;
        for (const auto& known : all) keys.emplace_back(known.key);
        fail({no_position(key), "there is no option \"" + key + "\"" + suggestion(key, keys)});
        return POLYPROPS_NOT_FOUND;
    }
    try {
        set(*option, value, measured_options_);
        return POLYPROPS_OK;
    } catch (const std::invalid_argument& error) {
        fail({no_position(key), key + ": " + error.what()});
        return POLYPROPS_CASE_ERROR;
    }
}

int CaseHandle::reset_measured_options()
{
    begin_call();
    measured_options_ = {};
    return POLYPROPS_OK;
}

RunHandle::RunHandle(const CaseHandle& source) : input_(source.input())
{
    report_.title = input_.title;
    report_.file = source.file();
    report_.diagnostics = source.errors();
    if (!report_.diagnostics.empty()) return;
    EvaluationOptions options;
    if (const auto& comparison = source.comparison()) {
        options.measured = &comparison->curve;
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

void RunHandle::fail(const std::string& why)
{
    report_.diagnostics = {{no_position(), why}};
}

void RunHandle::index_numbers()
{
    const auto all = result_numbers(report_);
    number_keys_.reserve(all.size());
    numbers_.reserve(all.size());
    for (const auto& n : all) {
        if (n.table->is_long || std::holds_alternative<NoData>(n.value)) continue;
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

// The objects behind the handles of case.h. Their members may throw; the functions of the interface catch.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "app/case/case_document.h"
#include "app/case/measured_curve.h"
#include "app/evaluation/result_arrays.h"
#include "app/report/make_report.h"
#include "app/report/result_numbers.h"

namespace app {

// A curve that every run is compared with.
struct ComparisonRequest {
    std::string distribution;
    MeasuredCurve curve;
};

class CaseHandle {
public:
    explicit CaseHandle(CaseDocument document) : document_(std::move(document)), keys_(document_.keys())
    {
        check();
    }
    // A case that cannot be read.
    CaseHandle(std::string file, std::string why)
        : document_("", std::move(file)), unreadable_(std::move(why))
    {
        check();
    }

    // These change nothing when they throw. A failed look-up, comparison or option is among the diagnostics
    // until the next such call.
    std::optional<double> number(const std::string& key);
    bool set_number(const std::string& key, double value);
    bool compare(const std::string& path, const std::string& distribution);
    void end_comparison();
    // How later comparisons read their curve; both return a polyprops_status.
    int set_measured_option(const std::string& key, const std::string& value);
    int reset_measured_options();

    const std::string& file() const { return document_.file(); }
    const std::vector<std::string>& keys() const { return keys_; }
    const std::vector<Diagnostic>& errors() const { return errors_; }
    // The errors of the case and the failure of the last call.
    const std::vector<Diagnostic>& diagnostics() const { return diagnostics_; }
    const Case& input() const { return input_; }
    const std::optional<ComparisonRequest>& comparison() const { return comparison_; }

private:
    void check();
    void change(const std::string& key, double value);
    // Ends the failure of an earlier call.
    void begin_call() { diagnostics_.resize(errors_.size()); }
    void fail(Diagnostic failure) { diagnostics_.push_back(std::move(failure)); }

    CaseDocument document_;
    std::string unreadable_;
    // Positions in the file order the keys; a replaced number has none.
    std::vector<std::string> keys_;
    Case input_;
    std::vector<Diagnostic> errors_;
    std::vector<Diagnostic> diagnostics_;
    std::optional<ComparisonRequest> comparison_;
    MeasuredCurveOptions measured_options_;
};

class RunHandle {
public:
    explicit RunHandle(const CaseHandle& source);
    // A run that failed before it could begin.
    RunHandle() = default;
    ~RunHandle() = default;
    RunHandle(const RunHandle&) = delete;
    RunHandle& operator=(const RunHandle&) = delete;

    bool is_good() const { return is_complete_ && !has_errors(report_); }
    const Report& report() const { return report_; }
    const std::vector<std::string>& number_keys() const { return number_keys_; }
    const double* number(std::string_view key) const;
    const std::vector<ResultArray>& arrays() const { return arrays_; }
    const ResultArray* array(std::string_view key) const;

    // Null for an unknown format.
    const std::string* text(int format);

private:
    void fail(const std::string& why);
    void index_numbers();

    Case input_;
    Results results_;
    Report report_;
    bool is_complete_ = false;
    std::vector<std::string> number_keys_;
    std::unordered_map<std::string_view, double> numbers_;
    std::vector<ResultArray> arrays_;
    std::map<int, std::string> texts_;
};

}  // namespace app

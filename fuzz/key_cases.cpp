#include <charconv>
#include <cmath>
#include <string>

#include "fuzz/case_handles.h"

namespace polyprops_fuzz {
namespace {

constexpr std::string_view case_text = R"([components]
A-R = { class = "segment", molecular_weight = 28.054 }
Q = { class = "conventional", molecular_weight = 40 }
P = { class = "polymer", molecular_weight = 28.054, dpn = 1000, pdi = 2 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] }]
[streams.S]
flows = { P = 35.6 }
[streams.S.attributes.P]
ZMOM = 0.1
FMOM = 35.6
SMOM = 32000
SFLOW = [35.6]
[distributions."D.\"1\""]
points = 20
longest_chain = 20000
segment_weight = 28
sites = [{ tau = 0.002, amount = 1 }, { tau = 0.0005, beta = 1e-4, amount = 2 }]
[parameters.K]
components = ["P"]
temperatures = [300, 350]
)";

void check_change(polyprops_case* input, const std::string& key, double value)
{
    double before = 0;
    const bool is_known = polyprops_case_get(input, key.c_str(), &before) == POLYPROPS_OK;
    const bool is_set = polyprops_case_set(input, key.c_str(), value) == POLYPROPS_OK;
    require(is_set == is_known, "a number can be read and not set, or set and not read");
    if (!is_set) return;
    double after = 0;
    require(polyprops_case_get(input, key.c_str(), &after) == POLYPROPS_OK,
            "a number is lost when it is set");
    require(after == value || (std::isnan(after) && std::isnan(value)),
            "another number is read than was set");
    // Long runs find nothing that short ones do not.
    const bool is_long = key.ends_with("points") && value > 1000;
    if (is_long) polyprops_case_set(input, key.c_str(), before);
}

void check_run(const polyprops_case* input, const std::string& key)
{
    const RunHandle run{polyprops_case_run(input)};
    require(run != nullptr, "there is no run");
    read_run(run, key);
    for (const int format : {POLYPROPS_TEXT, POLYPROPS_CSV, POLYPROPS_JSON}) {
        std::size_t size = 0;
        const char* text = polyprops_run_text(run.get(), format, &size);
        const bool has_results = polyprops_run_number_count(run.get()) > 0;
        require(!has_results || (text && size > 0), "results have no text");
    }
}

}  // namespace

void check_keys(std::string_view lines)
{
    const CaseHandle input{polyprops_case_from_text(case_text.data(), case_text.size(), "case.toml")};
    require(polyprops_case_status(input.get()) == POLYPROPS_OK, "the case of the keys has errors");
    for (int left = 8; left > 0 && !lines.empty(); --left) {
        const auto line = take_line(lines);
        const std::string key{line.substr(0, line.rfind('='))};
        if (key.size() == line.size()) {
            check_run(input.get(), key);
            continue;
        }
        double value = 0;
        std::from_chars(line.data() + key.size() + 1, line.data() + line.size(), value);
        check_change(input.get(), key, value);
    }
    check_run(input.get(), "streams.S.chain_averages.P.mn");
}

}  // namespace polyprops_fuzz

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

#include "fuzz/case_handles.h"

namespace polyprops_fuzz {
namespace {

std::pair<std::string, std::string> split(std::string_view text, char separator)
{
    const auto at = std::min(text.rfind(separator), text.size());
    return {std::string{text.substr(0, at)}, std::string{text.substr(std::min(at + 1, text.size()))}};
}

// Two cases and two runs, in any state that calls of the interface leave them in.
class Calls {
public:
    // Lines after a 't' belong to its text up to a line with a single dot.
    void make(std::string_view line, std::string_view& rest)
    {
        if (line.size() < 2) return;
        auto& input = cases_.at(static_cast<unsigned char>(line[1]) % 2);
        auto& run = runs_.at(static_cast<unsigned char>(line[1]) % 2);
        const std::string argument{line.substr(2)};
        switch (line.front()) {
            case 't':
                return read_text(input, argument, rest);
            case 'f':
                return read_file(input, argument);
            case 's':
                return set(input.get(), argument);
            case 'c':
                return compare(input.get(), argument);
            case 'o':
                return choose(input.get(), argument);
            case 'r':
                if (is_small(input.get())) run.reset(polyprops_case_run(input.get()));
                return;
            case 'q':
                polyprops_run_text(run.get(), static_cast<int>(argument.size()) - 1, nullptr);
                return read_run(run, argument);
            case 'x':
                return input.reset();
            case 'y':
                return run.reset();
            default:
                return;
        }
    }

    void check() const
    {
        for (const auto& input : cases_) {
            const auto* const handle = input.get();
            const int status = polyprops_case_status(handle);
            require(handle || status == POLYPROPS_OUT_OF_MEMORY, "a NULL handle has another status");
            require(status != POLYPROPS_CASE_ERROR || polyprops_case_diagnostic_count(handle) > 0,
                    "an error has no diagnostic");
            diagnostics(input);
        }
    }

private:
    static void read_text(CaseHandle& input, const std::string& name, std::string_view& rest)
    {
        const auto end = std::min(rest.find("\n.\n"), rest.size());
        input.reset(polyprops_case_from_text(rest.data(), end, name.c_str()));
        rest.remove_prefix(std::min(end + 3, rest.size()));
        require(input != nullptr, "there is no case");
    }

    // Only files that every machine has.
    static void read_file(CaseHandle& input, const std::string& choice)
    {
        constexpr const char* paths[] = {"/dev/null", "/", "/missing", nullptr};
        input.reset(polyprops_case_from_file(paths[choice.size() % std::size(paths)]));
        require(input != nullptr && polyprops_case_status(input.get()) != POLYPROPS_OUT_OF_MEMORY,
                "there is no case");
    }

    static void set(polyprops_case* input, const std::string& argument)
    {
        const auto [key, text] = split(argument, '=');
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        double before = 0;
        const int read = polyprops_case_get(input, key.c_str(), &before);
        const int changed = polyprops_case_set(input, key.c_str(), value);
        require(read == changed, "a number can be read and not set, or set and not read");
    }

    static void compare(polyprops_case* input, const std::string& argument)
    {
        const auto [distribution, path] = split(argument, '=');
        polyprops_case_compare(input, path.empty() ? nullptr : "/dev/null", distribution.c_str());
    }

    static void choose(polyprops_case* input, const std::string& argument)
    {
        const auto [key, value] = split(argument, '=');
        polyprops_case_measured_option(input, key.empty() ? nullptr : key.c_str(), value.c_str());
    }

    // Sums of what makes a run long; long runs find nothing that short ones do not.
    static bool is_small(polyprops_case* input)
    {
        double size = 0;
        for (std::size_t i = 0; i < polyprops_case_key_count(input); ++i) {
            const std::string key = polyprops_case_key(input, i);
            double value = 1;
            if (key.ends_with("points") || key.ends_with("count"))
                polyprops_case_get(input, key.c_str(), &value);
            size += std::isfinite(value) ? std::abs(value) : 1;
        }
        return size < 5000;
    }

    std::array<CaseHandle, 2> cases_;
    std::array<RunHandle, 2> runs_;
};

}  // namespace

void check_calls(std::string_view lines)
{
    Calls calls;
    for (int left = 12; left > 0 && !lines.empty(); --left) {
        const auto line = take_line(lines);
        calls.make(line, lines);
        calls.check();
    }
}

}  // namespace polyprops_fuzz

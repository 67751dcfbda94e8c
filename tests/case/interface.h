// The case layer's handles with owners, and its answers as values.
#pragma once

#include <bit>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <vector>

#include "fuzz/case_handles.h"
#include "support/files.h"

namespace case_test {

using CasePointer = polyprops_fuzz::CaseHandle;
using RunPointer = polyprops_fuzz::RunHandle;
using polyprops_fuzz::diagnostics;

using Json = nlohmann::json;

inline const std::filesystem::path examples{POLYPROPS_EXAMPLES};

inline CasePointer from_text(const std::string& text, const char* name = "c.toml")
{
    return CasePointer{polyprops_case_from_text(text.data(), text.size(), name)};
}

inline CasePointer from_file(const std::filesystem::path& path)
{
    return CasePointer{polyprops_case_from_file(path.c_str())};
}

inline CasePointer example(const std::string& name)
{
    return from_file(examples / (name + ".toml"));
}

inline RunPointer run(const CasePointer& input)
{
    return RunPointer{polyprops_case_run(input.get())};
}

// The paths of all case files of a folder.
inline std::vector<std::filesystem::path> case_files(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator{folder})
        if (entry.path().extension() == ".toml") files.push_back(entry.path());
    return files;
}

// Values of an array, column by column.
struct Array {
    std::span<const double> values;
    std::size_t rows = 0, columns = 0;
};

inline Array array(const RunPointer& handle, const std::string& key)
{
    const double* values = nullptr;
    Array found;
    EXPECT_EQ(polyprops_run_array(handle.get(), key.c_str(), &values, &found.rows, &found.columns),
              POLYPROPS_OK)
        << key;
    found.values = {values, found.rows * found.columns};
    return found;
}

inline std::vector<std::string> array_keys(const RunPointer& handle)
{
    std::vector<std::string> all;
    for (std::size_t i = 0; i < polyprops_run_array_count(handle.get()); ++i)
        all.emplace_back(polyprops_run_array_key(handle.get(), i));
    EXPECT_EQ(polyprops_run_array_key(handle.get(), all.size()), nullptr);
    return all;
}

inline double number(const RunPointer& handle, const std::string& key)
{
    double value = 0;
    EXPECT_EQ(polyprops_run_number(handle.get(), key.c_str(), &value), POLYPROPS_OK) << key;
    return value;
}

inline std::string text(const RunPointer& handle, int format)
{
    std::size_t size = 0;
    const char* all = polyprops_run_text(handle.get(), format, &size);
    return all ? std::string{all, size} : "none";
}

// Standard output of a command.
inline std::string output(const std::string& command)
{
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe{::popen(command.c_str(), "r"), ::pclose};
    std::string all;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) all += static_cast<char>(c);
    return all;
}

// Equal to the last bit, NaN included.
inline void expect_same(double seen, double expected, const std::string& where)
{
    EXPECT_EQ(std::bit_cast<std::uint64_t>(seen), std::bit_cast<std::uint64_t>(expected))
        << where << ": " << seen << " for " << expected;
}

}  // namespace case_test

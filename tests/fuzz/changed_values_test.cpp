// Every value of every example, one at a time: missing, of another kind, or beyond its range.
#include <gtest/gtest.h>
#include <toml++/toml.h>

#include <filesystem>
#include <sstream>

#include "fuzz/cases.h"
#include "support/files.h"

namespace {

// Puts `other`, or nothing, in the place with this number, counted depth first. False behind the last place.
bool change(toml::node& parent, int& place, const toml::node* other)
{
    if (auto* table = parent.as_table()) {
        for (auto&& [key, value] : *table) {
            if (place-- == 0) {
                const std::string name{key.str()};
                other ? void(table->insert_or_assign(name, *other)) : void(table->erase(name));
                return true;
            }
            if (change(value, place, other)) return true;
        }
    } else if (auto* array = parent.as_array()) {
        for (auto at = array->begin(); at != array->end(); ++at) {
            if (place-- == 0) {
                other ? void(array->replace(at, *other)) : void(array->erase(at));
                return true;
            }
            if (change(*at, place, other)) return true;
        }
    }
    return false;
}

TEST(ChangedValues, OfExamplesGiveResultsOrDiagnostics)
{
    const auto others = toml::parse(R"(kinds = ["", "é\n", true, [], {}]
numbers = [-7, 0, inf, 1e-300, 1e200])");
    const auto& kinds = *others["kinds"].as_array();
    const auto& numbers = *others["numbers"].as_array();
    for (const auto& file : std::filesystem::directory_iterator{POLYPROPS_EXAMPLES}) {
        if (file.path().extension() != ".toml") continue;
        const auto original = toml::parse(support::content(file.path()));
        for (int number = 0;; ++number) {
            auto place = number;
            auto changed = original;
            if (!change(changed, place, nullptr)) break;
            const auto try_value = [&](const toml::node* other) {
                place = number;
                changed = original;
                change(changed, place, other);
                std::ostringstream text;
                text << changed;
                SCOPED_TRACE(text.str());
                EXPECT_NO_THROW(polyprops_fuzz::check_case_text(text.str()));
            };
            try_value(nullptr);
            for (const auto& other : kinds) try_value(&other);
            // A number is often accepted, and its results take long: one of them for each place.
            try_value(&numbers[static_cast<std::size_t>(number) % numbers.size()]);
        }
    }
}

}  // namespace

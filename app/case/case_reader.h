// Reads a case file. All errors of the file are found in one run.
#pragma once

#include <filesystem>
#include <string_view>

#include "app/case/case_model.h"
#include "app/case/overrides.h"
#include "app/case/table_reader.h"

namespace app {

// The case, of use only while `diagnostics` is empty. Throws std::runtime_error when the file cannot be read.
Case read_case(const std::filesystem::path& file, Diagnostics& diagnostics);

// The same from a text that came from `file`.
Case parse_case(std::string_view text, const std::string& file, Diagnostics& diagnostics,
                const std::vector<Override>& overrides = {});

// The parts of the reader, one file each.
Paragraph read_paragraph(TableReader table);
std::vector<ScalingEntry> read_catalyst_scaling(const std::vector<Entry>& entries, Diagnostics& diagnostics);
std::vector<Stream> read_streams(TableReader table);
std::vector<Property> read_properties(TableReader table);
std::vector<Reactor> read_reactors(TableReader table);

std::vector<Distribution> read_distributions(TableReader table);
std::vector<ParameterSet> read_parameter_sets(TableReader table);

// Component IDs and numbers.
std::vector<ComponentValue> read_component_values(TableReader table, Range range);

// What can only be told from the whole case: names that lead nowhere, classes. What the library's check of
// the paragraph reports, such as an unknown or repeated ID in a list, is left to it, and whether the values
// of the streams fit can be told only after it.
void check_components(const Case& input, Diagnostics& diagnostics);
void check_paragraph(const Case& input, Diagnostics& diagnostics);
void check_catalyst_scaling(const Case& input, Diagnostics& diagnostics);
void check_streams(const Case& input, Diagnostics& diagnostics);
void check_properties(const Case& input, Diagnostics& diagnostics);
void check_reactors(const Case& input, Diagnostics& diagnostics);
void check_distributions(const Case& input, Diagnostics& diagnostics);
void check_parameter_sets(const Case& input, Diagnostics& diagnostics);

}  // namespace app

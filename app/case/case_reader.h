// Reads a parsed case file. All errors of the file are found in one pass.
#pragma once

#include "app/case/case_model.h"
#include "app/case/table_reader.h"

namespace app {

// The case, of use only while `diagnostics` is empty.
Case read_case(const toml::table& root, const std::string& file, Diagnostics& diagnostics);

// The parts of the reader, one file each.
Paragraph read_paragraph(TableReader table);
std::vector<ScalingEntry> read_catalyst_scaling(const std::vector<Entry>& entries, Diagnostics& diagnostics);
std::vector<Stream> read_streams(TableReader table);
std::vector<Property> read_properties(TableReader table);
std::vector<Reactor> read_reactors(TableReader table);

std::vector<Distribution> read_distributions(TableReader table);
std::vector<DistributionComponent> read_distribution_components(TableReader& table);
std::vector<ParameterSet> read_parameter_sets(TableReader table);

// Greater than 0 and at most 2; absent where the table has none.
std::optional<double> read_mark_houwink_exponent(TableReader& table);

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

// Columns of more than one table: the same quantity has the same key, heading and unit everywhere.
#pragma once

#include <optional>

#include "app/report/report_model.h"

namespace app::columns {

inline const Column component{"component", "Component", ""};
inline const Column component_class{"class", "Class", ""};
inline const Column segment{"segment", "Segment", ""};
inline const Column attribute{"attribute", "Attribute", ""};
inline const Column mole_flow{"mole_flow", "Mole flow", "kmol/h"};
inline const Column mass_flow{"mass_flow", "Mass flow", "kg/h"};
inline const Column mole_fraction{"mole_fraction", "Mole fraction", "1"};
inline const Column mass_fraction{"mass_fraction", "Mass fraction", "1"};
inline const Column mean_segment_weight{"mean_segment_weight", "Mean segment weight", "g/mol"};
inline const Column molecular_weight{"molecular_weight", "Molecular weight", "g/mol"};
inline const Column chain_length{"chain_length", "Chain length", "1"};
inline const Column mn{"mn", "Mn", "g/mol"};
inline const Column mw{"mw", "Mw", "g/mol"};
inline const Column dpn{"dpn", "DPN", "1"};
inline const Column pn{"pn", "Pn", "1"};
inline const Column pw{"pw", "Pw", "1"};
inline const Column mv{"mv", "Mv", "g/mol"};
inline const Column mz{"mz", "Mz", "g/mol"};
inline const Column mz1{"mz1", "Mz+1", "g/mol"};
inline const Column pdi{"pdi", "Đ (Mw/Mn)", "1"};

// Of a value that may be absent.
inline Cell cell(const std::optional<double>& value)
{
    return value ? Cell{*value} : Cell{NoData{}};
}

}  // namespace app::columns

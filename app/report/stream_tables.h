// The tables of what is known of a stream beside its chain averages, and of a reactor.
#pragma once

#include <vector>

#include "app/report/report.h"

namespace app {

Table composition_table(const Composition& composition);
Table closure_table(const std::vector<Composition>& compositions);
Table segment_count_table(const SegmentCountMatrix& matrix);
Table chain_weight_table(const std::vector<WeightComparison>& weights);
Table property_table(const std::vector<Property>& properties, const std::vector<ChainProperties>& values);
Table polymer_made_table(const std::vector<PolymerMade>& made);

}  // namespace app

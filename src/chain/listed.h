#pragma once

#include "host/species.h"

namespace polyprops::chain {

// Writes average(data, species) of each listed component to its place in the output list.
template <class Average>
void average_each(unsigned parts, Selector selector, const ComponentList& components, Real* out,
                  Average average)
{
    const auto data = PolymerData::locate(parts);
    const Vector<Real> result{out, components.count()};
    for (Int i = 1; i <= components.count(); ++i) result(i) = average(data, Species{selector, components(i)});
}

}  // namespace polyprops::chain

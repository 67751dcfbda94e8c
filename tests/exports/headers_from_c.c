// The public headers serve a host written in C.
#include "polyprops/host.h"
#include "polyprops/polymer_block.h"
#include "polyprops/polyprops.h"

double c_host_asks_molecular_weight(int64_t component)
{
    const int64_t first = 1;
    double weight = UT_COMPONENT_IDS[0] != 0 ? 0.0 : -1.0;
    POLY_GETMWN(&first, &first, &component, &weight);
    return weight;
}

/* Both public headers serve a host written in C. */
#include "polyprops/host.h"
#include "polyprops/polyprops.h"

int64_t c_host_sees_component_word(void);
double c_host_asks_molecular_weight(int64_t component);

int64_t c_host_sees_component_word(void)
{
    return UT_COMPONENT_IDS[0];
}

double c_host_asks_molecular_weight(int64_t component)
{
    const int64_t selector = 1;
    const int64_t count = 1;
    double weight = 0.0;
    POLY_GETMWN(&selector, &count, &component, &weight);
    return weight;
}

#include "minihost/records.h"

#include <polyprops/host.h>

#include <algorithm>
#include <bit>

#include "minihost/store.h"

extern "C" {

alignas(64) int64_t ST_WORDS[minihost::Store::capacity];
int64_t ST_GLOBAL[minihost::record_size];
int64_t ST_NCOMP[minihost::record_size];
double ST_RGLOBAL[minihost::record_size];
int64_t ST_POFF1[minihost::record_size];
int64_t ST_POFF4[minihost::record_size];
int64_t ST_TABLES[minihost::record_size];
char ST_ERROUT[minihost::record_size];
int32_t ST_FILES[minihost::record_size];
int64_t ST_INITV[minihost::record_size];
int64_t ST_SUMGLOBAL[minihost::record_size];
int64_t ST_RPTGLOBAL[minihost::record_size];
int64_t RP_PAGE[minihost::record_size];
int64_t ST_PROPTAB[minihost::record_size];
int64_t UT_COMPONENT_IDS[minihost::record_size];

}  // extern "C"

namespace minihost {

void reset_records()
{
    for (auto* record : {ST_GLOBAL, ST_NCOMP, ST_POFF1, ST_POFF4, ST_TABLES, ST_INITV, ST_SUMGLOBAL,
                         ST_RPTGLOBAL, RP_PAGE, ST_PROPTAB, UT_COMPONENT_IDS})
        std::fill_n(record, record_size, 0);
    std::fill_n(ST_RGLOBAL, record_size, 0.0);
    std::fill_n(ST_FILES, record_size, 0);
    std::fill_n(ST_ERROUT, record_size, ' ');
    ST_GLOBAL[6 - 1] = 2;  // printed message level
    ST_GLOBAL[8 - 1] = 5;
    ST_GLOBAL[9 - 1] = 6;
    ST_GLOBAL[10 - 1] = 7;
    ST_FILES[27 - 1] = 12;
    ST_INITV[1 - 1] = std::bit_cast<int64_t>(1e35);
    ST_INITV[2 - 1] = -1;
    ST_SUMGLOBAL[4 - 1] = 1;
    RP_PAGE[4 - 1] = 60;
}

}  // namespace minihost

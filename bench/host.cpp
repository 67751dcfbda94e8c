#include "bench/host.h"

#include <array>
#include <bit>
#include <cstring>
#include <string_view>

#include "polyprops/host.h"

namespace bench {
namespace {

enum Block : Int { polymer_block = 1, segment_list, polymer_list, end_segment_list, oligomer_block, blocks };

Run current{0};
Int used_words;
Int positions[blocks];  // by block
Int count_table;

// Elements of one polymer's attributes; offsets count from the attribute origin, the first component flow.
struct Layout {
    struct Entry {
        std::string_view name;
        Int elements;
    };

    static std::array<Entry, 7> entries(Int segments)
    {
        return {{{"ZMOM", 1},
                 {"FMOM", 1},
                 {"SMOM", 1},
                 {"SFLOW", segments},
                 {"SZMOM", site_types},
                 {"SSMOM", site_types},
                 {"SSFLOW", segments * site_types}}};
    }
    static Int length(Int segments)
    {
        Int sum = 0;
        for (const Entry& entry : entries(segments)) sum += entry.elements;
        return sum;
    }
};

Int reserve(Int words)
{
    const Int first = used_words + 1;
    used_words += words;
    return first;
}

void put(Int position, Real value)
{
    ST_WORDS[position - 1] = std::bit_cast<Int>(value);
}

Int lay_list(Int count, Int first_component)
{
    const Int p = reserve(count + 1);
    ST_WORDS[p - 1] = count;
    for (Int i = 0; i < count; ++i) ST_WORDS[p + i] = first_component + i;
    return p;
}

Int lay_parameter(Real value)
{
    const Int p = reserve(current.nc);
    for (Int c = 0; c < current.nc; ++c) put(p + c, value + 0.25 * static_cast<Real>(c % 7));
    return p - 1;  // component c stands at offset + c
}

void lay_lists()
{
    positions[segment_list] = lay_list(current.group, 1);
    positions[polymer_list] = lay_list(current.group, current.first_polymer());
    positions[oligomer_block] = lay_list(current.group, 2 * current.group + 1);
    positions[end_segment_list] = lay_list(1, 1);
    count_table = reserve(current.group * current.group);
    for (Int k = 0; k < current.group * current.group; ++k) put(count_table + k, static_cast<Real>(k % 3));
    positions[polymer_block] = reserve(17);
    Int* const words = ST_WORDS + positions[polymer_block] - 1;
    words[1] = segment_list;
    words[2] = polymer_list;
    words[5] = oligomer_block;
    words[8] = end_segment_list;
}

void lay_stream()
{
    const Int length = current.nc + current.group * Layout::length(current.group);
    const Int origin = reserve(length);
    for (Int k = 0; k < length; ++k) put(origin + k, 1.0 + 0.5 * static_cast<Real>(k % 5));
    ST_GLOBAL[16] = origin;
}

}  // namespace

void lay_run(const Run& run)
{
    current = run;
    used_words = 0;
    ST_RGLOBAL[0] = 1e35;
    ST_RGLOBAL[1] = 1e-15;
    ST_NCOMP[16] = run.group;
    ST_POFF1[305] = lay_parameter(50);
    ST_POFF1[539] = lay_parameter(1);
    ST_POFF1[600] = lay_parameter(0.5);
    ST_POFF1[683] = lay_parameter(1.5);
    ST_POFF4[0] = reserve(3 * run.nc) - 1;
    lay_lists();
    lay_stream();
}

const Real* stream_vector()
{
    return reinterpret_cast<const Real*>(ST_WORDS + ST_GLOBAL[16] - 1);
}

}  // namespace bench

using namespace bench;

int64_t ST_WORDS[1 << 21], ST_GLOBAL[64], ST_NCOMP[64], ST_POFF1[1024], ST_POFF4[8], ST_TABLES[8],
    ST_INITV[8];
int64_t ST_SUMGLOBAL[8], ST_RPTGLOBAL[16], RP_PAGE[8], ST_PROPTAB[8], UT_COMPONENT_IDS[8];
double ST_RGLOBAL[8];
char ST_ERROUT[800];
int32_t ST_FILES[64];

void CC_POLYMER_BLOCK(int64_t* id)
{
    *id = polymer_block;
}

int64_t ST_FIND_I(const int64_t* id)
{
    return positions[*id];
}

void ST_FIND_M(const int64_t* id, int64_t* key, int64_t* value, int64_t* third)
{
    *key = positions[*id];
    *value = count_table;
    *third = 0;
}

int64_t CC_IS_POLYMER(const int64_t* component)
{
    return current.is_polymer(*component);
}

int64_t CC_IS_OLIGOMER(const int64_t* component)
{
    return current.is_oligomer(*component);
}

int64_t CC_IS_SEGMENT(const int64_t* component)
{
    return current.is_segment(*component);
}

int64_t CC_FIND_ATTR(const int64_t*, const int64_t* component, const int64_t* name_pair)
{
    if (!current.is_polymer(*component)) return 0;
    char text[16];
    std::memcpy(text, name_pair, sizeof text);
    std::memcpy(text + 4, text + 8, 4);
    Int offset = current.nc + (*component - current.first_polymer()) * Layout::length(current.group);
    for (const auto& [name, elements] : Layout::entries(current.group)) {
        if (std::string_view{text, name.size()} == name && (name.size() == 8 || text[name.size()] == ' '))
            return offset;
        offset += elements;
    }
    return 0;
}

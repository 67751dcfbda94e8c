// The host services of <polyprops/host.h>, each forwarded to the active Host.
#include "minihost/services.h"

#include <polyprops/host.h>

#include <algorithm>

#include "minihost/host.h"
#include "minihost/service_log.h"

namespace minihost {

Host*& active_host()
{
    static Host* host = nullptr;
    return host;
}

namespace {

Store& store()
{
    return Host::active().store();
}

void note(const char* service, Int subject = 0, const Int* name = nullptr, Int selector = 0)
{
    if (ServiceLog::wanted()) ServiceLog::record({service, subject, name ? name_of(name) : "", selector});
}

// Only bit 0 of a logical result counts. The next bit is always set, so that a caller who looks at the whole
// word is found out.
Int logical(bool value)
{
    return value ? 3 : 2;
}

Int is_of_class(const char* service, ComponentClass component_class, Int component)
{
    note(service, component);
    return logical(Host::active().components().is(component_class, component));
}

template <typename T>
void copy(const char* service, const T* source, T* target, Int count)
{
    note(service, count);
    store().check_run(source, count, service);
    store().check_run(target, count, service);
    if (count > 0) std::copy_n(source, count, target);
}

}  // namespace
}  // namespace minihost

using namespace minihost;

extern "C" {

int64_t ST_FIND_I(const int64_t* id)
{
    note("ST_FIND_I", *id);
    return store().integers(*id);
}

int64_t ST_FIND_R(const int64_t* id)
{
    note("ST_FIND_R", *id);
    return store().reals(*id);
}

void ST_FIND_M(const int64_t* id, int64_t* key, int64_t* value, int64_t* third)
{
    note("ST_FIND_M", *id);
    const BlockId block = *id;
    *key = store().keys(block);
    *value = store().values(block);
    *third = 0;
}

void ST_ALLOC_I(const int64_t* length, int64_t* id, int64_t* position)
{
    note("ST_ALLOC_I", *length);
    const BlockId block = store().allocate_integers(*length);
    *id = block;
    *position = store().integers(block);
}

void ST_ALLOC_R(const int64_t* length, int64_t* id, int64_t* position)
{
    note("ST_ALLOC_R", *length);
    const BlockId block = store().allocate_reals(*length);
    *id = block;
    *position = store().reals(block);
}

void ST_ALLOC_M(const int64_t* nint, const int64_t* nreal, int64_t* id, int64_t* key, int64_t* value,
                int64_t* extra)
{
    note("ST_ALLOC_M", *nint);
    const BlockId block = store().allocate_two_part(*nint, *nreal);
    *id = block;
    *key = store().keys(block);
    *value = store().values(block);
    *extra = 0;
}

void ST_REALLOC_I(const int64_t* id, const int64_t* length, int64_t* position)
{
    note("ST_REALLOC_I", *id);
    const BlockId block = *id;
    store().resize_integers(block, *length);
    *position = store().integers(block);
}

void ST_FREE(const int64_t* id)
{
    note("ST_FREE", *id);
    store().free(*id);
}

void ST_COPY_I(const int64_t* source, int64_t* target, const int64_t* count)
{
    copy("ST_COPY_I", source, target, *count);
}

void ST_COPY_R(const double* source, double* target, const int64_t* count)
{
    copy("ST_COPY_R", source, target, *count);
}

void CC_POLYMER_BLOCK(int64_t* id)
{
    note("CC_POLYMER_BLOCK");
    *id = Host::active().polymer_block();
}

int64_t CC_IS_POLYMER(const int64_t* component)
{
    return is_of_class("CC_IS_POLYMER", ComponentClass::polymer, *component);
}

int64_t CC_IS_OLIGOMER(const int64_t* component)
{
    return is_of_class("CC_IS_OLIGOMER", ComponentClass::oligomer, *component);
}

int64_t CC_IS_SEGMENT(const int64_t* component)
{
    return is_of_class("CC_IS_SEGMENT", ComponentClass::segment, *component);
}

int64_t CC_FIND_ATTR(const int64_t* selector, const int64_t* component, const int64_t* name_pair)
{
    note("CC_FIND_ATTR", *component, name_pair, *selector);
    return Host::active().attribute_offset(*component, name_of(name_pair));
}

int64_t CC_INDEX(const int64_t* list, const int64_t* count, const int64_t* value)
{
    note("CC_INDEX", *value);
    store().check_run(list, *count, "CC_INDEX");
    const int64_t* end = list + std::max<int64_t>(*count, 0);
    const int64_t* found = std::find(list, end, *value);
    return found == end ? 0 : found - list + 1;
}

void RP_RESERVE_LINES(const int64_t* lines, const int64_t* new_page, const int64_t* three,
                      const int64_t* rptglobal2)
{
    note("RP_RESERVE_LINES", *lines);
    if (*three != 3 || *rptglobal2 != ST_RPTGLOBAL[2 - 1])
        throw Error("RP_RESERVE_LINES: expected 3 and word 2 of ST_RPTGLOBAL as the last arguments");
    Host::active().report().reserve(*lines, *new_page == 1);
}

void RP_WRITE_LINE(const int32_t* unit, const int64_t* length, const char* text)
{
    note("RP_WRITE_LINE", *length);
    Host::active().report().write_line(*unit, *length, text);
}

void ST_SUMMARY_OUT(const int64_t* kind, const int64_t* length, const int64_t* data, const double* real)
{
    note("ST_SUMMARY_OUT", *kind);
    Host::active().summary().write_token(*kind, *length, data, *real);
}

void RP_SUMMARY_HEADER(const void* context, const int64_t* block_name_pair, const int64_t* zero)
{
    note("RP_SUMMARY_HEADER", 0, block_name_pair);
    Host::active().summary().write_header(context, block_name_pair, *zero);
}

}  // extern "C"

// The host services of <polyprops/host.h>, each forwarded to the active Host.
#include <polyprops/host.h>

#include <algorithm>

#include "minihost/embedded_host.h"
#include "minihost/service_log.h"

namespace minihost {

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

void expect(const char* service, const char* argument, Int seen, Int expected)
{
    if (seen != expected)
        throw Error(std::string(service) + ": " + argument + " is " + std::to_string(seen) + "; expected " +
                    std::to_string(expected));
}

// A keyword of up to 12 characters in three words.
std::string keyword_of(const Word* words)
{
    std::string text;
    for (int w = 0; w < 3; ++w) {
        const NamePair quarter = {words[w], text_word("")};
        text += name_of(quarter.data());
    }
    return text;
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

int64_t ST_ERROR_CHECK(const int64_t* routine_pair, const int64_t* severity, const int64_t* number,
                       const int64_t* global6, const int64_t* global8, const int64_t* zero1,
                       const int64_t* zero2, const int64_t* two)
{
    note("ST_ERROR_CHECK", *number);
    expect("ST_ERROR_CHECK", "argument 5", *global8, ST_GLOBAL[8 - 1]);
    expect("ST_ERROR_CHECK", "argument 6", *zero1, 0);
    expect("ST_ERROR_CHECK", "argument 7", *zero2, 0);
    expect("ST_ERROR_CHECK", "argument 8", *two, 2);
    return Host::active().messages().check(name_of(routine_pair), *severity, *number, *global6);
}

void ST_PRINT_ERROR(const int64_t* line_count)
{
    note("ST_PRINT_ERROR", *line_count);
    Host::active().messages().print(*line_count);
}

void RP_RESERVE_LINES(const int64_t* lines, const int64_t* new_page, const int64_t* three,
                      const int64_t* rptglobal2)
{
    note("RP_RESERVE_LINES", *lines, nullptr, *new_page);
    expect("RP_RESERVE_LINES", "argument 3", *three, 3);
    expect("RP_RESERVE_LINES", "argument 4", *rptglobal2, ST_RPTGLOBAL[2 - 1]);
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

void UT_GET_SENTENCE(const int64_t* number, int64_t* kind, const int64_t* /*paragraph*/, const int64_t* zero1,
                     const int64_t* zero2, const int64_t* zero3, const int64_t* zero4, int64_t* extra1,
                     int64_t* int_position, int64_t* int_length, int64_t* extra2, int64_t* real_position,
                     int64_t* real_length, int64_t* status)
{
    note("UT_GET_SENTENCE", *number);
    expect("UT_GET_SENTENCE", "the kind on entry", *kind, *number);
    for (const int64_t* zero : {zero1, zero2, zero3, zero4}) expect("UT_GET_SENTENCE", "a zero", *zero, 0);
    PolymerParagraph& sentences = Host::active().paragraph();
    if (sentences.fails(*number)) {
        *status = 2;
        return;
    }
    const auto delivery = sentences.deliver(*number);
    *kind = delivery.kind;
    *extra1 = *extra2 = 0;
    *int_position = delivery.integers;
    *int_length = delivery.integer_length;
    *real_position = delivery.reals;
    *real_length = delivery.real_length;
}

void UT_END_SENTENCES(const int64_t* /*paragraph*/)
{
    note("UT_END_SENTENCES");
    Host::active().paragraph().end();
}

void PS_FIND_COMPONENT(const int64_t* id_word1, const int64_t* id_word2, const int64_t* component_ids,
                       int64_t* status, int64_t* index)
{
    const NamePair pair = {*id_word1, *id_word2};
    note("PS_FIND_COMPONENT", 0, pair.data());
    if (component_ids != UT_COMPONENT_IDS)
        throw Error("PS_FIND_COMPONENT: argument 3 is not UT_COMPONENT_IDS");
    const std::string id = name_of(pair.data());
    const Int found = name_pair(id) == pair ? Host::active().components().find(id) : 0;
    *status = found > 0 ? 2 : 1;
    *index = found;
}

void PS_PROCESS_SENTENCE(const int64_t* code3030, const int64_t* code2, const void* semantics_context,
                         const int64_t* head_id, const int64_t* descriptor_id, int64_t* result)
{
    note("PS_PROCESS_SENTENCE", *head_id);
    expect("PS_PROCESS_SENTENCE", "argument 1", *code3030, 3030);
    expect("PS_PROCESS_SENTENCE", "argument 2", *code2, 2);
    Host& host = Host::active();
    if (semantics_context != host.semantics_context())
        throw Error("PS_PROCESS_SENTENCE: argument 3 is not the semantics context");
    *result = host.property_sentences().process(*head_id, *descriptor_id) ? 0 : 1;
}

int64_t ST_FIND_KEYWORD(const int64_t* keyword_words, const int64_t* zero)
{
    note("ST_FIND_KEYWORD");
    expect("ST_FIND_KEYWORD", "argument 2", *zero, 0);
    return KeywordTables::number(keyword_of(keyword_words));
}

int64_t ST_KEYWORD_TEXT(const int64_t* table_position, const int64_t* keyword_number, const int64_t* seven)
{
    note("ST_KEYWORD_TEXT", *keyword_number);
    expect("ST_KEYWORD_TEXT", "argument 3", *seven, 7);
    return KeywordTables::item(*table_position, *keyword_number, *seven);
}

// Any read leaves another table current, as the first one's target says.
void ST_READ_TABLE(const int64_t* table_entry, int64_t* target, int64_t* out1, int64_t* out2, int64_t* out3)
{
    note("ST_READ_TABLE", *table_entry);
    const auto reading = Host::active().keywords().read(*table_entry);
    ST_TABLES[2 - 1] = reading.table;
    *target = reading.table;
    *out1 = reading.position;
    *out2 = reading.length;
    *out3 = 0;
}

}  // extern "C"

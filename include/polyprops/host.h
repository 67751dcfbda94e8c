// The records and services that a host defines for libpolyprops.
//
// The library holds these names as undefined symbols; the loading process, or a library that it loaded
// globally before, defines them. Everything has C linkage. Every argument is an address. Word k of a record
// is element k-1 of its array; position p of the store is ST_WORDS[p-1]; a real word of the store holds the
// bits of a double.
//
// Keywords, attribute names, component IDs, routine names, block names and summary texts travel as 8-byte
// words of four characters followed by four blanks. A name pair is the address of two such consecutive words.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// ---- records -------------------------------------------------------------------------------------------

extern int64_t ST_WORDS[];          // the word store
extern int64_t ST_GLOBAL[];         // words 6, 8, 9, 10, 17, 30
extern int64_t ST_NCOMP[];          // words 6, 8, 17
extern double ST_RGLOBAL[];         // word 1 missing-value bound, word 2 zero bound
extern int64_t ST_POFF1[];          // entries 306, 540, 601, 684: parameter vector offsets, 0 when absent
extern int64_t ST_POFF4[];          // word 1: offset of the component name table
extern int64_t ST_TABLES[];         // words 1, 2
extern char ST_ERROUT[];            // message buffer: 10 lines of 80 characters, no terminators
extern int32_t ST_FILES[];          // entry 27 is the report unit
extern int64_t ST_INITV[];          // word 1 holds a real's bits, word 2 an integer
extern int64_t ST_SUMGLOBAL[];      // words 2, 3, 4: summary counters
extern int64_t ST_RPTGLOBAL[];      // words 2, 12
extern int64_t RP_PAGE[];           // word 1 lines used on the page, word 4 lines per page
extern int64_t ST_PROPTAB[];        // words 4, 7
extern int64_t UT_COMPONENT_IDS[];  // word 1: id of the component-ID block

// ---- store ---------------------------------------------------------------------------------------------

int64_t ST_FIND_I(const int64_t* id);  // position of word 1 of an integer block
int64_t ST_FIND_R(const int64_t* id);  // the same for a block of reals
void ST_FIND_M(const int64_t* id, int64_t* key, int64_t* value, int64_t* third);
void ST_ALLOC_I(const int64_t* length, int64_t* id, int64_t* position);
void ST_ALLOC_R(const int64_t* length, int64_t* id, int64_t* position);
void ST_ALLOC_M(const int64_t* nint, const int64_t* nreal, int64_t* id, int64_t* key, int64_t* value,
                int64_t* extra);
void ST_REALLOC_I(const int64_t* id, const int64_t* length, int64_t* position);
void ST_FREE(const int64_t* id);
void ST_COPY_I(const int64_t* source, int64_t* target, const int64_t* count);
void ST_COPY_R(const double* source, double* target, const int64_t* count);

// ---- components ----------------------------------------------------------------------------------------

void CC_POLYMER_BLOCK(int64_t* id);
int64_t CC_IS_POLYMER(const int64_t* component);  // only bit 0 of these three results counts
int64_t CC_IS_OLIGOMER(const int64_t* component);
int64_t CC_IS_SEGMENT(const int64_t* component);
int64_t CC_FIND_ATTR(const int64_t* selector, const int64_t* component, const int64_t* name_pair);
int64_t CC_INDEX(const int64_t* list, const int64_t* count, const int64_t* value);

// ---- messages, report, summary -------------------------------------------------------------------------

int64_t ST_ERROR_CHECK(const int64_t* routine_pair, const int64_t* severity, const int64_t* number,
                       const int64_t* global6, const int64_t* global8, const int64_t* zero1,
                       const int64_t* zero2, const int64_t* two);
void ST_PRINT_ERROR(const int64_t* line_count);

void RP_RESERVE_LINES(const int64_t* lines, const int64_t* new_page, const int64_t* three,
                      const int64_t* rptglobal2);
// One formatted record on the report unit, without its line end; an empty line has length 0.
void RP_WRITE_LINE(const int32_t* unit, const int64_t* length, const char* text);
void ST_SUMMARY_OUT(const int64_t* kind, const int64_t* length, const int64_t* data, const double* real);
void RP_SUMMARY_HEADER(const void* context, const int64_t* block_name_pair, const int64_t* zero);

// ---- input ---------------------------------------------------------------------------------------------

void UT_GET_SENTENCE(const int64_t* number, int64_t* kind, const int64_t* paragraph, const int64_t* zero1,
                     const int64_t* zero2, const int64_t* zero3, const int64_t* zero4, int64_t* extra1,
                     int64_t* int_position, int64_t* int_length, int64_t* extra2, int64_t* real_position,
                     int64_t* real_length, int64_t* status);
void UT_END_SENTENCES(const int64_t* paragraph);
void PS_FIND_COMPONENT(const int64_t* id_word1, const int64_t* id_word2, const int64_t* component_ids,
                       int64_t* status, int64_t* index);
void PS_PROCESS_SENTENCE(const int64_t* code3030, const int64_t* code2, const void* semantics_context,
                         const int64_t* head_id, const int64_t* descriptor_id, int64_t* result);
int64_t ST_FIND_KEYWORD(const int64_t* keyword_words, const int64_t* zero);
int64_t ST_KEYWORD_TEXT(const int64_t* table_position, const int64_t* keyword_number, const int64_t* seven);
void ST_READ_TABLE(const int64_t* table_entry, int64_t* target, int64_t* out1, int64_t* out2, int64_t* out3);

#ifdef __cplusplus
}
#endif

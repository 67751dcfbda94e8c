// Cases for C and every language that calls C: reads a case, changes its numbers, runs it, returns results.
//
// libpolyprops-case contains the application, an embedded host and the 70 routines: no process simulator is
// needed.
//
//   polyprops_case* blend = polyprops_case_from_file("blend.toml");
//   polyprops_case_set(blend, "streams.BLEND.attributes.PS.ZMOM", 0.15);
//   polyprops_run* run = polyprops_case_run(blend);
//   double mw;
//   if (polyprops_run_number(run, "streams.BLEND.chain_averages.PS.mw", &mw) == POLYPROPS_OK) …
//   polyprops_run_free(run);
//   polyprops_case_free(blend);
//
// Failures. Nothing here prints, exits or throws. Functions that make a handle return NULL only when out of
// memory; errors of the input are stored in the handle: its status, and its diagnostics with file, line,
// column, key and text. Functions that return a status return POLYPROPS_OUT_OF_MEMORY for a NULL handle, so
// one check at the end is enough.
//
// Pointers. Strings and arrays belong to the handle that returned them. They stay valid until that handle is
// freed, except where a comment says otherwise.
//
// Threads. Different handles may be used by different threads at the same time; one handle by one thread at a
// time. Runs within a process are serialized: there is one embedded host.
//
// Units are those of the case file: kmol/h, kg/h, g/mol, K.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __GNUC__
#pragma GCC visibility push(default)
#endif
#ifdef __cplusplus
extern "C" {
#endif

// Names and types are those of C.
// NOLINTBEGIN(modernize-use-using, readability-identifier-naming)

// A parsed case file and its numbers.
typedef struct polyprops_case polyprops_case;

// The results of one run. A run is independent of the case that it came from, which may be changed or freed.
typedef struct polyprops_run polyprops_run;

enum polyprops_status {
    POLYPROPS_OK = 0,
    POLYPROPS_CASE_ERROR = 1,  // see the diagnostics; a run may still have results
    POLYPROPS_NOT_FOUND = 2,   // no such key or entry
    POLYPROPS_OUT_OF_MEMORY = 3
};

enum polyprops_severity {
    POLYPROPS_ERROR = 0,
    POLYPROPS_MESSAGE = 1,  // one of the library's input messages: the entry that it names was dropped
    POLYPROPS_WARNING = 2
};

typedef struct polyprops_diagnostic {
    int severity;      // a polyprops_severity
    const char* file;  // name of the case, or of a measured curve that cannot be read
    uint32_t line;     // from 1; 0 without a position
    uint32_t column;   // from 1; 0 without a position
    const char* key;   // such as "streams.FEED.attributes.PS.ZMOM"; "" for the case as a whole
    const char* text;  // may contain several lines, separated by '\n'
} polyprops_diagnostic;

// The version of the library, such as "0.1.0".
const char* polyprops_version(void);

// ---- cases ----

// A case from TOML text of `size` bytes. `name` is the file that diagnostics name. Neither is kept.
polyprops_case* polyprops_case_from_text(const char* text, size_t size, const char* name);

// A case from a file.
polyprops_case* polyprops_case_from_file(const char* path);

// Frees a case and all that it returned. NULL is allowed.
void polyprops_case_free(polyprops_case* handle);

// POLYPROPS_OK if the case currently has no errors.
int polyprops_case_status(const polyprops_case* handle);

// Current errors of the case, in the order of the file, then the failure of the last get, set, compare or
// measured_option: a key that was not found, with a suggestion, a value that is not valid, or a curve that
// cannot be read. An entry is valid until the next call of one of these four.
size_t polyprops_case_diagnostic_count(const polyprops_case* handle);
int polyprops_case_diagnostic(const polyprops_case* handle, size_t index, polyprops_diagnostic* diagnostic);

// Keys of all numbers in the file, in file order, as used in messages and sweeps. NULL past the last.
size_t polyprops_case_key_count(const polyprops_case* handle);
const char* polyprops_case_key(const polyprops_case* handle, size_t index);

// Reads or replaces a number of the case; elements of arrays too (`SFLOW[1]`). POLYPROPS_NOT_FOUND: no number
// in the file has this key; nothing changes. Any value can be set: one that is out of range makes
// polyprops_case_status return POLYPROPS_CASE_ERROR until a valid one is set, and the diagnostics name it.
int polyprops_case_get(polyprops_case* handle, const char* key, double* value);
int polyprops_case_set(polyprops_case* handle, const char* key, double value);

// Compares the composite of a distribution with a measured curve in every later run: `distribution` is its
// name, NULL or "" for the only one. A NULL `path` removes the comparison. POLYPROPS_CASE_ERROR: the curve
// cannot be read or the case has no such distribution; an earlier comparison is kept.
int polyprops_case_compare(polyprops_case* handle, const char* path, const char* distribution);

// How every later polyprops_case_compare reads its file; an earlier comparison is kept as it was. A NULL
// `key` restores all defaults. Keys and values are those of the program's options, --gpc-window for "window":
//
//   "column": "m" or "log10m", the content of the first column; the default is by heading and values
//
//   "baseline": "800:2e6", a line through the signal at two molecular weights, g/mol; default none
//
//   "window": "1000:1e6", the molecular weights that are kept, g/mol; default all
//
//   "negative": "refuse" (the default) or "cut" a signal below zero
//
//   "calibration": "1.4e-4,0.7:4e-4,0.73", K1,a1:K2,a2 of standards and polymer; default none
//
//   "exponent": "0.7", the Mark-Houwink exponent for Mv; the default is that of the distribution
//
// POLYPROPS_NOT_FOUND: there is no such key. POLYPROPS_CASE_ERROR: the value is not valid. Both change
// nothing.
int polyprops_case_measured_option(polyprops_case* handle, const char* key, const char* value);

// ---- runs ----

// Runs the case as it is now.
polyprops_run* polyprops_case_run(const polyprops_case* handle);

// Frees a run and all that it returned. NULL is allowed.
void polyprops_run_free(polyprops_run* handle);

// POLYPROPS_OK if there are no errors and no messages; warnings do not count.
int polyprops_run_status(const polyprops_run* handle);

// Errors and messages, then warnings. An entry is valid until the run is freed.
size_t polyprops_run_diagnostic_count(const polyprops_run* handle);
int polyprops_run_diagnostic(const polyprops_run* handle, size_t index, polyprops_diagnostic* diagnostic);

// Single numbers by key, such as "streams.BLEND.chain_averages.PS.mw": section, name, table, row, quantity,
// as in the header of a sweep's CSV; polyprops_run_number_key lists them all. POLYPROPS_NOT_FOUND leaves
// `value` untouched.
int polyprops_run_number(const polyprops_run* handle, const char* key, double* value);
size_t polyprops_run_number_count(const polyprops_run* handle);
const char* polyprops_run_number_key(const polyprops_run* handle, size_t index);

// Arrays by key, without copying; column-major, `columns` is 1 for a vector.
//
//   distributions.NAME.distribution_curves.chain_length          grid points, segments
//                                         .molecular_weight      g/mol, when the segment weight is known
//                                         .cumulative            mass fraction up to each grid point
//                                         .composite, .site NAME the curves by their names
//   distributions.NAME.gpc_curve.molecular_weight, .chain_length, .measured, .calculated, .overlay
//   parameters.NAME.binary_parameters.T                          component × component at T K
//   parameters.NAME.binary_parameter_slopes.T                    T·dK/dT
//   parameters.NAME.binary_parameter_derivatives.T               dK/dT, of the general form
//   parameters.NAME.pair_has_data                                component × component: 1 for a pair with
//   data and on the diagonal; 0 for a pair without, whose parameters are 0 in these arrays and no single
//   numbers
//   parameters.NAME.binary_coefficients                          position × ordered pair, first component
//   fastest
//
// The array is valid until the run is freed.
int polyprops_run_array(const polyprops_run* handle, const char* key, const double** values, size_t* rows,
                        size_t* columns);
size_t polyprops_run_array_count(const polyprops_run* handle);
const char* polyprops_run_array_key(const polyprops_run* handle, size_t index);

// The results as a text, as the program prints or writes it. The report file holds pages with the text form
// and the library's own report; the summary file is empty if the run has no
// results.
enum polyprops_format {
    POLYPROPS_JSON = 0,
    POLYPROPS_TEXT = 1,
    POLYPROPS_CSV = 2,
    POLYPROPS_HTML = 3,
    POLYPROPS_REPORT_FILE = 4,
    POLYPROPS_SUMMARY_FILE = 5
};

// Created at the first call for each format. NULL for an unknown format or when out of memory. `size` may be
// NULL.
const char* polyprops_run_text(polyprops_run* handle, int format, size_t* size);

// polyprops_run_text for POLYPROPS_JSON.
const char* polyprops_run_json(polyprops_run* handle);

// NOLINTEND(modernize-use-using, readability-identifier-naming)

#ifdef __cplusplus
}
#endif
#ifdef __GNUC__
#pragma GCC visibility pop
#endif

// The functions of case.h. Each is a call on the object behind its handle; an exception becomes a status.
#include <polyprops/case.h>

#include <new>
#include <stdexcept>

#include "app/c_interface/handles.h"
#include "app/io/file_contents.h"

struct polyprops_case {
    app::CaseHandle object;
};

struct polyprops_run {
    app::RunHandle object;
    bool is_out_of_memory = false;
};

// C callers own the handles.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

namespace {

// The answer of `action`, or `otherwise` when memory runs out.
template <typename Action, typename Answer>
Answer attempt(const Action& action, Answer otherwise) noexcept
{
    try {
        return action();
    } catch (...) {
        return otherwise;
    }
}

int describe(const std::vector<app::Diagnostic>& all, const std::string& file, std::size_t index,
             polyprops_diagnostic* diagnostic)
{
    if (index >= all.size()) return POLYPROPS_NOT_FOUND;
    const auto& [source, text, severity, own_file] = all[index];
    *diagnostic = {static_cast<int>(severity),
                   own_file.empty() ? file.c_str() : own_file.c_str(),
                   source.line,
                   source.column,
                   source.key.c_str(),
                   text.c_str()};
    return POLYPROPS_OK;
}

std::string text_or_empty(const char* text)
{
    return text ? text : "";
}

polyprops_case* make_case(const char* name, const char* text, std::size_t size)
{
    return new polyprops_case{app::CaseHandle{app::CaseDocument{{text, size}, text_or_empty(name)}}};
}

const polyprops_diagnostic no_memory{POLYPROPS_ERROR, "", 0, 0, "", "there is not enough memory"};

}  // namespace

const char* polyprops_version(void)
{
    return POLYPROPS_VERSION;
}

polyprops_case* polyprops_case_from_text(const char* text, size_t size, const char* name)
{
    return attempt([&] { return make_case(name, text ? text : "", text ? size : 0); },
                   static_cast<polyprops_case*>(nullptr));
}

polyprops_case* polyprops_case_from_file(const char* path)
{
    const auto read = [&] {
        const auto name = text_or_empty(path);
        try {
            const auto text = app::input_file_contents(name);
            return make_case(path, text.data(), text.size());
        } catch (const app::FileError& error) {
            return new polyprops_case{app::CaseHandle{name, error.why()}};
        }
    };
    return attempt(read, static_cast<polyprops_case*>(nullptr));
}

void polyprops_case_free(polyprops_case* handle)
{
    delete handle;
}

int polyprops_case_status(const polyprops_case* handle)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    return handle->object.errors().empty() ? POLYPROPS_OK : POLYPROPS_CASE_ERROR;
}

size_t polyprops_case_diagnostic_count(const polyprops_case* handle)
{
    return handle ? handle->object.diagnostics().size() : 0;
}

int polyprops_case_diagnostic(const polyprops_case* handle, size_t index, polyprops_diagnostic* diagnostic)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    return describe(handle->object.diagnostics(), handle->object.file(), index, diagnostic);
}

size_t polyprops_case_key_count(const polyprops_case* handle)
{
    return handle ? handle->object.keys().size() : 0;
}

const char* polyprops_case_key(const polyprops_case* handle, size_t index)
{
    return index < polyprops_case_key_count(handle) ? handle->object.keys()[index].c_str() : nullptr;
}

int polyprops_case_get(polyprops_case* handle, const char* key, double* value)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    const auto read = [&] {
        const auto found = handle->object.number(text_or_empty(key));
        if (found) *value = *found;
        return found ? POLYPROPS_OK : POLYPROPS_NOT_FOUND;
    };
    return attempt(read, POLYPROPS_OUT_OF_MEMORY);
}

int polyprops_case_set(polyprops_case* handle, const char* key, double value)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    const auto change = [&] {
        return handle->object.set_number(text_or_empty(key), value) ? POLYPROPS_OK : POLYPROPS_NOT_FOUND;
    };
    return attempt(change, POLYPROPS_OUT_OF_MEMORY);
}

int polyprops_case_compare(polyprops_case* handle, const char* path, const char* distribution)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    if (!path) {
        handle->object.end_comparison();
        return POLYPROPS_OK;
    }
    return attempt(
        [&] {
            return handle->object.compare(path, text_or_empty(distribution)) ? POLYPROPS_OK
                                                                             : POLYPROPS_CASE_ERROR;
        },
        POLYPROPS_OUT_OF_MEMORY);
}

int polyprops_case_measured_option(polyprops_case* handle, const char* key, const char* value)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    const auto change = [&] {
        return key ? handle->object.set_measured_option(key, text_or_empty(value))
                   : handle->object.reset_measured_options();
    };
    return attempt(change, static_cast<int>(POLYPROPS_OUT_OF_MEMORY));
}

polyprops_run* polyprops_case_run(const polyprops_case* handle)
{
    if (!handle) return nullptr;
    const auto run = [&] { return new polyprops_run{app::RunHandle{handle->object}}; };
    const auto failed = [] {
        auto* handle_only = new polyprops_run{};
        handle_only->is_out_of_memory = true;
        return handle_only;
    };
    polyprops_run* const none = nullptr;
    polyprops_run* made = attempt(run, none);
    return made ? made : attempt(failed, none);
}

void polyprops_run_free(polyprops_run* handle)
{
    delete handle;
}

int polyprops_run_status(const polyprops_run* handle)
{
    if (!handle || handle->is_out_of_memory) return POLYPROPS_OUT_OF_MEMORY;
    return handle->object.is_good() ? POLYPROPS_OK : POLYPROPS_CASE_ERROR;
}

size_t polyprops_run_diagnostic_count(const polyprops_run* handle)
{
    if (!handle) return 0;
    return handle->is_out_of_memory ? 1 : handle->object.report().diagnostics.size();
}

int polyprops_run_diagnostic(const polyprops_run* handle, size_t index, polyprops_diagnostic* diagnostic)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    if (handle->is_out_of_memory) {
        if (index > 0) return POLYPROPS_NOT_FOUND;
        *diagnostic = no_memory;
        return POLYPROPS_OK;
    }
    const auto& report = handle->object.report();
    return describe(report.diagnostics, report.file, index, diagnostic);
}

int polyprops_run_number(const polyprops_run* handle, const char* key, double* value)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    const auto* found = key ? handle->object.number(key) : nullptr;
    if (!found) return POLYPROPS_NOT_FOUND;
    *value = *found;
    return POLYPROPS_OK;
}

size_t polyprops_run_number_count(const polyprops_run* handle)
{
    return handle ? handle->object.number_keys().size() : 0;
}

const char* polyprops_run_number_key(const polyprops_run* handle, size_t index)
{
    return index < polyprops_run_number_count(handle) ? handle->object.number_keys()[index].c_str() : nullptr;
}

int polyprops_run_array(const polyprops_run* handle, const char* key, const double** values, size_t* rows,
                        size_t* columns)
{
    if (!handle) return POLYPROPS_OUT_OF_MEMORY;
    const auto* found = key ? handle->object.array(key) : nullptr;
    if (!found) return POLYPROPS_NOT_FOUND;
    *values = found->values;
    *rows = found->rows;
    *columns = found->columns;
    return POLYPROPS_OK;
}

size_t polyprops_run_array_count(const polyprops_run* handle)
{
    return handle ? handle->object.arrays().size() : 0;
}

const char* polyprops_run_array_key(const polyprops_run* handle, size_t index)
{
    return index < polyprops_run_array_count(handle) ? handle->object.arrays()[index].key.c_str() : nullptr;
}

const char* polyprops_run_text(polyprops_run* handle, int format, size_t* size)
{
    if (!handle || handle->is_out_of_memory) return nullptr;
    const std::string* const none = nullptr;
    const auto* text = attempt([&] { return handle->object.text(format); }, none);
    if (!text) return nullptr;
    if (size) *size = text->size();
    return text->c_str();
}

const char* polyprops_run_json(polyprops_run* handle)
{
    return polyprops_run_text(handle, POLYPROPS_JSON, nullptr);
}

// NOLINTEND(cppcoreguidelines-owning-memory)

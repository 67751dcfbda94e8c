// Every number that a run produces, as values.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "app/case/input_message.h"
#include "app/evaluation/distribution_results.h"
#include "app/evaluation/parameter_results.h"
#include "app/evaluation/reactors.h"
#include "app/evaluation/stream_results.h"
#include "minihost/report_file.h"

namespace app {

// Output of the library's own report and summary routines.
struct LibraryOutput {
    std::vector<minihost::ReportPage> report_pages;
    std::string summary;
};

struct Results {
    bool is_complete = false;            // false: an error ended the run before its results
    std::vector<InputMessage> messages;  // of the library's input checks
    std::vector<Diagnostic> errors;      // values of streams that were refused
    std::vector<Diagnostic> warnings;
    std::vector<StreamResults> streams;
    std::vector<ReactorResults> reactors;
    std::vector<DistributionResults> distributions;
    std::vector<ParameterResults> parameters;
    LibraryOutput library_output;
};

// One stream of a case on two bases.
struct ConversionResults {
    bool is_complete = false;
    std::vector<InputMessage> messages;
    std::vector<Diagnostic> errors;
    std::vector<Diagnostic> warnings;
    std::string stream;
    Compositions compositions;
};

}  // namespace app

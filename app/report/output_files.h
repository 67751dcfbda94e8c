// The files of a run.
#pragma once

#include <string>
#include <vector>

#include "app/evaluation/results.h"
#include "app/io/file_set.h"
#include "app/report/report_model.h"

namespace app {

// The text form of the report on numbered pages, then the pages of the library's own report.
std::string report_file(const Case& input, const Report& report, const LibraryOutput& library_output);

// NAME.rpt, NAME.sum, NAME.csv, NAME.json, NAME.html, and NAME.DISTRIBUTION.csv with the curves of each
// distribution. Throws std::runtime_error when two files would have the same name.
std::vector<OutputFile> output_files(const std::string& name, const Case& input, const Report& report,
                                     const LibraryOutput& library_output);

// NAME.fit.txt, .csv, .json, .html, and NAME.fit.curves.csv with the curves of the sites.
std::vector<OutputFile> fit_files(const std::string& name, const Report& report);

}  // namespace app

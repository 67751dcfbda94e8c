// The files of a run.
#pragma once

#include <string>
#include <vector>

#include "app/evaluation/results.h"
#include "app/io/file_set.h"
#include "app/report/report_model.h"
#include "app/report/result_numbers.h"

namespace app {

// The text form of the report on numbered pages, then the pages of the library's own report.
std::string report_file(const Case& input, const Report& report, const LibraryOutput& library_output);

// NAME.rpt, NAME.sum, NAME.csv, NAME.json, NAME.html, and NAME.DISTRIBUTION.csv with the curves of each
// distribution, whose name has only letters, digits, - and _ there, and a number where it is taken.
std::vector<OutputFile> output_files(const std::string& name, const Case& input, const Report& report,
                                     const LibraryOutput& library_output, CsvTexts texts = CsvTexts::exact);

// NAME.fit.txt, .csv, .json, .html, and NAME.fit.curves.csv with the curves of the sites.
std::vector<OutputFile> fit_files(const std::string& name, const Report& report,
                                  CsvTexts texts = CsvTexts::exact);

}  // namespace app

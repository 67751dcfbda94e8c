// The files of a run.
#pragma once

#include <filesystem>
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

// The names of all files that a run may write, and of those that a fit writes.
std::vector<std::string> output_names(const std::string& name, const Case& input);
std::vector<std::string> fit_names(const std::string& name);

// The files of a directory that look like curves of an earlier run of the case, NAME.DISTRIBUTION.csv, and
// are not among `files`: the distribution has gone or has another name.
std::vector<std::filesystem::path> earlier_files(const std::filesystem::path& directory,
                                                 const std::string& name,
                                                 const std::vector<OutputFile>& files);

// NAME.fit.txt, .csv, .json, .html, and NAME.fit.curves.csv with the curves of the sites.
std::vector<OutputFile> fit_files(const std::string& name, const Report& report,
                                  CsvTexts texts = CsvTexts::exact);

}  // namespace app

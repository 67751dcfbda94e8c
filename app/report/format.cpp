#include "app/report/format.h"

#include <fmt/format.h>

#include "app/evaluation/evaluation.h"
#include "app/io/visible_text.h"

namespace app {

std::string formatted(const Report& report, Format format, CsvTexts texts)
{
    if (format == Format::text) return format_text(report);
    return format == Format::csv ? format_csv(report, texts) : format_json(report);
}

std::string format_measured_curve(const DistributionResults& distribution)
{
    auto text = fmt::format(
        "# composite of the distribution {}, {} g/mol per segment: dw/dlog10(M) over M in g/mol\n"
        "molecular_weight,signal\n",
        visible(distribution.name), required_segment_weight(distribution));
    for (std::size_t k = 0; k < distribution.lengths.size(); ++k)
        text += fmt::format("{},{}\n", distribution.molecular_weights[k],
                            distribution.composite().chromatogram[k]);
    return text;
}

}  // namespace app

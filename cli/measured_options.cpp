#include "cli/measured_options.h"

#include <stdexcept>
#include <string>

#include "app/case/measured_options.h"

namespace cli {

void add_measured_options(CLI::App& command, CLI::Option* gpc, app::MeasuredCurveOptions& options)
{
    for (const auto& option : app::measured_options()) {
        const auto name = std::string{"--gpc-"} + option.key;
        const auto read = [&option, &options, name](const std::string& seen) {
            try {
                app::set(option, seen, options);
            } catch (const std::invalid_argument& error) {
                throw CLI::ValidationError{name, error.what()};
            }
        };
        command.add_option_function<std::string>(name, read, option.purpose)
            ->type_name(option.form)
            ->needs(gpc);
    }
}

}  // namespace cli

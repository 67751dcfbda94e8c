// Whether a command may write where it is to.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace app {

// Outputs are added before anything is written; the first that may not be leaves its reason.
class OutputCheck {
public:
    explicit OutputCheck(std::vector<std::filesystem::path> inputs) : inputs_(std::move(inputs)) {}

    // `option` names the output in the reason.
    void add_file(const std::string& option, const std::filesystem::path& file);
    // A file that the command makes for itself: nothing else, such as a link or a device, may have its name.
    void add_own_file(const std::string& option, const std::filesystem::path& file);
    void add_directory(const std::string& option, const std::filesystem::path& directory,
                       const std::vector<std::string>& names);

    // An output that is an input, a directory in place of a file or the reverse, or another output as well.
    // Empty when there is none.
    const std::string& reason() const { return reason_; }

private:
    void refuse(std::string reason);

    std::vector<std::filesystem::path> inputs_;
    std::vector<std::filesystem::path> outputs_;
    std::string reason_;
};

}  // namespace app

#include "app/sweep/sweep_journal.h"

#include <fmt/format.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <stdexcept>

#include "app/io/file_contents.h"
#include "app/io/whole_file.h"

namespace app {

SweepJournal::SweepJournal(std::filesystem::path result, const std::string& sweep, std::string header)
    : result_(std::move(result)), file_(result_.string() + ".partial"), header_(std::move(header))
{
    const bool is_new = !std::filesystem::exists(file_);
    if (!is_new) take_up(sweep);
    stream_ = FileHandle{std::fopen(file_.c_str(), "ab")};
    if (!stream_)
        throw std::runtime_error{
            fmt::format("{}: cannot be written: {}", file_.string(), std::strerror(errno))};
    if (is_new) append(sweep + "\n" + header_ + "\n");
}

// A row that was cut short when the sweep was interrupted is dropped; its case runs again.
void SweepJournal::take_up(const std::string& sweep)
{
    const auto text = file_contents(file_);
    if (!text.starts_with(sweep + "\n" + header_ + "\n"))
        throw std::runtime_error{fmt::format(
            "{}: belongs to another sweep, or to another state of the case; expected one of this sweep, "
            "or none: remove it, or write elsewhere with --out",
            file_.string())};
    std::size_t at = sweep.size() + header_.size() + 2;
    for (auto end = text.find('\n', at); end != std::string::npos; at = end + 1, end = text.find('\n', at)) {
        std::size_t number = 0;
        std::from_chars(text.data() + at, text.data() + end, number);
        rows_[number] = text.substr(at, end - at);
    }
    std::filesystem::resize_file(file_, at);
}

void SweepJournal::append(const std::string& line)
{
    if (std::fwrite(line.data(), 1, line.size(), stream_.get()) != line.size() ||
        std::fflush(stream_.get()) != 0)
        throw std::runtime_error{
            fmt::format("{}: cannot be written: {}", file_.string(), std::strerror(errno))};
}

void SweepJournal::add(std::size_t number, const std::string& row)
{
    append(row + "\n");
    rows_[number] = row;
}

void SweepJournal::finish()
{
    std::string text = header_ + "\n";
    for (const auto& [number, row] : rows_) text += row + "\n";
    write_whole_file(result_, text);
    stream_.reset();
    std::filesystem::remove(file_);
}

}  // namespace app

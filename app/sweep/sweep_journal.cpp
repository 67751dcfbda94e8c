#include "app/sweep/sweep_journal.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <stdexcept>

#include "app/io/whole_file.h"
#include "app/sweep/checksum.h"

namespace app {

namespace {

constexpr std::string_view title = "# sweep of ";
constexpr std::size_t digits = 16;  // of a checksum

std::string with_checksum(std::string_view covered, std::string_view text)
{
    return fmt::format("{:0{}x} {}\n", checksum(text, checksum(covered)), digits, text);
}

// The text behind a checksum.
std::string_view text_of(std::string_view line)
{
    return line.substr(std::min(line.size(), digits + 1));
}

bool is_head(std::string_view line)
{
    const auto text = text_of(line);
    return text.starts_with(title) && text.ends_with('\n') &&
           with_checksum({}, text.substr(0, text.size() - 1)) == line;
}

std::string_view first_line(std::string_view text)
{
    return text.substr(0, text.find('\n') + 1);
}

}  // namespace

SweepJournal::SweepJournal(std::filesystem::path result, const std::string& sweep, std::size_t cases)
    : result_(std::move(result)), head_(with_checksum({}, std::string{title} + sweep)), cases_(cases)
{
    file_ = file_for(result_);
    if (file_.empty()) return;
    descriptor_ = open_file(file_, O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW);
    if (!descriptor_) throw_not_written(file_);
    lock();
    const auto text = read_all(descriptor_.number());
    if (!text) throw_not_written(file_);
    take_up(*text);
}

std::filesystem::path SweepJournal::file_for(const std::filesystem::path& result)
{
    return is_stream(result) ? std::filesystem::path{} : std::filesystem::path{result.string() + ".partial"};
}

// A lock of this process: its children, which may outlive it, do not keep it.
void SweepJournal::lock() const
{
    constexpr off_t all = 0;
    if (::lockf(descriptor_.number(), F_TLOCK, all) != 0 && (errno == EACCES || errno == EAGAIN))
        throw_not_written(file_, "another sweep is writing it");
}

// Sound lines up to the first damaged one stay in their place; those behind it are written again.
void SweepJournal::take_up(const std::string& text)
{
    const bool is_mine = text.starts_with(head_);
    if (!is_mine && is_head(first_line(text)))
        throw std::runtime_error{fmt::format(
            "{}: belongs to another sweep, or to another state of the case; expected one of this sweep, "
            "or none: remove it, or write elsewhere with --out",
            file_.string())};
    std::size_t sound = is_mine ? head_.size() : 0;
    std::string again = is_mine ? "" : head_;
    bool is_sound = is_mine;
    std::string_view rest = std::string_view{text}.substr(sound);
    for (auto line = first_line(rest); !line.empty();
         rest.remove_prefix(line.size()), line = first_line(rest)) {
        const bool is_accepted = accept(line);
        is_sound = is_sound && is_accepted;
        if (is_sound) sound += line.size();
        if (is_accepted && !is_sound) again += line;
    }
    if (::ftruncate(descriptor_.number(), static_cast<off_t>(sound)) != 0) throw_not_written(file_);
    append(again);
}

bool SweepJournal::accept(std::string_view line)
{
    auto row = text_of(line);
    if (!row.ends_with('\n')) return false;
    row.remove_suffix(1);
    if (this->line(row) != line) return false;
    std::size_t number = 0;
    std::from_chars(row.data(), row.data() + row.size(), number);
    return number >= 1 && number <= cases_ && rows_.emplace(number, row).second;
}

std::string SweepJournal::line(std::string_view row) const
{
    return with_checksum(head_, row);
}

void SweepJournal::append(std::string_view text) const
{
    if (descriptor_ && !write_all(descriptor_.number(), text)) throw_not_written(file_);
}

void SweepJournal::add(std::size_t number, const std::string& row)
{
    append(line(row));
    rows_[number] = row;
}

void SweepJournal::finish(const std::string& header)
{
    std::string text = header + "\n";
    for (const auto& [number, row] : rows_) text += row + "\n";
    write_whole_file(result_, text);
    if (descriptor_) std::filesystem::remove(file_);
}

}  // namespace app

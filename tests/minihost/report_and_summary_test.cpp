#include <polyprops/host.h>

#include "minihost/embedded_host.h"
#include "support/refusal.h"
#include "support/world.h"

namespace minihost {
namespace {

using support::World;

bool is_refused(const std::function<void()>& action, const std::string& reason)
{
    return support::refusal(action).find(reason) != std::string::npos;
}

void write(Host& host, std::string_view line, std::int32_t unit = ST_FILES[27 - 1])
{
    host.report().write_line(unit, static_cast<Int>(line.size()), line.data());
}

TEST(ReportFile, StartsAPageWhenLinesDoNotFitAndRefusesBadOnes)
{
    World unreserved, world;
    auto& bare = unreserved.host();
    write(bare, "one");
    EXPECT_EQ(bare.report().pages(), (std::vector<ReportPage>{{"one"}}));
    auto& host = world.host();
    host.report().set_lines_per_page(3);
    host.report().set_title("CASE");
    host.report().reserve(2, true);
    write(host, "one");
    write(host, "");
    host.report().reserve(1, false);
    write(host, "fits");
    host.report().reserve(1, false);
    host.report().reserve(9, true);  // the page is still empty
    write(host, "next");
    EXPECT_EQ(host.report().pages(), (std::vector<ReportPage>{{"one", "", "fits"}, {"next"}}));
    const std::string gap(80 - 4 - 6, ' ');
    EXPECT_EQ(host.report().text(),
              "CASE" + gap + "Page 1\n\none\n\nfits\n\fCASE" + gap + "Page 2\n\nnext\n");
    const std::string long_title(73, 'T');
    EXPECT_EQ(page_text(long_title, {{}}), long_title + "  Page 1\n\n") << "two blanks at least";
    EXPECT_EQ(RP_PAGE[1 - 1], 1);
    EXPECT_TRUE(is_refused([&] { write(host, "text", 99); }, "unit 99"));
    EXPECT_TRUE(is_refused([&] { write(host, "two\nlines"); }, "line end"));
    EXPECT_TRUE(is_refused([&] { host.report().write_line(12, -1, ""); }, "length -1"));
    EXPECT_TRUE(is_refused([&] { host.report().reserve(-1, false); }, "reserved report lines: -1"));
    EXPECT_TRUE(is_refused([&] { host.report().set_lines_per_page(0); }, "lines per page: 0"));
}

TEST(SummaryFile, RefusesTokensThatBreakARule)
{
    const Word zero = 0, one = 1, two = 2;
    const Word packed = text_word("NPOINT"), longer[] = {text_word("YCSD"), text_word("S")};
    const double unset = 1e35;
    const struct {
        Int kind, length;
        const Word* data;
        double real;
        const char* reason;
    } cases[] = {
        {4, 0, &zero, unset, "unknown kind"},
        {5, 0, &two, unset, "break with data 2"},
        {5, 1, &zero, unset, "expected length 0"},
        {0, 0, &one, 1.0, "a real where none belongs"},
        {0, -1, &zero, 1.0, "an integer where none belongs"},
        {0, 6, &packed, unset, "four blanks"},
        {0, 11, longer, unset, "1 to 10 characters"},
        {7, 2, longer, unset, "beyond the length"},
        {1, 1, longer, unset, "beyond the length"},
        {1, 4, longer, unset, "expected one blank"},
        {7, 0, longer, unset, "1 to 10 characters"},
        {8, 1, &one, unset, "the integer 1"},
        {8, 0, &two, unset, "the integer 1"},
    };
    for (const auto& c : cases) {
        World world;
        const auto write = [&] { world.host().summary().write_token(c.kind, c.length, c.data, c.real); };
        EXPECT_TRUE(is_refused(write, c.reason)) << c.reason << ": " << support::refusal(write);
    }
    World world;
    auto& summary = world.host().summary();
    EXPECT_TRUE(is_refused([&] { summary.write_header(&summary, longer, 0); }, "YCSDS: unknown context"));
    EXPECT_TRUE(is_refused([&] { summary.write_header(summary.context("C"), longer, 1); }, "not 0"));
}

TEST(OutputFiles, GiveTheirText)
{
    World world;
    auto& host = world.host();
    const Word none = -1, quote = text_word("a\"\\");
    host.summary().write_token(0, 3, &quote, 1e35);
    host.summary().write_token(0, -1, &none, 0.1);
    EXPECT_EQ(host.summary().text(), "summary 1\nword \"a\\\"\\\\\"\nreal 0.1\n");
}

}  // namespace
}  // namespace minihost

// Plot data of a distribution: axes as numbered index sets, and three blocks of values, each after the list
// set that ties it to its axes.
//
//   D     NPOINT      the grid points          YCSD    composite distribution   D+1, D
//   D+1   PROPERTIES  40001, distribution      XCSD    chain lengths            D+2, D
//   D+2   PROPERTIES  40002, chain length      YCSDS   section after section    D+4, D, D+3
//   D+3   TRAY_NO     the sections
//   D+4   PROPERTIES  40009, of sections
#include "report/distribution_summary.h"

#include <initializer_list>

#include "host/summary_channel.h"

namespace polyprops::report {

namespace {

constexpr NamePair composite_block{"YCSD"};
constexpr NamePair lengths_block{"XCSD"};
constexpr NamePair sections_block{"YCSDS"};

template <class Body>
void index_set(std::string_view name, Body write_body)
{
    summary::definition_break();
    summary::text_token("IDSET");
    summary::label("ID_");
    summary::integer(summary::next_data_set());
    summary::name(name);
    summary::open();
    write_body();
    summary::close();
    summary::count_data_set();
}

void count_set(std::string_view name, Int count)
{
    index_set(name, [&] {
        summary::label("#");
        summary::integer(count);
    });
}

void property_set(Int code)
{
    index_set("PROPERTIES", [&] {
        summary::integer(code);
        summary::text_token("*2");
    });
}

void list_set(std::initializer_list<Int> data_sets)
{
    summary::definition_break();
    summary::text_token("LSET");
    summary::label("L_");
    summary::integer(summary::next_list_set());
    summary::open();
    bool is_first = true;
    for (const Int data_set : data_sets) {
        if (!is_first) summary::text_token("&");
        summary::label("%ID_");
        summary::integer(data_set);
        is_first = false;
    }
    summary::close();
    summary::count_list_set();
}

void write_column(const PlotData& data, Int column)
{
    for (Int k = 1; k <= data.points; ++k) summary::real(data.values(k, column));
}

}  // namespace

void write_plot_data(const void* context, const PlotData& data)
{
    const Int points_set = summary::next_data_set();
    count_set("NPOINT", data.points);
    property_set(40001);
    property_set(40002);
    list_set({summary::next_data_set() - 2, summary::next_data_set() - 3});
    summary::data_block(context, composite_block, [&] { write_column(data, 1); });
    list_set({summary::next_data_set() - 1, summary::next_data_set() - 3});
    summary::data_block(context, lengths_block, [&] {
        for (Int k = 1; k <= data.points; ++k) summary::real(data.lengths(k) * data.length_scale);
    });
    count_set("TRAY_NO", data.sections);
    property_set(40009);
    list_set({summary::next_data_set() - 1, points_set, summary::next_data_set() - 2});
    summary::data_block(context, sections_block, [&] {
        for (Int c = 1; c <= data.sections; ++c) write_column(data, c + 1);
    });
}

}  // namespace polyprops::report

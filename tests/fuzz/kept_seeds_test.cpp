#include "support/kept_seeds.h"

#include "fuzz/cases.h"

TEST(KeptSeeds, RunThroughTheirTargets)
{
    support::replay("case", polyprops_fuzz::check_case_text);
    support::replay("curve", polyprops_fuzz::check_curve_text);
    support::replay("paragraphs", polyprops_fuzz::check_paragraphs);
    support::replay("routine", polyprops_fuzz::check_routines);
}

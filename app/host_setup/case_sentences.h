// The polymer paragraph of a case in the form in which a host hands it to the library.
#pragma once

#include <vector>

#include "app/case/case_model.h"
#include "minihost/paragraph_sentences.h"
#include "minihost/scaling_sentence.h"

namespace app {

// One sentence for each list that is not empty.
std::vector<minihost::Sentence> sentences(const Paragraph& paragraph);

// Entries of the CATSCALE sentence; a value that is absent is at the missing-value bound.
std::vector<minihost::ScalingEntry> scaling_entries(const Case& input);

}  // namespace app

// Attributes of a component as the case names them and gives their values.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/case/case_model.h"

namespace app {

using Segments = std::vector<const Component*>;  // those of the case, in component order
Segments segments_of(const Case& input);

// The attributes that the paragraph gives to a component.
std::vector<std::string> carried_attributes(const Case& input, const std::string& component);

// Null when the stream does not give it.
const AttributeValue* find_attribute(const Stream& stream, const std::string& component,
                                     const std::string& name);

// The value of an attribute with one element; empty when it is not given or has none.
std::optional<double> number_of(const Stream& stream, const std::string& component, const std::string& name);

// The elements in the order of the segments, also when they are given by segment ID.
std::vector<double> by_position(const AttributeValue& value, const Segments& segments);

}  // namespace app

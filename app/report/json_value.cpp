#include "app/report/json_value.h"

#include <algorithm>

#include "app/io/visible_text.h"

namespace app {

namespace {

// The library escapes control characters below blank only; a terminal obeys those from DEL to U+009F too.
std::string without_controls(const std::string& json)
{
    return has_control_characters(json) ? visible(json) : json;
}

}  // namespace

JsonValue& JsonValue::operator[](const std::string& key)
{
    kind_ = Kind::object;
    const auto found = std::ranges::find(
        members_, key, [](const auto& member) -> const auto& { return member.first; });
    return found != members_.end() ? found->second : members_.emplace_back(key, JsonValue{}).second;
}

void JsonValue::push_back(JsonValue value)
{
    kind_ = Kind::array;
    members_.emplace_back("", std::move(value));
}

std::string JsonValue::dump() const
{
    std::string out;
    append(out, 0);
    return out;
}

std::string JsonValue::text(const nlohmann::json& scalar)
{
    return without_controls(scalar.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

void JsonValue::append(std::string& out, std::size_t indent) const
{
    if (kind_ == Kind::none || kind_ == Kind::scalar) {
        out += kind_ == Kind::none ? "null" : text_;
        return;
    }
    const bool is_object = kind_ == Kind::object;
    out += is_object ? '{' : '[';
    for (const auto& [key, value] : members_) {
        out += &key == &members_.front().first ? "\n" : ",\n";
        out.append(indent + 2, ' ');
        if (is_object) out += text(nlohmann::json(key)) + ": ";
        value.append(out, indent + 2);
    }
    if (!members_.empty()) out.append("\n").append(indent, ' ');
    out += is_object ? '}' : ']';
}

}  // namespace app

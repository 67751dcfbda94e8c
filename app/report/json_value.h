// A JSON value with its members in the order in which they were added. Unlike those of the JSON library,
// objects and arrays need no memory to be destroyed, so that a report can fail without it.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <utility>
#include <vector>

namespace app {

class JsonValue {
public:
    JsonValue() = default;
    template <typename Scalar>
    static JsonValue scalar(const Scalar& value)
    {
        JsonValue made{Kind::scalar};
        made.text_ = text(nlohmann::json(value));
        return made;
    }
    static JsonValue array() { return JsonValue{Kind::array}; }
    static JsonValue object() { return JsonValue{Kind::object}; }

    // A member of an object, added when it is new. A value without a kind becomes an object.
    JsonValue& operator[](const std::string& key);
    template <typename Scalar>
    void set(const std::string& key, const Scalar& value)
    {
        (*this)[key] = scalar(value);
    }
    // A value without a kind becomes an array.
    void push_back(JsonValue value);

    // Two blanks for each level.
    std::string dump() const;

private:
    enum class Kind { none, scalar, array, object };
    explicit JsonValue(Kind kind) : kind_(kind) {}
    // Bytes that are not UTF-8, as a file name may have, become U+FFFD.
    static std::string text(const nlohmann::json& scalar);
    void append(std::string& out, std::size_t indent) const;

    Kind kind_ = Kind::none;
    std::string text_;                                        // of a scalar
    std::vector<std::pair<std::string, JsonValue>> members_;  // of an array with empty keys
};

}  // namespace app

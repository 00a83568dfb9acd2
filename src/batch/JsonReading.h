// Reading of JSON from elsewhere, with messages that name key and reason.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace velorix {

// Numbers are read as 32-bit floats from their text, so that they round once. The library reads them by the
// process locale, which the batch leaves at the start's, with a point.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, float>;

// The object that the text holds. Throws Failure for a text that can't be read or is no object, for a key
// that stands twice in an object, and for objects and lists that lie deeper in each other than
// DeepestNesting.
Json ParseJsonObject(const std::string& Text, int DeepestNesting);

// Throws Failure.
[[noreturn]] void Refuse(const std::string& Key, const std::string& Reason);
void RequireList(const std::string& Key, const Json& Value);

// The whole number. Throws Failure for any other value, and for a number out of the range.
std::int16_t WholeNumber(const std::string& Key, const Json& Value, int Least, int Most);

// The value as a message may show it, however long it is.
std::string Shown(const Json& Value);

} // namespace velorix

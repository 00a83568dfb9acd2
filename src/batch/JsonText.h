// JSON text with exact numbers.
#pragma once

#include "base/Single.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velorix {

// The number as JSON: the shortest decimal that reads back as the same 32 bits. JSON has no words for numbers
// that aren't finite: they become null, or, where nothing may be lost, a text such as "NaN".
enum class NotFinite { Null, Text };
std::string JsonNumber(Single Value, NotFinite Rule = NotFinite::Null);
std::string JsonString(const std::string& Text);

// "[a, b, c]" of ready JSON texts.
std::string JsonList(const std::vector<std::string>& Entries);

// A flat object, its members in the order in which they are added, one to a line.
class JsonObject {
public:
    void Add(const std::string& Name, const std::string& Json);
    std::string Text() const;

private:
    std::vector<std::pair<std::string, std::string>> Members;
};

} // namespace velorix

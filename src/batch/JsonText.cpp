// Writing of JSON. The library's own float text isn't always the shortest, so numbers are written here.
#include "batch/JsonText.h"

#include "base/NumberText.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace velorix {

std::string JsonNumber(Single Value, NotFinite Rule)
{
    if (!std::isfinite(Value.Float()))
        return Rule == NotFinite::Null ? "null" : JsonString(GeneralText(Value));
    if (Value == 0.0 && std::signbit(Value.Float())) return "-0.0"; // "-0" would be read as an integer
    return GeneralText(Value);
}

std::string JsonString(const std::string& Text)
{
    return nlohmann::json(Text).dump();
}

std::string JsonList(const std::vector<std::string>& Entries)
{
    std::string Result = "[";
    for (const std::string& Each : Entries) Result += (Result.size() > 1 ? ", " : "") + Each;
    return Result + "]";
}

void JsonObject::Add(const std::string& Name, const std::string& Json)
{
    Members.emplace_back(Name, Json);
}

std::string JsonObject::Text() const
{
    std::string Result = "{";
    for (const auto& [Name, Json] : Members)
        Result += (Result.size() > 1 ? ",\n  " : "\n  ") + JsonString(Name) + ": " + Json;
    return Result + "\n}";
}

} // namespace velorix

// Parsing under watch, and refusals.
#include "batch/JsonReading.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <map>
#include <set>

namespace velorix {
namespace {

constexpr std::size_t LongestShown = 40; // bytes of a file's own text in a message

std::string Shortened(const std::string& Text, std::size_t Longest = LongestShown)
{
    if (Text.size() <= Longest) return Text;
    std::size_t End = Longest;
    while (End > 0 && !StartsCharacter(Text[End])) --End; // not within a character
    return Text.substr(0, End) + "...";
}

// Refuses, while the text is read, what the object that comes of it would hide or be too deep to handle.
class Watch {
public:
    explicit Watch(int DeepestNesting)
        : Deepest(DeepestNesting)
    {
    }

    bool operator()(int Depth, Json::parse_event_t Event, const Json& Value)
    {
        const bool StartsObject = Event == Json::parse_event_t::object_start;
        if ((StartsObject || Event == Json::parse_event_t::array_start) && Depth >= Deepest)
            throw Failure("lists are nested deeper than any field's");
        if (StartsObject) Keys[Depth + 1].clear();
        if (Event == Json::parse_event_t::key) {
            const auto Key = Value.get<std::string>();
            if (!Keys[Depth].insert(Key).second) Refuse(Key, "the field is given twice");
        }
        return true;
    }

private:
    int Deepest;
    std::map<int, std::set<std::string>> Keys; // of the objects that are open, by their depth
};

} // namespace

Json ParseJsonObject(const std::string& Text, int DeepestNesting)
{
    constexpr std::size_t LongestReason = 200; // the library quotes what it read last
    try {
        Watch Seen(DeepestNesting);
        Json Object = Json::parse(Text, [&](int Depth, Json::parse_event_t Event, const Json& Value) {
            return Seen(Depth, Event, Value);
        });
        if (!Object.is_object()) throw Failure("the file must hold one JSON object");
        return Object;
    } catch (const Json::exception& Problem) {
        throw Failure("the JSON can't be read: " + Shortened(Problem.what(), LongestReason));
    }
}

void Refuse(const std::string& Key, const std::string& Reason)
{
    throw Failure(Shortened(Key) + ": " + Reason);
}

void RequireList(const std::string& Key, const Json& Value)
{
    if (!Value.is_array()) Refuse(Key, "a list is expected, not " + Shown(Value));
}

std::int16_t WholeNumber(const std::string& Key, const Json& Value, int Least, int Most)
{
    if (!Value.is_number_integer()) Refuse(Key, "a whole number is expected, not " + Shown(Value));
    const std::int64_t Number = Value.get<std::int64_t>();
    if (Number < Least || Number > Most)
        Refuse(Key, Shown(Value) + " is outside " + std::to_string(Least) + " to " + std::to_string(Most));
    return static_cast<std::int16_t>(Number);
}

std::string Shown(const Json& Value)
{
    if (Value.is_array()) return "a list";
    return Value.is_object() ? "an object" : Shortened(Value.dump());
}

} // namespace velorix

// JSON of the items, by kind.
#include "batch/DisplayListJson.h"

#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace velorix {
namespace {

using Json = nlohmann::ordered_json;

std::string ColorText(Color Value)
{
    char Text[8];
    std::snprintf(Text, sizeof Text, "#%02x%02x%02x", Value.Red(), Value.Green(), Value.Blue());
    return Text;
}

struct ToJson {
    Json operator()(const LineItem& Line) const
    {
        return {{"kind", "line"},
                {"x1", Line.X1},
                {"y1", Line.Y1},
                {"x2", Line.X2},
                {"y2", Line.Y2},
                {"color", ColorText(Line.Ink)},
                {"width", std::lround(Line.Width * TwipsPerPixel)},
                {"dashed", Line.Dashed}};
    }
    Json operator()(const BoxItem& Box) const
    {
        return {{"kind", "box"}, {"x1", Box.X1}, {"y1", Box.Y1},
                {"x2", Box.X2},  {"y2", Box.Y2}, {"color", ColorText(Box.Fill)}};
    }
    Json operator()(const CircleItem& Circle) const
    {
        return {{"kind", "circle"},
                {"x", Circle.X},
                {"y", Circle.Y},
                {"r", Circle.Radius},
                {"color", ColorText(Circle.Ink)}};
    }
    Json operator()(const TextItem& Text) const
    {
        return {{"kind", "text"},
                {"x", Text.X},
                {"y", Text.Y},
                {"width", Text.Width},
                {"text", Text.Text},
                {"size", Text.Face.Size},
                {"bold", Text.Face.Bold},
                {"color", ColorText(Text.Ink)}};
    }
    Json operator()(const PictureItem& Picture) const
    {
        return {{"kind", "picture"},      {"x", Picture.X},           {"y", Picture.Y},
                {"width", Picture.Width}, {"height", Picture.Height}, {"name", Picture.Name}};
    }
};

} // namespace

std::string DisplayListToJson(const DisplayList& Image, const std::string& Plot)
{
    std::string Items;
    for (const DisplayItem& Each : Image.Items)
        Items += (Items.empty() ? "\n" : ",\n") + std::visit(ToJson(), Each).dump();
    const Json Head = {{"plot", Plot}, {"width", Image.Width}, {"height", Image.Height}};
    std::string Text = Head.dump();
    Text.back() = ','; // the object goes on
    return Text + "\"items\":[" + Items + "\n]}\n";
}

} // namespace velorix

// The example projects: each file is what its JSON describes, stands in an analysis, and gives the figures
// that the README of the examples quotes.
#include "BatchTest.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::HasSubstr;

std::vector<std::string> ExampleNames(const std::string& Extension)
{
    std::vector<std::string> Names;
    for (const auto& Each : std::filesystem::directory_iterator(Examples))
        if (Each.path().extension() == Extension) Names.push_back(Each.path().stem().string());
    std::sort(Names.begin(), Names.end());
    return Names;
}

class ExamplesTest : public BatchTest {};

TEST_F(ExamplesTest, EachFileIsWhatItsJsonDescribes)
{
    EXPECT_GE(ExampleNames(".json").size(), 5U);
    EXPECT_EQ(ExampleNames(".vlx"), ExampleNames(".json"));
    for (const std::string& Name : ExampleNames(".json")) {
        const std::string File = ReadFile(Examples / (Name + ".vlx"));
        const ProjectFields Described = ProjectFromJson(ReadFile(Examples / (Name + ".json")));
        EXPECT_TRUE(BytesOf(Described) == File) << Name;
        const Run Exported = Batch("export '" + (Examples / (Name + ".vlx")).string() + "'");
        EXPECT_EQ(Exported.Output, ProjectToJson(Described)) << Name;
        EXPECT_TRUE(BytesOf(ProjectFromJson(Exported.Output)) == File) << Name;
    }
}

TEST_F(ExamplesTest, AllStandWithTheFiguresOfTheReadme)
{
    std::string Files;
    for (const std::string& Name : ExampleNames(".vlx")) Files += " " + Name + ".vlx";
    std::filesystem::copy(Examples, Folder);
    const Run Table = Batch("analyse" + Files);
    EXPECT_EQ(Table.Status, 0) << Table.Output;
    const std::string Readme = ReadFile(Examples / "README.md");
    EXPECT_THAT(Readme, HasSubstr("```\n" + Table.Output + "```\n"));
}

} // namespace
} // namespace velorix

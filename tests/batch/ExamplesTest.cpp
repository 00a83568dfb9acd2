// The example projects: each file is what its JSON describes, stands in an analysis, and gives the figures
// that the README of the examples quotes.
#include "BatchTest.h"

namespace velorix {
namespace {

using ExamplesTest = BatchTest;

TEST_F(ExamplesTest, EachFileIsWhatItsJsonDescribes)
{
    EXPECT_GE(ExampleNames().size(), 5U);
    EXPECT_EQ(ExampleNames(), ExampleNames(".json"));
    for (const std::string& Name : ExampleNames()) {
        const ProjectFields Described = ProjectFromJson(ReadFile(Examples / (Name + ".json")));
        EXPECT_TRUE(BytesOf(Described) == ReadFile(Examples / (Name + ".vlx"))) << Name;
    }
}

TEST_F(ExamplesTest, AllStandWithTheFiguresOfTheReadme)
{
    std::filesystem::copy(Examples, Folder);
    const Run Table = Batch("analyse *.vlx");
    EXPECT_EQ(Table.Status, 0);
    EXPECT_THAT(ReadFile(Examples / "README.md"), testing::HasSubstr("```\n" + Table.Output + "```\n"));
}

} // namespace
} // namespace velorix

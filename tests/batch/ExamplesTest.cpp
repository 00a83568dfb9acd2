// The example projects: each file is what its JSON describes, stands in an analysis, and gives the figures
// that the README of the examples quotes.
#include "BatchTest.h"

#include <gmock/gmock.h>
#include <set>

namespace velorix {
namespace {

using testing::HasSubstr;

class ExamplesTest : public BatchTest {
protected:
    static std::set<std::string> Names(const std::string& Extension)
    {
        std::set<std::string> Found;
        for (const auto& Each : std::filesystem::directory_iterator(Examples))
            if (Each.path().extension() == Extension) Found.insert(Each.path().stem().string());
        return Found;
    }
};

TEST_F(ExamplesTest, EachFileIsWhatItsJsonDescribes)
{
    EXPECT_GE(Names(".json").size(), 5U);
    EXPECT_EQ(Names(".vlx"), Names(".json"));
    for (const std::string& Name : Names(".json")) {
        const ProjectFields Described = ProjectFromJson(ReadFile(Examples / (Name + ".json")));
        EXPECT_TRUE(BytesOf(Described) == ReadFile(Examples / (Name + ".vlx"))) << Name;
        EXPECT_TRUE(BytesOf(ProjectFromJson(ProjectToJson(Described))) == BytesOf(Described)) << Name;
    }
}

TEST_F(ExamplesTest, AllStandWithTheFiguresOfTheReadme)
{
    std::filesystem::copy(Examples, Folder);
    const Run Table = Batch("analyse *.vlx");
    EXPECT_EQ(Table.Status, 0);
    EXPECT_THAT(ReadFile(Examples / "README.md"), HasSubstr("```\n" + Table.Output + "```\n"));
}

} // namespace
} // namespace velorix

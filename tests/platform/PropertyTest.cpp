// What a field tells whom when it takes a value.
#include "platform/Property.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A field whose view and event note what they hear, in order.
class PropertyTest : public testing::Test {
protected:
    PropertyTest()
    {
        Field.View = [this](const void* Source) {
            Heard.push_back(std::string(Source == this ? "own" : "view") + std::to_string(Field));
        };
        Field.Changed = [this] { Heard.push_back("event" + std::to_string(Field)); };
    }

    Property<int> Field{1};
    std::vector<std::string> Heard;
};

TEST_F(PropertyTest, ANewValueTellsTheViewAndThenTheEventOnceEach)
{
    Field = 2;
    EXPECT_THAT(Heard, ElementsAre("view2", "event2"));
}

TEST_F(PropertyTest, TheSameValueTellsNobody)
{
    Field = 1;
    EXPECT_THAT(Heard, IsEmpty());
}

TEST_F(PropertyTest, AnEditingViewIsNamedAsTheSource)
{
    Field.Assign(2, this);
    EXPECT_THAT(Heard, ElementsAre("own2", "event2"));
}

TEST_F(PropertyTest, AValueIsBroughtIntoRangeBeforeItIsCompared)
{
    Field.Fit = [](int Wanted) { return Wanted > 5 ? 5 : Wanted; };
    Field = 9;
    Field = 7; // 5 again
    EXPECT_THAT(Heard, ElementsAre("view5", "event5"));
}

TEST_F(PropertyTest, AnEventMaySetItsOwnField)
{
    Field.Changed = [this] {
        Heard.push_back("event" + std::to_string(Field));
        Field = 3;
    };
    Field = 2;
    EXPECT_THAT(Heard, ElementsAre("view2", "event2", "view3", "event3"));
}

TEST_F(PropertyTest, TheDesignComesBackWithoutAnEvent)
{
    Field = 2;
    Field.BackToDesign(); // nothing is noted: the first value
    EXPECT_EQ(Field.Get(), 1);
    Field = 2;
    Field.NoteDesign();
    Field = 3;
    Heard.clear();
    Field.BackToDesign();
    EXPECT_THAT(Heard, ElementsAre("view2"));
}

TEST(EventTest, AHandlerMayReplaceItselfWhileItRuns)
{
    int Calls = 0;
    const std::string Word(100, 'x'); // a capture on the heap, lost if the running handler were destroyed
    Event<> Raised;
    Raised(); // nothing is set: nothing happens
    Raised = [&, Word] {
        Raised = [&] { Calls += 1000; };
        Calls += static_cast<int>(Word.size());
    };
    Raised();
    EXPECT_EQ(Calls, 100);
    Raised();
    EXPECT_EQ(Calls, 1100);
}

} // namespace
} // namespace velorix

// What a field tells whom when it takes a value.
#include "platform/Property.h"

#include <gtest/gtest.h>
#include <string>

namespace velorix {
namespace {

TEST(PropertyTest, ANewValueTellsTheViewAndThenTheEventOnceEach)
{
    struct : PropertyOwner {
    } Owner;
    Property<int> Field(Owner, 1);
    std::string Heard;
    const auto Note = [&](const std::string& What) { Heard += What + std::to_string(Field) + " "; };
    Field.View = [&](const void* Source) { Note(Source == &Heard ? "own" : "view"); };
    Field.Changed = [&] { Note("event"); };
    Field = 1;
    Field = 2;
    Field.Assign(3, &Heard);
    Field.Fit = [](int Wanted) { return Wanted > 5 ? 5 : Wanted; };
    Field = 9;
    Field = 7; // 5 again
    EXPECT_EQ(Heard, "view2 event2 own3 event3 view5 event5 ");

    Heard.clear();
    Field.Changed = [&] { // an event may set its own field
        Note("event");
        Field = 3;
    };
    Field = 2;
    EXPECT_EQ(Heard, "view2 event2 view3 event3 ");
}

TEST(EventTest, AHandlerMayReplaceItselfWhileItRuns)
{
    int Calls = 0;
    const std::string Word(100, 'x'); // a capture on the heap, lost if the running handler were destroyed
    Event<> Raised;
    Raised = [&, Word] {
        Raised = [&] { Calls += 1000; };
        Calls += static_cast<int>(Word.size());
    };
    Raised();
    Raised();
    EXPECT_EQ(Calls, 1100);
}

} // namespace
} // namespace velorix

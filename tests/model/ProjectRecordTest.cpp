// The record's place in a file.
#include "model/ProjectRecord.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace velorix {
namespace {

template <typename T>
T At(const RecordImage& Image, std::size_t Offset)
{
    T Value;
    std::memcpy(&Value, Image.data() + Offset, sizeof Value);
    return Value;
}

// Offsets from the layout table of the file format, one of each kind and the ends of the long arrays.
TEST(ProjectRecordTest, FieldsStandAtTheirOffsets)
{
    ProjectFields Record;
    Record.Life = 30;
    Record.Demand[100] = 12.5;
    Record.WallThickness[500] = 6.0;
    Record.PumpCurve[2] = 80.0; // flow of point 1
    Record.PumpCurve[4] = 95.0; // head of point 2
    Record.WinterHour[24] = 2;
    SetText(Record.Project, "Île €");
    SetText(Record.PumpDescription, "two duty, one standby");

    const RecordImage Image = ToImage(Record);
    EXPECT_EQ(At<std::int16_t>(Image, 694), 30);
    EXPECT_EQ(At<float>(Image, 700 + 99 * 4), 12.5F);
    EXPECT_EQ(At<float>(Image, 15110), 6.0F);
    EXPECT_EQ(At<float>(Image, 15322), 80.0F);
    EXPECT_EQ(At<float>(Image, 15330), 95.0F);
    EXPECT_EQ(At<std::int16_t>(Image, 15540), 2);
    EXPECT_EQ(std::string(Image.data() + 6, 8), "\xCEle \x80   ");
    EXPECT_EQ(std::string(Image.data() + 15650, 3), "two");
    EXPECT_EQ(Image.back(), ' ');
}

TEST(ProjectRecordTest, EveryBitGoesThroughUnchanged)
{
    std::mt19937 Random(7);
    for (int Round = 0; Round < 20; ++Round) {
        RecordImage Image;
        for (char& Byte : Image) Byte = static_cast<char>(Random());
        EXPECT_EQ(ToImage(FromImage(Image)), Image); // signalling NaNs are among the 32-bit patterns
    }
}

} // namespace
} // namespace velorix

// Files of all sorts of bytes, from a fixed seed, so that every run tests the same.
#include "AnyFile.h"

#include "model/SampleRecords.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace velorix {
namespace {

class AnyFileTest : public testing::Test {
protected:
    int Below(int Limit) { return static_cast<int>(Random() % static_cast<unsigned>(Limit)); }

    template <typename Number, std::size_t Count>
    void Overwrite(std::string& Bytes, int At, const Number (&Choice)[Count])
    {
        std::memcpy(&Bytes[At], &Choice[Random() % Count], sizeof(Number));
    }

    // Overwrites a few numbers of a sound project with the kind of number that breaks things. The floats lie
    // in the general data, the first rows of the profile, rates and tariffs.
    std::string Spoiled(const ProjectFields& Record)
    {
        constexpr float Numbers[] = {0, -1, 1.0E38F, -1.0E38F, 1.0E-38F, INFINITY, -INFINITY, NAN};
        constexpr std::int16_t Counts[] = {0, -1, 1, 32767, -32768, 100};
        constexpr int Starts[] = {686, 1102, 2114, 4114, 6114, 10114, 13114, 15118, 15318};
        const RecordImage Image = ToImage(Record);
        std::string Bytes(Image.begin(), Image.end());
        for (int Change = Below(4); Change >= 0; --Change) {
            if (Below(3) == 0)
                Overwrite(Bytes, 2 * Below(8325), Counts);
            else
                Overwrite(Bytes, Starts[Below(9)] + 4 * Below(12), Numbers);
        }
        return Bytes;
    }

    std::mt19937 Random{20050303};
};

// With all floats the same bytes, there are whole tables of NaN, of tiny and of huge numbers.
TEST_F(AnyFileTest, BytesOfAllSorts)
{
    AnalyseAnyFile("");
    for (const char Byte : {'\0', '\x01', '\x7F', '\xFF', ' ', 'A'}) AnalyseAnyFile(std::string(16650, Byte));
    for (int Round = 0; Round < 12; ++Round) {
        std::string Bytes(Below(60001), '\0');
        for (char& Each : Bytes) Each = static_cast<char>(Random());
        AnalyseAnyFile(Bytes);
    }
}

TEST_F(AnyFileTest, SpoiledProjects)
{
    for (int Round = 0; Round < 40; ++Round) {
        AnalyseAnyFile(Spoiled(GravityRecord(2 + Below(110))));
        AnalyseAnyFile(Spoiled(PumpCurveRecord(2 + Below(12))));
        ProjectFields GivenFlow = PumpCurveRecord(2 + Below(60));
        GivenFlow.PumpDetails = 0;
        GivenFlow.PumpOperatingFlowrate = 300.0;
        AnalyseAnyFile(Spoiled(GivenFlow));
    }
}

} // namespace
} // namespace velorix

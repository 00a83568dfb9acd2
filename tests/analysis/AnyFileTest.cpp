// Files of all sorts of bytes, from a fixed seed, so that every run tests the same.
#include "AnyFile.h"

#include "SampleRecords.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace velorix {
namespace {

class AnyFileTest : public testing::Test {
protected:
    int Below(int Limit) { return static_cast<int>(Random() % static_cast<unsigned>(Limit)); }

    std::string RandomBytes(std::size_t Count)
    {
        std::string Bytes(Count, '\0');
        for (char& Each : Bytes) Each = static_cast<char>(Random());
        return Bytes;
    }

    static std::string BytesOf(const ProjectFields& Record)
    {
        const RecordImage Image = ToImage(Record);
        return {Image.begin(), Image.end()};
    }

    // Overwrites a few numbers of a sound project with the kind of number that breaks things.
    std::string Spoiled(ProjectFields Record)
    {
        constexpr float Inf = std::numeric_limits<float>::infinity();
        const std::array<Single, 8> Numbers = {
            0.0, -1.0, 1.0E38, -1.0E38, 1.0E-38, Inf, -Inf, std::numeric_limits<float>::quiet_NaN()};
        const std::array<std::int16_t, 6> Counts = {0, -1, 1, 32767, -32768, 100};
        std::string Bytes = BytesOf(Record);
        for (int Change = Below(4); Change >= 0; --Change) {
            if (Below(3) == 0) {
                const auto Value = static_cast<std::uint16_t>(Counts.at(Random() % Counts.size()));
                const std::size_t At = 2 * (Random() % 8325);
                Bytes[At] = static_cast<char>(Value);
                Bytes[At + 1] = static_cast<char>(Value >> 8);
                continue;
            }
            // The floats of the record: general data, the first rows of the profile, rates and tariffs.
            constexpr std::array<int, 9> Starts = {686, 1102, 2114, 4114, 6114, 10114, 13114, 15118, 15318};
            const std::size_t At =
                static_cast<std::size_t>(Starts.at(Random() % Starts.size()) + 4 * Below(12));
            const std::uint32_t Bits = Numbers.at(Random() % Numbers.size()).Bits();
            for (std::size_t Byte = 0; Byte < 4; ++Byte)
                Bytes[At + Byte] = static_cast<char>(Bits >> (8 * Byte));
        }
        return Bytes;
    }

    std::mt19937 Random{20050303};
};

TEST_F(AnyFileTest, RandomBytesOfAnyLength)
{
    AnalyseAnyFile("");
    for (int Round = 0; Round < 12; ++Round)
        AnalyseAnyFile(RandomBytes(static_cast<std::size_t>(Below(60001))));
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

// All floats the same bytes: whole tables of NaN, of tiny and of huge numbers.
TEST_F(AnyFileTest, UniformBytes)
{
    for (const char Byte : {'\0', '\x01', '\x7F', '\xFF', ' ', 'A'}) AnalyseAnyFile(std::string(16650, Byte));
}

} // namespace
} // namespace velorix

// The program without a display to start on.
#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <string>
#include <sys/wait.h>

namespace {

// Neither a session without a display nor one whose display is gone may end in an abort.
TEST(MissingDisplayTest, IsToldInASentence)
{
    for (const char* Display : {"-u DISPLAY", "DISPLAY=:4711"}) {
        const std::string Words = std::string("env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM ") + Display +
                                  " timeout 60 " VELORIX " 2>&1";
        std::FILE* Output = ::popen(Words.c_str(), "r");
        ASSERT_NE(Output, nullptr);
        std::array<char, 4096> Buffer{};
        const std::size_t Length = std::fread(Buffer.data(), 1, Buffer.size(), Output);
        const int Status = ::pclose(Output);
        EXPECT_TRUE(WIFEXITED(Status));
        EXPECT_EQ(WEXITSTATUS(Status), 1);
        EXPECT_THAT(std::string(Buffer.data(), Length),
                    testing::MatchesRegex("velorix: There is no display [^\n]*velorix-batch[^\n]*\n"));
    }
}

} // namespace

// A project session without windows, as at the program's start.
#pragma once

#include "input/Session.h"
#include "model/ProjectRecord.h"
#include "model/WorkingSet.h"
#include "platform/ScriptedPlatform.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace velorix {

class ProjectTest : public testing::Test {
protected:
    ProjectTest()
    {
        InstallPlatform(&Windows);
        StartAfresh();
        std::string Template = (std::filesystem::temp_directory_path() / "velorix-test-XXXXXX").string();
        Folder = ::mkdtemp(Template.data());
        Windows.Folder = Folder;
    }

    ~ProjectTest() override { std::filesystem::remove_all(Folder); }

    static void StartAfresh()
    {
        ResetProjectRecord();
        ResetWorkingSet();
        ResetSession();
        UnloadScreens();
    }

    std::string WriteFile(const std::string& Name, const std::string& Bytes) const
    {
        const std::string Path = (Folder / Name).string();
        std::ofstream(Path, std::ios::binary) << Bytes;
        return Path;
    }

    static std::string ReadFile(const std::filesystem::path& Path)
    {
        std::ifstream Source(Path, std::ios::binary);
        return {std::istreambuf_iterator<char>(Source), {}};
    }

    static std::string BytesOf(const ProjectFields& Record)
    {
        const RecordImage Image = ToImage(Record);
        return {Image.begin(), Image.end()};
    }

    // A new project of that kind as its bytes would stand in a file.
    void StartNew(int SystemType)
    {
        wSystemType = static_cast<std::int16_t>(SystemType);
        NewProjectDefaults();
    }

    // A new project of that kind that passes every check.
    void StartComplete(int SystemType)
    {
        StartNew(SystemType);
        frmLCC.txtProject.Text = "Hill main";
        frmLCC.txtDesigner.Text = "A. Designer";
    }

    // The last message, by default that of a refused command.
    void ExpectTold(const std::string& Text, const std::string& Title = "Velorix",
                    MessageIcon Icon = MessageIcon::Exclamation) const
    {
        EXPECT_EQ(LastMessage(), Text);
        if (Windows.Messages.empty()) return;
        EXPECT_EQ(Windows.Messages.back().Title, Title);
        EXPECT_EQ(Windows.Messages.back().Icon, Icon);
    }

    std::string LastMessage() const { return Windows.Messages.empty() ? "" : Windows.Messages.back().Text; }

    ScriptedPlatform Windows;
    std::filesystem::path Folder;
};

} // namespace velorix

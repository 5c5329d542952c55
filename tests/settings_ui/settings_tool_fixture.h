#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "settings_ui/tool/settings_tool.h"

namespace quillmark {

/// The tool with an INI file that belongs to the test.
class SettingsToolTest : public testing::Test {
protected:
    SettingsToolTest() { std::filesystem::create_directories(directory_); }
    ~SettingsToolTest() override { std::filesystem::remove_all(directory_); }

    int run(std::vector<std::string> arguments, const std::string& input = {}) {
        arguments.insert(arguments.begin(), {"--settings", store()});
        return runBare(arguments, input);
    }
    int runBare(const std::vector<std::string>& arguments, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream outStream;
        std::ostringstream errorStream;
        const ToolStatus status = runSettingsTool(
            arguments, {in, outStream, errorStream, (directory_ / "bin/tool").string()});
        out = outStream.str();
        errors = errorStream.str();
        return static_cast<int>(status);
    }
    void keep(const std::string& text) const { std::ofstream(store(), std::ios::binary) << text; }
    [[nodiscard]] std::string kept() const {
        std::ifstream in(store(), std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(in), {}};
        std::erase(text, '\r');
        return text;
    }
    [[nodiscard]] std::string store() const { return (directory_ / "settings.ini").string(); }
    [[nodiscard]] std::filesystem::path directory() const { return directory_; }

    std::string out;
    std::string errors;

private:
    static std::string uniqueName() {
        return std::string("quillmark_settings_tool_") +
               testing::UnitTest::GetInstance()->current_test_info()->name();
    }
    std::filesystem::path directory_ = std::filesystem::temp_directory_path() / uniqueName();
};

}  // namespace quillmark

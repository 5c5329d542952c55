#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

#include "settings_ui/effects.h"
#include "settings_ui/tool/settings_tool.h"

namespace quillmark {

namespace {

/// A store and a report. The settings tool changes the store, and the replay tool writes the
/// report.
class SettingsEffect : public testing::TestWithParam<Effect> {
protected:
    SettingsEffect() { set("Settings.InstallDir=" + scene_.installDir()); }

    void set(const std::string& assignment) const {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream errors;
        EXPECT_EQ(
            runSettingsTool({{"--settings", store(), "set", assignment}}, {in, out, errors, ""}),
            ToolStatus::done)
            << errors.str();
    }
    [[nodiscard]] bool isShown() const {
        scene_.clear();
        const std::string program =
            std::filesystem::path(DOCHTML_REPLAY_PROGRAM).make_preferred().string();
        const std::string command = quoted(program) + " --quiet --settings " + quoted(store()) +
                                    " --drive " + quoted("C=" + scene_.directory().string()) + " " +
                                    quoted(scene_.calls().string());
        // The command interpreter of Windows removes one pair of quotes.
        const bool takesQuotes = std::filesystem::path::preferred_separator == '\\';
        EXPECT_EQ(std::system(takesQuotes ? quoted(command).c_str() : command.c_str()), 0);
        return scene_.shows(GetParam());
    }
    [[nodiscard]] const EffectScene& scene() const { return scene_; }

private:
    static std::string quoted(const std::string& text) { return '"' + text + '"'; }
    static std::string uniqueName() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string("quillmark_effect_") + test->name();
        return name.replace(name.find('/'), 1, "_");
    }
    [[nodiscard]] std::string store() const {
        return (scene_.directory() / "settings.ini").string();
    }

    EffectScene scene_{uniqueName()};
};

TEST_P(SettingsEffect, IsSeenInTheDocument) {
    EXPECT_EQ(isShown(), !GetParam().comes);
    set(std::string(GetParam().setting) + "=" + scene().valueOf(GetParam()));
    EXPECT_EQ(isShown(), GetParam().comes);
}

std::string nameOf(const testing::TestParamInfo<Effect>& tested) {
    return tested.param.setting + std::to_string(tested.index);
}

INSTANTIATE_TEST_SUITE_P(OfEachSettingOfThePage, SettingsEffect, testing::ValuesIn(effects()),
                         nameOf);

}  // namespace

}  // namespace quillmark

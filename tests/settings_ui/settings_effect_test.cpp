#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include "settings_ui/effects.h"
#include "settings_ui/tool/settings_tool.h"

namespace quillmark {

namespace {

/// A store and a report; the tool changes the store, and the replay tool makes the report.
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
        const std::string command = std::string("\"") + DOCHTML_REPLAY_PROGRAM +
                                    "\" --quiet --settings \"" + store() +
                                    "\" --drive \"C=" + scene_.directory().string() + "\" \"" +
                                    scene_.calls().string() + "\"";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return scene_.shows(GetParam());
    }
    [[nodiscard]] const EffectScene& scene() const { return scene_; }

private:
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

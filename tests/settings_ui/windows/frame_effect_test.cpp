#include <gtest/gtest.h>

#include <string>

#include "settings/register_dynamic.h"
#include "settings_ui/effects.h"
#include "settings_ui/page_table.h"
#include "settings_ui/windows/frame_driver.h"
#include "settings_ui/windows/programs.h"
#include "settings_ui/windows/user_settings.h"

namespace quillmark {

namespace {

/// The user changes the page, and the replay tool writes the report with the settings in the
/// registry.
class FrameEffect : public testing::TestWithParam<Effect> {
protected:
    FrameEffect() {
        removeUserSettings();
        RegisterDynamic().write("Settings", "InstallDir", RegEntry::ofString(scene_.installDir()));
    }

    [[nodiscard]] bool isShown() const {
        scene_.clear();
        EXPECT_EQ(runProgram(programs().replay, "--quiet \"" + scene_.calls().string() + "\""), 0U);
        return scene_.shows(GetParam());
    }
    void change() const {
        FrameDriver driver;
        const PageControl& row = *findControl(GetParam().control);
        if (row.kind == ControlKind::checkBox) {
            driver.click(row.id);
        } else {
            driver.type(row.id, scene_.valueOf(GetParam()));
        }
        // The documents directory does not enable Apply, a box clicked twice does.
        driver.click(control::showIcons);
        driver.click(control::showIcons);
        // One navigation method must stay on when the contents are turned off.
        if (row.id == control::contents) {
            driver.click(control::arrows);
        }
        EXPECT_EQ(driver.pressApply().text, "");
        driver.pressOk();
    }

private:
    EffectScene scene_{"quillmark_frame_effect"};
};

TEST_P(FrameEffect, IsSeenInTheDocument) {
    EXPECT_EQ(isShown(), !GetParam().comes);
    change();
    EXPECT_EQ(isShown(), GetParam().comes);
}

std::string nameOf(const testing::TestParamInfo<Effect>& tested) {
    return tested.param.setting + std::to_string(tested.index);
}

INSTANTIATE_TEST_SUITE_P(OfEachSettingOfThePage, FrameEffect, testing::ValuesIn(effects()), nameOf);

}  // namespace

}  // namespace quillmark

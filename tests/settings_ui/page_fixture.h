#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/drive_table.h"
#include "settings/register_base.h"
#include "settings_ui/memory_controls.h"
#include "settings_ui/recording_host.h"
#include "settings_ui/recording_store.h"
#include "settings_ui/settings_page.h"

namespace quillmark {

/// A page with controls and a host in memory, a recording store as the current one, and a temporary
/// directory that has a drive-qualified name on every system.
class PageTest : public testing::Test {
protected:
    PageTest() {
        RegisterBase::setStore(store);
        controls.listen([this](int id, ControlEvent event) { page.handle(id, event); });
        std::filesystem::create_directories(scratch_);
        scratchName_ = driverPath(scratch_.string()).str();
        if (scratchName_[1] != ':') {
            DriveTable::set('C', scratch_.string());
            scratchName_ = "C:";
        }
    }
    ~PageTest() override {
        RegisterBase::setStore(nullptr);
        DriveTable::clear();
        std::filesystem::remove_all(scratch_);
    }

    void put(const char* group, const char* name, const char* value) {
        store->values[{group, name}] = value;
    }
    [[nodiscard]] std::string kept(const char* name) const {
        const auto found = store->values.find({"Html", name});
        return found == store->values.end() ? "(nothing)" : found->second.str();
    }
    void load() { controls.focus(control::imagesDirectory); }
    [[nodiscard]] std::string shown(int id) const { return controls.text(id).str(); }

    /// The drive-qualified name of something in the scratch directory.
    [[nodiscard]] std::string named(const std::string& name) const {
        return scratchName_ + "\\" + name;
    }
    std::string makeFile(const std::string& name) const {
        std::ofstream(scratch_ / name) << "x";
        return named(name);
    }
    std::string makeDirectory(const std::string& name) const {
        std::filesystem::create_directories(scratch_ / name);
        return named(name);
    }

    std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
    MemoryControls controls;
    RecordingHost host;
    SettingsPage page{controls, host};

private:
    static std::string uniqueName() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string("quillmark_") + test->test_suite_name() + "_" + test->name();
        std::ranges::replace(name, '/', '_');
        return name;
    }
    std::filesystem::path scratch_ = std::filesystem::temp_directory_path() / uniqueName();
    std::string scratchName_;
};

}  // namespace quillmark

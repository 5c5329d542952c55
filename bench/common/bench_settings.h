#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "settings/register_base.h"
#include "settings/settings_store.h"

namespace quillmark::bench {

/// Settings of group "Html" for one benchmark; the installation directory is the source tree's.
class BenchSettings final : public SettingsStore {
public:
    using Values = std::initializer_list<std::pair<const std::string, std::string>>;

    explicit BenchSettings(Values html) : html_(html) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        if (group == "Settings" && name == "InstallDir") {
            return OrxString(DOCHTML_SUPPORT_DIR);
        }
        const auto found = html_.find(name.str());
        if (group != "Html" || found == html_.end()) {
            return std::nullopt;
        }
        return OrxString(found->second);
    }

    [[nodiscard]] bool write(const OrxString&, const OrxString&, const OrxString&) override {
        return false;
    }

private:
    std::map<std::string, std::string> html_;
};

/// Puts such settings in force until the end of the scope.
class SettingsInForce {
public:
    explicit SettingsInForce(BenchSettings::Values html) {
        RegisterBase::setStore(std::make_shared<BenchSettings>(html));
    }
    SettingsInForce(const SettingsInForce&) = delete;
    SettingsInForce& operator=(const SettingsInForce&) = delete;
    ~SettingsInForce() { RegisterBase::setStore(nullptr); }
};

}  // namespace quillmark::bench

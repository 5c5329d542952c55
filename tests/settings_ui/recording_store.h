#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "settings/settings_store.h"

namespace quillmark {

/// A store in memory that records its calls.
class RecordingStore : public SettingsStore {
public:
    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        reads.push_back(group.str() + "." + name.str());
        const auto found = values.find({group.str(), name.str()});
        return found == values.end() ? std::nullopt : std::optional<OrxString>(found->second);
    }
    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override {
        writes.push_back(group.str() + "." + name.str() + "=" + value.str());
        values[{group.str(), name.str()}] = value;
        return true;
    }

    std::map<std::pair<std::string, std::string>, OrxString> values;
    mutable std::vector<std::string> reads;
    std::vector<std::string> writes;
};

}  // namespace quillmark

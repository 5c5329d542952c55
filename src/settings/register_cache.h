#pragma once

#include <map>
#include <utility>

#include "settings/register_base.h"

namespace quillmark {

/// The settings of one document: the current store, and overrides that apply to this cache only.
class RegisterCache : public RegisterBase {
public:
    /// The override of that group and name, or else the stored value, or else `fallback`. Group and
    /// name are found in any case.
    [[nodiscard]] RegEntry read(const OrxString& group, const OrxString& name,
                                const RegEntry& fallback) const;
    /// Later reads of the entry's group and name through this cache return this entry.
    void override(const RegEntry& entry);

private:
    std::map<std::pair<OrxString, OrxString>, RegEntry> overrides_;
};

}  // namespace quillmark

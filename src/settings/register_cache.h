#pragma once

#include <map>
#include <utility>

#include "settings/register_base.h"

namespace quillmark {

/// The settings of one document: the store, overlaid by overrides that nobody else sees.
class RegisterCache : public RegisterBase {
public:
    [[nodiscard]] RegEntry read(const OrxString& group, const OrxString& name,
                                const RegEntry& fallback) const;
    /// The entry answers every later read of its group and name through this cache.
    void override(const RegEntry& entry);

private:
    std::map<std::pair<OrxString, OrxString>, RegEntry> overrides_;
};

}  // namespace quillmark

#pragma once

#include <memory>
#include <optional>

#include "platform/text_encoding.h"
#include "replay/input/call_source.h"
#include "settings/settings_store.h"

namespace quillmark::replay {

/// Follows the encoding of the document that is played, as the document itself does: it is read
/// from the settings when an object is made, and by each `create`. An override holds until the
/// object is released.
class DocumentEncoding {
public:
    /// The settings of the documents; null for none.
    explicit DocumentEncoding(std::shared_ptr<const SettingsStore> settings)
        : settings_(std::move(settings)) {}

    void startObject();
    /// Takes note of a call of `overrideRegistry`.
    void override(const Call& call);
    void create() { current_ = &next(); }

    /// The encoding of the document's texts now.
    [[nodiscard]] const TextEncoding& current() const noexcept { return *current_; }
    /// The encoding after the next `create`.
    [[nodiscard]] const TextEncoding& next() const;

private:
    std::shared_ptr<const SettingsStore> settings_;
    std::optional<std::string> override_;
    const TextEncoding* current_ = &TextEncoding::codePage();
};

}  // namespace quillmark::replay

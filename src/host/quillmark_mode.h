#pragma once

namespace quillmark {

/// The mode in which the host runs.
class CQuillmarkMode {
public:
    /// This schema type selects the second set of rules for icons of contents entries. Every other
    /// value selects the first.
    static constexpr int secondRuleSet = 2;

    [[nodiscard]] static int GetSchemaType() noexcept;
    /// Called by the host. The type is 0 until then.
    static void SetSchemaType(int schemaType) noexcept;
};

}  // namespace quillmark

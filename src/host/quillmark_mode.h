#pragma once

namespace quillmark {

/// The mode that the host runs in.
class CQuillmarkMode {
public:
    /// Schema type 2 selects the second rule set for entry icons, every other value the first.
    static constexpr int secondRuleSet = 2;

    [[nodiscard]] static int GetSchemaType() noexcept;
    /// Handed in by the host; 0 until then.
    static void SetSchemaType(int schemaType) noexcept;
};

}  // namespace quillmark

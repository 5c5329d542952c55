#pragma once

#include <array>
#include <span>
#include <string>

#include "component/object/owned_variant.h"
#include "dochtml/automation.h"
#include "driver/boundary/operation_table.h"

namespace quillmark {

/// The arguments of one late-bound call, brought from a host's variants to what the table of
/// operations takes. The host's variants are only read, and must outlive this.
class CallArguments {
public:
    explicit CallArguments(const Operation& operation) noexcept : operation_(operation) {}

    /// Orders and converts. When it fails, `badArgument` (may be null) gets the position of the
    /// argument at fault in the host's list, where one is.
    [[nodiscard]] HRESULT read(const DISPPARAMS& host, LCID locale, UINT* badArgument);
    /// The arguments in the operation's order.
    [[nodiscard]] std::span<const Argument> values() const noexcept;
    /// Puts the operation's out texts where the host wants them.
    void handOutTexts();

private:
    static constexpr std::size_t mostParameters = 4;

    struct Slot {
        VARIANTARG* host = nullptr;
        OwnedVariant converted;
        std::u16string outText;
    };

    [[nodiscard]] HRESULT order(const DISPPARAMS& host, UINT* badArgument);
    [[nodiscard]] HRESULT convert(std::size_t position, LCID locale);
    [[nodiscard]] HRESULT prepareOutText(std::size_t position, LCID locale);

    const Operation& operation_;
    std::array<Slot, mostParameters> slots_;
    std::array<Argument, mostParameters> values_;
};

}  // namespace quillmark

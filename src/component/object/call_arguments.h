#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>

#include "component/object/owned_variant.h"
#include "dochtml/automation.h"
#include "driver/boundary/operation_table.h"

namespace quillmark {

/// Converts the arguments of one late-bound call from the host's variants to the types that the
/// operation table takes. The host's variants must outlive this object. Only out texts are written
/// to them.
class CallArguments {
public:
    explicit CallArguments(const Operation& operation) noexcept : operation_(operation) {}

    /// Orders and converts the arguments. When an argument causes a failure, `badArgument` (may be
    /// null) receives its position in the host's list.
    [[nodiscard]] HRESULT read(const DISPPARAMS& host, LCID locale, UINT* badArgument);
    /// The arguments in the operation's order.
    [[nodiscard]] std::span<const Argument> values() const noexcept;
    /// Copies the operation's out texts to the variants of the host.
    void handOutTexts();

private:
    static constexpr std::size_t mostParameters = 4;

    struct Slot {
        VARIANTARG* host = nullptr;
        /// Only for a value that is not used in place.
        std::optional<OwnedVariant> converted;
    };

    [[nodiscard]] HRESULT order(const DISPPARAMS& host, UINT* badArgument);
    [[nodiscard]] HRESULT convert(std::size_t position, LCID locale);
    [[nodiscard]] HRESULT prepareOutText(std::size_t position, LCID locale);

    const Operation& operation_;
    std::array<Slot, mostParameters> slots_;
    std::array<Argument, mostParameters> values_;
    /// No operation returns more than one.
    std::optional<std::u16string> outText_;
};

}  // namespace quillmark

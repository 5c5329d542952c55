#include "replay/play/component_document.h"

#include <array>
#include <limits>
#include <new>

#include "dochtml/text.h"

namespace quillmark::replay {

namespace {

/// The arguments of a call as variants, in the reverse order that a dispatch interface expects.
class VariantArguments {
public:
    /// The texts in `kept` are in use until this object is destroyed.
    VariantArguments(std::span<const Argument> arguments, ArgumentTexts& kept) {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            VARIANT& variant = variants_.at(arguments.size() - 1 - i);
            VariantInit(&variant);
            if (const auto* const units = std::get_if<WideText>(&arguments[i]);
                units != nullptr && units->size() < ReusedTexts::longest) {
                variant.vt = VT_BSTR;
                variant.bstrVal = kept.at(i).textOf(*units);
                continue;
            }
            std::visit([&](const auto& value) { put(variant, texts_.at(i), value); }, arguments[i]);
        }
        parameters_ = {variants_.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    }

    [[nodiscard]] DISPPARAMS* parameters() noexcept { return &parameters_; }

    /// Copies the texts that the component returned to the output arguments.
    void takeOutTexts(std::span<const Argument> arguments) const {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            if (auto* const* out = std::get_if<std::u16string*>(&arguments[i])) {
                **out = texts_.at(i).view();
            }
        }
    }

private:
    static void put(VARIANT& variant, Text& text, WideText value) {
        text = Text(value);
        variant.vt = VT_BSTR;
        variant.bstrVal = text.get();
    }
    static void put(VARIANT& variant, Text&, std::int64_t value) {
        using Long = std::numeric_limits<std::int32_t>;
        if (value >= Long::min() && value <= Long::max()) {
            variant.vt = VT_I4;
            variant.lVal = static_cast<LONG>(value);
        } else {
            variant.vt = VT_I8;
            variant.llVal = value;
        }
    }
    static void put(VARIANT& variant, Text&, bool value) {
        variant.vt = VT_BOOL;
        variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    static void put(VARIANT& variant, Text& text, std::u16string*) {
        variant.vt = VT_BYREF | VT_BSTR;
        variant.pbstrVal = text.receive();
    }

    static constexpr std::size_t mostArguments = std::tuple_size_v<ArgumentTexts>;

    std::array<Text, mostArguments> texts_;
    std::array<VARIANT, mostArguments> variants_{};
    DISPPARAMS parameters_{};
};

void requireMemory(HRESULT result) {
    if (result == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
}

InvokeStatus statusOf(HRESULT result) noexcept {
    switch (result) {
        case DISP_E_MEMBERNOTFOUND:
            return InvokeStatus::unknownOperation;
        case DISP_E_BADPARAMCOUNT:
            return InvokeStatus::wrongArgumentCount;
        default:
            return SUCCEEDED(result) ? InvokeStatus::done : InvokeStatus::wrongArgumentKind;
    }
}

}  // namespace

int ComponentDocument::idOf(std::string_view name) {
    const Text wide(std::u16string(name.begin(), name.end()));
    std::array<LPOLESTR, 1> names = {wide.get()};
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = document_->GetIDsOfNames(IID_NULL, names.data(), 1, 0, &id);
    requireMemory(result);
    return SUCCEEDED(result) ? static_cast<int>(id) : 0;
}

InvokeStatus ComponentDocument::invoke(int id, std::span<const Argument> arguments) {
    VariantArguments variants(arguments, texts_);
    const HRESULT result = document_->Invoke(id, IID_NULL, 0, DISPATCH_METHOD,
                                             variants.parameters(), nullptr, nullptr, nullptr);
    requireMemory(result);
    variants.takeOutTexts(arguments);
    return statusOf(result);
}

}  // namespace quillmark::replay

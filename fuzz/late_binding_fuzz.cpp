// Whatever a host passes in a late-bound call: values of any kind, in any number and order. The
// answer follows from the value alone, and a conversion agrees with the others.

#include <array>
#include <cstring>
#include <deque>
#include <string>
#include <vector>

#include "component/late_values/object_with_value.h"
#include "component/object/late_binding.h"
#include "component/object/owned_variant.h"
#include "component/object/recorded_object.h"
#include "dochtml/text.h"
#include "driver/boundary/operation_table.h"
#include "support/byte_source.h"
#include "support/require.h"

namespace quillmark::fuzzing {
namespace {

/// Values of a host's, made from the input. They own what they refer to.
class HostValues {
public:
    explicit HostValues(ByteSource& input) : input_(input) {}
    HostValues(const HostValues&) = delete;
    HostValues& operator=(const HostValues&) = delete;
    ~HostValues() {
        for (Cell& cell : cells_) {
            // A call that answers with a text puts it where the host's own text was.
            BSTR left = nullptr;
            std::memcpy(&left, cell.bytes.data(), cell.isText ? sizeof left : 0);
            if (left != cell.text) {
                SysFreeString(left);
            }
            SysFreeString(cell.text);
            VariantClear(&cell.inner);
        }
    }

    /// A value; the ones inside it go down to `depth`.
    VARIANT make(int depth = 2) {
        static constexpr std::array<int, 24> types = {
            VT_EMPTY,   VT_NULL, VT_I2,   VT_I4,       VT_R4,    VT_R8,   VT_CY,      VT_DATE,
            VT_BSTR,    VT_BSTR, VT_BSTR, VT_DISPATCH, VT_ERROR, VT_BOOL, VT_VARIANT, VT_UNKNOWN,
            VT_DECIMAL, VT_I1,   VT_UI1,  VT_UI2,      VT_UI4,   VT_I8,   VT_UI8,     VT_INT};
        const std::uint8_t choice = input_.byte();
        if (choice >= 0xF8) {
            return stranger();
        }
        const int type = types.at(choice % types.size());
        const bool isReference = choice >= 0x80;
        return isReference ? reference(type, depth) : plain(type, depth);
    }

private:
    struct Cell {
        /// The bytes of a value behind a reference.
        alignas(std::max_align_t) std::array<std::byte, sizeof(VARIANT)> bytes{};
        bool isText = false;
        BSTR text = nullptr;
        /// What a reference to a variant leads to; it owns its text.
        VARIANT inner{};
        std::unique_ptr<IDispatch, void (*)(IDispatch*)> object{nullptr, &deleteObject};
    };

    static void deleteObject(IDispatch* object) {
        delete static_cast<testing::ObjectWithValue*>(object);
    }

    /// Any type at all, with a value of zeros, since nobody knows what its value is.
    VARIANT stranger() {
        VARIANT value{};
        value.vt = input_.value<VARTYPE>();
        return value;
    }

    VARIANT plain(int type, int depth) {
        VARIANT value{};
        Cell& cell = fill(type, depth);
        if (type == VT_DECIMAL) {
            std::memcpy(&value, cell.bytes.data(), sizeof(DECIMAL));
        } else {
            std::memcpy(&value.llVal, cell.bytes.data(), sizeof value.llVal);
        }
        value.vt = static_cast<VARTYPE>(type);
        return value;
    }

    VARIANT reference(int type, int depth) {
        VARIANT value{};
        value.vt = static_cast<VARTYPE>(type | VT_BYREF);
        Cell& cell = fill(type, depth);
        const bool leadsNowhere = input_.byte() == 0xFF;
        value.byref = leadsNowhere         ? nullptr
                      : type == VT_VARIANT ? static_cast<void*>(&cell.inner)
                                           : static_cast<void*>(cell.bytes.data());
        return value;
    }

    Cell& fill(int type, int depth) {
        Cell& cell = cells_.emplace_back();
        if (type == VT_BSTR) {
            const std::string_view bytes = input_.piece();
            const std::u16string units = input_.byte() % 2 != 0
                                             ? unitsOf(bytes)
                                             : std::u16string(bytes.begin(), bytes.end());
            cell.isText = true;
            cell.text = input_.byte() == 0xFF ? nullptr : Text(units).release();
            keep(cell, cell.text);
        } else if (type == VT_VARIANT) {
            cell.inner = inner(depth);
        } else if (type == VT_DISPATCH) {
            cell.inner = inner(depth);
            cell.object.reset(new testing::ObjectWithValue(&cell.inner));
            keep(cell, input_.byte() == 0xFF ? nullptr : cell.object.get());
        } else if (type != VT_UNKNOWN) {
            const std::string_view bytes = input_.take(input_.byte() % (sizeof(DECIMAL) + 1));
            std::memcpy(cell.bytes.data(), bytes.data(), bytes.size());
        }
        return cell;
    }

    VARIANT inner(int depth) {
        VARIANT value = depth > 0 ? make(depth - 1) : VARIANT{};
        if (value.vt == VT_BSTR && value.bstrVal != nullptr) {
            value.bstrVal = Text(Text::viewOf(value.bstrVal)).release();
        }
        return value;
    }

    template <typename Value>
    static void keep(Cell& cell, Value value) {
        std::memcpy(cell.bytes.data(), &value, sizeof value);
    }

    ByteSource& input_;
    std::deque<Cell> cells_;
};

HRESULT convert(OwnedVariant& target, const VARIANT& source, int type) {
    constexpr LCID english = 0x409;
    const HRESULT result =
        convertVariant(target.get(), source, english, static_cast<VARTYPE>(type));
    require(FAILED(result) || target.get().vt == type, "a converted value has its type");
    require(SUCCEEDED(result) || target.get().vt == VT_EMPTY, "a failure leaves nothing");
    return result;
}

bool isText(const VARIANT& value) {
    return (value.vt & VT_TYPEMASK) == VT_BSTR || (value.vt & VT_TYPEMASK) == VT_VARIANT ||
           (value.vt & VT_TYPEMASK) == VT_DISPATCH;
}

void checkConversions(const VARIANT& value) {
    OwnedVariant small;
    OwnedVariant large;
    OwnedVariant truth;
    OwnedVariant text;
    const bool isShort = SUCCEEDED(convert(small, value, VT_I2));
    const bool isLong = SUCCEEDED(convert(large, value, VT_I4));
    static_cast<void>(convert(truth, value, VT_BOOL));
    const bool hasText = SUCCEEDED(convert(text, value, VT_BSTR));
    // "&HFFFF" is -1 in 16 bits and 65535 in 32.
    require(!isShort || isLong || isText(value), "what fits 16 bits fits 32");
    require(!isShort || isText(value) || small.get().iVal == large.get().lVal, "sizes agree");
    if (hasText && isLong && !isText(value) && (value.vt & VT_TYPEMASK) == VT_I4) {
        OwnedVariant back;
        require(SUCCEEDED(convert(back, text.get(), VT_I4)) && back.get().lVal == large.get().lVal,
                "the text of a number is that number");
    }
    OwnedVariant again;
    require(!hasText || (SUCCEEDED(convert(again, text.get(), VT_BSTR)) &&
                         Text::viewOf(again.get().bstrVal) == Text::viewOf(text.get().bstrVal)),
            "a text stays as it is");
}

void callOperation(IDispatch& document, ByteSource& input, HostValues& values) {
    constexpr int idsAround = operationCount + 4;
    std::vector<VARIANT> arguments(input.byte() % 6);
    for (VARIANT& argument : arguments) {
        argument = values.make();
    }
    std::vector<DISPID> positions(std::min<std::size_t>(input.byte() % 4, arguments.size()));
    for (DISPID& position : positions) {
        position = input.byte() % 6 - 1;
    }
    DISPPARAMS parameters{arguments.data(), positions.data(), static_cast<UINT>(arguments.size()),
                          static_cast<UINT>(positions.size())};
    const DISPID id = input.byte() % idsAround - 1;
    const auto flags = static_cast<WORD>(input.byte() % 8);
    UINT bad = 0xFFFF;
    OwnedVariant answer;
    const HRESULT result =
        document.Invoke(id, IID_NULL, 0, flags, &parameters, &answer.get(), nullptr, &bad);
    require(SUCCEEDED(result) || bad == 0xFFFF || bad < arguments.size(),
            "the argument at fault is one of the list");
}

void lookUp(IDispatch& document, ByteSource& input) {
    std::vector<Text> texts;
    for (std::size_t count = input.byte() % 4; count > 0; --count) {
        const std::string_view bytes = input.piece();
        texts.emplace_back(std::u16string(bytes.begin(), bytes.end()));
    }
    std::vector<LPOLESTR> names;
    for (const Text& text : texts) {
        names.push_back(text.get());
    }
    std::vector<DISPID> ids(names.size());
    static_cast<void>(document.GetIDsOfNames(IID_NULL, names.data(),
                                             static_cast<UINT>(names.size()), 0, ids.data()));
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    static const testing::RecordedObject object;
    ByteSource input(data, size);
    HostValues values(input);
    const std::uint8_t choice = input.byte();
    if (choice % 4 == 0) {
        callOperation(object.document(), input, values);
        object.calls().clear();
    } else if (choice % 16 == 1) {
        lookUp(object.document(), input);
    } else {
        checkConversions(values.make());
    }
    return 0;
}

#pragma once

#include <atomic>

#include "component/module/module_state.h"
#include "dochtml/automation.h"
#include "dochtml/com_pointer.h"

namespace quillmark {

/// Base of objects that can be aggregated into an outer object.
///
/// The object's interface forwards the functions of `IUnknown` to the outer object, which controls
/// identity and lifetime. The outer object holds this object through its inner unknown. Without an
/// outer object, the inner unknown takes its role.
template <typename Interface>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): its last release deletes it.
class AggregableObject : public Interface {
public:
    AggregableObject(const AggregableObject&) = delete;
    AggregableObject& operator=(const AggregableObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) final {
        return outer_->QueryInterface(iid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return outer_->AddRef(); }
    ULONG STDMETHODCALLTYPE Release() final { return outer_->Release(); }

    /// The object's own `IUnknown`. A new object has one reference, which its creator owns.
    [[nodiscard]] IUnknown* innerUnknown() noexcept { return &inner_; }

protected:
    /// Does not count a reference to `outer`, which outlives the objects that it aggregates.
    explicit AggregableObject(IUnknown* outer) noexcept
        : inner_(*this), outer_(outer == nullptr ? &inner_ : outer) {}
    virtual ~AggregableObject() = default;

    /// The interface with that identifier, without counting it. Null when the class lacks it.
    [[nodiscard]] virtual IUnknown* findInterface(REFIID iid) noexcept = 0;

private:
    // NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): a part of its owner.
    class InnerUnknown final : public IUnknown {
    public:
        explicit InnerUnknown(AggregableObject& owner) noexcept : owner_(owner) {}

        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
            if (object == nullptr) {
                return E_POINTER;
            }
            IUnknown* found = IsEqualIID(iid, IID_IUnknown) ? this : owner_.findInterface(iid);
            *object = found;
            if (found == nullptr) {
                return E_NOINTERFACE;
            }
            found->AddRef();
            return S_OK;
        }
        ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
        ULONG STDMETHODCALLTYPE Release() override {
            const ULONG left = --count_;
            if (left == 0) {
                // References taken and released by the destructor must not delete it again.
                count_ = endingCount;
                delete &owner_;
            }
            return left;
        }

    private:
        static constexpr ULONG endingCount = 0x40000000;

        AggregableObject& owner_;
        std::atomic<ULONG> count_{1};
    };

    LiveObject live_;
    InnerUnknown inner_;
    IUnknown* outer_;
};

/// Creates an object for `IClassFactory::CreateInstance`, whose parameters come first. The further
/// arguments go to the object's constructor.
template <typename Object, typename... Arguments>
HRESULT createAggregable(IUnknown* outer, REFIID iid, void** object, Arguments&&... arguments) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    // Only the inner unknown can be held by an outer object; other interfaces forward to it.
    if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown)) {
        return CLASS_E_NOAGGREGATION;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): counted; its last release deletes it.
    auto* made = new Object(outer, std::forward<Arguments>(arguments)...);
    const auto owner = ComPointer<IUnknown>::adopt(made->innerUnknown());
    return owner->QueryInterface(iid, object);
}

}  // namespace quillmark

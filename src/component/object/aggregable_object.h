#pragma once

#include <atomic>

#include "component/object/module_state.h"
#include "dochtml/automation.h"
#include "dochtml/com_pointer.h"

namespace quillmark {

/// Base of the objects that a class makes, alone or inside an outer object.
///
/// The object's interface passes `IUnknown` on to the outer object, which alone decides identity
/// and life; the outer object holds the object by its inner unknown. Without an outer object the
/// inner unknown is the outer one.
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

    /// The unknown that knows the object itself. A new object is counted once for its maker.
    [[nodiscard]] IUnknown* innerUnknown() noexcept { return &inner_; }

protected:
    /// `outer` is not counted: it outlives what it holds.
    explicit AggregableObject(IUnknown* outer) noexcept
        : inner_(*this), outer_(outer == nullptr ? &inner_ : outer) {}
    virtual ~AggregableObject() = default;

    /// The interface of that identifier, not counted yet; null when the class has none.
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
                // A reference taken and let go of while the object goes must not end it twice.
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
    ServiceUser user_;
    InnerUnknown inner_;
    IUnknown* outer_;
};

/// Makes an object for a class object's `CreateInstance`, which says what the arguments are.
template <typename Object, typename... Arguments>
HRESULT createAggregable(IUnknown* outer, REFIID iid, void** object, Arguments&&... arguments) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    // An outer object must hold the inner unknown, or the identities would run into each other.
    if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown)) {
        return CLASS_E_NOAGGREGATION;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): counted; its last release deletes it.
    auto* made = new Object(outer, std::forward<Arguments>(arguments)...);
    const auto owner = ComPointer<IUnknown>::adopt(made->innerUnknown());
    return owner->QueryInterface(iid, object);
}

}  // namespace quillmark

// An object's identity and lifetime, alone and inside an outer object.

#include <gtest/gtest.h>

#include "component/module/module_state.h"
#include "component/object/recorded_object.h"

namespace quillmark::testing {
namespace {

constexpr IID unknownInterface = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};

/// An outer object that counts references and passes requests for unknown interfaces on to its
/// inner object.
class Outer final : public IUnknown {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (IsEqualIID(iid, IID_IUnknown)) {
            *object = static_cast<IUnknown*>(this);
            AddRef();
            return S_OK;
        }
        return inner->QueryInterface(iid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count; }
    ULONG STDMETHODCALLTYPE Release() override { return --count; }

    ULONG count = 1;
    ComPointer<IUnknown> inner;
};

std::unique_ptr<IDocument> makeRecording() {
    return std::make_unique<RecordingDocument>();
}

TEST(DocumentAlone, HasOneIdentityForAllItsInterfaces) {
    const RecordedObject object;
    ComPointer<IUnknown> first;
    ComPointer<IUnknown> second;
    ComPointer<IDispatch> dispatch;
    ASSERT_EQ(object.document().QueryInterface(IID_IUnknown, first.receive()), S_OK);
    ASSERT_EQ(object.document().QueryInterface(IID_IDispatch, dispatch.receive()), S_OK);
    ASSERT_EQ(dispatch->QueryInterface(IID_IUnknown, second.receive()), S_OK);
    EXPECT_EQ(first.get(), second.get());
}

TEST(DocumentAlone, LeadsFromEveryInterfaceToEveryOther) {
    const RecordedObject object;
    const IID interfaces[] = {IID_IUnknown, IID_IDispatch, IID_IDocument};
    for (const IID& from : interfaces) {
        ComPointer<IUnknown> start;
        ASSERT_EQ(object.document().QueryInterface(from, start.receive()), S_OK);
        for (const IID& to : interfaces) {
            ComPointer<IUnknown> end;
            EXPECT_EQ(start->QueryInterface(to, end.receive()), S_OK);
        }
    }
}

TEST(DocumentAlone, HasNoOtherInterface) {
    const RecordedObject object;
    void* found = &found;
    EXPECT_EQ(object.document().QueryInterface(unknownInterface, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(object.document().QueryInterface(IID_IDispatch, nullptr), E_POINTER);
}

TEST(DocumentAlone, LivesAsLongAsAReferenceIsCounted) {
    RecordedObject object;
    EXPECT_EQ(object.document().AddRef(), 2U);
    EXPECT_EQ(object.document().Release(), 1U);
    EXPECT_FALSE(moduleIsIdle());
    object.release();
    EXPECT_TRUE(moduleIsIdle());
}

TEST(DocumentInside, IsCreatedWithTheUnknownInterfaceOnly) {
    Outer outer;
    void* object = &object;
    EXPECT_EQ(DocumentObject::make(&makeRecording, &outer, IID_IDocument, &object),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
    EXPECT_TRUE(moduleIsIdle());
}

TEST(DocumentInside, TakesTheOuterObjectsIdentity) {
    Outer outer;
    ASSERT_EQ(DocumentObject::make(&makeRecording, &outer, IID_IUnknown, outer.inner.receive()),
              S_OK);
    EXPECT_NE(outer.inner.get(), &outer);
    {
        ComPointer<::IDocument> document;
        ComPointer<IUnknown> identity;
        ASSERT_EQ(outer.QueryInterface(IID_IDocument, document.receive()), S_OK);
        ASSERT_EQ(document->QueryInterface(IID_IUnknown, identity.receive()), S_OK);
        EXPECT_EQ(identity.get(), &outer);
    }
    EXPECT_EQ(outer.count, 1U);
}

TEST(DocumentInside, CountsItsInterfacesOnTheOuterObject) {
    Outer outer;
    ASSERT_EQ(DocumentObject::make(&makeRecording, &outer, IID_IUnknown, outer.inner.receive()),
              S_OK);
    ComPointer<::IDocument> document;
    ASSERT_EQ(outer.QueryInterface(IID_IDocument, document.receive()), S_OK);
    EXPECT_EQ(outer.count, 2U);
    document->AddRef();
    EXPECT_EQ(outer.count, 3U);
    document->Release();
    document.reset();
    EXPECT_EQ(outer.count, 1U);
}

TEST(DocumentInside, IsCountedByItselfAsTheInnerObject) {
    Outer outer;
    ASSERT_EQ(DocumentObject::make(&makeRecording, &outer, IID_IUnknown, outer.inner.receive()),
              S_OK);
    EXPECT_EQ(outer.count, 1U);
    EXPECT_EQ(outer.inner->AddRef(), 2U);
    EXPECT_EQ(outer.inner->Release(), 1U);
    EXPECT_FALSE(moduleIsIdle());
    outer.inner.reset();
    EXPECT_TRUE(moduleIsIdle());
}

TEST(DocumentInside, AnswersForItsInnerUnknownItself) {
    Outer outer;
    ASSERT_EQ(DocumentObject::make(&makeRecording, &outer, IID_IUnknown, outer.inner.receive()),
              S_OK);
    const ComPointer<IUnknown> again = outer.inner.query<IUnknown>(IID_IUnknown);
    EXPECT_EQ(again.get(), outer.inner.get());
    EXPECT_FALSE(outer.inner.query<IUnknown>(unknownInterface));
}

}  // namespace
}  // namespace quillmark::testing

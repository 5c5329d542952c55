#include "component/object/class_factory.h"

#include <gtest/gtest.h>

#include "component/module/module_state.h"
#include "component/object/document_object.h"
#include "dochtml/com_pointer.h"
#include "dochtml/document.h"
#include "support/recording_document.h"

namespace quillmark::testing {
namespace {

HRESULT makeRecorded(IUnknown* outer, REFIID iid, void** object) {
    return DocumentObject::make(
        []() -> std::unique_ptr<IDocument> { return std::make_unique<RecordingDocument>(); }, outer,
        iid, object);
}

ComPointer<IClassFactory> makeFactory() {
    ComPointer<IClassFactory> factory;
    EXPECT_EQ(ClassFactory::make(&makeRecorded, IID_IClassFactory, factory.receive()), S_OK);
    return factory;
}

TEST(ClassFactory, CreatesANewObjectForEveryRequest) {
    const auto factory = makeFactory();
    ComPointer<IUnknown> first;
    ComPointer<IUnknown> second;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, first.receive()), S_OK);
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, second.receive()), S_OK);
    EXPECT_NE(first.get(), second.get());
}

TEST(ClassFactory, RefusesAnInterfaceThatTheClassDoesNotOffer) {
    const auto factory = makeFactory();
    void* object = &object;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDocument, nullptr), E_POINTER);
}

TEST(ClassFactory, IsOneIdentityWithTheHostServices) {
    const auto factory = makeFactory();
    const auto services = factory.query<IHostServices>(IID_IHostServices);
    ASSERT_TRUE(services);
    EXPECT_EQ(services.query<IUnknown>(IID_IUnknown).get(),
              factory.query<IUnknown>(IID_IUnknown).get());
    EXPECT_TRUE(services.query<IClassFactory>(IID_IClassFactory));
}

TEST(ClassFactory, OffersNothingElse) {
    void* object = &object;
    EXPECT_EQ(ClassFactory::make(&makeRecorded, IID_IDocument, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(ClassFactory::make(&makeRecorded, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_TRUE(moduleIsIdle());
}

TEST(Module, IsIdleWithoutObjectsAndLocks) {
    EXPECT_TRUE(moduleIsIdle());
    auto factory = makeFactory();
    EXPECT_FALSE(moduleIsIdle());
    ComPointer<IUnknown> object;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, object.receive()), S_OK);
    EXPECT_EQ(factory->LockServer(1), S_OK);
    EXPECT_EQ(factory->LockServer(1), S_OK);
    object.reset();
    EXPECT_EQ(factory->LockServer(0), S_OK);
    EXPECT_FALSE(moduleIsIdle());
    EXPECT_EQ(factory->LockServer(0), S_OK);
    factory.reset();
    EXPECT_TRUE(moduleIsIdle());
}

TEST(Module, StaysLoadedForALockAlone) {
    auto factory = makeFactory();
    EXPECT_EQ(factory->LockServer(1), S_OK);
    factory.reset();
    EXPECT_FALSE(moduleIsIdle());
    makeFactory()->LockServer(0);
    EXPECT_TRUE(moduleIsIdle());
}

}  // namespace
}  // namespace quillmark::testing

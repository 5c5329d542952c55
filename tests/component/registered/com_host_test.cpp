// The registered component from the view of a Windows host that uses only the system's own
// functions and the header compiled from the interface description.

#include <gtest/gtest.h>

#include <string>

#include "dochtml_idl.h"

// These need the types of the header above.
#include <objbase.h>
#include <olectl.h>

namespace {

const wchar_t* const driverProgram = L"DocHtml.DocHtml.2.1.0";

class Apartment : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(CoInitialize(nullptr), S_OK); }
    void TearDown() override {
        // The library can be unloaded again: nothing keeps it.
        CoFreeUnusedLibraries();
        CoUninitialize();
    }
};

class RegisteredComponent : public Apartment {};

CLSID driverClass() {
    CLSID classId{};
    EXPECT_EQ(CLSIDFromProgID(driverProgram, &classId), S_OK);
    return classId;
}

template <typename Interface>
Interface* create(const CLSID& classId, const IID& iid) {
    void* object = nullptr;
    EXPECT_EQ(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, iid, &object), S_OK);
    return static_cast<Interface*>(object);
}

TEST_F(RegisteredComponent, HasTheClassOfTheDescription) {
    EXPECT_TRUE(IsEqualCLSID(driverClass(), CLSID_DocHtml));
}

TEST_F(RegisteredComponent, IsCreatedAndCalledThroughTheTable) {
    auto* document = create<IDocument>(CLSID_DocHtml, IID_IDocument);
    ASSERT_NE(document, nullptr);
    BSTR text = nullptr;
    EXPECT_EQ(document->getDocType(&text), S_OK);
    EXPECT_STREQ(text, L"Html");
    SysFreeString(text);
    EXPECT_EQ(document->getPropPages(&text), S_OK);
    EXPECT_STREQ(text, L"{474BDD93-0170-11D3-A6BF-00104B2AEFE1}");
    SysFreeString(text);
    EXPECT_EQ(document->Release(), 0U);
}

TEST_F(RegisteredComponent, ReturnsZeroForFailuresOfTheDriver) {
    auto* document = create<IDocument>(CLSID_DocHtml, IID_IDocument);
    BSTR group = SysAllocString(L"Html");
    BSTR name = SysAllocString(L"StyleSheet");
    BSTR missing = SysAllocString(L"C:\\no\\such.css");
    BSTR output = SysAllocString(L"C:\\no\\such\\rep.htm");
    EXPECT_EQ(document->overrideRegistry(group, name, missing, 0), S_OK);
    EXPECT_EQ(document->create(output), S_OK);
    EXPECT_EQ(document->insertText(name), S_OK);
    EXPECT_EQ(document->close(), S_OK);
    for (BSTR text : {group, name, missing, output}) {
        SysFreeString(text);
    }
    document->Release();
}

TEST_F(RegisteredComponent, DescribesItselfToLateBoundHosts) {
    auto* document = create<IDispatch>(CLSID_DocHtml, IID_IDispatch);
    UINT count = 0;
    EXPECT_EQ(document->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    ITypeInfo* info = nullptr;
    ASSERT_EQ(document->GetTypeInfo(0, 0, &info), S_OK);
    BSTR name = nullptr;
    EXPECT_EQ(info->GetDocumentation(3, &name, nullptr, nullptr, nullptr), S_OK);
    EXPECT_STREQ(name, L"insertText");
    SysFreeString(name);
    info->Release();
    document->Release();
}

TEST_F(RegisteredComponent, HasItsPropertyPage) {
    auto* page = create<IPropertyPage>(CLSID_HtmlComPage, IID_IPropertyPage);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->Release(), 0U);
}

TEST_F(RegisteredComponent, CreatesNoUnknownClassesAndInterfaces) {
    CLSID unknownClass = CLSID_DocHtml;
    unknownClass.Data1 = 0x474BDD92;
    void* object = nullptr;
    EXPECT_EQ(CoCreateInstance(unknownClass, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &object),
              REGDB_E_CLASSNOTREG);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(
        CoCreateInstance(CLSID_DocHtml, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage, &object),
        E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

/// An outer object that passes requests for unknown interfaces on.
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
    IUnknown* inner = nullptr;
};

class AggregatedClass : public Apartment, public ::testing::WithParamInterface<bool> {
protected:
    [[nodiscard]] static const CLSID& classId() {
        return GetParam() ? CLSID_HtmlComPage : CLSID_DocHtml;
    }
    [[nodiscard]] static const IID& interfaceId() {
        return GetParam() ? IID_IPropertyPage : IID_IDocument;
    }
};

TEST_P(AggregatedClass, FollowsTheRulesOfIdentity) {
    Outer outer;
    ASSERT_EQ(CoCreateInstance(classId(), &outer, CLSCTX_INPROC_SERVER, IID_IUnknown,
                               reinterpret_cast<void**>(&outer.inner)),
              S_OK);
    EXPECT_EQ(outer.count, 1U);
    IUnknown* served = nullptr;
    ASSERT_EQ(outer.QueryInterface(interfaceId(), reinterpret_cast<void**>(&served)), S_OK);
    EXPECT_EQ(outer.count, 2U);
    IUnknown* identity = nullptr;
    EXPECT_EQ(served->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity)), S_OK);
    EXPECT_EQ(identity, &outer);
    identity->Release();
    served->Release();
    EXPECT_EQ(outer.count, 1U);
    EXPECT_EQ(outer.inner->Release(), 0U);
}

TEST_P(AggregatedClass, IsCreatedWithTheUnknownInterfaceOnly) {
    Outer outer;
    void* object = nullptr;
    EXPECT_EQ(CoCreateInstance(classId(), &outer, CLSCTX_INPROC_SERVER, interfaceId(), &object),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
}

INSTANTIATE_TEST_SUITE_P(BothClasses, AggregatedClass, ::testing::Bool());

}  // namespace

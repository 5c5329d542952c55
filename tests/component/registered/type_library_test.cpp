// The complete contents of the type library inside the library.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "dochtml/com_pointer.h"
#include "dochtml/document.h"
#include "driver/boundary/operation_table.h"

namespace quillmark::testing {
namespace {

using ::testing::ElementsAre;

std::string narrow(BSTR text) {
    std::string ascii;
    for (UINT i = 0; i < SysStringLen(text); ++i) {
        ascii += static_cast<char>(text[i]);
    }
    SysFreeString(text);
    return ascii;
}

std::wstring libraryFile() {
    const std::string file = DOCHTML_TEST_LIBRARY;
    return {file.begin(), file.end()};
}

template <typename Object>
std::string nameOf(Object& object, LONG member) {
    BSTR name = nullptr;
    EXPECT_EQ(object.GetDocumentation(member, &name, nullptr, nullptr, nullptr), S_OK);
    return narrow(name);
}

template <typename Object>
std::string helpOf(Object& object, LONG member) {
    BSTR help = nullptr;
    EXPECT_EQ(object.GetDocumentation(member, nullptr, &help, nullptr, nullptr), S_OK);
    return narrow(help);
}

class TypeLibrary : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(
            LoadTypeLib(libraryFile().c_str(), reinterpret_cast<ITypeLib**>(library_.receive())),
            S_OK);
    }
    [[nodiscard]] ComPointer<ITypeInfo> typeOf(const GUID& id) const {
        ComPointer<ITypeInfo> info;
        EXPECT_EQ(library_->GetTypeInfoOfGuid(id, reinterpret_cast<ITypeInfo**>(info.receive())),
                  S_OK);
        return info;
    }

    ComPointer<ITypeLib> library_;
};

TEST_F(TypeLibrary, HasItsNameIdentifierVersionAndLocale) {
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library_->GetLibAttr(&attributes), S_OK);
    EXPECT_TRUE(IsEqualGUID(attributes->guid, LIBID_DOCHTMLCOMLib));
    EXPECT_EQ(attributes->wMajorVerNum, 2);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    EXPECT_EQ(attributes->lcid, 1033U);
    library_->ReleaseTLibAttr(attributes);
    EXPECT_EQ(nameOf(*library_.get(), MEMBERID_NIL), "DOCHTMLCOMLib");
    EXPECT_EQ(helpOf(*library_.get(), MEMBERID_NIL), "Document HTML 2.0 Type Library");
}

TEST_F(TypeLibrary, IsResourceOne) {
    ComPointer<ITypeLib> first;
    EXPECT_EQ(LoadTypeLib((libraryFile() + L"\\1").c_str(),
                          reinterpret_cast<ITypeLib**>(first.receive())),
              S_OK);
}

TEST_F(TypeLibrary, ContainsTheInterfaceAndTheTwoClasses) {
    std::vector<std::string> names;
    for (UINT i = 0; i < library_->GetTypeInfoCount(); ++i) {
        names.push_back(nameOf(*library_.get(), static_cast<LONG>(i)));
    }
    EXPECT_THAT(names, ElementsAre("IDocument", "DocHtml", "HtmlComPage"));
}

TEST_F(TypeLibrary, DescribesTheInterface) {
    const auto info = typeOf(IID_IDocument);
    EXPECT_EQ(helpOf(*info.get(), MEMBERID_NIL), "IDocument Interface");
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_DISPATCH);
    // The system does not show the third flag, automation-compatible, in this view.
    EXPECT_EQ(attributes->wTypeFlags, TYPEFLAG_FDUAL | TYPEFLAG_FDISPATCHABLE);
    info->ReleaseTypeAttr(attributes);
}

TEST_F(TypeLibrary, DescribesTheClassOfTheDriver) {
    const auto info = typeOf(CLSID_DocHtml);
    EXPECT_EQ(helpOf(*info.get(), MEMBERID_NIL), "DocHtml Class");
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    EXPECT_EQ(attributes->wTypeFlags, TYPEFLAG_FCANCREATE);
    EXPECT_EQ(attributes->cImplTypes, 1);
    info->ReleaseTypeAttr(attributes);
    INT flags = 0;
    EXPECT_EQ(info->GetImplTypeFlags(0, &flags), S_OK);
    EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT);
    HREFTYPE reference = 0;
    ComPointer<ITypeInfo> implemented;
    ASSERT_EQ(info->GetRefTypeOfImplType(0, &reference), S_OK);
    ASSERT_EQ(info->GetRefTypeInfo(reference, reinterpret_cast<ITypeInfo**>(implemented.receive())),
              S_OK);
    EXPECT_EQ(nameOf(*implemented.get(), MEMBERID_NIL), "IDocument");
}

TEST_F(TypeLibrary, DescribesTheClassOfThePage) {
    const auto info = typeOf(CLSID_HtmlComPage);
    EXPECT_EQ(helpOf(*info.get(), MEMBERID_NIL), "HtmlComPage Class");
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    EXPECT_EQ(attributes->wTypeFlags, TYPEFLAG_FCANCREATE);
    EXPECT_EQ(attributes->cImplTypes, 0);
    info->ReleaseTypeAttr(attributes);
}

/// The function table that belongs to the dispatch description.
ComPointer<ITypeInfo> tableOf(const ComPointer<ITypeInfo>& dispatch) {
    HREFTYPE reference = 0;
    ComPointer<ITypeInfo> table;
    EXPECT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
    EXPECT_EQ(dispatch->GetRefTypeInfo(reference, reinterpret_cast<ITypeInfo**>(table.receive())),
              S_OK);
    return table;
}

VARTYPE typeOf(ParameterKind kind) {
    switch (kind) {
        case ParameterKind::shortInteger:
            return VT_I2;
        case ParameterKind::longInteger:
            return VT_I4;
        case ParameterKind::boolean:
            return VT_BOOL;
        case ParameterKind::string:
            return VT_BSTR;
        case ParameterKind::outString:
            break;
    }
    return VT_PTR;
}

void checkParameter(const ELEMDESC& found, const Parameter& parameter) {
    EXPECT_EQ(found.tdesc.vt, typeOf(parameter.kind));
    const bool isOut = parameter.kind == ParameterKind::outString;
    EXPECT_EQ(found.paramdesc.wParamFlags, isOut ? PARAMFLAG_FOUT : PARAMFLAG_FIN);
    if (isOut) {
        EXPECT_EQ(found.tdesc.lptdesc->vt, VT_BSTR);
    }
}

std::vector<std::string> namesOf(ITypeInfo& info, MEMBERID id) {
    BSTR names[8] = {};
    UINT count = 0;
    EXPECT_EQ(info.GetNames(id, names, 8, &count), S_OK);
    std::vector<std::string> all;
    for (UINT i = 0; i < count; ++i) {
        all.push_back(narrow(names[i]));
    }
    return all;
}

TEST_F(TypeLibrary, DerivesTheTableFromTheDispatchInterface) {
    const auto table = tableOf(typeOf(IID_IDocument));
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(table->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_INTERFACE);
    EXPECT_EQ(attributes->wTypeFlags,
              TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE);
    EXPECT_EQ(attributes->cFuncs, 42);
    EXPECT_TRUE(IsEqualGUID(attributes->guid, IID_IDocument));
    table->ReleaseTypeAttr(attributes);
    HREFTYPE reference = 0;
    ComPointer<ITypeInfo> base;
    ASSERT_EQ(table->GetRefTypeOfImplType(0, &reference), S_OK);
    ASSERT_EQ(table->GetRefTypeInfo(reference, reinterpret_cast<ITypeInfo**>(base.receive())),
              S_OK);
    EXPECT_EQ(nameOf(*base.get(), MEMBERID_NIL), "IDispatch");
}

TEST_F(TypeLibrary, ListsTheOperationsInTheirOrder) {
    constexpr std::size_t inherited = 7;
    const auto table = tableOf(typeOf(IID_IDocument));
    for (const Operation& operation : operations()) {
        const auto index = static_cast<UINT>(operation.dispatchId - 1);
        FUNCDESC* function = nullptr;
        ASSERT_EQ(table->GetFuncDesc(index, &function), S_OK) << operation.name;
        EXPECT_EQ(function->memid, operation.dispatchId);
        EXPECT_EQ(function->invkind, INVOKE_FUNC);
        EXPECT_EQ(function->callconv, CC_STDCALL);
        EXPECT_EQ(function->elemdescFunc.tdesc.vt, VT_HRESULT);
        EXPECT_EQ(static_cast<std::size_t>(function->oVft), (inherited + index) * sizeof(void*));
        std::vector<std::string> expected{operation.name};
        ASSERT_EQ(static_cast<std::size_t>(function->cParams), operation.parameters.size());
        for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
            expected.emplace_back(operation.parameters[i].name);
            checkParameter(function->lprgelemdescParam[i], operation.parameters[i]);
        }
        EXPECT_EQ(namesOf(*table.get(), function->memid), expected);
        EXPECT_EQ(helpOf(*table.get(), function->memid), "method " + std::string(operation.name));
        table->ReleaseFuncDesc(function);
    }
}

TEST_F(TypeLibrary, IsKnownToTheSystemWhenRegistered) {
    ComPointer<ITypeLib> registered;
    EXPECT_EQ(LoadRegTypeLib(LIBID_DOCHTMLCOMLib, 2, 0, 1033,
                             reinterpret_cast<ITypeLib**>(registered.receive())),
              S_OK);
}

}  // namespace
}  // namespace quillmark::testing

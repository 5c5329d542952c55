// A C host that creates the component by name: the system manages class objects and library.

#include <gtest/gtest.h>

#include "dochtml/dochtml_c.h"
#include "platform/windows/windows_api.h"

namespace quillmark::testing {
namespace {

const char* const driverProgram = "DocHtml.DocHtml.2.1.0";

/// Creates a document by name, calls it and releases it.
HRESULT useDocument() {
    DochtmlDocument* document = nullptr;
    const HRESULT made = dochtml_create_document(driverProgram, &document);
    if (FAILED(made)) {
        return made;
    }
    BSTR type = nullptr;
    const HRESULT asked = document->table->getDocType(document, &type);
    SysFreeString(type);
    document->table->Release(document);
    return asked;
}

bool isLoaded() {
    return GetModuleHandleW(L"dochtmlcom.dll") != nullptr;
}

TEST(CClient, FindsTheComponentAgainInALaterApartment) {
    for (int apartment = 0; apartment < 3; ++apartment) {
        ASSERT_EQ(dochtml_initialize(), S_OK);
        EXPECT_EQ(useDocument(), S_OK);
        EXPECT_TRUE(isLoaded());
        CoFreeUnusedLibraries();
        dochtml_uninitialize();
        // The client does not keep it loaded.
        EXPECT_FALSE(isLoaded());
    }
}

TEST(CClient, KeepsTheLibraryLoadedWhileItHoldsTheServices) {
    ASSERT_EQ(dochtml_initialize(), S_OK);
    DochtmlHostServices* services = nullptr;
    ASSERT_EQ(dochtml_host_services(driverProgram, &services), S_OK);
    CoFreeUnusedLibraries();
    EXPECT_TRUE(isLoaded());
    EXPECT_EQ(services->table->setSchemaType(services, 0), S_OK);
    services->table->Release(services);
    dochtml_uninitialize();
}

TEST(CClient, StaysInItsApartmentUntilTheLastOfItsCalls) {
    ASSERT_EQ(dochtml_initialize(), S_OK);
    DochtmlDocument* document = nullptr;
    ASSERT_EQ(dochtml_create_document(driverProgram, &document), S_OK);
    ASSERT_EQ(dochtml_initialize(), S_OK);
    EXPECT_EQ(document->table->insertEndl(document), S_OK);
    dochtml_uninitialize();
    EXPECT_EQ(document->table->insertEndl(document), S_OK);
    document->table->Release(document);
    EXPECT_EQ(useDocument(), S_OK);
    dochtml_uninitialize();
    EXPECT_EQ(useDocument(), CO_E_NOTINITIALIZED);
    dochtml_uninitialize();
    EXPECT_EQ(useDocument(), CO_E_NOTINITIALIZED);
}

TEST(CClient, ToleratesOneCallTooMany) {
    dochtml_uninitialize();
    ASSERT_EQ(dochtml_initialize(), S_OK);
    EXPECT_EQ(useDocument(), S_OK);
    dochtml_uninitialize();
}

}  // namespace
}  // namespace quillmark::testing

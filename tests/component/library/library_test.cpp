// The library from outside: its classes, how long it must stay loaded, and several objects at once.

#include <gmock/gmock.h>

#include <csignal>
#include <thread>

#include "component/object/operation_calls.h"
#include "dochtml/entry_points.h"
#include "dochtml/text.h"
#include "driver/doc_html.h"
#include "loaded_library.h"
#include "support/environment_variable.h"
#include "support/temp_dir.h"
#include "tested_component.h"

namespace quillmark::testing {
namespace {

constexpr CLSID unknownClass = {
    0x474BDD92, 0x0170, 0x11D3, {0xA6, 0xBF, 0x00, 0x10, 0x4B, 0x2A, 0xEF, 0xE1}};

class Library : public ::testing::Test {
protected:
    [[nodiscard]] HRESULT classObject(const CLSID& classId, const IID& iid, void** object) const {
        return library_.find<DochtmlGetClassObject>("DllGetClassObject")(classId, iid, object);
    }
    [[nodiscard]] HRESULT canUnload() const {
        return library_.find<DochtmlEntryPoint>("DllCanUnloadNow")();
    }

    LoadedLibrary library_{DOCHTML_TEST_LIBRARY};
};

TEST_F(Library, ContainsBothClasses) {
    for (const CLSID& classId : {CLSID_DocHtml, CLSID_HtmlComPage}) {
        ComPointer<IClassFactory> factory;
        EXPECT_EQ(classObject(classId, IID_IClassFactory, factory.receive()), S_OK);
        EXPECT_TRUE(factory);
    }
}

TEST_F(Library, DoesNotKnowOtherClasses) {
    void* object = &object;
    EXPECT_EQ(classObject(unknownClass, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Library, DoesNotKnowOtherInterfacesOfAClass) {
    void* object = &object;
    EXPECT_EQ(classObject(CLSID_DocHtml, IID_IDocument, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(classObject(CLSID_DocHtml, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(Library, MayBeUnloadedWhenNoneOfItsObjectsIsAlive) {
    EXPECT_EQ(canUnload(), S_OK);
    ComPointer<IClassFactory> factory;
    ASSERT_EQ(classObject(CLSID_DocHtml, IID_IClassFactory, factory.receive()), S_OK);
    ComPointer<::IDocument> first;
    ComPointer<::IDocument> second;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDocument, first.receive()), S_OK);
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDocument, second.receive()), S_OK);
    factory.reset();
    EXPECT_EQ(canUnload(), S_FALSE);
    first.reset();
    EXPECT_EQ(canUnload(), S_FALSE);
    second.reset();
    EXPECT_EQ(canUnload(), S_OK);
}

TEST_F(Library, StaysLoadedForALock) {
    ComPointer<IClassFactory> factory;
    ASSERT_EQ(classObject(CLSID_DocHtml, IID_IClassFactory, factory.receive()), S_OK);
    EXPECT_EQ(factory->LockServer(1), S_OK);
    factory.reset();
    EXPECT_EQ(canUnload(), S_FALSE);
    ASSERT_EQ(classObject(CLSID_DocHtml, IID_IClassFactory, factory.receive()), S_OK);
    EXPECT_EQ(factory->LockServer(0), S_OK);
    factory.reset();
    EXPECT_EQ(canUnload(), S_OK);
}

TEST_F(Library, CreatesNoObjectForAnInterfaceThatItsClassDoesNotOffer) {
    for (const CLSID& classId : {CLSID_DocHtml, CLSID_HtmlComPage}) {
        ComPointer<IClassFactory> factory;
        ASSERT_EQ(classObject(classId, IID_IClassFactory, factory.receive()), S_OK);
        void* object = &object;
        EXPECT_TRUE(FAILED(factory->CreateInstance(nullptr, IID_IClassFactory, &object)));
        EXPECT_EQ(object, nullptr);
    }
    EXPECT_EQ(canUnload(), S_OK);
}

#ifndef _WIN32
TEST_F(Library, HasNoSettingsPageWhereThereAreNoPropertyPages) {
    ComPointer<IClassFactory> factory;
    ASSERT_EQ(classObject(CLSID_HtmlComPage, IID_IClassFactory, factory.receive()), S_OK);
    ComPointer<IUnknown> page;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, page.receive()),
              CLASS_E_CLASSNOTAVAILABLE);
}
#endif

#ifndef _WIN32
/// Loads the library, writes a document with it, and unloads it.
void writeDocumentAndUnload(const TempDir& dir) {
    const LoadedLibrary library(DOCHTML_TEST_LIBRARY);
    ComPointer<IClassFactory> factory;
    ASSERT_EQ(library.find<DochtmlGetClassObject>("DllGetClassObject")(
                  CLSID_DocHtml, IID_IClassFactory, factory.receive()),
              S_OK);
    ComPointer<::IDocument> document;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDocument, document.receive()), S_OK);
    const std::string name = dir.file("rep.htm").str();
    document->overrideRegistry(Text(u"Html").get(), Text(u"StyleSheet").get(), nullptr, 0);
    document->create(Text(std::u16string(name.begin(), name.end())).get());
    document->insertText(Text(u"text").get());
    document->close();
}

TEST(UnloadedLibrary, LeavesNoSignalHandlerInstalled) {
    struct sigaction before {};
    struct sigaction after {};
    ASSERT_EQ(sigaction(SIGSEGV, nullptr, &before), 0);
    const TempDir dir;
    writeDocumentAndUnload(dir);
    EXPECT_TRUE(dir.content("rep_dtl.htm"));
    ASSERT_EQ(dlopen(DOCHTML_TEST_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr);
    ASSERT_EQ(sigaction(SIGSEGV, nullptr, &after), 0);
    EXPECT_EQ(after.sa_sigaction, before.sa_sigaction);
}
#endif

/// Writes a document of one text on this thread, in an apartment of its own.
std::string writeDocument(const Component& component, const TempDir& dir,
                          const std::u16string& text) {
    const Apartment apartment;
    const auto document = component.createDocument();
    const std::string narrow = dir.file("rep.htm").str();
    document->overrideRegistry(Text(u"Html").get(), Text(u"StyleSheet").get(), nullptr, 0);
    document->create(Text(std::u16string(narrow.begin(), narrow.end())).get());
    for (int line = 0; line < 200; ++line) {
        document->insertText(Text(text).get());
        document->insertEndl();
    }
    document->close();
    return dir.content("rep_dtl.htm").value_or("");
}

TEST(Apartments, WriteDocumentsSideBySide) {
    const TempDir config;
    const EnvironmentVariable settings("XDG_CONFIG_HOME", config.native());
    const Apartment apartment;
    const Component component = Component::fromLibrary(DOCHTML_TEST_LIBRARY);
    const TempDir directories[2];
    std::string pages[2];
    {
        std::jthread first([&] { pages[0] = writeDocument(component, directories[0], u"first"); });
        std::jthread second(
            [&] { pages[1] = writeDocument(component, directories[1], u"second"); });
    }
    const TempDir alone;
    EXPECT_EQ(pages[0], writeDocument(component, alone, u"first"));
    EXPECT_THAT(pages[0], ::testing::Not(::testing::HasSubstr("second")));
    EXPECT_THAT(pages[1], ::testing::HasSubstr("second"));
    EXPECT_EQ(pages[1].size(), pages[0].size() + 200);
}

bool isRefused(const std::string& file, const CLSID& classId = CLSID_DocHtml) {
    try {
        static_cast<void>(Component::fromLibrary(file, classId));
        return false;
    } catch (const ComponentError& failure) {
        EXPECT_FALSE(failure.isNotRegistered());
        return true;
    }
}

TEST(LoadedComponent, RefusesALibraryThatIsNotAComponent) {
    const TempDir dir;
    dir.put("no.so", "not a library");
    EXPECT_TRUE(isRefused(dir.nativeFile("no.so")));
    EXPECT_TRUE(isRefused(dir.nativeFile("missing.so")));
    EXPECT_TRUE(isRefused(DOCHTML_TEST_LIBRARY, unknownClass));
    EXPECT_FALSE(isRefused(DOCHTML_TEST_LIBRARY));
}

}  // namespace
}  // namespace quillmark::testing

#include "component/registration/registrar.h"

#include <gmock/gmock.h>

#include "component/registration/memory_key_store.h"

namespace quillmark::testing {
namespace {

constexpr const char* script =
    "HKCR { Prog.1 = s 'A Class' { CLSID = s '{1}' } NoRemove CLSID { ForceRemove {1} = s 'A "
    "Class' "
    "{ ProgID = s 'Prog.1' ForceRemove Programmable Server = s '%MODULE%' { val Model = s 'Flat' } "
    "} "
    "} }";

std::vector<RegisteredKey> keys() {
    return readRegistrationScript(script, "/lib/a.so");
}

KeyTree leaf(const std::string& value) {
    return {{{"", {KeyValue::textType, value}}}, {}};
}

/// What the script writes into an empty store.
KeyTree registered() {
    KeyTree server = leaf("/lib/a.so");
    server.values["Model"] = {KeyValue::textType, "Flat"};
    KeyTree classKey = leaf("A Class");
    classKey.children = {{"ProgID", leaf("Prog.1")}, {"Programmable", {}}, {"Server", server}};
    KeyTree program = leaf("A Class");
    program.children = {{"CLSID", leaf("{1}")}};
    return {{}, {{"Prog.1", program}, {"CLSID", {{}, {{"{1}", classKey}}}}}};
}

/// A store with keys of other programs and of an earlier version of ours.
KeyTree usedStore() {
    KeyTree old = leaf("Older Class");
    old.children = {{"Leftover", leaf("x")}};
    old.values["Number"] = {4, std::string("\1\0\0\0", 4)};
    return {{}, {{"CLSID", {{}, {{"{1}", old}, {"{2}", leaf("Another")}}}}, {"Other", leaf("y")}}};
}

HRESULT registerAll(MemoryKeyStore& store) {
    Registrar registrar(store, keys());
    const HRESULT result = registrar.registerKeys();
    return SUCCEEDED(result) ? registrar.keep() : result;
}

HRESULT unregisterAll(MemoryKeyStore& store) {
    Registrar registrar(store, keys());
    const HRESULT result = registrar.unregisterKeys();
    return SUCCEEDED(result) ? registrar.keep() : result;
}

TEST(Registrar, WritesTheKeysOfTheScriptAndNoOthers) {
    MemoryKeyStore store;
    EXPECT_EQ(registerAll(store), S_OK);
    EXPECT_EQ(store.root, registered());
}

TEST(Registrar, LeavesOneCopyWhenRegisteringTwice) {
    MemoryKeyStore store;
    EXPECT_EQ(registerAll(store), S_OK);
    EXPECT_EQ(registerAll(store), S_OK);
    EXPECT_EQ(store.root, registered());
}

TEST(Registrar, ReplacesAnOldClassKeyCompletely) {
    MemoryKeyStore store;
    store.root = usedStore();
    EXPECT_EQ(registerAll(store), S_OK);
    EXPECT_EQ(store.read("CLSID\\{1}"), registered().children["CLSID"].children["{1}"]);
    EXPECT_EQ(store.read("CLSID\\{2}"), leaf("Another"));
}

TEST(Registrar, RemovesAllButTheSharedKey) {
    MemoryKeyStore store;
    EXPECT_EQ(registerAll(store), S_OK);
    EXPECT_EQ(unregisterAll(store), S_OK);
    EXPECT_EQ(store.root, (KeyTree{{}, {{"CLSID", {}}}}));
}

TEST(Registrar, RemovesNothingOfOthers) {
    MemoryKeyStore store;
    store.root = usedStore();
    EXPECT_EQ(unregisterAll(store), S_OK);
    KeyTree left = usedStore();
    left.children["CLSID"].children.erase("{1}");
    EXPECT_EQ(store.root, left);
}

TEST(Registrar, SucceedsInUnregisteringWhatIsNotRegistered) {
    MemoryKeyStore store;
    EXPECT_EQ(unregisterAll(store), S_OK);
    EXPECT_EQ(store.root, KeyTree());
}

TEST(Registrar, RestoresEverythingWhereverRegistrationFails) {
    MemoryKeyStore whole;
    whole.root = usedStore();
    ASSERT_EQ(registerAll(whole), S_OK);
    for (int change = 1; change <= whole.changes; ++change) {
        MemoryKeyStore store;
        store.root = usedStore();
        store.failAt = change;
        EXPECT_EQ(registerAll(store), E_ACCESSDENIED) << change;
        EXPECT_EQ(store.root, usedStore()) << change;
    }
}

TEST(Registrar, RemovesASharedKeyThatItCreatedWhenRegistrationFails) {
    MemoryKeyStore whole;
    ASSERT_EQ(registerAll(whole), S_OK);
    for (int change = 1; change <= whole.changes; ++change) {
        MemoryKeyStore store;
        store.failAt = change;
        EXPECT_EQ(registerAll(store), E_ACCESSDENIED) << change;
        EXPECT_EQ(store.root, KeyTree()) << change;
    }
}

TEST(Registrar, RestoresEverythingWhereverUnregistrationFails) {
    MemoryKeyStore whole;
    ASSERT_EQ(registerAll(whole), S_OK);
    whole.changes = 0;
    ASSERT_EQ(unregisterAll(whole), S_OK);
    for (int change = 1; change <= whole.changes; ++change) {
        MemoryKeyStore store;
        store.root = registered();
        store.failAt = change;
        EXPECT_EQ(unregisterAll(store), E_ACCESSDENIED) << change;
        EXPECT_EQ(store.root, registered()) << change;
    }
}

TEST(Registrar, RestoresEverythingUnlessItIsKept) {
    MemoryKeyStore store;
    store.root = usedStore();
    {
        Registrar registrar(store, keys());
        EXPECT_EQ(registrar.registerKeys(), S_OK);
    }
    EXPECT_EQ(store.root, usedStore());
}

}  // namespace
}  // namespace quillmark::testing

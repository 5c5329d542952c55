#include "component/posix/class_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <fstream>
#include <thread>

#include "component/client/posix/class_lookup.h"
#include "component/registration/server_registration.h"
#include "dochtml/client.h"
#include "platform/files/posix/descriptor_io.h"
#include "support/environment_variable.h"
#include "support/temp_dir.h"

namespace quillmark::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::StartsWith;

class ClassFile : public ::testing::Test {
protected:
    fs::path file() const { return dir_.nativeFile("quillmark\\classes.ini"); }
    std::string content() const { return dir_.content("quillmark\\classes.ini").value_or(""); }
    KeyTree tree() const { return readClassFile(file()).value(); }
    fs::path lockFile() const { return file().string() + ".lock"; }

    TempDir dir_;
    EnvironmentVariable data_{"XDG_DATA_HOME", dir_.native()};
};

TEST_F(ClassFile, IsInTheDataDirectoryOfTheUser) {
    EXPECT_EQ(classFilePath(), file());
    const EnvironmentVariable home("HOME", "/home/somebody");
    const EnvironmentVariable none("XDG_DATA_HOME", std::nullopt);
    EXPECT_EQ(classFilePath(), "/home/somebody/.local/share/quillmark/classes.ini");
    const EnvironmentVariable relative("XDG_DATA_HOME", "data");
    EXPECT_EQ(classFilePath(), "/home/somebody/.local/share/quillmark/classes.ini");
}

TEST_F(ClassFile, IsAnEmptyTreeWhenItDoesNotExist) {
    EXPECT_EQ(tree(), KeyTree());
}

TEST_F(ClassFile, KeepsEveryKeyAndValue) {
    KeyTree root;
    makeKey(root, "A\\B\\C").values[""] = {KeyValue::textType, "path=\\with\nall; sorts"};
    makeKey(root, "A").values["Name"] = {KeyValue::textType, ""};
    makeKey(root, "Empty");
    ASSERT_TRUE(writeClassFile(file(), root));
    EXPECT_EQ(tree(), root);
    EXPECT_THAT(content(), ::testing::EndsWith("[A]\nName=\n[A\\B]\n[A\\B\\C]\n"
                                               "@=path=\\\\with\\nall; sorts\n[Empty]\n"));
}

TEST_F(ClassFile, IgnoresMalformedLines) {
    fs::create_directories(file().parent_path());
    std::ofstream(file()) << "stray=1\n\n; a remark=\n[Key]\nno value\n;x=1\n@=y\n[]\n";
    KeyTree expected;
    makeKey(expected, "Key").values[""] = {KeyValue::textType, "y"};
    EXPECT_EQ(tree(), expected);
}

TEST_F(ClassFile, IsUnderstoodWithTheLineEndsOfAnotherSystem) {
    fs::create_directories(file().parent_path());
    std::ofstream(file()) << "[Key]\r\n@=y\r\nName=z\r\n";
    KeyTree expected;
    makeKey(expected, "Key").values[""] = {KeyValue::textType, "y"};
    makeKey(expected, "Key").values["Name"] = {KeyValue::textType, "z"};
    EXPECT_EQ(tree(), expected);
}

TEST_F(ClassFile, KeepsTheCommentsOfWhoEditedIt) {
    fs::create_directories(file().parent_path());
    std::ofstream(file()) << "; mine\r\n[A]\r\n; of A\r\n@=1\r\n[Gone]\n# of Gone\n";
    KeyTree root;
    makeKey(root, "a").values[""] = {KeyValue::textType, "2"};
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(writeClassFile(file(), root));
        EXPECT_THAT(content(), ::testing::EndsWith("; mine\n# of Gone\n[a]\n; of A\n@=2\n"));
        EXPECT_THAT(content(), StartsWith("; The components"));
        root = tree();
    }
}

TEST_F(ClassFile, IsNotReplacedWhenItIsSomethingElse) {
    fs::create_directories(file().parent_path());
    for (const std::string& foreign : {std::string("a letter\n"), std::string("[A]\n@=\0\n", 8)}) {
        std::ofstream(file(), std::ios::trunc) << foreign;
        EXPECT_EQ(readClassFile(file()), std::nullopt);
        EXPECT_FALSE(SUCCEEDED(registerServer()));
        EXPECT_EQ(content(), foreign);
    }
}

TEST_F(ClassFile, IsNotReadFromAPipe) {
    fs::create_directories(file().parent_path());
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
    EXPECT_EQ(readClassFile(file()), std::nullopt);
    EXPECT_FALSE(writeClassFile(file(), KeyTree()));
    EXPECT_TRUE(fs::is_fifo(file()));
}

TEST_F(ClassFile, PassesOverKeysWithoutAName) {
    fs::create_directories(file().parent_path());
    std::ofstream(file()) << "[A]\n@=a\n[\\B]\n@=b\n[C\\]\n@=c\n[D\\\\E]\n@=e\n[]\n@=f\n";
    KeyTree expected;
    makeKey(expected, "A").values[""] = {KeyValue::textType, "a"};
    EXPECT_EQ(tree(), expected);
}

TEST_F(ClassFile, PassesOverKeysThatLieTooDeep) {
    fs::create_directories(file().parent_path());
    std::string deep = "K";
    for (int level = 1; level < 512; ++level) {
        deep += "\\K";
    }
    std::string endless = "K";
    for (int level = 1; level < 300'000; ++level) {
        endless += "\\K";
    }
    std::ofstream(file()) << "[" << deep << "\\K]\n@=x\n[" << endless << "]\n@=y\n";
    EXPECT_EQ(tree(), KeyTree());
    std::ofstream(file()) << "[" << deep << "]\n@=z\n";
    const KeyTree read = tree();
    const KeyTree* const deepest = findKey(read, deep);
    ASSERT_NE(deepest, nullptr);
    EXPECT_EQ(deepest->values.at("").data, "z");
}

TEST_F(ClassFile, ContainsAKeyOnceInAnyCase) {
    KeyTree root;
    makeKey(root, "clsid\\A").values["Name"] = {KeyValue::textType, "kept"};
    makeKey(root, "CLSID\\a\\Below");
    ASSERT_TRUE(writeClassFile(file(), root));
    EXPECT_THAT(content(), ::testing::EndsWith("[clsid]\n[clsid\\A]\nName=kept\n"
                                               "[clsid\\A\\Below]\n"));
    const KeyTree* const found = findKey(root, "Clsid\\a");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->values.count("NAME"), 1U);
}

TEST_F(ClassFile, CannotBeWrittenWhenAFileHasTheNameOfItsDirectory) {
    dir_.put("quillmark", "in the way");
    EXPECT_FALSE(writeClassFile(file(), KeyTree()));
    EXPECT_EQ(registerServer(), REGDB_E_WRITEREGDB);
}

TEST_F(ClassFile, ContainsTheRegisteredClasses) {
    ASSERT_EQ(registerServer(), S_OK);
    const std::string once = content();
    ASSERT_EQ(registerServer(), S_OK);
    EXPECT_EQ(content(), once);
    const std::string library = fs::read_symlink("/proc/self/exe").string();
    EXPECT_EQ(once,
              "; The components that this user's programs find by name. Written by registration.\n"
              "[CLSID]\n"
              "[CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}]\n"
              "@=DocHtml Class\n"
              "[CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\InprocServer32]\n"
              "@=" +
                  library +
                  "\n"
                  "ThreadingModel=Apartment\n"
                  "[CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\ProgID]\n"
                  "@=DocHtml.DocHtml.2.1.0\n"
                  "[CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\Programmable]\n"
                  "[CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\VersionIndependentProgID]\n"
                  "@=DocHtml.DocHtml\n"
                  "[CLSID\\{474BDD93-0170-11d3-A6BF-00104B2AEFE1}]\n"
                  "@=HtmlComPage Class\n"
                  "[CLSID\\{474BDD93-0170-11d3-A6BF-00104B2AEFE1}\\InprocServer32]\n"
                  "@=" +
                  library +
                  "\n"
                  "ThreadingModel=Apartment\n"
                  "[CLSID\\{474BDD93-0170-11d3-A6BF-00104B2AEFE1}\\Programmable]\n"
                  "[DocHtml.DocHtml]\n"
                  "@=DocHtml Class\n"
                  "[DocHtml.DocHtml\\CurVer]\n"
                  "@=DocHtml.DocHtml.2.1.0\n"
                  "[DocHtml.DocHtml.2.1.0]\n"
                  "@=DocHtml Class\n"
                  "[DocHtml.DocHtml.2.1.0\\CLSID]\n"
                  "@={474BDD91-0170-11d3-A6BF-00104B2AEFE1}\n"
                  "[HtmlComPage.HtmlComPage]\n"
                  "@=HtmlComPage Class\n"
                  "[HtmlComPage.HtmlComPage\\CurVer]\n"
                  "@=HtmlComPage.HtmlComPage.2.1.0\n"
                  "[HtmlComPage.HtmlComPage.2.1.0]\n"
                  "@=HtmlComPage Class\n"
                  "[HtmlComPage.HtmlComPage.2.1.0\\CLSID]\n"
                  "@={474BDD93-0170-11d3-A6BF-00104B2AEFE1}\n");
}

TEST_F(ClassFile, KeepsTheSharedKeyAndOtherClassesWhenUnregistered) {
    KeyTree others;
    makeKey(others, "CLSID\\{1}").values[""] = {KeyValue::textType, "Another"};
    ASSERT_TRUE(writeClassFile(file(), others));
    ASSERT_EQ(registerServer(), S_OK);
    ASSERT_EQ(unregisterServer(), S_OK);
    EXPECT_EQ(tree(), others);
}

/// A file that exists but cannot be read by any user: it is a link to itself.
class UnreadableClassFile : public ClassFile {
protected:
    void SetUp() override {
        fs::create_directories(file().parent_path());
        fs::create_symlink("classes.ini", file());
    }
};

TEST_F(UnreadableClassFile, IsNotTreatedAsAnEmptyOne) {
    EXPECT_EQ(readClassFile(file()), std::nullopt);
}

TEST_F(UnreadableClassFile, IsNotChangedByRegistration) {
    EXPECT_EQ(registerServer(), REGDB_E_READREGDB);
    EXPECT_TRUE(fs::is_symlink(file()));
    EXPECT_EQ(unregisterServer(), REGDB_E_READREGDB);
    EXPECT_TRUE(fs::is_symlink(file()));
}

TEST_F(UnreadableClassFile, IsNamedInTheErrorOfALookup) {
    try {
        static_cast<void>(findRegisteredClass("DocHtml.DocHtml"));
        FAIL() << "nothing was thrown";
    } catch (const ComponentError& failure) {
        EXPECT_EQ(failure.result(), REGDB_E_READREGDB);
        EXPECT_FALSE(failure.isNotRegistered());
        EXPECT_EQ(failure.what(),
                  "cannot read " + file().string() + ": Too many levels of symbolic links");
    }
}

TEST_F(ClassFile, CannotBeReadWhenItIsADirectory) {
    // Opening it succeeds; only reading fails.
    fs::create_directories(file());
    EXPECT_EQ(readClassFile(file()), std::nullopt);
    EXPECT_EQ(registerServer(), REGDB_E_READREGDB);
}

TEST_F(ClassFile, DoesNotExistWhenAFileHasTheNameOfItsDirectory) {
    std::ofstream(file().parent_path()) << "in the way";
    EXPECT_EQ(tree(), KeyTree());
    EXPECT_EQ(registerServer(), REGDB_E_WRITEREGDB);
}

TEST_F(ClassFile, IsChangedByOneWriterAtATime) {
    std::unique_ptr<ClassKeyStore> store;
    ASSERT_EQ(openClassKeyStore(store), S_OK);
    const Descriptor other = descriptor_io::openFile(lockFile().c_str(), O_RDWR);
    EXPECT_EQ(flock(other.number(), LOCK_EX | LOCK_NB), -1);
    EXPECT_EQ(errno, EWOULDBLOCK);
    store.reset();
    EXPECT_EQ(flock(other.number(), LOCK_EX | LOCK_NB), 0);
}

TEST_F(ClassFile, LosesNothingOfConcurrentRegistrations) {
    constexpr int writers = 8;
    const auto registerOne = [](int number) {
        std::unique_ptr<ClassKeyStore> store;
        ASSERT_EQ(openClassKeyStore(store), S_OK);
        ASSERT_EQ(store->createKey("Key" + std::to_string(number)), S_OK);
        ASSERT_EQ(store->commit(), S_OK);
    };
    std::vector<std::thread> threads;
    threads.reserve(writers);
    for (int number = 0; number < writers; ++number) {
        threads.emplace_back(registerOne, number);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(tree().children, ::testing::SizeIs(writers));
}

TEST_F(ClassFile, LeadsFromEveryNameToTheClass) {
    ASSERT_EQ(registerServer(), S_OK);
    for (const char* name :
         {"DocHtml.DocHtml.2.1.0", "DocHtml.DocHtml", "dochtml.dochtml.2.1.0", "DOCHTML.DOCHTML",
          "{474BDD91-0170-11D3-A6BF-00104B2AEFE1}", "{474bdd91-0170-11d3-a6bf-00104b2aefe1}"}) {
        EXPECT_EQ(findRegisteredClass(name).classId, CLSID_DocHtml) << name;
        EXPECT_THAT(findRegisteredClass(name).library, StartsWith("/")) << name;
    }
}

HRESULT failureOf(const std::string& name) {
    try {
        static_cast<void>(findRegisteredClass(name));
        return S_OK;
    } catch (const ComponentError& failure) {
        EXPECT_TRUE(failure.isNotRegistered());
        return failure.result();
    }
}

TEST_F(ClassFile, ReportsANameThatLeadsNowhere) {
    EXPECT_EQ(failureOf("DocHtml.DocHtml"), CO_E_CLASSSTRING);
    EXPECT_EQ(failureOf("{474BDD91-0170-11D3-A6BF-00104B2AEFE1}"), REGDB_E_CLASSNOTREG);
    EXPECT_EQ(failureOf("{474BDD91}"), CO_E_CLASSSTRING);
    EXPECT_EQ(failureOf(""), CO_E_CLASSSTRING);
    ASSERT_EQ(registerServer(), S_OK);
    EXPECT_EQ(failureOf("DocHtml.DocHtml.1.0"), CO_E_CLASSSTRING);
    EXPECT_EQ(failureOf("{474BDD92-0170-11D3-A6BF-00104B2AEFE1}"), REGDB_E_CLASSNOTREG);
}

TEST(Guid, HasExactlyOneForm) {
    EXPECT_EQ(parseGuid("{474BDD91-0170-11d3-A6BF-00104B2AEFE1}"), CLSID_DocHtml);
    for (const char* text :
         {"", "474BDD91-0170-11d3-A6BF-00104B2AEFE1", "{474BDD91-0170-11d3-A6BF-00104B2AEFE1",
          "{474BDD91-0170-11d3-A6BF-00104B2AEFE1} ", "{474BDD91-0170-11d3-A6BF-00104B2AEFEg}",
          "{474BDD91-0170-11d3-A6BF000-104B2AEFE1}"}) {
        EXPECT_EQ(parseGuid(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace quillmark::testing

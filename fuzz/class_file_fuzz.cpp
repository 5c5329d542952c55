// A file of classes with any bytes: reading it ends, what is read can be written and read again,
// and classes can be registered in it and found.

#include <string>
#include <string_view>

#include "component/client/posix/class_lookup.h"
#include "component/posix/class_file.h"
#include "component/registration/server_registration.h"
#include "dochtml/client.h"
#include "support/byte_source.h"
#include "support/environment_variable.h"
#include "support/require.h"
#include "support/temp_dir.h"

namespace quillmark::fuzzing {
namespace {

/// The user's data directory, for the whole run.
struct DataDirectory {
    TempDir dir;
    EnvironmentVariable variable{"XDG_DATA_HOME", dir.native()};

    DataDirectory() { std::filesystem::create_directories(classFilePath().parent_path()); }
};

void checkWriting(const KeyTree& tree) {
    const std::filesystem::path copy = classFilePath().string() + ".copy";
    require(writeClassFile(copy, tree), "a tree can be written");
    require(readClassFile(copy) == tree, "a tree that was written comes back");
}

void lookUp(const std::string& identifier) {
    try {
        static_cast<void>(findRegisteredClass(identifier));
    } catch (const ComponentError&) {
        // Not registered, or damaged.
    }
}

void checkRegistration() {
    if (FAILED(registerServer())) {
        return;
    }
    require(!findRegisteredClass("DocHtml.DocHtml").library.empty(), "registered");
    require(unregisterServer() == S_OK, "what was registered can be removed");
    try {
        static_cast<void>(findRegisteredClass("DocHtml.DocHtml"));
        require(false, "removed");
    } catch (const ComponentError&) {
        // As it should be.
    }
}

}  // namespace
}  // namespace quillmark::fuzzing

/// A line with an identifier, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    static const DataDirectory directory;
    ByteSource input(data, size);
    const std::string identifier(input.line());
    directory.dir.put("quillmark\\classes.ini", input.rest());
    if (const auto tree = readClassFile(classFilePath())) {
        checkWriting(*tree);
    }
    static_cast<void>(parseGuid(identifier));
    lookUp(identifier);
    lookUp("DocHtml.DocHtml");
    lookUp("{474BDD91-0170-11D3-A6BF-00104B2AEFE1}");
    checkRegistration();
    return 0;
}

// A model with any bytes is read or refused; what was read answers every question.

#include <memory>

#include "contents/entries/entry_icons.h"
#include "host/metamodel.h"
#include "replay/input/bad_input.h"
#include "replay/input/host_files/model_file.h"
#include "support/byte_source.h"
#include "support/require.h"
#include "support/temp_dir.h"

namespace quillmark::fuzzing {
namespace {

void ask(const MMObject& object, const replay::ModelFile& model) {
    const MMClass* const kind = object.getClass();
    require(kind != nullptr && model.findClass(kind->name()) == kind, "a class has its name");
    static_cast<void>(object.objects("Stereotype"));
    static_cast<void>(kind->associationExists("Stereotype"));
    for (const char* name : {"Name", "Stereotype", "Visibility", "a", ""}) {
        const MMAttribute* const attribute = object[name];
        require(attribute == nullptr || kind->attributeExists(name), "classes know attributes");
        if (attribute != nullptr) {
            static_cast<void>(attribute->asString());
            static_cast<void>(attribute->asBoolean());
            static_cast<void>(attribute->asLongInt());
            static_cast<void>(attribute->asDouble());
        }
    }
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    static const TempDir directory;
    directory.put("model.json", ByteSource(data, size).rest());
    try {
        const replay::ModelFile model(directory.nativeFile("model.json"), "model.json");
        static_cast<void>(model.schemaType());
        for (const std::uint64_t handle : {0U, 1U, 2U, 3U, 7U, 10U}) {
            if (const MMObject* const object = model.object(handle)) {
                ask(*object, model);
            }
        }
    } catch (const replay::BadInput&) {
        // Refused, with a message.
    }
    return 0;
}

#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string_view>

#include "host/metamodel.h"

namespace quillmark::replay {

/// Model metadata from a JSON file: the schema type, and the class and attributes of each element,
/// by its handle. The model has no associations. It keeps its texts in UTF-8 and answers in the
/// encoding in force.
class ModelFile final : public MMSchema {
public:
    /// Throws `BadInput` when the file cannot be read or has other contents.
    ModelFile(const std::filesystem::path& file, std::string_view shown);
    ~ModelFile() override;
    ModelFile(const ModelFile&) = delete;
    ModelFile& operator=(const ModelFile&) = delete;

    [[nodiscard]] int schemaType() const noexcept { return schemaType_; }
    [[nodiscard]] const MMObject* object(std::uint64_t handle) const override;
    [[nodiscard]] const MMClass* findClass(const OrxString& name) const override;

private:
    class Attribute;
    class Class;
    class Element;

    int schemaType_ = 1;
    std::map<OrxString, std::unique_ptr<Class>> classes_;
    std::map<std::uint64_t, std::unique_ptr<Element>> elements_;
};

}  // namespace quillmark::replay

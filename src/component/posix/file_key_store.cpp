#include "component/posix/class_file.h"
#include "component/posix/class_file_lock.h"
#include "component/registration/class_key_store.h"

namespace quillmark {
namespace {

/// Changes a copy in memory. `commit` replaces the file with it in one step. The store locks the
/// file for its whole lifetime.
class FileKeyStore final : public ClassKeyStore {
public:
    explicit FileKeyStore(std::filesystem::path file) : file_(std::move(file)), lock_(file_) {}

    /// Reads the file. Must succeed before the store is used.
    [[nodiscard]] HRESULT load() {
        if (!lock_.isHeld()) {
            return REGDB_E_WRITEREGDB;
        }
        auto root = readClassFile(file_);
        if (!root) {
            return REGDB_E_READREGDB;
        }
        root_ = *std::move(root);
        return S_OK;
    }

    [[nodiscard]] std::optional<KeyTree> read(const std::string& path) const override {
        const KeyTree* key = findKey(root_, path);
        return key == nullptr ? std::nullopt : std::optional(*key);
    }
    [[nodiscard]] HRESULT createKey(const std::string& path) override {
        makeKey(root_, path);
        return S_OK;
    }
    [[nodiscard]] HRESULT setValue(const std::string& path, const std::string& name,
                                   const KeyValue& value) override {
        makeKey(root_, path).values[name] = value;
        return S_OK;
    }
    [[nodiscard]] HRESULT removeTree(const std::string& path) override {
        const std::size_t parentEnd = path.rfind('\\');
        KeyTree* parent =
            parentEnd == std::string::npos ? &root_ : findKey(root_, path.substr(0, parentEnd));
        if (parent != nullptr) {
            parent->children.erase(path.substr(parentEnd + 1));
        }
        return S_OK;
    }
    [[nodiscard]] HRESULT commit() override {
        return writeClassFile(file_, root_) ? S_OK : REGDB_E_WRITEREGDB;
    }

private:
    std::filesystem::path file_;
    ClassFileLock lock_;
    KeyTree root_;
};

}  // namespace

HRESULT openClassKeyStore(std::unique_ptr<ClassKeyStore>& store) {
    auto opened = std::make_unique<FileKeyStore>(classFilePath());
    const HRESULT loaded = opened->load();
    if (SUCCEEDED(loaded)) {
        store = std::move(opened);
    }
    return loaded;
}

}  // namespace quillmark

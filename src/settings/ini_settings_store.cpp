#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "platform/files/drive_table.h"
#include "platform/files/file_failure.h"
#include "platform/files/file_system.h"
#include "platform/files/read_whole.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/text_encoding.h"
#include "settings/ini_text.h"
#include "settings/settings_store.h"

namespace quillmark {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

class IniSettingsStore final : public SettingsStore {
public:
    explicit IniSettingsStore(OrxString fileName)
        : fileName_(std::move(fileName)), encoding_(TextEncoding::current()) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        const std::lock_guard lock(mutex_);
        refresh();
        std::optional<std::string> value = ini_.value(group, name);
        return value ? std::optional<OrxString>(*std::move(value)) : std::nullopt;
    }

    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override {
        const std::lock_guard lock(mutex_);
        const std::unique_ptr<FileLock> ofAllProcesses = lockFile();
        if (ofAllProcesses == nullptr) {
            return false;
        }
        // Read again in any case: the stamp of a file that was replaced twice may be the old one.
        state_ = State::unknown;
        refresh();
        IniText changed = ini_;
        // A file that could not be read must not be replaced, since its content would be lost.
        const bool kept =
            state_ != State::unreadable && changed.set(group, name, value) && save(changed);
        if (kept) {
            ini_ = std::move(changed);
        }
        return kept;
    }

    [[nodiscard]] OrxString problem() const override {
        const std::lock_guard lock(mutex_);
        refresh();
        if (state_ == State::unreadable) {
            const OrxString reason = reason_.empty() ? reason_ : ": " + reason_;
            return "Cannot read the settings file " + shownName() + reason;
        }
        const std::optional<std::size_t> line = ini_.firstUnknownLine();
        if (!line) {
            return {};
        }
        return "Line " + std::to_string(*line) + " of the settings file " + shownName() +
               " is neither a section nor a setting";
    }

private:
    enum class State { unknown, missing, read, unreadable };

    /// The name as the system writes it, in the encoding of the caller.
    [[nodiscard]] OrxString shownName() const {
        const TextEncoding& callers = TextEncoding::current();
        const TextEncoding& utf8 = TextEncoding::utf8();
        const TextEncoding::Scope scope(utf8);
        return callers.fromUtf8(nativePath(utf8.recoded(fileName_, encoding_)));
    }

    /// Reads the file again if it has changed. Without memory everything stays as it was.
    void refresh() const {
        const TextEncoding::Scope scope(encoding_);
        FileSystem& files = FileSystem::current();
        FileFailure::forget();
        const std::optional<FileStamp> stamp = files.stamp(fileName_);
        // A file that cannot be looked up is not a missing one: what was read of it still counts.
        const bool unknown = !stamp && FileFailure::isNoted() && !FileFailure::isMissingFile();
        if (state_ == State::read && (unknown || stamp == stamp_)) {
            return;
        }
        const std::optional<std::string> bytes = readWhole(fileName_);
        const bool something = unknown || stamp || files.directoryExists(fileName_);
        std::string_view text = bytes ? std::string_view(*bytes) : std::string_view();
        const bool isMarked = text.starts_with(byteOrderMark);
        text.remove_prefix(isMarked ? byteOrderMark.size() : 0);
        IniText ini(text);
        std::string reason = bytes ? std::string() : FileFailure::reason();
        ini_ = std::move(ini);
        reason_ = std::move(reason);
        hasByteOrderMark_ = isMarked;
        stamp_ = stamp;
        state_ = bytes ? State::read : something ? State::unreadable : State::missing;
    }

    /// Other processes wait from before the file is read until the new one is in its place.
    [[nodiscard]] std::unique_ptr<FileLock> lockFile() const {
        const TextEncoding::Scope scope(encoding_);
        const OrxString dir = SysFile::getDir(fileName_);
        if (!dir.isEmpty() && !SysDirectory::checkDirectoryAndCreate(dir)) {
            return nullptr;
        }
        return FileSystem::current().lockForChange(fileName_);
    }

    [[nodiscard]] bool save(const IniText& ini) {
        const TextEncoding::Scope scope(encoding_);
        FileSystem& files = FileSystem::current();
        const std::string text = (hasByteOrderMark_ ? std::string(byteOrderMark) : "") + ini.text();
        if (!files.rewriteFile(fileName_, text)) {
            return false;
        }
        state_ = State::unknown;
        stamp_ = files.stamp(fileName_);
        state_ = State::read;
        return true;
    }

    const OrxString fileName_;
    /// That of the name, which a document in another encoding must not change.
    const TextEncoding& encoding_;
    mutable std::mutex mutex_;
    mutable State state_ = State::unknown;
    mutable IniText ini_;
    /// The system's reason why the file is unreadable.
    mutable std::string reason_;
    mutable std::optional<FileStamp> stamp_;
    mutable bool hasByteOrderMark_ = false;
};

}  // namespace

std::shared_ptr<SettingsStore> makeIniSettingsStore(const OrxString& fileName) {
    return std::make_shared<IniSettingsStore>(fileName);
}

}  // namespace quillmark

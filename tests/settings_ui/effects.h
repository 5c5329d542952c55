#pragma once

#include <filesystem>
#include <ostream>
#include <span>
#include <string>

namespace quillmark {

/// What a document shows when one setting of the page differs from its default.
struct Effect {
    const char* setting;
    /// In the form of the settings tool; "%" means the directory of the scene.
    const char* value;
    /// The control that edits it.
    int control;
    /// The file of the document set that shows it.
    const char* file;
    /// The text in it that appears or disappears; empty when the file itself does.
    const char* text;
    bool comes;

    friend void PrintTo(const Effect& effect, std::ostream* out) {
        *out << effect.setting << " = " << effect.value;
    }
};

/// One for every setting that a user can reach on the page.
[[nodiscard]] std::span<const Effect> effects() noexcept;

/// A temporary directory with an installation, files of a user, and the calls of a report that
/// shows every setting.
class EffectScene {
public:
    explicit EffectScene(const std::string& name);
    EffectScene(const EffectScene&) = delete;
    EffectScene& operator=(const EffectScene&) = delete;
    ~EffectScene();

    /// The directory as the driver names it, drive-qualified.
    [[nodiscard]] std::string driverName() const { return driverName_; }
    [[nodiscard]] std::filesystem::path directory() const { return directory_; }
    [[nodiscard]] std::filesystem::path calls() const { return directory_ / "calls.jsonl"; }
    [[nodiscard]] std::string document() const { return driverName_ + "\\out\\rep.htm"; }
    [[nodiscard]] std::string installDir() const { return driverName_ + "\\inst"; }
    /// The effect's value with the scene's directory in it.
    [[nodiscard]] std::string valueOf(const Effect& effect) const;

    /// Removes the document set, so that another can be written.
    void clear() const;
    /// Whether the document set shows the effect.
    [[nodiscard]] bool shows(const Effect& effect) const;

private:
    std::filesystem::path directory_;
    std::string driverName_;
};

}  // namespace quillmark

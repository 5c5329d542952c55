#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "replay/tool/messages.h"

namespace quillmark::replay {

/// What the summary names besides its numbers: the first three warnings, unresolved references and
/// texts with lost characters, or all of them.
class Findings {
public:
    explicit Findings(bool keepsAll) : keepsAll_(keepsAll) {}

    void addWarning(std::string text) { add(warnings_, std::move(text)); }
    /// The unresolved references of a page: its name and the lines of the driver's report that
    /// follow it. A link is one of them, although it has a beginning and an end.
    void addUnresolved(const std::string& page, std::string_view report);
    void addLost(std::string text) { add(lost_, std::move(text)); }

    /// Whether it would keep another unresolved reference.
    [[nodiscard]] bool wantsUnresolved() const noexcept { return wantsMore(unresolved_); }
    /// Writes a line for each, and how to see those that are left out.
    void write(Messages& messages, const std::string& tool) const;

private:
    struct Kind {
        const char* name;
        std::vector<std::string> kept;
        bool isCut = false;
    };

    [[nodiscard]] bool wantsMore(const Kind& kind) const noexcept;
    void add(Kind& kind, std::string text);

    bool keepsAll_;
    Kind warnings_{"warning", {}};
    Kind unresolved_{"unresolved reference", {}};
    Kind lost_{"characters lost", {}};
};

}  // namespace quillmark::replay

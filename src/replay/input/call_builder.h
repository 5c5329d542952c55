#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "replay/input/call_source.h"

namespace quillmark::replay {

/// Builds a call piece by piece and checks each piece against the parameters of the operation. If
/// a piece does not fit, the function returns false and describes the mistake in `problem`.
class CallBuilder {
public:
    /// The name that asks for a new object.
    static constexpr std::string_view freshObject = "new";

    /// `call` stays the caller's; it is complete after `finish`.
    void start(Call& call) noexcept;
    [[nodiscard]] bool isNamed() const noexcept { return named_; }

    bool name(std::string_view name, std::string& problem);
    bool addText(WideText text, std::string& problem);
    bool addInteger(std::int64_t value, std::string& problem);
    bool addBoolean(bool value, std::string& problem);
    /// A value that no operation takes.
    bool addOther(std::string& problem);
    bool finish(std::string& problem);

private:
    /// The parameter of the next argument. Null if there are more arguments than parameters, which
    /// `finish` reports.
    [[nodiscard]] const Parameter* nextParameter() const noexcept;
    bool take(const Argument& argument) noexcept;
    bool refuse(std::string& problem) const;
    bool needsName(std::string& problem) const;

    Call* call_ = nullptr;
    std::size_t expected_ = 0;
    std::size_t seen_ = 0;
    bool named_ = false;
};

}  // namespace quillmark::replay

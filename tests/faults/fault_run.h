#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "faults/allocation_failure.h"
#include "faults/call_streams.h"
#include "faults/stage.h"

namespace quillmark::testing {

/// Where a stream is played: into a driver that is linked in, through the boundary of the
/// component, or by the replay tool with the component.
enum class Player { driver, component, tool };

[[nodiscard]] const char* nameOf(Player player) noexcept;

/// Plays call streams while memory runs out, and compares what is on the disk afterwards with what
/// an undisturbed run leaves.
class FaultRun {
public:
    FaultRun();
    ~FaultRun();
    FaultRun(const FaultRun&) = delete;
    FaultRun& operator=(const FaultRun&) = delete;

    [[nodiscard]] const std::vector<CallStream>& streams() const noexcept { return streams_; }

    /// Plays the stream undisturbed and keeps its files for `play`. Returns the number of
    /// allocations.
    std::size_t prepare(const CallStream& stream, Player player);
    /// Plays the prepared stream with a failure. Returns what is wrong afterwards; empty if
    /// nothing is.
    [[nodiscard]] std::string play(std::size_t position, AllocationFailure::Mode mode);

private:
    class Told;
    struct Outcome;

    /// What happens to the object after the calls: the failure continues while it is released, or
    /// it writes another document.
    enum class Then { release, secondDocument };

    Outcome playDocument(std::size_t position, AllocationFailure::Mode mode, Then then);
    Outcome playTool(std::size_t position, AllocationFailure::Mode mode);
    [[nodiscard]] static std::string compare(const Outcome& outcome, const FileTree& undisturbed);
    [[nodiscard]] std::string compareSecond(const FileTree& second);
    [[nodiscard]] const FileTree& secondFrom(std::uint32_t pageNumber);

    Stage stage_;
    std::vector<CallStream> streams_;
    std::vector<OwnedCall> settling_;
    std::vector<OwnedCall> second_;
    /// The second document of an undisturbed object, by the number of its first page.
    std::map<std::uint32_t, FileTree> seconds_;
    const CallStream* stream_ = nullptr;
    std::vector<OwnedCall> calls_;
    Player player_ = Player::driver;
    /// What the calls leave, and what is there once the object is released too: that closes the
    /// document.
    FileTree undisturbed_;
    FileTree released_;
};

}  // namespace quillmark::testing

// Walks every allocation of every stream: `fault_sweep [driver|component|tool]... [--step N]`. Each
// stream is played in a process of its own, so that a crash is counted and the walk goes on.

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "faults/fault_run.h"

namespace quillmark::testing {
namespace {

using Mode = AllocationFailure::Mode;

struct Totals {
    std::size_t runs = 0;
    std::size_t crashes = 0;
    std::size_t wrong = 0;
};

/// What a child sends to its parent: where it is, and what it has found.
struct Report {
    std::size_t position = 0;
    bool wrong = false;
    bool done = false;
    std::array<char, 100> problem{};
};

/// A run that takes longer than this hangs.
constexpr unsigned longestRun = 30;

/// The child: plays the stream from a position on.
[[noreturn]] void playFrom(FaultRun& run, const CallStream& stream, Player player, Mode mode,
                           std::size_t position, std::size_t step, int pipe) {
    const std::size_t last = run.prepare(stream, player);
    for (; position <= last; position += step) {
        Report report;
        report.position = position;
        static_cast<void>(write(pipe, &report, sizeof report));
        alarm(longestRun);
        const std::string problem = run.play(position, mode);
        if (!problem.empty()) {
            report.wrong = true;
            problem.copy(report.problem.data(), report.problem.size() - 1);
            static_cast<void>(write(pipe, &report, sizeof report));
        }
    }
    Report report;
    report.done = true;
    static_cast<void>(write(pipe, &report, sizeof report));
    _exit(0);
}

/// The parent's side: reads reports until the child ends.
Totals sweepStream(FaultRun& run, const CallStream& stream, Player player, Mode mode,
                   std::size_t step) {
    Totals totals;
    std::map<std::string, std::vector<std::size_t>> problems;
    std::size_t position = 1;
    for (bool done = false; !done;) {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) {
            std::abort();
        }
        std::cout.flush();
        const pid_t child = fork();
        if (child == 0) {
            close(ends[0]);
            playFrom(run, stream, player, mode, position, step, ends[1]);
        }
        close(ends[1]);
        Report report;
        while (read(ends[0], &report, sizeof report) == sizeof report) {
            done = report.done;
            position = done ? position : report.position;
            totals.runs += report.done || report.wrong ? 0 : 1;
            if (report.wrong) {
                ++totals.wrong;
                problems[report.problem.data()].push_back(report.position);
            }
        }
        close(ends[0]);
        int status = 0;
        waitpid(child, &status, 0);
        if (!done) {
            ++totals.crashes;
            problems[std::string("crash: ") + strsignal(status & 0x7F)].push_back(position);
            position += step;
        }
    }
    for (const auto& [problem, positions] : problems) {
        std::cout << nameOf(player) << ", " << (mode == Mode::once ? "once" : "for good") << ", "
                  << stream.name << ": " << problem << " (" << positions.size() << "; at";
        for (std::size_t i = 0; i < positions.size() && i < 8; ++i) {
            std::cout << ' ' << positions[i];
        }
        std::cout << ")\n";
    }
    return totals;
}

int sweep(const std::vector<Player>& players, std::size_t step, const std::string& only) {
    FaultRun run;
    Totals all;
    for (const Player player : players) {
        for (const Mode mode : {Mode::once, Mode::forGood}) {
            Totals totals;
            for (const CallStream& stream : run.streams()) {
                if (!only.empty() && stream.name != only) {
                    continue;
                }
                const Totals one = sweepStream(run, stream, player, mode, step);
                totals.runs += one.runs;
                totals.crashes += one.crashes;
                totals.wrong += one.wrong;
            }
            std::cout << nameOf(player) << ", " << (mode == Mode::once ? "once" : "for good")
                      << ": " << totals.runs << " runs, " << totals.crashes << " crashes, "
                      << totals.wrong << " with a wrong result\n";
            all.runs += totals.runs;
            all.crashes += totals.crashes;
            all.wrong += totals.wrong;
        }
    }
    std::cout << run.streams().size() << " streams, " << all.runs << " runs, " << all.crashes
              << " crashes, " << all.wrong << " with a wrong result\n";
    return all.crashes + all.wrong == 0 ? 0 : 1;
}

}  // namespace
}  // namespace quillmark::testing

int main(int argc, char** argv) {
    using quillmark::testing::Player;
    std::vector<Player> players;
    std::size_t step = 1;
    std::string only;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--step" && i + 1 < argc) {
            step = std::stoul(argv[++i]);
        } else if (argument == "--stream" && i + 1 < argc) {
            only = argv[++i];
        } else {
            players.push_back(argument == "driver"      ? Player::driver
                              : argument == "component" ? Player::component
                                                        : Player::tool);
        }
    }
    if (players.empty()) {
        players = {Player::driver, Player::component, Player::tool};
    }
    return quillmark::testing::sweep(players, step, only);
}

// Running text in a document in UTF-8: ASCII against a document in the code page, and Cyrillic and
// Japanese against a plain loop that encodes the same text.

#include <array>

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/open_document.h"
#include "common/texts.h"

namespace quillmark::bench {

namespace {

constexpr std::size_t unitsPerRound = 8'000'000;

/// Puts the bytes of a unit that is not half a surrogate pair.
template <typename Put>
void encodeUnit(char16_t unit, const Put& putByte) {
    const auto put = [&putByte](unsigned byte) { putByte(static_cast<char>(byte)); };
    if (unit < 0x80U) {
        put(unit);
    } else if (unit < 0x800U) {
        put(0xC0U | unsigned{unit} >> 6U);
        put(0x80U | (unit & 0x3FU));
    } else {
        put(0xE0U | unsigned{unit} >> 12U);
        put(0x80U | (unsigned{unit} >> 6U & 0x3FU));
        put(0x80U | (unit & 0x3FU));
    }
}

/// The floor: a unit encoded, its bytes appended.
Seconds secondsOfPlainEncoding(const std::u16string& text, std::size_t count) {
    std::string out;
    return secondsOf([&] {
        for (std::size_t i = 0; i < count; ++i) {
            for (const char16_t unit : text) {
                encodeUnit(unit, [&out](char byte) { out.push_back(byte); });
            }
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(out.data());
    });
}

/// A lower floor: each text encoded into one buffer that has room for it, and appended at once.
Seconds secondsOfBlockEncoding(const std::u16string& text, std::size_t count) {
    std::string out;
    std::vector<char> buffer(3 * text.size());
    return secondsOf([&] {
        for (std::size_t i = 0; i < count; ++i) {
            char* end = buffer.data();
            for (const char16_t unit : text) {
                encodeUnit(unit, [&end](char byte) { *end++ = byte; });
            }
            out.append(buffer.data(), end);
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(out.data());
    });
}

Seconds secondsWith(const char* charSet, const std::u16string& text, std::size_t count) {
    const SettingsInForce settings({{"Navig", "4"}, {"CharSet", charSet}});
    return secondsOfTable(*OpenDocument(), text, count);
}

void utf8Ascii(benchmark::State& state) {
    const std::u16string text = words(60);
    const std::size_t count = unitsPerRound / text.size();
    std::array<std::vector<Seconds>, 2> seconds;
    for ([[maybe_unused]] auto _ : state) {
        seconds[0].push_back(secondsWith("", text, count));
        seconds[1].push_back(secondsWith("UTF-8", text, count));
        state.SetIterationTime(seconds[1].back().clock);
    }
    state.counters["ratio"] = median(seconds[1]).processor / median(seconds[0]).processor;
    state.counters["goal"] = 1.05;
}
BENCHMARK(utf8Ascii)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

void utf8Script(benchmark::State& state, const std::u16string& text) {
    const std::size_t count = unitsPerRound / text.size();
    std::array<std::vector<Seconds>, 3> seconds;
    for ([[maybe_unused]] auto _ : state) {
        seconds[0].push_back(secondsOfPlainEncoding(text, count));
        seconds[1].push_back(secondsOfBlockEncoding(text, count));
        seconds[2].push_back(secondsWith("UTF-8", text, count));
        state.SetIterationTime(seconds[2].back().clock);
    }
    const double document = median(seconds[2]).processor;
    state.counters["ratio"] = document / median(seconds[0]).processor;
    state.counters["ratio_to_blocks"] = document / median(seconds[1]).processor;
    state.counters["goal"] = 2;
}

void utf8Cyrillic(benchmark::State& state) {
    utf8Script(
        state,
        wordsOf(60, {u"\u043A\u0430\u0436\u0434\u044B\u0439", u"\u043A\u043B\u0430\u0441\u0441",
                     u"\u043C\u043E\u0434\u0435\u043B\u0438", u"\u0432\u0435\u0434\u0451\u0442",
                     u"\u0441\u0432\u043E\u0439", u"\u0441\u0447\u0451\u0442"}));
}
BENCHMARK(utf8Cyrillic)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

void utf8Japanese(benchmark::State& state) {
    utf8Script(state, wordsOf(60, {u"\u4FA1\u683C\u306F", u"\u30E2\u30C7\u30EB\u306E",
                                   u"\u3059\u3079\u3066\u306E", u"\u30AF\u30E9\u30B9\u304C",
                                   u"\u8A18\u9332", u"\u3059\u308B\u3002"}));
}
BENCHMARK(utf8Japanese)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench

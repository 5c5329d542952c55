#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "reading.h"
#include "replay/input/recording_reader.h"

namespace quillmark::replay {
namespace {

/// A call of a random stream, in its recorded form and in the form of `shown`.
struct Sample {
    std::string recorded;
    std::string call;
};

/// Creates texts from pieces that are difficult for a reader of raw lines. No text contains the end
/// of a call followed by a line that looks like a call, which no reader could distinguish from a
/// real one.
class Samples {
public:
    explicit Samples(unsigned seed) : random_(seed) {}

    Sample next() {
        switch (below(7)) {
            case 0:
                return plain("insertEndl");
            case 1:
                return plain("insertPageBreak", "\n");
            case 2: {
                const std::string number = std::to_string(below(60000) - 30000);
                return {"dochtml->setFontSize(" + number + ");\n", "setFontSize(" + number + ")"};
            }
            case 3: {
                const std::string name = text();
                const std::string kind = std::to_string(below(9) - 4);
                return call("insertFile", "\"" + name + "\"," + kind);
            }
            case 4:
                return call("insertXref", "\"" + text() + "\",\"" + tag() + "\"");
            case 5:
                return call("setOption", "\"" + tag() + "\",\"" + text() + "\"");
            default:
                return call("insertText", "\"" + text() + "\"");
        }
    }

private:
    static Sample plain(const std::string& name, const std::string& more = "") {
        return {"dochtml->" + name + "();\n" + more, name + "()"};
    }
    static Sample call(const std::string& name, const std::string& arguments) {
        return {"dochtml->" + name + "(" + arguments + ");\n", name + "(" + arguments + ")"};
    }

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    std::string tag() {
        return below(2) == 0 ? "title" : "GUID-" + std::to_string(below(100)) + "\n\"";
    }
    std::string text() {
        static const std::vector<std::string> pieces = {
            "word",  " ",  "\n",     "\r\n",      "\"",
            "\")",   ");", "\");",   "\");\nx",   ",\"",
            "\",\"", ",3", "\",3);", "dochtml->", "x dochtml->insertEndl();",
            "(",     "\t", "\n\n"};
        std::string result;
        for (int count = below(8); count > 0; --count) {
            result += pieces[static_cast<std::size_t>(below(static_cast<int>(pieces.size())))];
        }
        // What looks like the end of the call may be the end of the text, or be followed by more
        // text.
        return result + (below(2) == 0 ? "" : "end");
    }

    std::mt19937 random_;
};

TEST(RecordingProperty, EveryRecordedStreamReadsBackAsItsCalls) {
    for (unsigned seed = 1; seed <= 500; ++seed) {
        Samples samples(seed);
        std::string recording;
        std::vector<std::string> expected;
        for (int count = 0; count < 20; ++count) {
            const Sample sample = samples.next();
            recording += sample.recorded;
            expected.push_back(sample.call);
        }
        const Reading reading = readText<RecordingReader>(recording);
        ASSERT_EQ(reading.calls, expected) << "seed " << seed << "\n" << recording;
        ASSERT_EQ(reading.problem, "") << "seed " << seed;
        // The result does not depend on how the bytes arrive.
        TricklingText trickle(recording, 1 + seed % 5);
        std::istream stream(&trickle);
        ASSERT_EQ(readFrom<RecordingReader>(stream).calls, expected) << "seed " << seed;
    }
}

}  // namespace
}  // namespace quillmark::replay

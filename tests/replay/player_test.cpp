#include "replay/play/player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <utility>

#include "foundation/orx_exception.h"
#include "platform/trace.h"
#include "replay/in_process_document.h"
#include "replay/input/call_stream_reader.h"
#include "replay/input/recording_reader.h"
#include "support/recording_document.h"

namespace quillmark::replay {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The calls that the documents of a test received, and the trace lines that they write when they
/// are called.
struct Stage {
    std::vector<std::string> calls;
    std::map<std::string, std::vector<std::string>> trace;
    bool createFails = false;
    int made = 0;
};

/// Reports its calls and its destruction to a stage.
class StagedDocument final : public testing::RecordingDocument {
public:
    explicit StagedDocument(Stage& stage) : stage_(stage) {}
    ~StagedDocument() override {
        take();
        stage_.calls.emplace_back("gone");
    }

    DocResult create(WideText fileName) override {
        RecordingDocument::create(fileName);
        const DocResult result = take();
        if (stage_.createFails) {
            OrxException::raise("no style sheet");
        }
        return result;
    }
    DocResult close() override { return RecordingDocument::close(), take(); }
    DocResult insertText(WideText text) override {
        return RecordingDocument::insertText(text), take();
    }
    DocResult insertEndl() override { return RecordingDocument::insertEndl(), take(); }
    DocResult insertPageBreak() override { return RecordingDocument::insertPageBreak(), take(); }
    DocResult endTable() override { return RecordingDocument::endTable(), take(); }
    DocResult trace(std::int16_t level) override { return RecordingDocument::trace(level), take(); }

private:
    DocResult take() {
        for (std::string& call : calls) {
            for (const std::string& line : stage_.trace[call]) {
                Trace().write(Trace::calls, line);
            }
            stage_.calls.push_back(std::move(call));
        }
        calls.clear();
        return resultOk;
    }

    Stage& stage_;
};

class PlayerTest : public ::testing::Test {
protected:
    PlayerTest()
        : exceptions_([this](std::string_view reason) { failures_.emplace_back(reason); }, {}) {
        OrxException::setLog(&exceptions_);
    }
    ~PlayerTest() override {
        OrxException::setLog(nullptr);
        Trace::setListener(nullptr);
    }

    template <typename Reader>
    bool playInto(Player& player, const std::string& text) {
        std::istringstream stream(text);
        InputBuffer input(stream);
        Reader reader(input);
        return player.play(reader);
    }
    bool playStream(const std::string& text) {
        Player player = makePlayer(false);
        const bool fine = playInto<CallStreamReader>(player, text);
        player.finish();
        return fine;
    }
    bool playRecording(const std::string& text) {
        Player player = makePlayer(true);
        const bool fine = playInto<RecordingReader>(player, text);
        player.finish();
        return fine;
    }

    Player makePlayer(bool recording) {
        trace_.emplace(recording);
        Trace::setListener(&*trace_);
        Player::Settings settings;
        settings.makeDocument = [this] {
            ++stage_.made;
            return std::make_unique<InProcessDocument>(std::make_unique<StagedDocument>(stage_));
        };
        settings.startDirectory = "\\start";
        settings.outputName = outputName_;
        settings.traceLevel = traceLevel_;
        return {std::move(settings),
                {[this](WideText answer) { answers_.emplace_back(answer); },
                 [this](std::size_t line, const std::string& how) {
                     divergences_.push_back(std::to_string(line) + ": " + how);
                 },
                 [this](std::size_t line, const std::string& why) {
                     refusals_.push_back(std::to_string(line) + ": " + why);
                 },
                 {}},
                *trace_,
                exceptions_};
    }

    /// Makes the staged document write the call itself and more lines when it is called.
    void traces(const std::string& call, std::vector<std::string> more = {}) {
        more.insert(more.begin(), "dochtml->" + call + ";\n");
        stage_.trace[call] = std::move(more);
    }

    Stage stage_;
    std::optional<TraceMonitor> trace_;
    std::vector<std::string> failures_;
    ExceptionMonitor exceptions_;
    std::optional<OrxString> outputName_;
    std::optional<std::int16_t> traceLevel_;
    std::vector<std::u16string> answers_;
    std::vector<std::string> divergences_;
    std::vector<std::string> refusals_;
};

TEST_F(PlayerTest, PlaysEveryCallOfAStreamAndReleasesTheObject) {
    EXPECT_TRUE(playStream("[\"create\",\"C:\\\\a.htm\"]\n[\"insertText\",\"x\"]\n[\"close\"]\n"));
    EXPECT_THAT(stage_.calls,
                ElementsAre("create(\"C:\\a.htm\")", "insertText(\"x\")", "close()", "gone"));
}

TEST_F(PlayerTest, CreatesNoObjectWithoutACall) {
    EXPECT_TRUE(playStream("\n"));
    EXPECT_EQ(stage_.made, 0);
}

TEST_F(PlayerTest, MakesRelativeNamesOfCreateAbsolute) {
    playStream(
        "[\"create\",\"a.htm\"]\n[\"create\",\"sub/a.htm\"]\n[\"create\",\"\\\\x\\\\a\"]\n"
        "[\"create\",\"/x/a\"]\n[\"create\",\"C:a.htm\"]\n");
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"\\start\\a.htm\")",
                                          "create(\"\\start\\sub\\a.htm\")", "create(\"\\x\\a\")",
                                          "create(\"/x/a\")", "create(\"C:a.htm\")", "gone"));
}

TEST_F(PlayerTest, PutsTheOutputNameIntoTheFirstCreateOnly) {
    outputName_ = "D:\\b.htm";
    playStream("[\"create\",\"C:\\\\a.htm\"]\n[\"new\"]\n[\"create\",\"C:\\\\a.htm\"]\n");
    EXPECT_THAT(stage_.calls,
                ElementsAre("create(\"D:\\b.htm\")", "gone", "create(\"C:\\a.htm\")", "gone"));
}

TEST_F(PlayerTest, CallsTraceFirstForEachObject) {
    traceLevel_ = 10;
    playStream("[\"insertEndl\"]\n[\"new\"]\n[\"insertEndl\"]\n");
    EXPECT_THAT(stage_.calls, ElementsAre("trace(10)", "insertEndl()", "gone", "trace(10)",
                                          "insertEndl()", "gone"));
}

TEST_F(PlayerTest, PassesOnWhatAnOperationReturns) {
    playStream("[\"getDocType\"]\n[\"getPropPages\"]\n");
    EXPECT_THAT(answers_, ElementsAre(u"Recording", u"{a property page}"));
}

TEST_F(PlayerTest, ClosesAnOpenDocumentBeforeAMalformedLine) {
    EXPECT_FALSE(playStream("[\"create\",\"C:\\\\a.htm\"]\n[\"insertText\",5]\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"C:\\a.htm\")", "close()", "gone"));
}

TEST_F(PlayerTest, ClosesNothingThatIsNotOpen) {
    EXPECT_FALSE(playStream("[\"insertEndl\"]\n[\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("insertEndl()", "gone"));
    stage_.calls.clear();
    EXPECT_FALSE(playStream("[\"create\",\"C:\\\\a\"]\n[\"close\"]\n[\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"C:\\a\")", "close()", "gone"));
    stage_.calls.clear();
    EXPECT_FALSE(playStream("[\"create\",\"C:\\\\a\"]\n[\"new\"]\n[\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"C:\\a\")", "gone", "gone"));
}

TEST_F(PlayerTest, ReportsWhatFailedAndContinues) {
    stage_.createFails = true;
    EXPECT_TRUE(playStream("[\"create\",\"C:\\\\a\"]\n[\"insertEndl\"]\n"));
    EXPECT_THAT(failures_, ElementsAre("no style sheet"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"C:\\a\")", "insertEndl()", "gone"));
}

TEST_F(PlayerTest, TreatsADocumentWhoseCreateFailedAsNotOpen) {
    stage_.createFails = true;
    EXPECT_FALSE(playStream("[\"create\",\"C:\\\\a\"]\n[\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"C:\\a\")", "gone"));
}

TEST_F(PlayerTest, RefusesADocumentNameThatTheCodePageCannotRepresent) {
    EXPECT_TRUE(
        playStream("[\"create\",\"a.htm\"]\n[\"close\"]\n[\"create\",\"C:\\\\\\u4e2d\\\\a.htm\"]\n"
                   "[\"insertText\",\"lost\"]\n[\"getDocType\"]\n[\"close\"]\n"
                   "[\"create\",\"b.htm\"]\n[\"close\"]\n"));
    EXPECT_THAT(refusals_,
                ElementsAre("3: create: the driver's 8-bit code page (Windows-1252) cannot hold "
                            "the name \"C:\\\u4e2d\\a.htm\"; all calls up to the next create or "
                            "new are skipped (with --set Html.CharSet=UTF-8 it keeps its name)"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"\\start\\a.htm\")", "close()",
                                          "create(\"\\start\\b.htm\")", "close()", "gone"));
    EXPECT_THAT(answers_, IsEmpty());
}

TEST_F(PlayerTest, SkipsCallsUpToANewObject) {
    EXPECT_TRUE(
        playStream("[\"create\",\"\\u4e2d\"]\n[\"insertEndl\"]\n[\"create\",\"\\u6587\"]\n"
                   "[\"insertEndl\"]\n[\"new\"]\n[\"insertEndl\"]\n"));
    EXPECT_EQ(refusals_.size(), 2U);
    EXPECT_THAT(stage_.calls, ElementsAre("insertEndl()", "gone"));
}

TEST_F(PlayerTest, SkipsCallsOfTheNextInputToo) {
    Player player = makePlayer(true);
    EXPECT_TRUE(playInto<CallStreamReader>(player, "[\"create\",\"\\u4e2d\"]\n"));
    EXPECT_TRUE(playInto<RecordingReader>(player, "dochtml->insertEndl();\n"));
    player.finish();
    EXPECT_THAT(stage_.calls, IsEmpty());
    EXPECT_THAT(divergences_, IsEmpty());
}

TEST_F(PlayerTest, DoesNotChangeAnOpenDocumentWhenItRefusesTheNext) {
    EXPECT_FALSE(playStream("[\"create\",\"C:\\\\a\"]\n[\"create\",\"\\u4e2d\"]\n[\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"C:\\a\")", "close()", "gone"));
}

TEST_F(PlayerTest, DoesNotRefuseANameThatTheOutputNameReplaces) {
    outputName_ = "D:\\b.htm";
    playStream("[\"create\",\"\\u4e2d\"]\n[\"create\",\"\\u4e2d\"]\n");
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"D:\\b.htm\")", "gone"));
    EXPECT_EQ(refusals_.size(), 1U);
}

TEST_F(PlayerTest, AcceptsEveryNameAfterAnOverrideThatAsksForUtf8) {
    const std::string utf8 = "[\"overrideRegistry\",\"Html\",\"CharSet\",\"UTF-8\",2]\n";
    EXPECT_TRUE(playStream(utf8 +
                           "[\"create\",\"\\u4e2d\"]\n[\"insertText\",\"\\u4e2d\"]\n[\"new\"]\n"
                           "[\"create\",\"\\u4e2d\"]\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("overrideRegistry(\"Html\",\"CharSet\",\"UTF-8\",2)",
                                          "create(\"\\start\\\u4e2d\")", "insertText(\"\u4e2d\")",
                                          "gone", "gone"));
    EXPECT_EQ(refusals_.size(), 1U) << "the override ended with its object";
}

TEST_F(PlayerTest, CountsNoCharactersLostInUtf8ButHalvesOfPairs) {
    Player player = makePlayer(false);
    EXPECT_TRUE(playInto<CallStreamReader>(
        player,
        "[\"overrideRegistry\",\"Html\",\"CharSet\",\"UTF-8\",2]\n[\"create\",\"a\"]\n"
        "[\"insertText\",\"\\u4e2d\\ud83d\\ude00\"]\n[\"insertXref\",\"\\u0100\",\"\\ud800\"]\n"));
    EXPECT_EQ(player.charactersLost(), 1U);
}

TEST_F(PlayerTest, SaysOnceThatARecordingIsInAnotherEncoding) {
    traces("insertText(\"\u4e2d\")");
    EXPECT_TRUE(
        playRecording("dochtml->insertText(\"\u4e2d\");\n"
                      "dochtml->insertText(\"\u4e2d\");\n"));
    ASSERT_FALSE(divergences_.empty());
    EXPECT_EQ(divergences_[0],
              "1: the recording is in UTF-8; it was made with --set Html.CharSet=UTF-8");
    EXPECT_THAT(std::vector<std::string>(divergences_.begin() + 1, divergences_.end()),
                Each(Not(HasSubstr("Html.CharSet"))));
}

TEST_F(PlayerTest, CountsTheCharactersThatTheCodePageLoses) {
    Player player = makePlayer(false);
    EXPECT_TRUE(
        playInto<CallStreamReader>(player,
                                   "[\"insertText\",\"\\u4e2d\\u20ac\\ud83d\\ude00\"]\n["
                                   "\"insertXref\",\"\\u0100\",\"\\ud800\"]\n"
                                   "[\"create\",\"\\u4e2d\"]\n[\"insertText\",\"\\u4e2d\"]\n"));
    EXPECT_EQ(player.charactersLost(), 4U);
}

TEST_F(PlayerTest, PlaysSeveralInputsIntoTheSameObject) {
    Player player = makePlayer(false);
    EXPECT_TRUE(playInto<CallStreamReader>(player, "[\"insertEndl\"]\n"));
    EXPECT_TRUE(playInto<CallStreamReader>(player, "[\"close\"]\n"));
    player.finish();
    EXPECT_THAT(stage_.calls, ElementsAre("insertEndl()", "close()", "gone"));
}

TEST_F(PlayerTest, DoesNotPlayTwiceWhatTheDriverCallsItself) {
    traces("insertPageBreak()", {"dochtml->endTable();\n", "dochtml->endTable();\n"});
    traces("insertEndl()");
    EXPECT_TRUE(
        playRecording("dochtml->insertPageBreak();\n\ndochtml->endTable();\n"
                      "dochtml->endTable();\ndochtml->insertEndl();\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("insertPageBreak()", "insertEndl()", "gone"));
    EXPECT_THAT(divergences_, IsEmpty());
}

TEST_F(PlayerTest, ComparesTheNameThatTheDocumentReallyGot) {
    outputName_ = "D:\\b.htm";
    traces("create(\"D:\\b.htm\")");
    EXPECT_TRUE(playRecording("dochtml->create(\"C:\\a.htm\");\n"));
    EXPECT_THAT(stage_.calls, ElementsAre("create(\"D:\\b.htm\")", "gone"));
    EXPECT_THAT(divergences_, IsEmpty());
}

TEST_F(PlayerTest, ReportsALineThatTheRecordingDoesNotHave) {
    traces("insertPageBreak()", {"dochtml->endTable();\n"});
    traces("insertEndl()");
    EXPECT_TRUE(playRecording("dochtml->insertPageBreak();\n\ndochtml->insertEndl();\n"));
    EXPECT_THAT(divergences_, ElementsAre("3: the driver called dochtml->endTable();, the "
                                          "recording has dochtml->insertEndl();"));
    EXPECT_THAT(stage_.calls, ElementsAre("insertPageBreak()", "insertEndl()", "gone"));
}

TEST_F(PlayerTest, FindsTheLinesAfterASurplusOne) {
    traces("insertPageBreak()", {"dochtml->addRow();\n", "dochtml->endTable();\n"});
    traces("insertEndl()");
    EXPECT_TRUE(
        playRecording("dochtml->insertPageBreak();\n\ndochtml->endTable();\n"
                      "dochtml->insertEndl();\n"));
    EXPECT_EQ(divergences_.size(), 1U);
    EXPECT_THAT(stage_.calls, ElementsAre("insertPageBreak()", "insertEndl()", "gone"));
}

TEST_F(PlayerTest, ReportsThatARecordingEndsTooEarly) {
    traces("insertPageBreak()", {"dochtml->endTable();\n"});
    EXPECT_TRUE(playRecording("dochtml->insertPageBreak();\n\n"));
    EXPECT_THAT(divergences_, ElementsAre("1: the driver called dochtml->endTable();, the "
                                          "recording ends"));
}

TEST_F(PlayerTest, ReportsACallThatTheDriverDoesNotTrace) {
    traces("insertEndl()");
    EXPECT_TRUE(playRecording("dochtml->close();\ndochtml->insertEndl();\n"));
    EXPECT_THAT(divergences_, ElementsAre("1: the driver wrote no line for dochtml->close();"));
    EXPECT_THAT(stage_.calls, ElementsAre("close()", "insertEndl()", "gone"));
}

TEST_F(PlayerTest, ReportsNoDivergenceForAMalformedLine) {
    traces("insertPageBreak()", {"dochtml->endTable();\n"});
    EXPECT_FALSE(playRecording("dochtml->insertPageBreak();\n\nstray\n"));
    EXPECT_THAT(divergences_, IsEmpty());
}

TEST_F(PlayerTest, RequestsCallLinesOnlyToCompareThem) {
    EXPECT_EQ(TraceMonitor(false).level(), 1);
    EXPECT_EQ(TraceMonitor(true).level(), 10);
}

/// A component that lacks an operation.
class PoorDocument final : public LateBoundDocument {
public:
    int idOf(std::string_view name) override { return name == "addRow" ? 0 : 1; }
    InvokeStatus invoke(int, std::span<const Argument>) override { return InvokeStatus::done; }
};

TEST_F(PlayerTest, RefusesADocumentThatLacksAnOperation) {
    TraceMonitor trace(false);
    Player::Settings settings;
    settings.makeDocument = [] { return std::make_unique<PoorDocument>(); };
    Player player(std::move(settings), {}, trace, exceptions_);
    try {
        static_cast<void>(playInto<CallStreamReader>(player, "[\"close\"]\n"));
        FAIL() << "nothing was thrown";
    } catch (const std::exception& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("the component does not have the operation addRow"));
    }
}

}  // namespace
}  // namespace quillmark::replay

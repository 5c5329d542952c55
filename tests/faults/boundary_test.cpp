// How a lack of memory is told, and what a host sees of it.

#include <gmock/gmock.h>

#include <new>
#include <sstream>
#include <string>

#include "component/services/callback_text.h"
#include "driver/doc_html.h"
#include "faults/allocation_failure.h"
#include "foundation/orx_exception.h"
#include "platform/out_of_memory.h"
#include "replay/input/call_stream_reader.h"
#include "replay/input/rapidjson_reader.h"
#include "replay/tool/messages.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {
namespace {

using Mode = AllocationFailure::Mode;

/// Keeps what is told without an allocation of its own.
class Listener final : public OrxExceptionLog, public TraceListener {
public:
    Listener() {
        OrxException::setLog(this);
        Trace::setListener(this);
    }
    ~Listener() override {
        OrxException::setLog(nullptr);
        Trace::setListener(nullptr);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    [[nodiscard]] bool records(std::string_view /*category*/) const override { return true; }
    void write(std::string_view message) override {
        const UncountedAllocations own;
        log += message;
    }
    [[nodiscard]] int level() const override { return Trace::errors; }
    void line(int /*level*/, std::string_view text) override {
        const UncountedAllocations own;
        trace += text;
    }

    std::string log;
    std::string trace;
};

TEST(OutOfMemory, IsToldWithoutMemory) {
    Listener told;
    const Trace trace;
    const AllocationFailure failure(1, Mode::forGood);
    EXPECT_FALSE(survive(trace, "a step", [] { throw std::bad_alloc(); }));
    EXPECT_EQ(told.log, "Exception catch: out of memory\n");
    EXPECT_EQ(told.trace, "ERR Out of memory: a step\n");
}

TEST(OutOfMemory, LetsOtherExceptionsPass) {
    const Trace trace;
    EXPECT_THROW(survive(trace, "a step", [] { throw OrxException("no"); }), OrxException);
    EXPECT_TRUE(survive(trace, "a step", [] {}));
}

TEST(OutOfMemory, CostsADocumentOneText) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    InstalledSettingsStore settings;
    settings.set("Html", "Navig", "4");
    settings.set("Html", "StyleSheet", "");
    Listener told;
    DocHtml document;
    document.create(u"C:\\out\\rep.htm");
    document.insertText(u"before ");
    {
        const AllocationFailure failure(1, Mode::forGood);
        document.insertText(
            std::u16string_view(u"A text that needs memory wherever it is kept, "
                                u"because it is longer than those before it"));
    }
    document.insertText(u"after");
    document.close();
    EXPECT_EQ(told.trace, "ERR Out of memory: insertText\n");
    EXPECT_THAT(files.content("C:\\out\\rep.htm").value_or(""),
                ::testing::HasSubstr("before after"));
}

TEST(OutOfMemory, InACreateMakesTheCallsUpToTheNextOneWriteNothing) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    InstalledSettingsStore settings;
    settings.set("Html", "Navig", "4");
    settings.set("Html", "StyleSheet", "");
    DocHtml document;
    {
        const AllocationFailure failure(1, Mode::forGood);
        document.create(u"C:\\out\\a document with a long name.htm");
    }
    document.insertText(u"lost");
    document.insertPageBreak();
    document.close();
    document.create(u"C:\\out\\rep.htm");
    document.insertText(u"kept");
    document.close();
    EXPECT_FALSE(files.content("C:\\out\\a document with a long name.htm").has_value());
    const std::string page = files.content("C:\\out\\rep.htm").value_or("");
    EXPECT_THAT(page, ::testing::HasSubstr("kept"));
    EXPECT_THAT(page, ::testing::Not(::testing::HasSubstr("lost")));
}

TEST(OutOfMemory, InTheJsonReaderIsAnException) {
    replay::JsonReader reader;
    rapidjson::StringStream text("[[[[1,2,3]]],\"\\u0041\"]");
    rapidjson::BaseReaderHandler<> handler;
    const AllocationFailure failure(1, Mode::forGood);
    EXPECT_THROW(reader.Parse(text, handler), std::bad_alloc);
}

TEST(OutOfMemory, InACallbackIsNotAnEmptyText) {
    const std::string text(100, 'x');
    const DochtmlText argument{text.data(), text.size()};
    CollectedTexts texts;
    const DochtmlSink sink = texts.sink();
    {
        const AllocationFailure failure(1, Mode::forGood);
        sink.put(sink.context, &argument);
    }
    EXPECT_THROW(static_cast<void>(texts.text()), std::bad_alloc);
}

TEST(OutOfMemory, DoesNotSilenceTheToolsMessages) {
    std::ostringstream stream;
    stream << std::string(1000, ' ');
    stream.str("");
    replay::Messages messages(stream, false);
    messages.write("a first message");
    stream.seekp(0);
    {
        const AllocationFailure failure(1, Mode::forGood);
        messages.write("line\none\x01");
    }
    EXPECT_EQ(stream.str().substr(0, 10), "line one?\n");
}

}  // namespace
}  // namespace quillmark::testing

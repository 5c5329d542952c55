#include "foundation/orx_exception.h"

#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/capturing_exception_log.h"

namespace quillmark {
namespace {

using Messages = std::vector<std::string>;

TEST(Exception, CarriesItsReason) {
    const OrxException exception("Error opening file: a");
    EXPECT_EQ(exception.reasonText(), "Error opening file: a");
    EXPECT_STREQ(exception.what(), "Error opening file: a");
}

TEST(Exception, IsCaughtAsAStandardException) {
    try {
        OrxException::raise("reason");
    } catch (const std::exception& caught) {
        EXPECT_STREQ(caught.what(), "reason");
    }
}

TEST(ExceptionLog, IsWrittenToBeforeTheThrow) {
    const CapturingExceptionLog log;
    EXPECT_THROW(OrxException::raise("Error opening file: a"), OrxException);
    EXPECT_EQ(log.messages(), Messages{"Exception throw: Error opening file: a\n"});
}

TEST(ExceptionLog, IsWrittenToAfterTheCatch) {
    const CapturingExceptionLog log;
    OrxException::logCatch("Error opening file: a");
    EXPECT_EQ(log.messages(), Messages{"Exception catch: Error opening file: a\n"});
}

TEST(ExceptionLog, KeepsTheLineEndsOfAReason) {
    const CapturingExceptionLog log;
    EXPECT_THROW(OrxException::raise("Html style sheet does not exist.\nC:\\a.css"), OrxException);
    EXPECT_EQ(log.messages(),
              Messages{"Exception throw: Html style sheet does not exist.\nC:\\a.css\n"});
}

TEST(ExceptionLog, GetsOnlyTheCategoriesThatItRecords) {
    {
        const CapturingExceptionLog log(CapturingExceptionLog::Records::throwsOnly);
        EXPECT_THROW(OrxException::raise("a"), OrxException);
        OrxException::logCatch("a");
        EXPECT_EQ(log.messages(), Messages{"Exception throw: a\n"});
    }
    {
        const CapturingExceptionLog log(CapturingExceptionLog::Records::catchesOnly);
        EXPECT_THROW(OrxException::raise("a"), OrxException);
        OrxException::logCatch("a");
        EXPECT_EQ(log.messages(), Messages{"Exception catch: a\n"});
    }
    const CapturingExceptionLog log(CapturingExceptionLog::Records::nothing);
    EXPECT_THROW(OrxException::raise("a"), OrxException);
    OrxException::logCatch("a");
    EXPECT_EQ(log.messages(), Messages{});
}

template <typename Exception>
Messages loggedWhenCaught(const Exception& exception) {
    const CapturingExceptionLog log;
    try {
        throw exception;
    } catch (...) {
        OrxException::logCaught();
    }
    return log.messages();
}

TEST(ExceptionLog, RecordsTheReasonOfAnyCaughtException) {
    EXPECT_EQ(loggedWhenCaught(OrxException("a")), Messages{"Exception catch: a\n"});
    EXPECT_EQ(loggedWhenCaught(std::runtime_error("b")), Messages{"Exception catch: b\n"});
    EXPECT_EQ(loggedWhenCaught(7), Messages{"Exception catch: unknown exception\n"});
}

TEST(ExceptionLog, RecordsAReasonWithAZeroInsideInFull) {
    const OrxException exception(OrxString(std::string_view("a\0b", 3)));
    EXPECT_EQ(loggedWhenCaught(exception), Messages{std::string("Exception catch: a\0b\n", 21)});
}

TEST(ExceptionLog, RecordsNothingUnlessOneIsInstalled) {
    OrxExceptionLog* const standard = OrxException::getLog();
    ASSERT_NE(standard, nullptr);
    EXPECT_FALSE(standard->records(OrxExceptionLog::throwCategory));
    EXPECT_FALSE(standard->records(OrxExceptionLog::catchCategory));
    EXPECT_NO_THROW(standard->write("a"));
}

TEST(ExceptionLog, IsInstalledAndRemoved) {
    {
        const CapturingExceptionLog log;
        EXPECT_EQ(OrxException::getLog(), &log);
        EXPECT_EQ(OrxException::setLog(nullptr), &log);
        EXPECT_NE(OrxException::getLog(), &log);
        EXPECT_EQ(OrxException::setLog(nullptr), nullptr);
    }
    EXPECT_NE(OrxException::getLog(), nullptr);
}

TEST(ExceptionLog, ThatThrowsDoesNotStopACatch) {
    class Broken : public OrxExceptionLog {
    public:
        Broken() { OrxException::setLog(this); }
        ~Broken() override { OrxException::setLog(nullptr); }
        Broken(const Broken&) = delete;
        Broken& operator=(const Broken&) = delete;
        bool records(std::string_view /*category*/) const override { return true; }
        void write(std::string_view /*message*/) override { throw std::runtime_error("full"); }
    };
    const Broken log;
    EXPECT_NO_THROW(OrxException::logCatch("a"));
}

}  // namespace
}  // namespace quillmark

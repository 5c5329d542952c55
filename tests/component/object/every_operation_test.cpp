// Each of the 42 operations, in each of the ways that a host can call it.

#include <gmock/gmock.h>

#include "component/object/operation_calls.h"
#include "component/object/recorded_object.h"

namespace quillmark::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EveryOperation : public ::testing::TestWithParam<OperationCall> {
protected:
    const OperationCall& call() const { return GetParam(); }
    RecordedObject object_;
};

TEST_P(EveryOperation, ReachesTheDriverThroughTheTable) {
    EXPECT_EQ(call().byTable(object_.document()), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre(call().recorded));
}

TEST_P(EveryOperation, ReachesTheDriverByItsDispatchIdentifier) {
    EXPECT_EQ(invokeById(object_.document(), call()), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre(call().recorded));
}

TEST_P(EveryOperation, ReachesTheDriverByItsName) {
    EXPECT_EQ(invokeByName(object_.document(), call()), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre(call().recorded));
}

TEST_P(EveryOperation, RefusesEveryOtherNumberOfArguments) {
    const std::size_t right = call().arguments.size();
    for (std::size_t count = 0; count <= right + 1; ++count) {
        if (count == right) {
            continue;
        }
        auto arguments = call().arguments;
        arguments.resize(count, std::int16_t{1});
        LateArguments late(arguments);
        EXPECT_EQ(invoke(object_.document(), call().id, late.parameters()), DISP_E_BADPARAMCOUNT);
    }
    EXPECT_THAT(object_.calls(), IsEmpty());
}

TEST_P(EveryOperation, ReportsTheArgumentOfAWrongKindAndContinues) {
    for (std::size_t position = 0; position < call().arguments.size(); ++position) {
        LateArguments late(call().arguments);
        // A reference to an object is not a text, a number or a boolean.
        VARIANT& wrong = late.argument(position);
        VariantInit(&wrong);
        wrong.vt = VT_UNKNOWN;
        UINT bad = 99;
        EXPECT_EQ(invoke(object_.document(), call().id, late.parameters(), &bad),
                  DISP_E_TYPEMISMATCH);
        EXPECT_EQ(bad, call().arguments.size() - 1 - position);
    }
    EXPECT_THAT(object_.calls(), IsEmpty());
    EXPECT_EQ(invokeById(object_.document(), call()), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre(call().recorded));
}

TEST_P(EveryOperation, NeedsEveryArgument) {
    for (std::size_t position = 0; position < call().arguments.size(); ++position) {
        LateArguments late(call().arguments);
        VARIANT& leftOut = late.argument(position);
        VariantInit(&leftOut);
        leftOut.vt = VT_ERROR;
        leftOut.scode = DISP_E_PARAMNOTFOUND;
        UINT bad = 99;
        EXPECT_EQ(invoke(object_.document(), call().id, late.parameters(), &bad),
                  DISP_E_PARAMNOTOPTIONAL);
        EXPECT_EQ(bad, call().arguments.size() - 1 - position);
    }
    EXPECT_THAT(object_.calls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Document, EveryOperation, ::testing::ValuesIn(operationCalls()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DocumentObject, HasFortyTwoOperations) {
    EXPECT_EQ(operationCalls().size(), 42U);
}

}  // namespace
}  // namespace quillmark::testing

// What a host that knows only names may do, and the results of its mistakes.

#include <gmock/gmock.h>

#include "component/object/operation_calls.h"
#include "component/object/recorded_object.h"

namespace quillmark::testing {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr DISPID insertText = 3;
constexpr DISPID insertEndl = 4;
constexpr DISPID insertDiagram = 5;
constexpr DISPID insertField = 7;
constexpr DISPID setOption = 14;
constexpr DISPID setFontAttribute = 21;
constexpr DISPID getDocType = 24;
constexpr DISPID insertMark = 31;

class LateBinding : public ::testing::Test {
protected:
    ::IDocument& document() const { return object_.document(); }

    HRESULT call(DISPID id, LateArguments& arguments, UINT* bad = nullptr) const {
        return invoke(document(), id, arguments.parameters(), bad);
    }
    /// Calls with one argument that the test has prepared.
    HRESULT callWith(DISPID id, VARIANT argument, UINT* bad = nullptr) const {
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        return invoke(document(), id, parameters, bad);
    }
    static VARIANT variant(VARTYPE type) {
        VARIANT value;
        VariantInit(&value);
        value.vt = type;
        return value;
    }
    static VARIANT number(double real) {
        VARIANT value = variant(VT_R8);
        value.dblVal = real;
        return value;
    }
    static VARIANT text(const Text& units) {
        VARIANT value = variant(VT_BSTR);
        value.bstrVal = units.get();
        return value;
    }

    RecordedObject object_;
};

TEST_F(LateBinding, FindsOperationsInAnyCase) {
    EXPECT_EQ(idOf(document(), u"insertText"), insertText);
    EXPECT_EQ(idOf(document(), u"INSERTTEXT"), insertText);
    EXPECT_EQ(idOf(document(), u"inserttoc"), 26);
}

TEST_F(LateBinding, DoesNotKnowOtherNames) {
    EXPECT_EQ(idOf(document(), u"insertTex"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(document(), u"insertTextx"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(document(), u""), DISPID_UNKNOWN);
}

TEST_F(LateBinding, NamesParametersByTheirPositions) {
    Text operation(u"insertDiagram");
    Text first(u"ptr");
    Text second(u"WIDTH");
    Text third(u"height");
    LPOLESTR names[] = {operation.get(), third.get(), first.get(), second.get()};
    DISPID ids[4] = {};
    EXPECT_EQ(document().GetIDsOfNames(IID_NULL, names, 4, 0, ids), S_OK);
    EXPECT_THAT(ids, ElementsAre(insertDiagram, 2, 0, 1));
}

TEST_F(LateBinding, ReportsWhichNameIsUnknown) {
    Text operation(u"insertDiagram");
    Text stranger(u"depth");
    Text known(u"width");
    LPOLESTR names[] = {operation.get(), stranger.get(), known.get()};
    DISPID ids[3] = {};
    EXPECT_EQ(document().GetIDsOfNames(IID_NULL, names, 3, 0, ids), DISP_E_UNKNOWNNAME);
    EXPECT_THAT(ids, ElementsAre(insertDiagram, DISPID_UNKNOWN, 1));
}

TEST_F(LateBinding, FindsNoParametersOfAnUnknownOperation) {
    Text operation(u"insertSound");
    Text parameter(u"text");
    LPOLESTR names[] = {operation.get(), parameter.get()};
    DISPID ids[2] = {};
    EXPECT_EQ(document().GetIDsOfNames(IID_NULL, names, 2, 0, ids), DISP_E_UNKNOWNNAME);
    EXPECT_THAT(ids, ElementsAre(DISPID_UNKNOWN, DISPID_UNKNOWN));
}

TEST_F(LateBinding, RefusesANullPointerAmongTheNames) {
    Text operation(u"insertDiagram");
    Text parameter(u"width");
    LPOLESTR lists[][3] = {{nullptr, parameter.get(), parameter.get()},
                           {operation.get(), parameter.get(), nullptr}};
    for (auto& names : lists) {
        DISPID ids[] = {77, 78, 79};
        EXPECT_EQ(document().GetIDsOfNames(IID_NULL, names, 3, 0, ids), E_INVALIDARG);
        EXPECT_THAT(ids, ElementsAre(77, 78, 79));
    }
}

TEST_F(LateBinding, RefusesAReservedIdentifierThatIsNotNull) {
    Text name(u"close");
    LPOLESTR names[] = {name.get()};
    DISPID id = 0;
    EXPECT_EQ(document().GetIDsOfNames(IID_IDocument, names, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
    DISPPARAMS none{};
    EXPECT_EQ(
        document().Invoke(2, IID_IDocument, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
        DISP_E_UNKNOWNINTERFACE);
    EXPECT_THAT(object_.calls(), IsEmpty());
}

TEST_F(LateBinding, HasNoMembersOutsideOneToFortyTwo) {
    DISPPARAMS none{};
    for (const DISPID id : {-1, 0, 43, 1000}) {
        EXPECT_EQ(invoke(document(), id, none), DISP_E_MEMBERNOTFOUND) << id;
    }
}

TEST_F(LateBinding, HasNoProperties) {
    DISPPARAMS none{};
    EXPECT_EQ(document().Invoke(insertEndl, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr,
                                nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_THAT(object_.calls(), IsEmpty());
}

TEST_F(LateBinding, AcceptsACallThatMayAlsoBeAProperty) {
    DISPPARAMS none{};
    EXPECT_EQ(document().Invoke(insertEndl, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                &none, nullptr, nullptr, nullptr),
              S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertEndl()"));
}

TEST_F(LateBinding, LeavesTheResultEmpty) {
    VARIANT result = number(5);
    DISPPARAMS none{};
    EXPECT_EQ(document().Invoke(insertEndl, IID_NULL, 0, DISPATCH_METHOD, &none, &result, nullptr,
                                nullptr),
              S_OK);
    EXPECT_EQ(result.vt, VT_EMPTY);
}

TEST_F(LateBinding, NeedsParameters) {
    EXPECT_EQ(document().Invoke(insertEndl, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr,
                                nullptr),
              E_INVALIDARG);
}

TEST_F(LateBinding, AcceptsNamedArgumentsInAnyOrder) {
    // height, ptr, width
    LateArguments arguments({std::int16_t{20}, std::int32_t{7}, std::int16_t{30}});
    DISPID names[] = {2, 0, 1};
    VARIANT ordered[] = {arguments.argument(2), arguments.argument(1), arguments.argument(0)};
    DISPPARAMS parameters{ordered, names, 3, 3};
    EXPECT_EQ(invoke(document(), insertDiagram, parameters), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertDiagram(7,20,30)"));
}

TEST_F(LateBinding, AcceptsNamedArgumentsAfterOthers) {
    LateArguments arguments({std::int32_t{7}, std::int16_t{20}, std::int16_t{30}});
    // The named one first (height), then the others from the last to the first.
    DISPID names[] = {2};
    VARIANT ordered[] = {arguments.argument(2), arguments.argument(1), arguments.argument(0)};
    DISPPARAMS parameters{ordered, names, 3, 1};
    EXPECT_EQ(invoke(document(), insertDiagram, parameters), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertDiagram(7,20,30)"));
}

TEST_F(LateBinding, RefusesANameThatIsNotAParameter) {
    LateArguments arguments({u"title"s, u"x"s});
    DISPID names[] = {0, 2};
    DISPPARAMS parameters = arguments.parameters();
    parameters.rgdispidNamedArgs = names;
    parameters.cNamedArgs = 2;
    UINT bad = 99;
    EXPECT_EQ(invoke(document(), setOption, parameters, &bad), DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(bad, 1U);
}

TEST_F(LateBinding, RefusesAParameterNamedTwice) {
    LateArguments arguments({u"title"s, u"x"s});
    DISPID names[] = {1, 1};
    DISPPARAMS parameters = arguments.parameters();
    parameters.rgdispidNamedArgs = names;
    parameters.cNamedArgs = 2;
    EXPECT_EQ(invoke(document(), setOption, parameters), DISP_E_PARAMNOTFOUND);
    EXPECT_THAT(object_.calls(), IsEmpty());
}

TEST_F(LateBinding, RefusesMoreNamesThanArguments) {
    LateArguments arguments({u"x"s});
    DISPID names[] = {0, 0};
    DISPPARAMS parameters = arguments.parameters();
    parameters.rgdispidNamedArgs = names;
    parameters.cNamedArgs = 2;
    EXPECT_EQ(invoke(document(), insertText, parameters), DISP_E_BADPARAMCOUNT);
}

TEST_F(LateBinding, ReadsNumbersFromTexts) {
    const Text twelve(u" 12 ");
    EXPECT_EQ(callWith(insertField, text(twelve)), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertField(12)"));
}

TEST_F(LateBinding, ReadsTextsFromNumbers) {
    VARIANT value = variant(VT_I4);
    value.lVal = -42;
    EXPECT_EQ(callWith(insertText, value), S_OK);
    EXPECT_EQ(callWith(insertText, number(2.5)), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertText(\"-42\")", "insertText(\"2.5\")"));
}

TEST_F(LateBinding, RoundsHalvesToTheEvenNeighbour) {
    for (const double real : {2.5, 3.5, -0.4}) {
        EXPECT_EQ(callWith(insertField, number(real)), S_OK);
    }
    EXPECT_THAT(object_.calls(), ElementsAre("insertField(2)", "insertField(4)", "insertField(0)"));
}

TEST_F(LateBinding, RefusesANumberThatDoesNotFit) {
    VARIANT value = variant(VT_I4);
    value.lVal = 32768;
    UINT bad = 99;
    EXPECT_EQ(callWith(insertField, value, &bad), DISP_E_OVERFLOW);
    EXPECT_EQ(bad, 0U);
    value.lVal = -32768;
    EXPECT_EQ(callWith(insertField, value), S_OK);
    EXPECT_EQ(callWith(insertField, number(1e10)), DISP_E_OVERFLOW);
    EXPECT_THAT(object_.calls(), ElementsAre("insertField(-32768)"));
}

TEST_F(LateBinding, RefusesATextThatIsNotANumber) {
    const Text word(u"three");
    EXPECT_EQ(callWith(insertField, text(word)), DISP_E_TYPEMISMATCH);
    const Text nothing(u"");
    EXPECT_EQ(callWith(insertField, text(nothing)), DISP_E_TYPEMISMATCH);
}

TEST_F(LateBinding, TakesAnythingButZeroAsTrue) {
    for (const std::int32_t value : {2, -1, 0}) {
        LateArguments arguments({std::int16_t{1}, value});
        EXPECT_EQ(call(setFontAttribute, arguments), S_OK);
    }
    EXPECT_THAT(object_.calls(), ElementsAre("setFontAttribute(1,true)", "setFontAttribute(1,true)",
                                             "setFontAttribute(1,false)"));
}

TEST_F(LateBinding, AcceptsTheWordsOfBooleans) {
    for (const auto& word : {u"True"s, u"FALSE"s}) {
        LateArguments arguments({std::int32_t{5}, word});
        EXPECT_EQ(call(insertMark, arguments), S_OK);
    }
    EXPECT_THAT(object_.calls(), ElementsAre("insertMark(5,true)", "insertMark(5,false)"));
}

TEST_F(LateBinding, ConvertsTrueToMinusOne) {
    VARIANT value = variant(VT_BOOL);
    value.boolVal = VARIANT_TRUE;
    EXPECT_EQ(callWith(insertField, value), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertField(-1)"));
}

TEST_F(LateBinding, TakesAnEmptyValueAsZeroOrAnEmptyText) {
    EXPECT_EQ(callWith(insertField, variant(VT_EMPTY)), S_OK);
    EXPECT_EQ(callWith(insertText, variant(VT_EMPTY)), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertField(0)", "insertText(\"\")"));
}

TEST_F(LateBinding, RefusesNullValues) {
    EXPECT_EQ(callWith(insertField, variant(VT_NULL)), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(callWith(insertText, variant(VT_NULL)), DISP_E_TYPEMISMATCH);
}

TEST_F(LateBinding, TakesTheNullTextAsEmpty) {
    EXPECT_EQ(callWith(insertText, variant(VT_BSTR)), S_OK);
    EXPECT_EQ(document().insertText(nullptr), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertText(\"\")", "insertText(\"\")"));
}

TEST_F(LateBinding, KeepsZerosInsideATextAndItsLength) {
    const Text units(std::u16string_view(u"a\0b", 3));
    EXPECT_EQ(callWith(insertText, text(units)), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertText(\"a\0b\")"s));
}

TEST_F(LateBinding, FollowsReferencesToValues) {
    std::int16_t field = 3;
    VARIANT reference = variant(VT_BYREF | VT_I2);
    reference.piVal = &field;
    EXPECT_EQ(callWith(insertField, reference), S_OK);

    Text words(u"by reference");
    BSTR plain = words.get();
    VARIANT textReference = variant(VT_BYREF | VT_BSTR);
    textReference.pbstrVal = &plain;
    EXPECT_EQ(callWith(insertText, textReference), S_OK);

    VARIANT inner = text(words);
    VARIANT variantReference = variant(VT_BYREF | VT_VARIANT);
    variantReference.pvarVal = &inner;
    EXPECT_EQ(callWith(insertText, variantReference), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("insertField(3)", "insertText(\"by reference\")",
                                             "insertText(\"by reference\")"));
}

TEST_F(LateBinding, DoesNotCallWithANullReference) {
    for (const int type : {VT_I2, VT_BSTR, VT_VARIANT}) {
        EXPECT_EQ(callWith(insertField, variant(static_cast<VARTYPE>(VT_BYREF | type))),
                  DISP_E_TYPEMISMATCH);
    }
    EXPECT_THAT(object_.calls(), IsEmpty());
}

TEST_F(LateBinding, ReturnsATextThroughAReferenceToAText) {
    LateArguments arguments({OutText{}});
    EXPECT_EQ(call(getDocType, arguments), S_OK);
    EXPECT_EQ(arguments.outText(), u"Recording");
}

TEST_F(LateBinding, ReturnsATextThroughAReferenceToAVariant) {
    VARIANT out = number(1);
    VARIANT reference = variant(VT_BYREF | VT_VARIANT);
    reference.pvarVal = &out;
    EXPECT_EQ(callWith(getDocType, reference), S_OK);
    ASSERT_EQ(out.vt, VT_BSTR);
    EXPECT_EQ(Text::viewOf(out.bstrVal), u"Recording");
    VariantClear(&out);
}

TEST_F(LateBinding, AcceptsACallWithoutAPlaceForTheText) {
    const Text value(u"");
    EXPECT_EQ(callWith(getDocType, text(value)), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("getDocType()"));
}

TEST_F(LateBinding, RunsAnOutOperationThroughTheTableWithoutAPlaceForTheText) {
    EXPECT_EQ(document().getDocType(nullptr), S_OK);
    EXPECT_THAT(object_.calls(), ElementsAre("getDocType()"));
}

TEST_F(LateBinding, SaysWhetherItHasTypeInformation) {
    UINT count = 99;
    EXPECT_EQ(document().GetTypeInfoCount(&count), S_OK);
    ITypeInfo* info = nullptr;
    EXPECT_EQ(document().GetTypeInfo(count, 0, &info), DISP_E_BADINDEX);
    EXPECT_EQ(info, nullptr);
    EXPECT_EQ(document().GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(document().GetTypeInfo(0, 0, nullptr), E_POINTER);
}

}  // namespace
}  // namespace quillmark::testing

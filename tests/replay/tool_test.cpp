#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "replay/tool_fixture.h"

namespace quillmark::replay {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// A report with everything that makes the driver call itself: an embedded link, tables open at a
/// page break, directories, references forward and back.
constexpr const char* report = R"(["create","rep.htm"]
["setOption","title","A \"report\""]
["startHeader"]
["insertText","header "]
["insertField",3]
["endHeader"]
["startFooter"]
["insertField",1]
["insertField",4]
["endFooter"]
["setStyle","Heading 1"]
["insertText","Chapter \u00e9\u20ac\ud83d\ude00\ud800 end"]
["insertEndl"]
["setStyle","List Number 2"]
["setTextAlign",2]
["setFontName","Courier"]
["setFontSize",14]
["setFontAttribute",1,true]
["setFontAttribute",16,true]
["setFontAttribute",8,0]
["insertText","see <a href=\"#GUID-12\">Class A</a> now, <a href=\"#GUID-13\">B</a>"]
["insertText","quotes \"here\");\nand \"there\",\"too\",3);\r\nend\""]
["insertText",""]
["startTable"]
["addRow"]
["addCell"]
["insertText","cell"]
["startTable"]
["addCell"]
["insertXref","to \"x\",\"y\"","GUID-12"]
["insertPageBreak"]
["insertMark",5,false]
["insertMark",4294967295,true]
["startTOCEntry"]
["insertText","entry"]
["endTOCEntry"]
["insertTag","GUID-12"]
["insertTag","GUID-12"]
["insertTag","two\nlines"]
["insertFile","missing.txt",3]
["insertImage","missing.gif",""]
["insertTOC"]
["insertText","last"]
["close"]
)";

TEST_F(ReplayTool, CreatesADocumentSetFromACallStream) {
    const ToolResult result = run({"-"},
                                  "[\"create\",\"rep.htm\"]\n[\"insertText\",\"Hello\"]\n"
                                  "[\"close\"]\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "dochtml-replay: 3 pages written, 1 contents entry, 3 files copied, "
              "0 unresolved references, 0 errors\n"
              "dochtml-replay: rep.htm needs a browser with Java. For today's browsers add --set "
              "Html.ScriptNavigator=true\n");
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr(">Hello"));
    EXPECT_TRUE(exists("default.css"));
    EXPECT_TRUE(exists("rep_cnt.htm"));
}

TEST_F(ReplayTool, NamesThePageToOpen) {
    const std::string calls = "[\"create\",\"new/rep.htm\"]\n[\"insertText\",\"x\"]\n[\"close\"]\n";
    makeDirectory("new");
    EXPECT_THAT(run({"--set", "Html.ScriptNavigator=true", "-"}, calls).errors,
                EndsWith("\ndochtml-replay: open new/rep.htm\n"));
    EXPECT_THAT(run({"--set", "Html.SupportOld=true", "-"}, calls).errors,
                EndsWith("\ndochtml-replay: open new/rep_sfrm.htm\n"));
    EXPECT_THAT(run({"--set", "Html.Navig=2", "-"}, calls).errors,
                EndsWith("\ndochtml-replay: open new/rep.htm\n"));
}

TEST_F(ReplayTool, PrintsNothingWhenQuiet) {
    dir_.put("calls", "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    const ToolResult result = run({"-q", "calls"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
}

TEST_F(ReplayTool, ReplaysItsOwnRecordingToTheSameBytes) {
    makeDirectory("first");
    makeDirectory("second");
    dir_.put("calls", report);
    const ToolResult first =
        run({"--trace", "10", "--log", "trace.txt", "-o", "first/rep.htm", "calls"});
    EXPECT_EQ(first.status, 0) << first.errors;
    EXPECT_THAT(lines("trace.txt"), HasSubstr("dochtml->insertXref(\"Class A\",\"GUID-12\");"));
    EXPECT_THAT(lines("trace.txt"), HasSubstr("dochtml->endTable();"));

    const ToolResult second = run({"-o", "second/rep.htm", "trace.txt"});
    EXPECT_EQ(second.status, 0) << second.errors;
    EXPECT_THAT(second.errors, Not(HasSubstr("diverged")));
    const auto files = filesIn("first");
    EXPECT_GT(files.size(), 5U);
    EXPECT_EQ(filesIn("second"), files);
}

TEST_F(ReplayTool, ReplaysARecordingOfEveryLevelAndRecordsItAgain) {
    dir_.put("calls", report);
    run({"--trace", "11", "--log", "trace.txt", "-o", "rep.htm", "calls"});
    const std::string trace = lines("trace.txt");
    EXPECT_THAT(trace, HasSubstr("created bookmark:two\nlines as "));
    const ToolResult again = run({"--trace", "11", "--log", "again.txt", "trace.txt"});
    EXPECT_EQ(again.status, 0) << again.errors;
    EXPECT_EQ(lines("again.txt"), trace);
}

TEST_F(ReplayTool, WritesTheSameBytesInEveryRun) {
    makeDirectory("first");
    makeDirectory("second");
    dir_.put("calls", report);
    run({"-o", "first/rep.htm", "calls"});
    run({"-o", "second/rep.htm", "calls"});
    EXPECT_EQ(filesIn("first"), filesIn("second"));
    EXPECT_THAT(content("first/rep_dtl.htm"), HasSubstr("01/01/70"));
}

TEST_F(ReplayTool, ReportsWhereAReplayDiverges) {
    const ToolResult result = run({"-q", "-"},
                                  "dochtml->create(\"rep.htm\");\n"
                                  "dochtml->startTable();\n"
                                  "dochtml->addCell();\n"
                                  "dochtml->insertPageBreak();\n\n"
                                  "dochtml->insertText(\"x\");\n"
                                  "dochtml->close();\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "-:6: replay diverged: the driver called dochtml->endTable();, the recording has "
              "dochtml->insertText(\"x\");\n");
    EXPECT_THAT(content("rep_dtl2.htm"), HasSubstr("x"));
}

TEST_F(ReplayTool, TakesSettingsFromTheStoreAndOverIt) {
    dir_.put("store.ini", "[Html]\nNavig=2\nBodyTags=STORED\nHtmlPixDir=p\n");
    const ToolResult result = run({"-q", "--settings", "store.ini", "--set", "Html.BodyTags=FIRST",
                                   "--set", "Html.BodyTags=\xC3\xA9", "-"},
                                  "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(content("rep.htm"), HasSubstr("<BODY \xE9 >"));
    EXPECT_TRUE(exists("p/backOFF.gif"));
}

TEST_F(ReplayTool, TakesTheInstallationDirectoryOfTheStoreAndTheCommandLine) {
    makeDirectory("stored");
    makeDirectory("given");
    dir_.put("stored/default.css", "stored");
    dir_.put("given/default.css", "given");
    dir_.put("store.ini", "[Settings]\nInstallDir=" + native("stored") + "\n");
    const std::string calls = "[\"create\",\"rep.htm\"]\n[\"close\"]\n";
    run({"-q", "--settings", "store.ini", "-"}, calls);
    EXPECT_EQ(content("default.css"), "stored");
    run({"-q", "--settings", "store.ini", "--install-dir", "given", "-"}, calls);
    EXPECT_EQ(content("default.css"), "given");
}

TEST_F(ReplayTool, UsesTheIniFile) {
    dir_.put("own.ini", "[Quillmark]\nUseJavaPre7=TRUE\n");
    run({"-q", "--ini", "own.ini", "-"}, "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_FALSE(exists("toc2.jnlp"));
    run({"-q", "-"}, "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_TRUE(exists("toc2.jnlp"));
}

TEST_F(ReplayTool, TakesIconsFromTheModelAndRegionsFromImageMaps) {
    dir_.put("model.json", R"({"schemaType": 1, "elements": {"0x0000000700000005":
        {"class": "Operation", "attributes": {"visibility": "public"}}}})");
    dir_.put("maps.json", R"({"a.gif": ["A", "Page 1", "1,2,3,4"]})");
    dir_.put("a.gif", "GIF");
    const ToolResult result =
        run({"-q", "--model", "model.json", "--image-maps", "maps.json", "-"},
            "[\"create\",\"rep.htm\"]\n[\"insertMark\",5,false]\n[\"insertMark\",7,true]\n"
            "[\"setStyle\",\"Heading 1\"]\n[\"insertText\",\"x\"]\n[\"insertEndl\"]\n"
            "[\"insertImage\",\"a.gif\",\"\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(content("rep_toc.dat"), HasSubstr("Operation_public.gif"));
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr("<MAP NAME=\"map0\">"));
}

TEST_F(ReplayTool, PrintsWhatOperationsReturn) {
    const ToolResult result = run({"-q", "-"}, "[\"getDocType\"]\n[\"getPropPages\"]\n");
    EXPECT_EQ(result.output, "Html\n{474BDD93-0170-11D3-A6BF-00104B2AEFE1}\n");
}

TEST_F(ReplayTool, PlaysSeveralFilesIntoOneDocument) {
    dir_.put("a", "[\"create\",\"rep.htm\"]\n[\"insertText\",\"one\"]\n");
    dir_.put("b", "dochtml->insertText(\"two\");\n");
    const ToolResult result = run({"-q", "a", "b", "-"}, "[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr(">onetwo"));
}

TEST_F(ReplayTool, CreatesANewObjectOnRequest) {
    run({"-q", "-"},
        "[\"create\",\"a.htm\"]\n[\"insertPageBreak\"]\n[\"close\"]\n[\"new\"]\n"
        "[\"create\",\"b.htm\"]\n[\"close\"]\n");
    EXPECT_TRUE(exists("b_dtl.htm"));
    EXPECT_FALSE(exists("b_dtl2.htm"));
}

TEST_F(ReplayTool, ClosesADocumentThatWasNotClosed) {
    const ToolResult result =
        run({"-q", "-"}, "[\"create\",\"rep.htm\"]\n[\"insertText\",\"left open\"]\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr("left open"));
}

TEST_F(ReplayTool, StopsAtAMalformedLineWithAllEarlierCallsOnDisk) {
    dir_.put("calls",
             "[\"create\",\"rep.htm\"]\n[\"insertText\",\"kept\"]\n"
             "[\"insertText\",\"a\",\"b\"]\n[\"insertText\",\"lost\"]\n");
    const ToolResult result = run({"--trace", "10", "--log", "trace.txt", "calls"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "calls:3: insertText takes 1 argument, not 2\n"
              "dochtml-replay: 3 pages written, 1 contents entry, 3 files copied, "
              "0 unresolved references, 0 errors\n"
              "dochtml-replay: rep.htm needs a browser with Java. For today's browsers add --set "
              "Html.ScriptNavigator=true\n");
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr(">kept"));
    EXPECT_THAT(content("rep_dtl.htm"), Not(HasSubstr("lost")));
    EXPECT_THAT(lines("trace.txt"), HasSubstr("dochtml->close();"));
}

TEST_F(ReplayTool, ReportsThatCreateFailed) {
    const ToolResult result =
        run({"-q", "--set", "Html.StyleSheet=/none/x.css", "-"}, "[\"create\",\"rep.htm\"]\n");
    EXPECT_EQ(result.status, 1);
    // On Windows the name begins with a drive.
    EXPECT_THAT(result.errors, StartsWith("dochtml-replay: Html style sheet does not exist. "));
    EXPECT_THAT(result.errors, EndsWith("/none/x.css\n"));
}

TEST_F(ReplayTool, ReportsThatAPageCouldNotBeWrittenAndContinues) {
    // A directory with the name of the page's file prevents writing for every user.
    makeDirectory("rep_dtl.htm");
    const ToolResult result =
        run({"--exceptions", "exceptions.txt", "-"},
            "[\"create\",\"rep.htm\"]\n[\"insertText\",\"x\"]\n[\"insertPageBreak\"]\n"
            "[\"insertText\",\"y\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("dochtml-replay: Error opening file: rep_dtl.htm: "));
    EXPECT_THAT(content("rep_dtl2.htm"), HasSubstr(">y"));
    EXPECT_THAT(content("exceptions.txt"), HasSubstr("Exception throw: Error opening file: "));
    EXPECT_THAT(content("exceptions.txt"), HasSubstr("Exception catch: Error opening file: "));
}

TEST_F(ReplayTool, RefusesADirectoryAsOutput) {
    makeDirectory("there");
    dir_.put("calls", "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    for (const char* const name : {"newdir/", "there"}) {
        const ToolResult result = run({"-o", name, "calls"});
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.errors, StartsWith("dochtml-replay: -o takes the name of a page, and "));
    }
    EXPECT_FALSE(exists("newdir"));
    EXPECT_FALSE(exists("there.htm"));
}

TEST_F(ReplayTool, RefusesADirectoryAsAnyOfItsFiles) {
    makeDirectory("there");
    dir_.put("calls", "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    for (const char* const option : {"--settings", "--model", "--image-maps"}) {
        const ToolResult result = run({option, "there", "calls"});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors, "dochtml-replay: cannot read there: not a regular file\n");
    }
}

TEST_F(ReplayTool, ExplainsACallStreamToWhoWritesSomethingElse) {
    for (const char* const input : {"{\"create\":\"rep.htm\"}\n", "\n# my calls\n[\"close\"]\n"}) {
        const ToolResult result = run({"-q", "-"}, input);
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.errors, HasSubstr("a call stream has one JSON array per line"));
    }
}

TEST_F(ReplayTool, WarnsOfAnUnknownSettingAlsoWhenQuiet) {
    const ToolResult result = run({"-q", "--set", "Html.None=1", "-"}, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "dochtml-replay: warning: there is no setting Html.None\n");
}

TEST_F(ReplayTool, CreatesLogFilesOnlyWhenSomethingIsWritten) {
    run({"-q", "--trace", "10", "--log", "trace.txt", "--exceptions", "exceptions.txt", "-"},
        "[\"insertMark\",1,false]\n");
    EXPECT_FALSE(exists("trace.txt"));
    EXPECT_FALSE(exists("exceptions.txt"));
}

TEST_F(ReplayTool, CreatesTheDirectoryOfALog) {
    run({"-q", "--trace", "10", "--log", "logs/trace.txt", "-"}, "[\"insertEndl\"]\n");
    EXPECT_EQ(lines("logs/trace.txt").substr(0, 23), "dochtml->insertEndl();\n");
}

TEST_F(ReplayTool, ReportsThatALogCannotBeWritten) {
    dir_.put("file", "");
    const ToolResult result = run({"-q", "--trace", "10", "--log", "file/trace.txt", "-"}, report);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, StartsWith("dochtml-replay: Error writing to file: "));
    EXPECT_THAT(result.errors, HasSubstr("file/trace.txt: "));
}

TEST_F(ReplayTool, RefusesBadUsageBeforeTheFirstCall) {
    dir_.put("calls", "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    const std::map<std::vector<std::string>, std::string> cases = {
        {{}, "no calls given; try --help"},
        {{"--colour", "calls"}, "unknown option --colour"},
        {{"calls", "none"}, "cannot read none: No such file or directory"},
        {{"calls", "."}, "cannot read .: Is a directory"},
        {{"--settings", "none", "calls"}, "cannot read none: No such file or directory"},
        {{"--model", "none", "calls"}, "cannot read none: No such file or directory"},
        {{"--image-maps", "none", "calls"}, "cannot read none: No such file or directory"},
        {{"--model", "calls", "calls"},
         "calls:2: malformed JSON: The document root must not be followed by other values."},
    };
    for (const auto& [arguments, message] : cases) {
        const ToolResult result = run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors, "dochtml-replay: " + message + "\n");
    }
    EXPECT_FALSE(exists("rep_dtl.htm"));
}

TEST_F(ReplayTool, ShowsItsVersionAndItsHelp) {
    const ToolResult version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.output, StartsWith("dochtml-replay 2.1.0\ncomponent: "));
    EXPECT_THAT(version.output, EndsWith(" (installed with this program)\n"));
    const ToolResult help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("Usage: dochtml-replay [OPTIONS] CALLS..."));
}

TEST_F(ReplayTool, PlaysNothingFromAnEmptyInput) {
    const ToolResult result = run({"-"}, "\n  \n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              "dochtml-replay: 0 pages written, 0 contents entries, 0 files copied, "
              "0 unresolved references, 0 errors\n");
}

}  // namespace
}  // namespace quillmark::replay

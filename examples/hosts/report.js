// A report generator in small, in JScript: makes a document by the component's name and writes a
// report of two pages.
//
//     cscript //nologo report.js OUTPUT-FILE STYLE-SHEET

var document = new ActiveXObject("DocHtml.DocHtml.2.1.0");

function writeRow(name, value) {
    document.addRow();
    document.addCell();
    document.insertText(name);
    document.addCell();
    document.insertText(value);
}

document.overrideRegistry("Html", "StyleSheet", WScript.Arguments(1), 0);
document.create(WScript.Arguments(0));
document.setOption("title", "A small report");
document.startFooter();
document.insertText("Page ");
document.insertField(4);
document.endFooter();

document.setStyle("Heading 1");
document.insertText("Results");
document.insertEndl();
document.setStyle("Normal");
document.insertText("The figures are in ");
document.insertXref("the table", "figures");
document.insertText(", those of Z\u00FCrich too.");
document.insertEndl();

document.insertPageBreak();
document.setStyle("Heading 1");
document.insertTag("figures");
document.insertText("Figures");
document.insertEndl();
document.setStyle("Normal");
document.startTable();
writeRow("North", 12);
writeRow("South", 9);
document.endTable();
document.setFontAttribute(1, true);
document.insertText("That is all.");
document.close();

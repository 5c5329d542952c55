var document = new ActiveXObject("DocHtml.DocHtml.2.1.0");
document.overrideRegistry("Html", "StyleSheet", WScript.Arguments(1), 0);
document.create(WScript.Arguments(0));
document.setStyle("Heading 1");
document.insertText("Hello");
document.insertEndl();
document.close();

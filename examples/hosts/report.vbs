' A report generator in small, in VBScript: makes a document by the component's name and writes a
' report of two pages.
'
'     cscript //nologo report.vbs OUTPUT-FILE STYLE-SHEET

Option Explicit

Dim document, kind
Set document = CreateObject("DocHtml.DocHtml.2.1.0")

document.getDocType kind
If kind <> "Html" Then
    WScript.Echo "This component writes " & kind & "."
    WScript.Quit 1
End If

Sub WriteRow(name, value)
    document.addRow
    document.addCell
    document.insertText name
    document.addCell
    document.insertText value
End Sub

document.overrideRegistry "Html", "StyleSheet", WScript.Arguments(1), 0
document.create WScript.Arguments(0)
document.setOption "title", "A small report"
document.startFooter
document.insertText "Page "
document.insertField 4
document.endFooter

document.setStyle "Heading 1"
document.insertText "Results"
document.insertEndl
document.setStyle "Normal"
document.insertText "The figures are in "
document.insertXref "the table", "figures"
document.insertText ", those of Z" & Chr(252) & "rich too."
document.insertEndl

document.insertPageBreak
document.setStyle "Heading 1"
document.insertTag "figures"
document.insertText "Figures"
document.insertEndl
document.setStyle "Normal"
document.startTable
WriteRow "North", 12
WriteRow "South", 9
document.endTable
document.setFontAttribute 1, True
document.insertText "That is all."
document.close

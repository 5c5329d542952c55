#ifndef DOCHTML_IDENTIFIERS_H
#define DOCHTML_IDENTIFIERS_H

#include "dochtml/automation.h"

/* The identifiers of the component's classes and interfaces, for C and C++. C++ code passes the
 * constants themselves, C code their addresses (`&IID_IDocument`).
 */

/* The interface `IDocument` of a document, which C hosts call `DochtmlDocument`. */
DOCHTML_IDENTIFIER IID IID_IDocument = {
    0x3F65DC20, 0xB90B, 0x11D1, {0x84, 0x72, 0x00, 0x40, 0x95, 0x26, 0x21, 0x7E}};
/* The interface `IHostServices` of a class object, which C hosts call `DochtmlHostServices`. */
DOCHTML_IDENTIFIER IID IID_IHostServices = {
    0x8A6C1F52, 0x3B0E, 0x4D7A, {0x9C, 0x41, 0x5E, 0x27, 0xD0, 0xB8, 0xF6, 0xA3}};
/* The interface `IFileConfinement` of a class object. */
DOCHTML_IDENTIFIER IID IID_IFileConfinement = {
    0x5B0D6E11, 0x72F4, 0x4C39, {0xA8, 0x5D, 0x1C, 0x93, 0xE4, 0x60, 0x2B, 0x7F}};
/* The class of documents and the class of the settings page. */
DOCHTML_IDENTIFIER CLSID CLSID_DocHtml = {
    0x474BDD91, 0x0170, 0x11D3, {0xA6, 0xBF, 0x00, 0x10, 0x4B, 0x2A, 0xEF, 0xE1}};
DOCHTML_IDENTIFIER CLSID CLSID_HtmlComPage = {
    0x474BDD93, 0x0170, 0x11D3, {0xA6, 0xBF, 0x00, 0x10, 0x4B, 0x2A, 0xEF, 0xE1}};
/* The type library. */
DOCHTML_IDENTIFIER GUID LIBID_DOCHTMLCOMLib = {
    0x0BDD0890, 0xF6AE, 0x11D2, {0xA6, 0xB7, 0x00, 0x10, 0x4B, 0x2A, 0xEF, 0xE1}};

#endif

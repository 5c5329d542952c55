#ifndef DOCHTML_FILE_CONFINEMENT_H
#define DOCHTML_FILE_CONFINEMENT_H

#include "dochtml/callbacks.h"
#include "dochtml/identifiers.h"

/// The kinds of access that a confined component refuses.
enum DochtmlRefusedAccess : LONG { dochtmlRead = 0, dochtmlWrite = 1, dochtmlStart = 2 };

/// The files that the component may use. Names are the system's own, in UTF-8. A directory stands
/// for everything below it, another name for that file alone.
struct DochtmlConfinement {
    void* context;
    const DochtmlText* writable;
    size_t writableCount;
    const DochtmlText* readable;
    size_t readableCount;
    /// Hears of each refused access, once per name and kind: the name in UTF-8 and a
    /// `DochtmlRefusedAccess`. The rules for callbacks are in dochtml/callbacks.h.
    void (*refused)(void* context, const DochtmlText* name, LONG access);
};

/// Confines the file access of the component, for the whole process. Ask the class object of
/// `DocHtml` for this interface. Set the confinement before the first document is created and
/// remove it, with null, after the last one is released.
///
/// A confined component writes only below the writable names and reads only below the readable
/// ones, follows no symbolic links there and starts no programs. What it refuses fails like any
/// other file access.
struct IFileConfinement : IUnknown {
    /// `E_NOTIMPL` on systems that cannot do this, `E_INVALIDARG` without the callback.
    virtual HRESULT STDMETHODCALLTYPE setConfinement(const DochtmlConfinement* confinement) = 0;

protected:
    ~IFileConfinement() = default;
};

#endif

#ifndef DOCHTML_HOST_SERVICES_H
#define DOCHTML_HOST_SERVICES_H

#include "dochtml/callbacks.h"
#include "dochtml/identifiers.h"

/// What a host lends the component, process-wide: ask the class object of `DocHtml` for it, before
/// the first document. Null takes a service back. A host that lends nothing needs none of this:
/// the component then works with the user's own settings store, without a model and image maps.
///
/// A service may be replaced or taken back at any time, from any thread. What it leads to must stay
/// valid until no document of another thread is in a call that began before (dochtml/callbacks.h).
///
/// Keep the interface as long as services are lent, so that the library stays loaded, and take them
/// back before letting go. Every function answers `S_OK`, or `E_INVALIDARG` for a record with a
/// callback missing.
struct IHostServices : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE setSettingsStore(const DochtmlSettingsStore* store) = 0;
    /// The path that takes the place of "Veltrano.ini".
    virtual HRESULT STDMETHODCALLTYPE setProfilePath(const DochtmlText* path) = 0;
    virtual HRESULT STDMETHODCALLTYPE setImageMaps(const DochtmlImageMaps* maps) = 0;
    virtual HRESULT STDMETHODCALLTYPE setModel(const DochtmlModel* model) = 0;
    /// 2 selects the second rule set for entry icons.
    virtual HRESULT STDMETHODCALLTYPE setSchemaType(LONG schemaType) = 0;
    /// Where names of a drive lie on systems without drive letters. The directory is the system's
    /// own name, in UTF-8; null removes the drive.
    virtual HRESULT STDMETHODCALLTYPE setDrive(SHORT letter, const DochtmlText* directory) = 0;
    virtual HRESULT STDMETHODCALLTYPE setTraceListener(const DochtmlTraceListener* listener) = 0;
    virtual HRESULT STDMETHODCALLTYPE setExceptionLog(const DochtmlExceptionLog* log) = 0;
    virtual HRESULT STDMETHODCALLTYPE setObserver(const DochtmlObserver* observer) = 0;

protected:
    ~IHostServices() = default;
};

#endif

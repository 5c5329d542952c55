#ifndef DOCHTML_HOST_SERVICES_H
#define DOCHTML_HOST_SERVICES_H

#include "dochtml/callbacks.h"
#include "dochtml/identifiers.h"

/// The services that a host provides to the component, for the whole process. Ask the class object
/// of `DocHtml` for this interface before you create the first document. Null removes a service.
/// All services are optional: without them the component uses the user's own settings store, and
/// no model or image maps.
///
/// A service may be replaced or removed at any time, from any thread. The context of its callbacks
/// must outlive every document call that is running at that moment (dochtml/callbacks.h).
///
/// Hold this interface as long as any service is set, so that the library stays loaded, and remove
/// all services before you release it. Every function returns `S_OK`, or `E_INVALIDARG` for a
/// record that lacks a callback.
struct IHostServices : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE setSettingsStore(const DochtmlSettingsStore* store) = 0;
    /// The path of the ini file that replaces "Veltrano.ini", in the driver's 8-bit code page. A
    /// document in UTF-8 takes a path that is valid UTF-8 as such.
    virtual HRESULT STDMETHODCALLTYPE setProfilePath(const DochtmlText* path) = 0;
    virtual HRESULT STDMETHODCALLTYPE setImageMaps(const DochtmlImageMaps* maps) = 0;
    virtual HRESULT STDMETHODCALLTYPE setModel(const DochtmlModel* model) = 0;
    /// 2 selects the second set of rules for entry icons.
    virtual HRESULT STDMETHODCALLTYPE setSchemaType(LONG schemaType) = 0;
    /// Maps a drive letter to a directory on systems without drive letters. The directory is a name
    /// of the system, in UTF-8; null removes the drive.
    virtual HRESULT STDMETHODCALLTYPE setDrive(SHORT letter, const DochtmlText* directory) = 0;
    virtual HRESULT STDMETHODCALLTYPE setTraceListener(const DochtmlTraceListener* listener) = 0;
    virtual HRESULT STDMETHODCALLTYPE setExceptionLog(const DochtmlExceptionLog* log) = 0;
    virtual HRESULT STDMETHODCALLTYPE setObserver(const DochtmlObserver* observer) = 0;

protected:
    ~IHostServices() = default;
};

#endif

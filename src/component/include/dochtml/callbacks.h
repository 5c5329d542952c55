#ifndef DOCHTML_CALLBACKS_H
#define DOCHTML_CALLBACKS_H

/* The services that a host can provide to the component: records of callbacks, for C and C++.
 *
 * The component copies a record that it receives and passes the record's `context` to every
 * callback. The context must stay valid until the service is replaced or removed. A document call
 * that is running in another thread at that moment may still use the old service, so the context
 * must also outlive all such calls. After that, none of the old callbacks is called again.
 *
 * A callback must not throw. It runs on the thread that calls the document, so callbacks may run on
 * several threads at once. It has the default calling convention of C. Texts are
 * bytes in the encoding of the document that calls: UTF-8 for a document with "UTF-8" for the
 * setting "CharSet", otherwise the driver's 8-bit code page (the system's ANSI code page on
 * Windows, Windows-1252 elsewhere). What a callback returns is in the same encoding. Texts are
 * valid only during the call.
 */

#include <stddef.h>
#include <stdint.h>

#include "dochtml/automation.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A text that the receiver does not own. It need not be zero-terminated. */
typedef struct DochtmlText {
    const char* data;
    size_t size;
} DochtmlText;

/* Receives the text that a callback returns: call `put` during the callback, once unless the
 * callback says otherwise. */
typedef struct DochtmlSink {
    void* context;
    void (*put)(void* context, const DochtmlText* text);
} DochtmlSink;

/* A settings store that replaces the user's own. */
typedef struct DochtmlSettingsStore {
    void* context;
    /* Puts the stored value and returns 1. Returns 0 when there is none. */
    int32_t (*read)(void* context, const DochtmlText* group, const DochtmlText* name,
                    const DochtmlSink* value);
    /* Returns 1 when the value was stored. */
    int32_t (*write)(void* context, const DochtmlText* group, const DochtmlText* name,
                     const DochtmlText* value);
} DochtmlSettingsStore;

/* The clickable regions of pictures. */
typedef struct DochtmlImageMaps {
    void* context;
    /* Puts three texts for each region of the picture, in this order: element name, target
     * bookmark, polygon coordinates. */
    void (*regions)(void* context, const DochtmlText* picture, const DochtmlSink* texts);
} DochtmlImageMaps;

/* Handles to an object and a class of the host's model. Only the host knows what they point to. */
typedef const void* DochtmlObject;
typedef const void* DochtmlClass;

/* The model from which the entry icons are derived. Its objects and classes stay valid as long as
 * its context. A negative result is a failure: the driver logs it and uses an empty value. */
typedef struct DochtmlModel {
    void* context;
    /* Sets null when the model does not know the handle. */
    HRESULT (*object)(void* context, uint64_t handle, DochtmlObject* object);
    /* Sets null when the schema has no class of that name. */
    HRESULT(*findClass)
    (void* context, const DochtmlText* name, DochtmlClass* modelClass);
    HRESULT(*classOf)
    (void* context, DochtmlObject object, DochtmlClass* modelClass);
    HRESULT(*className)
    (void* context, DochtmlClass modelClass, const DochtmlSink* name);
    HRESULT(*attributeExists)
    (void* context, DochtmlClass modelClass, const DochtmlText* attribute, int32_t* exists);
    HRESULT(*associationExists)
    (void* context, DochtmlClass modelClass, const DochtmlText* association, int32_t* exists);
    /* Whether the object has a value for the attribute. */
    HRESULT(*hasAttribute)
    (void* context, DochtmlObject object, const DochtmlText* attribute, int32_t* exists);
    HRESULT(*attributeText)
    (void* context, DochtmlObject object, const DochtmlText* attribute, const DochtmlSink* value);
    HRESULT(*attributeBoolean)
    (void* context, DochtmlObject object, const DochtmlText* attribute, int32_t* value);
    HRESULT(*attributeLong)
    (void* context, DochtmlObject object, const DochtmlText* attribute, int32_t* value);
    HRESULT(*attributeDouble)
    (void* context, DochtmlObject object, const DochtmlText* attribute, double* value);
    /* The associated object at `index`, counted from 0 in the model's order. Null after the
     * last. */
    HRESULT(*associated)
    (void* context, DochtmlObject object, const DochtmlText* association, uint32_t index,
     DochtmlObject* other);
} DochtmlModel;

/* Receives every line of every trace, in addition to the log file. The text ends with "\n". */
typedef struct DochtmlTraceListener {
    void* context;
    /* The highest level to receive: 1 errors, 10 calls, 11 reports. */
    int32_t level;
    void (*line)(void* context, int32_t level, const DochtmlText* text);
} DochtmlTraceListener;

/* The exception log. */
typedef struct DochtmlExceptionLog {
    void* context;
    /* Returns a value other than 0 when messages of that category ("Throw", "Catch") are wanted. */
    int32_t (*records)(void* context, const DochtmlText* category);
    void (*write)(void* context, const DochtmlText* message);
} DochtmlExceptionLog;

/* Receives events about documents. Each callback may be null. */
typedef struct DochtmlObserver {
    void* context;
    void (*pageWritten)(void* context, const DochtmlText* fileName);
    void (*fileCopied)(void* context, const DochtmlText* target);
    void (*contentsEntryAdded)(void* context);
    void (*unresolvedReferences)(void* context, const DochtmlText* fileName, size_t count);
} DochtmlObserver;

#ifdef __cplusplus
}
#endif

#endif

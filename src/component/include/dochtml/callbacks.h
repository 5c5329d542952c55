#ifndef DOCHTML_CALLBACKS_H
#define DOCHTML_CALLBACKS_H

/* What a host can lend the component: records of callbacks, for C and C++.
 *
 * A record is copied when it is handed in; its `context` goes back into every call. It must stay
 * valid until the service is replaced or taken back, and after that until every call to a document
 * that was going on in another thread at that moment has returned: such a call may still use the
 * service. Once all documents' threads are between calls, nothing of it is called any more.
 *
 * A callback must not throw. It may come on any thread that drives a document, on several at once,
 * and has the default calling convention of C. Texts are 8-bit, in the code page
 * of the driver (the system's ANSI code page on Windows, Windows-1252 elsewhere), and are valid
 * during the call only.
 */

#include <stddef.h>
#include <stdint.h>

#include "dochtml/automation.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A text on loan. It need not end in a zero. */
typedef struct DochtmlText {
    const char* data;
    size_t size;
} DochtmlText;

/* Takes a text that a callback answers with: call `put` once, during the callback. */
typedef struct DochtmlSink {
    void* context;
    void (*put)(void* context, const DochtmlText* text);
} DochtmlSink;

/* The settings store, in the place of the user's own. */
typedef struct DochtmlSettingsStore {
    void* context;
    /* Puts the value kept and answers 1; answers 0 when there is none. */
    int32_t (*read)(void* context, const DochtmlText* group, const DochtmlText* name,
                    const DochtmlSink* value);
    /* Answers 1 when the value is kept. */
    int32_t (*write)(void* context, const DochtmlText* group, const DochtmlText* name,
                     const DochtmlText* value);
} DochtmlSettingsStore;

/* The clickable regions of pictures. */
typedef struct DochtmlImageMaps {
    void* context;
    /* Puts the texts of a picture's regions one after the other, three a region: element name,
     * target bookmark, polygon coordinates. */
    void (*regions)(void* context, const DochtmlText* picture, const DochtmlSink* texts);
} DochtmlImageMaps;

/* An object and a class of the host's model, as the host wishes. */
typedef const void* DochtmlObject;
typedef const void* DochtmlClass;

/* The model behind the entry icons. What it hands out stays valid as long as its context.
 * An answer below 0 is a failure: the driver logs it and takes the answer as empty. */
typedef struct DochtmlModel {
    void* context;
    /* Null when the model does not know the handle. */
    HRESULT (*object)(void* context, uint64_t handle, DochtmlObject* object);
    /* Null when the schema has no class of that name. */
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
    /* The n-th object at the end of an association, in the model's order; null behind the last. */
    HRESULT(*associated)
    (void* context, DochtmlObject object, const DochtmlText* association, uint32_t index,
     DochtmlObject* other);
} DochtmlModel;

/* Hears every line of every trace, besides the log; the text ends with the line's "\n". */
typedef struct DochtmlTraceListener {
    void* context;
    /* The deepest level wanted: 1 errors, 10 calls, 11 reports. */
    int32_t level;
    void (*line)(void* context, int32_t level, const DochtmlText* text);
} DochtmlTraceListener;

/* The exception log. */
typedef struct DochtmlExceptionLog {
    void* context;
    /* Not 0 when messages of that category ("Throw", "Catch") are wanted. */
    int32_t (*records)(void* context, const DochtmlText* category);
    void (*write)(void* context, const DochtmlText* message);
} DochtmlExceptionLog;

/* Hears what became of a document. Each callback may be null. */
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

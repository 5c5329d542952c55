# Compiles dochtml.idl to the type library that is the component's resource 1, and to the header
# and identifiers that a Windows host would compile from it (the tests use those).
find_program(DOCHTML_WIDL NAMES ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-widl widl REQUIRED
             DOC "IDL compiler")
find_path(DOCHTML_IDL_DIR oaidl.idl REQUIRED NO_CMAKE_FIND_ROOT_PATH
          PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
          DOC "Folder of the system's IDL files")
find_path(DOCHTML_STDOLE_DIR stdole2.tlb REQUIRED NO_CMAKE_FIND_ROOT_PATH
          PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows
          DOC "Folder of the standard automation library")
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(widl_word --win64)
else()
    set(widl_word --win32)
endif()
set(idl ${CMAKE_CURRENT_SOURCE_DIR}/dochtml.idl)
set(type_library ${CMAKE_CURRENT_BINARY_DIR}/dochtml.tlb)
set(idl_header ${CMAKE_CURRENT_BINARY_DIR}/idl/dochtml_idl.h)
set(idl_guids ${CMAKE_CURRENT_BINARY_DIR}/idl/dochtml_idl.c)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/idl)

# The compiler writes the time into the type library. A clock that stands still keeps the bytes the
# same.
find_program(DOCHTML_FAKETIME faketime REQUIRED)
set(at_a_fixed_time ${CMAKE_COMMAND} -E env TZ=UTC ${DOCHTML_FAKETIME} -f "2000-01-01 00:00:00")
add_custom_command(
    OUTPUT ${type_library}
    COMMAND ${at_a_fixed_time} ${DOCHTML_WIDL} ${widl_word} -I ${DOCHTML_IDL_DIR} -L ${DOCHTML_STDOLE_DIR}
            -t -o ${type_library} ${idl}
    DEPENDS ${idl} VERBATIM)
add_custom_command(
    OUTPUT ${idl_header}
    COMMAND ${DOCHTML_WIDL} ${widl_word} -I ${DOCHTML_IDL_DIR} -h -o ${idl_header} ${idl}
    DEPENDS ${idl} VERBATIM)
add_custom_command(
    OUTPUT ${idl_guids}
    COMMAND ${DOCHTML_WIDL} ${widl_word} -I ${DOCHTML_IDL_DIR} -u -o ${idl_guids} ${idl}
    DEPENDS ${idl} VERBATIM)
add_custom_target(dochtml_idl DEPENDS ${type_library} ${idl_header} ${idl_guids})

# The resources: type library, scripts, strings, version, and the settings page's dialog.
enable_language(RC)
string(REPLACE "." "," DOCHTML_VERSION_NUMBERS "${PROJECT_VERSION}.0")
set(DOCHTML_TYPE_LIBRARY ${type_library})
set(page_dialog ${CMAKE_CURRENT_SOURCE_DIR}/windows/settings_page.rc)
set(DOCHTML_PAGE_DIALOG "#include \"${page_dialog}\"")
set(resource_script ${CMAKE_CURRENT_BINARY_DIR}/dochtmlcom.rc)
configure_file(windows/dochtmlcom.rc.in ${resource_script} @ONLY)
set(resource_inputs ${type_library} ${page_dialog} ${CMAKE_CURRENT_SOURCE_DIR}/registration/dochtml.rgs
    ${CMAKE_CURRENT_SOURCE_DIR}/registration/html_com_page.rgs)
set_source_files_properties(${resource_script} PROPERTIES OBJECT_DEPENDS "${resource_inputs}")

# Makes the interface target `target` from a library of headers only. `header` is the file or folder
# below the system's include directory. The target reaches it through a link in a directory of its
# own, so that cross builds do not see the build machine's other headers.
function(dochtml_header_library target header)
    find_path(${target}_DIR ${header} REQUIRED NO_CMAKE_FIND_ROOT_PATH)
    mark_as_advanced(${target}_DIR)
    set(include ${PROJECT_BINARY_DIR}/headers/${target})
    file(MAKE_DIRECTORY ${include})
    file(CREATE_LINK ${${target}_DIR}/${header} ${include}/${header} SYMBOLIC)
    add_library(${target} INTERFACE)
    target_include_directories(${target} SYSTEM INTERFACE ${include})
endfunction()

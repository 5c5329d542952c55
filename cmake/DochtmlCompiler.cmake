# How every target of the project is compiled: a warning is an error.
add_library(dochtml_warnings INTERFACE)
target_compile_options(dochtml_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlaps where an optimized std::string operator+ has none.
    target_compile_options(dochtml_warnings INTERFACE -Wno-restrict)
endif()

if(DOCHTML_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    add_compile_options(${sanitizers} -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
endif()

# Repeated builds are quick where ccache is installed.
find_program(DOCHTML_CCACHE ccache)
mark_as_advanced(DOCHTML_CCACHE)
if(DOCHTML_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${DOCHTML_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${DOCHTML_CCACHE})
endif()

# What the product asks of the system.
set(DOCHTML_SYSTEM_LIBRARIES)
if(WIN32)
    set(DOCHTML_SYSTEM_LIBRARIES ole32 oleaut32 shell32 advapi32)
endif()

# Compiler options of every target. A warning is an error.
add_library(dochtml_warnings INTERFACE)
target_compile_options(dochtml_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_UNITY_BUILD)
    # A unity build compiles many sources as one, so a local name meets names of other files.
    # `scripts/lint.sh alone` compiles every source by itself, with this warning.
    target_compile_options(dochtml_warnings INTERFACE -Wno-shadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 reports overlaps in std::string operator+ that do not exist.
    target_compile_options(dochtml_warnings INTERFACE -Wno-restrict)
endif()

# What is shipped does not know where it was built.
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")

if(DOCHTML_SANITIZE)
    # -g1 gives reports with line numbers and costs less than full debug information.
    set(sanitizers -fsanitize=${DOCHTML_SANITIZE} -fno-sanitize-recover=all)
    add_compile_options(${sanitizers} -fno-omit-frame-pointer -g1)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(${sanitizers})
endif()

if(DOCHTML_COVERAGE)
    # Clang counts how often each region of the sources is run; the target coverage_report shows it.
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()

# Use ccache if it is installed.
find_program(DOCHTML_CCACHE ccache)
mark_as_advanced(DOCHTML_CCACHE)
if(DOCHTML_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${DOCHTML_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${DOCHTML_CCACHE})
endif()

# The system libraries that the product links to.
set(DOCHTML_SYSTEM_LIBRARIES)
if(WIN32)
    set(DOCHTML_SYSTEM_LIBRARIES ole32 oleaut32 shell32 advapi32)
endif()

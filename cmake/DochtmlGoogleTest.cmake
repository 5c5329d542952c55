# GoogleTest. Native builds use the installed package. Cross builds and builds with sanitizers
# compile it from its packaged source, with the same options as the test programs.
if(CMAKE_CROSSCOMPILING OR DOCHTML_SANITIZE)
    find_path(DOCHTML_GTEST_SOURCE CMakeLists.txt PATHS /usr/src/googletest NO_DEFAULT_PATH
              NO_CMAKE_FIND_ROOT_PATH REQUIRED DOC "Source folder of GoogleTest")
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
    add_subdirectory(${DOCHTML_GTEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL
                     SYSTEM)
else()
    find_package(GTest REQUIRED)
endif()
include(GoogleTest)

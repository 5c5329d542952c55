# What `cmake --install` lays down, in components that become packages:
#   tools   the programs, the component, the support files, manual pages and completion
#   dev     headers, static libraries, CMake and pkg-config files, the interface description
#   doc     the documents, the examples, and the manual as a document set
#   python  the Python package
include(CMakePackageConfigHelpers)

set(DOCHTML_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/dochtml)
set(DOCHTML_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/dochtml)

# The modules are archives of their own for the tests; a user gets them as one.
get_property(modules GLOBAL PROPERTY DOCHTML_COMPILED_MODULES)
add_library(dochtml STATIC)
foreach(module ${modules})
    target_sources(dochtml PRIVATE $<TARGET_OBJECTS:dochtml_${module}>)
endforeach()
set_target_properties(dochtml PROPERTIES LINKER_LANGUAGE CXX)
target_include_directories(dochtml INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
                                             $<INSTALL_INTERFACE:${DOCHTML_HEADER_DIR}>)
target_compile_features(dochtml INTERFACE cxx_std_20)
target_link_libraries(dochtml INTERFACE ${DOCHTML_SYSTEM_LIBRARIES})
add_library(dochtml::dochtml ALIAS dochtml)
install(TARGETS dochtml EXPORT dochtmlTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)

# The public surface: docs/compatibility.md says what is promised about it. A test compares what is
# installed with tests/package/public_headers.txt.
foreach(header
        driver/doc_html.h driver/boundary/i_document.h
        foundation/orx_exception.h foundation/orx_string.h foundation/process_wide.h
        host/app_profile_interface.h host/document_observer.h host/image_map_interface.h
        host/metamodel.h host/quillmark_mode.h
        platform/files/drive_table.h platform/text_encoding.h platform/trace.h
        settings/reg_entry.h settings/register_base.h settings/settings_store.h)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES src/${header} DESTINATION ${DOCHTML_HEADER_DIR}/${folder} COMPONENT dev)
endforeach()
install(DIRECTORY src/component/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev
        FILES_MATCHING PATTERN "*.h")

install(EXPORT dochtmlTargets NAMESPACE dochtml:: DESTINATION ${DOCHTML_CMAKE_DIR} COMPONENT dev)
configure_package_config_file(cmake/dochtmlConfig.cmake.in dochtmlConfig.cmake
                              INSTALL_DESTINATION ${DOCHTML_CMAKE_DIR}
                              PATH_VARS CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(dochtmlConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/dochtmlConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/dochtmlConfigVersion.cmake
        DESTINATION ${DOCHTML_CMAKE_DIR} COMPONENT dev)
include(DochtmlPkgConfig)

install(DIRECTORY support/ DESTINATION ${CMAKE_INSTALL_DATADIR}/dochtml COMPONENT tools
        PATTERN CMakeLists.txt EXCLUDE PATTERN README.md EXCLUDE
        PATTERN draw EXCLUDE)
include(DochtmlDocuments)
include(DochtmlPackages)

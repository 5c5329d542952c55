# What `cmake --install` lays down: one archive of all modules with its headers, the tools, the
# component, the support files and the documents; a CMake package and a pkg-config file name them.
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

install(TARGETS dochtml EXPORT dochtmlTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(module foundation platform settings host page contents diagram navigator driver)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${module} DESTINATION ${DOCHTML_HEADER_DIR}
            FILES_MATCHING PATTERN "*.h" PATTERN posix EXCLUDE PATTERN windows EXCLUDE)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/component/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

install(EXPORT dochtmlTargets NAMESPACE dochtml:: DESTINATION ${DOCHTML_CMAKE_DIR})
configure_package_config_file(cmake/dochtmlConfig.cmake.in dochtmlConfig.cmake
                              INSTALL_DESTINATION ${DOCHTML_CMAKE_DIR}
                              PATH_VARS CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(dochtmlConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/dochtmlConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/dochtmlConfigVersion.cmake
        DESTINATION ${DOCHTML_CMAKE_DIR})

list(TRANSFORM DOCHTML_SYSTEM_LIBRARIES PREPEND -l OUTPUT_VARIABLE DOCHTML_PC_LIBRARIES)
list(JOIN DOCHTML_PC_LIBRARIES " " DOCHTML_PC_LIBRARIES)
foreach(package dochtml dochtml_client)
    configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/support/ DESTINATION ${CMAKE_INSTALL_DATADIR}/dochtml
        PATTERN CMakeLists.txt EXCLUDE PATTERN README.md EXCLUDE
        PATTERN draw EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR}
        PATTERN CMakeLists.txt EXCLUDE)

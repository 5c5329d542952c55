# Debian packages, one per component.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL tools dev doc)
if(TARGET dochtml_python)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_stage.cmake)
set(CPACK_DOCHTML_SOURCE_DIR ${PROJECT_SOURCE_DIR})
set(CPACK_DOCHTML_STRIP ${CMAKE_STRIP})
set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME dochtml)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION text)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "dochtml-doc, bash-completion")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "HTML output driver of a report generator - tools
The driver turns the document calls of a report generator into a set of linked
HTML pages with a table of contents.
.
This package has the tools, the driver's component and its support files.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME dochtml-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "dochtml ${same_version}, libstdc++-12-dev | libstdc++-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "dochtml-doc, pkg-config, cmake")
set(CPACK_DEBIAN_DEV_DESCRIPTION "HTML output driver of a report generator - development files
The driver turns the document calls of a report generator into a set of linked
HTML pages with a table of contents.
.
This package has the headers, the static libraries, the files for CMake and
pkg-config, and the description of the component's interface.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME dochtml-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_DESCRIPTION "HTML output driver of a report generator - documentation
The driver turns the document calls of a report generator into a set of linked
HTML pages with a table of contents.
.
This package has the documents, the examples, and the manual of the interface
as a set of HTML pages that the driver has made.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-dochtml)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= 3.11), dochtml ${same_version}")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/python/postinst
                                              ${PROJECT_SOURCE_DIR}/packaging/debian/python/prerm)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "HTML output driver of a report generator - Python package
The driver turns the document calls of a report generator into a set of linked
HTML pages with a table of contents.
.
This package is the interface of the driver's component for Python 3.")

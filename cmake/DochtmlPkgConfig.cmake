# The pkg-config files. Their directories are relative to the file itself, so that they are right
# after the prefix is moved. They are made at installation, because only then is the prefix known.
list(TRANSFORM DOCHTML_SYSTEM_LIBRARIES PREPEND -l OUTPUT_VARIABLE DOCHTML_PC_LIBRARIES)
list(JOIN DOCHTML_PC_LIBRARIES " " DOCHTML_PC_LIBRARIES)
# The client library is for C hosts too, and their linker does not add the library of C++.
set(DOCHTML_PC_CXX_LIBRARY ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(FILTER DOCHTML_PC_CXX_LIBRARY INCLUDE REGEX "^(stdc\\+\\+|c\\+\\+)$")
list(REMOVE_DUPLICATES DOCHTML_PC_CXX_LIBRARY)
list(TRANSFORM DOCHTML_PC_CXX_LIBRARY PREPEND -l)

configure_file(cmake/install_pkg_config.cmake.in install_pkg_config.cmake @ONLY)
install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/install_pkg_config.cmake COMPONENT dev)

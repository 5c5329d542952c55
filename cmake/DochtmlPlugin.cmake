# Where the component is installed. Programs load it and never link to it, so it is not among the
# libraries of the linker. On Windows it is with the programs.
if(WIN32)
    set(DOCHTML_PLUGIN_DIR ${CMAKE_INSTALL_BINDIR})
else()
    set(DOCHTML_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/dochtml)
endif()

# The same as the programs look for it: from their own directory, so that it is found when the whole
# prefix is moved. A library directory outside the prefix does not move.
cmake_path(ABSOLUTE_PATH DOCHTML_PLUGIN_DIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE
           OUTPUT_VARIABLE DOCHTML_PLUGIN_FROM_PROGRAMS)
cmake_path(IS_PREFIX CMAKE_INSTALL_PREFIX ${DOCHTML_PLUGIN_FROM_PROGRAMS} NORMALIZE in_prefix)
if(in_prefix)
    file(RELATIVE_PATH DOCHTML_PLUGIN_FROM_PROGRAMS ${CMAKE_INSTALL_FULL_BINDIR}
         ${DOCHTML_PLUGIN_FROM_PROGRAMS})
endif()

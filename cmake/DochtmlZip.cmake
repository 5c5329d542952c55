# The zip for Windows: a 64-bit build with everything, and the component of a 32-bit build.
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME dochtml-${PROJECT_VERSION}-windows)
set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)

function(windows_text name destination)
    configure_file(packaging/windows/${name}.in packaging/${name} @ONLY NEWLINE_STYLE CRLF)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packaging/${name} DESTINATION ${destination}
            COMPONENT tools)
endfunction()
windows_text(register.cmd .)
windows_text(unregister.cmd .)
windows_text(README.txt .)
windows_text(registration.cmd ${CMAKE_INSTALL_BINDIR})

set(DOCHTML_32_BIT_BUILD "" CACHE PATH "Build directory of the 32-bit component for the zip")
if(DOCHTML_32_BIT_BUILD)
    install(PROGRAMS ${DOCHTML_32_BIT_BUILD}/bin/dochtmlcom.dll DESTINATION x86/bin COMPONENT tools)
    install(FILES ${DOCHTML_32_BIT_BUILD}/src/component/libdochtml_client.a DESTINATION x86/lib
            COMPONENT dev)
    set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/windows_stage.cmake)
    set(CPACK_DOCHTML_STRIP ${CMAKE_STRIP})
endif()

# The documents, the examples, manual pages and completion.

# The documents keep their places to each other, so that the links between them stay alive.
install(FILES README.md CONTRIBUTING.md CHANGELOG.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc
        PATTERN CMakeLists.txt EXCLUDE PATTERN __pycache__ EXCLUDE PATTERN .mypy_cache EXCLUDE)
foreach(part bench bindings/python)
    install(FILES ${part}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/${part} COMPONENT doc)
endforeach()

if(CMAKE_CROSSCOMPILING)
    return()
endif()

# The manual as a document set, made by the programs of this build.
option(DOCHTML_BUILD_MANUAL "Make the manual, a document set, to be installed with the documents" OFF)
if(DOCHTML_BUILD_MANUAL)
    set(manual_set ${PROJECT_BINARY_DIR}/manual-set)
    file(GLOB_RECURSE manual_data CONFIGURE_DEPENDS examples/manual/data/* support/*)
    add_custom_command(
        OUTPUT ${PROJECT_BINARY_DIR}/manual-set.stamp
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${manual_set}
        COMMAND ${CMAKE_COMMAND} -E env MANUAL_WORK_DIR=${PROJECT_BINARY_DIR}/manual-work
                XDG_DATA_HOME=${PROJECT_BINARY_DIR}/manual-work/data
                XDG_CONFIG_HOME=${PROJECT_BINARY_DIR}/manual-work/config
                ${PROJECT_SOURCE_DIR}/examples/manual/make.sh ${PROJECT_BINARY_DIR} ${manual_set}
        COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/manual-set.stamp
        DEPENDS manual_generator dochtml-replay dochtmlcom ${manual_data}
                examples/manual/make.sh examples/manual/manual.ini
        VERBATIM)
    add_custom_target(dochtml_manual ALL DEPENDS ${PROJECT_BINARY_DIR}/manual-set.stamp)
    install(DIRECTORY ${manual_set}/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/manual COMPONENT doc)
endif()

# Manual pages and completion follow from the option tables, by way of what --help shows.
find_package(Python3 COMPONENTS Interpreter)
if(NOT Python3_Interpreter_FOUND)
    message(STATUS "Without Python there are no manual pages and no completion")
    return()
endif()
set(command_pages ${PROJECT_BINARY_DIR}/command-pages)
set(commands dochtml-replay dochtml-settings dochtml-register)
set(command_sources packaging/commands/command_pages.py packaging/commands/tool_help.py
    packaging/commands/completion.py)
list(TRANSFORM commands PREPEND packaging/commands/ OUTPUT_VARIABLE command_texts)
list(TRANSFORM command_texts APPEND .1.in)
add_custom_command(
    OUTPUT ${command_pages}/stamp
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${command_pages}
    COMMAND Python3::Interpreter -B ${PROJECT_SOURCE_DIR}/packaging/commands/command_pages.py
            --version ${PROJECT_VERSION} --programs $<TARGET_FILE_DIR:dochtml-replay> ${command_pages}
    COMMAND ${CMAKE_COMMAND} -E touch ${command_pages}/stamp
    DEPENDS ${commands} ${command_sources} ${command_texts} VERBATIM)
add_custom_target(dochtml_command_pages ALL DEPENDS ${command_pages}/stamp)
install(DIRECTORY ${command_pages}/man1 DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT tools)
install(DIRECTORY ${command_pages}/bash/
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tools)
install(DIRECTORY ${command_pages}/zsh/
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT tools)

# Gives each staged package what Debian wants in it: copyright, changelogs and overrides, and pages
# that are compressed.
file(READ ${CPACK_DOCHTML_SOURCE_DIR}/packaging/debian/changelog.in changelog)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    set(ENV{TZ} UTC)
endif()
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
string(CONFIGURE "${changelog}" changelog @ONLY)

set(readable OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

function(compress)
    execute_process(COMMAND gzip -9nf ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component ${CPACK_COMPONENTS_ALL})
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    set(doc ${root}/share/doc/${package})
    file(MAKE_DIRECTORY ${doc})
    file(COPY_FILE ${CPACK_DOCHTML_SOURCE_DIR}/packaging/debian/copyright ${doc}/copyright)
    file(COPY_FILE ${CPACK_DOCHTML_SOURCE_DIR}/CHANGELOG.md ${doc}/changelog)
    file(WRITE ${doc}/changelog.Debian "${changelog}")
    # Whatever the permissions of the sources are.
    file(CHMOD ${doc}/copyright ${doc}/changelog ${doc}/changelog.Debian PERMISSIONS ${readable})
    compress(${doc}/changelog ${doc}/changelog.Debian)
    file(GLOB pages ${root}/share/man/man1/*.1)
    if(pages)
        compress(${pages})
    endif()
    file(MAKE_DIRECTORY ${root}/share/lintian/overrides)
    file(COPY_FILE ${CPACK_DOCHTML_SOURCE_DIR}/packaging/debian/lintian-overrides
                   ${root}/share/lintian/overrides/${package})
    file(CHMOD ${root}/share/lintian/overrides/${package} PERMISSIONS ${readable})
    file(GLOB archives ${root}/lib/*/*.a)
    if(archives)
        execute_process(COMMAND ${CPACK_DOCHTML_STRIP} --strip-debug --enable-deterministic-archives
                                --remove-section=.comment --remove-section=.note ${archives}
                        COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()

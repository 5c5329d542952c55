# The packages that scripts/package.sh makes: Debian packages of a native build, a zip of a Windows one.
set(CPACK_PACKAGE_NAME dochtml)
set(CPACK_PACKAGE_VENDOR Quillmark)
set(CPACK_PACKAGE_CONTACT "Quillmark maintainers <maintainers@quillmark.invalid>")
# Each package describes itself.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_THREADS 1)
if(WIN32)
    include(DochtmlZip)
else()
    include(DochtmlDebian)
endif()
include(CPack)

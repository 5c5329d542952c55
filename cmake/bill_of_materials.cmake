# Writes the bill of materials of the packages, in SPDX 2.3: each package with its files, what is
# compiled into it, and what it needs at run time.
#   cmake -D PACKAGES=DIRECTORY -D BUILD=BUILD-DIRECTORY -P bill_of_materials.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/spdx.cmake)
load_cache(${BUILD} READ_WITH_PREFIX build_ CMAKE_PROJECT_NAME CMAKE_PROJECT_VERSION)
set(version ${build_CMAKE_PROJECT_VERSION})

# Unpacks a package into an empty directory.
function(unpack file directory)
    file(REMOVE_RECURSE ${directory})
    file(MAKE_DIRECTORY ${directory})
    if(file MATCHES "\\.deb$")
        execute_process(COMMAND dpkg-deb --extract ${file} ${directory} COMMAND_ERROR_IS_FATAL ANY)
    else()
        file(ARCHIVE_EXTRACT INPUT ${file} DESTINATION ${directory})
    endif()
endfunction()

# The version of a Debian package that is installed on this machine.
function(installed_version result package)
    execute_process(COMMAND dpkg-query -W -f "\${Version}" ${package}
                    OUTPUT_VARIABLE found COMMAND_ERROR_IS_FATAL ANY)
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# A package of others, which one of ours contains or needs.
function(add_other owner relation package)
    installed_version(other_version ${package})
    spdx_add_package(other ${package} ${other_version} "")
    spdx_relate(${owner} ${relation} ${other})
endfunction()

# What a Debian package needs at run time, by its own control fields.
function(add_dependencies_of owner file)
    execute_process(COMMAND dpkg-deb --field ${file} Depends OUTPUT_VARIABLE depends
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "," ";" depends "${depends}")
    foreach(dependency ${depends})
        string(REGEX MATCH "[a-z0-9][-+.a-z0-9]*" package "${dependency}")
        if(NOT package MATCHES "dochtml")
            add_other(${owner} DEPENDS_ON ${package})
        endif()
    endforeach()
endfunction()

file(GLOB files ${PACKAGES}/*.deb ${PACKAGES}/*.zip)
foreach(file ${files})
    cmake_path(GET file FILENAME name)
    spdx_add_package(own ${name} ${version} ${file})
    spdx_relate(SPDXRef-DOCUMENT DESCRIBES ${own})
    unpack(${file} ${BUILD}/materials)
    spdx_add_files(${own} ${BUILD}/materials)
    if(file MATCHES "\\.deb$")
        add_dependencies_of(${own} ${file})
    endif()
    # The tools are compiled with these libraries of headers, and on Windows with the runtime.
    if(name MATCHES "^dochtml_|windows")
        add_other(${own} STATIC_LINK rapidjson-dev)
        add_other(${own} STATIC_LINK libcli11-dev)
    endif()
    if(name MATCHES "windows")
        add_other(${own} STATIC_LINK g++-mingw-w64-x86-64-posix)
        add_other(${own} STATIC_LINK g++-mingw-w64-i686-posix)
    endif()
endforeach()
spdx_write(${PACKAGES}/dochtml-${version}.spdx.json "dochtml ${version}")

# Builds and runs the consumer project in an empty WORK against the package below PREFIX.
file(REMOVE_RECURSE ${WORK})
file(GLOB pc_file ${PREFIX}/lib*/pkgconfig/dochtml.pc ${PREFIX}/lib*/*/pkgconfig/dochtml.pc)
cmake_path(GET pc_file PARENT_PATH pc_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK} -G ${GENERATOR} -D WAY=${WAY}
            -D HOST=${HOST} -D CMAKE_PREFIX_PATH=${PREFIX} -D CMAKE_CXX_COMPILER=${COMPILER}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK}/consumer WORKING_DIRECTORY ${WORK} COMMAND_ERROR_IS_FATAL ANY)

# The same for a host of the component, which finds it by the name that is registered.
set(ENV{XDG_DATA_HOME} ${WORK}/data)
execute_process(COMMAND ${PREFIX}/bin/dochtml-register COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK}/host ${WORK}/out/hello.htm ${PREFIX}/share/dochtml/default.css
                COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${WORK}/out/hello_dtl.htm hello REGEX "Hello")
if(NOT hello)
    message(FATAL_ERROR "The host wrote no page.")
endif()

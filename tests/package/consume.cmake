# Builds and runs the consumer project in an empty WORK against the package below PREFIX.
file(REMOVE_RECURSE ${WORK})
file(GLOB pc_file ${PREFIX}/lib*/pkgconfig/dochtml.pc ${PREFIX}/lib*/*/pkgconfig/dochtml.pc)
cmake_path(GET pc_file PARENT_PATH pc_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK} -G ${GENERATOR} -D WAY=${WAY}
            -D CMAKE_PREFIX_PATH=${PREFIX} -D CMAKE_CXX_COMPILER=${COMPILER}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK}/consumer WORKING_DIRECTORY ${WORK} COMMAND_ERROR_IS_FATAL ANY)

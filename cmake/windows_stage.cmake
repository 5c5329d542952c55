# CPack strips only what this build has made.
file(GLOB_RECURSE libraries ${CPACK_TEMPORARY_DIRECTORY}/x86/*.dll
     ${CPACK_TEMPORARY_DIRECTORY}/*/x86/*.dll)
execute_process(COMMAND ${CPACK_DOCHTML_STRIP} ${libraries} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE archives ${CPACK_TEMPORARY_DIRECTORY}/*.a)
execute_process(COMMAND ${CPACK_DOCHTML_STRIP} --strip-debug --enable-deterministic-archives ${archives}
                COMMAND_ERROR_IS_FATAL ANY)

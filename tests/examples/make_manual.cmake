# Makes the manual into a fresh directory OUT, with an error trace beside it. OPTIONS go to
# dochtml-replay.
file(REMOVE_RECURSE ${OUT})
file(REMOVE ${OUT}.errors ${OUT}.exceptions)
execute_process(COMMAND ${MAKE} ${BUILD} ${OUT} --trace 1 --log ${OUT}.errors
                        --exceptions ${OUT}.exceptions ${OPTIONS}
                COMMAND_ERROR_IS_FATAL ANY)

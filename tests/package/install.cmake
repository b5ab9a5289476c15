# Installs BUILD anew into PREFIX: what an earlier installation left there must not hide what is missing.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --component library --prefix ${PREFIX} COMMAND_ERROR_IS_FATAL ANY)

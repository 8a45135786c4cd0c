# The build's copy of Recursos: pictures follow the sources, an edited bank is left alone.
set(from ${CMAKE_CURRENT_BINARY_DIR}/copy_resources_test/from)
set(to ${CMAKE_CURRENT_BINARY_DIR}/copy_resources_test/to)
file(REMOVE_RECURSE ${CMAKE_CURRENT_BINARY_DIR}/copy_resources_test)

function(copy)
  execute_process(COMMAND ${CMAKE_COMMAND} -DFROM=${from} -DTO=${to} -P ${SCRIPT}
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect file content)
  file(READ "${to}/${file}" found)
  if(NOT found STREQUAL content)
    message(SEND_ERROR "${file} holds \"${found}\", not \"${content}\"")
  endif()
endfunction()

file(WRITE "${from}/01 _ Swift rojo.jpg" "first drawing")
file(WRITE ${from}/Problemas3.dat "starter bank")
copy()
expect("01 _ Swift rojo.jpg" "first drawing")
expect(Problemas3.dat "starter bank")

file(WRITE "${from}/01 _ Swift rojo.jpg" "better drawing")
file(WRITE ${from}/Problemas3.dat "newer starter bank")
file(WRITE ${to}/Problemas3.dat "edited bank")
copy()
expect("01 _ Swift rojo.jpg" "better drawing")
expect(Problemas3.dat "edited bank")

# Installs the build tree into a scratch prefix, then builds and runs a small
# consumer with find_package(kels) and a second one with pkg-config.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "install failed")
endif()

execute_process(COMMAND ${CMAKE_COMMAND} -S ${CONSUMER_SRC} -B ${WORK_DIR}/consumer -G ${GENERATOR}
                  -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release
                RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "consumer configure failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/consumer RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "consumer build failed")
endif()
foreach(exe consumer_cmake consumer_pkgconfig)
  execute_process(COMMAND ${WORK_DIR}/consumer/${exe} RESULT_VARIABLE rc OUTPUT_VARIABLE out)
  message(STATUS "${exe}: ${out}")
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${exe} failed")
  endif()
endforeach()

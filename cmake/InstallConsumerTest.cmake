# Installs the current build into a scratch prefix, then configures, builds and runs a small consumer
# that finds the package with find_package(QBComponentAPI CONFIG). Run with -DBUILD_DIR -DSOURCE_DIR
# -DWORK_DIR -DGENERATOR -DCXX and optionally -DLAUNCHER (ccache, so reruns cost next to nothing).
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(rc)
  message(FATAL_ERROR "install failed: ${rc}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/install_consumer -B ${WORK_DIR}/build
                        -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
                        -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
                RESULT_VARIABLE rc)
if(rc)
  message(FATAL_ERROR "consumer configure failed: ${rc}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build RESULT_VARIABLE rc)
if(rc)
  message(FATAL_ERROR "consumer build failed: ${rc}")
endif()
execute_process(COMMAND ${WORK_DIR}/build/consumer OUTPUT_VARIABLE out RESULT_VARIABLE rc)
if(rc OR NOT out STREQUAL "{\"a\":1}\n")
  message(FATAL_ERROR "consumer run failed: ${rc} '${out}'")
endif()

# Builds and runs the app in tests/consumers the way MODE says, as a consumer of this build would:
#   install       installs BUILD_DIR into WORK_DIR/prefix and checks what landed there
#   package       find_package(QBComponentAPI CONFIG) against that prefix
#   pkgconfig     a plain compiler run with `pkg-config --cflags --libs QBComponentAPI` against it
#   subdirectory  add_subdirectory of SOURCE_DIR
#   fetchcontent  FetchContent with SOURCE_DIR
# Also takes -DSOURCE_DIR -DWORK_DIR -DGENERATOR -DCXX -DWITH_HOST (ON/OFF) -DLIBDIR, for install
# -DPRIVATE_HEADERS -DPROGRAMS, for pkgconfig -DPKG_CONFIG, and optionally -DLAUNCHER (ccache, so that
# reruns cost little).
set(prefix ${WORK_DIR}/prefix)
set(app ${SOURCE_DIR}/tests/consumers)

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

# Runs the app and each of its extra programs; the app reports what it checked.
function(run_app dir)
  run("the app" ${dir}/consumer)
  if(NOT out STREQUAL "consumer ok\n")
    message(FATAL_ERROR "the app printed '${out}'")
  endif()
  foreach(extra ${ARGN})
    run("${extra}" ${dir}/${extra})
  endforeach()
endfunction()

function(build_app mode)
  set(dir ${WORK_DIR}/${mode})
  file(REMOVE_RECURSE ${dir})
  run("configuring the ${mode} app" ${CMAKE_COMMAND} -S ${app} -B ${dir} -G ${GENERATOR}
      -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
      -DQB_CONSUME=${mode} -DQB_SOURCE_DIR=${SOURCE_DIR} -DQB_WITH_HOST=${WITH_HOST} ${ARGN})
  run("building the ${mode} app" ${CMAKE_COMMAND} --build ${dir})
endfunction()

if(MODE STREQUAL "install")
  file(REMOVE_RECURSE ${prefix})
  run("installing" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
  set(expected ${LIBDIR}/pkgconfig/QBComponentAPI.pc ${LIBDIR}/cmake/QBComponentAPI/QBComponentAPIConfig.cmake
      include/QBComponentAPI/QBComponentAPI.hpp)
  if(WITH_HOST)
    list(APPEND expected ${LIBDIR}/cmake/QBComponentAPI/QBComponentAPIHostTargets.cmake
         include/QBComponentAPI/host/Client.hpp include/QBComponentAPI/host/mocks/MockTransport.hpp)
  endif()
  foreach(program ${PROGRAMS})
    list(APPEND expected bin/${program})
  endforeach()
  foreach(file ${expected})
    if(NOT EXISTS ${prefix}/${file})
      message(FATAL_ERROR "${file} was not installed")
    endif()
  endforeach()
  foreach(header ${PRIVATE_HEADERS})
    if(EXISTS ${prefix}/include/QBComponentAPI/${header})
      message(FATAL_ERROR "the private header ${header} was installed")
    endif()
  endforeach()
  file(GLOB_RECURSE sources ${prefix}/include/*.cpp)
  if(sources)
    message(FATAL_ERROR "sources were installed: ${sources}")
  endif()
  # Every header an installed header includes by the library's root is installed too.
  file(GLOB_RECURSE headers ${prefix}/include/QBComponentAPI/*.hpp)
  foreach(header ${headers})
    file(STRINGS ${header} includes REGEX "^[ \t]*#[ \t]*include[ \t]*<QBComponentAPI/")
    foreach(line ${includes})
      string(REGEX REPLACE ".*<(QBComponentAPI/[^>]+)>.*" "\\1" included "${line}")
      if(NOT EXISTS ${prefix}/include/${included})
        message(FATAL_ERROR "${header} includes ${included}, which is not installed")
      endif()
    endforeach()
  endforeach()
elseif(MODE STREQUAL "package")
  build_app(package -DCMAKE_PREFIX_PATH=${prefix})
  set(extras)
  if(WITH_HOST)
    set(extras consumer_mock)
  endif()
  run_app(${WORK_DIR}/package ${extras})
elseif(MODE STREQUAL "pkgconfig")
  set(dir ${WORK_DIR}/pkgconfig)
  file(REMOVE_RECURSE ${dir})
  file(MAKE_DIRECTORY ${dir})
  set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
  # Compiled and linked apart, as a build system would, so that the compiler cache keeps the object.
  run("pkg-config --cflags" ${PKG_CONFIG} --cflags QBComponentAPI)
  separate_arguments(cflags UNIX_COMMAND "${out}")
  run("pkg-config --libs" ${PKG_CONFIG} --libs QBComponentAPI)
  separate_arguments(libs UNIX_COMMAND "${out}")
  run("compiling with pkg-config's flags" ${LAUNCHER} ${CXX} -std=c++20 ${cflags} -c ${app}/main.cpp -o ${dir}/main.o)
  run("linking with pkg-config's flags" ${CXX} ${dir}/main.o ${libs} -o ${dir}/consumer)
  run_app(${dir})
elseif(MODE STREQUAL "subdirectory" OR MODE STREQUAL "fetchcontent")
  build_app(${MODE})
  run_app(${WORK_DIR}/${MODE})
else()
  message(FATAL_ERROR "unknown MODE '${MODE}'")
endif()

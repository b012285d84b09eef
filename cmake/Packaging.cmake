# A Debian package of everything `cmake --install` puts in place: the static library and the host, the
# public headers, the CMake package and pkg-config files, and the qbapi and qbapi-mock programs.
# `make package`, or `cpack -G DEB` in a configured build tree, writes
# libqbcomponentapi-dev_<version>_<arch>.deb there.
set(QB_PACKAGE_MAINTAINER "QBComponentAPI maintainers <maintainers@qbcomponentapi.invalid>"
    CACHE STRING "Maintainer field of the Debian package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libqbcomponentapi-dev)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "C++20 client library for a JSON-over-HTTP backend (development files)")
set(CPACK_PACKAGE_DESCRIPTION
    "Messages and records for every endpoint of the backend, in a dictionary face over string-keyed JSON \
maps and a typed face of value records, built as a static library. Also ships the libcurl host \
(QBComponentAPI::host), the CMake package and pkg-config files, the qbapi command-line tool and the \
qbapi-mock local mock service.")
# The package installs under /usr whatever prefix the build tree was configured with; every installed
# file (CMake package, pkg-config file) finds its prefix relative to itself, so the tree stays valid.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# Stripped: the programs lose their symbols, the static libraries their debug information (linking
# against them needs neither, and it is most of their size).
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_PACKAGE_NAME ${CPACK_PACKAGE_NAME})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${QB_PACKAGE_MAINTAINER}")
# What an app building against the package needs: the library's public dependency (Boost.JSON), the
# parser every static link names, and libcurl's headers for the host component. The programs' own
# run-time libraries (libcurl, cpp-httplib, libstdc++, ...) are added from their ELF headers.
set(QB_DEBIAN_DEPENDS libboost-json1.81-dev libsimdjson-dev)
if(TARGET qb_host)
  list(APPEND QB_DEBIAN_DEPENDS libcurl4-openssl-dev)
endif()
list(JOIN QB_DEBIAN_DEPENDS ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The host's GoogleMock transport needs GoogleMock; builds without CMake need pkg-config.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libgmock-dev, pkg-config")

include(CPack)

# `cmake --install --strip` (which the package build uses) strips programs and shared libraries only;
# the static libraries lose their debug information here, as the programs are stripped: in place.
set(QB_STATIC_LIBRARIES)
foreach(target QBComponentAPI qb_host)
  if(TARGET ${target})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
      list(APPEND QB_STATIC_LIBRARIES "${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:${target}>")
    endif()
  endif()
endforeach()
if(QB_STATIC_LIBRARIES AND CMAKE_STRIP)
  install(CODE "set(qb_strip \"${CMAKE_STRIP}\")\nset(qb_static_libraries \"${QB_STATIC_LIBRARIES}\")")
  install(CODE [[
    if(CMAKE_INSTALL_DO_STRIP)
      foreach(library IN LISTS qb_static_libraries)
        execute_process(COMMAND ${qb_strip} --strip-debug --enable-deterministic-archives
                                "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${library}" COMMAND_ERROR_IS_FATAL ANY)
      endforeach()
    endif()]])
endif()

# The Debian packages libifit-codec1, libkesto-verify1, libifit-codec-dev and, if their contents are built,
# libifit-codec-zervamesh, ifit-codec-tap, ifit-codec-tools and python3-kesto. `./run package` builds them. Changelog and
# copyright are in this folder.

find_program(KESTO_GZIP gzip)
if(NOT KESTO_GZIP)
  return()
endif()
set(documents_in ${CMAKE_INSTALL_DATADIR}/doc)

# Compresses `file` reproducibly, as Debian requires, and installs it with the suffix .gz.
function(kesto_install_compressed file folder component)
  get_filename_component(name ${file} NAME)
  set(packed ${CMAKE_CURRENT_BINARY_DIR}/packaging/${component}/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/packaging/${component})
  execute_process(COMMAND ${KESTO_GZIP} -9nc ${file} OUTPUT_FILE ${packed} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${packed} DESTINATION ${folder} COMPONENT ${component})
endfunction()

if(TARGET kesto_python)
  get_target_property(Python_VERSION_MAJOR kesto_python PYTHON_MAJOR)
  get_target_property(Python_VERSION_MINOR kesto_python PYTHON_MINOR)
  math(EXPR Python_NEXT_MINOR "${Python_VERSION_MINOR} + 1")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL runtime verify dev)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libifit-codec1)
set(CPACK_DEBIAN_VERIFY_PACKAGE_NAME libkesto-verify1)
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libifit-codec-dev)
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ifit-codec-tools)
set(CPACK_DEBIAN_ZERVAMESH_PACKAGE_NAME libifit-codec-zervamesh)
set(CPACK_DEBIAN_TAP_PACKAGE_NAME ifit-codec-tap)
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-kesto)
if(TARGET zervamesh)
  list(APPEND CPACK_COMPONENTS_ALL zervamesh)
endif()
if(TARGET kesto_tap)
  list(APPEND CPACK_COMPONENTS_ALL tap)
endif()
if(TARGET kesto)
  list(APPEND CPACK_COMPONENTS_ALL tools)
  if(EXISTS ${PROJECT_SOURCE_DIR}/tools/kesto/kesto.1)
    kesto_install_compressed(${PROJECT_SOURCE_DIR}/tools/kesto/kesto.1 ${CMAKE_INSTALL_MANDIR}/man1 tools)
  endif()
endif()
if(TARGET kesto_python)
  list(APPEND CPACK_COMPONENTS_ALL python)
endif()
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(folder ${documents_in}/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  kesto_install_compressed(${PROJECT_SOURCE_DIR}/packaging/changelog.Debian ${folder} ${component})
  install(FILES packaging/copyright DESTINATION ${folder} COMPONENT ${component})
endforeach()

set(CPACK_PACKAGE_NAME ifit-codec)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "ifit-codec maintainers <maintainers@example.org>")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Debian runs ldconfig through this trigger. CPack also calls it from maintainer scripts, which is harmless.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packaging/runtime/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/packaging/runtime/triggers)
set(CPACK_DEBIAN_VERIFY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/packaging/runtime/triggers)

set(about_the_codecs
"The processes that measure live traffic in a network device exchange their
tables, flow records, reports and statistics as byte strings. These codecs
turn C records into such byte strings and back, over 200 message types in all.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_VERIFY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_ZERVAMESH_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TAP_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"message codecs for IFIT control software
${about_the_codecs}
.
This package has the shared library. The messaging library MESH, which it
calls, comes from the process.")
set(CPACK_COMPONENT_VERIFY_DESCRIPTION
"message codecs for IFIT control software - verdict without decoding
${about_the_codecs}
.
This package has a shared library that tells whether such a byte string can be
decoded and, if not, which check it fails, on which field and where.")
set(CPACK_COMPONENT_DEV_DESCRIPTION
"message codecs for IFIT control software - development files
${about_the_codecs}
.
This package has the headers, the CMake package IfitCodec and ifit-codec.pc.")
set(CPACK_COMPONENT_ZERVAMESH_DESCRIPTION
"message codecs for IFIT control software - stand-in for MESH
${about_the_codecs}
.
This package has a small messaging library to build and try programs with,
on machines that do not have MESH: IfitCodec::zervamesh of the CMake package.")
set(CPACK_COMPONENT_TAP_DESCRIPTION
"captures the messages of IFIT control software
${about_the_codecs}
.
This package has a library to preload that writes the messages of an unchanged
program to a capture file, whatever messaging library MESH it has.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
"tools that explain the messages of IFIT control software
${about_the_codecs}
.
This package has the program kesto, which shows and makes such byte strings,
and a dissector for Wireshark.")
set(CPACK_COMPONENT_PYTHON_DESCRIPTION
"message codecs for IFIT control software - Python module
${about_the_codecs}
.
This package has the Python module kesto, which decodes, encodes and explains
such byte strings and reads captures of them.")
# The extension module is made for one version of Python.
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
  "python3 (>= ${Python_VERSION_MAJOR}.${Python_VERSION_MINOR}), python3 (<< ${Python_VERSION_MAJOR}.${Python_NEXT_MINOR}~)")
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
  "libifit-codec1 (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), libkesto-verify1 (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_ZERVAMESH_PACKAGE_DEPENDS
  "libifit-codec-dev (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
include(CPack)

# Install rules for `cmake --install` and CPack. No installed file contains the prefix, so the tree can be moved.
#
#   runtime   the shared library
#   verify    libkesto_verify.so, which gives the decoder's verdict
#   dev       headers, the CMake package IfitCodec, ifit-codec.pc
#   tools     the program kesto and the dissector, if they are built
#   tap       the preload library that captures a program's messages, if it is built
#   python    the Python module kesto, if it is built
#   zervamesh our stand-in for MESH, if it is built: IfitCodec::zervamesh, for projects that request the component

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(headers_in ${CMAKE_INSTALL_INCLUDEDIR}/ifit-codec)
set(package_in ${CMAKE_INSTALL_LIBDIR}/cmake/IfitCodec)

target_include_directories(ifit_codec INTERFACE $<INSTALL_INTERFACE:${headers_in}>)
target_include_directories(ifit_codec_platform INTERFACE $<INSTALL_INTERFACE:${headers_in}>)

install(TARGETS ifit_codec ifit_codec_platform EXPORT IfitCodec
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)
target_include_directories(kesto_verify INTERFACE $<INSTALL_INTERFACE:${headers_in}>)
install(TARGETS kesto_verify EXPORT IfitCodec
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT verify NAMELINK_COMPONENT dev)
foreach(module IN LISTS KESTO_MODULES)
  install(FILES include/${module}.h include/${module}.hpp DESTINATION ${headers_in} COMPONENT dev)
endforeach()
install(FILES include/ifit_codec.hpp include/kesto_verify.h DESTINATION ${headers_in} COMPONENT dev)
install(FILES platform/mesh.h platform/osal.h DESTINATION ${headers_in}/platform COMPONENT dev)

install(EXPORT IfitCodec NAMESPACE IfitCodec:: FILE IfitCodecTargets.cmake DESTINATION ${package_in} COMPONENT dev)
configure_package_config_file(cmake/IfitCodecConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/IfitCodecConfig.cmake
  INSTALL_DESTINATION ${package_in} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/IfitCodecConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/IfitCodecConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/IfitCodecConfigVersion.cmake
  DESTINATION ${package_in} COMPONENT dev)

# Paths relative to the folder of the .pc file: up to the prefix, then down.
file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
file(RELATIVE_PATH pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR}/ifit-codec)
foreach(name ifit-codec kesto-verify)
  configure_file(cmake/${name}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endforeach()

# In a folder of its own, so that programs on a machine with the closed library do not load this one by mistake.
if(TARGET zervamesh)
  target_include_directories(zervamesh INTERFACE $<INSTALL_INTERFACE:${headers_in}>)
  install(TARGETS zervamesh EXPORT IfitCodecZervamesh
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/ifit-codec COMPONENT zervamesh)
  install(FILES platform/standin/mesh_standin.h DESTINATION ${headers_in}/platform/standin COMPONENT zervamesh)
  install(EXPORT IfitCodecZervamesh NAMESPACE IfitCodec:: FILE IfitCodecZervameshTargets.cmake
    DESTINATION ${package_in} COMPONENT zervamesh)
endif()

# In the same folder: it is loaded by its path.
if(TARGET kesto_tap)
  install(TARGETS kesto_tap LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/ifit-codec COMPONENT tap)
endif()

if(TARGET kesto)
  install(TARGETS kesto RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  install(FILES tools/kesto/kesto.bash RENAME kesto
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tools OPTIONAL)
  install(FILES tools/kesto/_kesto DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT tools OPTIONAL)
  install(FILES tools/kesto/example.names
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ifit-codec-tools/examples COMPONENT tools OPTIONAL)
  # The system-wide folder for Lua plugins of Wireshark.
  install(FILES dissector/kesto.lua
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/wireshark/plugins COMPONENT tools OPTIONAL)
endif()

if(PROJECT_IS_TOP_LEVEL)
  include(packaging/packages.cmake)
endif()

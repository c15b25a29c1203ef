# What `cmake --install` puts where: the program in bin/, all libraries, plug-ins and their menus in
# lib/zppipemanager/, headers in include/zppipemanager/, the shipped data in share/zppipemanager/data/, and beside the
# libraries the CMake package by which siblings are built (docs/siblings.md). The program looks for its libraries,
# plug-ins and data at these places relative to itself, so that an installation may be moved.
include(CMakePackageConfigHelpers)

set(ZP_PROGRAM_FILE bin/zpcad)
set(ZP_LIBRARY_FOLDER lib/zppipemanager)
set(ZP_HEADER_FOLDER include/zppipemanager)
set(ZP_DATA_FOLDER share/zppipemanager/data)
set(ZP_PACKAGE_FOLDER lib/cmake/ZPPipeManager)

# A library that siblings link, as ZPPipeManager::NAME.
function(zp_install_exported target name)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  target_compile_features(${target} INTERFACE cxx_std_20)
  target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${ZP_HEADER_FOLDER}>)
  install(TARGETS ${target} EXPORT ZPPipeManagerTargets LIBRARY DESTINATION ${ZP_LIBRARY_FOLDER})
endfunction()

# A module of the host. Those on top (PROGRAM_ONLY) serve the program alone: siblings get neither target nor headers.
function(zp_install_host_module name is_program_only)
  if(is_program_only)
    install(TARGETS zp_${name} LIBRARY DESTINATION ${ZP_LIBRARY_FOLDER})
    return()
  endif()
  zp_install_exported(zp_${name} ${name})
  install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/ DESTINATION ${ZP_HEADER_FOLDER}/host/${name}
          FILES_MATCHING PATTERN "*.h")
endfunction()

# Called once, when all targets stand.
function(zp_install_package)
  install(CODE "set(ZP_SOURCE_FOLDER \"${CMAKE_SOURCE_DIR}\")\nset(ZP_HEADER_FOLDER \"${ZP_HEADER_FOLDER}\")
set(ZP_PACKAGE_FOLDER \"${ZP_PACKAGE_FOLDER}\")")
  install(SCRIPT ${CMAKE_SOURCE_DIR}/cmake/InstallPublicHeaders.cmake)
  install(DIRECTORY ${CMAKE_BINARY_DIR}/data/ DESTINATION ${ZP_DATA_FOLDER})
  install(FILES ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_SOURCE_DIR}/CHANGELOG.md DESTINATION share/doc/zppipemanager)
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs DESTINATION share/doc/zppipemanager)
  install(EXPORT ZPPipeManagerTargets NAMESPACE ZPPipeManager:: DESTINATION ${ZP_PACKAGE_FOLDER})
  install(SCRIPT ${CMAKE_SOURCE_DIR}/cmake/InstallWithoutThirdParties.cmake)
  set(config ${CMAKE_BINARY_DIR}/ZPPipeManagerConfig.cmake)
  configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/ZPPipeManagerConfig.cmake.in ${config}
                                INSTALL_DESTINATION ${ZP_PACKAGE_FOLDER} NO_CHECK_REQUIRED_COMPONENTS_MACRO
                                PATH_VARS ZP_LIBRARY_FOLDER ZP_PROGRAM_FILE)
  # Before 1.0 a minor version may change what siblings call.
  write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZPPipeManagerConfigVersion.cmake COMPATIBILITY SameMinorVersion)
  install(FILES ${config} ${CMAKE_BINARY_DIR}/ZPPipeManagerConfigVersion.cmake DESTINATION ${ZP_PACKAGE_FOLDER})
endfunction()

# Installing and exporting: include/ and the public folders are what installs.
include(CMakePackageConfigHelpers)
foreach(dir IN LISTS NGA_PUBLIC_DIRS)
  install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/DDB_NonGeometricAttributes
    FILES_MATCHING PATTERN "*.h" PATTERN "impl" EXCLUDE PATTERN "com" EXCLUDE)
endforeach()
install(TARGETS DDB_NonGeometricAttributes EXPORT DDB_NonGeometricAttributesTargets)
install(EXPORT DDB_NonGeometricAttributesTargets NAMESPACE DDB::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/DDB_NonGeometricAttributes)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/Config.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/DDB_NonGeometricAttributesConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/DDB_NonGeometricAttributes)
write_basic_package_version_file(
  ${CMAKE_CURRENT_BINARY_DIR}/DDB_NonGeometricAttributesConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/DDB_NonGeometricAttributesConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/DDB_NonGeometricAttributesConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/DDB_NonGeometricAttributes)

# Installing and exporting: the headers of the public folders install, all into one folder, but for
# those that only the library's own sources include.
include(CMakePackageConfigHelpers)
set(NGA_PRIVATE_HEADERS DDB_Units.h rom_Reader.h rom_UidTable.h rom_Writer.h)
foreach(dir IN LISTS NGA_PUBLIC_DIRS)
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.h)
  foreach(header IN LISTS NGA_PRIVATE_HEADERS)
    list(REMOVE_ITEM headers ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/${header})
  endforeach()
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/DDB_NonGeometricAttributes)
endforeach()
# Installed and in the tree, the target has the same two names.
set_target_properties(DDB_NonGeometricAttributes PROPERTIES EXPORT_NAME NonGeometricAttributes)
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

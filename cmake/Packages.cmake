# Debian packages of what Install.cmake installs, one per component. The preset "package" configures a build for them.
# Their dependencies come from the packages of the machine, so build them on the target architecture.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${PROJECT_NAME} maintainers")
set(CPACK_COMPONENTS_ALL library development tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(libraryPackage libtalvo-corvane-zelmar-serialization-thrift)
set(thisLibrary "${libraryPackage}${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${libraryPackage}${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "converters between the Corvane object model and its Thrift records
The objects of a broadcast video server (clips, channels, sequences, commands, events) travel between processes as Apache
Thrift records. This library translates between the two.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${libraryPackage}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${thisLibrary}, libthrift-dev, libboost-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${CPACK_DEBIAN_LIBRARY_DESCRIPTION}
Headers, schema files, CMake package and pkg-config file.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME talvo-wire)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${thisLibrary}")
set(CPACK_DEBIAN_TOOL_DESCRIPTION "prints, converts and transcodes Thrift records of the Corvane object model
A command line tool for people who debug what a broadcast video server sends. It knows every record by name and reads the
binary, compact and JSON protocols.")

include(CPack)

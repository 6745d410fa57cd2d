# Finds Apache Thrift as distributions ship it, without a CMake package. Defines the targets
#   Thrift::headers  all that the wire records need
#   Thrift::thrift   the library with protocols and transports, if it is installed
find_path(Thrift_INCLUDE_DIR thrift/protocol/TProtocol.h)
find_library(Thrift_LIBRARY thrift)
mark_as_advanced(Thrift_INCLUDE_DIR Thrift_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Thrift REQUIRED_VARS Thrift_INCLUDE_DIR)

if(Thrift_FOUND AND NOT TARGET Thrift::headers)
    add_library(Thrift::headers INTERFACE IMPORTED)
    set_target_properties(Thrift::headers PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${Thrift_INCLUDE_DIR}")
endif()
if(Thrift_FOUND AND Thrift_LIBRARY AND NOT TARGET Thrift::thrift)
    add_library(Thrift::thrift UNKNOWN IMPORTED)
    set_target_properties(Thrift::thrift PROPERTIES
        IMPORTED_LOCATION "${Thrift_LIBRARY}"
        INTERFACE_LINK_LIBRARIES Thrift::headers)
endif()

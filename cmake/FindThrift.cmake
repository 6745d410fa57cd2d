# Finds Apache Thrift as distributions ship it, without a CMake package. Defines the targets
#   Thrift::headers  all that the wire records need
#   Thrift::thrift   the library with protocols and transports, if it is installed
# and, with the component "compiler", THRIFT_COMPILER.
find_path(Thrift_INCLUDE_DIR thrift/protocol/TProtocol.h)
find_library(Thrift_LIBRARY thrift)
mark_as_advanced(Thrift_INCLUDE_DIR Thrift_LIBRARY)

if(Thrift_INCLUDE_DIR)
    file(STRINGS ${Thrift_INCLUDE_DIR}/thrift/config.h Thrift_VERSION REGEX "^#define PACKAGE_VERSION ")
    string(REGEX REPLACE ".*\"(.*)\"" "\\1" Thrift_VERSION "${Thrift_VERSION}")
endif()

if(Thrift_FIND_REQUIRED_compiler)
    find_program(THRIFT_COMPILER thrift)
    mark_as_advanced(THRIFT_COMPILER)
    set(Thrift_compiler_FOUND FALSE)
    if(THRIFT_COMPILER)
        execute_process(COMMAND ${THRIFT_COMPILER} --version OUTPUT_VARIABLE compilerVersion)
        string(REGEX REPLACE "^Thrift version ([0-9.]+).*" "\\1" compilerVersion "${compilerVersion}")
        if(compilerVersion VERSION_GREATER_EQUAL "${Thrift_FIND_VERSION}")
            set(Thrift_compiler_FOUND TRUE)
        else()
            message(STATUS "${THRIFT_COMPILER} is of version ${compilerVersion}")
        endif()
    endif()
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Thrift
    REQUIRED_VARS Thrift_INCLUDE_DIR
    VERSION_VAR Thrift_VERSION
    HANDLE_COMPONENTS
    REASON_FAILURE_MESSAGE
        "The headers and library are in Debian's package libthrift-dev, the compiler in thrift-compiler. Debian 12 has 0.17.")

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

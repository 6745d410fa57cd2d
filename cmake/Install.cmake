# The install tree is relocatable: no file in it contains an absolute path. Components: library, development, tool.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)

set(package TalvoCorvaneZelmarSerializationThrift)
set(includeRoot ${CMAKE_INSTALL_INCLUDEDIR}/Talvo.Corvane.Zelmar.Serialization.Thrift)
set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
set(schemaFolder ${CMAKE_INSTALL_DATADIR}/Talvo.Corvane.Zelmar.Serialization.Thrift/schema)

install(TARGETS ${package} EXPORT ${package}
    LIBRARY COMPONENT library NAMELINK_COMPONENT development
    INCLUDES DESTINATION ${includeRoot})
set(headerFolders Common TimePoints Thrift)
if(NOT TALVO_EXTERNAL_SIBLINGS)
    list(APPEND headerFolders Domain)
endif()
install(DIRECTORY ${headerFolders} DESTINATION ${includeRoot}
    FILES_MATCHING PATTERN "*.h"
    PATTERN Thrift/Detail EXCLUDE
    REGEX "Thrift/(Data/(Boundaries|Identifiers)|Commands/(ByChannel|PlayersDataOverrides|Results)|Notifier/(ClipEvents|CreationTexts))\\.h$" EXCLUDE
    REGEX "TimePoints/(SampleCounting|TimeCodeBreakdown|TimeCodeText)\\.h$" EXCLUDE)
install(FILES ${PROJECT_BINARY_DIR}/version/Thrift/Version.h DESTINATION ${includeRoot}/Thrift)
get_target_property(generatedFolder TalvoWireRecords TALVO_GENERATED_FOLDER)
install(DIRECTORY ${generatedFolder}/ DESTINATION ${includeRoot}/generated
    FILES_MATCHING PATTERN "*.h" PATTERN "*.tcc"
    PATTERN RecordFields.h EXCLUDE)
install(DIRECTORY schema/ DESTINATION ${schemaFolder} FILES_MATCHING PATTERN "*.thrift")

if(TARGET talvo-wire)
    set_target_properties(talvo-wire PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
    install(TARGETS talvo-wire COMPONENT tool)
    install(FILES tools/talvo-wire.bash COMPONENT tool
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME talvo-wire)
    set(TALVO_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING "Folder of completions for zsh")
    install(FILES tools/talvo-wire.zsh COMPONENT tool DESTINATION ${TALVO_ZSH_COMPLETIONS} RENAME _talvo-wire)
    install(FILES tools/talvo-wire.fish COMPONENT tool
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
    install(FILES tools/talvo-wire.1 COMPONENT tool DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

install(EXPORT ${package} NAMESPACE Talvo:: DESTINATION ${packageFolder} FILE ${package}Targets.cmake)
configure_package_config_file(cmake/PackageConfig.cmake.in ${package}Config.cmake
    INSTALL_DESTINATION ${packageFolder} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/${package}Config.cmake
    ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
    cmake/FindThrift.cmake
    DESTINATION ${packageFolder})

if(TALVO_EXTERNAL_SIBLINGS)
    set(siblingModules "talvo-high-level-operations talvo-corvane-data")
endif()
file(RELATIVE_PATH toPrefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/talvo.pc.in talvo-corvane-zelmar-serialization-thrift.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/talvo-corvane-zelmar-serialization-thrift.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

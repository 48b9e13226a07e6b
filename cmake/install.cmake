# What a host is built with and what it runs with. Folders are those of the system's conventions, below the prefix.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/EffectSettings)
configure_package_config_file(cmake/EffectSettingsConfig.cmake.in EffectSettingsConfig.cmake
                              INSTALL_DESTINATION ${config_folder}
                              PATH_VARS CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_INCLUDEDIR
                              NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(EffectSettingsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
configure_file(cmake/EffectSettings.pc.in EffectSettings.pc @ONLY)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME library)
install(TARGETS EffectSettings RUNTIME ARCHIVE)
if(LLVM_DLLTOOL)
    install(FILES ${EFFECT_SETTINGS_MSVC_LIB} DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()
install(DIRECTORY img DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY include/effect_settings DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/EffectSettingsConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/EffectSettingsConfigVersion.cmake cmake/EffectSettingsRuntime.cmake
        DESTINATION ${config_folder})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/EffectSettings.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(MSVC)
    install(FILES $<TARGET_PDB_FILE:EffectSettings> DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT symbols OPTIONAL)
else()
    install(FILES $<TARGET_FILE:EffectSettings>.debug DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT symbols)
endif()

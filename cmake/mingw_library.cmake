# The import libraries for both compilers, from one list of exports. In 32-bit code callers ask for the decorated name,
# while the library exports the plain one. The tool writes the given name into the file, so that holds no path.
set(decoration $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>,@28,>)
file(GENERATE OUTPUT import.def CONTENT "LIBRARY EffectSettings.dll\nEXPORTS\n    ShowSettingsDialog${decoration}\n")
add_custom_command(TARGET EffectSettings POST_BUILD VERBATIM
                   COMMAND ${CMAKE_DLLTOOL} --kill-at --deterministic-libraries --temp-prefix EffectSettings_import
                           --input-def import.def --output-lib $<TARGET_LINKER_FILE_NAME:EffectSettings>)

# MSVC's, wherever LLVM's tool is installed; ./package does that.
find_program(LLVM_DLLTOOL llvm-dlltool)
if(LLVM_DLLTOOL)
    set(machine $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>,i386,i386:x86-64>)
    set(EFFECT_SETTINGS_MSVC_LIB ${CMAKE_CURRENT_BINARY_DIR}/EffectSettings.lib)
    add_custom_command(TARGET EffectSettings POST_BUILD VERBATIM BYPRODUCTS ${EFFECT_SETTINGS_MSVC_LIB}
                       COMMAND ${LLVM_DLLTOOL} -k -m ${machine} -d import.def -l ${EFFECT_SETTINGS_MSVC_LIB})
endif()

# The symbols go into a file of their own, which the library names to debuggers.
set(objcopy ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0 ${CMAKE_OBJCOPY})  # It stamps what it writes.
add_custom_command(TARGET EffectSettings POST_BUILD VERBATIM
                   COMMAND ${objcopy} --only-keep-debug $<TARGET_FILE:EffectSettings>
                           $<TARGET_FILE:EffectSettings>.debug
                   COMMAND ${objcopy} --strip-all --add-gnu-debuglink=$<TARGET_FILE:EffectSettings>.debug
                           $<TARGET_FILE:EffectSettings>)

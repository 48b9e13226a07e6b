# What a program needs beside it to run: the library and the pictures of its skin.

# Copies both into the folder of a program whenever that is built.
function(effect_settings_copy_runtime program)
    get_property(pictures TARGET EffectSettings::EffectSettings PROPERTY EFFECT_SETTINGS_PICTURES)
    add_custom_command(TARGET ${program} POST_BUILD VERBATIM
                       COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:EffectSettings::EffectSettings>
                               $<TARGET_FILE_DIR:${program}>
                       COMMAND ${CMAKE_COMMAND} -E copy_directory ${pictures} $<TARGET_FILE_DIR:${program}>/img)
endfunction()

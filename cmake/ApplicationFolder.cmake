# The application folder in the build tree, and the same folder as it is installed. Programs are built right
# into it; this adds what is copied. A preferences file that is there already belongs to the user and stays.
file(GLOB KAV_INCLUDE_FILES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/toolchain/include/*.inc)
file(GLOB KAV_EXAMPLE_FILES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/examples/*.z80)
set(KAV_MANUAL_PAGES ${PROJECT_SOURCE_DIR}/toolchain/assembler/kav-asm.1 ${PROJECT_SOURCE_DIR}/packaging/kav-compiler.1)
set(KAV_SCRIPT ${PROJECT_SOURCE_DIR}/toolchain/asm)
set(KAV_FIRST_PREFERENCES ${PROJECT_SOURCE_DIR}/packaging/prefs.ini)

add_custom_command(
    OUTPUT ${KAV_APP_DIR}/copied.stamp
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KAV_APP_DIR}/include ${KAV_APP_DIR}/examples
    COMMAND ${CMAKE_COMMAND} -E copy ${KAV_INCLUDE_FILES} ${KAV_APP_DIR}/include
    COMMAND ${CMAKE_COMMAND} -E copy ${KAV_EXAMPLE_FILES} ${KAV_APP_DIR}/examples
    COMMAND ${CMAKE_COMMAND} -E copy ${KAV_SCRIPT} ${KAV_APP_DIR}/asm
    COMMAND ${CMAKE_COMMAND} -DFROM=${KAV_FIRST_PREFERENCES} -DTO=${KAV_APP_DIR}/prefs.ini
            -P ${PROJECT_SOURCE_DIR}/cmake/CopyIfMissing.cmake
    COMMAND ${CMAKE_COMMAND} -E touch ${KAV_APP_DIR}/copied.stamp
    DEPENDS ${KAV_INCLUDE_FILES} ${KAV_EXAMPLE_FILES} ${KAV_SCRIPT} ${KAV_FIRST_PREFERENCES}
    COMMENT "Filling the application folder"
    VERBATIM)

set(KAV_LARGEST_ICON ${KAV_APP_DIR}/icons/hicolor/256x256/apps/kav-compiler.png)
add_custom_command(
    OUTPUT ${KAV_LARGEST_ICON}
    COMMAND draw_icons ${KAV_APP_DIR}/icons/hicolor
    COMMENT "Drawing the icon"
    VERBATIM)

# The help file. A link or a picture of a page that leads nowhere ends the build.
file(GLOB KAV_HELP_PAGES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/help/*.html
     ${PROJECT_SOURCE_DIR}/docs/help/pictures/*.png)
set(KAV_HELP_FILE ${KAV_APP_DIR}/kavhelp.hlp)
add_custom_command(
    OUTPUT ${KAV_HELP_FILE}
    COMMAND kav-make-help ${PROJECT_SOURCE_DIR}/docs/help ${KAV_HELP_FILE}
    DEPENDS ${KAV_HELP_PAGES}
    COMMENT "Making the help file"
    VERBATIM)

add_custom_target(kav_application_folder ALL
                  DEPENDS ${KAV_APP_DIR}/copied.stamp ${KAV_LARGEST_ICON} ${KAV_HELP_FILE})

# Installed, the prefix is the application folder:  cmake --install out/release --prefix "$HOME/KAV Compiler"
install(TARGETS kav-compiler kav-viewer kav-asm unregister-file-types DESTINATION . COMPONENT folder)
install(FILES ${KAV_HELP_FILE} DESTINATION . COMPONENT folder)
install(FILES ${KAV_INCLUDE_FILES} DESTINATION include COMPONENT folder)
install(FILES ${KAV_EXAMPLE_FILES} DESTINATION examples COMPONENT folder)
install(DIRECTORY ${KAV_APP_DIR}/icons DESTINATION . COMPONENT folder)
install(FILES ${KAV_MANUAL_PAGES} DESTINATION . COMPONENT manual)
install(CODE "set(KAV_FIRST_PREFERENCES \"${KAV_FIRST_PREFERENCES}\")
              set(KAV_SCRIPT \"${KAV_SCRIPT}\")" COMPONENT folder)
install(SCRIPT ${PROJECT_SOURCE_DIR}/cmake/InstallUsersFiles.cmake COMPONENT folder)
